#include "platform/journal_store.h"

#include <algorithm>
#include <map>
#include <set>
#include <utility>

#include "platform/failures.h"

namespace platform {
namespace {

constexpr std::size_t number_digits = 10;
constexpr std::uint64_t largest_number = 9'999'999'999;
constexpr std::size_t longest_marks = 1 << 16;  // bytes before the marks are written anew

std::string marks_path(const Journal_store& store) {
  return join_path(store.folder, "marks");
}

std::string operation_path(const Journal_store& store, std::uint64_t number, const char* ending) {
  std::string digits = std::to_string(number);
  digits.insert(0, number_digits - std::min(number_digits, digits.size()), '0');
  return join_path(store.folder, digits + ending);
}

std::string undo_path(const Journal_store& store, std::uint64_t number) {
  return operation_path(store, number, ".undo");
}

std::string redo_path(const Journal_store& store, std::uint64_t number) {
  return operation_path(store, number, ".redo");
}

// The number of "0000000012.undo"; 0 for any other name.
std::uint64_t number_of(std::string_view name) {
  if (name.size() < number_digits || name[number_digits] != '.') return 0;
  std::uint64_t number = 0;
  for (const char c : name.substr(0, number_digits)) {
    if (c < '0' || c > '9') return 0;
    number = number * 10 + static_cast<std::uint64_t>(c - '0');
  }
  return number;
}

// Runs a write; whether it went well.
template <typename Write>
bool wrote(Write write) {
  try {
    write();
  } catch (const File_failure&) {
    return false;
  }
  return true;
}

// The bytes of a file of the journal; none when it can't be read.
std::string bytes_of(Files& files, const std::string& path) {
  try {
    return files.read_bytes(path);
  } catch (const File_failure&) {
    return {};
  }
}

bool folders_make(Files& files, const std::string& folder) {
  if (folder.empty() || files.folder_exists(folder)) return !folder.empty();
  const std::size_t last = folder.find_last_of("\\/");
  if (last != std::string::npos && last > 0 && !folders_make(files, folder.substr(0, last))) return false;
  return files.make_folder(folder);
}

// A kill in the middle of a whole write leaves its temporary file. Nobody else writes here while the lock is held.
void leftovers_remove(Journal_store& store) {
  for (const std::string& name : store.files.list(store.folder, ".terranote-*"))
    store.files.remove(join_path(store.folder, name));
}

// An operation that a kill broke off may have left its temporary file beside any file that it was to write.
void sweep(Files& files, const std::vector<Change>& changes) {
  std::set<std::string> folders;
  for (const Change& change : changes) folders.insert(change.path.substr(0, change.path.find_last_of("\\/") + 1));
  for (const std::string& folder : folders) files.remove_left_over(folder);
}

void take_mark(Operation& operation, const Mark& mark) {
  switch (mark.kind) {
    case Mark_kind::ended:
      operation.ended = true;
      operation.title = mark.title;
      operation.changes = mark.changes;
      operation.failed = mark.failed;
      break;
    case Mark_kind::undoing:
      operation.status = Operation_status::undoing;
      break;
    case Mark_kind::undone:
      operation.status = Operation_status::undone;
      break;
    case Mark_kind::redoing:
      operation.status = Operation_status::redoing;
      break;
    case Mark_kind::redone:
      operation.status = Operation_status::applied;
      break;
  }
}

Mark end_mark(const Operation& operation) {
  return {Mark_kind::ended, operation.number, operation.title, operation.changes, operation.failed};
}

std::string all_marks(const Journal_store& store) {
  std::string bytes = marks_beginning();
  for (const Operation& operation : store.operations) {
    if (operation.ended) bytes += mark_record(end_mark(operation));
    Mark mark{Mark_kind::redone, operation.number, {}, 0, {}};
    if (operation.status == Operation_status::undoing) mark.kind = Mark_kind::undoing;
    if (operation.status == Operation_status::undone) mark.kind = Mark_kind::undone;
    if (operation.status == Operation_status::redoing) mark.kind = Mark_kind::redoing;
    if (operation.status != Operation_status::applied) bytes += mark_record(mark);
  }
  return bytes;
}

// The operations whose files are there, with what the marks tell of them. One without an end mark takes its title from
// its own file, and is removed when that can't be read.
void operations_read(Journal_store& store, const std::vector<Mark>& marks) {
  std::map<std::uint64_t, Operation> told;
  for (const Mark& mark : marks) {
    if (mark.number > largest_number) continue;
    take_mark(told[mark.number], mark);
    store.next_number = std::max(store.next_number, mark.number + 1);
  }
  for (const std::string& name : store.files.list(store.folder, "*.undo")) {
    const std::uint64_t number = number_of(name);
    if (number == 0) continue;
    store.next_number = std::max(store.next_number, number + 1);
    Operation operation = told[number];
    operation.number = number;
    const std::string path = undo_path(store, number);
    std::vector<Change> changes;
    if (!operation.ended) {
      const Journal_file read = read_undo(bytes_of(store.files, path), operation.title, changes);
      if (read != Journal_file::whole && read != Journal_file::torn) {
        store.files.remove(path);
        continue;
      }
      operation.changes = static_cast<std::uint32_t>(changes.size());
      sweep(store.files, changes);
    }
    operation.bytes =
        static_cast<std::uint64_t>(store.files.length(path) + store.files.length(redo_path(store, number)));
    store.operations.push_back(std::move(operation));
  }
  std::sort(store.operations.begin(), store.operations.end(),
            [](const Operation& a, const Operation& b) { return a.number < b.number; });
}

// Redo files whose operation is gone, and undone operations that a later one has overtaken: a kill came between.
void stale_remove(Journal_store& store) {
  for (const std::string& name : store.files.list(store.folder, "*.redo")) {
    const std::uint64_t number = number_of(name);
    const bool known = std::any_of(store.operations.begin(), store.operations.end(),
                                   [&](const Operation& operation) { return operation.number == number; });
    if (!known) store.files.remove(join_path(store.folder, name));
  }
  bool overtaken = false;
  for (std::size_t i = store.operations.size(); i-- > 0;) {
    const bool applied = store.operations[i].status == Operation_status::applied;
    if (!applied && overtaken) operation_drop(store, i);
    overtaken = overtaken || applied;
  }
}

Journal_state journal_read(Journal_store& store) {
  const std::string bytes = bytes_of(store.files, marks_path(store));
  std::vector<Mark> marks;
  const Journal_file read = read_marks(bytes, marks);
  if (read == Journal_file::other_version) return Journal_state::other_version;
  leftovers_remove(store);
  operations_read(store, marks);
  stale_remove(store);
  // Records behind torn bytes would never be read.
  if (read == Journal_file::whole && bytes.size() <= longest_marks) return Journal_state::kept;
  const bool written = wrote([&] { store.files.write_whole(marks_path(store), all_marks(store)); });
  return written ? Journal_state::kept : Journal_state::unwritable;
}

}  // namespace

Journal_state store_open(Journal_store& store, const std::string& project_path) {
  if (!folders_make(store.files, store.folder)) return Journal_state::unwritable;
  store.lock = std::make_unique<Folder_lock>(store.files.native_path(join_path(store.folder, "lock")));
  Journal_state state = Journal_state::unwritable;
  if (store.lock->state == Lock_state::taken) state = Journal_state::in_use;
  if (store.lock->state == Lock_state::held) state = journal_read(store);
  if (state != Journal_state::kept) {
    store_close(store);
    return state;
  }
  // For a person who looks into the folder; the program doesn't read it.
  const std::string note = join_path(store.folder, "project.txt");
  if (store.files.length(note) == 0) wrote([&] { store.files.write_whole(note, project_path + "\n"); });
  return state;
}

void store_close(Journal_store& store) {
  store.operations.clear();
  store.next_number = 1;
  store.lock.reset();
}

bool mark_add(Journal_store& store, const Mark& mark) {
  return wrote([&] { store.files.append(marks_path(store), mark_record(mark)); });
}

bool undo_make(Journal_store& store, Operation& operation, std::string_view record) {
  const std::string bytes = undo_beginning(operation.title) + std::string(record);
  if (!wrote([&] { store.files.write_whole(undo_path(store, operation.number), bytes); })) return false;
  operation.bytes = bytes.size();
  operation.changes = 1;
  return true;
}

bool undo_add(Journal_store& store, Operation& operation, std::string_view record) {
  if (!wrote([&] { store.files.append(undo_path(store, operation.number), record); })) return false;
  operation.bytes += record.size();
  ++operation.changes;
  return true;
}

bool redo_make(Journal_store& store, Operation& operation, std::string_view bytes) {
  const std::string path = redo_path(store, operation.number);
  const auto old = static_cast<std::uint64_t>(store.files.length(path));
  if (!wrote([&] { store.files.write_whole(path, bytes); })) return false;
  operation.bytes = operation.bytes - std::min(old, operation.bytes) + bytes.size();
  return true;
}

bool undo_read(Journal_store& store, const Operation& operation, std::vector<Change>& changes) {
  Operation_title title;
  const Journal_file read = read_undo(bytes_of(store.files, undo_path(store, operation.number)), title, changes);
  if (read == Journal_file::torn) return !operation.ended;
  if (read != Journal_file::whole) return false;
  // What could not be flushed may stand there all the same.
  return operation.ended ? changes.size() == operation.changes : changes.size() >= operation.changes;
}

bool redo_read(Journal_store& store, const Operation& operation, std::vector<Change>& changes) {
  return read_redo(bytes_of(store.files, redo_path(store, operation.number)), changes) == Journal_file::whole;
}

bool operation_drop(Journal_store& store, std::size_t index) {
  const std::uint64_t number = store.operations[index].number;
  const std::string path = undo_path(store, number);
  // Without the first file the operation is gone; a redo file left alone goes at the next opening.
  if (!store.files.remove(path) && store.files.length(path) > 0) return false;
  store.files.remove(redo_path(store, number));
  store.operations.erase(store.operations.begin() + static_cast<std::ptrdiff_t>(index));
  return true;
}

bool undone_drop(Journal_store& store) {
  for (std::size_t i = store.operations.size(); i-- > 0;)
    if (store.operations[i].status != Operation_status::applied && !operation_drop(store, i)) return false;
  return true;
}

bool room_make(Journal_store& store, std::uint64_t bytes, std::uint64_t kept) {
  for (;;) {
    std::uint64_t total = bytes;
    for (const Operation& operation : store.operations) total += operation.bytes;
    if (total <= store.limits.bytes && store.operations.size() <= store.limits.operations) return true;
    if (store.operations.empty()) return false;
    const bool oldest_kept = store.operations.front().number == kept;
    const std::size_t index = oldest_kept ? store.operations.size() - 1 : 0;
    if (store.operations[index].number == kept || !operation_drop(store, index)) return false;
  }
}

}  // namespace platform
