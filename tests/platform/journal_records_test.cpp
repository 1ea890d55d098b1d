#include "platform/journal_records.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "support/golden.h"

using namespace platform;

namespace {

Change sample_change() {
  return difference("C:\\genba\\chisou_men\\tani.csv", "1,A,\r\n2,B,\r\n", "1,A,\r\n22,B,\r\n", Keep::both);
}

std::string sample_undo() {
  return undo_beginning({"保存", "Save"}) + change_record(sample_change()) +
         change_record(difference("C:\\genba\\memo.txt", "text", std::nullopt, Keep::before));
}

std::string sample_marks() {
  return marks_beginning() + mark_record({Mark_kind::ended, 7, {"保存", "Save"}, 2, {1}}) +
         mark_record({Mark_kind::undoing, 7, {}, 0, {}}) + mark_record({Mark_kind::undone, 7, {}, 0, {}});
}

}  // namespace

TEST(Journal_difference, KeepsTheMiddlesOnly) {
  const Change change = sample_change();
  EXPECT_EQ(change.head, 7u);  // "1,A,\r\n2"
  EXPECT_EQ(change.tail, 5u);  // ",B,\r\n"
  EXPECT_EQ(change.before_middle, "");
  EXPECT_EQ(change.after_middle, "2");
}

TEST(Journal_difference, GoesBackAndForth) {
  const std::vector<Contents> contents{std::nullopt, "",   "a",    "aa",    "aaa",
                                       "ab",         "ba", "abcd", "abxcd", std::string("a\0b", 3)};
  for (const Contents& before : contents)
    for (const Contents& after : contents) {
      const Change change = difference("x", before, after, Keep::both);
      Contents got = after;
      EXPECT_TRUE(take_back(change, got));
      EXPECT_EQ(got, before);
      got = before;
      EXPECT_TRUE(do_again(change, got));
      EXPECT_EQ(got, after);
    }
}

// Contents are compared by blocks of 4096 bytes: differences on both sides of their bounds.
TEST(Journal_difference, FindsADifferenceAtEveryBoundOfABlock) {
  const std::string bytes(3 * 4096, 'x');
  for (const std::size_t at : {0u, 1u, 4095u, 4096u, 4097u, 8191u, 8192u, 12287u}) {
    std::string other = bytes;
    other[at] = 'y';
    const Change change = difference("x", bytes, other, Keep::both);
    EXPECT_EQ(change.head, at);
    EXPECT_EQ(change.tail, bytes.size() - at - 1);
    EXPECT_EQ(change.after_middle, "y");
  }
  EXPECT_EQ(difference("x", bytes, bytes + "x", Keep::both).head, bytes.size());
}

TEST(Journal_difference, RefusesAnyOtherContent) {
  const Change change = difference("x", "old text", "new text", Keep::both);
  for (const Contents& other : {Contents(), Contents(""), Contents("new texT"), Contents("old text")}) {
    Contents got = other;
    EXPECT_FALSE(take_back(change, got));
    EXPECT_EQ(got, other);
  }
}

TEST(Journal_difference, RefusesAMiddleThatIsNotKept) {
  const Change change = difference("x", "old", "new", Keep::before);
  Contents got = "old";
  EXPECT_FALSE(do_again(change, got));
}

