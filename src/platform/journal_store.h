// The folder of one project's undo journal: which operations it holds, what became of each, how much room they take.
// Every file in it is made or lengthened with a flush, and a fault of any of them is an answer, not a failure.
#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "platform/files.h"
#include "platform/folder_lock.h"
#include "platform/journal_records.h"

namespace platform {

inline constexpr std::uint64_t most_journal_bytes = 512u << 20;
inline constexpr std::size_t most_journal_operations = 1000;

struct Journal_limits {
  std::uint64_t bytes = most_journal_bytes;
  std::size_t operations = most_journal_operations;
};

enum class Journal_state {
  closed,
  kept,
  in_use,         // another running program keeps this project's journal
  other_version,  // a later program made it
  unwritable      // its folder can't be made, locked or written
};

enum class Operation_status { applied, undoing, undone, redoing };

struct Operation {
  std::uint64_t number = 0;
  Operation_title title;
  bool ended = false;  // without an end mark the last write to each file may not have happened
  std::uint32_t changes = 0;
  std::vector<std::uint32_t> failed;  // changes whose write failed
  Operation_status status = Operation_status::applied;
  std::uint64_t bytes = 0;
};

// Applied operations come first, then one at most that is being undone or redone, then undone ones; by number.
struct Journal_store {
  Files& files;
  std::string folder;
  Journal_limits limits;
  std::unique_ptr<Folder_lock> lock{};
  std::vector<Operation> operations{};
  std::uint64_t next_number = 1;
};

// Makes the folder, takes its lock and reads what it holds; what can't be used any more is removed.
Journal_state store_open(Journal_store& store, const std::string& project_path);
// Gives the lock back and forgets what was read.
void store_close(Journal_store& store);

// False when it could not be written; nothing is changed then.
bool mark_add(Journal_store& store, const Mark& mark);
// The file of an operation with its first change record, and one change record more.
bool undo_make(Journal_store& store, Operation& operation, std::string_view record);
bool undo_add(Journal_store& store, Operation& operation, std::string_view record);
bool redo_make(Journal_store& store, Operation& operation, std::string_view bytes);
// False when the file is missing, damaged or holds fewer changes than the end mark tells.
bool undo_read(Journal_store& store, const Operation& operation, std::vector<Change>& changes);
bool redo_read(Journal_store& store, const Operation& operation, std::vector<Change>& changes);

// Removes an operation with its files. False when they are still there.
bool operation_drop(Journal_store& store, std::size_t index);
// Removes what is undone, newest first, and one that is being undone or redone. False when one is still there.
bool undone_drop(Journal_store& store);
// Removes the oldest operations, then the newest, but not `kept`, until `bytes` more find room. False when they don't.
bool room_make(Journal_store& store, std::uint64_t bytes, std::uint64_t kept);

}  // namespace platform
