#include "platform/journal.h"

#include <algorithm>
#include <utility>

#include "platform/failures.h"
#include "platform/path_keys.h"

namespace platform {
namespace {

Mark mark_of(const Operation& operation, Mark_kind kind) {
  return {kind, operation.number, operation.title, operation.changes, operation.failed};
}

Mark_kind intent(Direction direction) {
  return direction == Direction::back ? Mark_kind::undoing : Mark_kind::redoing;
}

Mark_kind arrival(Direction direction) {
  return direction == Direction::back ? Mark_kind::undone : Mark_kind::redone;
}

Operation_status arrived(Direction direction) {
  return direction == Direction::back ? Operation_status::undone : Operation_status::applied;
}

Direction opposite(Direction direction) {
  return direction == Direction::back ? Direction::forth : Direction::back;
}

bool is_half(const Operation& operation) {
  return operation.status == Operation_status::undoing || operation.status == Operation_status::redoing;
}

// The nets of all moves; without their middles when these would not fit in `room`: such an operation can be taken back,
// but not done again.
std::string redo_bytes(std::vector<File_move>& moves, std::uint64_t room) {
  std::uint64_t total = 0;
  for (const File_move& move : moves) total += move.net.after_middle.size();
  std::string bytes = redo_beginning();
  for (File_move& move : moves) {
    if (total > room) {
      move.net.after_kept = false;
      move.net.after_middle.clear();
    }
    bytes += change_record(move.net);
  }
  return bytes;
}

std::vector<std::string> paths_moved(const std::vector<File_move>& moves) {
  std::vector<std::string> paths;
  for (const File_move& move : moves)
    if (move.net.before != move.net.after) paths.push_back(move.net.path);
  return paths;
}

// A kill came before the first change reached its file: there is nothing to take back.
bool never_happened(Journal_store& store, const Operation& operation) {
  std::vector<Change> changes;
  if (operation.ended || operation.status != Operation_status::applied || !undo_read(store, operation, changes))
    return false;
  std::vector<File_move> moves = moves_of(operation, std::move(changes));
  return nets_make(store.files, operation, moves).empty() && paths_moved(moves).empty();
}

}  // namespace

Journal::Journal(Files& files, Journal_limits limits) : store_{files, {}, limits} {}

Journal_state Journal::open(const std::string& state_folder, const std::string& project_path,
                            const std::string& program_path) {
  const std::string project = store_.files.native_path(project_path);
  const std::string folder = state_folder.empty() ? "" : join_path(state_folder, folder_name_for(project));
  std::vector<std::string> watched{project_path, program_path};
  if (state_ == Journal_state::kept && folder == store_.folder) {
    watched_ = std::move(watched);
    return state_;
  }
  close();
  if (project_path.empty()) return state_;
  watched_ = std::move(watched);
  store_.folder = folder;
  state_ = store_open(store_, project);
  if (state_ != Journal_state::kept) return state_;
  if (Operation* half = pending())
    go_on(*half, half->status == Operation_status::undoing ? Direction::back : Direction::forth);
  if (const Operation* newest = newest_applied(); newest && never_happened(store_, *newest))
    operation_drop(store_, static_cast<std::size_t>(newest - store_.operations.data()));
  return state_;
}

void Journal::close() {
  end_operation();
  store_close(store_);
  store_.folder.clear();
  state_ = Journal_state::closed;
}

void Journal::begin(const std::string& japanese, const std::string& english) {
  if (depth_++ > 0) return;
  title_ = {japanese, english};
  losing_ = false;
}

void Journal::end() {
  if (depth_ == 0 || --depth_ > 0) return;
  end_operation();
}

void Journal::end_operation() {
  last_kept_ = false;
  torn_ = false;
  if (!writing_) return;
  writing_ = false;
  Operation& operation = store_.operations.back();
  if (operation.failed.size() == operation.changes) {
    operation_drop(store_, store_.operations.size() - 1);
    return;
  }
  // Without the mark it is an operation that broke off, which can be taken back too.
  operation.ended = mark_add(store_, mark_of(operation, Mark_kind::ended));
}

bool Journal::watches(const std::string& path) const {
  if (depth_ == 0 || losing_ || state_ != Journal_state::kept) return false;
  return std::any_of(watched_.begin(), watched_.end(),
                     [&](const std::string& folder) { return lies_below(path, folder); });
}

void Journal::before_write(const std::string& path, std::string_view after) {
  last_kept_ = false;
  if (!watches(path)) return;
  Contents before;
  if (!contents_read(store_.files, path, before)) return lose();
  keep(difference(path, before, after, Keep::before));
}

void Journal::before_append(const std::string& path, std::string_view added) {
  last_kept_ = false;
  if (!watches(path)) return;
  Contents before;
  if (!contents_read(store_.files, path, before)) return lose();
  const std::string after = before.value_or(std::string()).append(added);
  keep(difference(path, before, after, Keep::both));
}

void Journal::before_remove(const std::string& path) {
  last_kept_ = false;
  if (!watches(path)) return;
  Contents before;
  if (!contents_read(store_.files, path, before)) return lose();
  keep(difference(path, before, std::nullopt, Keep::before));
}

void Journal::write_failed() {
  if (!last_kept_) return;
  Operation& operation = store_.operations.back();
  operation.failed.push_back(operation.changes - 1);
}

void Journal::keep(const Change& change) {
  if (change.before == change.after) return;
  if (torn_ || !make_or_add(change_record(change))) return lose();
  lost_ = false;
  last_kept_ = true;
}

bool Journal::make_or_add(std::string_view record) {
  const std::uint64_t bytes = record.size();
  if (writing_) {
    Operation& operation = store_.operations.back();
    if (operation.bytes + bytes > store_.limits.bytes || !room_make(store_, bytes, operation.number)) return false;
    // Dropping older operations moves this one.
    if (undo_add(store_, store_.operations.back(), record)) return true;
    torn_ = true;
    return false;
  }
  if (bytes > store_.limits.bytes || !undone_drop(store_)) return false;
  Operation operation;
  operation.number = store_.next_number++;
  operation.title = title_;
  store_.operations.push_back(std::move(operation));
  writing_ =
      room_make(store_, bytes, store_.operations.back().number) && undo_make(store_, store_.operations.back(), record);
  if (!writing_) store_.operations.pop_back();
  return writing_;
}

// Goes on without a journal for the rest of this operation, which then must not be taken back in part.
void Journal::lose() {
  if (writing_ && !operation_drop(store_, store_.operations.size() - 1))
    throw File_failure(join_path(store_.folder, "*.undo") + " could not be written");
  writing_ = false;
  losing_ = true;
  lost_ = true;
}

Operation* Journal::newest_applied() {
  for (std::size_t i = store_.operations.size(); i-- > 0;)
    if (store_.operations[i].status == Operation_status::applied) return &store_.operations[i];
  return nullptr;
}

Operation* Journal::pending() {
  const auto found = std::find_if(store_.operations.begin(), store_.operations.end(), is_half);
  return found == store_.operations.end() ? nullptr : &*found;
}

const Operation_title* Journal::undo_title() const {
  for (std::size_t i = store_.operations.size(); i-- > 0;)
    if (store_.operations[i].status != Operation_status::undone) return &store_.operations[i].title;
  return nullptr;
}

const Operation_title* Journal::redo_title() const {
  for (const Operation& operation : store_.operations)
    if (operation.status != Operation_status::applied) return &operation.title;
  return nullptr;
}

Undo_result Journal::undo() {
  if (state_ != Journal_state::kept) return {Undo_outcome::without_journal, {}, {}};
  if (depth_ > 0) return {};
  if (Operation* half = pending()) return go_on(*half, Direction::back);
  Operation* operation = newest_applied();
  return operation ? undo(*operation) : Undo_result{};
}

Undo_result Journal::redo() {
  if (state_ != Journal_state::kept) return {Undo_outcome::without_journal, {}, {}};
  if (depth_ > 0) return {};
  if (Operation* half = pending()) return go_on(*half, Direction::forth);
  const auto found = std::find_if(store_.operations.begin(), store_.operations.end(), [](const Operation& operation) {
    return operation.status == Operation_status::undone;
  });
  return found == store_.operations.end() ? Undo_result{} : redo(*found);
}

Undo_result Journal::undo(Operation& operation) {
  Undo_result result{Undo_outcome::unreadable, operation.title, {}};
  std::vector<Change> changes;
  if (!undo_read(store_, operation, changes)) return result;
  std::vector<File_move> moves = moves_of(operation, std::move(changes));
  result.files = nets_make(store_.files, operation, moves);
  result.outcome = Undo_outcome::changed;
  if (!result.files.empty()) return result;
  const std::uint64_t number = operation.number;
  const std::uint64_t room = store_.limits.bytes - std::min(store_.limits.bytes, operation.bytes);
  const std::string bytes = redo_bytes(moves, room);
  room_make(store_, bytes.size(), number);
  // Dropping other operations moves this one.
  const auto kept = std::find_if(store_.operations.begin(), store_.operations.end(),
                                 [&](const Operation& other) { return other.number == number; });
  result.outcome = Undo_outcome::failed;
  return redo_make(store_, *kept, bytes) ? carry_out(*kept, moves, Direction::back) : result;
}

Undo_result Journal::redo(Operation& operation) {
  Undo_result result{Undo_outcome::unreadable, operation.title, {}};
  std::vector<Change> changes, nets;
  if (!undo_read(store_, operation, changes) || !redo_read(store_, operation, nets)) return result;
  std::vector<File_move> moves = moves_of(operation, std::move(changes));
  if (!nets_take(moves, std::move(nets))) return result;
  result.files = not_ready(store_.files, operation, moves, Direction::forth, false);
  result.outcome = Undo_outcome::changed;
  return result.files.empty() ? carry_out(operation, moves, Direction::forth) : result;
}

// An undo or redo that broke off: some files are moved, others not.
Undo_result Journal::go_on(Operation& operation, Direction direction) {
  Undo_result result{Undo_outcome::unreadable, operation.title, {}};
  std::vector<Change> changes, nets;
  if (!undo_read(store_, operation, changes) || !redo_read(store_, operation, nets)) return result;
  std::vector<File_move> moves = moves_of(operation, std::move(changes));
  if (!nets_take(moves, std::move(nets))) return result;
  result.files = not_ready(store_.files, operation, moves, direction, true);
  result.outcome = Undo_outcome::changed;
  return result.files.empty() ? carry_out(operation, moves, direction) : result;
}

Undo_result Journal::carry_out(Operation& operation, const std::vector<File_move>& moves, Direction direction) {
  Undo_result result{Undo_outcome::failed, operation.title, {}};
  if (!mark_add(store_, mark_of(operation, intent(direction)))) return result;
  std::string refused = move_all(store_.files, operation, moves, direction);
  Direction reached = direction;
  if (refused.empty()) {
    result.outcome = Undo_outcome::done;
    lost_ = false;
    result.files = paths_moved(moves);
  } else {
    reached = opposite(direction);
    result.files = {std::move(refused)};
    if (!move_all(store_.files, operation, moves, reached).empty()) {
      operation.status = direction == Direction::back ? Operation_status::undoing : Operation_status::redoing;
      result.outcome = Undo_outcome::broken_off;
      return result;
    }
  }
  operation.status = arrived(reached);
  // Without this mark the next opening finds all files moved and marks it.
  mark_add(store_, mark_of(operation, arrival(reached)));
  const bool kept = std::all_of(moves.begin(), moves.end(), [](const File_move& move) { return move.net.after_kept; });
  if (reached == Direction::back && !kept)
    operation_drop(store_, static_cast<std::size_t>(&operation - store_.operations.data()));
  return result;
}

void Journal_files::write_whole(const std::string& path, std::string_view bytes) {
  journal_.before_write(path, bytes);
  try {
    behind_.write_whole(path, bytes);
  } catch (...) {
    journal_.write_failed();
    throw;
  }
}

void Journal_files::append(const std::string& path, std::string_view bytes) {
  journal_.before_append(path, bytes);
  try {
    behind_.append(path, bytes);
  } catch (...) {
    journal_.write_failed();
    throw;
  }
}

void Journal_files::copy(const std::string& from, const std::string& to) {
  write_whole(to, behind_.read_bytes(from));
}

bool Journal_files::remove(const std::string& path) {
  journal_.before_remove(path);
  const bool removed = behind_.remove(path);
  if (!removed) journal_.write_failed();
  return removed;
}

}  // namespace platform
