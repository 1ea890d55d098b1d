// A clinometer behind a pseudo-terminal. Either it has a memory and answers every command, or it plays a conversation.
#include <atomic>
#include <cstdlib>
#include <iostream>
#include <string>

#include "emulator/conversation.h"
#include "emulator/program.h"
#include "emulator_clinometer/clinometer_memory.h"

namespace {

constexpr int end_of_command = 60;  // milliseconds of silence: "o1" may yet become "o123"
constexpr int look_again = 200;

constexpr const char* usage =
    "emulator_clinometer [--link <program folder>/ports/comNN] [--records <n>] [--first <n>]\n"
    "                    [--baud <n>]\n"
    "emulator_clinometer [--link <program folder>/ports/comNN] --conversation <file>\n"
    "Prints the device's path and speaks until it is ended.\n";

struct Choices {
  std::string link;
  std::string conversation;
  int records = 24;
  int first = 1;
  int baud = 9600;
  bool understood = true;
};

Choices choices_of(int argc, char** argv) {
  Choices choices;
  for (int i = 1; i < argc; i += 2) {
    const std::string name = argv[i];
    if (i + 1 == argc)
      choices.understood = false;
    else if (name == "--link")
      choices.link = argv[i + 1];
    else if (name == "--conversation")
      choices.conversation = argv[i + 1];
    else if (name == "--records")
      choices.records = std::atoi(argv[i + 1]);
    else if (name == "--first")
      choices.first = std::atoi(argv[i + 1]);
    else if (name == "--baud")
      choices.baud = std::atoi(argv[i + 1]);
    else
      choices.understood = false;
  }
  return choices;
}

// What arrives until the line is silent for a moment.
std::string command_from(emulator::Pseudo_terminal& line, const std::atomic<bool>& stop) {
  std::string command = line.read(look_again);
  while (!command.empty() && !stop) {
    const std::string more = line.read(end_of_command);
    if (more.empty()) break;
    command += more;
  }
  return command;
}

bool answer_commands(emulator::Pseudo_terminal& line, const Choices& choices, const std::atomic<bool>& stop) {
  while (!stop) {
    const std::string answer = emulator::answer_to(command_from(line, stop), choices.records, choices.first);
    if (!emulator::send_at(line, answer, choices.baud, stop) && !stop) return false;
  }
  return true;
}

bool play(emulator::Pseudo_terminal& line, const std::string& path, const std::atomic<bool>& stop) {
  const emulator::Conversation conversation = emulator::conversation_of_file(path);
  if (!conversation.fault.empty()) {
    std::cerr << path << ": no step of a conversation: " << conversation.fault << '\n';
    return false;
  }
  return emulator::converse(line, conversation, stop);
}

}  // namespace

int main(int argc, char** argv) {
  const Choices choices = choices_of(argc, argv);
  if (!choices.understood) {
    std::cerr << usage;
    return 2;
  }
  return emulator::speak_at(choices.link, [&](emulator::Pseudo_terminal& line, const std::atomic<bool>& stop) {
    return choices.conversation.empty() ? answer_commands(line, choices, stop) : play(line, choices.conversation, stop);
  });
}
