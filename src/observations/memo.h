// The memo of a record: \chisou_men\txt\<registration number>.txt in the project folder, bound to the record by its
// number alone. Lines are parted by "\n" here.
#pragma once

#include <string>

#include "platform/files.h"
#include "platform/processes.h"
#include "platform/prompts.h"

namespace observations {

// The path of a registration number's memo; empty when the number is no file name (none, or one with a separator).
std::string memo_path(const std::string& project_path, const std::string& registration);

// The memo's text; empty when there is none.
std::string memo_read(platform::Files& files, const std::string& path);

// Writes the memo, its folder made when it is missing. A text that is the file's already leaves it untouched, and an
// empty one makes no file. File_failure when it can't be written.
void memo_write(platform::Files& files, const std::string& project_path, const std::string& path,
                const std::string& text);

// Where a memo is seen and changed.
enum class Memo_shown {
  program,  // its file was opened with the program that goes with it
  panel     // it has no file, or that could not be opened: the panel's own box is the editor
};

// "メモ表示": opens the memo's file when it has a length. A failure comes up as a message.
Memo_shown Command23(platform::Files& files, platform::Processes& processes, platform::Prompts& prompts,
                     const std::string& project_path, const std::string& registration);

}  // namespace observations
