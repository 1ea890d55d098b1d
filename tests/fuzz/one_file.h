// Files with the same content under every name: the bytes that a fuzz target was given.
#pragma once

#include <cstdint>
#include <cstdlib>
#include <string>
#include <string_view>
#include <vector>

#include "platform/files.h"

namespace support {

class One_file : public platform::Disk_files {
 public:
  One_file(const std::uint8_t* data, std::size_t size) : bytes_(data, data + size) {}
  std::int64_t length(const std::string&) override { return static_cast<std::int64_t>(bytes_.size()); }
  std::string read_bytes(const std::string&) override { return bytes_; }
  void read_pieces(const std::string&, const std::function<bool(std::string_view)>& take) override {
    const std::size_t half = bytes_.size() / 2;
    const std::string_view all = bytes_;
    if (take(all.substr(0, half))) take(all.substr(half));
  }
  std::vector<std::string> list(const std::string&, std::string_view) override { return {"a.mps"}; }

 private:
  std::string bytes_;
};

// Ends the run as a found fault where a promise does not hold.
inline void promise(bool holds) {
  if (!holds) std::abort();
}

}  // namespace support
