// The undo journal on the disk: what its files hold, byte by byte (docs/formats/journal.md), and the difference between
// two contents of a file. Readers take any bytes; nothing here touches a file.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/content_stamp.h"

namespace platform {

inline constexpr std::uint32_t journal_version = 1;

// What an operation is called in the menu.
struct Operation_title {
  std::string japanese, english;
};

// How one file changes. Before and after agree in the first `head` and the last `tail` bytes; a middle part is kept
// where it is needed, and its length follows from the others.
struct Change {
  std::string path;
  Content_stamp before, after;
  std::uint64_t head = 0, tail = 0;
  bool before_kept = false, after_kept = false;
  std::string before_middle, after_middle;
};

enum class Mark_kind : std::uint8_t { ended = 1, undoing, undone, redoing, redone };

// What became of the operation `number`.
struct Mark {
  Mark_kind kind = Mark_kind::ended;
  std::uint64_t number = 0;
  // Of ended ones only: the title, how many changes it has, and those (counted from 0) whose write failed.
  Operation_title title;
  std::uint32_t changes = 0;
  std::vector<std::uint32_t> failed;
};

enum class Keep { before, after, both };

// Compares both contents and keeps the middle parts asked for.
Change difference(const std::string& path, const Contents& before, std::optional<std::string_view> after, Keep keep);
// The content before a change from the content after it, and the other way round. False, and `contents` as it was,
// when `contents` is not what the change tells or its middle isn't kept.
bool take_back(const Change& change, Contents& contents);
bool do_again(const Change& change, Contents& contents);

// The beginnings of the three kinds of files, and one record each.
std::string marks_beginning();
std::string undo_beginning(const Operation_title& title);
std::string redo_beginning();
std::string mark_record(const Mark& mark);
std::string change_record(const Change& change);

enum class Journal_file {
  whole,
  torn,           // whole records, then bytes that are none: a write that broke off
  other_version,  // nothing was read
  foreign         // no such file; nothing was read
};

// Each reads the records up to the first that is none.
Journal_file read_marks(std::string_view bytes, std::vector<Mark>& marks);
Journal_file read_undo(std::string_view bytes, Operation_title& title, std::vector<Change>& changes);
Journal_file read_redo(std::string_view bytes, std::vector<Change>& changes);

}  // namespace platform
