#include "instruments/tiltvane_line.h"

#include <algorithm>
#include <array>
#include <vector>

#include "drawing/text_split.h"
#include "observations/clinometer_notation.h"
#include "platform/digits.h"
#include "platform/numbers.h"
#include "platform/utf8.h"

namespace instruments {
namespace {

namespace clinometer = observations::clinometer;
using platform::trim_text;
using platform::two_digits;
using platform::val;

constexpr const char* header_japanese =
    "IDNO,計測モード,走向,傾斜,ﾛｰﾙ角,線構造方位,ﾌﾟﾗﾝｼﾞ角,年月日時分秒,記号,偏角表示(0が有),Tiltvane偏角,真北走向,傾斜,"
    "ﾛｰﾙ角,真北線構造方位,ﾌﾟﾗﾝｼﾞ角,計算偏角,経度,経度記号,緯度,緯度記号";
constexpr const char* header_english =
    "IDNO,Measure mODE,Strike,Dip,Role,Lineation Strike,Plunge,yy/mm/dd hh:mi:sec,Mark,Declination(0:on),"
    "TiltvaneDeclination,TrueNorth,Dip,Role,TrueNorth Lineation Strike,Plunge,Declination,  ,Longitude, ,Latitude";

// What stands in the lineation's columns of a record that was measured without one.
constexpr const char* no_lineation = "  ";

// The columns of a line, counted from 1; `last` is the last one that is printed.
struct Columns {
  std::array<std::string, line_columns> text;
  int last = 0;
  int pieces = 0;  // that the line had, those too many counted

  std::string& operator[](int column) { return text[static_cast<std::size_t>(column - 1)]; }
};

Columns split(std::string_view line) {
  Columns columns;
  columns.pieces = drawing::split_csv(line, columns.text);
  columns.last = std::min(columns.pieces, line_columns);
  return columns;
}

// Each column with a comma behind it, and the declination that closes the line.
std::string joined(const Columns& columns, const std::string& declination) {
  std::string line;
  for (int i = 0; i < columns.last; ++i) line += columns.text[static_cast<std::size_t>(i)] + ",";
  return line + declination;
}

bool is_lineation(Columns& columns) {
  return columns[2] == "L";
}

bool is_measured(const std::string& azimuth) {
  return azimuth != no_plane && !trim_text(azimuth).empty();
}

// The strike and the dip of the instrument's memory, and the lineation's azimuth, without the declination that the
// instrument added. The plunge keeps the letter that it had: only the azimuth is put back.
void remove_instrument_declination(Columns& columns, std::string& azimuth, std::string& plunge) {
  const double set = val(columns[11]);
  if (set == 0) return;
  if (columns[3] != no_plane) {
    std::string strike, dip;
    clinometer::偏角表示変換(columns[3], columns[4], -set, strike, dip);
    columns[3] = strike;
    columns[4] = dip;
  }
  if (is_lineation(columns) && is_measured(azimuth)) {
    clinometer::線偏角表示変換(std::string(azimuth), std::string(plunge), -set, azimuth, plunge);
    columns[6] = azimuth;
  }
}

// Columns 12 to 14: the plane against true north.
void turn_plane(Columns& columns, double declination) {
  std::string strike, dip;
  clinometer::偏角表示変換(columns[3], columns[4], declination, strike, dip);
  columns[12] = strike;
  columns[13] = dip;
  columns[14] = columns[5];
}

// Columns 15 and 16: the lineation against true north, its plunge without the letter.
void turn_lineation(Columns& columns, double declination, const std::string& azimuth, const std::string& plunge) {
  std::string true_azimuth, true_plunge;
  if (is_measured(azimuth)) clinometer::線偏角表示変換(azimuth, plunge, declination, true_azimuth, true_plunge);
  if (!true_plunge.empty() && std::string_view("SNEW").find(true_plunge.back()) != std::string_view::npos)
    true_plunge.pop_back();
  columns[15] = true_azimuth;
  columns[16] = true_plunge;
}

// Columns 18 to 21 from the GPS state and the position of the memory; nothing where the instrument gave no state.
void take_position(Columns& columns) {
  const std::string state = trim_text(columns[12]);
  for (int i = 0; i < 4; ++i) {
    std::string& target = columns[18 + i];
    target.clear();
    if (state == "A") target = columns[13 + i];
    if (state == "V") target = "-";
  }
}

// Everything but the position: the magnetic columns without the instrument's declination, and those of true north.
std::string turned_line(Columns& columns, const std::string& declination) {
  const double d = val(declination);
  if (columns[6] == "0") columns[6].clear();
  std::string azimuth = columns[6], plunge = columns[7];
  remove_instrument_declination(columns, azimuth, plunge);
  turn_plane(columns, d);
  if (is_lineation(columns))
    turn_lineation(columns, d, azimuth, plunge);
  else
    for (const int column : {6, 7, 15, 16}) columns[column] = no_lineation;
  columns[17] = declination;
  columns[11] = "0";
  columns.last = std::max(columns.last, file_columns);
  return joined(columns, declination);
}

}  // namespace

std::string measurement_header(bool japanese) {
  return japanese ? header_japanese : header_english;
}

bool is_measurement_header(std::string_view line) {
  return line.find("計測") != std::string_view::npos || line.find("IDNO") != std::string_view::npos;
}

std::string three_digits(std::string_view number) {
  const std::string text = "000" + trim_text(number);
  return std::string(platform::cut_characters(text, platform::character_count(text) - 2));
}

std::string measurement_file_name(std::string_view first, std::string_view last, const platform::Date_time& time) {
  std::string name = three_digits(first) + "-" + three_digits(last) + "_" + platform::format_number(time.year, "0000") +
                     "-" + two_digits(time.month) + "-" + two_digits(time.day) + "_" + two_digits(time.hour) + "-" +
                     two_digits(time.minute) + "-" + two_digits(time.second) + ".csv";
  std::replace_if(
      name.begin(), name.end(), [](char c) { return c == '/' || c == ':' || c == '\\'; }, '-');
  return name;
}

std::string converted_line(std::string_view line, const std::string& declination) {
  Columns columns = split(line);
  take_position(columns);
  return turned_line(columns, declination);
}

std::string reconverted_line(std::string_view line, const std::string& declination) {
  Columns columns = split(line);
  // The text behind the last comma is the declination that closed the line, unless the line is too short to have one.
  if (columns.pieces > file_columns) columns.last = std::min(columns.pieces - 1, line_columns);
  return turned_line(columns, declination);
}

}  // namespace instruments
