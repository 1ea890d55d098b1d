#include "instruments/track_log.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <fstream>
#include <iterator>

#include "instruments/data_place.h"

namespace {

using namespace instruments;
using Texts = std::vector<std::string>;

struct Track_log : testing::Test, support::Data_place {
  std::string target = folder.text() + "\\track.NME";
  bool press() {
    return Command16(context(), list, [&] { return target; });
  }
};

TEST_F(Track_log, HoldsTheTickedRowsThatHaveAPosition) {
  show_three();
  EXPECT_TRUE(press());
  EXPECT_TRUE(support::same_as_golden(disk.read_bytes(target), "instruments/track_log.nme"));
  EXPECT_TRUE(prompts.shown.empty());
}

TEST_F(Track_log, IsNotWrittenWithoutRows) {
  show({support::plane_alone});
  EXPECT_FALSE(press());
  show_three();
  for (Measurement_row& row : list.rows) row.ticked = false;
  speak("English");
  EXPECT_FALSE(press());
  EXPECT_EQ(prompts.shown, (Texts{"選択されたデータがありません。", "There is no selected data."}));
  EXPECT_EQ(disk.length(target), 0);
}

TEST_F(Track_log, TellsThatItCouldNotBeWritten) {
  show_three();
  files.failing_write = 1;
  EXPECT_FALSE(press());
  EXPECT_EQ(prompts.shown, Texts{"保存できません: " + target});
  target.clear();
  EXPECT_FALSE(press());
  EXPECT_EQ(prompts.shown.size(), 1u);
}

TEST(Track_log_coordinate, FillsTheFractionFromTheLeft) {
  EXPECT_EQ(track_log_coordinate("3541.1234"), "3541.01234");
  EXPECT_EQ(track_log_coordinate("3541.12345"), "3541.12345");
  EXPECT_EQ(track_log_coordinate("3541.123456"), "3541.23456");
  EXPECT_EQ(track_log_coordinate("3541."), "3541.00000");
  EXPECT_EQ(track_log_coordinate("3541"), "3541.00000");
}

TEST(Track_log_lines, GoNineHoursBackIntoTheDayBefore) {
  const Texts lines = track_log_lines("3,P,N,1E,,,,2008/03/01 08:59:59,,,,,,,,,,3500.0,N,13500.0,E");
  ASSERT_EQ(lines.size(), 2u);
  EXPECT_EQ(lines[1], "$GPRMC,235959.00,A,3500.00000,N,13500.00000,E,0.00,0,290208,,");
}

TEST(Track_log_lines, StayOnTheDayAtNine) {
  const Texts lines = track_log_lines("3,P,N,1E,,,,2008/03/01 09:00:00,,,,,,,,,,3500.0,S,13500.0,W");
  ASSERT_EQ(lines.size(), 2u);
  EXPECT_EQ(lines[0], "$GPGGA,000000.00,3500.00000,S,13500.00000,W,1,08,,,M,,M,,");
}

TEST(Track_log_lines, AreNoneForADateThatDoesNotExist) {
  EXPECT_TRUE(track_log_lines("3,P,N,1E,,,,2008/02/30 09:00:00,,,,,,,,,,3500.0,N,13500.0,E").empty());
  EXPECT_TRUE(track_log_lines("3,P,N,1E,,,,,,,,,,,,,,3500.0,N,13500.0,E").empty());
}

// The reader takes the sentences as two points of a track, at the places that the padded minutes tell.
TEST_F(Track_log, IsReadByGpsbabel) {
  if (std::system("gpsbabel -V") != 0) GTEST_SKIP() << "gpsbabel is not installed";
  show_three();
  ASSERT_TRUE(press());
  const std::string log = disk.native_path(target), table = (folder.path() / "read.csv").string();
  ASSERT_EQ(std::system(("gpsbabel -t -i nmea -f \"" + log + "\" -o unicsv -F \"" + table + "\"").c_str()), 0);
  std::ifstream in(table);
  const std::string read{std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
  // 35 + 41.01234 / 60 and 139 + 45.06789 / 60; 35 + 42.00005 / 60 and 139 + 46.00025 / 60
  EXPECT_NE(read.find("1,35.683539,139.751132,"), std::string::npos) << read;
  EXPECT_NE(read.find("2008/11/15,01:20:30"), std::string::npos) << read;
  EXPECT_NE(read.find("2,35.700001,139.766671,"), std::string::npos) << read;
  EXPECT_NE(read.find("2008/12/31,18:04:05"), std::string::npos) << read;
  EXPECT_EQ(read.find("\n3,"), std::string::npos) << read;
}

}  // namespace
