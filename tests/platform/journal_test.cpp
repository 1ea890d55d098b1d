#include "platform/journal.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include "platform/failures.h"
#include "support/journal_place.h"

using namespace platform;
using support::Journal_place;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

namespace {

// A project with two files, and one operation "保存" that writes the first and removes the second.
class Journal_test : public ::testing::Test {
 protected:
  Journal_test() {
    place.disk.write_whole(a, "first\r\n");
    place.disk.write_whole(b, "second\r\n");
    place.open();
  }
  void save(const std::string& content) {
    const Journal_operation operation(place.journal(), "保存", "Save");
    place.files().write_whole(a, content);
  }

  Journal_place place;
  const std::string a = place.project("a.csv"), b = place.project("b.csv"), c = place.project("c.csv");
};

}  // namespace

TEST_F(Journal_test, UndoesAnOperationAsAWhole) {
  {
    const Journal_operation operation(place.journal(), "移動", "Move");
    place.files().write_whole(a, "changed");
    EXPECT_TRUE(place.files().remove(b));
    place.files().copy(a, c);
    place.files().append(a, " and longer");
  }
  const auto after = place.all_files();
  ASSERT_EQ(after.at("a.csv"), "changed and longer");
  const Undo_result undone = place.journal().undo();
  EXPECT_EQ(undone.outcome, Undo_outcome::done);
  EXPECT_EQ(undone.title.english, "Move");
  EXPECT_THAT(undone.files, ElementsAre(a, b, c));
  EXPECT_THAT(place.all_files(), ElementsAre(std::pair("a.csv", "first\r\n"), std::pair("b.csv", "second\r\n")));
  EXPECT_EQ(place.journal().redo().outcome, Undo_outcome::done);
  EXPECT_EQ(place.all_files(), after);
}

TEST_F(Journal_test, UndoesAndRedoesInOrder) {
  save("1");
  save("2");
  save("3");
  EXPECT_EQ(place.journal().undo().outcome, Undo_outcome::done);
  EXPECT_EQ(place.journal().undo().outcome, Undo_outcome::done);
  EXPECT_EQ(place.content(a), "1");
  EXPECT_EQ(place.journal().redo().outcome, Undo_outcome::done);
  EXPECT_EQ(place.content(a), "2");
  save("other");
  EXPECT_EQ(place.journal().redo().outcome, Undo_outcome::nothing) << "a new operation ends what could be redone";
  EXPECT_EQ(place.journal().undo().outcome, Undo_outcome::done);
  EXPECT_EQ(place.content(a), "2");
}

TEST_F(Journal_test, GoesOnAfterARestart) {
  save("1");
  save("2");
  place.journal().undo();
  place.restart();
  ASSERT_TRUE(place.journal().undo_title());
  EXPECT_EQ(place.journal().undo_title()->japanese, "保存");
  EXPECT_EQ(place.journal().redo().outcome, Undo_outcome::done);
  EXPECT_EQ(place.content(a), "2");
  place.restart();
  EXPECT_EQ(place.journal().undo().outcome, Undo_outcome::done);
  EXPECT_EQ(place.journal().undo().outcome, Undo_outcome::done);
  EXPECT_EQ(place.journal().undo().outcome, Undo_outcome::nothing);
  EXPECT_EQ(place.content(a), "first\r\n");
}

TEST_F(Journal_test, KeepsTheProjectsFolderAsItIs) {
  save("1");
  place.journal().undo();
  EXPECT_THAT(place.all_files(), ElementsAre(std::pair("a.csv", "first\r\n"), std::pair("b.csv", "second\r\n")));
}

TEST_F(Journal_test, LeavesAFileThatAnotherProgramChanged) {
  {
    const Journal_operation operation(place.journal(), "移動", "Move");
    place.files().write_whole(a, "one");
    place.files().write_whole(b, "two");
  }
  place.disk.write_whole(b, "twO");
  const Undo_result undone = place.journal().undo();
  EXPECT_EQ(undone.outcome, Undo_outcome::changed);
  EXPECT_THAT(undone.files, ElementsAre(b));
  EXPECT_EQ(place.content(a), "one") << "nothing at all may change";
  EXPECT_EQ(place.content(b), "twO");
  place.disk.write_whole(b, "two");
  EXPECT_EQ(place.journal().undo().outcome, Undo_outcome::done) << "put back, it can be undone";
  place.disk.remove(a);
  const Undo_result redone = place.journal().redo();
  EXPECT_EQ(redone.outcome, Undo_outcome::changed);
  EXPECT_THAT(redone.files, ElementsAre(a));
  EXPECT_EQ(place.content(b), "second\r\n");
}

