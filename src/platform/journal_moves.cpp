#include "platform/journal_moves.h"

#include <algorithm>
#include <map>
#include <utility>

#include "platform/failures.h"
#include "platform/path_keys.h"

namespace platform {
namespace {

// A write that was followed by another one of the same file, beginning where this one began, never happened.
void unwritten_remove(std::vector<Change>& chain) {
  for (std::size_t i = chain.size(); i-- > 1;)
    if (chain[i].before == chain[i - 1].before) chain.erase(chain.begin() + static_cast<std::ptrdiff_t>(i - 1));
}

// The content is the one before `change`, which appends, and a beginning of the appended bytes. Cuts these off.
bool cut_appended(const Change& change, Contents& contents) {
  const auto old_length = static_cast<std::size_t>(change.before.length);
  if (!contents || !change.after_kept || change.head != change.before.length || contents->size() < old_length)
    return false;
  const std::string_view added = std::string_view(*contents).substr(old_length);
  if (std::string_view(change.after_middle).substr(0, added.size()) != added) return false;
  if (stamp_of(std::string_view(*contents).substr(0, old_length)) !=
      Content_stamp{true, change.before.length, change.before.hash})
    return false;
  if (change.before.exists)
    contents->resize(old_length);
  else
    contents.reset();
  return true;
}

const Content_stamp& stamp_at(const File_move& move, Direction direction) {
  return direction == Direction::back ? move.net.before : move.net.after;
}

Direction opposite(Direction direction) {
  return direction == Direction::back ? Direction::forth : Direction::back;
}

bool moved(const File_move& move, bool ended, Direction direction, Contents& contents) {
  return direction == Direction::back ? content_before(move, ended, contents) : do_again(move.net, contents);
}

void put(Files& files, const std::string& path, const Contents& contents) {
  if (contents)
    files.write_whole(path, *contents);
  else if (!files.remove(path))
    throw File_failure(path + " could not be removed");
}

}  // namespace

bool contents_read(Files& files, const std::string& path, Contents& contents) {
  try {
    contents = files.read_bytes(path);
  } catch (const File_failure&) {
    contents.reset();
    return files.length(path) == 0 && files.time_stamp(path) == 0;
  }
  return true;
}

std::vector<File_move> moves_of(const Operation& operation, std::vector<Change> changes) {
  std::vector<File_move> moves;
  std::map<std::string, std::size_t> places;
  for (std::size_t i = 0; i < changes.size(); ++i) {
    if (std::find(operation.failed.begin(), operation.failed.end(), i) != operation.failed.end()) continue;
    const auto [place, is_new] = places.try_emplace(path_key(changes[i].path), moves.size());
    if (is_new) moves.emplace_back();
    moves[place->second].chain.push_back(std::move(changes[i]));
  }
  for (File_move& move : moves)
    if (!operation.ended) unwritten_remove(move.chain);
  return moves;
}

bool content_before(const File_move& move, bool ended, Contents& contents) {
  std::size_t left = move.chain.size();
  if (!ended && left > 0) {
    const Change& last = move.chain.back();
    const Content_stamp now = stamp_of(contents);
    if (now == last.before || (now != last.after && cut_appended(last, contents))) --left;
  }
  while (left-- > 0)
    if (!take_back(move.chain[left], contents)) return false;
  return true;
}

std::vector<std::string> nets_make(Files& files, const Operation& operation, std::vector<File_move>& moves) {
  std::vector<std::string> refused;
  for (File_move& move : moves) {
    const std::string path = move.chain.front().path;
    Contents after;
    const bool readable = contents_read(files, path, after);
    Contents before = after;
    if (readable && content_before(move, operation.ended, before))
      move.net = difference(path, before, after, Keep::after);
    else
      refused.push_back(path);
  }
  return refused;
}

bool nets_take(std::vector<File_move>& moves, std::vector<Change> nets) {
  if (nets.size() != moves.size()) return false;
  for (std::size_t i = 0; i < moves.size(); ++i) {
    if (nets[i].path != moves[i].chain.front().path || nets[i].before != moves[i].chain.front().before) return false;
    moves[i].net = std::move(nets[i]);
  }
  return true;
}

std::vector<std::string> not_ready(Files& files, const Operation& operation, const std::vector<File_move>& moves,
                                   Direction direction, bool half) {
  std::vector<std::string> refused;
  for (const File_move& move : moves) {
    Contents contents;
    bool ready = contents_read(files, move.net.path, contents);
    const Content_stamp now = stamp_of(contents);
    const bool there = now == stamp_at(move, direction);
    const bool may_be_there = half || move.net.before == move.net.after;
    if (ready && !(there && may_be_there))
      ready = now == stamp_at(move, opposite(direction)) && moved(move, operation.ended, direction, contents);
    if (!ready) refused.push_back(move.net.path);
  }
  return refused;
}

std::string move_all(Files& files, const Operation& operation, const std::vector<File_move>& moves,
                     Direction direction) {
  for (const File_move& move : moves) {
    Contents contents;
    if (!contents_read(files, move.net.path, contents)) return move.net.path;
    if (stamp_of(contents) == stamp_at(move, direction)) continue;
    if (!moved(move, operation.ended, direction, contents)) return move.net.path;
    try {
      put(files, move.net.path, contents);
    } catch (const File_failure&) {
      return move.net.path;
    }
  }
  return {};
}

}  // namespace platform
