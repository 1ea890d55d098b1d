// Files that belong together and are written one after the other.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "platform/files.h"

namespace exchange {

struct Set_file {
  std::string path;
  std::optional<std::string> bytes;  // none: a file of this name doesn't belong to the set and is removed
};

// What becomes of a file that was not there before when a later one of its set can't be written.
enum class New_files { stay, go };

// Writes the files in order. When one can't be written, those before it that replaced an older file get the older
// content back, and the File_failure goes on to the caller: a set that was whole before is whole again. A kill between
// two files, or a disk that refuses the way back too, can leave a mixed set of whole files.
void write_together(platform::Files& files, const std::vector<Set_file>& set, New_files new_files);

}  // namespace exchange
