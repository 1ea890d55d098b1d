#include "observations/input_sheet.h"

#include <gmock/gmock.h>

#include "observations/observation_place.h"
#include "support/fake_ports.h"

namespace {

using observations::box_touroku_no;
using observations::box_X;
using observations::box_Y;
using platform::Sheet_outcome;
using testing::ElementsAre;
using testing::IsEmpty;

struct Input_sheet : testing::Test, support::Observation_place {
  support::Recorded_sheets sheets;
  support::Recorded_processes processes;
  core::Settings_boxes basic;
  std::vector<std::string> cut_out_for;

  // Point 081115-001 at 35 degrees 41'22.2" north, 139 degrees 45'5.5" east: 128482.2 and 503105.5 seconds.
  Input_sheet() {
    disk.make_folder(forms());
    basic.Dir3 = forms();
    choose("genchi.XLS");
    basic.Text3 = {"調査票", "B2", "B3", "B4", "B5"};
    entry.boxes.Text14[box_touroku_no] = "081115-001";
    entry.boxes.Text14[box_X] = "13975152.78";
    entry.boxes.Text14[box_Y] = "3568950.00";
  }
  std::string forms() const { return folder.text() + "\\forms"; }
  void choose(const std::string& name) {
    basic.File4 = name;
    disk.write_whole(forms() + "\\" + name, "template " + name);
  }
  observations::Sheet_context sheet_context() {
    return {settings,  basic,  canvas,  files,
            processes, sheets, prompts, [this](const std::string& sheet) { cut_out_for.push_back(sheet); }};
  }
  bool press() { return observations::Command1(sheet_context(), entry.boxes); }
  // "B3=text" for each cell of the last job.
  std::vector<std::string> cells() const {
    std::vector<std::string> told;
    for (const platform::Cell& cell : sheets.jobs.back().cells) told.push_back(cell.address + "=" + cell.text);
    return told;
  }
};

TEST_F(Input_sheet, AsksForATemplateWhenNoneIsChosen) {
  for (const char* none : {"", "  "}) {
    basic.File4 = none;
    EXPECT_FALSE(press());
  }
  prompts.use_language("English");
  EXPECT_FALSE(press());
  const std::string japanese = "基本設定で入力基本枠のファイルを選択して下さい。";
  EXPECT_THAT(prompts.shown, ElementsAre(japanese, japanese, "Please Basic Setting"));
  EXPECT_EQ(entry.boxes.Label3, "");
  EXPECT_THAT(sheets.jobs, IsEmpty());
}

TEST_F(Input_sheet, IsACopyUnderTheRegistrationNumber) {
  ASSERT_TRUE(press());
  EXPECT_EQ(entry.boxes.Label3, "081115-001.XLS");
  EXPECT_EQ(bytes("081115-001.XLS"), "template genchi.XLS");
  ASSERT_EQ(sheets.jobs.size(), 1u);
  EXPECT_EQ(sheets.jobs[0].workbook, path("081115-001.XLS"));
  EXPECT_THAT(processes.started, IsEmpty());
  EXPECT_THAT(prompts.shown, IsEmpty());
}

TEST_F(Input_sheet, LeavesASheetThatIsThereAlready) {
  put("filled by hand", "081115-001.XLS");
  ASSERT_TRUE(press());
  EXPECT_EQ(bytes("081115-001.XLS"), "filled by hand");
  EXPECT_EQ(sheets.jobs.size(), 1u);
  EXPECT_EQ(files.calls("copy"), 0);
}

TEST_F(Input_sheet, MakesTheFolderThatItGoesTo) {
  settings.project_path = folder.text() + "\\other";
  disk.make_folder(settings.project_path);
  ASSERT_TRUE(press());
  EXPECT_GT(disk.length(settings.project_path + "\\chisou_men\\081115-001.XLS"), 0);
}

TEST_F(Input_sheet, GetsProjectPlaceAndNumberInItsCells) {
  ASSERT_TRUE(press());
  EXPECT_EQ(sheets.jobs[0].sheet, "調査票");
  EXPECT_THAT(cells(),
              ElementsAre("B2=" + project, "B3=北緯 35度41分22.2秒", "B4=東経 139度45分5.5秒", "B5=081115-001"));
}

TEST_F(Input_sheet, LeavesOutACellWithoutAnAddress) {
  basic.Text3 = {"", "", " ", "c7", "　Ｄ１２"};
  ASSERT_TRUE(press());
  EXPECT_EQ(sheets.jobs[0].sheet, "sheet1");
  EXPECT_THAT(cells(), ElementsAre("C7=東経 139度45分5.5秒", "D12=081115-001"));
  basic.Text3 = {};
  ASSERT_TRUE(press());
  EXPECT_THAT(cells(), IsEmpty());
}

TEST_F(Input_sheet, OpensAnyOtherTemplateWithItsProgram) {
  for (const char* name : {"genchi.doc", "genchi.xlsx", "genchi"}) {
    choose(name);
    entry.boxes.Text14[box_touroku_no] = "7";
    ASSERT_TRUE(press()) << name;
    const std::string expected = "7" + std::string(name).substr(6);
    EXPECT_EQ(entry.boxes.Label3, expected);
    EXPECT_EQ(processes.started.back(), path(expected));
  }
  EXPECT_THAT(sheets.jobs, IsEmpty());
}

TEST_F(Input_sheet, FillsInAWorkbookWhateverTheCaseOfItsExtension) {
  choose("genchi.xls");
  ASSERT_TRUE(press());
  EXPECT_EQ(entry.boxes.Label3, "081115-001.xls");
  EXPECT_EQ(sheets.jobs.size(), 1u);
}

TEST_F(Input_sheet, AsksForTheMapCutOutOnceItIsOpen) {
  ASSERT_TRUE(press());
  choose("genchi.doc");
  ASSERT_TRUE(press());
  EXPECT_THAT(cut_out_for, ElementsAre(path("081115-001.XLS"), path("081115-001.doc")));
  processes.works = false;
  EXPECT_FALSE(press());
  EXPECT_EQ(cut_out_for.size(), 2u);
}

TEST_F(Input_sheet, IsOpenedAsItIsWhereItCouldNotBeFilledIn) {
  const std::pair<Sheet_outcome, const char*> outcomes[] = {
      {Sheet_outcome::no_program, "表計算プログラムがないため、入力シートは記入せずに開きます。"},
      {Sheet_outcome::no_sheet, "シート「調査票」がないため、入力シートは記入せずに開きます。"},
      {Sheet_outcome::failed, "入力シートに記入できませんでした。記入せずに開きます。"},
  };
  for (const auto& [outcome, told] : outcomes) {
    sheets.outcome = outcome;
    processes.started.clear();
    EXPECT_TRUE(press());
    EXPECT_EQ(prompts.shown.back(), told);
    EXPECT_THAT(processes.started, ElementsAre(path("081115-001.XLS")));
  }
}

TEST_F(Input_sheet, SaysThatAnAddressIsWrong) {
  sheets.outcome = Sheet_outcome::bad_cell;
  prompts.use_language("English");
  EXPECT_TRUE(press());
  EXPECT_THAT(prompts.shown,
              ElementsAre("A cell address of the basic settings is wrong. The other cells are filled in."));
  EXPECT_THAT(processes.started, IsEmpty());
}

TEST_F(Input_sheet, IsOpenedAgainWhereItWasFilledInButNotShown) {
  sheets.outcome = Sheet_outcome::not_shown;
  processes.works = false;
  EXPECT_FALSE(press());
  EXPECT_THAT(prompts.shown, ElementsAre("関連付けられたプログラムで開けません: " + path("081115-001.XLS")));
}

TEST_F(Input_sheet, NeverLeavesItsFolder) {
  for (const char* number : {"", " ", "..\\a", "../a", "a/b", "a\\b", "C:a", "con", "a:b", "\\\\host\\a"}) {
    entry.boxes.Text14[box_touroku_no] = number;
    EXPECT_FALSE(press()) << number;
    EXPECT_EQ(entry.boxes.Label3, "") << number;
    EXPECT_EQ(prompts.shown.back(), "登録番号を、ファイル名に使える文字で入力して下さい。") << number;
  }
  entry.boxes.Text14[box_touroku_no] = "1";
  basic.File4 = "a.x\\..\\..\\b";
  EXPECT_FALSE(press());
  EXPECT_EQ(files.calls("copy"), 0);
}

TEST_F(Input_sheet, SaysThatTheTemplateCantBeCopied) {
  basic.File4 = "gone.XLS";
  EXPECT_FALSE(press());
  files.read_only = true;
  choose("genchi.XLS");
  EXPECT_FALSE(press());
  EXPECT_EQ(prompts.shown.size(), 2u);
  EXPECT_THAT(prompts.shown[0], testing::HasSubstr(forms() + "\\gone.XLS"));
  EXPECT_EQ(entry.boxes.Label3, "");
  EXPECT_THAT(sheets.jobs, IsEmpty());
}

// The frame has 25 m to the second of longitude and 30 m to that of latitude, from 139 degrees east and 36 north.
TEST_F(Input_sheet, TurnsMetresByTheFrameOfTheMap) {
  canvas = support::geographic_canvas();
  entry.boxes.Text14[box_X] = "1500";
  entry.boxes.Text14[box_Y] = "3300";
  ASSERT_TRUE(press());
  EXPECT_THAT(cells(), ElementsAre("B2=" + project, "B3=北緯 36度1分50.0秒", "B4=東経 139度1分0.0秒", "B5=081115-001"));
  EXPECT_THAT(prompts.shown, IsEmpty());
}

TEST_F(Input_sheet, LeavesTheDegreesOfMetresOutWithoutAFrame) {
  entry.boxes.Text14[box_X] = "1500";
  ASSERT_TRUE(press());
  EXPECT_THAT(cells(), ElementsAre("B2=" + project, "B5=081115-001"));
  EXPECT_THAT(prompts.shown, ElementsAre("位置がメートルのため、緯度と経度は記入しません。"));
  basic.Text3[2] = basic.Text3[3] = "";
  ASSERT_TRUE(press());
  EXPECT_EQ(prompts.shown.size(), 1u);
}

struct Degrees_row {
  double units;
  const char* text;
};

TEST(Degrees_text, SplitsUnitsIntoDegreesMinutesAndSeconds) {
  const Degrees_row rows[] = {
      {3500000, "35度0分0.0秒"},
      {3570000, "35度42分0.0秒"},         // 128520 seconds, a whole minute
      {13931666.67, "139度19分0.0秒"},    // 501540.00012
      {13931666.66, "139度18分60.0秒"},   // 501539.99976: seconds that round to 60 stay
      {13952431.25, "139度31分27.53秒"},  // 502287.525: a half goes up
      {3561208.5, "35度36分43.51秒"},     // 128203.506
      {3568950, "35度41分22.2秒"},        // 128482.2
      {50000, "度30分0.0秒"},             // no digit is required of the degrees
      {-3568950, "-35度41分22.2秒"},
  };
  for (const Degrees_row& row : rows) EXPECT_EQ(observations::degrees_text(row.units), row.text) << row.units;
}

TEST(Cell_address, IsHalfWidthAndInCapitals) {
  EXPECT_EQ(observations::cell_address("Ｂ４"), "B4");
  EXPECT_EQ(observations::cell_address(" b 4　"), "B4");
  EXPECT_EQ(observations::cell_address("＄ａａ＄１２"), "$AA$12");
  EXPECT_EQ(observations::cell_address("緯度"), "緯度");
  EXPECT_EQ(observations::cell_address("\xFF"
                                       "b1"),
            "\xFF"
            "B1");
  EXPECT_EQ(observations::cell_address(""), "");
}

}  // namespace
