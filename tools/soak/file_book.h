// What every file below the run's folder must hold: noted when the run begins and at each write through the port.
#pragma once

#include <cstdint>
#include <filesystem>
#include <map>
#include <set>
#include <string>

#include "platform/content_stamp.h"
#include "soak/run_log.h"

namespace soak {

struct Noted_file {
  platform::Content_stamp stamp;
  bool written = false;                    // by the program in this run
  std::filesystem::file_time_type seen{};  // the file's time when it was last compared
  platform::Content_stamp first{};         // of a file that came in this run: what it held then
};

struct File_book {
  std::filesystem::path root;   // canonical
  std::filesystem::path state;  // the journals' folder: checked by their own reader
  std::map<std::filesystem::path, Noted_file> files;
  std::set<std::array<std::uint64_t, 2>> contents;                             // that any file had at any time
  std::set<std::array<std::uint64_t, 2>> removed;                              // that a removed file had
  std::map<std::filesystem::path, std::filesystem::file_time_type> looked_at;  // by project_check
};

// Notes every file that lies there.
void book_begin(File_book& book);
// Whether a path, which need not exist, lies below the root, through whatever links.
bool is_inside(const File_book& book, const std::filesystem::path& path);
void note_content(File_book& book, const std::filesystem::path& path, std::string_view bytes);
// Whether a person can have taken a file away without being asked: by undoing its making or by redoing its removal.
bool may_go_unasked(const File_book& book, const std::filesystem::path& path);
void note_gone(File_book& book, const std::filesystem::path& path);
std::string bytes_of(const std::filesystem::path& path);

// Every file must hold what was noted, none may be missing or have come by itself, no temporary file may be left. Files
// whose time is what it was at the last look aren't read again. The number of files that were read.
int book_check(File_book& book, Run_log& log);

}  // namespace soak
