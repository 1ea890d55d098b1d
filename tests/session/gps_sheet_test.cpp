#include "core/session/gps_sheet.h"

#include <gmock/gmock.h>

namespace {

using session::Gps_sheet;

// 35°30'00" N 139°15'07" E: first level 53 (35.5 x 1.5) and 39; second level 2 (10 minutes into the 40 by fives) and
// 2 (15 minutes by seven and a half); in the south and west half of that cell: 53392200.
constexpr double latitude = 35.5, longitude = 139 + 15.1234 / 60;

struct Gps_sheets : testing::Test {
  session::Sheet_list sheets;
  maps::Catalogue catalogue;

  Gps_sheets() {
    sheets.List2 = {"533921", "533922", "53392150", "53392200"};
    sheets.List1 = sheets.List2;
    catalogue.rows[1] = {
        .code = "533921", .name = "隣村", .corners = {}, .lat_a = {}, .lon_a = {}, .lat_b = {}, .lon_b = {}};
    catalogue.rows[2] = {
        .code = "533922", .name = "八王子", .corners = {}, .lat_a = {}, .lon_a = {}, .lat_b = {}, .lon_b = {}};
    catalogue.sheet_count = 2;
    catalogue.row_of_code = {{"533921", 1}, {"533922", 2}};
  }
  Gps_sheet at(const std::string& current, double lon = longitude, double lat = latitude) {
    return session::gps_sheet(sheets, catalogue, current, lon, lat);
  }
};

TEST_F(Gps_sheets, StaysOnTheShownSheet) {
  const Gps_sheet sheet = at("533922");
  EXPECT_EQ(sheet.found, Gps_sheet::Found::shown);
  EXPECT_EQ(sheet.Label16, "八王子");
  EXPECT_EQ(sheet.wanted, "533922.bmp");
  EXPECT_EQ(session::data_path_text(sheet, "C:\\map"), "C:\\map");
}

TEST_F(Gps_sheets, FindsAnotherWholeSheetAndAnotherQuarter) {
  EXPECT_EQ(at("533921").found, Gps_sheet::Found::listed);
  EXPECT_EQ(at("533921").row, 1);
  EXPECT_EQ(at("53392150").row, 3);
  EXPECT_EQ(at("53392150").wanted, "53392200.bmp");
  EXPECT_EQ(at("53392150").Label16, "八王子");
}

TEST_F(Gps_sheets, IsOutsideWhereTheListHasNoSuchSheet) {
  const Gps_sheet sheet = at("533922", 141, 43);
  EXPECT_EQ(sheet.found, Gps_sheet::Found::outside);
  EXPECT_EQ(sheet.row, -1);
  EXPECT_EQ(sheet.Label16, "");
  EXPECT_EQ(session::data_path_text(sheet, "C:\\map"), "範囲外");
}

TEST_F(Gps_sheets, FollowsNothingWithoutASheetOrFromAPictureOfAnyName) {
  EXPECT_EQ(at("").found, Gps_sheet::Found::none);
  EXPECT_EQ(at("free picture").found, Gps_sheet::Found::none);
  EXPECT_EQ(session::data_path_text(at(""), "C:\\map"), "C:\\map");
}

TEST_F(Gps_sheets, IsOutsideForWhatIsNoPlaceOnEarth) {
  for (const double wild : {0.0, -1.0, 181.0, 1e30, 1e305, -1e305})
    EXPECT_EQ(at("533922", wild, wild).found, Gps_sheet::Found::outside) << wild;
}

// A table may name a sheet that has no picture in the folder.
TEST_F(Gps_sheets, NamesASheetThatIsNotInTheList) {
  sheets.List2 = sheets.List1 = {"533921"};
  const Gps_sheet sheet = at("533921");
  EXPECT_EQ(sheet.found, Gps_sheet::Found::outside);
  EXPECT_EQ(sheet.Label16, "八王子");
}

}  // namespace
