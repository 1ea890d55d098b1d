#include "soak/watchdog.h"

#include <gmock/gmock.h>

#include <chrono>

namespace {

void pause(int milliseconds) {
  std::this_thread::sleep_for(std::chrono::milliseconds(milliseconds));
}

TEST(Watchdog, TellsOfEachBlockOnce) {
  soak::Run_log log;
  soak::Watchdog dog{log};
  dog.longest = 1;
  soak::watch(dog);
  pause(2500);  // on a busy machine longer, and still one block
  soak::watch_end(dog);
  EXPECT_EQ(dog.blocks, 1);
  EXPECT_GT(dog.worst, 1.0);
  ASSERT_EQ(log.faults.size(), 1u);
  EXPECT_THAT(log.faults.front(), testing::HasSubstr("no event was taken"));
}

TEST(Watchdog, SaysNothingOfAProgramThatTakesEvents) {
  soak::Run_log log;
  soak::Watchdog dog{log};
  dog.longest = 10;
  soak::watch(dog);
  for (int i = 0; i < 10; ++i) {
    pause(50);
    soak::beat(dog);
  }
  soak::watch_end(dog);
  EXPECT_EQ(dog.blocks, 0);
  EXPECT_TRUE(log.faults.empty());
}

}  // namespace
