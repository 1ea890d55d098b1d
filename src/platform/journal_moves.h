// How the files of one operation go back to what they held before it, and forth again.
#pragma once

#include <string>
#include <vector>

#include "platform/files.h"
#include "platform/journal_records.h"
#include "platform/journal_store.h"

namespace platform {

enum class Direction { back, forth };

// What an operation did to one file: each of its writes in order, and all of them together.
struct File_move {
  std::vector<Change> chain;
  Change net;
};

// What stands at a path: none where there is no file. False for one that is there and can't be read.
bool contents_read(Files& files, const std::string& path, Contents& contents);

// The changes by file, in the order of their first writes, without those whose write failed.
std::vector<File_move> moves_of(const Operation& operation, std::vector<Change> changes);

// Makes of the content after an operation the one before it. False, and `contents` is as good as lost, when it isn't
// the content after it: somebody else has changed the file. Of an operation without an end mark the last write may be
// missing, or a part of the last appended bytes.
bool content_before(const File_move& move, bool ended, Contents& contents);

// Fills `net` of each move from what the files hold now, and gives the paths of those that somebody else has changed
// or that can't be read.
std::vector<std::string> nets_make(Files& files, const Operation& operation, std::vector<File_move>& moves);
// Gives each move its net as it was stored. False when they don't fit together.
bool nets_take(std::vector<File_move>& moves, std::vector<Change> nets);

// The paths that can't go that way: changed by somebody else, or unreadable. With `half` some may be there already.
std::vector<std::string> not_ready(Files& files, const Operation& operation, const std::vector<File_move>& moves,
                                   Direction direction, bool half);
// Moves all files that aren't there yet; the path of the first that can't be moved, or none.
std::string move_all(Files& files, const Operation& operation, const std::vector<File_move>& moves,
                     Direction direction);

}  // namespace platform
