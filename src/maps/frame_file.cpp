#include "maps/frame_file.h"

#include <array>
#include <cmath>
#include <span>
#include <vector>

#include "drawing/text_split.h"
#include "maps/corner_text.h"
#include "platform/numbers.h"
#include "platform/text_case.h"
#include "platform/text_files.h"

namespace maps {
namespace {

// Layout 1. Corner A is the upper left, B the lower right.
//   139,30,0,35,45,0,139,37,30,35,40,0
//   1        4       7         10
// Layout 2, with a letter in front of each angle.
//   E,139,30,0,N,35,45,0,E,139,37,30,N,35,40,0
//   1          5         9           13
using Fields = std::array<std::string, drawing::settings_fields>;

struct Layout {
  // Field numbers, counted from 1, of the degrees; minutes and seconds follow.
  int lon_a, lat_a, lon_b, lat_b;
  bool lettered;  // the letter stands in front of the degrees
};

constexpr Layout layout_1{1, 4, 7, 10, false};
constexpr Layout layout_2{2, 6, 10, 14, true};

double number(const Fields& fields, int field) {
  constexpr double largest_angle_part = 100'000;
  const double value = platform::val(fields[static_cast<std::size_t>(field - 1)]);
  return std::abs(value) < largest_angle_part ? value : 0;
}

std::string letter(const Fields& fields, const Layout& layout, int degrees, const char* usual, const char* other) {
  if (!layout.lettered) return usual;
  const std::string& field = fields[static_cast<std::size_t>(degrees - 2)];
  return platform::upper_case(platform::trim_text(field)) == other ? other : usual;
}

std::string latitude(const Fields& fields, const Layout& layout, int degrees) {
  return latitude_text(letter(fields, layout, degrees, "N", "S"), number(fields, degrees), number(fields, degrees + 1),
                       number(fields, degrees + 2));
}

std::string longitude(const Fields& fields, const Layout& layout, int degrees) {
  return longitude_text(letter(fields, layout, degrees, "E", "W"), number(fields, degrees), number(fields, degrees + 1),
                        number(fields, degrees + 2));
}

}  // namespace

Corner_texts frame_of_line(std::string_view line) {
  Fields fields;
  drawing::split_csv(line, fields);
  const std::string first = platform::upper_case(platform::trim_text(fields[0]));
  const Layout& layout = first == "E" || first == "W" ? layout_2 : layout_1;
  return {latitude(fields, layout, layout.lat_a), longitude(fields, layout, layout.lon_a),
          latitude(fields, layout, layout.lat_b), longitude(fields, layout, layout.lon_b)};
}

bool frame_read(platform::Files& files, const std::string& path, Corner_texts& corners) {
  const std::vector<std::string> lines = platform::read_lines(files, path);
  if (lines.empty()) return false;
  corners = frame_of_line(lines.front());
  return true;
}

}  // namespace maps
