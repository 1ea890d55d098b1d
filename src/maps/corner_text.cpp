#include "maps/corner_text.h"

#include <algorithm>
#include <cmath>

#include "geodesy/mesh_code.h"
#include "platform/numbers.h"

namespace maps {
namespace {

using platform::format_number;

// More seconds than 2,777 degrees have can only come from garbage.
constexpr double most_seconds = 1e7;

std::string_view cut(std::string_view text, std::size_t start, std::size_t length = std::string_view::npos) {
  return start > text.size() ? std::string_view{} : text.substr(start - 1, length);
}

// `minutes_at` is the position of the minutes, counted from 1.
double seconds_of(std::string_view text, std::size_t minutes_at, std::string_view negative_letters) {
  const double sum = platform::val(cut(text, 2, minutes_at - 2)) * 3600 + platform::val(cut(text, minutes_at, 2)) * 60 +
                     platform::val(cut(text, minutes_at + 2));
  if (!(std::abs(sum) < most_seconds)) return 0;
  const bool negative = !text.empty() && negative_letters.find(text.front()) != std::string_view::npos;
  return negative ? -sum : sum;
}

}  // namespace

std::string latitude_text(std::string_view letter, double degrees, double minutes, double seconds) {
  return std::string(letter) + format_number(degrees, "00") + format_number(minutes, "00") +
         format_number(seconds, "00.##0");
}

std::string longitude_text(std::string_view letter, double degrees, double minutes, double seconds) {
  return std::string(letter) + format_number(degrees, "000") + format_number(minutes, "00") +
         format_number(seconds, "00.##0");
}

Corner_texts corner_texts_of_seconds(float lat_a, float lon_a, float lat_b, float lon_b) {
  const geodesy::Dms_pair a = geodesy::seconds_to_dms(lat_a, lon_a);
  const geodesy::Dms_pair b = geodesy::seconds_to_dms(lat_b, lon_b);
  return {latitude_text("N", a.lat_d, a.lat_m, a.lat_s), longitude_text("E", a.lon_d, a.lon_m, a.lon_s),
          latitude_text("N", b.lat_d, b.lat_m, b.lat_s), longitude_text("E", b.lon_d, b.lon_m, b.lon_s)};
}

double latitude_seconds(std::string_view text) {
  return seconds_of(text, 4, "Ss");
}
double longitude_seconds(std::string_view text) {
  return seconds_of(text, 5, "Ww");
}

Corner_seconds corner_seconds(const Corner_texts& corners) {
  return {latitude_seconds(corners.lat_a), longitude_seconds(corners.lon_a), latitude_seconds(corners.lat_b),
          longitude_seconds(corners.lon_b)};
}

}  // namespace maps
