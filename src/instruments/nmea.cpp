#include "instruments/nmea.h"

#include <algorithm>
#include <charconv>
#include <cmath>

#include "platform/digits.h"
#include "platform/failures.h"
#include "platform/numbers.h"

namespace instruments {
namespace {

using platform::is_digit;

constexpr std::size_t latitude_degrees = 2, longitude_degrees = 3;  // characters
constexpr std::size_t log_decimals = 5;
constexpr char end_of_text = '\x1a';

double angle_seconds(std::string_view field, std::size_t degree_characters) {
  const std::string_view minutes = field.size() > degree_characters ? field.substr(degree_characters) : "";
  const double seconds = platform::val(field.substr(0, degree_characters)) * 3600 + platform::val(minutes) * 60;
  return std::isfinite(seconds) ? seconds : 0;
}

// Digits of degrees, two digits of minutes below 60, and perhaps a point with decimals.
bool is_angle(std::string_view field, std::size_t degree_digits, double most_degrees) {
  const std::size_t whole = degree_digits + 2;
  if (field.size() < whole || !std::all_of(field.begin(), field.begin() + static_cast<std::ptrdiff_t>(whole), is_digit))
    return false;
  const std::string_view decimals = field.substr(whole);
  if (!decimals.empty() && (decimals[0] != '.' || !std::all_of(decimals.begin() + 1, decimals.end(), is_digit)))
    return false;
  const double minutes = platform::val(field.substr(degree_digits));
  return minutes < 60 && platform::val(field.substr(0, degree_digits)) + minutes / 60 <= most_degrees;
}

// The characters between "$" and "*" by exclusive or, as two hexadecimal digits behind the "*". NMEA 0183, 5.3.1.
bool checksum_fits(std::string_view sentence) {
  const std::size_t star = sentence.find('*');
  if (star == std::string_view::npos) return true;
  unsigned sum = 0, told = 0;
  for (const char c : sentence.substr(1, star - 1)) sum ^= static_cast<unsigned char>(c);
  std::string_view digits = sentence.substr(star + 1);
  digits = digits.substr(0, digits.find_last_not_of(' ') + 1);
  const auto [end, fault] = std::from_chars(digits.data(), digits.data() + digits.size(), told, 16);
  return fault == std::errc{} && end == digits.data() + digits.size() && digits.size() == 2 && told == sum;
}

// The lines of a text that comes in pieces.
struct Line_feed {
  const std::function<bool(std::string_view)>& take;
  std::string begun;  // a line whose end has not come
  bool ended = false;

  void add_to_begun(std::string_view bytes) {
    begun.append(bytes.substr(0, longest_log_line - std::min(begun.size(), longest_log_line)));
  }
  // Only whole lines. A CR LF that two pieces part makes an empty line more, which says nothing.
  void lines(std::string_view text) {
    while (!text.empty() && !ended) {
      const std::size_t end = text.find_first_of("\r\n\x1a");
      const bool ends_text = text[end] == end_of_text;
      std::string_view line = take_line(text);
      if (!begun.empty()) {
        add_to_begun(line);
        line = begun;
      }
      ended = !take(line) || ends_text;
      begun.clear();
    }
  }
  bool piece(std::string_view bytes) {
    const std::size_t last = bytes.find_last_of("\r\n\x1a");
    const std::size_t whole = last == std::string_view::npos ? 0 : last + 1;
    lines(bytes.substr(0, whole));
    add_to_begun(bytes.substr(whole));
    return !ended;
  }
};

}  // namespace

void nmea_split(std::string_view text, Nmea& nmea) {
  int count = 0;
  for (std::size_t at = 0; at <= text.size() && count < nmea_fields; ++count) {
    const std::size_t end = std::min(text.find(',', at), text.size());
    nmea.fields[static_cast<std::size_t>(count)] = text.substr(at, end - at);
    at = end + 1;
  }
  for (int i = count; i < nmea.count; ++i) nmea.fields[static_cast<std::size_t>(i)] = {};
  nmea.count = count;
}

double latitude_seconds(std::string_view field) {
  return angle_seconds(field, latitude_degrees);
}
double longitude_seconds(std::string_view field) {
  return angle_seconds(field, longitude_degrees);
}

std::string padded_angle(std::string_view field) {
  const std::size_t point = std::min(field.find('.'), field.size());
  const std::string_view decimals = point < field.size() ? field.substr(point + 1) : "";
  std::string padded(field.substr(0, point));
  padded += '.';
  if (decimals.size() < log_decimals) padded.append(log_decimals - decimals.size(), '0');
  padded += decimals;
  return padded;
}

bool is_sound(std::string_view sentence) {
  const std::string_view line = take_line(sentence);
  Nmea nmea;
  nmea_split(line.substr(0, line.find('*')), nmea);
  const std::string_view quality = nmea.field(7);
  return checksum_fits(line) && is_angle(nmea.field(3), latitude_degrees, 90) && nmea.field(4) == "N" &&
         is_angle(nmea.field(5), longitude_degrees, 180) && nmea.field(6) == "E" && quality.size() == 1 &&
         is_digit(quality[0]) && quality != "0";
}

std::string_view take_line(std::string_view& rest) {
  const std::size_t end = std::min(rest.find_first_of("\r\n\x1a"), rest.size());
  const std::string_view line = rest.substr(0, end);
  const bool ends_text = end == rest.size() || rest[end] == end_of_text;
  rest = ends_text ? std::string_view{} : rest.substr(end + (rest.substr(end, 2) == "\r\n" ? 2 : 1));
  return line;
}

bool each_log_line(platform::Files& files, const std::string& path, const std::function<bool(std::string_view)>& take) {
  if (files.length(path) == 0) return true;
  Line_feed feed{take, {}, false};
  try {
    files.read_pieces(path, [&](std::string_view bytes) { return feed.piece(bytes); });
  } catch (const platform::File_failure&) {
    return false;
  }
  if (!feed.ended && !feed.begun.empty()) take(feed.begun);
  return true;
}

}  // namespace instruments
