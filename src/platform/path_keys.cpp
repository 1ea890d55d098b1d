#include "platform/path_keys.h"

#include <algorithm>
#include <vector>

#include "platform/content_stamp.h"
#include "platform/text_case.h"

namespace platform {
namespace {

constexpr std::size_t longest_readable = 40;  // bytes

// The first `longest_readable` bytes of a name, cut between characters, with "_" for what some machine refuses.
std::string readable(std::string_view name) {
  constexpr std::string_view refused = "\\/:*?\"<>|.";
  std::size_t length = std::min(name.size(), longest_readable);
  while (length > 0 && length < name.size() && (static_cast<unsigned char>(name[length]) & 0xc0) == 0x80) --length;
  std::string text(name.substr(0, length));
  std::replace_if(
      text.begin(), text.end(),
      [&](char c) { return static_cast<unsigned char>(c) < 0x20 || refused.find(c) != std::string_view::npos; }, '_');
  return text;
}

std::string hex_digits(std::uint64_t value) {
  constexpr std::string_view digits = "0123456789abcdef";
  std::string text;
  for (int shift = 60; shift >= 0; shift -= 4) text.push_back(digits[value >> shift & 15]);
  return text;
}

}  // namespace

std::string path_key(std::string_view path) {
  const bool rooted = !path.empty() && (path.front() == '\\' || path.front() == '/');
  std::vector<std::string_view> names;
  while (!path.empty()) {
    const std::size_t end = std::min(path.find_first_of("\\/"), path.size());
    const std::string_view name = path.substr(0, end);
    path.remove_prefix(std::min(end + 1, path.size()));
    if (name == ".." && !names.empty() && names.back() != "..")
      names.pop_back();
    else if (!name.empty() && name != "." && !(name == ".." && rooted))
      names.push_back(name);
  }
  std::string key;
  for (const std::string_view name : names) {
    if (rooted || !key.empty()) key += "\\";
    key += name;
  }
  return fold_case(key);
}

bool lies_below(std::string_view path, std::string_view folder) {
  const std::string below = path_key(folder) + "\\";
  return below.size() > 1 && path_key(path).compare(0, below.size(), below) == 0;
}

std::string folder_name_for(std::string_view path) {
  const std::string key = path_key(path);
  const std::size_t last = key.rfind('\\');
  return readable(last == std::string::npos ? key : key.substr(last + 1)) + "-" + hex_digits(hash_128(key)[0]);
}

}  // namespace platform
