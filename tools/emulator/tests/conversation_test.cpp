#include "emulator/conversation.h"

#include <gmock/gmock.h>

#include <chrono>
#include <filesystem>

#include "emulator_clinometer/clinometer_memory.h"
#include "support/temporary_folder.h"

namespace {

using emulator::conversation_of;
using emulator::Step_kind;

TEST(Conversation, ReadsItsSteps) {
  const emulator::Conversation talk = conversation_of(
      "# a comment\r\n\r\n> o1\r\n< 001,L\nraw EN\\r\\n\\x41\\\\\nwait 500\nbaud 9600\nrepeat 2 < "
      "#,P\nunplug\nopen\nagain");
  EXPECT_EQ(talk.fault, "");
  ASSERT_EQ(talk.steps.size(), 9u);
  EXPECT_EQ(talk.steps[0].kind, Step_kind::expect);
  EXPECT_EQ(talk.steps[0].text, "o1");
  EXPECT_EQ(talk.steps[1].text, "001,L\r\n");
  EXPECT_EQ(talk.steps[2].text, "EN\r\nA\\");
  EXPECT_EQ(talk.steps[3].number, 500);
  EXPECT_EQ(talk.steps[4].kind, Step_kind::baud);
  EXPECT_EQ(talk.steps[5].text, "1,P\r\n2,P\r\n");
  EXPECT_EQ(talk.steps[6].kind, Step_kind::unplug);
  EXPECT_EQ(talk.steps[7].kind, Step_kind::plug);
  EXPECT_EQ(talk.steps[8].kind, Step_kind::again);
}

TEST(Conversation, NamesTheFirstLineThatIsNoStep) {
  for (const char* line : {"wait", "wait soon", "wait -1", "shout", "repeat 3", "repeat x < a", ">o1"})
    EXPECT_EQ(conversation_of(std::string("> o1\n") + line + "\nshout").fault, line);
  EXPECT_NE(emulator::conversation_of_file("no such file").fault, "");
}

TEST(Conversation, SendsNoFasterThanItsLine) {
  emulator::Pseudo_terminal line;
  ASSERT_TRUE(line.plug_in());
  const std::atomic<bool> stop = false;
  const auto start = std::chrono::steady_clock::now();
  EXPECT_TRUE(emulator::send_at(line, std::string(960, 'x'), 9600, stop));  // 960 bytes of ten bits: a second
  EXPECT_GE(std::chrono::steady_clock::now() - start, std::chrono::milliseconds(900));
}

TEST(Pseudo_terminal, LinksItsNearEndWhileItIsPluggedIn) {
  const support::Temporary_folder folder;
  const std::string link = (folder.path() / "ports" / "com05").string();
  {
    emulator::Pseudo_terminal line(link);
    ASSERT_TRUE(line.plug_in());
    EXPECT_EQ(std::filesystem::read_symlink(link).string(), line.path());
    line.unplug();
    EXPECT_FALSE(std::filesystem::is_symlink(link));
    EXPECT_TRUE(line.plug_in());
  }
  EXPECT_FALSE(std::filesystem::is_symlink(link));
}

TEST(Clinometer_memory, AnswersAReadWithSoManyRecordsAndEnd) {
  EXPECT_EQ(emulator::answer_to("o1", 24), emulator::memory_line(1) + "\r\nEND\r\n");
  const std::string all = emulator::answer_to("o999", 999);
  EXPECT_EQ(std::count(all.begin(), all.end(), '\n'), 1000);
  EXPECT_TRUE(all.ends_with("\r\nEND\r\n"));
  EXPECT_EQ(emulator::answer_to("o999", 3), emulator::answer_to("o003", 24));
  EXPECT_EQ(emulator::answer_to("o2", 24, 301),
            emulator::memory_line(301) + "\r\n" + emulator::memory_line(302) + "\r\nEND\r\n");
  EXPECT_EQ(emulator::answer_to("x1", 24), "");
  EXPECT_EQ(emulator::answer_to("o", 24), "");
}

TEST(Clinometer_memory, FormsSixteenColumns) {
  for (int number = 1; number <= 999; ++number) {
    const std::string line = emulator::memory_line(number);
    EXPECT_EQ(std::count(line.begin(), line.end(), ','), 15) << line;
  }
}

}  // namespace
