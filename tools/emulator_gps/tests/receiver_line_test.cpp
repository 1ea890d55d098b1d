#include <gmock/gmock.h>

#include <QTest>

#include "emulator/tests/line_end.h"
#include "emulator_gps/receiver_log.h"
#include "instruments/gps_tick.h"
#include "platform/clock.h"
#include "platform/files.h"
#include "platform/qt/qt_serial_port.h"
#include "support/golden.h"
#include "support/places.h"
#include "support/temporary_folder.h"

namespace {

using instruments::Gps_light;

// A receiver of the walk that speaks ten times a second at the far end of com04, and ticks as often at the near end.
struct Receiver : testing::Test {
  support::Temporary_folder folder;
  platform::Disk_files files;
  platform::System_clock clock;
  platform::Qt_serial_port port{files, folder.text()};
  core::Interaction flags;
  core::Settings_boxes boxes;
  instruments::Gps gps;
  std::vector<Gps_light> lights;
  int moves = 0;

  static emulator::Conversation walk(emulator::Receiver_choices choices) {
    choices.every = 100;
    choices.baud = 0;
    return emulator::receiver_conversation(support::bytes_of(support::in_checkout("tools/emulator_gps/walk.nmea")),
                                           choices);
  }
  void start() { instruments::gps_start(gps, flags, port, boxes, clock); }
  bool ticks_until(const std::function<bool()>& reached, int milliseconds = 20'000) {
    return QTest::qWaitFor(
        [&] {
          moves += instruments::Timer2(gps, flags, port, clock).moved;
          if (lights.empty() || lights.back() != gps.light) lights.push_back(gps.light);
          return reached();
        },
        milliseconds);
  }
};

TEST_F(Receiver, IsSoughtFoundLostAndFoundAgain) {
  const support::Line_end end(folder.path(), "com04", walk({.again = false}));
  ASSERT_TRUE(end.plugged_in);
  start();
  ASSERT_TRUE(ticks_until([&] { return gps.light == Gps_light::no_fix; }));
  EXPECT_EQ(gps.Label7, "GPS:検索中");
  ASSERT_TRUE(ticks_until([&] { return gps.light == Gps_light::fix; }));
  EXPECT_EQ(gps.Label7, "GPS:補足");
  ASSERT_TRUE(ticks_until([&] { return gps.light == Gps_light::no_fix; }));
  // The walk's last point, 39 steps of a hundredth of a minute from 35°30' and 139°14.9'.
  ASSERT_TRUE(ticks_until([&] { return gps.latitude > 35 + 30.385 / 60; }));
  EXPECT_NEAR(gps.latitude, 35 + 30.39 / 60, 1e-9);
  EXPECT_NEAR(gps.longitude, 139 + 15.29 / 60, 1e-9);
  EXPECT_GE(moves, 10);
  ASSERT_TRUE(ticks_until([&] { return gps.light == Gps_light::lost; }));
  instruments::gps_stop(gps, flags, port);
  EXPECT_FALSE(port.is_open());
}

TEST_F(Receiver, IsDoubtedWhereTheLineChangedADigit) {
  const support::Line_end end(folder.path(), "com04", walk({.garbage = 3, .wrong = 1}));
  start();
  ASSERT_TRUE(ticks_until([&] { return gps.light == Gps_light::doubtful; }));
  EXPECT_GT(gps.latitude, 35 + 30.99 / 60);  // a minute too far north
}

TEST_F(Receiver, ComesBackAfterItWasPulledAndPutBack) {
  const support::Line_end end(folder.path(), "com04", walk({.pulled = 40}));
  start();
  ASSERT_TRUE(ticks_until([&] { return gps.light == Gps_light::fix; }));
  ASSERT_TRUE(ticks_until([&] { return gps.light == Gps_light::closed; }));
  EXPECT_FALSE(port.is_open());
  ASSERT_TRUE(ticks_until([&] { return gps.light == Gps_light::fix; }));
  EXPECT_LE(gps.b.size(), instruments::buffer_limit);
}

TEST_F(Receiver, IsOpenedWhenItIsPluggedInAfterTheStart) {
  start();
  EXPECT_EQ(gps.light, Gps_light::closed);
  const support::Line_end end(folder.path(), "com04", walk({}));
  ASSERT_TRUE(ticks_until([&] { return gps.light == Gps_light::fix; }));
}

TEST_F(Receiver, RecordedOnesAreHeardThroughTheLine) {
  const std::string log = support::bytes_of(support::shared_data("nmea/iTrek.log"));
  if (log.empty()) GTEST_SKIP() << "no recorded receivers beside this tree";
  const support::Line_end end(folder.path(), "com04", emulator::receiver_conversation(log, {.every = 100, .baud = 0}));
  start();
  ASSERT_TRUE(ticks_until([&] { return gps.light == Gps_light::fix; }));
  EXPECT_NEAR(gps.latitude, 35 + 19.90265 / 60, 0.00196 / 60);
}

}  // namespace
