// Files in memory, for roads that would flush the disk thousands of times. Folders are there as soon as they are named;
// what the machine itself must open (a lock) lies in a temporary folder.
#pragma once

#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "platform/failures.h"
#include "platform/files.h"
#include "platform/path_keys.h"
#include "support/temporary_folder.h"

namespace support {

class Memory_files : public platform::Files {
 public:
  std::int64_t length(const std::string& path) override {
    const auto found = files_.find(platform::path_key(path));
    return found == files_.end() ? 0 : static_cast<std::int64_t>(found->second.size());
  }
  std::string read_bytes(const std::string& path) override {
    const auto found = files_.find(platform::path_key(path));
    if (found == files_.end()) throw platform::File_failure(path + " could not be read: no such file");
    return found->second;
  }
  void write_whole(const std::string& path, std::string_view bytes) override {
    files_[platform::path_key(path)] = bytes;
  }
  void append(const std::string& path, std::string_view bytes) override { files_[platform::path_key(path)] += bytes; }
  void copy(const std::string& from, const std::string& to) override { write_whole(to, read_bytes(from)); }
  bool remove(const std::string& path) override { return files_.erase(platform::path_key(path)) > 0; }
  bool make_folder(const std::string&) override { return true; }
  bool folder_exists(const std::string&) override { return true; }
  // Patterns "*", "*.ext" and "start*".
  std::vector<std::string> list(const std::string& folder, std::string_view pattern) override {
    const std::string below = platform::path_key(folder) + "\\";
    const std::size_t star = pattern.find('*');
    const std::string_view start = pattern.substr(0, star), end = pattern.substr(star + 1);
    std::vector<std::string> names;
    for (const auto& [path, bytes] : files_) {
      const std::string name = path.substr(0, below.size()) == below ? path.substr(below.size()) : std::string();
      if (!name.empty() && name.find('\\') == std::string::npos && name.starts_with(start) && name.ends_with(end))
        names.push_back(name);
    }
    return names;
  }
  std::int64_t time_stamp(const std::string& path) override { return files_.count(platform::path_key(path)) ? 1 : 0; }
  std::string native_path(const std::string& path) override {
    const std::size_t last = path.find_last_of("\\/");
    return (machine_.path() / path.substr(last == std::string::npos ? 0 : last + 1)).string();
  }

 private:
  Temporary_folder machine_;
  std::map<std::string, std::string> files_;
};

}  // namespace support
