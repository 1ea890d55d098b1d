#include "geodesy/datum.h"

#include <cmath>

#include "geodesy/arithmetic.h"
#include "geodesy/geocentric.h"
#include "geodesy/packed_angle.h"
#include "platform/failures.h"
#include "platform/numbers.h"

namespace geodesy {
namespace {

void check_digit(double digit, double highest, const char* told) {
  if (digit >= 0 && digit <= highest) return;
  throw platform::Type_failure("LatLon2MeshCode: " + std::string(told) + platform::number_text(digit));
}

// LatLon2MeshCode without the text form, which the conversion has no use for.
Mesh_record mesh_of(double latitude, double longitude) {
  double m1 = std::floor(finite(latitude * 1.5));
  double m2 = std::floor(finite(longitude)) - 100;
  double m3 = std::floor((latitude * 1.5 - m1) * 8);
  double m4 = std::floor((longitude - (m2 + 100)) * 8);
  double m5 = std::floor((latitude * 12 - m1 * 8 - m3) * 10 + 1e-11);
  double m6 = std::floor(((longitude - (m2 + 100)) * 8 - m4) * 10 + 1e-11);
  if (m5 == 10) {
    m5 = 0;
    m3 += 1;
    if (m3 == 8) {
      m3 = 0;
      m1 += 1;
    }
  }
  if (m6 == 10) {
    m6 = 0;
    m4 += 1;
    if (m4 == 8) {
      m4 = 0;
      m2 += 1;
    }
  }
  const double y = latitude * 120 - m1 * 80 - m3 * 10 - m5;
  const double x = (longitude - (m2 + 100)) * 80 - m4 * 10 - m6;
  check_mesh_digits(m3, m4, m5, m6);
  Mesh_record mesh;
  mesh.first = whole(m1 * 100 + m2);
  mesh.second = whole(m3 * 10 + m4);
  mesh.third = whole(m5 * 10 + m6);
  mesh.code = whole(mesh.first * 10000.0 + mesh.second * 100 + mesh.third);
  mesh.y = y;
  mesh.x = x;
  return mesh;
}

// What the 8-digit number grows by, one cell east and one cell north: a digit past 9 at the third level and past 7 at
// the second starts again at 0 and carries.
int step_east(const Mesh_record& mesh) {
  if (mesh.third % 10 < 9) return 1;
  return mesh.second % 10 < 7 ? 100 - 9 : 10000 - 700 - 9;
}

int step_north(const Mesh_record& mesh) {
  if (mesh.third / 10 < 9) return 10;
  return mesh.second / 10 < 7 ? 1000 - 90 : 1000000 - 7000 - 90;
}

}  // namespace

void check_mesh_digits(double m3, double m4, double m5, double m6) {
  check_digit(m3, 7, "緯度の2次メッシュコードが0-7の範囲にありません。 ");
  check_digit(m4, 7, "経度の2次メッシュコードが0-7の範囲にありません。 ");
  check_digit(m5, 9, "緯度の3次メッシュコードが0-9の範囲にありません。 ");
  check_digit(m6, 9, "経度の3次メッシュコードが0-9の範囲にありません。 ");
}

Mesh_record LatLon2MeshCode(double latitude, double longitude) {
  Mesh_record mesh = mesh_of(latitude, longitude);
  mesh.text = platform::format_number(mesh.first, "0000") + "-" + platform::format_number(mesh.second, "00") + "-" +
              platform::format_number(mesh.third, "00");
  return mesh;
}

Neighbours next_meshes(const Mesh_record& mesh) {
  const double code = mesh.code;
  const int east = step_east(mesh);
  const int north = step_north(mesh);
  return {whole(code + east), whole(code + north), whole(code + east + north)};
}

double bilinear(double sw, double se, double nw, double ne, double x, double y) {
  return sw + (se - sw) * x + (nw - sw) * y + (ne - se - nw + sw) * x * y;
}

Shift mesh_shift(const Shift_table& table, double latitude, double longitude) {
  if (!(latitude >= 20 && latitude <= 46 && longitude >= 120 && longitude <= 154)) return {};
  const Mesh_record mesh = mesh_of(latitude, longitude);
  const Neighbours next = next_meshes(mesh);
  const int sw = find_row(table, mesh.code, 1);
  if (sw == 0) return {};
  const int se = find_row(table, next.east, sw);
  if (se == 0) return {};
  const int nw = find_row(table, next.north, se);
  if (nw == 0) return {};
  const int ne = find_row(table, next.north_east, nw);
  if (ne == 0) return {};
  const auto interpolated = [&](const auto& shifts) {
    return bilinear(shifts[sw], shifts[se], shifts[nw], shifts[ne], mesh.x, mesh.y);
  };
  return {interpolated(table.dB), interpolated(table.dL)};
}

bool tky2jgd(const Shift_table& table, double packed_longitude, double packed_latitude, double& longitude,
             double& latitude) {
  const Unpacked_angle lat = unpack(packed_latitude);
  if (!(lat.sign >= 0 && lat.degrees >= 20 && lat.degrees < 47)) return false;
  const Unpacked_angle lon = unpack(packed_longitude);
  if (!(lon.sign >= 0 && lon.degrees >= 120 && lon.degrees < 155)) return false;
  const Shift shift = mesh_shift(table, lat.decimal, lon.decimal);
  if (shift.dB != no_shift && shift.dL != no_shift) {
    latitude = lat.decimal + shift.dB / 3600;
    longitude = lon.decimal + shift.dL / 3600;
  } else {
    const Position shifted = shift_3parameters(lat.decimal, lon.decimal);
    latitude = shifted.latitude;
    longitude = shifted.longitude;
  }
  return true;
}

bool SOKUCHIKEI_HENKAN(const Shift_table& table, double lat_d, double lat_m, double lat_s, double lon_d, double lon_m,
                       double lon_s, double& lat_seconds, double& lon_seconds) {
  const double packed_latitude = degrees_to_packed((lat_d * 3600 + lat_m * 60 + lat_s) / 3600);
  const double packed_longitude = degrees_to_packed((lon_d * 3600 + lon_m * 60 + lon_s) / 3600);
  double longitude = 0;
  double latitude = 0;
  if (!tky2jgd(table, packed_longitude, packed_latitude, longitude, latitude)) return false;
  const auto seconds = [](double degrees) {
    const Signed_dms dms = degrees_to_dms(degrees);
    return static_cast<double>(single(dms.d)) * 3600 + static_cast<double>(single(dms.m)) * 60 +
           static_cast<double>(single(dms.s));
  };
  lat_seconds = seconds(latitude);
  lon_seconds = seconds(longitude);
  return true;
}

}  // namespace geodesy
