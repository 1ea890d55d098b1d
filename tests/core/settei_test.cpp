#include "core/settei.h"

#include <gmock/gmock.h>

#include "support/places.h"
#include "support/settings_place.h"

namespace {

using core::File_choice;
using support::Place;
using testing::ElementsAre;

core::Settings_boxes golden_boxes() {
  core::Settings_boxes boxes;
  boxes.Dir3 = "C:\\枠";
  boxes.File4 = "様式.xls";
  boxes.Dir4 = "C:\\現場\\谷";
  boxes.Option4[0] = false;
  boxes.Option4[1] = true;
  boxes.Option5[0] = false;
  boxes.Option5[1] = true;
  boxes.Text3[1] = "B4";
  boxes.Text3[2] = "B5";
  boxes.Text3[3] = "B6";
  boxes.Text3[4] = "B7";
  boxes.File11 = {{"谷.csv", true}, {"no.csv", false}, {"one.csv", true}};
  boxes.Dir10 = "C:\\Terranote\\map";
  return boxes;
}

TEST(Settei_write, WritesTheTwentySevenLines) {
  Place place;
  core::Settings_boxes boxes = golden_boxes();
  boxes.Option4[0] = true;
  boxes.Option4[1] = false;
  boxes.Option5[0] = true;
  boxes.Option5[1] = false;
  boxes.Option6 = false;
  boxes.Option7 = true;
  core::settei_w(place.settings, boxes, place.files);
  EXPECT_TRUE(support::same_as_golden(place.settei(), "core/settei.ini"));
}

TEST(Settei_write, ReadsBackWhatItWrote) {
  Place place({"a.csv", "谷.csv"});
  core::Settings_boxes written = golden_boxes();
  written.Dir3 = place.program.string();
  written.Dir4 = place.project.string();
  written.Dir10 = place.program.string() + "\\map";
  written.Label11 = written.Dir4;
  written.File11 = {{"a.csv", false}, {"谷.csv", true}};
  written.Option8 = false;
  written.Option9 = true;
  core::settei_w(place.settings, written, place.files);
  ASSERT_TRUE(place.read());
  EXPECT_EQ(place.boxes.Dir3, written.Dir3);
  EXPECT_EQ(place.boxes.File4, "様式.xls");
  EXPECT_EQ(place.boxes.Label11, written.Dir4);
  EXPECT_THAT(place.boxes.Option4, ElementsAre(false, true, false));
  EXPECT_THAT(place.boxes.Option5, ElementsAre(false, true));
  EXPECT_THAT(place.boxes.Text3, ElementsAre("sheet1", "B4", "B5", "B6", "B7"));
  EXPECT_EQ(place.boxes.File11, written.File11);
  EXPECT_FALSE(place.boxes.Option8);
  EXPECT_TRUE(place.boxes.Option9);
  EXPECT_EQ(place.settings.project_path, written.Dir4);
  EXPECT_EQ(place.settings.map_path, written.Dir10);
  EXPECT_EQ(place.settings.registry_name, "谷.csv");
  EXPECT_EQ(place.settings.registry_count, 1);
  EXPECT_EQ(place.settings.datum_mode, core::tokyo_datum);
  EXPECT_TRUE(place.prompts.shown.empty());
}

TEST(Settei_write, KeepsTheOldFileWhenItCannotBeWritten) {
  Place place;
  place.settei("old\r\n");
  support::Read_only_files files;
  EXPECT_THROW(core::settei_w(place.settings, place.boxes, files), platform::File_failure);
  EXPECT_EQ(place.settei(), "old\r\n");
}

TEST(Settei_read, AsksForTheSettingsWhenTheFileIsMissing) {
  Place place;
  const core::Settings_boxes before = place.boxes;
  EXPECT_FALSE(place.read());
  EXPECT_THAT(place.prompts.shown, ElementsAre("Please Do [BasicSetting]"));
  EXPECT_EQ(place.boxes.Dir4, before.Dir4);
  EXPECT_EQ(place.settings.project_path, "");
}

TEST(Settei_read, TreatsAnEmptyFileAsMissing) {
  Place place;
  place.settei("");
  place.prompts.use_language("Japanese");
  EXPECT_FALSE(place.read());
  EXPECT_THAT(place.prompts.shown, ElementsAre("基本設定を行なって下さい"));
}

TEST(Settei_read, LoadsAFileOfFiveLinesAndKeepsTheOtherDefaults) {
  Place place({"a.csv"});
  place.settei("\r\n\r\n" + place.project.string() + "\r\n07\r\n4800\r\n");
  ASSERT_TRUE(place.read());
  EXPECT_EQ(place.boxes.Dir4, place.project.string());
  EXPECT_EQ(place.boxes.Combo4, "07");
  EXPECT_EQ(place.boxes.Combo5, "4800");
  EXPECT_THAT(place.boxes.Option4, ElementsAre(true, false, false));
  EXPECT_EQ(place.boxes.Text3[0], "sheet1");
  EXPECT_EQ(place.boxes.Text5, "1000");
  EXPECT_EQ(place.boxes.Text7, "500");
  EXPECT_EQ(place.boxes.Text10, "6000");
  EXPECT_TRUE(place.boxes.Option6);
  EXPECT_TRUE(place.boxes.Option8);
  EXPECT_EQ(place.settings.datum_mode, core::tokyo_datum);
  EXPECT_THAT(place.boxes.File11, ElementsAre(File_choice{"a.csv", false}));
}

TEST(Settei_read, KeepsTheBoxesPastAnEndWithinTheFirstFiveLines) {
  Place place;
  place.settei("\r\nwaku.xls\r\n");
  ASSERT_TRUE(place.read());
  EXPECT_EQ(place.boxes.File4, "waku.xls");
  EXPECT_EQ(place.boxes.Dir4, place.program.string() + "\\dummy");
  EXPECT_EQ(place.boxes.Combo4, "04");
  EXPECT_EQ(place.boxes.Combo5, "9600");
}

TEST(Settei_read, StopsAtTheFirstMissingLine) {
  Place place;
  std::vector<std::string> lines = support::settei_lines(place.project.string(), "");
  lines[6] = "True";
  lines[19] = "2000";
  lines.resize(20);
  place.settei(support::joined(lines));
  ASSERT_TRUE(place.read());
  EXPECT_THAT(place.boxes.Option4, ElementsAre(false, true, false)) << "the last true flag of a group holds";
  EXPECT_EQ(place.boxes.Text6, "2000");
  EXPECT_EQ(place.boxes.Text7, "500");
}

TEST(Settei_read, CutsAProjectPathAtItsCommaAndKeepsAMapFolderWithOne) {
  Place place;
  const std::filesystem::path with_comma = place.folder.path() / "project,old";
  std::filesystem::create_directories(with_comma);
  std::vector<std::string> lines = support::settei_lines(with_comma.string(), "");
  lines[24] = with_comma.string();
  place.settei(support::joined(lines));
  ASSERT_TRUE(place.read());
  EXPECT_EQ(place.boxes.Dir4, place.project.string());
  EXPECT_EQ(place.boxes.Label11, place.project.string());
  EXPECT_EQ(place.settings.map_path, with_comma.string());
}

TEST(Settei_read, LeavesABoxWhoseFolderIsGone) {
  Place place;
  place.boxes.Dir3 = "before3";
  place.boxes.Dir10 = "before10";
  std::vector<std::string> lines = support::settei_lines("Z:\\removed", "");
  lines[0] = "Z:\\waku";
  lines[24] = "Z:\\map";
  place.settei(support::joined(lines));
  ASSERT_TRUE(place.read());
  EXPECT_EQ(place.boxes.Dir3, "before3");
  EXPECT_EQ(place.boxes.Dir4, place.program.string() + "\\dummy");
  EXPECT_EQ(place.boxes.Label11, "Z:\\removed");
  EXPECT_EQ(place.boxes.Dir10, "before10");
  EXPECT_TRUE(place.prompts.shown.empty());
  EXPECT_FALSE(std::filesystem::exists(place.program / "dummy" / "chisou_men"));
}

TEST(Settei_read, MakesTheDataFolderOfTheProject) {
  Place place;
  const std::filesystem::path fresh = place.folder.path() / "fresh";
  std::filesystem::create_directories(fresh);
  place.settei(support::joined(support::settei_lines(fresh.string(), "")));
  ASSERT_TRUE(place.read());
  EXPECT_TRUE(std::filesystem::is_directory(fresh / "chisou_men"));
  EXPECT_FALSE(std::filesystem::exists(fresh / "data"));
}

TEST(Settei_read, SelectsEveryFileWhoseNameIsAPartOfTheLine) {
  Place place({"a.csv", "ab.csv", "b.csv", "c.csv", "other.txt"});
  place.settei(support::joined(support::settei_lines(place.project.string(), "a.csv,ab.csv")));
  ASSERT_TRUE(place.read());
  EXPECT_THAT(place.boxes.File11, ElementsAre(File_choice{"a.csv", true}, File_choice{"ab.csv", true},
                                              File_choice{"b.csv", true}, File_choice{"c.csv", false}));
  EXPECT_EQ(place.settings.registry_count, 3);
  EXPECT_EQ(place.settings.registry_name, "a.csv");
}

TEST(Settei_read, SelectsWithoutRegardToCaseOfFullWidthLettersToo) {
  Place place({"TANI.CSV", "ｇｅｎ.csv"});
  place.settei(support::joined(support::settei_lines(place.project.string(), "tani.csv,ＧＥＮ.csv")));
  ASSERT_TRUE(place.read());
  EXPECT_EQ(place.settings.registry_count, 2);
}

TEST(Settei_read, TakesFlagsAsWordsAndNumbersAndLeavesAnOptionBesideAnythingElse) {
  Place place;
  std::vector<std::string> lines = support::settei_lines(place.project.string(), "");
  lines[5] = "#FALSE#";
  lines[6] = "-1";
  lines[15] = "maybe";
  lines[16] = "";
  lines[25] = "0";
  lines[26] = " true ";
  place.settei(support::joined(lines));
  ASSERT_TRUE(place.read());
  EXPECT_THAT(place.boxes.Option4, ElementsAre(false, true, false));
  EXPECT_TRUE(place.boxes.Option6);
  EXPECT_FALSE(place.boxes.Option7);
  EXPECT_FALSE(place.boxes.Option8);
  EXPECT_TRUE(place.boxes.Option9);
}

TEST(Settei_read, SetsTheDatum) {
  Place place;
  std::vector<std::string> lines = support::settei_lines(place.project.string(), "");
  lines[15] = "False";
  lines[16] = "True";
  place.settei(support::joined(lines));
  ASSERT_TRUE(place.read());
  EXPECT_EQ(place.settings.datum_mode, core::wgs_84);
}

TEST(Settei_read, EveryTruncationLoadsAndChangesNothingOnDisk) {
  const std::string whole = support::bytes_of(support::golden_file("core/settei.ini"));
  ASSERT_FALSE(whole.empty());
  for (std::size_t length = 1; length < whole.size(); ++length) {
    Place place;
    support::put(place.program / "settei.ini", whole.substr(0, length));
    const auto before = support::snapshot(place.folder.path());
    ASSERT_TRUE(place.read()) << length;
    ASSERT_EQ(support::snapshot(place.folder.path()), before) << length;
    ASSERT_EQ(place.boxes.Dir4, place.program.string() + "\\dummy") << length;
  }
}

TEST(Settei_read, ForeignBytesLoadAndChangeNothingOnDisk) {
  std::string binary;
  for (int i = 0; i < 4096; ++i) binary += static_cast<char>((i * 2654435761u) >> 24);
  std::string huge_line(5u << 20, '\x81'), huge_count;
  while (huge_count.size() < (5u << 20)) huge_count += "12345678\r\n";
  std::string utf8 = support::joined(support::settei_lines("C:\\現場", "谷.csv"));
  const std::string sixteen("\xff\xfeT\0r\0u\0e\0\r\0\n\0", 14);
  for (const std::string& bytes : {binary, huge_line, huge_count, utf8, sixteen, std::string(300, '\0')}) {
    Place place({"a.csv"});
    support::put(place.program / "settei.ini", bytes);
    const auto before = support::snapshot(place.folder.path());
    EXPECT_TRUE(place.read());
    EXPECT_EQ(support::snapshot(place.folder.path()), before);
    EXPECT_EQ(place.boxes.Dir4, place.program.string() + "\\dummy");
    EXPECT_TRUE(place.prompts.shown.empty());
  }
}

struct Proportion {
  const char *Text5, *Text6, *Text9, *Text10, *wanted;
};

TEST(Picture_proportion, FollowsTheRange) {
  constexpr Proportion rows[] = {
      {"1000", "1000", "6000", "3000", "3000"},  // made square
      {"1000", "1000", "6000", "6000", "6000"},  // as it is
      {"2000", "1000", "6000", "3000", "6000"},  // already in proportion
      {"1000", "3000", "6000", "1000", "333"},   // no decimals
      {"2000", "3000", "6000", "1000", "667"},   // rounded
      {"1000", "0", "6000", "3000", "6000"},     // no proportion to keep
      {"1000", "", "6000", "3000", "6000"},     {"1000", "1000", "6000", "0", "6000"},
      {"0", "1000", "6000", "3000", "0"},       {"1e300", "1e-300", "6000", "3000", "6000"},  // beyond all numbers
  };
  for (const Proportion& row : rows) {
    core::Settings_boxes boxes;
    boxes.Text5 = row.Text5;
    boxes.Text6 = row.Text6;
    boxes.Text9 = row.Text9;
    boxes.Text10 = row.Text10;
    core::picture_proportion(boxes);
    EXPECT_EQ(boxes.Text9, row.wanted) << row.Text5 << " " << row.Text6 << " " << row.Text9 << " " << row.Text10;
  }
}

TEST(Selected_registries, StopsAtFiveHundred) {
  core::Settings_boxes boxes;
  for (int i = 0; i < 501; ++i) boxes.File11.push_back({std::to_string(i), true});
  const auto names = core::selected_registries(boxes);
  ASSERT_EQ(names.size(), 500u);
  EXPECT_EQ(names.back(), "499");
}

}  // namespace
