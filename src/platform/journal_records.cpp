#include "platform/journal_records.h"

#include <algorithm>
#include <utility>

namespace platform {
namespace {

constexpr std::string_view magic = "TERRANOTEJOURNAL";
constexpr std::size_t longest_title = 1000;  // bytes
constexpr std::size_t longest_path = 4096;

enum class File_kind : std::uint32_t { marks = 1, undo, redo };
enum class Record_kind : std::uint8_t { title = 'T', change = 'C', mark = 'M' };

// --- numbers and texts, lowest byte first ---

void put(std::string& to, std::uint64_t value, int bytes) {
  for (int i = 0; i < bytes; ++i) to.push_back(static_cast<char>(value >> (8 * i) & 0xff));
}

void put_text(std::string& to, std::string_view text) {
  put(to, text.size(), 8);
  to += text;
}

// What is left to read; `good` turns false where a field reaches past the end, and every later field is empty.
struct Source {
  std::string_view left;
  bool good = true;
};

std::string_view take_bytes(Source& from, std::uint64_t count) {
  if (!from.good || count > from.left.size()) {
    from.good = false;
    return {};
  }
  const std::string_view taken = from.left.substr(0, static_cast<std::size_t>(count));
  from.left.remove_prefix(taken.size());
  return taken;
}

std::uint64_t take(Source& from, int bytes) {
  const std::string_view taken = take_bytes(from, static_cast<std::uint64_t>(bytes));
  std::uint64_t value = 0;
  for (std::size_t i = 0; i < taken.size(); ++i)
    value |= static_cast<std::uint64_t>(static_cast<unsigned char>(taken[i])) << (8 * i);
  return value;
}

std::string take_text(Source& from, std::uint64_t longest) {
  const std::uint64_t length = take(from, 8);
  if (length > longest) from.good = false;
  return std::string(take_bytes(from, length));
}

// --- records ---

// kind 1, length 8, the payload, 8 bytes of the hash of all these.
std::string record(Record_kind kind, std::string_view payload) {
  std::string bytes;
  bytes.reserve(payload.size() + 17);
  put(bytes, static_cast<std::uint8_t>(kind), 1);
  put_text(bytes, payload);
  put(bytes, hash_128(bytes)[0], 8);
  return bytes;
}

// False at the end and at bytes that are no whole record; `from` then stands where it stood.
bool next_record(Source& from, Record_kind& kind, std::string_view& payload) {
  Source at = from;
  kind = static_cast<Record_kind>(take(at, 1));
  payload = take_bytes(at, take(at, 8));
  const std::string_view checked = from.left.substr(0, from.left.size() - at.left.size());
  const std::uint64_t told = take(at, 8);
  if (!at.good || told != hash_128(checked)[0]) return false;
  from = at;
  return true;
}

std::string beginning(File_kind kind) {
  std::string bytes(magic);
  put(bytes, journal_version, 4);
  put(bytes, static_cast<std::uint32_t>(kind), 4);
  return bytes;
}

// `whole` when the file begins as one of this kind; `from` then stands behind the beginning.
Journal_file read_beginning(Source& from, File_kind kind) {
  if (take_bytes(from, magic.size()) != magic) return Journal_file::foreign;
  const std::uint64_t version = take(from, 4);
  const bool same_kind = take(from, 4) == static_cast<std::uint32_t>(kind);
  if (!from.good || !same_kind) return Journal_file::foreign;
  return version == journal_version ? Journal_file::whole : Journal_file::other_version;
}

// --- stamps, titles, changes, marks ---

void put_stamp(std::string& to, const Content_stamp& stamp) {
  put(to, stamp.exists, 1);
  put(to, stamp.length, 8);
  for (const std::uint64_t half : stamp.hash) put(to, half, 8);
}

Content_stamp take_stamp(Source& from) {
  Content_stamp stamp;
  const std::uint64_t exists = take(from, 1);
  stamp.exists = exists == 1;
  stamp.length = take(from, 8);
  for (std::uint64_t& half : stamp.hash) half = take(from, 8);
  if (exists > 1 || (exists == 0 && stamp != Content_stamp{})) from.good = false;
  return stamp;
}

// No longer than `longest_title`, cut between characters.
std::string_view cut_title(std::string_view title) {
  if (title.size() <= longest_title) return title;
  std::size_t length = longest_title;
  while (length > 0 && (static_cast<unsigned char>(title[length]) & 0xc0) == 0x80) --length;
  return title.substr(0, length);
}

void put_title(std::string& to, const Operation_title& title) {
  put_text(to, cut_title(title.japanese));
  put_text(to, cut_title(title.english));
}

Operation_title take_title(Source& from) {
  Operation_title title;
  title.japanese = take_text(from, longest_title);
  title.english = take_text(from, longest_title);
  return title;
}

// The length of the part between head and tail; `good` turns false where these are longer than the content.
std::uint64_t middle_length(Source& from, const Change& change, const Content_stamp& stamp) {
  if (change.head > stamp.length || change.tail > stamp.length - change.head) {
    from.good = false;
    return 0;
  }
  return stamp.length - change.head - change.tail;
}

bool read_change(std::string_view payload, Change& to) {
  Source from{payload};
  Change change;
  change.path = take_text(from, longest_path);
  change.before = take_stamp(from);
  change.after = take_stamp(from);
  change.head = take(from, 8);
  change.tail = take(from, 8);
  const std::uint64_t kept = take(from, 1);
  change.before_kept = (kept & 1) != 0;
  change.after_kept = (kept & 2) != 0;
  const std::uint64_t before_length = middle_length(from, change, change.before);
  const std::uint64_t after_length = middle_length(from, change, change.after);
  if (change.before_kept) change.before_middle = take_bytes(from, before_length);
  if (change.after_kept) change.after_middle = take_bytes(from, after_length);
  if (!from.good || !from.left.empty() || kept > 3 || change.path.empty()) return false;
  to = std::move(change);
  return true;
}

bool read_mark(std::string_view payload, Mark& to) {
  Source from{payload};
  Mark mark;
  const std::uint64_t kind = take(from, 1);
  if (kind < 1 || kind > static_cast<std::uint64_t>(Mark_kind::redone)) return false;
  mark.kind = static_cast<Mark_kind>(kind);
  mark.number = take(from, 8);
  if (mark.kind == Mark_kind::ended) {
    mark.title = take_title(from);
    mark.changes = static_cast<std::uint32_t>(take(from, 4));
    while (from.good && !from.left.empty()) mark.failed.push_back(static_cast<std::uint32_t>(take(from, 4)));
  }
  if (!from.good || !from.left.empty()) return false;
  to = std::move(mark);
  return true;
}

// Gives each record of `kind` to `read_one(payload)` up to the first that is none.
template <typename Read_one>
Journal_file read_records(Source& from, Record_kind wanted, Read_one read_one) {
  while (!from.left.empty()) {
    Record_kind kind{};
    std::string_view payload;
    if (!next_record(from, kind, payload) || kind != wanted || !read_one(payload)) return Journal_file::torn;
  }
  return Journal_file::whole;
}

Journal_file read_changes(Source& from, std::vector<Change>& changes) {
  return read_records(from, Record_kind::change, [&](std::string_view payload) {
    Change change;
    if (!read_change(payload, change)) return false;
    changes.push_back(std::move(change));
    return true;
  });
}

// --- contents ---

std::string_view text_of(const Contents& contents) {
  return contents ? std::string_view(*contents) : std::string_view();
}

constexpr std::size_t block = 4096;  // compared at once, which is many times faster than byte by byte

std::size_t common_head(std::string_view a, std::string_view b) {
  const std::size_t most = std::min(a.size(), b.size());
  std::size_t same = 0;
  while (same + block <= most && a.substr(same, block) == b.substr(same, block)) same += block;
  while (same < most && a[same] == b[same]) ++same;
  return same;
}

std::size_t common_tail(std::string_view a, std::string_view b) {
  const std::size_t most = std::min(a.size(), b.size());
  std::size_t same = 0;
  while (same + block <= most && a.substr(a.size() - same - block, block) == b.substr(b.size() - same - block, block))
    same += block;
  while (same < most && a[a.size() - same - 1] == b[b.size() - same - 1]) ++same;
  return same;
}

// The other content of a change. False when it is not the one that `target` tells.
bool exchange_middle(const Change& change, const Content_stamp& target, std::string_view middle, Contents& contents) {
  if (!target.exists) {
    contents.reset();
    return true;
  }
  const std::string_view old = text_of(contents);
  if (change.head > old.size() || change.tail > old.size() - change.head) return false;
  std::string made;
  made.reserve(static_cast<std::size_t>(change.head) + middle.size() + static_cast<std::size_t>(change.tail));
  made += old.substr(0, static_cast<std::size_t>(change.head));
  made += middle;
  made += old.substr(old.size() - static_cast<std::size_t>(change.tail));
  if (stamp_of(std::string_view(made)) != target) return false;
  contents = std::move(made);
  return true;
}

}  // namespace

Change difference(const std::string& path, const Contents& before, std::optional<std::string_view> after, Keep keep) {
  const std::string_view old = text_of(before), made = after.value_or(std::string_view());
  const std::size_t head = common_head(old, made);
  const std::size_t tail = common_tail(old.substr(head), made.substr(head));
  Change change;
  change.path = path;
  change.before = stamp_of(before);
  if (after) change.after = stamp_of(*after);
  change.head = head;
  change.tail = tail;
  change.before_kept = keep != Keep::after;
  change.after_kept = keep != Keep::before;
  if (change.before_kept) change.before_middle = old.substr(head, old.size() - head - tail);
  if (change.after_kept) change.after_middle = made.substr(head, made.size() - head - tail);
  return change;
}

bool take_back(const Change& change, Contents& contents) {
  return change.before_kept && stamp_of(contents) == change.after &&
         exchange_middle(change, change.before, change.before_middle, contents);
}

bool do_again(const Change& change, Contents& contents) {
  return change.after_kept && stamp_of(contents) == change.before &&
         exchange_middle(change, change.after, change.after_middle, contents);
}

std::string marks_beginning() {
  return beginning(File_kind::marks);
}

std::string undo_beginning(const Operation_title& title) {
  std::string payload;
  put_title(payload, title);
  return beginning(File_kind::undo) + record(Record_kind::title, payload);
}

std::string redo_beginning() {
  return beginning(File_kind::redo);
}

// 1 kind, 8 number; of an ended one 8 + n Japanese title, 8 + n English title, 4 changes, 4 each failed one
std::string mark_record(const Mark& mark) {
  std::string payload;
  put(payload, static_cast<std::uint8_t>(mark.kind), 1);
  put(payload, mark.number, 8);
  if (mark.kind == Mark_kind::ended) {
    put_title(payload, mark.title);
    put(payload, mark.changes, 4);
    for (const std::uint32_t index : mark.failed) put(payload, index, 4);
  }
  return record(Record_kind::mark, payload);
}

// 8 + n path, 25 stamp before, 25 stamp after, 8 head, 8 tail, 1 which middles are kept, the middles
std::string change_record(const Change& change) {
  std::string payload;
  payload.reserve(change.path.size() + change.before_middle.size() + change.after_middle.size() + 96);
  put_text(payload, change.path);
  put_stamp(payload, change.before);
  put_stamp(payload, change.after);
  put(payload, change.head, 8);
  put(payload, change.tail, 8);
  put(payload, (change.before_kept ? 1u : 0u) | (change.after_kept ? 2u : 0u), 1);
  if (change.before_kept) payload += change.before_middle;
  if (change.after_kept) payload += change.after_middle;
  return record(Record_kind::change, payload);
}

Journal_file read_marks(std::string_view bytes, std::vector<Mark>& marks) {
  marks.clear();
  Source from{bytes};
  const Journal_file begun = read_beginning(from, File_kind::marks);
  if (begun != Journal_file::whole) return begun;
  return read_records(from, Record_kind::mark, [&](std::string_view payload) {
    Mark mark;
    if (!read_mark(payload, mark)) return false;
    marks.push_back(std::move(mark));
    return true;
  });
}

Journal_file read_undo(std::string_view bytes, Operation_title& title, std::vector<Change>& changes) {
  changes.clear();
  Source from{bytes};
  const Journal_file begun = read_beginning(from, File_kind::undo);
  if (begun != Journal_file::whole) return begun;
  Record_kind kind{};
  std::string_view payload;
  if (!next_record(from, kind, payload) || kind != Record_kind::title) return Journal_file::foreign;
  Source titles{payload};
  Operation_title read = take_title(titles);
  if (!titles.good || !titles.left.empty()) return Journal_file::foreign;
  title = std::move(read);
  return read_changes(from, changes);
}

Journal_file read_redo(std::string_view bytes, std::vector<Change>& changes) {
  changes.clear();
  Source from{bytes};
  const Journal_file begun = read_beginning(from, File_kind::redo);
  return begun == Journal_file::whole ? read_changes(from, changes) : begun;
}

}  // namespace platform
