// Any bytes as a text of the code page, and any bytes as UTF-8.
#include <cstdint>
#include <cstdlib>
#include <string>
#include <vector>

#include "platform/code_page_932.h"

namespace {

void require(bool holds) {
  if (!holds) std::abort();
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string bytes(reinterpret_cast<const char*>(data), size);
  std::vector<platform::Unmapped_byte> unmapped, again;

  // As a text of the code page: what is written back has the same text and as many bytes.
  const std::string text = platform::decode_932(bytes, &unmapped);
  const std::string written = platform::encode_932(text, &unmapped);
  require(written.size() == bytes.size());
  require(platform::decode_932(written, &again) == text);
  require(platform::encode_932(text, &again) == written);
  require(again.size() == unmapped.size());
  require(platform::characters_without_code(text).empty() == unmapped.empty());
  require(platform::length_932(text) == platform::encode_932(text).size());

  // As UTF-8, whole or broken: what has no code is a "?", everything else stays.
  const std::string encoded = platform::encode_932(bytes);
  require(encoded.size() == platform::length_932(bytes));
  require(encoded.size() <= bytes.size());
  const std::string back = platform::decode_932(encoded);
  require(platform::encode_932(back) == encoded);
  require(platform::characters_without_code(back).empty());
  return 0;
}
