#include "core/undo.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>

#include "support/journal_place.h"
#include "support/scripted_prompts.h"

using namespace core;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

namespace {

class Menu_undo : public ::testing::Test {
 protected:
  Menu_undo() { place.open(); }
  void save(const std::string& content) {
    const platform::Journal_operation operation(place.journal(), "保存", "Save");
    place.files().write_whole(a, content);
  }
  support::Journal_place place;
  support::Scripted_prompts prompts;
  const std::string a = place.project("a.csv");
};

}  // namespace

TEST_F(Menu_undo, NamesTheOperationInTheCaptions) {
  EXPECT_EQ(undo_caption(place.journal(), "Japanese"), "元に戻す");
  EXPECT_EQ(redo_caption(place.journal(), "English"), "Redo");
  save("1");
  EXPECT_EQ(undo_caption(place.journal(), "Japanese"), "元に戻す: 保存");
  EXPECT_EQ(undo_caption(place.journal(), "English"), "Undo: Save");
  EXPECT_EQ(redo_caption(place.journal(), "English"), "Redo");
  menu_undo(place.journal(), prompts);
  EXPECT_EQ(undo_caption(place.journal(), "English"), "Undo");
  EXPECT_EQ(redo_caption(place.journal(), "Japanese"), "やり直す: 保存");
}

TEST_F(Menu_undo, TellsWhatWasDoneWithoutABox) {
  save("1");
  const Undone undone = menu_undo(place.journal(), prompts);
  EXPECT_TRUE(undone.files_changed);
  EXPECT_EQ(undone.japanese, "元に戻しました: 保存");
  EXPECT_EQ(undone.english, "Undone: Save");
  EXPECT_EQ(place.disk.length(a), 0);
  const Undone redone = menu_redo(place.journal(), prompts);
  EXPECT_TRUE(redone.files_changed);
  EXPECT_EQ(redone.english, "Redone: Save");
  EXPECT_EQ(place.content(a), "1");
  EXPECT_THAT(prompts.shown, IsEmpty());
}

TEST_F(Menu_undo, SaysThatThereIsNothing) {
  EXPECT_FALSE(menu_undo(place.journal(), prompts).files_changed);
  prompts.use_language("Japanese");
  EXPECT_FALSE(menu_redo(place.journal(), prompts).files_changed);
  EXPECT_THAT(prompts.shown, ElementsAre("There is nothing to undo.", "やり直す操作がありません。"));
}

TEST_F(Menu_undo, NamesTheFilesThatAnotherProgramChanged) {
  save("1");
  place.disk.write_whole(a, "foreign");
  EXPECT_FALSE(menu_undo(place.journal(), prompts).files_changed);
  prompts.use_language("Japanese");
  menu_undo(place.journal(), prompts);
  EXPECT_THAT(prompts.shown, ElementsAre("Another program has changed these files. Nothing was undone.\n" + a,
                                         "次のファイルが他のプログラムで変更されているため、元に戻せません。\n" + a));
  EXPECT_EQ(place.content(a), "foreign");
}

TEST_F(Menu_undo, NamesTenFilesAtMost) {
  {
    const platform::Journal_operation operation(place.journal(), "取込", "Import");
    for (int i = 10; i < 22; ++i) place.files().write_whole(place.project(std::to_string(i)), "x");
  }
  for (int i = 10; i < 22; ++i) place.disk.remove(place.project(std::to_string(i)));
  menu_undo(place.journal(), prompts);
  ASSERT_EQ(prompts.shown.size(), 1u);
  EXPECT_THAT(prompts.shown[0], ::testing::HasSubstr(place.project("19") + "\nand 2 more"));
}

TEST_F(Menu_undo, SaysWhyThereIsNoJournal) {
  platform::Journal second(place.disk);
  menu_undo(second, prompts);
  second.open(place.state(), place.project(""), "");
  menu_redo(second, prompts);
  EXPECT_THAT(prompts.shown, ElementsAre("No project is open, so that there is nothing to undo.",
                                         "This project is open in another Terranote, so that this one can't redo."));
}

TEST_F(Menu_undo, SaysThatAFileCouldNotBeWritten) {
  save("1");
  save("2");
  place.project_files.read_only = true;
  EXPECT_FALSE(menu_undo(place.journal(), prompts).files_changed);
  EXPECT_THAT(prompts.shown, ElementsAre("A file could not be read or written. Nothing was undone.\n" + a));
}

TEST_F(Menu_undo, AsksBeforeItGoesPastAnOperationThatWasNotKept) {
  save("1");
  place.journal_files.read_only = true;
  {
    const platform::Journal_operation operation(place.journal(), "削除", "Delete");
    place.files().write_whole(place.project("b.csv"), "x");
  }
  place.journal_files.read_only = false;
  prompts.answers = {platform::Answer::no, platform::Answer::yes};
  EXPECT_FALSE(menu_undo(place.journal(), prompts).files_changed);
  EXPECT_EQ(place.content(a), "1");
  EXPECT_TRUE(menu_undo(place.journal(), prompts).files_changed);
  EXPECT_EQ(place.disk.length(a), 0);
  EXPECT_EQ(place.content(place.project("b.csv")), "x");
}
