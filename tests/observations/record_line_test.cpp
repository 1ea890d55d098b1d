#include "observations/record_line.h"

#include <gtest/gtest.h>

#include "observations/observation_place.h"
#include "platform/failures.h"

namespace {

using observations::line_of;
using observations::Record;
using observations::record_of;

Record record(const std::string& text) {
  return record_of({text, {}});
}

TEST(Record_line, ReadsEveryColumnOfASimplePoint) {
  const Record point = record(support::simple_point);
  EXPECT_EQ(point.boundary, 1);
  EXPECT_EQ(point.X, -1234.5);
  EXPECT_EQ(point.Y, 6789.25);
  EXPECT_EQ(point.Z, "120");
  EXPECT_EQ(point.taishou, "露頭");
  EXPECT_EQ(point.chisou, "砂岩");
  EXPECT_EQ(point.soukou, "N15W");
  EXPECT_EQ(point.keisha, "30E");
  EXPECT_EQ(point.touroku_no, "081115-001*3");
  EXPECT_EQ(point.keisoku_no, "3");
  EXPECT_EQ(point.gazou, "");
  EXPECT_EQ(point.mark, "○");
  EXPECT_EQ(point.size, 2);
  EXPECT_EQ(point.R, 255);
  EXPECT_EQ(point.henkaku_done, "0");
  EXPECT_TRUE(point.vertices.empty());
}

TEST(Record_line, PutsTheColumnsBehindTheColoursInTheirPlaces) {
  const Record line = record("0,1,2,,,,,,,sheet.xls,●,3,1,2,3,4,5,6,1,1,2005/10/03 08:24:37,12,N40E,1,7.5,-8,");
  EXPECT_EQ(line.gazou, "sheet.xls");
  EXPECT_EQ(line.size, 3);
  EXPECT_EQ(line.R, 1);
  EXPECT_EQ(line.G, 2);
  EXPECT_EQ(line.B, 3);
  EXPECT_EQ(line.R2, 4);
  EXPECT_EQ(line.G2, 5);
  EXPECT_EQ(line.B2, 6);
  EXPECT_EQ(line.henkaku_done, "1");
  EXPECT_EQ(line.decl_flag2, "1");
  EXPECT_EQ(line.keisoku_jikoku, "2005/10/03 08:24:37");
  EXPECT_EQ(line.sen_keisha, "12");
  EXPECT_EQ(line.sen_houkou, "N40E");
  ASSERT_EQ(line.vertices.size(), 1u);
  EXPECT_EQ(line.vertices[0].x, 7.5);
  EXPECT_EQ(line.vertices[0].y, -8);
}

TEST(Record_line, WritesASimplePointAsItWasRead) {
  EXPECT_EQ(line_of(record(support::simple_point)).text, support::simple_point);
}

TEST(Record_line, ReadsNumbersWithoutBlanksToo) {
  EXPECT_EQ(record("1,-1234.5,6789.25,120,露頭,砂岩,N15W,30E,081115-001*3,,○,2,255,0,0,0,0,0,0,,,,,0,"),
            record(support::simple_point));
}

TEST(Record_line, WritesVerticesInTheirShortestForm) {
  Record line = record(support::simple_point);
  line.vertices = {{123.45, 678.9}, {-0.5, 0.1 + 0.2}};
  EXPECT_TRUE(line_of(line).text.ends_with(" 2 , 123.45 , 678.9 ,-0.5 , 0.30000000000000004 ,"));
}

TEST(Record_line, WritesPositionsWithOneOrTwoDecimals) {
  Record point;
  point.X = 13886245.412;
  point.Y = 3578126.895;
  EXPECT_TRUE(line_of(point).text.starts_with(" 0 ,13886245.41,3578126.9,"));
}

TEST(Record_line, TakesAMissingSizeAsTwoAndMissingColumnsAsEmpty) {
  const Record copied = record("1,10,20,30,露頭,砂岩,N15W,30E,081115-001");
  EXPECT_EQ(copied.size, 2);
  EXPECT_EQ(copied.mark, "");
  EXPECT_EQ(copied.R + copied.G + copied.B, 0);
  EXPECT_TRUE(copied.vertices.empty());
  EXPECT_EQ(line_of(copied).text,
            " 1 ,10.0,20.0,30,露頭,砂岩,N15W,30E,081115-001,,, 2 , 0 , 0 , 0 , 0 , 0 , 0 ,,,,,, 0 ,");
}

TEST(Record_line, IsARecordOfEmptyColumnsForAnEmptyLine) {
  const Record empty = record("");
  EXPECT_EQ(empty.X, 0);
  EXPECT_EQ(empty.size, 2);
  EXPECT_EQ(empty.touroku_no, "");
}

TEST(Record_line, StandsALineAtItsFirstVertexInBothLanguages) {
  for (const char* mark : {"線", "Line", "囲み"}) {
    const Record line = record(std::string("0,1,2,,,,,,,,") + mark + ",2,0,0,0,0,0,0,0,,,,,2,5,6,7,8,");
    EXPECT_EQ(line.X, 5) << mark;
    EXPECT_EQ(line.Y, 6) << mark;
  }
  for (const char* mark : {"範囲", "Area", "○"})
    EXPECT_EQ(record(std::string("0,1,2,,,,,,,,") + mark + ",2,0,0,0,0,0,0,0,,,,,2,5,6,7,8,").X, 1) << mark;
}

TEST(Record_line, StandsALineWithoutVerticesAtZero) {
  const Record line = record("0,1,2,,,,,,,,線,2,0,0,0,0,0,0,0,,,,,0,");
  EXPECT_EQ(line.X, 0);
  EXPECT_EQ(line.Y, 0);
}

TEST(Record_line, PutsVerticesThatTheLineDoesNotHoldAtZero) {
  const Record area = record("0,1,2,,,,,,,,範囲,2,0,0,0,0,0,0,0,,,,,3,5,6,");
  ASSERT_EQ(area.vertices.size(), 3u);
  EXPECT_EQ(area.vertices[0].x, 5);
  EXPECT_EQ(area.vertices[2].y, 0);
}

TEST(Record_line, ReadsNoVerticesForACountBelowZero) {
  EXPECT_TRUE(record("0,1,2,,,,,,,,範囲,2,0,0,0,0,0,0,0,,,,,-3,5,6,").vertices.empty());
}

TEST(Record_line, HoldsAHundredAndThirtyEightVerticesAndFailsAtTheNext) {
  std::string line = "0,1,2,,,,,,,,範囲,2,0,0,0,0,0,0,0,,,,,138,";
  for (int i = 1; i <= 138; ++i) line += std::to_string(i) + "," + std::to_string(-i) + ",";
  EXPECT_EQ(record(line).vertices.back().y, -138);
  EXPECT_THROW(record("0,1,2,,,,,,,,範囲,2,0,0,0,0,0,0,0,,,,,139,"), platform::Subscript_failure);
  EXPECT_THROW(record("0,1,2,,,,,,,,範囲,2,0,0,0,0,0,0,0,,,,,1E300,"), platform::Subscript_failure);
}

TEST(Record_line, DropsWhatStandsBehindTheThreeHundredthColumn) {
  EXPECT_EQ(record(support::simple_point + std::string(1'000'000, ',')), record(support::simple_point));
}

TEST(Record_line, TakesBlanksOffTheNotationAndTheNumberOnly) {
  const Record point = record("0,1,2, 3 , a , b , N15W , 30E , 12 , c , ○ ,2,0,0,0,0,0,0,0,,, 5 , N1E ,0,");
  EXPECT_EQ(point.soukou, "N15W");
  EXPECT_EQ(point.keisha, "30E");
  EXPECT_EQ(point.touroku_no, "12");
  EXPECT_EQ(point.sen_keisha, "5");
  EXPECT_EQ(point.sen_houkou, "N1E");
  EXPECT_EQ(point.Z, " 3 ");
  EXPECT_EQ(point.taishou, " a ");
  EXPECT_EQ(point.gazou, " c ");
}

TEST(Record_line, HasNoMeasurementNumberBehindABareStar) {
  EXPECT_EQ(record("0,1,2,,,,,,081115-001*,").keisoku_no, "");
  EXPECT_EQ(record("0,1,2,,,,,,081115-001*4*5,").keisoku_no, "4*5");
  EXPECT_EQ(record("0,1,2,,,,,,081115-001,").keisoku_no, "");
}

TEST(Record_line, GivesBytesWithoutACharacterBackWhereTheyStood) {
  // 85 40 is a code without a character; 81 is a lead byte alone before a comma. One stands behind cut-off blanks.
  const std::string bytes = " 0 ,1.0,2.0,\x85\x40,a\x81,\xFF,N1W\x81,,  9\x81,,, 2 , 0 , 0 , 0 , 0 , 0 , 0 ,,,,,, 0 ,";
  platform::Text_line line;
  line.text = platform::decode_932(bytes, &line.unmapped);
  const platform::Text_line written = line_of(record_of(line));
  EXPECT_EQ(platform::encode_932(written.text, &written.unmapped),
            " 0 ,1.0,2.0,\x85\x40,a\x81,\xFF,N1W\x81,,9\x81,,, 2 , 0 , 0 , 0 , 0 , 0 , 0 ,,,,,, 0 ,");
}

TEST(Record_line, PartsAndJoinsTheNumber) {
  EXPECT_EQ(observations::number_parts(" 081115-001 * 3 ").registration, "081115-001");
  EXPECT_EQ(observations::number_parts(" 081115-001 * 3 ").measurement, "3");
  EXPECT_EQ(observations::number_of({" 081115-001 ", " 3 "}), "081115-001*3");
  EXPECT_EQ(observations::number_of({"081115-001", " "}), "081115-001");
  EXPECT_EQ(observations::number_of({"", "3"}), "*3");
}

TEST(Record_line, FindsAColumn) {
  EXPECT_EQ(observations::column_of("a,b,,d", 1), "a");
  EXPECT_EQ(observations::column_of("a,b,,d", 3), "");
  EXPECT_EQ(observations::column_of("a,b,,d", 4), "d");
  EXPECT_EQ(observations::column_of("a,b,,d", 5), "");
}

}  // namespace
