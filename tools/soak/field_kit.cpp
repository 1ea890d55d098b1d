#include "soak/field_kit.h"

#include <cstdio>
#include <fstream>
#include <functional>
#include <iterator>
#include <vector>

#include "emulator/conversation.h"
#include "emulator/pseudo_terminal.h"
#include "emulator_clinometer/clinometer_memory.h"
#include "emulator_gps/receiver_log.h"

namespace soak {

namespace {

constexpr int look_again = 200, end_of_command = 60;  // milliseconds

// Conversations with a fault each.
const std::vector<std::string> faulty_talks{
    "wait 1000\nagain\n",
    "> o1\nraw \\xFF\\xFE\\x00garbage\nwait 200\nagain\n",
    "> o1\n< 001,L,N20W\nwait 300\nraw EN\nwait 400\nraw D\\r\\nagain\n",
    "> o1\nunplug\nwait 3000\nplug\nagain\n",
};

void speak(Instruments& instruments, int number,
           const std::function<void(emulator::Pseudo_terminal&, const std::atomic<bool>&)>& talk) {
  unplug(instruments, number);
  std::array<char, 16> name{};
  std::snprintf(name.data(), name.size(), "/com%02d", number % 100);
  auto plugged = std::make_unique<Plugged>();
  plugged->thread = std::thread([link = instruments.ports + name.data(), talk, &stop = plugged->stop] {
    emulator::Pseudo_terminal line(link);
    if (line.plug_in()) talk(line, stop);
  });
  instruments.plugged[number] = std::move(plugged);
}

}  // namespace

void plug_clinometer(Instruments& instruments, int number, Random& random) {
  const int records = random.one_in(10) ? 999 : random.between(1, 40);
  const int first = random.between(1, 300), baud = random.one_in(2) ? 0 : 9600;
  const bool faulty = random.one_in(5);
  const std::string& fault = random.of(faulty_talks);
  speak(instruments, number, [=](emulator::Pseudo_terminal& line, const std::atomic<bool>& stop) {
    if (faulty) {
      emulator::converse(line, emulator::conversation_of(fault), stop);
      return;
    }
    while (!stop) {
      std::string command = line.read(look_again);
      if (!command.empty()) command += line.read(end_of_command);  // "o1" may yet become "o123"
      emulator::send_at(line, emulator::answer_to(command, records, first), baud, stop);
    }
  });
}

void plug_receiver(Instruments& instruments, int number, Random& random) {
  emulator::Receiver_choices choices;
  choices.every = random.one_in(2) ? 1000 : 150;
  choices.baud = random.one_in(2) ? 9600 : 0;
  for (int* every_nth : {&choices.silent, &choices.cut, &choices.garbage, &choices.wrong, &choices.pulled})
    if (random.one_in(4)) *every_nth = random.between(2, 20);
  speak(instruments, number, [choices](emulator::Pseudo_terminal& line, const std::atomic<bool>& stop) {
    emulator::converse(line, emulator::receiver_conversation(receiver_log(), choices), stop);
  });
}

void unplug(Instruments& instruments, int number) {
  const auto found = instruments.plugged.find(number);
  if (found == instruments.plugged.end()) return;
  found->second->stop = true;
  found->second->thread.join();
  instruments.plugged.erase(found);
}

void unplug_all(Instruments& instruments) {
  while (!instruments.plugged.empty()) unplug(instruments, instruments.plugged.begin()->first);
}

std::string receiver_log() {
  std::ifstream file(SOAK_RECEIVER_LOG, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

}  // namespace soak
