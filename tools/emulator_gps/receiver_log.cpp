#include "emulator_gps/receiver_log.h"

#include <algorithm>

namespace emulator {
namespace {

constexpr std::size_t kind_length = 6;    // "$GPGGA"
constexpr int put_back_after = 5000;      // milliseconds
constexpr std::size_t minutes_digit = 3;  // of a latitude ddmm.mmmm: the units of the minutes
constexpr std::string_view noise = "\xFF\x80$GP\x01\x7F,,*\r\n";

std::string_view take_line(std::string_view& rest) {
  const std::size_t end = std::min(rest.find('\n'), rest.size());
  std::string_view line = rest.substr(0, end);
  rest.remove_prefix(std::min(end + 1, rest.size()));
  if (line.ends_with('\r')) line.remove_suffix(1);
  return line;
}

bool befalls(int every_nth, std::size_t burst) {
  return every_nth > 0 && (burst + 1) % static_cast<std::size_t>(every_nth) == 0;
}

// The last digit of the latitude's whole minutes in each GGA becomes its neighbour.
void spoil(std::string& burst) {
  for (std::size_t at = burst.find("$GPGGA,"); at != std::string::npos; at = burst.find("$GPGGA,", at + 1)) {
    const std::size_t latitude = burst.find(',', at + kind_length + 1) + 1;
    const std::size_t digit = latitude + minutes_digit;
    if (latitude > 0 && digit < burst.size() && burst[digit] >= '0' && burst[digit] <= '9')
      burst[digit] = burst[digit] == '9' ? '8' : static_cast<char>(burst[digit] + 1);
  }
}

std::string as_sent(std::string burst, std::size_t number, const Receiver_choices& choices) {
  if (befalls(choices.silent, number)) return {};
  if (befalls(choices.wrong, number)) spoil(burst);
  if (befalls(choices.cut, number)) {
    const std::size_t last = burst.rfind('$');
    burst.resize(last + (burst.size() - last) / 2);
  }
  return befalls(choices.garbage, number) ? std::string(noise) + burst : burst;
}

}  // namespace

std::vector<std::string> bursts_of(std::string_view log) {
  std::vector<std::string> bursts;
  std::string first_kind;
  while (!log.empty()) {
    const std::string_view line = take_line(log);
    if (line.empty() || line[0] == '#' || line[0] == '@') continue;
    const std::string_view kind = line.substr(0, kind_length);
    if (bursts.empty() || kind == first_kind) {
      bursts.emplace_back();
      first_kind = kind;
    }
    bursts.back().append(line).append("\r\n");
  }
  return bursts;
}

Conversation receiver_conversation(std::string_view log, const Receiver_choices& choices) {
  Conversation conversation;
  const std::vector<std::string> bursts = bursts_of(log);
  if (bursts.empty()) conversation.fault = "the log has no sentence";
  conversation.steps.push_back({Step_kind::baud, {}, choices.baud});
  for (std::size_t number = 0; number < bursts.size(); ++number) {
    if (befalls(choices.pulled, number)) {
      conversation.steps.push_back({Step_kind::unplug, {}, 0});
      conversation.steps.push_back({Step_kind::wait, {}, put_back_after});
      conversation.steps.push_back({Step_kind::plug, {}, 0});
    }
    const std::string sent = as_sent(bursts[number], number, choices);
    if (!sent.empty()) conversation.steps.push_back({Step_kind::send, sent, 0});
    // What the line itself takes is part of the time from burst to burst.
    const int on_the_line = choices.baud > 0 ? static_cast<int>(sent.size()) * 10'000 / choices.baud : 0;
    conversation.steps.push_back({Step_kind::wait, {}, std::max(0, choices.every - on_the_line)});
  }
  if (choices.again && !bursts.empty()) conversation.steps.push_back({Step_kind::again, {}, 0});
  return conversation;
}

}  // namespace emulator
