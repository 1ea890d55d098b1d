#include "geodesy/mesh_code.h"

#include <cmath>

#include "geodesy/arithmetic.h"
#include "platform/numbers.h"
#include "platform/utf8.h"

namespace geodesy {
namespace {

// The part that every code begins with, and what is left of the position inside the second-level cell.
struct Second_level_cell {
  std::string first;                  // first-level digits
  std::string second;                 // second-level digits
  double lat_rest = 0, lon_rest = 0;  // seconds from the cell's south-west corner
};

std::string digits(double count) {
  return platform::number_text(whole(count));
}

std::string two_digits(double count) {
  const std::string padded = "00" + digits(count);
  return padded.substr(padded.size() - 2);
}

double sum_of_seconds(double d, double m, double s) {
  return d * 3600 + m * 60 + s;
}

Second_level_cell second_level_cell(double lat_d, double lat_m, double lat_s, double lon_d, double lon_m,
                                    double lon_s) {
  const double minutes = lat_d * 60 + lat_m;  // the seconds play no part in the first level
  const double p = std::trunc(minutes * 1.5 / 60);
  const double u = std::trunc(lon_d - 100);
  const double lat = sum_of_seconds(lat_d, lat_m, lat_s) - p * 60 / 1.5 * 60;
  const double lon = sum_of_seconds(lon_d, lon_m, lon_s) - (u + 100) * 60 * 60;
  const double q = std::trunc(lat / 300);
  const double v = std::trunc(lon / 450);
  return {digits(p) + digits(u), digits(q) + digits(v), lat - q * 300, lon - v * 450};
}

std::string ten_digits(const Second_level_cell& cell, double lat_step, double lon_step) {
  return cell.first + cell.second + two_digits(cell.lat_rest / lat_step) + two_digits(cell.lon_rest / lon_step);
}

void split(double t, bool whole_seconds, float& d_out, float& m_out, float& s_out) {
  double d = std::trunc(t / 3600);
  double m = std::trunc((t - d * 3600) / 60);
  double s = t - (d * 3600 + m * 60);
  if (whole_seconds) s = std::trunc(s);
  if (s == 60) {
    m += 1;
    s = 0;
  }
  if (m == 60) {
    d += 1;
    m = 0;
  }
  d_out = static_cast<float>(d);
  m_out = static_cast<float>(m);
  s_out = static_cast<float>(s);
}

}  // namespace

Half_code mesh_code_half(float lat_d, float lat_m, float lat_s, float lon_d, float lon_m, float lon_s) {
  const Second_level_cell cell = second_level_cell(lat_d, lat_m, lat_s, lon_d, lon_m, lon_s);
  const std::string six_digits = cell.first + cell.second;
  const double r = std::trunc(cell.lat_rest / 150);
  const double s = std::trunc(cell.lon_rest / 225);
  return {six_digits + digits(r * 5) + digits(s * 5), six_digits, cell.second};
}

std::string mesh_code_2x4(float lat_d, float lat_m, float lat_s, float lon_d, float lon_m, float lon_s) {
  return ten_digits(second_level_cell(lat_d, lat_m, lat_s, lon_d, lon_m, lon_s), 150, 112.5);
}

std::string mesh_code_6x10(float lat_d, float lat_m, float lat_s, float lon_d, float lon_m, float lon_s) {
  return ten_digits(second_level_cell(lat_d, lat_m, lat_s, lon_d, lon_m, lon_s), 50, 45);
}

std::string mesh_code_12x20(float lat_d, float lat_m, float lat_s, float lon_d, float lon_m, float lon_s) {
  return ten_digits(second_level_cell(lat_d, lat_m, lat_s, lon_d, lon_m, lon_s), 25, 22.5);
}

std::string mesh_code_24x40(float lat_d, float lat_m, float lat_s, float lon_d, float lon_m, float lon_s) {
  return ten_digits(second_level_cell(lat_d, lat_m, lat_s, lon_d, lon_m, lon_s), 25.0 / 2, 22.5 / 2);
}

Mesh_origin mesh_code_origin(std::string_view code) {
  const auto value = [code](std::size_t from, std::size_t count) {
    return platform::val(platform::cut_characters(code, from, count));
  };
  Mesh_origin origin{value(1, 2) / 1.5 * 3600 + value(5, 1) * 300, (value(3, 2) + 100) * 3600 + value(6, 1) * 450};
  if (platform::character_count(code) == 8) {
    origin.lat_seconds += value(7, 1) * 30;
    origin.lon_seconds += value(8, 1) * 45;
  }
  return origin;
}

Dms_pair seconds_to_dms(float lat_seconds, float lon_seconds, bool whole_seconds) {
  Dms_pair dms;
  split(finite(lat_seconds), whole_seconds, dms.lat_d, dms.lat_m, dms.lat_s);
  split(finite(lon_seconds), whole_seconds, dms.lon_d, dms.lon_m, dms.lon_s);
  return dms;
}

}  // namespace geodesy
