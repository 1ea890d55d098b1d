// A GPS receiver behind a pseudo-terminal: plays a recorded log, with faults where they are wanted, or a conversation.
#include <atomic>
#include <cstdlib>
#include <fstream>
#include <iostream>
#include <iterator>
#include <map>
#include <string>

#include "emulator/conversation.h"
#include "emulator/program.h"
#include "emulator_gps/receiver_log.h"

namespace {

constexpr const char* usage =
    "emulator_gps [--link <program folder>/ports/comNN] --log <file of sentences> [--every <ms>] [--baud <n>] "
    "[--once]\n"
    "             [--silent <n>] [--cut <n>] [--garbage <n>] [--wrong <n>] [--pulled <n>]\n"
    "emulator_gps [--link <program folder>/ports/comNN] --conversation <file>\n"
    "Prints the device's path and speaks until it is ended. A fault befalls every n-th burst of sentences.\n";

struct Choices {
  std::string link, log, conversation;
  emulator::Receiver_choices receiver;
  bool understood = true;
};

Choices choices_of(int argc, char** argv) {
  Choices choices;
  emulator::Receiver_choices& receiver = choices.receiver;
  const std::map<std::string, std::string*> texts{
      {"--link", &choices.link}, {"--log", &choices.log}, {"--conversation", &choices.conversation}};
  const std::map<std::string, int*> numbers{{"--every", &receiver.every},     {"--baud", &receiver.baud},
                                            {"--silent", &receiver.silent},   {"--cut", &receiver.cut},
                                            {"--garbage", &receiver.garbage}, {"--wrong", &receiver.wrong},
                                            {"--pulled", &receiver.pulled}};
  for (int i = 1; i < argc; ++i) {
    const std::string name = argv[i];
    if (name == "--once")
      receiver.again = false;
    else if (i + 1 < argc && texts.count(name) > 0)
      *texts.at(name) = argv[++i];
    else if (i + 1 < argc && numbers.count(name) > 0)
      *numbers.at(name) = std::atoi(argv[++i]);
    else
      choices.understood = false;
  }
  if (choices.log.empty() == choices.conversation.empty()) choices.understood = false;
  return choices;
}

emulator::Conversation conversation_of(const Choices& choices) {
  if (!choices.conversation.empty()) return emulator::conversation_of_file(choices.conversation);
  std::ifstream file(choices.log, std::ios::binary);
  if (!file) return {{}, "can't read it"};
  return emulator::receiver_conversation(std::string(std::istreambuf_iterator<char>(file), {}), choices.receiver);
}

}  // namespace

int main(int argc, char** argv) {
  const Choices choices = choices_of(argc, argv);
  if (!choices.understood) {
    std::cerr << usage;
    return 2;
  }
  const emulator::Conversation conversation = conversation_of(choices);
  if (!conversation.fault.empty()) {
    std::cerr << choices.log << choices.conversation << ": " << conversation.fault << '\n';
    return 1;
  }
  return emulator::speak_at(choices.link, [&](emulator::Pseudo_terminal& line, const std::atomic<bool>& stop) {
    return emulator::converse(line, conversation, stop);
  });
}