TEST(Journal_records, ReadBackWhatWasWritten) {
  Operation_title title;
  std::vector<Change> changes;
  ASSERT_EQ(read_undo(sample_undo(), title, changes), Journal_file::whole);
  EXPECT_EQ(title.japanese, "保存");
  EXPECT_EQ(title.english, "Save");
  ASSERT_EQ(changes.size(), 2u);
  EXPECT_EQ(changes[0].path, "C:\\genba\\chisou_men\\tani.csv");
  EXPECT_EQ(changes[0].before, stamp_of(std::string_view("1,A,\r\n2,B,\r\n")));
  EXPECT_EQ(changes[0].after, stamp_of(std::string_view("1,A,\r\n22,B,\r\n")));
  EXPECT_EQ(changes[0].after_middle, "2");
  EXPECT_FALSE(changes[1].after.exists);
  EXPECT_EQ(changes[1].before_middle, "text");
  EXPECT_FALSE(changes[1].after_kept);

  std::vector<Mark> marks;
  ASSERT_EQ(read_marks(sample_marks(), marks), Journal_file::whole);
  ASSERT_EQ(marks.size(), 3u);
  EXPECT_EQ(marks[0].title.english, "Save");
  EXPECT_EQ(marks[0].changes, 2u);
  EXPECT_EQ(marks[0].failed, std::vector<std::uint32_t>{1});
  EXPECT_EQ(marks[2].kind, Mark_kind::undone);
  EXPECT_EQ(marks[2].number, 7u);
}

// The files under tests/golden/journal were put together by another program from docs/formats/journal.md.
TEST(Journal_records, AreTheGoldenBytes) {
  EXPECT_TRUE(support::same_as_golden(sample_undo(), "journal/0000000007.undo"));
  EXPECT_TRUE(support::same_as_golden(sample_marks(), "journal/marks"));
  EXPECT_TRUE(support::same_as_golden(redo_beginning() + change_record(difference("a", "b", "c", Keep::after)),
                                      "journal/0000000007.redo"));
}

TEST(Journal_records, GiveTheWholeRecordsOfATornFile) {
  const std::string bytes = sample_undo();
  const std::size_t beginning = undo_beginning({"保存", "Save"}).size();
  const std::size_t one = beginning + change_record(sample_change()).size();
  for (std::size_t length = 0; length < bytes.size(); ++length) {
    Operation_title title;
    std::vector<Change> changes;
    const Journal_file read = read_undo(std::string_view(bytes).substr(0, length), title, changes);
    if (length < beginning) {
      EXPECT_EQ(read, Journal_file::foreign) << length;
      continue;
    }
    EXPECT_EQ(read, length == beginning || length == one ? Journal_file::whole : Journal_file::torn) << length;
    EXPECT_EQ(changes.size(), length < one ? 0u : 1u) << length;
  }
}

TEST(Journal_records, SeeADamagedByteAnywhere) {
  const std::string bytes = sample_marks();
  for (std::size_t i = 0; i < bytes.size(); ++i) {
    std::string damaged = bytes;
    damaged[i] ^= 0x10;
    std::vector<Mark> marks;
    EXPECT_NE(read_marks(damaged, marks), Journal_file::whole) << i;
    EXPECT_LT(marks.size(), 3u) << i;
  }
}

TEST(Journal_records, LeaveALaterVersionAlone) {
  std::string bytes = sample_marks();
  bytes[16] = 2;
  std::vector<Mark> marks;
  EXPECT_EQ(read_marks(bytes, marks), Journal_file::other_version);
  EXPECT_TRUE(marks.empty());
}

TEST(Journal_records, TakeNoFileOfAnotherKind) {
  Operation_title title;
  std::vector<Change> changes;
  std::vector<Mark> marks;
  EXPECT_EQ(read_marks(sample_undo(), marks), Journal_file::foreign);
  EXPECT_EQ(read_undo(sample_marks(), title, changes), Journal_file::foreign);
  EXPECT_EQ(read_redo(sample_undo(), changes), Journal_file::foreign);
  EXPECT_EQ(read_redo("", changes), Journal_file::foreign);
}

TEST(Journal_records, CutALongTitleBetweenCharacters) {
  std::string title;
  for (int i = 0; i < 400; ++i) title += "地";
  Operation_title read;
  std::vector<Change> changes;
  ASSERT_EQ(read_undo(undo_beginning({title, "x"}), read, changes), Journal_file::whole);
  EXPECT_EQ(read.japanese, title.substr(0, 999));
}
