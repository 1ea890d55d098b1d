#include "maps/sheet_index.h"

#include <gtest/gtest.h>

#include "maps/map_place.h"
#include "support/fault_files.h"
#include "support/golden.h"
#include "support/recorder.h"
#include "support/scripted_prompts.h"

namespace {

using drawing::Rect;
using maps::Sheet_index;

struct Index : testing::Test {
  support::Map_place place;
  maps::Catalogue catalogue;
  Sheet_index index;
  std::string language;

  void SetUp() override {
    place.put_lines("Language.set", {"Japanese"});
    place.put_lines("ZUMEI.CSV", {"543817,杉沢"});
    maps::zumei_read(place.files, catalogue, place.program, 0, 0, language);
    index.display = {100, 80, 24};
  }
  void read(const std::vector<std::string>& stems) {
    for (const std::string& stem : stems) place.put("map\\" + stem + ".bmp", "x");
    maps::sheet_index_read(place.files, catalogue, place.in("map"), language, index);
  }
};

TEST_F(Index, PlacesASixDigitStemByItsDigits) {
  const maps::Index_sheet sheet = maps::cell_of_code("543817");
  EXPECT_EQ(sheet.row, 54 * 8 + 1);
  EXPECT_EQ(sheet.column, 38 * 8 + 7);
}

TEST_F(Index, KeepsTheExtentOfItsSheets) {
  EXPECT_EQ(index.row_min, 1e24);
  EXPECT_EQ(index.column_max, -1e24);
  read({"543817", "543900", "533977"});
  EXPECT_EQ(index.sheet_count, 3);
  EXPECT_EQ(index.row_min, 53 * 8 + 7);
  EXPECT_EQ(index.row_max, 54 * 8 + 2);
  EXPECT_EQ(index.column_min, 38 * 8 + 7);
  EXPECT_EQ(index.column_max, 40 * 8);
}

TEST_F(Index, PlacesOtherStemsByTheirFrame) {
  place.put_lines("map\\mine.set", {"138,52,30,36,10,0,139,7,30,36,5,0"});
  read({"mine"});
  ASSERT_EQ(index.sheet_count, 1);
  EXPECT_EQ(index.sheets[1].row, 54 * 8 + 1);
  EXPECT_EQ(index.sheets[1].column, 38 * 8 + 7);
  EXPECT_EQ(index.sheets[1].rows, 1);
  EXPECT_EQ(index.sheets[1].columns, 2);
  EXPECT_EQ(index.sheets[1].name, "mine");
}

TEST_F(Index, PlacesAQuarterSheetWithoutFrameByItsCode) {
  read({"54381705"});
  ASSERT_EQ(index.sheet_count, 1);
  EXPECT_EQ(index.sheets[1].row, 54 * 8 + 1);
  EXPECT_EQ(index.sheets[1].column, 38 * 8 + 7.5);
  EXPECT_EQ(index.sheets[1].rows, 0.5);
  EXPECT_EQ(index.sheets[1].name, "杉沢南東部");
}

TEST_F(Index, LeavesOutWhatHasNoFrame) {
  place.put_lines("map\\flat.set", {"1,2,3,4"});
  read({"free", "flat"});
  EXPECT_EQ(index.sheet_count, 1);  // corner B of the cut line is at 0, 0: a sheet all the same
  EXPECT_EQ(index.sheets[1].stem, "flat");
}

// A folder of many sheets, without the time that it takes to write them.
class Many_sheets : public platform::Disk_files {
 public:
  std::vector<std::string> list(const std::string&, std::string_view) override {
    std::vector<std::string> names;
    for (int i = 0; i <= maps::index_limit; ++i) names.push_back(std::to_string(500'000 + i) + ".bmp");
    return names;
  }
};

TEST_F(Index, FailsAtTheSheetBeyondItsTable) {
  Many_sheets files;
  EXPECT_THROW(maps::sheet_index_read(files, catalogue, place.in("map"), language, index), platform::Subscript_failure);
  EXPECT_EQ(index.sheet_count, 3000);
}

TEST_F(Index, DrawsEachSheetWithNorthAtTheTop) {
  read({"543817", "543806"});
  support::Recorder surface;
  maps::chizu_out(surface, index, "543806");
  EXPECT_EQ(surface.calls[0].what, "clear");
  const auto cells = surface.of("polygon");
  const auto names = surface.of("text");
  ASSERT_EQ(cells.size(), 2U);
  // 543806 is the first of the folder: one row below and one column left of 543817.
  EXPECT_EQ(cells[0].points, (std::vector<drawing::Point>{{40, 120}, {140, 120}, {140, 200}, {40, 200}}));
  EXPECT_EQ(cells[1].points, (std::vector<drawing::Point>{{140, 40}, {240, 40}, {240, 120}, {140, 120}}));
  EXPECT_NE(cells[0].fill.colour, cells[1].fill.colour);
  EXPECT_EQ(names[1].text, "杉沢");
  EXPECT_EQ(names[1].font.height, 24);
  EXPECT_EQ(maps::index_rectangle(index), (Rect{0, 0, 280, 240}));
}

TEST_F(Index, FindsTheSmallestSheetUnderAClick) {
  place.put_lines("map\\mine.set", {"138,52,30,36,10,0,139,7,30,36,5,0"});
  read({"54381700", "mine"});
  EXPECT_EQ(index.sheets[maps::sheet_index_hit(index, {50, 110})].stem, "54381700");
  EXPECT_EQ(index.sheets[maps::sheet_index_hit(index, {200, 50})].stem, "mine");
  EXPECT_EQ(maps::sheet_index_hit(index, {30, 50}), 0);
  EXPECT_EQ(maps::sheet_index_hit(index, {240, 50}), 0);
}

// The cell is 100 x 80 at (40, 40); its parts share what is left below a strip of 30 for the name, 6 inside the frame.
TEST_F(Index, AQuarterSheetStandsInsideItsWholeSheetBelowTheName) {
  read({"543817", "54381755"});
  EXPECT_EQ(maps::cell_rectangle(index, index.sheets[1]), (Rect{40, 40, 100, 80}));
  EXPECT_EQ(maps::cell_rectangle(index, index.sheets[2]), (Rect{90, 70, 44, 22}));
  EXPECT_EQ(index.sheets[maps::sheet_index_hit(index, {43, 50})].stem, "543817");
  EXPECT_EQ(index.sheets[maps::sheet_index_hit(index, {100, 80})].stem, "54381755");
}

TEST_F(Index, FitsTheGridIntoAWindow) {
  read({"543817", "543806"});
  maps::fit_display(index, 480, 10'000);
  EXPECT_EQ(index.display.cell_width, 200);
  EXPECT_EQ(index.display.cell_height, 164);
  EXPECT_LE(maps::index_rectangle(index).width, 480);
}

TEST_F(Index, ShowsAnEmptyGridForAnEmptyFolder) {
  read({});
  support::Recorder surface;
  maps::chizu_out(surface, index, "");
  EXPECT_EQ(surface.calls.size(), 1U);
  EXPECT_EQ(maps::index_rectangle(index), (Rect{0, 0, 80, 80}));
}

TEST_F(Index, WritesItsThreeSettingsAndReadsThemBack) {
  support::Scripted_prompts prompts;
  EXPECT_TRUE(maps::Command1(place.files, prompts, place.program, {150, 90.5, 30}));
  EXPECT_TRUE(support::same_as_golden(place.files.read_bytes(place.in("chizuset.dat")), "maps/chizuset.dat"));
  maps::Index_display display;
  maps::chizuset_r(place.files, place.program, display);
  EXPECT_EQ(display.cell_width, 150);
  EXPECT_EQ(display.cell_height, 90.5);
  EXPECT_EQ(display.text_height, 30);
}

TEST_F(Index, KeepsItsSettingsWhereTheFileIsMissingOrBad) {
  maps::Index_display display;
  maps::chizuset_r(place.files, place.program, display);
  EXPECT_EQ(display.cell_width, 120);
  place.put_lines("chizuset.dat", {"x", "-5"});
  maps::chizuset_r(place.files, place.program, display);
  EXPECT_EQ(display.cell_width, 120);
  EXPECT_EQ(display.cell_height, 80);
  EXPECT_EQ(display.text_height, 24);
  place.put_lines("chizuset.dat", {"1e30", "40", "12"});
  maps::chizuset_r(place.files, place.program, display);
  EXPECT_EQ(display.cell_width, 10'000);
}

TEST_F(Index, TellsInOneSentenceThatItCantSave) {
  support::Fault_files files(place.files);
  files.read_only = true;
  support::Scripted_prompts prompts;
  for (const char* word : {"Japanese", "English"}) {
    prompts.use_language(word);
    EXPECT_FALSE(maps::Command1(files, prompts, place.program, {}));
  }
  const std::string path = platform::join_path(place.program, "chizuset.dat");
  EXPECT_EQ(prompts.shown, (std::vector<std::string>{"表示設定を保存できません: " + path,
                                                     "The display settings can't be saved: " + path}));
  EXPECT_EQ(place.files.length(place.in("chizuset.dat")), 0);
}

}  // namespace
