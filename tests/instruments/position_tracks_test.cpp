#include "instruments/position_tracks.h"

#include <gtest/gtest.h>

#include <cmath>

#include "instruments/data_place.h"
#include "platform/file_time.h"

namespace {

using namespace instruments;

struct Position_tracks : testing::Test, support::Data_place {
  Track track;
  void first(const std::vector<std::string>& lines) {
    put_program("log.csv", lines);
    track_first_r(track, files, folder.text() + "\\log.csv");
  }
  void second(const std::vector<std::string>& lines, double hours = 9) {
    put_program("log.nme", lines);
    track_second_r(track, files, folder.text() + "\\log.nme", hours);
  }
};

// 35 + 41.1234 / 60 = 35.68539 and 139 + 45.6789 / 60 = 139.761315 degrees
TEST_F(Position_tracks, ReadsTheLogOfAFieldLogger) {
  first({"start,1,2", "2008/11/15,012030,3541.1234,N,13945.6789,E,12.5"});
  ASSERT_EQ(track.keys.size(), 1u);
  EXPECT_EQ(track.times[0], "2008/11/15 10:20:30");
  EXPECT_EQ(track.positions[0].x, 13976131.5);
  EXPECT_EQ(track.positions[0].y, 3568539.0);
}

// Day 39767 of the spreadsheets' count is 15 November 2008.
TEST_F(Position_tracks, CountsTheSecondsOfAllDays) {
  first({"2008/11/15,012030,3541.1234,N,13945.6789,E"});
  EXPECT_EQ(track.keys[0], 39767LL * 86400 + 10 * 3600 + 20 * 60 + 30);
  EXPECT_EQ(key_of(*date_time_of("2008/11/15 10:20:30")), track.keys[0]);
}

TEST_F(Position_tracks, CarriesTheDateOverMidnight) {
  first({"2008/12/31,200000,3541.1234,N,13945.6789,E"});
  EXPECT_EQ(track.times[0], "2009/01/01 05:00:00");
  EXPECT_EQ(track.keys[0], key_of({2009, 1, 1, 5, 0, 0}));
}

TEST_F(Position_tracks, LeavesOutLoggerLinesThatAreNoPoints) {
  first({"", "2008/11/15", "2008/02/30,012030,3541.1,N,13945.6,E", "2008/11/15,01203,3541.1,N,13945.6,E",
         "2008/11/15,012460,3541.1,N,13945.6,E", "restart,2008/11/15,012030", "date,time,lat,N,lon,E"});
  EXPECT_TRUE(track.keys.empty());
}

TEST_F(Position_tracks, ReadsTheSentencesOfAReceiver) {
  second(
      {"$GPGGA,012030,3541.1234,N,13945.6789,E,1,08", "$GPRMC,012030.00,A,3541.1234,N,13945.6789,E,0.00,0,151108,,"});
  ASSERT_EQ(track.keys.size(), 1u);
  EXPECT_EQ(track.times[0], "2008/11/15 10:20:30");
  EXPECT_EQ(track.positions[0].x, 13976131.5);
  EXPECT_EQ(track.positions[0].y, 3568539.0);
}

TEST_F(Position_tracks, TakesTheOffsetInHours) {
  second({"$GPRMC,012030,A,3541.1234,N,13945.6789,E,0,0,151108"}, -2);
  EXPECT_EQ(track.times[0], "2008/11/14 23:20:30");
  second({"$GPRMC,012030,A,3541.1234,N,13945.6789,E,0,0,151108"}, 9.5);
  EXPECT_EQ(track.times[1], "2008/11/15 10:50:30");
  EXPECT_EQ(track.keys[1], key_of({2008, 11, 15, 10, 50, 30}));
  second({"$GPRMC,012030,A,3541.1234,N,13945.6789,E,0,0,151108"}, 1e300);
  EXPECT_EQ(track.times[2], "2008/11/15 01:20:30");
}

TEST_F(Position_tracks, LeavesOutSentencesWithoutAPlaceOrATime) {
  second({"$GPRMC,012030,V,,,,,,,151108,,", "$GPRMC,,A,3541.1234,N,13945.6789,E,0,0,151108",
          "$GPRMC,012030,A,3541.1234,N,13945.6789,E,0,0,311108", "$GPRMC,012030,A,3541", "$GPRMC"});
  EXPECT_TRUE(track.keys.empty());
}

TEST_F(Position_tracks, LeavesOutNumbersThatAreNoPlace) {
  second({"$GPRMC,012030,A,3541.1234,N,1391e300,E,0,0,151108", "$GPRMC,012030,A,351e9,N,13945.6789,E,0,0,151108"});
  EXPECT_TRUE(track.keys.empty());
  EXPECT_TRUE(is_place({-13976131.5, 3568539}));
  EXPECT_FALSE(is_place({HUGE_VAL, 0}));
}

TEST_F(Position_tracks, KeepTenThousandPoints) {
  std::vector<std::string> lines(10'000, "2008/11/15,012030,3541.1234,N,13945.6789,E");
  first(lines);
  EXPECT_EQ(track.keys.size(), 10'000u);
  EXPECT_FALSE(track.shortened);
  second({"$GPRMC,012030,A,3541.1234,N,13945.6789,E,0,0,151108"});
  EXPECT_EQ(track.keys.size(), 10'000u);
  EXPECT_TRUE(track.shortened);
}

TEST_F(Position_tracks, HaveNoPointsWithoutAFile) {
  track_first_r(track, files, folder.text() + "\\gone.csv");
  track_second_r(track, files, folder.text(), 9);
  EXPECT_TRUE(track.keys.empty());
}

TEST(Partner_of, IsTheFirstPointLessThanSixteenSecondsAway) {
  Track track;
  track.keys = {1000, 1020, 1018};
  EXPECT_EQ(partner_of(track, 1015), 0);
  EXPECT_EQ(partner_of(track, 1016), 1);
  EXPECT_EQ(partner_of(track, 985), 0);
  EXPECT_EQ(partner_of(track, 984), -1);
  EXPECT_EQ(partner_of(track, 1035), 1);
  EXPECT_EQ(partner_of(track, 1036), -1);
  EXPECT_EQ(partner_of({}, 0), -1);
}

TEST(Date_time_of, ReadsTheInstrumentsTexts) {
  const auto text_of = [](const char* text) {
    const auto time = date_time_of(text);
    return time ? platform::date_time_text(*time) : "none";
  };
  EXPECT_EQ(text_of("2008/11/15 10:20:30"), "2008/11/15 10:20:30");
  EXPECT_EQ(text_of(" 08-1-5  9:05 "), "2008/01/05 09:05:00");
  EXPECT_EQ(text_of("2008/02/29 00:00:00"), "2008/02/29 00:00:00");
  for (const char* none :
       {"", "2008/11/15", "10:20:30", "2009/02/29 00:00:00", "2008/13/01 00:00:00", "2008/00/01 00:00:00",
        "2008/11/15 24:00:00", "2008/11/15 10:60:00", "2008/11/15 10:20:30:40", "2008/11/15/1 10:20", "a/b/c d:e:f",
        "99999/1/1 10:20:30", "2008/11/15 -1:20:30", "0/11/15 10", "０８/11/15 10:20:30"})
    EXPECT_EQ(text_of(none), "none") << none;
}

TEST(Units_of, TakesDegreesAndMinutes) {
  EXPECT_DOUBLE_EQ(units_of("3541.1234", 2), 3568539.0);
  EXPECT_DOUBLE_EQ(units_of("13945.6789", 3), 13976131.5);
  EXPECT_EQ(units_of("", 2), 0);
  EXPECT_EQ(units_of("35", 2), 3500000);
}

TEST(Rounded_position, ReadsAsTheRegistryWouldHaveIt) {
  EXPECT_EQ(rounded_position({13977083.333333, 3570833.335}).x, 13977083.33);
  EXPECT_EQ(rounded_position({13977083.333333, 3570833.335}).y, 3570833.34);
}

}  // namespace
