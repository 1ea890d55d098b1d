// What the machine's own calls do with files: the only place where they differ between operating systems. Faults are
// std::system_error; Disk_files makes a File_failure of each. Every step passes the gate: see disk_gate.h.
#pragma once

#include <cstdint>
#include <filesystem>
#include <functional>
#include <string>
#include <string_view>
#include <system_error>
#include <vector>

#include "platform/disk_gate.h"
#include "platform/failures.h"

namespace platform {

// Whether the machine itself finds names without regard to case.
#ifdef _WIN32
inline constexpr bool machine_folds_case = true;
#else
inline constexpr bool machine_folds_case = false;
#endif

// The path as the machine parts its names; "\" and "/" both part names, and one at the end counts for nothing. A text
// with a NUL gives the empty path, which no file has.
std::filesystem::path machine_path(std::string_view path);
// A machine's path or name as a text. Where a machine's names are bytes, those that are no UTF-8 stay as they are.
std::string path_text(const std::filesystem::path& path);

// What a fault of the machine comes to for a user.
File_cause cause_of(const std::error_code& fault);

struct File_facts {
  bool is_file = false;  // an ordinary file, links followed
  bool is_folder = false;
  std::int64_t size = 0;
  std::int64_t changed_ns = 0;  // time of the last change, nanoseconds since 1970 UTC
};

// All zero for what is missing or can't be reached.
File_facts facts_of(const std::filesystem::path& path);
// The names in a folder in no order, all kinds; none when it can't be read.
std::vector<std::string> names_in(const std::filesystem::path& folder);
// No file above this size is taken into memory.
inline constexpr std::int64_t largest_file_bytes = 2'000'000'000;
// The whole content of an ordinary file of no more than largest_file_bytes.
std::string read_file(const std::filesystem::path& path, const Disk_gate& gate = {});
// The content of an ordinary file of any size, a piece at a time, until `take` gives false.
void read_file_pieces(const std::filesystem::path& path, const std::function<bool(std::string_view)>& take,
                      const Disk_gate& gate = {});
// Writes a temporary file beside the target, flushes it and renames it over the target, whose permission bits it takes
// over. A symbolic link stays, and what it points at is replaced. On a fault the target is as it was and the temporary
// file is gone; a kill can leave the temporary file, named ".terranote-<process>-<n>.tmp".
void replace_file(const std::filesystem::path& path, std::string_view bytes, const Disk_gate& gate = {});
// Adds at the end and flushes; on a fault the file has its old length again, and a new one is gone.
void append_file(const std::filesystem::path& path, std::string_view bytes, const Disk_gate& gate = {});
// False when it was not there. A folder is a fault.
bool remove_file(const std::filesystem::path& path, const Disk_gate& gate = {});
// One that is there already is no fault.
void make_one_folder(const std::filesystem::path& path, const Disk_gate& gate = {});

}  // namespace platform
