#include "instruments/nmea.h"

#include <gmock/gmock.h>

#include "instruments/in_pieces.h"
#include "instruments/receiver_place.h"

namespace {

using instruments::Nmea;

Nmea split(std::string_view text) {
  Nmea nmea;
  instruments::nmea_split(text, nmea);
  return nmea;
}

TEST(Nmea_split, CountsFieldsFromOneAndLeavesTheRestEmpty) {
  const Nmea nmea = split("$GPGGA,102031.00,,N");
  EXPECT_EQ(nmea.count, 4);
  EXPECT_EQ(nmea.field(1), "$GPGGA");
  EXPECT_EQ(nmea.field(3), "");
  EXPECT_EQ(nmea.field(4), "N");
  EXPECT_EQ(nmea.field(200), "");
  EXPECT_EQ(split("").count, 1);
}

TEST(Nmea_split, KeepsTwoHundredFieldsOfThreeHundred) {
  std::string text = "0";
  for (int i = 1; i < 300; ++i) text += "," + std::to_string(i);
  const Nmea nmea = split(text);
  EXPECT_EQ(nmea.count, 200);
  EXPECT_EQ(nmea.field(200), "199");
}

TEST(Nmea_split, LeavesNothingOfALongerTextBehind) {
  Nmea nmea;
  instruments::nmea_split("a,b,c", nmea);
  instruments::nmea_split("d", nmea);
  EXPECT_EQ(nmea.field(1), "d");
  EXPECT_EQ(nmea.field(2), "");
  EXPECT_EQ(nmea.field(3), "");
}

// 139 degrees and 15.1234 minutes: 500,400 + 907.404 seconds.
TEST(Nmea_angle, CutsDegreesAtFixedCharacters) {
  EXPECT_DOUBLE_EQ(instruments::longitude_seconds("13915.1234"), 501'307.404);
  EXPECT_DOUBLE_EQ(instruments::latitude_seconds("3530.0000"), 127'800);
  EXPECT_DOUBLE_EQ(instruments::latitude_seconds("4907.85331"), 176'871.1986);
}

TEST(Nmea_angle, MakesOfAMalformedFieldWhatItsCharactersGive) {
  EXPECT_EQ(instruments::longitude_seconds(""), 0);
  EXPECT_EQ(instruments::longitude_seconds("abc"), 0);
  EXPECT_EQ(instruments::latitude_seconds("35"), 126'000);
  EXPECT_EQ(instruments::latitude_seconds("3"), 10'800);
  EXPECT_EQ(instruments::latitude_seconds("-3530.0"), -10'800 + 31'800);  // "-3" degrees and "530.0" minutes
}

TEST(Nmea_angle, IsZeroBeyondEveryNumber) {
  EXPECT_EQ(instruments::longitude_seconds("1399e307"), 0);
}

TEST(Nmea_padded, PutsNoughtsBetweenThePointAndTheDigits) {
  EXPECT_EQ(instruments::padded_angle("3519.9046"), "3519.09046");
  EXPECT_EQ(instruments::padded_angle("3519.9"), "3519.00009");
  EXPECT_EQ(instruments::padded_angle("3519"), "3519.00000");
  EXPECT_EQ(instruments::padded_angle("13915.12345"), "13915.12345");
  EXPECT_EQ(instruments::padded_angle("13915.123456"), "13915.123456");
  EXPECT_EQ(instruments::padded_angle(""), ".00000");
}

TEST(Nmea_sound, TakesAWholeSentenceWithItsChecksumOrWithout) {
  EXPECT_TRUE(instruments::is_sound(support::gga_here));
  EXPECT_TRUE(instruments::is_sound("$GPGGA,102031.00,3530.0,N,13915.1234,E,1,08,,,M,,M,,"));
  EXPECT_TRUE(instruments::is_sound("$GPGGA,102031.00,3530,N,13915,E,2"));
}

TEST(Nmea_sound, DoubtsWhatNoReceiverSends) {
  for (const char* sentence :
       {"$GPGGA,102031.00,3530.0000,N,13915.1235,E,1,08,1.0,120.0,M,36.0,M,,*6C",  // a digit changed on the way
        "$GPGGA,1,3530.0,N,13915.0,E,1*",
        "$GPGGA,1,3530.0,N,13915.0,E,1*zz",
        "$GPGGA,1,3530.0,N,13915.0,E,1*123",
        "$GPGGA,1,-3530.0,N,13915.0,E,1",
        "$GPGGA,1,35300,N,13915.0,E,1",
        "$GPGGA,1,3530.0x,N,13915.0,E,1",
        "$GPGGA,1,3560.0,N,13915.0,E,1",
        "$GPGGA,1,9000.1,N,13915.0,E,1",
        "$GPGGA,1,3530.0,N,18000.1,E,1",
        "$GPGGA,1,3530.0,N,915.0,E,1",
        "$GPGGA,1,3530.0,N,,E,1",
        "$GPGGA,1,3530.0,S,13915.0,E,1",
        "$GPGGA,1,3530.0,N,13915.0,W,1",
        "$GPGGA,1,3530.0,N,13915.0,E,0",
        "$GPGGA,1,3530.0,N,13915.0,E,",
        "$GPGGA,1,3530.0,N,13915.0,E",
        "$GPGGA",
        "*",
        ""})
    EXPECT_FALSE(instruments::is_sound(sentence)) << sentence;
}

TEST(Nmea_sound, LooksNoFurtherThanTheLine) {
  EXPECT_TRUE(instruments::is_sound(support::gga_here + "noise*00\r\n"));
}

// The lines that hold anything.
std::vector<std::string> lines_in(support::In_pieces& files, bool* whole = nullptr) {
  std::vector<std::string> lines;
  const bool read = instruments::each_log_line(files, "a", [&](std::string_view line) {
    if (!line.empty()) lines.emplace_back(line);
    return true;
  });
  if (whole) *whole = read;
  return lines;
}

TEST(Each_log_line, IsTheSameWhereverThePiecesEnd) {
  support::In_pieces files;
  files.bytes = "one\r\ntwo\nthree\rfour";
  for (files.size = 1; files.size < 30; ++files.size)
    EXPECT_EQ(lines_in(files), (std::vector<std::string>{"one", "two", "three", "four"})) << files.size;
  files.bytes +=
      "\r\n\x1a"
      "five\r\n";
  for (files.size = 1; files.size < 30; ++files.size) EXPECT_EQ(lines_in(files).size(), 4U) << files.size;
}

TEST(Each_log_line, KeepsTheBeginningOfALineWithoutAnEnd) {
  support::In_pieces files;
  files.size = 1000;
  files.bytes = "$GPGGA," + std::string(3'000'000, 'x') + "\r\nnext\r\n";
  const std::vector<std::string> lines = lines_in(files);
  ASSERT_EQ(lines.size(), 2U);
  EXPECT_EQ(lines[0].size(), instruments::longest_log_line);
  EXPECT_EQ(lines[1], "next");
}

TEST(Each_log_line, ReadsNoFurtherThanItIsAsked) {
  support::In_pieces files;
  files.size = 10;
  files.bytes = std::string(50'000, '\n');
  EXPECT_TRUE(instruments::each_log_line(files, "a", [](std::string_view) { return false; }));
  EXPECT_EQ(files.handed, 0);
}

TEST(Each_log_line, SaysThatAFileEndedInAFailure) {
  support::In_pieces files;
  files.bytes = "one\r\n";
  files.fails = true;
  bool whole = true;
  lines_in(files, &whole);
  EXPECT_FALSE(whole);
  files.bytes.clear();
  lines_in(files, &whole);
  EXPECT_TRUE(whole);  // there is nothing to read
}

TEST(Nmea_line, EndsAtEveryKindOfLineEnd) {
  std::string_view rest =
      "a\r\nb\nc\rd\x1a"
      "e";
  std::vector<std::string> lines;
  while (!rest.empty()) lines.emplace_back(instruments::take_line(rest));
  EXPECT_THAT(lines, testing::ElementsAre("a", "b", "c", "d"));
}

}  // namespace
