#include "instruments/tiltvane_boxes.h"

#include <gtest/gtest.h>

#include "support/memory_files.h"

namespace {

const std::string program = "C:\\program";

TEST(Tiltvane_boxes, HoldTheDefaultsWhereNothingWasSaved) {
  support::Memory_files files;
  const instruments::Tiltvane_boxes boxes = instruments::Tiltvane_boxes_r(files, program);
  EXPECT_EQ(boxes.Combo8, "05");
  EXPECT_EQ(boxes.Text15, "999");
  EXPECT_EQ(boxes.Text1, "0");
  EXPECT_EQ(boxes.Check3, 0);
  EXPECT_FALSE(boxes.Check8 || boxes.Check1);
}

TEST(Tiltvane_boxes, TakeTheLinesThatTheSmallDialogWroteAndKeepTheRest) {
  support::Memory_files files;
  files.write_whole(program + "\\RSPORT.dat", "11\r\n024\r\n");
  const instruments::Tiltvane_boxes boxes = instruments::Tiltvane_boxes_r(files, program);
  EXPECT_EQ(boxes.Combo8, "11");
  EXPECT_EQ(boxes.Text15, "024");
  EXPECT_EQ(boxes.Text1, "0");
}

TEST(Tiltvane_boxes, TakeTheSavedDeclinationBeforeThatOfTheLink) {
  support::Memory_files files;
  files.write_whole(program + "\\RSPORT.dat", "11\r\n024\r\na\r\nb\r\nc\r\n\r\n\r\n\r\n\r\n\r\n\r\n-6.5\r\n1\r\n");
  EXPECT_EQ(instruments::Tiltvane_boxes_r(files, program).Text1, "-6.5");
  EXPECT_EQ(instruments::Tiltvane_boxes_r(files, program).FileGPS, "c");
  files.write_whole(program + "\\henkaku.dat", "-7.25\r\n");
  EXPECT_EQ(instruments::Tiltvane_boxes_r(files, program).Text1, "-7.25");
}

}  // namespace
