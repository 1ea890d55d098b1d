// Files with the same content under every name, which comes in pieces.
#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>

#include "platform/failures.h"
#include "platform/files.h"

namespace support {

struct In_pieces : platform::Disk_files {
  std::string bytes;
  std::size_t size = 1;  // of a piece
  bool fails = false;    // at the end
  int handed = 0;
  std::int64_t length(const std::string&) override { return static_cast<std::int64_t>(bytes.size()); }
  void read_pieces(const std::string&, const std::function<bool(std::string_view)>& take) override {
    for (std::size_t at = 0; at < bytes.size(); at += size, ++handed)
      if (!take(std::string_view(bytes).substr(at, size))) return;
    if (fails) throw platform::File_failure("gone");
  }
};

}  // namespace support
