#include "instruments/scatter.h"

#include <algorithm>
#include <cmath>
#include <numbers>

#include "instruments/tiltvane_line.h"
#include "observations/clinometer_notation.h"
#include "observations/record_line.h"
#include "platform/numbers.h"

namespace instruments {
namespace {

namespace clinometer = observations::clinometer;
using observations::column_of;

constexpr double radian = std::numbers::pi / 180;
constexpr int sweeps = 50;               // of the eigenvector search; a handful suffices
constexpr double doubt = 0.05;           // 1 - 95 %
constexpr double no_difference = 1e-12;  // of the resultant from the count, by pole

using Matrix = std::array<std::array<double, 3>, 3>;

double dot(const Direction& a, const Direction& b) {
  return a[0] * b[0] + a[1] * b[1] + a[2] * b[2];
}

double length_of(const Direction& a) {
  return std::sqrt(dot(a, a));
}

double within_circle(double degrees) {
  const double turned = std::fmod(degrees, 360);
  return turned < 0 ? turned + 360 : turned;
}

Matrix tensor_of(const std::vector<Direction>& poles) {
  Matrix tensor{};
  for (const Direction& pole : poles)
    for (std::size_t i = 0; i < 3; ++i)
      for (std::size_t j = 0; j < 3; ++j) tensor[i][j] += pole[i] * pole[j] / static_cast<double>(poles.size());
  return tensor;
}

// One rotation of Jacobi's method that takes the element (p, q) of a symmetric matrix to 0; the columns of `vectors`
// turn along.
void rotate(Matrix& matrix, Matrix& vectors, std::size_t p, std::size_t q) {
  if (matrix[p][q] == 0) return;
  const double theta = (matrix[q][q] - matrix[p][p]) / (2 * matrix[p][q]);
  const double t = (theta < 0 ? -1 : 1) / (std::abs(theta) + std::sqrt(theta * theta + 1));
  const double c = 1 / std::sqrt(t * t + 1), s = t * c;
  for (std::size_t k = 0; k < 3; ++k) {
    const double a = matrix[k][p], b = matrix[k][q];
    matrix[k][p] = c * a - s * b;
    matrix[k][q] = s * a + c * b;
  }
  for (std::size_t k = 0; k < 3; ++k) {
    const double a = matrix[p][k], b = matrix[q][k];
    matrix[p][k] = c * a - s * b;
    matrix[q][k] = s * a + c * b;
    const double u = vectors[k][p], v = vectors[k][q];
    vectors[k][p] = c * u - s * v;
    vectors[k][q] = s * u + c * v;
  }
}

struct Common_axis {
  Direction direction{};
  double share = 0;
};

Common_axis common_axis(Matrix tensor) {
  Matrix vectors{{{1, 0, 0}, {0, 1, 0}, {0, 0, 1}}};
  for (int sweep = 0; sweep < sweeps; ++sweep)
    for (std::size_t p = 0; p < 2; ++p)
      for (std::size_t q = p + 1; q < 3; ++q) rotate(tensor, vectors, p, q);
  std::size_t first = 0;
  for (std::size_t i = 1; i < 3; ++i)
    if (tensor[i][i] > tensor[first][first]) first = i;
  return {{vectors[0][first], vectors[1][first], vectors[2][first]}, tensor[first][first]};
}

Direction sum_along(const std::vector<Direction>& poles, const Direction& side) {
  Direction sum{};
  for (const Direction& pole : poles)
    for (std::size_t i = 0; i < 3; ++i) sum[i] += dot(pole, side) < 0 ? -pole[i] : pole[i];
  return sum;
}

// Fisher's (1953) cone: cos = 1 - (n - R) / R * (P^(-1 / (n - 1)) - 1).
std::optional<double> cone_of(double n, double resultant) {
  const double cosine = 1 - (n - resultant) / resultant * (std::pow(doubt, -1 / (n - 1)) - 1);
  if (cosine < -1) return {};
  return std::acos(cosine) / radian;
}

std::string one_decimal_text(double value) {
  return platform::format_number(value, "##0.0");
}

std::optional<Plane> measured_plane(std::string_view line, double declination) {
  const std::string_view strike = column_of(line, 3);
  if (platform::trim_text(strike).empty() || strike == no_plane) return {};
  double a = 0, d = 0;
  clinometer::角度変換(strike, column_of(line, 4), a, d);
  if (!std::isfinite(a + declination)) return {};
  return Plane{within_circle(a + declination), d};
}

std::optional<Axis> measured_lineation(std::string_view line, double declination) {
  const std::string_view azimuth = column_of(line, 6);
  if (column_of(line, 2) != "L" || platform::trim_text(azimuth).empty() || azimuth == no_plane) return {};
  double a = 0, d = 0;
  clinometer::線角度変換(azimuth, column_of(line, 7), a, d);
  if (!std::isfinite(a + declination)) return {};
  return Axis{within_circle(a + declination), d};
}

}  // namespace

Axis pole_of(const Plane& plane) {
  return {within_circle(plane.azimuth - 90), 90 - plane.dip};
}

Plane plane_of(const Axis& pole) {
  return {within_circle(pole.trend + 90), 90 - pole.plunge};
}

Direction direction_of(const Axis& axis) {
  const double level = std::cos(axis.plunge * radian);
  return {level * std::cos(axis.trend * radian), level * std::sin(axis.trend * radian), std::sin(axis.plunge * radian)};
}

Axis axis_of(const Direction& direction) {
  const double length = length_of(direction);
  const double side = direction[2] < 0 ? -1 : 1;
  const double down = std::clamp(side * direction[2] / length, -1.0, 1.0);
  return {within_circle(std::atan2(side * direction[1], side * direction[0]) / radian), std::asin(down) / radian};
}

std::optional<Scatter> scatter_of(const std::vector<Plane>& planes) {
  if (planes.empty()) return {};
  std::vector<Direction> poles;
  poles.reserve(planes.size());
  for (const Plane& plane : planes) poles.push_back(direction_of(pole_of(plane)));
  const Common_axis common = common_axis(tensor_of(poles));
  const Direction sum = sum_along(poles, common.direction);
  const auto n = static_cast<double>(poles.size());
  Scatter scatter;
  scatter.count = static_cast<int>(poles.size());
  scatter.mean = plane_of(axis_of(sum));
  scatter.resultant = length_of(sum);
  scatter.share = common.share;
  if (poles.size() > 1 && n - scatter.resultant > n * no_difference) {
    scatter.k = (n - 1) / (n - scatter.resultant);
    scatter.cone = cone_of(n, scatter.resultant);
  }
  return scatter;
}

Measured measured_of(std::string_view line, double declination) {
  return {measured_plane(line, declination), measured_lineation(line, declination),
          platform::trim_text(column_of(line, 9))};
}

std::vector<Measured> measured_of(const std::vector<std::string>& lines, double declination) {
  std::vector<Measured> measured;
  measured.reserve(lines.size());
  for (const std::string& line : lines) measured.push_back(measured_of(line, declination));
  return measured;
}

std::string plane_text(const Plane& plane) {
  const double line = std::fmod(within_circle(plane.azimuth), 180);
  const bool east = line <= 90;
  const std::string number = one_decimal_text(east ? line : 180 - line);
  const double fall = within_circle(plane.azimuth + 90);
  const bool steep_to_side = line <= 45 || line >= 135;  // near north and south: it falls to the east or to the west
  const char letter = steep_to_side ? (fall < 180 ? 'E' : 'W') : (fall > 90 && fall < 270 ? 'S' : 'N');
  return "N" + number + (east ? "E " : "W ") + one_decimal_text(plane.dip) + letter;
}

std::string scatter_text(const std::optional<Scatter>& scatter, bool japanese) {
  if (!scatter) return japanese ? "選択された行に面がありません。" : "No plane among the ticked rows.";
  std::string text = "n = " + platform::number_text(scatter->count) + (japanese ? "   平均 " : "   mean ") +
                     plane_text(scatter->mean) + "   k = ";
  text += scatter->k ? one_decimal_text(*scatter->k) : "-";
  text += "   α95 = ";
  return text + (scatter->cone ? one_decimal_text(*scatter->cone) + "°" : "-");
}

std::vector<Plane> planes_of(const std::vector<Measured>& measured) {
  std::vector<Plane> planes;
  for (const Measured& one : measured)
    if (one.plane) planes.push_back(*one.plane);
  return planes;
}

}  // namespace instruments
