#include "instruments/replay.h"

#include <gmock/gmock.h>

#include "instruments/receiver_place.h"

namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

struct Replay : testing::Test, support::Route_place {
  support::Fed_port port;
  instruments::Replay_boxes boxes;
  std::vector<std::string> lines;
};

TEST_F(Replay, ReadsAtMostAHundredLines) {
  EXPECT_THAT(instruments::gps_data_r(files, folder.text()), IsEmpty());
  std::vector<std::string> stored;
  for (int i = 1; i <= 101; ++i) stored.push_back("$GPGSA," + std::to_string(i));
  put_lines(folder.text() + "\\GPS_DATA.DAT", stored);
  lines = instruments::gps_data_r(files, folder.text());
  ASSERT_THAT(lines, SizeIs(100));
  EXPECT_EQ(lines.back(), "$GPGSA,100");
}

TEST_F(Replay, AsksForAPort) {
  EXPECT_FALSE(instruments::replay_Command1(boxes, port, "9600", prompts));
  EXPECT_THAT(prompts.shown, ElementsAre("ポート番号を選択して下さい。"));
  EXPECT_EQ(port.tries, 0);
}

TEST_F(Replay, OpensTheChosenPort) {
  boxes.Combo1 = "13";
  EXPECT_TRUE(instruments::replay_Command1(boxes, port, "4800", prompts));
  EXPECT_EQ(port.number, 13);
  EXPECT_EQ(port.line, "4800,n,8,1");
  instruments::replay_Command2(port);
  EXPECT_FALSE(port.is_open());
}

TEST_F(Replay, SaysThatAPortCantBeOpened) {
  boxes.Combo1 = "3";
  port.present = false;
  EXPECT_FALSE(instruments::replay_Command1(boxes, port, "9600", prompts));
  EXPECT_THAT(prompts.shown, ElementsAre("ポート3を開けません。"));
}

TEST_F(Replay, SendsEveryLineAndRewritesTheGga) {
  clock.time = {2008, 11, 15, 7, 5, 9};
  port.open();
  lines = {"$GPGGA,102031.00,3530.0000,N,13915.1234,W,1,08,1.0,120.0,M,36.0,M,,*6C", "$GPGSA,A,3", "",
           "$GPRMC,102031.00,A"};
  EXPECT_TRUE(instruments::replay_Timer1(boxes, lines, port, clock));
  EXPECT_EQ(boxes.Label2, "07:05:09");
  EXPECT_EQ(
      port.written,
      "$GPGGA,070509.00,3530.0000,S,13915.1234,E,1,08,1.0,120.0,M,36.0,M,,*6C\r$GPGSA,A,3\r\r$GPRMC,102031.00,A\r");
}

TEST_F(Replay, FillsUpAGgaThatIsTooShortAndKeepsAllFieldsOfALongOne) {
  const platform::Date_time now{2008, 11, 15, 23, 59, 59};
  EXPECT_EQ(instruments::replayed("$GPGGA", now), "$GPGGA,235959.00,,S,,E");
  EXPECT_EQ(instruments::replayed("$GPGGA,", now), "$GPGGA,235959.00,,S,,E");
  EXPECT_EQ(instruments::replayed("$GPGGAX,1", now), "$GPGGAX,1");
  std::string longest = "$GPGGA,235959.00,x,S,x,E";
  for (int i = 0; i < 300; ++i) longest += ",7";
  EXPECT_EQ(instruments::replayed(longest, now), longest);
}

TEST_F(Replay, StopsWhenThePortHasGone) {
  lines = {"$GPGSA", "$GPGSA"};
  port.open();
  port.pull();
  EXPECT_FALSE(instruments::replay_Timer1(boxes, lines, port, clock));
  EXPECT_EQ(port.written, "");
  EXPECT_FALSE(instruments::SEND_COMMAND(port, "x"));
}

// 100 lines of 95 characters and the carriage return are 9,600 bytes of 10 bits: 10 seconds at 9,600 baud.
TEST_F(Replay, NeverSendsFasterThanTheLine) {
  EXPECT_EQ(instruments::replay_interval({"$GPGSA"}, "9600"), 1000);
  lines.assign(100, std::string(95, 'x'));
  EXPECT_EQ(instruments::replay_interval(lines, "9600"), 10'000);
  EXPECT_EQ(instruments::replay_interval(lines, "0"), 3'600'000);
}

}  // namespace