TEST_F(Journal_test, TakesAnEarlierContentOfTheSameOperationForAnothersWork) {
  {
    const Journal_operation operation(place.journal(), "保存", "Save");
    place.files().write_whole(a, "one");
    place.files().write_whole(a, "two");
  }
  place.disk.write_whole(a, "one");
  EXPECT_EQ(place.journal().undo().outcome, Undo_outcome::changed);
  EXPECT_EQ(place.content(a), "one");
}

TEST_F(Journal_test, LeavesAFileThatAppearedWhereOneWasRemoved) {
  {
    const Journal_operation operation(place.journal(), "削除", "Delete");
    place.files().remove(b);
  }
  place.disk.write_whole(b, "");
  EXPECT_EQ(place.journal().undo().outcome, Undo_outcome::changed);
  EXPECT_EQ(place.content(b), "");
}

TEST_F(Journal_test, KeepsNothingOutsideOfOperationsAndFolders) {
  place.files().write_whole(a, "loose");
  EXPECT_FALSE(place.journal().undo_title());
  const std::string elsewhere = place.root() + "\\elsewhere.txt";
  {
    const Journal_operation operation(place.journal(), "保存", "Save");
    place.files().write_whole(elsewhere, "x");
  }
  EXPECT_FALSE(place.journal().undo_title());
  {
    const Journal_operation operation(place.journal(), "設定", "Settings");
    place.files().write_whole(place.program("settei.ini"), "x");
  }
  ASSERT_TRUE(place.journal().undo_title());
  EXPECT_EQ(place.journal().undo_title()->english, "Settings");
}

TEST_F(Journal_test, CountsAnInnerOperationToTheOuter) {
  {
    const Journal_operation outer(place.journal(), "外", "Outer");
    place.files().write_whole(a, "1");
    { const Journal_operation inner(place.journal(), "内", "Inner"); }
    place.files().write_whole(b, "2");
    EXPECT_EQ(place.journal().undo().outcome, Undo_outcome::nothing) << "none while one is open";
  }
  EXPECT_EQ(place.journal().undo().title.english, "Outer");
  EXPECT_EQ(place.content(a), "first\r\n");
  EXPECT_EQ(place.content(b), "second\r\n");
}

TEST_F(Journal_test, KeepsNoOperationThatChangesNothing) {
  save("1");
  place.journal().undo();
  save("first\r\n");
  EXPECT_FALSE(place.journal().undo_title());
  EXPECT_TRUE(place.journal().redo_title()) << "it ends no redo either";
}

TEST_F(Journal_test, ForgetsAWriteThatFailed) {
  {
    const Journal_operation operation(place.journal(), "保存", "Save");
    place.files().write_whole(b, "done");
    place.project_files.read_only = true;
    EXPECT_THROW(place.files().write_whole(a, "refused"), File_failure);
    place.project_files.read_only = false;
  }
  EXPECT_EQ(place.journal().undo().outcome, Undo_outcome::done);
  EXPECT_EQ(place.content(a), "first\r\n");
  EXPECT_EQ(place.content(b), "second\r\n");
  {
    const Journal_operation operation(place.journal(), "保存", "Save");
    place.project_files.read_only = true;
    EXPECT_THROW(place.files().write_whole(a, "refused"), File_failure);
    place.project_files.read_only = false;
  }
  EXPECT_FALSE(place.journal().undo_title()) << "an operation of failed writes is none";
}

TEST_F(Journal_test, FindsNamesInAnyCase) {
  {
    const Journal_operation operation(place.journal(), "保存", "Save");
    place.files().write_whole(place.project("A.CSV"), "1");
    place.files().write_whole(place.project("a.csv"), "2");
  }
  EXPECT_EQ(place.journal().undo().outcome, Undo_outcome::done);
  EXPECT_EQ(place.content(a), "first\r\n");
}

