#include "emulator_clinometer/clinometer_memory.h"

#include <algorithm>
#include <array>
#include <cctype>
#include <cstdio>
#include <cstdlib>

namespace emulator {
namespace {

// The instrument's own declination is set from this record on: its angles then include it.
constexpr int first_with_declination = 500;
constexpr int seconds_between = 95;

template <typename... Values>
std::string printed(const char* pattern, Values... values) {
  std::array<char, 160> text{};
  std::snprintf(text.data(), text.size(), pattern, values...);
  return text.data();
}

std::string time_of(int number) {
  const int seconds = 9 * 3600 + number * seconds_between;
  return printed("2008/11/%02d %02d:%02d:%02d", 15 + seconds / 86400, seconds / 3600 % 24, seconds / 60 % 60,
                 seconds % 60);
}

std::string plane_of(int number) {
  if (number % 7 == 0) return "-0-,0";
  const int spread = number * 37 % 15;
  return number % 2 == 0 ? printed("N%dE,%dE", 20 + spread, 35 + spread)
                         : printed("N%dW,%dW", 10 + spread, 50 + spread);
}

std::string lineation_of(int number) {
  if (number % 3 != 0) return "0,0";
  return printed("N%dE,%dE", 15 + number * 11 % 20, 5 + number % 12);
}

std::string position_of(int number) {
  if (number % 5 == 0) return "V,,,,";
  return printed("A,3541.%04d,N,13848.%04d,E", 1000 + number * 137 % 8000, 1000 + number * 211 % 8000);
}

}  // namespace

std::string memory_line(int number) {
  const char* mode = number % 3 == 0 ? "L" : "P";
  const int declination = number >= first_with_declination ? -7 : 0;
  return printed("%03d,%s,", number, mode) + plane_of(number) + printed(",%d,", number % 9) + lineation_of(number) +
         "," + time_of(number) + printed(",%d,0,%d,", number % 8, declination) + position_of(number);
}

std::string answer_to(const std::string& command, int records, int first) {
  const bool is_read = command.size() > 1 && command.front() == 'o' &&
                       std::all_of(command.begin() + 1, command.end(), [](unsigned char c) { return std::isdigit(c); });
  if (!is_read) return {};
  std::string answer;
  const int count = std::min(records, std::atoi(command.c_str() + 1));
  for (int number = first; number < first + count; ++number) answer += memory_line(number) + "\r\n";
  return answer + "END\r\n";
}

}  // namespace emulator
