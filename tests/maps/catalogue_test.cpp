#include "maps/catalogue.h"

#include <gtest/gtest.h>

#include "maps/map_place.h"
#include "platform/failures.h"

namespace {

using maps::Catalogue;
using maps::Corner_texts;

constexpr int tokyo = 0, wgs84 = 1;
const std::string row_543817 =
    "543817,杉沢,3,4,5,6,7,360500.0,1390000.0,360511.5,1385948.4,12,361000.0,1385230.0,361011.5,1385218.4";

struct Zumei_read : testing::Test {
  support::Map_place place;
  Catalogue catalogue;
  std::string language;

  void read(int option5 = 0, int datum = tokyo) {
    maps::zumei_read(place.files, catalogue, place.program, option5, datum, language);
  }
};

TEST_F(Zumei_read, TakesTheColumnsOfTheTokyoDatum) {
  place.put_lines("ZUMEI.CSV", {row_543817});
  read();
  ASSERT_EQ(catalogue.sheet_count, 1);
  EXPECT_EQ(catalogue.rows[1].code, "543817");
  EXPECT_EQ(maps::catalogue_corners(catalogue.rows[1]),
            (Corner_texts{"N361000.0", "E1385230.0", "N360500.0", "E1390000.0"}));
}

TEST_F(Zumei_read, TakesTheOtherColumnsAfterAChangeOfTheDatum) {
  place.put_lines("ZUMEI.CSV", {row_543817});
  read();
  read(0, wgs84);
  ASSERT_EQ(catalogue.sheet_count, 1);
  EXPECT_EQ(maps::catalogue_corners(catalogue.rows[1]),
            (Corner_texts{"N361011.5", "E1385218.4", "N360511.5", "E1385948.4"}));
}

TEST_F(Zumei_read, NamesASheetByItsCodeInEnglishWhateverTheCase) {
  place.put_lines("ZUMEI.CSV", {row_543817});
  for (const char* word : {"English", "ENGLISH", "english"}) {
    place.put_lines("Language.set", {word});
    read();
    EXPECT_EQ(language, word);
    EXPECT_EQ(catalogue.rows[1].name, "543817");
  }
  place.put_lines("Language.set", {"Japanese"});
  read();
  EXPECT_EQ(catalogue.rows[1].name, "杉沢");
}

TEST_F(Zumei_read, ReadsTheTableOfTheFiftyThousandths) {
  place.put_lines("map50000\\50000.CSV", {"NI-54,万場,,,,,,,,,,36,10,0.5,138,45,1,,,,,,,36,0,2,139,0,3.25"});
  read(1);
  ASSERT_EQ(catalogue.sheet_count, 1);
  const maps::Sheet_row& row = catalogue.rows[1];
  EXPECT_EQ(row.code, "NI-54");
  EXPECT_EQ(row.name, "万場");
  EXPECT_EQ(row.lat_a.degrees, 36);
  EXPECT_EQ(row.lat_a.minutes, 10);
  EXPECT_EQ(row.lat_a.seconds, 0.5);
  EXPECT_EQ(row.lon_a.degrees, 138);
  EXPECT_EQ(row.lon_a.seconds, 1);
  EXPECT_EQ(row.lat_b.seconds, 2);
  EXPECT_EQ(row.lon_b.degrees, 139);
  EXPECT_EQ(row.lon_b.seconds, 3.25);
}

TEST_F(Zumei_read, KeepsWhatWasLoadedWhereTheTableIsMissing) {
  place.put_lines("ZUMEI.CSV", {row_543817});
  read();
  read(1);
  EXPECT_EQ(catalogue.sheet_count, 1);
  EXPECT_EQ(maps::catalogue_row(catalogue, "543817"), 1);
}

TEST_F(Zumei_read, StartsAtRowOneAtEachLoad) {
  place.put_lines("ZUMEI.CSV", {"1,a", "2,b", "3,c"});
  read();
  place.put_lines("ZUMEI.CSV", {"9,z"});
  read();
  EXPECT_EQ(catalogue.sheet_count, 1);
  EXPECT_EQ(maps::catalogue_row(catalogue, "9"), 1);
  EXPECT_EQ(maps::catalogue_row(catalogue, "2"), 0);
}

TEST_F(Zumei_read, CountsEveryLineAndTakesTheFirstOfTwoRowsWithOneCode) {
  place.put_lines("Language.set", {"Japanese"});
  place.put_lines("ZUMEI.CSV", {"543817,甲", "", "543817,乙"});
  read();
  EXPECT_EQ(catalogue.sheet_count, 3);
  EXPECT_EQ(maps::catalogue_row(catalogue, "543817"), 1);
  EXPECT_EQ(maps::chikeizu_name_get(catalogue, "543817.bmp", "Japanese").display, "甲");
  EXPECT_EQ(maps::catalogue_row(catalogue, ""), 0);
}

TEST_F(Zumei_read, GivesEmptyCornersForAShortRow) {
  place.put_lines("ZUMEI.CSV", {"543817,杉沢"});
  read();
  EXPECT_EQ(maps::catalogue_corners(catalogue.rows[1]), (Corner_texts{"N", "E", "N", "E"}));
}

TEST_F(Zumei_read, LosesTheFieldsBeyondTheFiftieth) {
  std::string line = row_543817;
  for (int i = 0; i < 200; ++i) line += ",x";
  place.put_lines("ZUMEI.CSV", {line});
  read();
  EXPECT_EQ(catalogue.rows[1].corners.lat_b, "360500.0");
}

TEST_F(Zumei_read, FailsAtTheRowBeyondTheTableAndKeepsTheRowsBefore) {
  place.put_lines("ZUMEI.CSV", std::vector<std::string>(5001, "1,a"));
  EXPECT_THROW(read(), platform::Subscript_failure);
  EXPECT_EQ(catalogue.sheet_count, 5000);
  EXPECT_EQ(catalogue.rows[5000].name, "1");
}

TEST_F(Zumei_read, SurvivesABinaryTable) {
  std::string bytes;
  for (int i = 0; i < 100'000; ++i) bytes += static_cast<char>(i * 7919 % 255 + (i % 41 == 0));
  place.put("ZUMEI.CSV", bytes);
  EXPECT_NO_THROW(read());
}

struct Chikeizu_name_get : Zumei_read {
  void SetUp() override {
    place.put_lines("Language.set", {"Japanese"});
    place.put_lines("ZUMEI.CSV", {row_543817, "53393500,自分の図"});
    read();
  }
  std::string name(const std::string& file, const std::string& word = "Japanese") {
    return maps::chikeizu_name_get(catalogue, file, word).display;
  }
};

TEST_F(Chikeizu_name_get, GivesTheNameOfARow) {
  EXPECT_EQ(name("543817.bmp"), "杉沢");
  EXPECT_EQ(name("53393500.bmp"), "自分の図");  // a row of its own comes before the quarter rule
}

TEST_F(Chikeizu_name_get, NamesTheFourQuarters) {
  EXPECT_EQ(name("54381700.bmp"), "杉沢南西部");
  EXPECT_EQ(name("54381750.bmp"), "杉沢北西部");
  EXPECT_EQ(name("54381705.bmp"), "杉沢南東部");
  EXPECT_EQ(name("54381755.bmp"), "杉沢北東部");
}

TEST_F(Chikeizu_name_get, AppendsTheDigitsInEnglish) {
  EXPECT_EQ(name("54381705.bmp", "English"), "杉沢05");
  place.put_lines("Language.set", {"English"});
  read();
  EXPECT_EQ(name("54381755.bmp", "English"), "54381755");
}

TEST_F(Chikeizu_name_get, GivesTheBareStemWhereThereIsNoRow) {
  EXPECT_EQ(name("99999900.bmp"), "99999900");
  EXPECT_EQ(name("54381712.bmp"), "54381712");  // none of the four quarters
  EXPECT_EQ(name("free picture.bmp"), "free picture");
  EXPECT_EQ(name("543817xx.bmp"), "543817xx");
}

TEST_F(Chikeizu_name_get, CutsTheStemAtTheFirstPoint) {
  EXPECT_EQ(maps::chikeizu_name_get(catalogue, "543817.old.bmp", "Japanese").stem, "543817");
  EXPECT_EQ(name("543817.old.bmp"), "杉沢");
  EXPECT_EQ(maps::chikeizu_name_get(catalogue, "543817", "Japanese").stem, "");
  EXPECT_EQ(name("543817"), "");
  EXPECT_EQ(name(""), "");
}

// 36 degrees 6 minutes 1 second, 138 degrees 56 minutes 20 seconds: first level 54 38; 361 s above 36 degrees is step
// 1, 3380 s above 138 degrees step 7; 61 s and 230 s into the cell are the southern and the eastern half.
const maps::Dms latitude{36, 6, 1}, longitude{138, 56, 20};

TEST(Sheet_at, NamesTheWholeAndTheQuarterSheet) {
  EXPECT_EQ(maps::sheet_at(latitude, longitude, 6), "543817.bmp");
  EXPECT_EQ(maps::sheet_at(latitude, longitude, 8), "54381705.bmp");
}

TEST(Sheet_at, HasNoNameForOtherLengthsAndPlaces) {
  EXPECT_EQ(maps::sheet_at(latitude, longitude, 7), "");
  EXPECT_EQ(maps::sheet_at({1e30, 0, 0}, longitude, 6), "");
}

}  // namespace
