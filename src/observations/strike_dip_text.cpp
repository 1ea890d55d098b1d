#include "observations/strike_dip_text.h"

#include <array>

#include "observations/angle_text.h"
#include "observations/strike_dip.h"
#include "platform/numbers.h"

namespace observations {
namespace {

using platform::format_number;

// How a row of a table takes its number from the azimuth: `factor` * azimuth + `offset`.
struct Number_rule {
  int factor;
  int offset;
};

constexpr Number_rule itself{1, 0};
constexpr Number_rule below_180{-1, 180};
constexpr Number_rule above_180{1, -180};
constexpr Number_rule below_360{-1, 360};

double number_of(Number_rule rule, double azimuth) {
  return rule.factor * azimuth + rule.offset;
}

// ---- sections ----

// The rows of a plane on a section, in the order in which they are tried: a later one that holds too takes the place of
// an earlier one, which matters at 90 and -90.
struct Section_row {
  double low, high;
  bool with_low, with_high;
  Number_rule number;
  const char* north_end;  // last letter with the first end in the north; empty: the strike is "NS"
  const char* south_end;  // with the first end in the south
  const char* north_dip;  // pattern of a dip up to 90
  const char* south_dip;
  char side, turned_side;  // dip's letter up to 90, and above
};

// clang-format off
constexpr std::array<Section_row, 6> section_rows{{
    {   0,   0,  true,  true, itself,     "",  "",  "##0.0",     "##0",       'W', 'E'},
    {   0,  90, false,  true, itself,     "E", "W", "##0",       "##0",       'W', 'E'},
    { -90,   0,  true, false, {-1, 0},    "W", "E", "##0",       "##0.###0",  'W', 'E'},
    { 180, 180,  true,  true, itself,     "",  "",  "##0",       "##0",       'E', 'W'},
    {  90, 180,  true, false, below_180,  "W", "E", "##0.###0",  "##0.###0",  'E', 'W'},
    {-180, -90,  true,  true, {1, 180},   "E", "W", "##0.###0",  "##0.###0",  'E', 'W'},
}};
// clang-format on

bool lies_in(const Section_row& row, double a) {
  return (row.with_low ? a >= row.low : a > row.low) && (row.with_high ? a <= row.high : a < row.high);
}

// ---- displays ----

// A row takes azimuths above `low` up to and with `high`.
struct Display_row {
  double low, high;
  char first;
  Number_rule number;
  char last;
  char side;
};

// clang-format off
constexpr std::array<Display_row, 8> display_rows{{
    {  0,  45, 'N', itself,    'E', 'E'},
    { 45,  90, 'N', itself,    'E', 'S'},
    { 90, 135, 'S', below_180, 'W', 'S'},
    {135, 180, 'S', below_180, 'W', 'W'},
    {180, 225, 'S', above_180, 'E', 'W'},
    {225, 270, 'S', above_180, 'E', 'N'},
    {270, 315, 'N', below_360, 'W', 'N'},
    {315, 360, 'N', below_360, 'W', 'E'},
}};
// clang-format on

// clang-format off
constexpr std::array<Display_row, 4> rockview_rows{{
    {  0,  90, 'N', itself,    'E', 'E'},
    { 90, 180, 'N', below_180, 'W', 'W'},
    {180, 270, 'N', above_180, 'E', 'W'},
    {270, 360, 'N', below_360, 'W', 'E'},
}};
// clang-format on

// Azimuths that have a text of their own, tested before the rows.
struct Display_point {
  double azimuth;
  const char* strike;
  char side;
};

// clang-format off
constexpr std::array<Display_point, 1> display_points{{
    {  0, "NS",   'E'},
}};
// clang-format on

// clang-format off
constexpr std::array<Display_point, 4> rockview_points{{
    {  0, "NS",   'E'},
    {180, "NS",   'W'},
    { 90, "N90E", 'S'},
    {270, "N90W", 'N'},
}};
// clang-format on

template <typename Points, typename Table>
void display(const Points& points, const Table& rows, std::string_view strike, std::string_view dip, double decl,
             std::string& out_strike, std::string& out_dip) {
  double a = 0, d = 0;
  角度変換(strike, dip, a, d);
  double az = angle_through_text(one_decimal(decl) + a);
  if (az < 0) az = angle_through_text(az + 360);
  std::string shown_strike, shown_dip;
  for (const Display_row& row : rows)
    if (az > row.low && az <= row.high) {
      shown_strike = row.first + angle_text(number_of(row.number, az)) + row.last;
      shown_dip = angle_text(d) + row.side;
    }
  for (const Display_point& point : points)
    if (az == point.azimuth) {
      shown_strike = point.strike;
      shown_dip = angle_text(d) + point.side;
    }
  out_strike = shown_strike;
  out_dip = shown_dip;
}

}  // namespace

void 走向変換(double first_y, double second_y, double a, double d, std::string& strike, std::string& dip) {
  if (first_y == second_y) return;
  const bool north = first_y > second_y;
  for (const Section_row& row : section_rows) {
    if (!lies_in(row, a)) continue;
    const std::string end = north ? row.north_end : row.south_end;
    strike = end.empty() ? "NS" : "N" + format_number(number_of(row.number, a), "##0.0") + end;
    if (d <= 90)
      dip = format_number(d, north ? row.north_dip : row.south_dip) + row.side;
    else
      dip = format_number(180 - d, "##0") + row.turned_side;
  }
}

void 偏角表示変換(std::string_view strike, std::string_view dip, double decl, std::string& out_strike,
                  std::string& out_dip) {
  display(display_points, display_rows, strike, dip, decl, out_strike, out_dip);
}

void 偏角表示変換Rockview(std::string_view strike, std::string_view dip, double decl, std::string& out_strike,
                          std::string& out_dip) {
  display(rockview_points, rockview_rows, strike, dip, decl, out_strike, out_dip);
}

}  // namespace observations
