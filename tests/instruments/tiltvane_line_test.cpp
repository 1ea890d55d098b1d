#include "instruments/tiltvane_line.h"

#include <gmock/gmock.h>

#include <string>
#include <vector>

#include "drawing/text_split.h"

namespace {

using instruments::converted_line;
using instruments::reconverted_line;

// Column `column` of a line, counted from 1.
std::string column(const std::string& line, int column) {
  std::vector<std::string> fields(instruments::line_columns);
  drawing::split_csv(line, fields);
  return fields[static_cast<std::size_t>(column - 1)];
}
int columns(const std::string& line) {
  std::vector<std::string> fields(instruments::line_columns);
  return drawing::split_csv(line, fields);
}

// The declination of -7 turns 340 (N20W) to 333, which the bands read as N27W, and a dip of 30E keeps its side.
constexpr const char* plane = "12,P,N20W,30E,3,0,0,2008/11/15 10:20:30,1,0,0,A,3541.1234,N,13945.6789,E";
constexpr const char* lineation = "13,L,N20W,30E,3,N40E,25N,2008/11/15 10:21:30,2,0,0,V,,,,";

TEST(Tiltvane_line, ConvertsARecordToTrueNorth) {
  EXPECT_EQ(converted_line(plane, "-7"),
            "12,P,N20W,30E,3,  ,  ,2008/11/15 10:20:30,1,0,0,N27W,30E,3,  ,  ,-7,3541.1234,N,13945.6789,E,-7");
}

// 40 - 7 = 33: N33E, and a plunge whose letter "N" lies on the left of the azimuth turns it by 180 before: 220 - 7 =
// 213, which reads N33E with the letter W, cut off.
TEST(Tiltvane_line, ConvertsTheLineationAndCutsThePlungesLetter) {
  const std::string line = converted_line(lineation, "-7");
  EXPECT_EQ(column(line, 6), "N40E");
  EXPECT_EQ(column(line, 7), "25N");
  EXPECT_EQ(column(line, 15), "N33E");
  EXPECT_EQ(column(line, 16), "25");
}

TEST(Tiltvane_line, ShowsTwoBlanksForTheLineationOfAnyOtherMode) {
  for (const char* mode : {"P", "", "l", "LL", "?", " L"}) {
    const std::string line =
        converted_line(std::string("1,") + mode + ",N20W,30E,3,N40E,25N,2008/11/15 10:20:30,1,0,5,V", "-7");
    for (const int lineation_column : {6, 7, 15, 16}) EXPECT_EQ(column(line, lineation_column), "  ") << mode;
  }
}

// The instrument added 5: N20W (340) was measured as 335, N25W; with -7 it lies at 328, N32W. The lineation at 40 was
// 35. A second conversion begins at the result of the first.
TEST(Tiltvane_line, TakesTheInstrumentsDeclinationOffFirst) {
  const std::string line = converted_line("1,L,N20W,30E,3,N40E,25E,2008/11/15 10:20:30,1,0,5,V", "-7");
  EXPECT_EQ(column(line, 3), "N25W");
  EXPECT_EQ(column(line, 4), "30E");
  EXPECT_EQ(column(line, 6), "N35E");
  EXPECT_EQ(column(line, 7), "25E");
  EXPECT_EQ(column(line, 11), "0");
  EXPECT_EQ(column(line, 12), "N32W");
  EXPECT_EQ(column(line, 15), "N28E");
  EXPECT_EQ(column(line, 16), "25");
}

TEST(Tiltvane_line, TurnsTheLineationFromTheResultOfTheRemoval) {
  // 40 with "25W" falls left: 220. Less 5: 215, N35E with "25W". Less 7: 208, N28E with "25W"; column 7 stays.
  const std::string line = converted_line("1,L,N20W,30E,3,N40E,25W,t,1,0,5,V", "-7");
  EXPECT_EQ(column(line, 6), "N35E");
  EXPECT_EQ(column(line, 7), "25W");
  EXPECT_EQ(column(line, 15), "N28E");
  EXPECT_EQ(column(line, 16), "25");
}

TEST(Tiltvane_line, KeepsTheMarkOfARecordWithoutAPlane) {
  for (const char* set : {"0", "5"}) {
    const std::string line = converted_line(std::string("1,L,-0-,0,3,N40E,25E,t,1,0,") + set + ",V", "-7");
    EXPECT_EQ(column(line, 3), "-0-");
    EXPECT_EQ(column(line, 4), "0");
    EXPECT_EQ(column(line, 12), "");
    EXPECT_EQ(column(line, 13), "");
    EXPECT_EQ(column(line, 14), "3");
  }
}

TEST(Tiltvane_line, LeavesALineationEmptyThatWasNotMeasured) {
  for (const char* set : {"0", "5"})
    for (const char* azimuth : {"0", "", "-0-", " "}) {
      const std::string line =
          converted_line(std::string("1,L,N20W,30E,3,") + azimuth + ",0,t,1,0," + set + ",V", "-7");
      EXPECT_EQ(column(line, 6), std::string(azimuth) == "0" ? "" : azimuth);
      EXPECT_EQ(column(line, 15), "") << azimuth << set;
      EXPECT_EQ(column(line, 16), "") << azimuth << set;
    }
}

TEST(Tiltvane_line, TakesThePositionByTheGpsState) {
  const auto positions = [](const std::string& state) {
    const std::string line = converted_line("1,P,N20W,30E,3,0,0,t,1,0,0," + state + ",3541.1,N,13945.6,E", "0");
    return column(line, 18) + "|" + column(line, 19) + "|" + column(line, 20) + "|" + column(line, 21);
  };
  EXPECT_EQ(positions("A"), "3541.1|N|13945.6|E");
  EXPECT_EQ(positions(" A "), "3541.1|N|13945.6|E");
  EXPECT_EQ(positions("V"), "-|-|-|-");
  EXPECT_EQ(positions(""), "|||");
  EXPECT_EQ(positions("a"), "|||");
}

TEST(Tiltvane_line, PrintsAtLeastTwentyOneColumnsAndAllThatCame) {
  EXPECT_EQ(columns(converted_line("1,P,N20W", "-7")), 22);
  EXPECT_EQ(columns(converted_line(plane, "-7")), 22);
  const std::string longer = converted_line(std::string(plane) + ",17,18,19,20,21,22,twenty-three", "-7.25");
  EXPECT_EQ(columns(longer), 24);
  EXPECT_EQ(column(longer, 17), "-7.25");
  EXPECT_EQ(column(longer, 22), "22");
  EXPECT_EQ(column(longer, 23), "twenty-three");
  EXPECT_EQ(column(longer, 24), "-7.25");
}

TEST(Tiltvane_line, DropsWhatGoesBeyondFiveHundredColumns) {
  const std::string line = converted_line(plane + std::string(1000, ','), "-7");
  EXPECT_EQ(std::count(line.begin(), line.end(), ','), 500);
  EXPECT_TRUE(line.ends_with(",-7"));
  EXPECT_EQ(reconverted_line(line, "-7"), line);
}

TEST(Tiltvane_line, WritesTheDeclinationAsItWasTyped) {
  const std::string line = converted_line(plane, "-7.250 W");
  EXPECT_EQ(column(line, 17), "-7.250 W");
  EXPECT_TRUE(line.ends_with(",-7.250 W"));
  EXPECT_EQ(column(line, 12), "N27.25W");
}

TEST(Tiltvane_line, WorksASavedLineOutAnewFromItsMagneticColumns) {
  const std::string saved = converted_line(plane, "-7");
  EXPECT_EQ(reconverted_line(saved, "-6"),
            "12,P,N20W,30E,3,  ,  ,2008/11/15 10:20:30,1,0,0,N26W,30E,3,  ,  ,-6,3541.1234,N,13945.6789,E,-6");
  EXPECT_EQ(reconverted_line(saved, "-7"), saved);
  const std::string with_lineation = converted_line(lineation, "-7");
  EXPECT_EQ(reconverted_line(with_lineation, "-7"), with_lineation);
  EXPECT_EQ(column(reconverted_line(with_lineation, "0"), 15), "N40E");
}

TEST(Tiltvane_line, KeepsTheLastColumnOfASavedLineWithoutAClosingText) {
  const std::string cut = "1,P,N20W,30E,3,  ,  ,t,1,0,0,N27W,30E,3,  ,  ,-7,3541.1,N,13945.6,E";
  EXPECT_EQ(reconverted_line(cut, "-7"), cut + ",-7");
}

TEST(Tiltvane_line, KnowsItsHeadersAndTheOlderForm) {
  EXPECT_TRUE(instruments::is_measurement_header(instruments::measurement_header(true)));
  EXPECT_TRUE(instruments::is_measurement_header(instruments::measurement_header(false)));
  EXPECT_TRUE(instruments::is_measurement_header("計測NO,計測モード,走向"));
  EXPECT_FALSE(instruments::is_measurement_header(plane));
  EXPECT_EQ(columns(instruments::measurement_header(true)), 21);
  EXPECT_EQ(columns(instruments::measurement_header(false)), 21);
}

TEST(Tiltvane_line, NamesFilesByNumbersDateAndTime) {
  const platform::Date_time time{2008, 11, 15, 10, 20, 30};
  EXPECT_EQ(instruments::measurement_file_name("1", "123", time), "001-123_2008-11-15_10-20-30.csv");
  EXPECT_EQ(instruments::measurement_file_name(" 7 ", "1234", {2009, 1, 2, 3, 4, 5}),
            "007-234_2009-01-02_03-04-05.csv");
  EXPECT_EQ(instruments::measurement_file_name("a/b", "c:\\", time), "a-b-c--_2008-11-15_10-20-30.csv");
  EXPECT_EQ(instruments::three_digits("走向"), "0走向");
  EXPECT_EQ(instruments::three_digits(""), "000");
}

}  // namespace
