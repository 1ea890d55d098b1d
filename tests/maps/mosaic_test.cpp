#include "maps/mosaic.h"

#include <gtest/gtest.h>

#include <cmath>
#include <filesystem>

#include "maps/map_place.h"
#include "support/bmp_pictures.h"
#include "support/fault_files.h"

namespace {

using maps::Canvas;
using maps::Load_report;
using maps::Mosaic;
using platform::Picture_fault;
using support::flat_bmp;

struct Chizu_out : testing::Test {
  support::Map_place place;
  support::Bmp_pictures pictures;
  maps::Catalogue catalogue;
  Canvas canvas;
  Mosaic mosaic;
  std::string language;

  void SetUp() override {
    place.put_lines("ZUMEI.CSV",
                    {"543817,杉沢,3,4,5,6,7,360500.0,1390000.0,10,11,12,361000.0,1385230.0", "543818,short"});
    maps::zumei_read(place.files, catalogue, place.program, maps::folder_25000, 0, language);
  }
  void put_picture(const std::string& stem, int width = 8, int height = 6) {
    place.put("map\\" + stem + ".bmp", flat_bmp(width, height));
  }
  Load_report select(const std::string& stem, int option5 = maps::folder_25000) {
    const maps::Sheet_choice choice{stem, place.in(option5 == 0 ? "map" : "map50000"), option5, 1.5};
    return maps::chizu_out(place.files, pictures, catalogue, choice, canvas, mosaic);
  }
  // "1.11": the main picture is there, slot 1 is out, 2 and 3 are in.
  std::string holders() const {
    std::string text = mosaic.picture[0].empty() ? "." : "1";
    for (std::size_t slot = 1; slot < 9; ++slot) text += mosaic.tile_state[slot] == 1 ? "1" : ".";
    return text;
  }
};

TEST_F(Chizu_out, NamesTheNeighboursOfAWholeSheetInTheOrderOfTheSlots) {
  // 543817 is the north-east-most column of its first level: one step east lies in 5439, digit 0.
  const auto names = maps::tile_names(catalogue, "543817", maps::folder_25000);
  const std::array<std::string, 9> wanted{"543817.bmp", "543807.bmp", "543910.bmp", "543900.bmp"};
  EXPECT_EQ(names, wanted);
}

TEST_F(Chizu_out, NamesTheNeighboursOfAQuarterSheetAcrossTheFirstLevelBorder) {
  // The north-west quarter of 543807: south of its second row lies 5338 with digit 7, east of its second column 5439.
  const auto names = maps::tile_names(catalogue, "54380750", maps::folder_25000);
  const std::array<std::string, 9> wanted{"54380750.bmp", "54380700.bmp", "54380755.bmp",
                                          "54380705.bmp", "54390050.bmp", "54390000.bmp",
                                          "53387750.bmp", "53387755.bmp", "53397050.bmp"};
  EXPECT_EQ(names, wanted);
}

TEST_F(Chizu_out, SeeksNoNeighboursForOtherStems) {
  const std::array<std::string, 9> wanted{"543818x.bmp"};
  EXPECT_EQ(maps::tile_names(catalogue, "543818x", maps::folder_25000), wanted);
  EXPECT_EQ(maps::sheet_kind(catalogue, "5438170", maps::folder_25000), maps::Sheet_kind::free);
  EXPECT_EQ(maps::sheet_kind(catalogue, "543816", maps::folder_25000), maps::Sheet_kind::free);  // no row
  EXPECT_EQ(maps::sheet_kind(catalogue, "543817", maps::folder_50000), maps::Sheet_kind::free);
  EXPECT_EQ(maps::sheet_kind(catalogue, "54381700", maps::folder_50000), maps::Sheet_kind::free);
  EXPECT_EQ(maps::sheet_kind(catalogue, "5438170x", maps::folder_25000), maps::Sheet_kind::free);
  EXPECT_EQ(maps::sheet_kind({}, "54381700", maps::folder_25000), maps::Sheet_kind::quarter);  // needs no row
}

TEST_F(Chizu_out, LoadsAWholeSheetWithTheNeighboursThatAreThere) {
  put_picture("543817");
  put_picture("543910");
  canvas.view_x = -500;
  canvas.zoom_count = 4;
  const Load_report report = select("543817");
  EXPECT_EQ(holders(), "1.1......");
  EXPECT_EQ(mosaic.columns, 2);
  EXPECT_TRUE(report.failures.empty());
  EXPECT_FALSE(report.main_missing);
  EXPECT_EQ(canvas.zoom_count, 1);
  EXPECT_EQ(canvas.label_scale, 1.5);
  EXPECT_EQ(canvas.view_x, 0);
  EXPECT_EQ(canvas.geo_x0, 13'887'500);
  EXPECT_NEAR(canvas.canvas_scale * canvas.map_h, 1000, 1e-9);
}

TEST_F(Chizu_out, FramesAQuarterSheetByItsCode) {
  put_picture("54381705");
  const Load_report report = select("54381705");
  EXPECT_FALSE(report.frame_missing);
  // South-west corner 36 degrees 5 minutes, 138 degrees 56 minutes 15 seconds; 150 by 225 seconds.
  EXPECT_FLOAT_EQ(canvas.geo_x0, 13'893'750);
  EXPECT_FLOAT_EQ(canvas.geo_x1, 13'900'000);
  EXPECT_FLOAT_EQ(canvas.geo_y1, 3'608'333.25F);
  EXPECT_FLOAT_EQ(canvas.geo_y0, 3'612'500);
  EXPECT_EQ(canvas.y_mode, 2);  // corner A is the upper left one
  EXPECT_EQ(mosaic.rows, 3);
}

TEST_F(Chizu_out, LeavesTheSouthRowEmptyAtTheEdgeOfTheData) {
  for (const char* stem : {"54380750", "54380755", "54390050"}) put_picture(stem);
  select("54380750");
  EXPECT_EQ(holders(), "1.1.1....");
}

TEST_F(Chizu_out, ReadsTheFrameFileOfAFreePicture) {
  put_picture("mine");
  place.put_lines("map\\mine.set", {"E,138,52,30,N,36,10,0,E,139,0,0,N,36,5,0"});
  EXPECT_FALSE(select("mine").frame_missing);
  EXPECT_EQ(canvas.geo_x0, 13'887'500);
  EXPECT_EQ(mosaic.columns, 1);
}

TEST_F(Chizu_out, ASixDigitStemWithoutARowTakesItsFrameFileAndNoNeighbours) {
  put_picture("543816");
  put_picture("543806");  // would be the neighbour to the south
  place.put_lines("map\\543816.set", {"138,45,0,36,10,0,138,52,30,36,5,0"});
  EXPECT_FALSE(select("543816").frame_missing);
  EXPECT_EQ(canvas.geo_x0, 13'875'000);
  EXPECT_EQ(canvas.geo_x1, 13'887'500);
  EXPECT_EQ(mosaic.columns, 1);
  EXPECT_EQ(holders(), "1........");
}

TEST_F(Chizu_out, ASheetOfTheFiftyThousandthsTakesItsFrameFileWhateverItsName) {
  for (const char* stem : {"543817", "54381705"}) {
    const std::string name = "map50000\\" + std::string(stem);
    place.put(name + ".bmp", flat_bmp(9, 7));
    place.put_lines(name + ".set", {"138,45,0,36,10,0,139,0,0,36,0,0"});
    EXPECT_FALSE(select(stem, maps::folder_50000).frame_missing) << stem;
    EXPECT_EQ(canvas.geo_x0, 13'875'000) << stem;
    EXPECT_EQ(canvas.geo_y1, 3'600'000) << stem;
    EXPECT_EQ(holders(), "1........") << stem;
    EXPECT_EQ(mosaic.picture[0].width(), 9) << stem;
  }
}

TEST_F(Chizu_out, NothingOfAMosaicStaysUnderAPictureOfItsOwn) {
  for (const char* stem : {"54381750", "54381755", "54381700", "54381705"}) put_picture(stem);
  select("54381750");
  ASSERT_EQ(holders(), "1111.....");
  put_picture("mine");
  select("mine");
  EXPECT_EQ(holders(), "1........");
  for (std::size_t slot = 1; slot < 9; ++slot) EXPECT_TRUE(mosaic.picture[slot].empty()) << slot;
  EXPECT_EQ(mosaic.columns, 1);
}

TEST_F(Chizu_out, CutsTheEntryAtTheFirstPoint) {
  put_picture("54381705");
  select("54381705.bmp");
  EXPECT_EQ(mosaic.tile_name[0], "54381705.bmp");
  EXPECT_EQ(holders(), "1........");
}

TEST_F(Chizu_out, HasAFrameOfNoSizeWithoutAFrameFile) {
  put_picture("1234567");
  canvas.canvas_scale = 0.5;
  EXPECT_TRUE(select("1234567").frame_missing);
  EXPECT_EQ(canvas.map_w, 0);
  EXPECT_EQ(canvas.canvas_scale, 0.5);
}

TEST_F(Chizu_out, HasAFrameOfNoSizeForARowWithoutCorners) {
  put_picture("543818");
  canvas.canvas_scale = 0.5;
  EXPECT_NO_THROW(select("543818"));
  EXPECT_EQ(canvas.map_h, 0);
  EXPECT_EQ(canvas.canvas_scale, 0.5);
}

TEST_F(Chizu_out, LeavesTheOldMainPictureUnderTheNewFrame) {
  put_picture("543817", 8, 6);
  put_picture("543910", 20, 20);
  select("543817");
  const Load_report report = select("54381750");
  EXPECT_TRUE(report.main_missing);
  EXPECT_EQ(mosaic.picture[0].width(), 8);
  EXPECT_FLOAT_EQ(canvas.geo_y0, 3'616'666.75F);
  EXPECT_TRUE(mosaic.picture[2].empty());  // of the neighbours nothing stays
  EXPECT_EQ(holders(), "1........");
}

TEST_F(Chizu_out, NamesEachPictureThatCantBeRead) {
  put_picture("543817");
  place.put("map\\543807.bmp", "no picture at all");
  std::string large = flat_bmp(4, 4);
  for (const std::size_t at : {std::size_t{18}, std::size_t{22}}) large.replace(at, 4, std::string("\0\0\1\0", 4));
  place.put("map\\543910.bmp", large);  // tells 65,536 x 65,536 pixels
  const Load_report report = select("543817");
  ASSERT_EQ(report.failures.size(), 2U);
  EXPECT_EQ(report.failures[0].file, "543807.bmp");
  EXPECT_EQ(report.failures[0].fault, Picture_fault::unreadable);
  EXPECT_EQ(report.failures[1].file, "543910.bmp");
  EXPECT_EQ(report.failures[1].fault, Picture_fault::too_large);
  EXPECT_EQ(holders(), "1........");
  EXPECT_EQ(maps::failure_text(report.failures[0], true), "「543807.bmp」は画像として読み込めません。");
  EXPECT_EQ(maps::failure_text(report.failures[0], false), "543807.bmp can't be read as a picture.");
  EXPECT_EQ(maps::failure_text(report.failures[1], true), "「543910.bmp」は大きすぎて読み込めません。");
  EXPECT_EQ(maps::failure_text(report.failures[1], false), "543910.bmp is too large to be loaded.");
}

TEST_F(Chizu_out, EmptiesTheMainHolderWhereThePictureIsBroken) {
  put_picture("543817");
  select("543817");
  place.put("map\\mine.bmp", "broken");
  EXPECT_EQ(select("mine").failures.size(), 1U);
  EXPECT_TRUE(mosaic.picture[0].empty());
}

TEST_F(Chizu_out, ReportsAFileThatFailsWhileItIsRead) {
  put_picture("543817");
  put_picture("543807");
  support::Fault_files files(place.files);
  files.unreadable = "543807";
  const maps::Sheet_choice choice{"543817", place.in("map"), 0, 1};
  const Load_report report = maps::chizu_out(files, pictures, catalogue, choice, canvas, mosaic);
  ASSERT_EQ(report.failures.size(), 1U);
  EXPECT_EQ(report.failures[0].file, "543807.bmp");
  EXPECT_FALSE(mosaic.picture[0].empty());
}

// The file has a hole of 40,000,000,000 bytes: reading it would take the machine's memory.
TEST_F(Chizu_out, AFileBeyondAnyPictureIsTooLargeWithoutBeingRead) {
  place.put("map\\mine.bmp", flat_bmp(4, 4));
  std::error_code refused;
  std::filesystem::resize_file(place.folder.path() / "map" / "mine.bmp", 40'000'000'000, refused);
  if (refused) GTEST_SKIP() << "the temporary folder takes no such file: " << refused.message();
  support::Fault_files files(place.files);
  const maps::Sheet_choice choice{"mine", place.in("map"), 0, 1};
  const Load_report report = maps::chizu_out(files, pictures, catalogue, choice, canvas, mosaic);
  ASSERT_EQ(report.failures.size(), 1U);
  EXPECT_EQ(report.failures[0].fault, Picture_fault::too_large);
  EXPECT_EQ(files.calls("read_bytes"), 0);
}

TEST_F(Chizu_out, DecodesAgainOnlyWhatHasChanged) {
  for (const char* stem : {"54381750", "54381755", "54381700", "54381705"}) put_picture(stem);
  select("54381750");
  EXPECT_EQ(pictures.decoded, 4);
  EXPECT_EQ(holders(), "1111.....");
  select("54381755");  // one step east: itself and the one south of it stay
  EXPECT_EQ(pictures.decoded, 4);
  EXPECT_EQ(holders(), "11.......");
  place.put("map\\54381755.bmp", flat_bmp(12, 5));
  select("54381755");
  EXPECT_EQ(pictures.decoded, 5);
  EXPECT_EQ(mosaic.picture[0].width(), 12);
}

TEST_F(Chizu_out, CountsThePicturesAsTheyComeReady) {
  for (const char* stem : {"54381750", "54381755", "54381700"}) put_picture(stem);
  std::vector<std::pair<int, int>> steps;
  const maps::Sheet_choice choice{"54381750", place.in("map"), 0, 1};
  maps::chizu_out(place.files, pictures, catalogue, choice, canvas, mosaic,
                  [&](int ready, int all) { steps.emplace_back(ready, all); });
  EXPECT_EQ(steps, (std::vector<std::pair<int, int>>{{1, 3}, {2, 3}, {3, 3}}));
}

TEST_F(Chizu_out, PutsEachPictureIntoItsOwnSlot) {
  const std::array<const char*, 9> stems{"54380750", "54380700", "54380755", "54380705", "54390050",
                                         "54390000", "53387750", "53387755", "53397050"};
  for (std::size_t slot = 0; slot < 9; ++slot) put_picture(stems[slot], 10 + static_cast<int>(slot), 4);
  select("54380750");
  EXPECT_EQ(holders(), "111111111");
  for (std::size_t slot = 0; slot < 9; ++slot) EXPECT_EQ(mosaic.picture[slot].width(), 10 + static_cast<int>(slot));
}

}  // namespace
