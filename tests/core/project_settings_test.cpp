#include "core/project_settings.h"

#include <gmock/gmock.h>

#include "support/settings_place.h"

namespace {

using core::File_choice;
using support::Place;
using testing::ElementsAre;
using testing::HasSubstr;

TEST(Command10, WritesTheFileAndSetsTheState) {
  Place place({"a.csv", "b.csv"});
  place.choose({"b.csv", "a.csv"});
  place.boxes.Option6 = false;
  place.boxes.Option7 = true;
  place.boxes.Dir10 = "C:\\sheets";
  ASSERT_TRUE(place.save());
  std::vector<std::string> lines = support::settei_lines(place.project.string(), "a.csv,b.csv");
  lines[15] = "False";
  lines[16] = "True";
  lines[24] = "C:\\sheets";
  EXPECT_TRUE(support::same_bytes(place.settei(), support::joined(lines)));
  EXPECT_EQ(place.settings.datum_mode, core::wgs_84);
  EXPECT_EQ(place.settings.registry_name, "a.csv");
  EXPECT_EQ(place.settings.registry_count, 2);
  EXPECT_EQ(place.settings.project_path, place.project.string());
  EXPECT_EQ(place.settings.map_path, "C:\\sheets");
  EXPECT_TRUE(std::filesystem::is_directory(place.project / "data"));
  EXPECT_TRUE(place.prompts.shown.empty());
}

TEST(Command10, GoesBackToTheTokyoDatum) {
  Place place({"a.csv"});
  place.settings.datum_mode = core::wgs_84;
  place.choose({"a.csv"});
  ASSERT_TRUE(place.save());
  EXPECT_EQ(place.settings.datum_mode, core::tokyo_datum);
}

TEST(Command10, WithoutASelectedFileSaysSoAndChangesNothing) {
  Place place({"a.csv"});
  place.choose({});
  place.boxes.Option7 = true;
  EXPECT_FALSE(place.save());
  EXPECT_THAT(place.prompts.shown, ElementsAre("Please Select Basic Frame File"));
  EXPECT_FALSE(std::filesystem::exists(place.program / "settei.ini"));
  EXPECT_FALSE(std::filesystem::exists(place.project / "data"));
  EXPECT_EQ(place.settings.datum_mode, core::tokyo_datum);
}

TEST(Command10, AsksForAFileInJapaneseToo) {
  Place place({"a.csv"});
  place.choose({});
  place.prompts.use_language("Japanese");
  EXPECT_FALSE(place.save());
  EXPECT_THAT(place.prompts.shown, ElementsAre("地点登録ファイルは必ず選択して下さい。"));
}

TEST(Command10, StoresFiveHundredNamesAtMost) {
  Place place;
  place.boxes.Dir4 = place.project.string();
  std::string line = "f000.csv";
  for (int i = 0; i < 501; ++i) {
    const std::string name = "f" + std::string(i < 10 ? "00" : i < 100 ? "0" : "") + std::to_string(i) + ".csv";
    place.boxes.File11.push_back({name, true});
    if (i > 0 && i < 500) line += "," + name;
  }
  ASSERT_TRUE(place.save());
  EXPECT_THAT(place.settei(), HasSubstr("False\r\n" + line + "\r\n1000\r\n"));
  EXPECT_EQ(place.settings.registry_count, 500);
  EXPECT_EQ(place.settings.registry_name, "f000.csv");
}

TEST(Command10, MakesTheDataFoldersOfAProjectThatHasNone) {
  Place place;
  const std::filesystem::path fresh = place.folder.path() / "fresh";
  std::filesystem::create_directories(fresh);
  place.boxes.Dir4 = fresh.string();
  place.boxes.File11 = {{"a.csv", true}};
  ASSERT_TRUE(place.save());
  EXPECT_TRUE(std::filesystem::is_directory(fresh / "chisou_men"));
  EXPECT_TRUE(std::filesystem::is_directory(fresh / "data"));
}

TEST(Command10, KeepsThePictureInProportionToTheCut) {
  Place place({"a.csv"});
  place.choose({"a.csv"});
  place.boxes.Text9 = "6000";
  place.boxes.Text10 = "3000";
  ASSERT_TRUE(place.save());
  EXPECT_EQ(place.boxes.Text9, "3000");
  EXPECT_THAT(place.settei(), HasSubstr("100\r\n3000\r\n3000\r\n"));
}

TEST(Command10, AFileThatCannotBeWrittenChangesNothing) {
  Place place({"a.csv"});
  place.choose({"a.csv"});
  place.boxes.Text10 = "3000";
  support::Read_only_files files;
  EXPECT_FALSE(core::Command10(place.settings, place.boxes, files, place.prompts));
  ASSERT_EQ(place.prompts.shown.size(), 1u);
  EXPECT_EQ(place.prompts.shown[0], "The basic settings can't be saved: " + place.program.string() + "\\settei.ini");
  EXPECT_EQ(place.boxes.Text9, "6000");
  EXPECT_EQ(place.settings.registry_count, 0);
  EXPECT_EQ(place.settings.project_path, "");
}

TEST(Command10, AProjectFolderThatCannotBeWrittenChangesNothing) {
  Place place({"a.csv"});
  place.choose({"a.csv"});
  support::put(place.project / "data", "a file where the folder should be");
  EXPECT_FALSE(place.save());
  EXPECT_THAT(place.prompts.shown, ElementsAre("The folder can't be made: " + place.project.string() + "\\data"));
  EXPECT_FALSE(std::filesystem::exists(place.program / "settei.ini"));
}

TEST(Command10, NamesTheCharactersThatTheFileCannotHold) {
  Place place({"a.csv"});
  place.choose({"a.csv"});
  place.prompts.use_language("Japanese");
  place.boxes.Text3[1] = "𠮷B4é";
  EXPECT_FALSE(place.save());
  EXPECT_THAT(place.prompts.shown, ElementsAre("次の文字は保存できません。書き換えて下さい: 𠮷é"));
  EXPECT_FALSE(std::filesystem::exists(place.program / "settei.ini"));
}

TEST(Command11, ReadsTheFileAgain) {
  Place place({"a.csv"});
  place.settei(support::joined(support::settei_lines(place.project.string(), "a.csv")));
  place.boxes.Text5 = "77";
  place.boxes.Dir10 = place.program.string() + "\\map";
  ASSERT_TRUE(core::Command11(place.settings, place.boxes, place.files, place.prompts));
  EXPECT_EQ(place.boxes.Text5, "1000");
  EXPECT_EQ(place.settings.map_path, place.program.string() + "\\map");
  EXPECT_EQ(place.settings.registry_name, "a.csv");
}

TEST(Command11, AsksForTheSettingsWhileThereAreNone) {
  Place place;
  EXPECT_FALSE(core::Command11(place.settings, place.boxes, place.files, place.prompts));
  EXPECT_THAT(place.prompts.shown, ElementsAre("Please Do [BasicSetting]"));
}

TEST(Menu_settei, PointsTheFoldersIntoTheProgramFolderUntilThereAreSettings) {
  Place place;
  core::menu_settei(place.settings, place.boxes, place.files);
  EXPECT_EQ(place.boxes.Dir3, place.program.string());
  EXPECT_EQ(place.boxes.Dir4, place.program.string());
  EXPECT_EQ(place.boxes.Dir10, place.program.string() + "\\map");
}

TEST(Menu_settei, PointsTheMapFolderIntoTheFolderOfTheOption) {
  Place place;
  place.boxes.Option5 = {false, true};
  core::menu_settei(place.settings, place.boxes, place.files);
  EXPECT_EQ(place.boxes.Dir10, place.program.string() + "\\map50000");
}

TEST(Menu_settei, LeavesTheFoldersOnceThereAreSettings) {
  Place place({"a.csv"});
  place.settei("x\r\n");
  place.boxes.Dir3 = "C:\\kept";
  place.boxes.Dir4 = place.project.string();
  core::menu_settei(place.settings, place.boxes, place.files);
  EXPECT_EQ(place.boxes.Dir3, "C:\\kept");
  EXPECT_EQ(place.boxes.Dir4, place.project.string());
  EXPECT_THAT(place.boxes.File11, ElementsAre(File_choice{"a.csv", false}));
}

TEST(Command14, MakesTheProjectFolderWithItsDataFolder) {
  Place place;
  place.boxes.Dir4 = place.folder.text();
  place.boxes.Text2 = "新しい谷";
  const std::string made = core::Command14(place.boxes, place.files, place.prompts);
  EXPECT_EQ(made, place.folder.text() + "\\新しい谷");
  EXPECT_TRUE(std::filesystem::is_directory(place.folder.path() / "新しい谷" / "chisou_men"));
  EXPECT_TRUE(place.prompts.shown.empty());
}

// Notes which folders are made, and makes none.
class Noted_folders : public platform::Disk_files {
 public:
  std::vector<std::string> made;
  bool make_folder(const std::string& path) override {
    made.push_back(path);
    return true;
  }
};

TEST(Command14, CutsTheDoubledSeparatorBelowADrivesRoot) {
  Place place;
  Noted_folders files;
  place.boxes.Dir4 = "D:\\";
  place.boxes.Text2 = "tani";
  EXPECT_EQ(core::Command14(place.boxes, files, place.prompts), "D:\\tani");
  EXPECT_THAT(files.made, ElementsAre("D:\\tani", "D:\\tani\\chisou_men"));
  place.boxes.Dir4 = "\\\\server\\share";
  EXPECT_EQ(core::Command14(place.boxes, files, place.prompts), "\\\\server\\share\\tani");
}

TEST(Command14, SaysWhenTheFolderCannotBeMade) {
  Place place;
  place.boxes.Dir4 = place.folder.text() + "\\missing";
  place.boxes.Text2 = "tani";
  EXPECT_EQ(core::Command14(place.boxes, place.files, place.prompts), "");
  EXPECT_THAT(place.prompts.shown, ElementsAre("The folder can't be made: " + place.folder.text() + "\\missing\\tani"));
}

TEST(Command14, DoesNothingWithoutAName) {
  Place place;
  const auto before = support::snapshot(place.folder.path());
  EXPECT_EQ(core::Command14(place.boxes, place.files, place.prompts), "");
  EXPECT_EQ(support::snapshot(place.folder.path()), before);
}

TEST(Command44, MakesAnEmptyFile) {
  Place place({"a.csv"});
  place.choose({"a.csv"});
  place.boxes.Text4 = "谷2";
  ASSERT_TRUE(core::Command44(place.settings, place.boxes, place.files, place.prompts));
  EXPECT_EQ(std::filesystem::file_size(place.project / "chisou_men" / "谷2.csv"), 0u);
  EXPECT_THAT(place.boxes.File11, ElementsAre(File_choice{"a.csv", true}, File_choice{"谷2.csv", false}));
}

TEST(Command44, SelectsTheNewFileWhenNoOtherIs) {
  Place place;
  place.choose({});
  place.boxes.Text4 = "first";
  ASSERT_TRUE(core::Command44(place.settings, place.boxes, place.files, place.prompts));
  EXPECT_THAT(place.boxes.File11, ElementsAre(File_choice{"first.csv", true}));
}

TEST(Command44, LeavesAFileThatExistsAsItIs) {
  Place place({"a.csv"});
  place.choose({});
  place.boxes.Text4 = "A";
  core::Command44(place.settings, place.boxes, place.files, place.prompts);
  EXPECT_EQ(support::bytes_of((place.project / "chisou_men" / "a.csv").string()), "1\r\n");
}

TEST(Command44, AnEmptyNameShowsTheNoteInEnglishOnly) {
  Place place;
  EXPECT_FALSE(core::Command44(place.settings, place.boxes, place.files, place.prompts));
  EXPECT_THAT(place.prompts.shown, ElementsAre("Position File make in [chisou_men] Folder"));
  place.settings.language = "Japanese";
  place.prompts.use_language("Japanese");
  EXPECT_FALSE(core::Command44(place.settings, place.boxes, place.files, place.prompts));
  EXPECT_EQ(place.prompts.shown.size(), 1u) << "the comparison with the lower-case word never holds";
}

TEST(Command44, TakesNoNameThatTheListOfSelectedFilesWouldPart) {
  Place place;
  place.choose({});
  place.boxes.Text4 = "a,b";
  EXPECT_FALSE(core::Command44(place.settings, place.boxes, place.files, place.prompts));
  place.prompts.use_language("Japanese");
  EXPECT_FALSE(core::Command44(place.settings, place.boxes, place.files, place.prompts));
  EXPECT_THAT(place.prompts.shown,
              ElementsAre("A comma can't stand in the name of the file.", "ファイル名に「,」は使えません。"));
  EXPECT_TRUE(std::filesystem::is_empty(place.project / "chisou_men"));
}

TEST(Command44, MakesNoFileOutsideTheDataFolder) {
  Place place;
  std::filesystem::create_directories(place.project / "chisou_men" / "txt");
  place.choose({});
  const auto before = support::snapshot(place.folder.path());
  for (const char* name : {"..\\a", "../a", "txt\\a", "C:a"}) {
    place.boxes.Text4 = name;
    EXPECT_FALSE(core::Command44(place.settings, place.boxes, place.files, place.prompts)) << name;
  }
  EXPECT_EQ(support::snapshot(place.folder.path()), before);
  ASSERT_EQ(place.prompts.shown.size(), 4u);
  EXPECT_EQ(place.prompts.shown[0], "The file can't be made: " + place.project.string() + "\\chisou_men\\..\\a.csv");
}

TEST(Command44, SaysWhenTheFileCannotBeMade) {
  Place place;
  support::Read_only_files files;
  place.boxes.Dir4 = place.project.string();
  place.boxes.Text4 = "x";
  EXPECT_FALSE(core::Command44(place.settings, place.boxes, files, place.prompts));
  EXPECT_THAT(place.prompts.shown,
              ElementsAre("The file can't be made: " + place.project.string() + "\\chisou_men\\x.csv"));
}

TEST(Command44, WithoutAProjectMakesNothing) {
  Place place;
  place.boxes.Dir4.clear();
  place.boxes.Text4 = "x";
  EXPECT_FALSE(core::Command44(place.settings, place.boxes, place.files, place.prompts));
  EXPECT_EQ(place.prompts.shown.size(), 1u);
  EXPECT_FALSE(std::filesystem::exists("chisou_men"));
}

TEST(Command45, DeletesTheSelectedFilesAfterAQuestion) {
  Place place({"a.csv", "b.csv", "c.csv"});
  place.choose({"a.csv", "c.csv"});
  place.prompts.answers = {platform::Answer::yes};
  EXPECT_TRUE(core::Command45(place.boxes, place.files, place.prompts));
  EXPECT_THAT(place.prompts.shown, ElementsAre("If yuou delete file then you can not revival this file.  Do it?"));
  EXPECT_THAT(place.boxes.File11, ElementsAre(File_choice{"b.csv", false}));
}

TEST(Command45, AsksInJapaneseToo) {
  Place place({"a.csv"});
  place.choose({"a.csv"});
  place.prompts.use_language("Japanese");
  EXPECT_FALSE(core::Command45(place.boxes, place.files, place.prompts));
  EXPECT_THAT(place.prompts.shown, ElementsAre("ファイルを削除すると復活はできません。削除を実行しますか。"));
}

TEST(Command45, AsksNothingWithoutASelectedFile) {
  Place place({"a.csv"});
  place.choose({});
  EXPECT_FALSE(core::Command45(place.boxes, place.files, place.prompts));
  EXPECT_TRUE(place.prompts.shown.empty());
}

TEST(Command45, KeepsEverythingWhenDeclined) {
  Place place({"a.csv"});
  place.choose({"a.csv"});
  place.prompts.answers = {platform::Answer::no};
  EXPECT_FALSE(core::Command45(place.boxes, place.files, place.prompts));
  EXPECT_TRUE(std::filesystem::exists(place.project / "chisou_men" / "a.csv"));
}

// Refuses to remove one file.
class Held_file : public platform::Disk_files {
 public:
  bool remove(const std::string& path) override { return path.ends_with("a.csv") ? false : Disk_files::remove(path); }
};

TEST(Command45, GoesOnBehindAFileThatStays) {
  Place place({"a.csv", "b.csv"});
  place.choose({"a.csv", "b.csv"});
  place.prompts.answers = {platform::Answer::yes};
  Held_file files;
  EXPECT_TRUE(core::Command45(place.boxes, files, place.prompts));
  EXPECT_THAT(place.boxes.File11, ElementsAre(File_choice{"a.csv", true}));
  EXPECT_EQ(place.prompts.shown.size(), 1u);
}

TEST(Dir4_change, ListsTheFilesOfTheOtherProjectUnselected) {
  Place place({"a.csv"});
  place.choose({"a.csv"});
  const std::filesystem::path other = place.folder.path() / "other";
  std::filesystem::create_directories(other / "chisou_men");
  support::put(other / "chisou_men" / "a.csv", "");
  core::Dir4_change(place.boxes, other.string(), place.files);
  EXPECT_THAT(place.boxes.File11, ElementsAre(File_choice{"a.csv", false}));
}

TEST(Option5_click, TakesTheMapFolderWithItUnlessItIsAnother) {
  Place place;
  core::Option5_click(place.settings, place.boxes, 1);
  EXPECT_EQ(place.boxes.Dir10, place.program.string() + "\\map50000");
  EXPECT_TRUE(place.boxes.Option5[1]);
  core::Option5_click(place.settings, place.boxes, 0);
  EXPECT_EQ(place.boxes.Dir10, place.program.string() + "\\map");
  place.boxes.Dir10 = "C:\\sheets";
  core::Option5_click(place.settings, place.boxes, 1);
  EXPECT_EQ(place.boxes.Dir10, "C:\\sheets");
}

TEST(Sheet_folder, IsTheMapFolderUnlessItIsAStandardOne) {
  Place place;
  place.settings.program_path = "C:\\Terranote";
  EXPECT_EQ(core::sheet_folder(place.settings, place.boxes), "C:\\Terranote\\map");
  place.settings.map_path = "c:/terranote/MAP50000/";
  EXPECT_EQ(core::sheet_folder(place.settings, place.boxes), "C:\\Terranote\\map");
  core::Option5_click(place.settings, place.boxes, 1);
  EXPECT_EQ(core::sheet_folder(place.settings, place.boxes), "C:\\Terranote\\map50000");
  place.settings.map_path = "D:\\sheets";
  EXPECT_EQ(core::sheet_folder(place.settings, place.boxes), "D:\\sheets");
}

}  // namespace