TEST_F(Journal_test, GoesWithoutAJournalWhereAnotherProgramKeepsIt) {
  save("1");
  Journal second(place.disk);
  EXPECT_EQ(second.open(place.state(), place.project(""), place.program("")), Journal_state::in_use);
  Journal_files files(place.disk, second);
  {
    const Journal_operation operation(second, "保存", "Save");
    files.write_whole(a, "by the second");
  }
  EXPECT_EQ(second.undo().outcome, Undo_outcome::without_journal);
  EXPECT_EQ(place.journal().undo().outcome, Undo_outcome::changed);
  EXPECT_EQ(place.content(a), "by the second");
}

TEST_F(Journal_test, FollowsTheProject) {
  save("1");
  place.disk.make_folder(place.root() + "\\other");
  const std::string other = place.root() + "\\other";
  EXPECT_EQ(place.journal().open(place.state(), other, place.program("")), Journal_state::kept);
  EXPECT_FALSE(place.journal().undo_title());
  save("2");
  EXPECT_FALSE(place.journal().undo_title()) << "the first project is not watched now";
  EXPECT_EQ(place.journal().open(place.state(), place.project(""), place.program("")), Journal_state::kept);
  EXPECT_TRUE(place.journal().undo_title());
}

TEST_F(Journal_test, EndsAnOpenOperationWhereTheProjectChanges) {
  const std::string other = place.root() + "\\other";
  place.disk.make_folder(other);
  {
    const Journal_operation operation(place.journal(), "設定", "Settings");
    place.files().write_whole(a, "1");
    place.journal().open(place.state(), other, place.program(""));
    place.files().write_whole(other + "\\x", "2");
  }
  EXPECT_EQ(place.journal().undo().outcome, Undo_outcome::done);
  EXPECT_EQ(place.disk.length(other + "\\x"), 0);
  place.restart();
  EXPECT_EQ(place.journal().undo().outcome, Undo_outcome::done);
  EXPECT_EQ(place.content(a), "first\r\n");
}

TEST_F(Journal_test, DropsTheOldestOperationsFirst) {
  place.restart({most_journal_bytes, 3});
  for (const char* content : {"1", "2", "3", "4", "5"}) save(content);
  for (int i = 0; i < 3; ++i) EXPECT_EQ(place.journal().undo().outcome, Undo_outcome::done);
  EXPECT_EQ(place.journal().undo().outcome, Undo_outcome::nothing);
  EXPECT_EQ(place.content(a), "2");
}

