// Journal files of any bytes: what is read is what a writer would write again, and no change makes a content that its
// stamps don't tell.
#include <string>
#include <vector>

#include "one_file.h"
#include "platform/journal_moves.h"

using namespace platform;

namespace {

// Whole files come out as they went in; of torn ones the records read are their beginning.
void check_written(std::string_view read_from, const std::string& written, Journal_file read) {
  support::promise(read == Journal_file::whole ? written == read_from : read_from.substr(0, written.size()) == written);
}

void check_changes(const std::vector<Change>& changes) {
  for (const Change& change : changes)
    for (const Contents& contents : {Contents(), Contents(""), Contents("text\r\n"), Contents(change.before_middle)}) {
      Contents back = contents, forth = contents;
      if (take_back(change, back)) support::promise(stamp_of(back) == change.before);
      if (do_again(change, forth)) support::promise(stamp_of(forth) == change.after);
    }
  Operation operation;
  for (const bool ended : {false, true}) {
    operation.ended = ended;
    for (const File_move& move : moves_of(operation, changes)) {
      support::promise(!move.chain.empty());
      Contents contents = "text\r\n";
      if (content_before(move, ended, contents)) support::promise(stamp_of(contents) == move.chain.front().before);
    }
  }
}

// The same with right hashes behind the records, so that what stands in them is reached too.
std::string mended(std::string bytes) {
  const auto number_at = [&](std::size_t at) {
    std::uint64_t number = 0;
    for (std::size_t i = 8; i-- > 0;) number = number << 8 | static_cast<unsigned char>(bytes[at + i]);
    return number;
  };
  for (std::size_t at = 24; at + 17 <= bytes.size();) {
    const std::uint64_t length = number_at(at + 1);
    if (length > bytes.size() - at - 17) break;
    const std::size_t end = at + 9 + static_cast<std::size_t>(length);
    const std::uint64_t hash = hash_128(std::string_view(bytes).substr(at, end - at))[0];
    for (std::size_t i = 0; i < 8; ++i) bytes[end + i] = static_cast<char>(hash >> (8 * i) & 0xff);
    at = end + 8;
  }
  return bytes;
}

void check(const std::string& bytes) {
  std::vector<Mark> marks;
  Journal_file read = read_marks(bytes, marks);
  if (read == Journal_file::whole || read == Journal_file::torn) {
    std::string written = marks_beginning();
    for (const Mark& mark : marks) written += mark_record(mark);
    check_written(bytes, written, read);
  }
  Operation_title title;
  std::vector<Change> changes;
  read = read_undo(bytes, title, changes);
  if (read == Journal_file::whole || read == Journal_file::torn) {
    std::string written = undo_beginning(title);
    for (const Change& change : changes) written += change_record(change);
    check_written(bytes, written, read);
    check_changes(changes);
  }
  read = read_redo(bytes, changes);
  if (read == Journal_file::whole || read == Journal_file::torn) check_changes(changes);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string bytes(data, data + size);
  check(bytes);
  check(mended(bytes));
  return 0;
}
