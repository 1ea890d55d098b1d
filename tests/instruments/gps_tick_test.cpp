#include "instruments/gps_tick.h"

#include <gmock/gmock.h>

#include "instruments/receiver_place.h"
#include "support/golden.h"
#include "support/places.h"

namespace {

using instruments::Gps_light;
using support::gga_here;
using support::gga_without_fix;
using support::gsa;
using support::rmc;

struct Gps : testing::Test {
  support::Fed_port port;
  support::Fixed_clock clock{{2008, 11, 15, 10, 20, 30}};
  core::Interaction flags;
  core::Settings_boxes boxes;
  instruments::Gps gps;

  void start() { instruments::gps_start(gps, flags, port, boxes, clock); }
  instruments::Gps_step tick(const std::string& bytes = {}) {
    port.arrived = bytes;
    return instruments::Timer2(gps, flags, port, clock);
  }
  void wait(int seconds) {
    clock.time.second += seconds;
    clock.time.minute += clock.time.second / 60;
    clock.time.second %= 60;
  }
};

TEST_F(Gps, OpensThePortOfTheBoxesAtTheirSpeed) {
  boxes.Combo4 = "07";
  boxes.Combo5 = "4800";
  start();
  EXPECT_EQ(port.number, 7);
  EXPECT_EQ(port.line, "4800,n,8,1");
  EXPECT_TRUE(port.is_open());
  EXPECT_EQ(flags.gps_running, 1);
  EXPECT_EQ(gps.light, Gps_light::open);
}

TEST_F(Gps, LeavesAnOpenPortAsItIs) {
  port.open();
  start();
  EXPECT_EQ(port.number, 0);
  EXPECT_EQ(port.tries, 1);
}

TEST_F(Gps, PassesOverAPortThatCantBeOpenedAndKeepsItsText) {
  gps.Label7 = "GPS停止中";
  port.present = false;
  start();
  EXPECT_EQ(flags.gps_running, 1);
  EXPECT_EQ(gps.Label7, "GPS停止中");
  EXPECT_EQ(gps.light, Gps_light::closed);
}

TEST_F(Gps, StopsWithItsTextAndWithoutAMark) {
  start();
  tick(gga_here + gsa);
  ASSERT_TRUE(gps.mark.visible);
  instruments::gps_stop(gps, flags, port);
  EXPECT_FALSE(port.is_open());
  EXPECT_EQ(flags.gps_running, 0);
  EXPECT_EQ(gps.Label7, "GPS停止中");
  EXPECT_EQ(gps.light, Gps_light::closed);
  EXPECT_FALSE(gps.mark.visible);
  EXPECT_FALSE(tick(gga_here + gsa).moved);
  EXPECT_EQ(port.arrived, gga_here + gsa);  // not even read
}

// 35°30' and 139°15.1234'
TEST_F(Gps, MovesToThePlaceOfAPairedGga) {
  start();
  const instruments::Gps_step step = tick(gga_here + gsa);
  EXPECT_TRUE(step.moved);
  EXPECT_DOUBLE_EQ(step.longitude, 139 + 15.1234 / 60);
  EXPECT_DOUBLE_EQ(step.latitude, 35.5);
  EXPECT_EQ(gps.Label7, "GPS:補足");
  EXPECT_EQ(gps.light, Gps_light::fix);
  EXPECT_TRUE(gps.mark.visible);
  EXPECT_NEAR(gps.mark.longitude, 13'925'205.6667, 1e-3);
  EXPECT_DOUBLE_EQ(gps.mark.latitude, 3'550'000);
}

TEST_F(Gps, PutsSentencesTogetherThatComeByteByByte) {
  start();
  const std::string all = gga_here + gsa.substr(0, 5);  // up to "$GPGS"
  for (const char byte : all) ASSERT_FALSE(tick({byte}).moved);
  EXPECT_DOUBLE_EQ(tick("A").latitude, 35.5);
}

TEST_F(Gps, WaitsForTheGsaBehindAGga) {
  start();
  EXPECT_FALSE(tick(gga_here).moved);
  EXPECT_EQ(gps.b, gga_here);
  EXPECT_EQ(gps.Label7, "");
  EXPECT_TRUE(tick(gsa).moved);
}

TEST_F(Gps, TakesNoGsaInFrontForTheOneBehind) {
  start();
  EXPECT_FALSE(tick(gsa + gga_here).moved);
  EXPECT_TRUE(tick(gsa).moved);
}

TEST_F(Gps, EmptiesTheBufferAtAnRmc) {
  start();
  EXPECT_FALSE(tick(gga_here + rmc).moved);
  EXPECT_EQ(gps.b, "");
  EXPECT_TRUE(tick(gga_here + gsa + rmc).moved);
  EXPECT_EQ(gps.b, "");
  tick(gga_without_fix + gsa + rmc);
  EXPECT_EQ(gps.b, "");
}

TEST_F(Gps, SearchesWhileTheLatitudeIsEmpty) {
  start();
  EXPECT_FALSE(tick(gga_without_fix + gsa).moved);
  EXPECT_EQ(gps.Label7, "GPS:検索中");
  EXPECT_EQ(gps.light, Gps_light::no_fix);
  EXPECT_FALSE(gps.mark.visible);
}

TEST_F(Gps, FollowsAReceiverThatSendsNoRmc) {
  start();
  EXPECT_TRUE(tick(gga_here + gsa).moved);
  const std::string next = "$GPGGA,102032.00,3531.0000,N,13915.1234,E,1,08,1.0,120.0,M,36.0,M,,\r\n";
  EXPECT_DOUBLE_EQ(tick(next + gsa).latitude, 35 + 31.0 / 60);
  EXPECT_FALSE(tick().moved);  // a used sentence is no new position
}

TEST_F(Gps, KeepsABoundedBufferWhateverComes) {
  start();
  for (int i = 0; i < 200; ++i) {
    tick(std::string(1000, 'x'));
    ASSERT_LE(gps.b.size(), instruments::buffer_limit);
  }
  for (int i = 0; i < 400; ++i) {
    tick(gga_here);
    ASSERT_LE(gps.b.size(), instruments::buffer_limit);
  }
  EXPECT_TRUE(tick(gsa).moved);
}

TEST_F(Gps, MovesByAMalformedSentenceAndDoubtsIt) {
  start();
  const instruments::Gps_step step = tick("$GPGGA,x,lat,N,lon,E,1," + gsa);
  EXPECT_TRUE(step.moved);
  EXPECT_EQ(step.longitude, 0);
  EXPECT_EQ(step.latitude, 0);
  EXPECT_EQ(gps.light, Gps_light::doubtful);
  tick(gga_here + gsa);
  EXPECT_EQ(gps.light, Gps_light::fix);
}

TEST_F(Gps, DoubtsThreeHundredFieldsMissingOnesAndNegativeNumbers) {
  start();
  std::string longest = "$GPGGA";
  for (int i = 0; i < 299; ++i) longest += ",-1";
  for (const std::string& sentence :
       {longest, std::string("$GPGGA,1,3530.0"), std::string("$GPGGA,1,-3530.0,N,-13915.0,E,1"),
        std::string("$GPGGA,1,3530.0,N,13915.0,W,1"), std::string("$GPGGA,1,1e308,N,9e99e308,E,1")}) {
    EXPECT_TRUE(tick(sentence + "\r\n" + gsa + rmc).moved) << sentence;
    EXPECT_EQ(gps.light, Gps_light::doubtful) << sentence;
  }
}

TEST_F(Gps, ShowsBytesAndThenSilenceWithoutASentence) {
  start();
  tick("noise");
  EXPECT_EQ(gps.light, Gps_light::bytes);
  wait(10);
  tick();
  EXPECT_EQ(gps.light, Gps_light::bytes);
  wait(1);
  tick();
  EXPECT_EQ(gps.light, Gps_light::open);
}

TEST_F(Gps, IsLostAfterMoreThanTenSeconds) {
  start();
  tick(gga_here + gsa + rmc);
  wait(10);
  tick();
  EXPECT_EQ(gps.light, Gps_light::fix);
  wait(1);
  tick();
  EXPECT_EQ(gps.light, Gps_light::lost);
  EXPECT_TRUE(gps.mark.visible);  // where the person was last seen
  tick(gga_without_fix + gsa + rmc);
  EXPECT_EQ(gps.light, Gps_light::lost);
  tick(gga_here + gsa + rmc);
  EXPECT_EQ(gps.light, Gps_light::fix);
}

TEST_F(Gps, SaysNoMoreThatItHasAPositionWhenThatIsLostOrTheReceiverIsGone) {
  start();
  tick(gga_here + gsa + rmc);
  wait(11);
  tick();
  EXPECT_EQ(gps.light, Gps_light::lost);
  EXPECT_EQ(gps.Label7, "GPS:検索中");
  tick(gga_here + gsa + rmc);
  EXPECT_EQ(gps.Label7, "GPS:補足");
  port.pull();
  tick();
  EXPECT_EQ(gps.light, Gps_light::closed);
  EXPECT_EQ(gps.Label7, "GPS:検索中");
  port.present = true;
  wait(3);
  tick(gga_here + gsa);
  EXPECT_EQ(gps.Label7, "GPS:補足");
}

// A port that could never be opened leaves the text of before.
TEST_F(Gps, KeepsTheTextOfBeforeWhileThePortCantBeOpened) {
  gps.Label7 = "GPS停止中";
  port.present = false;
  start();
  wait(4);
  tick();
  EXPECT_EQ(gps.light, Gps_light::closed);
  EXPECT_EQ(gps.Label7, "GPS停止中");
}

TEST_F(Gps, SearchesAgainBeforeItIsLost) {
  start();
  tick(gga_here + gsa + rmc);
  wait(5);
  tick(gga_without_fix + gsa + rmc);
  EXPECT_EQ(gps.light, Gps_light::no_fix);
}

TEST_F(Gps, CountsOverMidnightAndAClockSetBack) {
  clock.time = {2008, 12, 31, 23, 59, 58};
  start();
  tick(gga_here + gsa);
  clock.time = {2009, 1, 1, 0, 0, 8};
  tick();
  EXPECT_EQ(gps.light, Gps_light::fix);
  clock.time = {2008, 12, 31, 23, 0, 0};
  tick();
  EXPECT_EQ(gps.light, Gps_light::fix);
  clock.time = {2008, 12, 31, 23, 0, 11};
  tick();
  EXPECT_EQ(gps.light, Gps_light::lost);
}

TEST_F(Gps, ComesBackAfterTheReceiverWasPulled) {
  start();
  tick(gga_here + gsa);
  port.pull();
  tick();
  EXPECT_EQ(gps.light, Gps_light::closed);
  wait(4);
  tick();
  EXPECT_EQ(port.tries, 2);
  tick();
  EXPECT_EQ(port.tries, 2);  // not at every tick
  port.present = true;
  wait(3);
  EXPECT_TRUE(tick(gga_here + gsa).moved);
  EXPECT_EQ(gps.light, Gps_light::fix);
}

TEST_F(Gps, PutsNoSentenceTogetherAcrossAGap) {
  start();
  tick(gga_here);
  port.pull();
  tick();
  port.present = true;
  wait(3);
  EXPECT_FALSE(tick(gsa).moved);
}

TEST(Gps_mark, ShowsAndHides) {
  instruments::Gps_mark mark;
  instruments::GPS_MARK(mark, 1, 13'925'000, 3'550'000);
  EXPECT_TRUE(mark.visible);
  instruments::GPS_MARK(mark, 0, 0, 0);
  EXPECT_FALSE(mark.visible);
  EXPECT_EQ(mark.longitude, 13'925'000);
}

// A sheet with its south-west corner at 139 E, 35 N, ten metres to the second and a unit to the metre, 1000 m high:
// 0.01 degrees (36 seconds) east and north are 360 m each way.
TEST(Gps_mark, StandsWhereThePositionLiesOnTheSheet) {
  maps::Canvas canvas;
  canvas.is_geographic = true;
  canvas.geo_x0 = 13'900'000;
  canvas.geo_y1 = 3'500'000;
  canvas.sec_m_x = canvas.sec_m_y = 10;
  canvas.map_x1 = canvas.map_y1 = 1000;
  canvas.canvas_scale = 1;
  instruments::Gps_mark mark;
  instruments::GPS_MARK(mark, 1, 13'901'000, 3'501'000);
  const maps::Canvas_point at = instruments::gps_mark_at(canvas, mark);
  EXPECT_FLOAT_EQ(at.x, 100 + 360);
  EXPECT_FLOAT_EQ(at.y, 100 + 1000 - 360);
  instruments::GPS_MARK(mark, 1, 0, 0);
  const maps::Canvas_point nowhere = instruments::gps_mark_at(canvas, mark);
  EXPECT_LT(nowhere.x, -1e6);
  EXPECT_GT(nowhere.y, 1e6);
}

struct Recorded : Gps {
  static std::string log(const char* name) {
    return support::bytes_of(support::shared_data(std::string("nmea/") + name));
  }
};

// Handed over in pieces of so many bytes a tick; the log's own sentences lie between 35°19.9007' and 35°19.9046' and
// between 136°40.2631' and 136°40.2637'.
TEST_F(Recorded, ReceiverInGifuStaysOnItsSpot) {
  const std::string bytes = log("iTrek.log");
  if (bytes.empty()) GTEST_SKIP() << "no recorded receivers beside this tree";
  for (const std::size_t piece : {200u, 333u, 960u}) {
    start();
    int moves = 0;
    for (std::size_t at = 0; at < bytes.size(); at += piece) {
      const instruments::Gps_step step = tick(bytes.substr(at, piece));
      if (!step.moved) continue;
      ++moves;
      EXPECT_NEAR(step.longitude, 136 + 40.2634 / 60, 0.00031 / 60);
      EXPECT_NEAR(step.latitude, 35 + 19.90265 / 60, 0.00196 / 60);
    }
    EXPECT_GE(moves, 3) << piece;
    EXPECT_EQ(gps.Label7, "GPS:補足");
  }
}

TEST_F(Recorded, ReceiverInCanadaStartsWithoutAFixAndIsDoubtedInTheWest) {
  const std::string bytes = log("ublox-lea-4h.log");
  if (bytes.empty()) GTEST_SKIP() << "no recorded receivers beside this tree";
  start();
  const std::size_t first = bytes.find("$GPGGA"), fix = bytes.find("$GPGGA,030858.00");
  tick(bytes.substr(first, 300));
  EXPECT_EQ(gps.Label7, "GPS:検索中");
  EXPECT_EQ(gps.light, Gps_light::no_fix);
  gps.b.clear();
  ASSERT_TRUE(tick(bytes.substr(fix, 300)).moved);
  EXPECT_NEAR(gps.latitude, 49 + 7.85331 / 60, 1e-9);
  EXPECT_NEAR(gps.longitude, 122 + 43.19743 / 60, 1e-9);
  EXPECT_EQ(gps.light, Gps_light::doubtful);  // the letter W isn't looked at
}

}  // namespace