TEST_F(Journal_test, StaysBelowItsSize) {
  place.restart({20'000, 1000});
  for (int i = 0; i < 40; ++i) save(std::string(1000, static_cast<char>('A' + i % 26)) + std::to_string(i));
  EXPECT_LE(place.journal_bytes(), 20'000u + 40 * 120) << "the marks come on top";
  int undone = 0;
  while (place.journal().undo().outcome == Undo_outcome::done) ++undone;
  EXPECT_GE(undone, 8);
  EXPECT_LE(undone, 20);
  EXPECT_LE(place.journal_bytes(), 20'000u + 80 * 120);
  EXPECT_EQ(place.content(a),
            std::string(1000, static_cast<char>('A' + (39 - undone) % 26)) + std::to_string(39 - undone));
}

TEST_F(Journal_test, GoesOnWithoutAnOperationThatIsTooLarge) {
  save("1");
  place.restart({2'000, 1000});
  save("2");
  {
    const Journal_operation operation(place.journal(), "大", "Large");
    place.files().write_whole(b, "small");
    place.files().write_whole(a, std::string(5'000, 'x'));
    place.files().write_whole(a, "replaced");
  }
  EXPECT_TRUE(place.journal().lost());
  EXPECT_EQ(place.content(a), "replaced");
  EXPECT_EQ(place.journal().undo().outcome, Undo_outcome::changed) << "the one before it doesn't fit any more";
  EXPECT_EQ(place.content(b), "small");
  save("next");
  EXPECT_FALSE(place.journal().lost());
}

TEST_F(Journal_test, UndoesANewFileThatIsTooLargeToRedo) {
  place.restart({2'000, 1000});
  {
    const Journal_operation operation(place.journal(), "取込", "Import");
    place.files().write_whole(c, std::string(5'000, 'x'));
  }
  EXPECT_EQ(place.journal().undo().outcome, Undo_outcome::done);
  EXPECT_EQ(place.all_files().count("c.csv"), 0u);
  EXPECT_FALSE(place.journal().redo_title());
}

TEST_F(Journal_test, SavesWithoutAJournalThatCantBeWritten) {
  place.journal_files.read_only = true;
  save("1");
  EXPECT_EQ(place.content(a), "1");
  EXPECT_TRUE(place.journal().lost());
  EXPECT_FALSE(place.journal().undo_title());
}

TEST_F(Journal_test, RefusesAWriteThatCouldLeaveHalfAnUndo) {
  const Journal_operation operation(place.journal(), "保存", "Save");
  place.files().write_whole(a, "1");
  place.journal_files.read_only = true;  // neither kept nor removed
  EXPECT_THROW(place.files().write_whole(b, "2"), File_failure);
  EXPECT_EQ(place.content(b), "second\r\n");
}

TEST_F(Journal_test, SaysWhereItsFolderCantBeMade) {
  place.disk.write_whole(place.root() + "\\file", "x");
  Journal journal(place.disk);
  EXPECT_EQ(journal.open(place.root() + "\\file", place.project(""), ""), Journal_state::unwritable);
  EXPECT_EQ(journal.open("", place.project(""), ""), Journal_state::unwritable);
  EXPECT_EQ(journal.open(place.state(), "", ""), Journal_state::closed);
  EXPECT_EQ(journal.undo().outcome, Undo_outcome::without_journal);
}

TEST_F(Journal_test, LeavesTheJournalOfALaterVersion) {
  save("1");
  place.close();
  const std::string marks = place.journal_folder() + "\\marks";
  std::string bytes = place.disk.read_bytes(marks);
  bytes[16] = 2;
  place.disk.write_whole(marks, bytes);
  Journal journal(place.disk);
  EXPECT_EQ(journal.open(place.state(), place.project(""), place.program("")), Journal_state::other_version);
  EXPECT_EQ(place.disk.read_bytes(marks), bytes);
}

TEST_F(Journal_test, SaysThatItsOwnFilesAreDamaged) {
  save("1");
  const std::string file = place.journal_folder() + "\\0000000001.undo";
  std::string bytes = place.disk.read_bytes(file);
  bytes[bytes.size() / 2] ^= 1;
  place.disk.write_whole(file, bytes);
  EXPECT_EQ(place.journal().undo().outcome, Undo_outcome::unreadable);
  EXPECT_EQ(place.content(a), "1");
}

TEST_F(Journal_test, SurvivesDamagedMarks) {
  save("1");
  save("2");
  place.close();
  place.disk.write_whole(place.journal_folder() + "\\marks", "rubbish");
  place.restart();
  EXPECT_EQ(place.journal().undo().outcome, Undo_outcome::done);
  EXPECT_EQ(place.journal().undo().outcome, Undo_outcome::done);
  EXPECT_EQ(place.content(a), "first\r\n");
}

TEST_F(Journal_test, RemovesWhatKillsLeftInItsFolder) {
  place.close();
  place.disk.write_whole(place.journal_folder() + "\\.terranote-1-1.tmp", "x");
  place.disk.write_whole(place.journal_folder() + "\\0000000009.redo", "x");
  place.disk.write_whole(place.journal_folder() + "\\0000000009.undo", "x");
  place.restart();
  EXPECT_THAT(place.disk.list(place.journal_folder(), "*"), ElementsAre("lock", "marks", "project.txt"));
}

TEST_F(Journal_test, MovesFilesBackWhereAnUndoFails) {
  {
    const Journal_operation operation(place.journal(), "移動", "Move");
    place.files().write_whole(a, "one");
    place.files().write_whole(b, "two");
  }
  place.project_files.failing_write = 2;
  const Undo_result undone = place.journal().undo();
  EXPECT_EQ(undone.outcome, Undo_outcome::failed);
  EXPECT_THAT(undone.files, ElementsAre(b));
  EXPECT_EQ(place.content(a), "one");
  EXPECT_EQ(place.content(b), "two");
  EXPECT_EQ(place.journal().undo().outcome, Undo_outcome::done);
  EXPECT_EQ(place.content(b), "second\r\n");
}
