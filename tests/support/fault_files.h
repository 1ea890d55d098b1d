// Files that fail where a test wants it, and a log of what was called. Everything else goes to the files behind.
#pragma once

#include <algorithm>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "platform/failures.h"
#include "platform/files.h"

namespace support {

class Fault_files : public platform::Files {
 public:
  explicit Fault_files(platform::Files& behind) : behind_(behind) {}

  // The calls so far, as "read_bytes C:\a.txt"; a copy names both paths.
  std::vector<std::string> log;

  // The n-th write from now on (write_whole, append, copy; 1 is the next) fails and changes nothing; 0 lets all pass.
  int failing_write = 0;
  // How many bytes may still be written before the disk is full; below 0 there is no end.
  std::int64_t room = -1;
  // Every change is refused: writes fail, remove and make_folder are false.
  bool read_only = false;
  // The new content is written, but the last step, putting it in the place of the old, fails.
  bool failing_rename = false;
  // Reads of a path that holds this text fail; empty: none.
  std::string unreadable;

  // How many calls began with `call`, all of them when it is empty: a repaint that touches no file leaves 0.
  int calls(std::string_view call = {}) const {
    return static_cast<int>(std::count_if(log.begin(), log.end(), [&](const std::string& entry) {
      return std::string_view(entry).substr(0, call.size()) == call;
    }));
  }

  std::int64_t length(const std::string& path) override {
    note("length", path);
    return behind_.length(path);
  }
  std::string read_bytes(const std::string& path) override {
    note("read_bytes", path);
    if (!unreadable.empty() && path.find(unreadable) != std::string::npos) fail(path, "read", "Input/output error");
    return behind_.read_bytes(path);
  }
  void write_whole(const std::string& path, std::string_view bytes) override {
    note("write_whole", path);
    check_write(path, static_cast<std::int64_t>(bytes.size()));
    behind_.write_whole(path, bytes);
  }
  void append(const std::string& path, std::string_view bytes) override {
    note("append", path);
    check_write(path, static_cast<std::int64_t>(bytes.size()));
    behind_.append(path, bytes);
  }
  void copy(const std::string& from, const std::string& to) override {
    note("copy", from + " " + to);
    check_write(to, behind_.length(from));
    behind_.copy(from, to);
  }
  bool remove(const std::string& path) override {
    note("remove", path);
    return !read_only && behind_.remove(path);
  }
  bool make_folder(const std::string& path) override {
    note("make_folder", path);
    return read_only ? behind_.folder_exists(path) : behind_.make_folder(path);
  }
  bool folder_exists(const std::string& path) override {
    note("folder_exists", path);
    return behind_.folder_exists(path);
  }
  std::vector<std::string> list(const std::string& folder, std::string_view pattern) override {
    note("list", folder);
    return behind_.list(folder, pattern);
  }
  std::int64_t time_stamp(const std::string& path) override {
    note("time_stamp", path);
    return behind_.time_stamp(path);
  }
  std::string native_path(const std::string& path) override {
    note("native_path", path);
    return behind_.native_path(path);
  }

 private:
  void note(const char* call, const std::string& path) { log.push_back(std::string(call) + " " + path); }

  [[noreturn]] static void fail(const std::string& path, const char* done, const char* reason) {
    throw platform::File_failure(path + " could not be " + done + ": " + reason);
  }

  void check_write(const std::string& path, std::int64_t size) {
    if (read_only) fail(path, "written", "Read-only file system");
    if (failing_write > 0 && --failing_write == 0) fail(path, "written", "Input/output error");
    if (room >= 0 && size > room) {
      room = 0;
      fail(path, "written", "No space left on device");
    }
    if (room >= 0) room -= size;
    if (failing_rename) fail(path, "written", "Device or resource busy");
  }

  platform::Files& behind_;
};

}  // namespace support
