#include "emulator_gps/receiver_log.h"

#include <gmock/gmock.h>

namespace {

using emulator::Receiver_choices;
using emulator::Step_kind;
using testing::ElementsAre;

constexpr const char* log = "# told\r\n$GPGGA,1,3530.0,N\r\n$GPGSA,a\n\n$GPGGA,2,3539.0,N\n@head\n$GPGSA,b";

std::vector<std::string> sent(const emulator::Conversation& conversation) {
  std::vector<std::string> texts;
  for (const emulator::Step& step : conversation.steps)
    if (step.kind == Step_kind::send) texts.push_back(step.text);
  return texts;
}

TEST(Receiver_log, PartsALogIntoBursts) {
  EXPECT_THAT(emulator::bursts_of(log),
              ElementsAre("$GPGGA,1,3530.0,N\r\n$GPGSA,a\r\n", "$GPGGA,2,3539.0,N\r\n$GPGSA,b\r\n"));
}

TEST(Receiver_log, SendsABurstASecondAndBeginsAgain) {
  const emulator::Conversation talk = emulator::receiver_conversation(log, {.baud = 0});
  EXPECT_EQ(talk.fault, "");
  ASSERT_EQ(talk.steps.size(), 6u);
  EXPECT_EQ(talk.steps[2].kind, Step_kind::wait);
  EXPECT_EQ(talk.steps[2].number, 1000);
  EXPECT_EQ(talk.steps[5].kind, Step_kind::again);
}

// 29 bytes of ten bits at 290 baud are a second.
TEST(Receiver_log, CountsTheTimeOnTheLine) {
  EXPECT_EQ(emulator::receiver_conversation(log, {.every = 1500, .baud = 290}).steps[2].number, 500);
  EXPECT_EQ(emulator::receiver_conversation(log, {.every = 500, .baud = 290}).steps[2].number, 0);
}

TEST(Receiver_log, HasEachFaultAtEveryNthBurst) {
  EXPECT_THAT(sent(emulator::receiver_conversation(log, {.silent = 2})), testing::SizeIs(1));
  EXPECT_EQ(sent(emulator::receiver_conversation(log, {.cut = 2}))[1], "$GPGGA,2,3539.0,N\r\n$GPGS");
  EXPECT_EQ(sent(emulator::receiver_conversation(log, {.wrong = 1}))[0], "$GPGGA,1,3531.0,N\r\n$GPGSA,a\r\n");
  EXPECT_EQ(sent(emulator::receiver_conversation(log, {.wrong = 2}))[1], "$GPGGA,2,3538.0,N\r\n$GPGSA,b\r\n");
  EXPECT_THAT(sent(emulator::receiver_conversation(log, {.garbage = 2}))[1], testing::StartsWith("\xFF\x80"));
  const emulator::Conversation pulled = emulator::receiver_conversation(log, {.pulled = 1});
  EXPECT_EQ(pulled.steps[1].kind, Step_kind::unplug);
  EXPECT_EQ(pulled.steps[3].kind, Step_kind::plug);
}

TEST(Receiver_log, SaysThatALogHasNoSentence) {
  EXPECT_NE(emulator::receiver_conversation("# nothing\n", {}).fault, "");
}

}  // namespace
