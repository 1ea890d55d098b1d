// A folder of a test's own, gone with it.
#pragma once

#include <filesystem>
#include <random>
#include <string>

namespace support {

class Temporary_folder {
 public:
  // In the machine's folder for such ones, or in another that is there.
  explicit Temporary_folder(std::filesystem::path where = {}) {
    if (where.empty()) where = std::filesystem::temp_directory_path();
    std::random_device random;
    do {
      path_ = where / ("terranote_test_" + std::to_string(random()));
    } while (!std::filesystem::create_directory(path_));
  }
  ~Temporary_folder() {
    std::error_code ignored;
    std::filesystem::permissions(path_, std::filesystem::perms::owner_all, ignored);
    std::filesystem::remove_all(path_, ignored);
  }
  Temporary_folder(const Temporary_folder&) = delete;
  Temporary_folder& operator=(const Temporary_folder&) = delete;

  const std::filesystem::path& path() const { return path_; }
  std::string text() const { return path_.string(); }

 private:
  std::filesystem::path path_;
};

}  // namespace support
