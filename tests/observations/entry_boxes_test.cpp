#include "observations/entry_boxes.h"

#include <gtest/gtest.h>

#include "observations/observation_place.h"

namespace {

using namespace observations;

const std::string full_line =
    "1,-1234.5,6789.25,120,地層面,砂岩,N15W,30E,081115-001*3,a.xls,●,4,1,2,3,4,5,6,1,1,2008/11/15 09:30:00,5,N40E,1,7,"
    "8,";

Record full_record() {
  return record_of({full_line, {}});
}

TEST(Entry_boxes, ShowARecord) {
  Entry_boxes boxes;
  boxes_from_record(boxes, full_record());
  EXPECT_EQ(boxes.Text14,
            (std::array<std::string, 8>{"-1234.5", "6789.25", "120", "5", "N40E", "N15W", "30E", "081115-001"}));
  EXPECT_EQ(boxes.Text13, "3");
  EXPECT_EQ(boxes.Combo1, "●");
  EXPECT_EQ(boxes.Combo3, "4");
  EXPECT_EQ(boxes.Combo6, "砂岩");
  EXPECT_EQ(boxes.Combo7, "地層面");
  EXPECT_EQ(boxes.Label3, "a.xls");
  EXPECT_EQ(boxes.Shape1, (Colour{1, 2, 3}));
  EXPECT_EQ(boxes.Shape4, (Colour{4, 5, 6}));
  EXPECT_TRUE(boxes.Check7);
  EXPECT_TRUE(boxes.Check9);
}

TEST(Entry_boxes, GiveTheRecordBack) {
  Entry_boxes boxes;
  boxes_from_record(boxes, full_record());
  Record record = full_record();
  record_from_boxes(record, boxes);
  EXPECT_EQ(record, full_record());
}

TEST(Entry_boxes, LeaveTheColumnsThatNoBoxShows) {
  Record record = full_record();
  record_from_boxes(record, {});
  EXPECT_EQ(record.decl_flag2, "1");
  EXPECT_EQ(record.keisoku_jikoku, "2008/11/15 09:30:00");
  EXPECT_EQ(record.vertices.size(), 1u);
  EXPECT_EQ(record.henkaku_done, "0");
  EXPECT_EQ(record.touroku_no, "");
  EXPECT_EQ(record.keisoku_no, "");
}

TEST(Entry_boxes, AreTrimmedWhereTheColumnsAre) {
  Entry_boxes boxes;
  boxes.Text14 = {"1", "2", " 3 ", " 4 ", " 5 ", " N6W ", " 7 ", " 8 "};
  boxes.Text13 = " 9 ";
  Record record;
  record_from_boxes(record, boxes);
  EXPECT_EQ(record.Z, " 3 ");
  EXPECT_EQ(record.sen_keisha, "4");
  EXPECT_EQ(record.sen_houkou, "5");
  EXPECT_EQ(record.soukou, "N6W");
  EXPECT_EQ(record.keisha, "7");
  EXPECT_EQ(record.touroku_no, "8*9");
  EXPECT_EQ(record.keisoku_no, "9");
}

TEST(Entry_boxes, KeepStrayBytesOfTextsThatDidNotChange) {
  platform::Text_line line;
  line.text = platform::decode_932("0,1,2,z\x81,o\x81,", &line.unmapped);
  Record record = record_of(line);
  Entry_boxes boxes;
  boxes_from_record(boxes, record);
  EXPECT_EQ(characters_not_stored(boxes, record, ""), "");
  boxes.Combo7 = "露頭";
  record_from_boxes(record, boxes);
  const platform::Text_line written = line_of(record);
  EXPECT_TRUE(platform::encode_932(written.text, &written.unmapped).starts_with(" 0 ,1.0,2.0,z\x81,\x98\x49\x93\xAA,"));
}

TEST(Entry_boxes, NameTheCharactersThatTheFileCanNotHold) {
  Entry_boxes boxes;
  boxes.Combo6 = "砂岩😀";
  boxes.memo = "a,b\n✓";
  EXPECT_EQ(characters_not_stored(boxes, {}, ""), "😀✓");
  EXPECT_EQ(characters_not_stored(boxes, {}, boxes.memo), "😀");
  boxes.Combo6 = "砂岩,泥岩";
  EXPECT_EQ(characters_not_stored(boxes, {}, boxes.memo), ",");
  boxes.Combo6 = "砂岩\n泥岩";
  EXPECT_EQ(characters_not_stored(boxes, {}, boxes.memo), "(CR LF)");
}

TEST(Entry_boxes, FillTheListsOnceInTheLanguageOfThatMoment) {
  Entry_boxes boxes;
  fill_mark_lists(boxes, "English");
  fill_mark_lists(boxes, "Japanese");
  ASSERT_EQ(boxes.Combo1_list.size(), 13u);
  EXPECT_EQ(boxes.Combo1_list[10], "Area");
  EXPECT_EQ(boxes.Combo3_list.size(), 10u);
  EXPECT_EQ(boxes.Combo1, "circle");
  EXPECT_EQ(boxes.Combo3, "2");
  boxes.Combo1 = "square";
  fill_mark_lists(boxes, "English");
  EXPECT_EQ(boxes.Combo1, "square");
}

TEST(Entry_boxes, ReadPositionsByTheirNumericPrefix) {
  Entry_boxes boxes;
  boxes.Text14[box_X] = "12 3.5m";
  EXPECT_EQ(position_of(boxes).x, 123.5);
  EXPECT_EQ(position_of(boxes).y, 0);
  position_to_boxes(boxes, {13886245.414, 0});
  EXPECT_EQ(boxes.Text14[box_X], "13886245.41");
  EXPECT_EQ(boxes.Text14[box_Y], "0.0");
}

}  // namespace
