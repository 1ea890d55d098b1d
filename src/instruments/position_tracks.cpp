#include "instruments/position_tracks.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdlib>

#include "instruments/nmea.h"
#include "observations/record_line.h"
#include "platform/digits.h"
#include "platform/file_time.h"
#include "platform/numbers.h"

namespace instruments {
namespace {

using observations::column_of;
using platform::Date_time;
using platform::is_digit;
using platform::val;

constexpr long long seconds_a_day = 24 * 60 * 60;
constexpr long long japan_seconds = 9 * 60 * 60;
constexpr double longest_offset = 24 * 365;  // hours; a larger one is a slip and counts as none
constexpr double farthest = 999'999'999;     // units; a number beyond it is no place, and couldn't be written either
constexpr const char* position_form = "######0.#0";
// Day 0 of all keys. Only differences count.
constexpr int first_year = 1899, first_month = 12, first_day = 30;

// A number of at most four digits; none for anything else.
std::optional<int> digits_of(std::string_view text) {
  if (text.empty() || text.size() > 4 || !std::all_of(text.begin(), text.end(), is_digit)) return {};
  int number = 0;
  for (const char letter : text) number = number * 10 + (letter - '0');
  return number;
}

// Three numbers with signs between them; the last one may be missing where `needed` is 2.
std::optional<std::array<int, 3>> three_numbers(std::string_view text, std::string_view signs, int needed) {
  std::array<int, 3> numbers{};
  for (std::size_t i = 0; i < numbers.size(); ++i) {
    const std::size_t end = i == 2 ? text.npos : text.find_first_of(signs);
    const std::optional<int> number = digits_of(text.substr(0, end));
    if (!number) return {};
    numbers[i] = *number;
    if (end == text.npos) return static_cast<int>(i) + 1 < needed ? std::nullopt : std::optional(numbers);
    text.remove_prefix(end + 1);
  }
  return numbers;
}

int days_of(int year, int month) {
  return geodesy::days_between(year, month, 1, year, month + 1, 1);
}

bool exists(const Date_time& time) {
  return time.year >= 1 && time.year < 9999 && time.month >= 1 && time.month <= 12 && time.day >= 1 &&
         time.day <= days_of(time.year, time.month) && time.hour >= 0 && time.hour < 24 && time.minute >= 0 &&
         time.minute < 60 && time.second >= 0 && time.second < 60;
}

bool date_to(Date_time& time, std::string_view text) {
  const auto date = three_numbers(text, "/-", 3);
  if (!date) return false;
  const auto [year, month, day] = *date;
  time.year = year < 100 ? 2000 + year : year;
  time.month = month;
  time.day = day;
  return true;
}

void step_day(Date_time& time) {
  if (++time.day <= days_of(time.year, time.month)) return;
  time.day = 1;
  if (++time.month <= 12) return;
  time.month = 1;
  ++time.year;
}

void step_day_back(Date_time& time) {
  if (--time.day >= 1) return;
  if (--time.month < 1) {
    time.month = 12;
    --time.year;
  }
  time.day = days_of(time.year, time.month);
}

// hhmmss, with whatever behind.
bool six_digits_to(std::array<int, 3>& parts, std::string_view text) {
  if (text.size() < 6 || !std::all_of(text.begin(), text.begin() + 6, is_digit)) return false;
  for (std::size_t i = 0; i < 3; ++i) parts[i] = *digits_of(text.substr(2 * i, 2));
  return true;
}

void time_to(Date_time& time, const std::array<int, 3>& parts) {
  time.hour = parts[0];
  time.minute = parts[1];
  time.second = parts[2];
}

bool is_full(Track& track) {
  track.shortened = static_cast<int>(track.keys.size()) >= track_limit;
  return track.shortened;
}

void add(Track& track, const Date_time& time, geodesy::Point position) {
  if (!is_place(position)) return;
  track.keys.push_back(key_of(time));
  track.positions.push_back(rounded_position(position));
  track.times.push_back(platform::date_time_text(time));
}

// 2008/11/15,012030,3541.1234,N,13945.6789,E,...
// 1          2      3         4 5          6
std::optional<Date_time> time_of_first(std::string_view line) {
  Date_time time;
  std::array<int, 3> parts{};
  if (!date_to(time, platform::trim_text(column_of(line, 1))) ||
      !six_digits_to(parts, platform::trim_text(column_of(line, 2))))
    return {};
  time_to(time, parts);
  return exists(time) ? std::optional(time) : std::nullopt;
}

// $GPRMC,012030.00,A,3541.1234,N,13945.6789,E,0.00,0,151108,,
// 1      2         3 4         5 6          7 8    9 10
std::optional<Date_time> time_of_second(std::string_view line) {
  std::array<int, 3> parts{}, date{};
  if (!six_digits_to(parts, column_of(line, 2)) || !six_digits_to(date, column_of(line, 10))) return {};
  Date_time time{2000 + date[2], date[1], date[0]};
  time_to(time, parts);
  return exists(time) ? std::optional(time) : std::nullopt;
}

}  // namespace

std::optional<Date_time> date_time_of(std::string_view text) {
  const std::string trimmed = platform::trim_text(text);
  const std::size_t blank = trimmed.find(' ');
  if (blank == std::string::npos) return {};
  Date_time time;
  const auto parts = three_numbers(platform::trim_text(trimmed.substr(blank)), ":", 2);
  if (!parts || !date_to(time, std::string_view(trimmed).substr(0, blank))) return {};
  time_to(time, *parts);
  return exists(time) ? std::optional(time) : std::nullopt;
}

Date_time seconds_later(const Date_time& time, long long seconds) {
  Date_time later = time;
  long long second = time.hour * 3600 + time.minute * 60 + time.second + seconds;
  for (; second < 0; second += seconds_a_day) step_day_back(later);
  for (; second >= seconds_a_day; second -= seconds_a_day) step_day(later);
  later.hour = static_cast<int>(second / 3600);
  later.minute = static_cast<int>(second / 60 % 60);
  later.second = static_cast<int>(second % 60);
  return later;
}

long long key_of(const Date_time& time) {
  const int day = geodesy::days_between(first_year, first_month, first_day, time.year, time.month, time.day);
  return day * seconds_a_day + time.hour * 3600 + time.minute * 60 + time.second;
}

double units_of(std::string_view text, int degree_digits) {
  const auto digits = static_cast<std::size_t>(degree_digits);
  const double degrees = val(text.substr(0, digits));
  const double minutes = text.size() > digits ? val(text.substr(digits)) : 0;
  return (degrees * 3600 + minutes * 60) / 3600 * 100000;
}

bool is_place(geodesy::Point position) {
  return std::abs(position.x) <= farthest && std::abs(position.y) <= farthest;
}

geodesy::Point rounded_position(geodesy::Point position) {
  const auto rounded = [](double value) { return val(platform::format_number(value, position_form)); };
  return {rounded(position.x), rounded(position.y)};
}

void track_first_r(Track& track, platform::Files& files, const std::string& path) {
  each_log_line(files, path, [&](std::string_view line) {
    if (line.find("start") != std::string_view::npos) return true;
    const std::optional<Date_time> time = time_of_first(line);
    if (!time) return true;
    if (is_full(track)) return false;
    add(track, seconds_later(*time, japan_seconds),
        {units_of(platform::trim_text(column_of(line, 5)), 3), units_of(platform::trim_text(column_of(line, 3)), 2)});
    return true;
  });
}

void track_second_r(Track& track, platform::Files& files, const std::string& path, double hours) {
  const long long seconds = std::abs(hours) < longest_offset ? std::llround(hours * 3600) : 0;
  each_log_line(files, path, [&](std::string_view line) {
    if (column_of(line, 1) != rmc_word) return true;
    const std::optional<Date_time> time = time_of_second(line);
    if (!time || column_of(line, 4).empty() || column_of(line, 6).empty()) return true;
    if (is_full(track)) return false;
    add(track, seconds_later(*time, seconds), {units_of(column_of(line, 6), 3), units_of(column_of(line, 4), 2)});
    return true;
  });
}

int partner_of(const Track& track, long long key) {
  const auto found = std::find_if(track.keys.begin(), track.keys.end(),
                                  [&](long long at) { return std::llabs(at - key) < same_moment; });
  return found == track.keys.end() ? -1 : static_cast<int>(found - track.keys.begin());
}

}  // namespace instruments
