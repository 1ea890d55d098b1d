#include "core/settei.h"

#include <gmock/gmock.h>

#include <algorithm>

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

TEST(Settei_defaults, AreThoseOfADialogWithoutAFile) {
  Place place;
  const core::Settings_boxes boxes = core::settei_defaults(place.settings);
  EXPECT_EQ(boxes.Dir4, place.program.string() + "\\dummy");
  EXPECT_EQ(boxes.Combo4, "04");
  EXPECT_EQ(boxes.Combo5, "9600");
  EXPECT_THAT(boxes.Option4, ElementsAre(true, false, false));
  EXPECT_THAT(boxes.Option5, ElementsAre(true, false));
  EXPECT_THAT(boxes.Text3, ElementsAre("sheet1", "", "", "", ""));
  EXPECT_TRUE(boxes.Option6);
  EXPECT_FALSE(boxes.Option7);
  const std::string cut[] = {boxes.Text5, boxes.Text6, boxes.Text7, boxes.Text8, boxes.Text9, boxes.Text10};
  EXPECT_THAT(cut, ElementsAre("1000", "1000", "500", "100", "6000", "6000"));
  EXPECT_TRUE(boxes.Option8);
  EXPECT_FALSE(boxes.Option9);
}

// Lines that differ from every default, so that a box tells whether its line was read.
std::vector<std::string> strange_lines(const Place& place) {
  const std::string program = place.program.string();
  return {program, "f.xls", place.project.string(),
          "09",    "4800",  "False",
          "False", "True",  "False",
          "True",  "s",     "A1",
          "A2",    "A3",    "A4",
          "False", "True",  "a.csv",
          "11",    "12",    "13",
          "14",    "15",    "16",
          program, "False", "True"};
}

// What the boxes hold, one text for each of the 27 lines.
std::vector<std::string> values_of(const Place& place) {
  const core::Settings_boxes& boxes = place.boxes;
  const auto flag = [](bool value) { return std::string(value ? "True" : "False"); };
  std::vector<std::string> values = {boxes.Dir3, boxes.File4, boxes.Dir4, boxes.Combo4, boxes.Combo5};
  for (const bool option : boxes.Option4) values.push_back(flag(option));
  for (const bool option : boxes.Option5) values.push_back(flag(option));
  for (const std::string& cell : boxes.Text3) values.push_back(cell);
  values.insert(values.end(), {flag(boxes.Option6), flag(boxes.Option7), place.settings.registry_name, boxes.Text5,
                               boxes.Text6, boxes.Text7, boxes.Text8, boxes.Text9, boxes.Text10, boxes.Dir10,
                               flag(boxes.Option8), flag(boxes.Option9)});
  return values;
}

// A line that is missing leaves its box, and so do all behind it.
TEST(Settei_read, AFileOfEveryLengthLoadsAsFarAsItGoes) {
  for (std::size_t count = 1; count <= 27; ++count) {
    Place place({"a.csv"});
    std::vector<std::string> wanted = values_of(place);
    std::vector<std::string> lines = strange_lines(place);
    std::copy_n(lines.begin(), count, wanted.begin());
    lines.resize(count);
    place.settei(support::joined(lines));
    ASSERT_TRUE(place.read());
    EXPECT_EQ(values_of(place), wanted) << count << " lines";
    EXPECT_EQ(place.settings.datum_mode, count >= 17 ? core::wgs_84 : core::tokyo_datum) << count << " lines";
    EXPECT_EQ(place.settings.registry_count, count >= 18 ? 1 : 0) << count << " lines";
  }
}

TEST(Settei_read, EndsAFieldAtItsCommaAndTakesQuotesOff) {
  Place place({"a.csv"});
  std::vector<std::string> lines = support::settei_lines(place.project.string(), "a.csv");
  lines[1] = "f,g.xls,\"h\"";
  lines[2] = "\"" + place.project.string() + "\",x";
  lines[3] = "\"0,5\"";
  lines[4] = "4800 baud,n";
  lines[10] = "sheet one , two";
  lines[11] = "B\"4";
  lines[18] = "2000,5";
  lines[23] = ",6000";
  place.settei(support::joined(lines));
  ASSERT_TRUE(place.read());
  EXPECT_EQ(place.boxes.File4, "f");
  EXPECT_EQ(place.boxes.Dir4, place.project.string());
  EXPECT_EQ(place.boxes.Combo4, "0,5");
  EXPECT_EQ(place.boxes.Combo5, "4800 baud");
  EXPECT_EQ(place.boxes.Text3[0], "sheet one");
  EXPECT_EQ(place.boxes.Text3[1], "B");
  EXPECT_EQ(place.boxes.Text5, "2000");
  EXPECT_EQ(place.boxes.Text6, "1000") << "what stands behind a comma is no line of its own";
  EXPECT_EQ(place.boxes.Text10, "");
}

TEST(Settei_read, TakesTheNumberFlagsAsWholeLines) {
  Place place({"a.csv"});
  std::vector<std::string> lines = support::settei_lines(place.project.string(), "a.csv");
  lines[25] = "False,x";
  lines[26] = "\"True\"";
  place.settei(support::joined(lines));
  ASSERT_TRUE(place.read());
  EXPECT_TRUE(place.boxes.Option8) << "a whole line with a comma is no flag";
  EXPECT_FALSE(place.boxes.Option9) << "quotes stay in a whole line";
}

TEST(Settei_read, TakesTheFirstNameOfTheLineAsTheRegistryInUse) {
  Place place({"a.csv", "b.csv"});
  place.settei(support::joined(support::settei_lines(place.project.string(), "b.csv,a.csv")));
  ASSERT_TRUE(place.read());
  EXPECT_EQ(place.settings.registry_name, "b.csv");
  EXPECT_EQ(place.settings.registry_count, 2);
}

TEST(Settei_read, ListsTheCsvFilesOfTheDataFolderInAnyCase) {
  Place place({"b.CSV", "A.csv", "notes.txt", "a.csv.bak"});
  place.settei(support::joined(support::settei_lines(place.project.string(), "")));
  ASSERT_TRUE(place.read());
  EXPECT_THAT(place.boxes.File11, ElementsAre(File_choice{"A.csv", false}, File_choice{"b.CSV", false}));
  EXPECT_EQ(place.settings.registry_name, "");
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

TEST(Settei_read, TakesAnEmptyFieldForAFalseFlagAndAnEmptyWholeLineForNone) {
  Place place;
  std::vector<std::string> lines = support::settei_lines(place.project.string(), "");
  for (const std::size_t line : {6, 9, 16, 26}) lines[line - 1] = "";
  place.settei(support::joined(lines));
  ASSERT_TRUE(place.read());
  EXPECT_THAT(place.boxes.Option4, ElementsAre(false, false, false));
  EXPECT_THAT(place.boxes.Option5, ElementsAre(false, false));
  EXPECT_FALSE(place.boxes.Option6);
  EXPECT_TRUE(place.boxes.Option8);
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
