#include "maps/frame_file.h"

#include <gtest/gtest.h>

#include "maps/map_place.h"

namespace {

using maps::Corner_texts;
using maps::frame_of_line;

const Corner_texts sheet{"N361000.0", "E1385230.0", "N360500.0", "E1390000.0"};

TEST(Frame_of_line, ReadsTheLayoutWithoutLetters) {
  EXPECT_EQ(frame_of_line("138,52,30,36,10,0,139,0,0,36,5,0"), sheet);
}

TEST(Frame_of_line, ReadsTheLayoutWithLetters) {
  EXPECT_EQ(frame_of_line("E,138,52,30,N,36,10,0,E,139,0,0,N,36,5,0"), sheet);
}

TEST(Frame_of_line, TakesLettersInEitherCase) {
  EXPECT_EQ(frame_of_line("e,138,52,30,n,36,10,0,e,139,0,0,n,36,5,0"), sheet);
  EXPECT_EQ(frame_of_line("w,1,2,3,s,4,5,6.5,W,7,8,9,S,10,11,12"),
            (Corner_texts{"S040506.5", "W0010203.0", "S101112.0", "W0070809.0"}));
}

TEST(Frame_of_line, TakesNorthAndEastForALetterThatIsNone) {
  EXPECT_EQ(frame_of_line("E,138,52,30,,36,10,0,x,139,0,0,?,36,5,0"), sheet);
}

TEST(Frame_of_line, ReadsBlanksAroundNumbers) {
  EXPECT_EQ(frame_of_line(" 138 , 52 , 30 , 36 , 10 , 0 , 139 , 0 , 0 , 36 , 5 , 0 "), sheet);
}

TEST(Frame_of_line, MakesBadAndMissingNumbersNothing) {
  EXPECT_EQ(frame_of_line(""), (Corner_texts{"N000000.0", "E0000000.0", "N000000.0", "E0000000.0"}));
  EXPECT_EQ(frame_of_line("138,52"), (Corner_texts{"N000000.0", "E1385200.0", "N000000.0", "E0000000.0"}));
  EXPECT_EQ(frame_of_line("abc,1e300,30,x,,0"), (Corner_texts{"N000000.0", "E0000030.0", "N000000.0", "E0000000.0"}));
}

TEST(Frame_read, ReadsTheFirstLineOnly) {
  support::Map_place place;
  place.put_lines("map\\a.set", {"138,52,30,36,10,0,139,0,0,36,5,0", "1,2,3"});
  Corner_texts corners;
  EXPECT_TRUE(maps::frame_read(place.files, place.in("map\\a.set"), corners));
  EXPECT_EQ(corners, sheet);
}

TEST(Frame_read, LeavesTheCornersWhereThereIsNoFile) {
  support::Map_place place;
  place.put("map\\empty.set", "");
  Corner_texts corners = sheet;
  EXPECT_FALSE(maps::frame_read(place.files, place.in("map\\none.set"), corners));
  EXPECT_FALSE(maps::frame_read(place.files, place.in("map\\empty.set"), corners));
  EXPECT_EQ(corners, sheet);
}

TEST(Frame_read, SurvivesABinaryFile) {
  support::Map_place place;
  std::string bytes;
  for (int i = 0; i < 4096; ++i) bytes += static_cast<char>(i * 37 % 251 + 1);
  place.put("map\\a.set", bytes);
  Corner_texts corners;
  maps::frame_read(place.files, place.in("map\\a.set"), corners);
  maps::Canvas canvas;
  maps::zahyo_r3(canvas, corners);
  EXPECT_EQ(canvas.map_w, canvas.map_w);  // a number
}

}  // namespace
