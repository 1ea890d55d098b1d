#include "make_sample/tables.h"

#include <algorithm>
#include <cmath>

#include "geodesy/datum.h"
#include "make_sample/field_coefficients.h"
#include "make_sample/observations.h"
#include "platform/numbers.h"
#include "platform/text_files.h"

namespace sample {

namespace {

using platform::format_number;
using platform::number_text;

struct Angle {
  int degrees = 0, minutes = 0;
  double seconds = 0;
};

// To the tenth of a second, carried where that makes a whole minute.
Angle angle_of_seconds(double seconds) {
  const auto tenths = std::llround(seconds * 10);
  return {static_cast<int>(tenths / 36000), static_cast<int>(tenths / 600 % 60),
          static_cast<double>(tenths % 600) / 10};
}

// "354500.0", "1385230.0"
std::string corner_text(double seconds, const char* degrees_pattern) {
  const Angle angle = angle_of_seconds(seconds);
  return format_number(angle.degrees, degrees_pattern) + format_number(angle.minutes, "00") +
         format_number(angle.seconds, "00.0");
}

std::string latitude_text(double seconds) {
  return corner_text(seconds, "00");
}
std::string longitude_text(double seconds) {
  return corner_text(seconds, "000");
}

std::string angle_fields(double seconds) {
  const Angle angle = angle_of_seconds(seconds);
  return number_text(angle.degrees) + "," + number_text(angle.minutes) + "," + number_text(angle.seconds);
}

struct Corner {
  double latitude = 0, longitude = 0;  // second counts
};

Corner shifted(Corner corner) {
  const Position shift = datum_shift_seconds({corner.latitude / 3600, corner.longitude / 3600});
  return {corner.latitude + shift.latitude, corner.longitude + shift.longitude};
}

std::string joined(const std::vector<std::string>& fields) {
  std::string line;
  for (const std::string& field : fields) line += (line.empty() ? "" : ",") + field;
  return line;
}

std::string bytes_of(const std::vector<std::string>& lines) {
  platform::Line_writer writer;
  for (const std::string& line : lines) writer.line(line);
  return writer.bytes();
}

std::string padded(const std::string& text, std::size_t width) {
  return std::string(width - std::min(width, text.size()), ' ') + text;
}

}  // namespace

// 533856,霧沢,KIRISAWA,,,,,354500.0,1385230.0,354511.6,1385218.3,,355000.0,1384500.0,355011.5,1384448.2
// 1      2    3            8        9         10       11         13       14        15       16
// 8 to 11 are the lower right corner, 13 to 16 the upper left, each on the Tokyo datum and on WGS-84.
std::string zumei_bytes(const std::vector<Sheet>& sheets) {
  std::vector<std::string> lines;
  for (const Sheet& sheet : sheets) {
    if (sheet.kind != Sheet_kind::whole) continue;
    const Corner a{sheet.frame.north, sheet.frame.west}, b{sheet.frame.south, sheet.frame.east};
    const Corner a_shifted = shifted(a), b_shifted = shifted(b);
    lines.push_back(
        joined({sheet.stem, sheet.name, sheet.roman_name, "", "", "", "", latitude_text(b.latitude),
                longitude_text(b.longitude), latitude_text(b_shifted.latitude), longitude_text(b_shifted.longitude), "",
                latitude_text(a.latitude), longitude_text(a.longitude), latitude_text(a_shifted.latitude),
                longitude_text(a_shifted.longitude)}));
  }
  return bytes_of(lines);
}

// NI54319,瀬見川,SEMIGAWA,,,,,,,,,35,50,0,138,45,0,,,,,,,35,40,0,139,0,0
// 1       2      3                 12    15             24    27
std::string fifty_thousand_bytes(const std::vector<Sheet>& sheets) {
  std::vector<std::string> lines;
  for (const Sheet& sheet : sheets) {
    if (sheet.kind != Sheet_kind::fifty_thousand) continue;
    lines.push_back(joined({sheet.stem,
                            sheet.name,
                            sheet.roman_name,
                            "",
                            "",
                            "",
                            "",
                            "",
                            "",
                            "",
                            "",
                            angle_fields(sheet.frame.north),
                            angle_fields(sheet.frame.west),
                            "",
                            "",
                            "",
                            "",
                            "",
                            "",
                            angle_fields(sheet.frame.south),
                            angle_fields(sheet.frame.east)}));
  }
  return bytes_of(lines);
}

// 138,46,30,35,48,30,138,52,0,35,44,0
// longitude and latitude of the upper left corner, then of the lower right one
std::string frame_bytes(const Frame& frame) {
  return bytes_of({joined(
      {angle_fields(frame.west), angle_fields(frame.north), angle_fields(frame.east), angle_fields(frame.south)})});
}

// E,138,46,30,N,35,48,30,E,138,52,0,N,35,44,0
std::string lettered_frame_bytes(const Frame& frame) {
  return bytes_of({joined({"E", angle_fields(frame.west), "N", angle_fields(frame.north), "E", angle_fields(frame.east),
                           "N", angle_fields(frame.south)})});
}

// name="霧沢村" pos="138.7500000/35.8333333;138.7511061/35.8333333"
// longitude / latitude in degrees
std::string boundary_bytes(const Country& country, const char* name) {
  // Along the border from west to east, and back around the sheets.
  const bool northern = std::string(name) == northern_municipality;
  Course ring = country.border;
  const double end = northern ? 9800 : -9800;
  ring.push_back({ring.back().x, end});
  ring.push_back({ring.front().x, end});
  ring.push_back(ring.front());
  std::string line = "name=\"" + std::string(name) + "\" pos=\"";
  for (std::size_t i = 0; i < ring.size(); ++i) {
    const Position at = position_of(ring[i]);
    line +=
        (i > 0 ? ";" : "") + format_number(at.longitude, "0.0000000") + "/" + format_number(at.latitude, "0.0000000");
  }
  return bytes_of({line + "\""});
}

// JGD2000-TokyoDatum Ver.S.1.0
// MeshCode   dB(sec)   dL(sec)
// 53383746  11.66320 -11.60012
// The shifts at the south-west corners of the third-level cells, 30 x 45 seconds; the codes rise.
std::string shift_bytes() {
  struct Row {
    int code;
    std::string line;
  };
  std::vector<Row> rows;
  for (int row = -10; row <= 30; ++row)
    for (int column = -10; column <= 30; ++column) {
      const Position corner{(128400 + row * 30) / 3600.0, (499500 + column * 45) / 3600.0};
      const int code = geodesy::LatLon2MeshCode(corner.latitude, corner.longitude).code;
      const Position shift = datum_shift_seconds(corner);
      rows.push_back({code, number_text(code) + padded(format_number(shift.latitude, "0.00000"), 10) +
                                padded(format_number(shift.longitude, "0.00000"), 10)});
    }
  std::sort(rows.begin(), rows.end(), [](const Row& a, const Row& b) { return a.code < b.code; });
  std::vector<std::string> lines{"JGD2000-TokyoDatum Ver.S.1.0", "MeshCode   dB(sec)   dL(sec)"};
  for (const Row& row : rows) lines.push_back(row.line);
  return bytes_of(lines);
}

//    IGRF2005  2005.00 13  8  0 2005.00 2010.00   -1.0  600.0         IGRF2005   0
//  1  0 -29556.80      0.00      8.80      0.00                       IGRF2005   1
//  n  m         g         h        dg        dh
std::string field_bytes() {
  std::vector<std::string> lines{"   IGRF2005  2005.00 13  8  0 2005.00 2010.00   -1.0  600.0         IGRF2005   0"};
  int row = 0;
  for (const Field_coefficient& one : field_coefficients) {
    std::string line = padded(number_text(one.n), 2) + padded(number_text(one.m), 3);
    for (double value : {one.g, one.h, one.dg, one.dh}) line += padded(format_number(value, "0.00"), 10);
    lines.push_back(line + std::string(23, ' ') + "IGRF2005" + padded(number_text(++row), 4));
  }
  return bytes_of(lines);
}

// 1,1,霧沢頁岩層,60,140,80,堆積, 0 , 0 , 0 ,1.5,1.5, 0 , 0 ,, 0 ,, 0 ,, 0 ,, 0 ,, 0 ,, 0 ,,,,,,,,, 0 ,
// 1 2 3          4  5   6  7    8   9   10  11  12  13  14  15 to 26: heights and colours      35
std::vector<Surface_record> surface_records() {
  struct Surface {
    std::string name, kind;
    unsigned colour;
  };
  std::vector<Surface> stack;
  for (std::size_t i = 0; i < std::size(stratum_names); ++i)
    stack.push_back({stratum_names[i], "堆積", stratum_colours[i]});
  stack.push_back({fault_name, "断層", 0});
  stack.push_back({"地形面", "地形面", 0x717171});
  std::vector<Surface_record> records;
  for (std::size_t i = 0; i < stack.size(); ++i) {
    const Surface& one = stack[i];
    std::string line = "1," + number_text(static_cast<int>(i) + 1) + "," + one.name + ",";
    for (unsigned part : {one.colour >> 16, (one.colour >> 8) & 255, one.colour & 255})
      line += number_text(static_cast<int>(part)) + ",";
    line += one.kind + ", 0 , 0 , 0 ,1.5,1.5, 0 , 0 ,";
    for (int step = 0; step < 6; ++step) line += ", 0 ,";
    const bool moves = one.kind == "断層";
    for (int field = 27; field <= 32; ++field) line += moves ? "0," : ",";
    records.push_back({one.name, line + ",, 0 ,"});
  }
  return records;
}

std::string stack_bytes() {
  std::vector<std::string> lines;
  for (const Surface_record& record : surface_records()) lines.push_back(record.line);
  return bytes_of(lines);
}

}  // namespace sample
