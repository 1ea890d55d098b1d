#include "observations/geomagnetic_field.h"

#include <algorithm>
#include <cmath>
#include <string_view>
#include <vector>

#include "platform/numbers.h"

namespace observations {
namespace {

constexpr double reference_radius = 6371.2;   // km
constexpr double semi_major_axis = 6378.137;  // km
constexpr double inverse_flattening = 298.25722;
// Below this sine of the colatitude a place is a pole.
constexpr double pole_sine = 1.5e-9;

// ---- coefficient file ----

std::vector<std::string_view> tokens_of(std::string_view line) {
  constexpr std::string_view blanks = " \t";
  std::vector<std::string_view> tokens;
  for (std::size_t at = line.find_first_not_of(blanks); at != std::string_view::npos;) {
    const std::size_t end = std::min(line.find_first_of(blanks, at), line.size());
    tokens.push_back(line.substr(at, end - at));
    at = line.find_first_not_of(blanks, end);
  }
  return tokens;
}

// A token's value; 0 past the last token.
double value_at(const std::vector<std::string_view>& tokens, std::size_t index) {
  return index < tokens.size() ? platform::val(tokens[index]) : 0;
}

// A token's value as a degree or an order; -1 when it is no whole number from 0 to 20.
int degree_at(const std::vector<std::string_view>& tokens, std::size_t index) {
  const double value = index < tokens.size() ? platform::val(tokens[index]) : -1;
  const bool whole = value >= 0 && value <= largest_degree && value == platform::fix(value);
  return whole ? static_cast<int>(value) : -1;
}

// The header:
//
//      IGRF2005  2005.00 13  8  0 2005.00 2010.00   -1.0  600.0         IGRF2005   0
//      0         1       2   3  4
struct Header {
  std::string model;
  double epoch = 0;
  double main_degree = 0;       // beyond it a row is left out
  double variation_degree = 0;  // beyond it a row has no secular variation
};

Header header_of(std::string_view line) {
  const auto tokens = tokens_of(line);
  if (tokens.empty()) return {};
  return {std::string(tokens[0]), value_at(tokens, 1), value_at(tokens, 2), value_at(tokens, 3)};
}

// A row, and what it does to the tables:
//
//    1  1  -1671.80   5080.00     10.80    -21.30                       IGRF2005   2
//    0  1  2          3           4        5
//    n  m  g          h           dg       dh  (nanotesla, nanotesla a year)
void take_row(const std::vector<std::string_view>& tokens, const Header& header, Geomagnetic_field& field) {
  const int n = degree_at(tokens, 0);
  const int m = degree_at(tokens, 1);
  if (n < 1 || m < 0 || m > n || n > header.main_degree) return;
  const double years = n <= header.variation_degree ? evaluation_epoch - header.epoch : 0;
  const auto row = static_cast<std::size_t>(n);
  const auto column = static_cast<std::size_t>(m);
  field.g[row][column] = value_at(tokens, 2) + years * value_at(tokens, 4);
  field.h[row][column] = value_at(tokens, 3) + years * value_at(tokens, 5);
}

// The rows of one model end at the header of the next.
bool begins_a_row(const std::vector<std::string_view>& tokens) {
  return platform::val(tokens[0]) >= 1;
}

int order_in_use(const Geomagnetic_field& field) {
  const auto is_zero = [](double value) { return value == 0; };
  for (std::size_t n = largest_degree; n > 0; --n)
    if (!std::all_of(field.g[n].begin(), field.g[n].end(), is_zero) ||
        !std::all_of(field.h[n].begin(), field.h[n].end(), is_zero))
      return static_cast<int>(n);
  return 0;
}

// ---- synthesis ----

// The factors of the recursion of Schmidt quasi-normal functions:
//   P(n,m) = step * cos * P(n-1,m) - back * P(n-2,m),  P(m,m) = diagonal * sin * P(m-1,m-1)
//   sin * dP(n,m)/d(colatitude) = n * cos * P(n,m) - root * P(n-1,m)
struct Legendre_factors {
  Gauss_table step{}, back{}, root{};
  std::array<double, largest_degree + 1> diagonal{};
  std::array<double, largest_degree + 1> zonal{};  // dP(n,0)/d(colatitude) = -zonal * P(n,1)
};

Legendre_factors make_factors() {
  Legendre_factors factors;
  for (int n = 1; n <= largest_degree; ++n) {
    const auto row = static_cast<std::size_t>(n);
    factors.diagonal[row] = n == 1 ? 1 : std::sqrt((2.0 * n - 1) / (2.0 * n));
    factors.zonal[row] = std::sqrt(n * (n + 1) / 2.0);
    for (int m = 0; m < n; ++m) {
      const auto column = static_cast<std::size_t>(m);
      const double root = std::sqrt(static_cast<double>(n * n - m * m));
      factors.root[row][column] = root;
      factors.step[row][column] = (2 * n - 1) / root;
      factors.back[row][column] = m < n - 1 ? std::sqrt(static_cast<double>((n - 1) * (n - 1) - m * m)) / root : 0;
    }
  }
  return factors;
}

// A place on the sphere of the harmonics.
struct Geocentric {
  double radius;              // km
  double cosine, sine;        // of the colatitude
  double up_cosine, up_sine;  // of the angle from the geocentric to the geodetic vertical, towards the north
};

Geocentric geocentric_of(double latitude, double altitude) {
  constexpr double flattening = 1 / inverse_flattening;
  constexpr double axes_ratio = (1 - flattening) * (1 - flattening);
  const double sine = std::sin(latitude);
  const double cosine = std::cos(latitude);
  const double normal = semi_major_axis / std::sqrt(cosine * cosine + axes_ratio * sine * sine);
  const double out = (normal + altitude) * cosine;
  const double along = (axes_ratio * normal + altitude) * sine;
  const double radius = std::hypot(out, along);
  Geocentric place{radius, along / radius, out / radius, 0, 0};
  place.up_cosine = cosine * place.sine + sine * place.cosine;
  place.up_sine = sine * place.sine - cosine * place.cosine;
  // At a pole the harmonics take their limit.
  if (place.sine < pole_sine) place.sine = 0;
  return place;
}

// The sums of one order m over all degrees, each term with its power of the radius. `q` stands for P(n,m) divided by
// the sine of the colatitude, so that the east component and the derivative have no division and reach their limit at a
// pole.
struct Order_sums {
  double g_slope = 0, h_slope = 0;  // with dP(n,m)/d(colatitude)
  double g_east = 0, h_east = 0;    // with P(n,m) / sine
  double g_down = 0, h_down = 0;    // with (n + 1) P(n,m)
};

using Powers = std::array<double, largest_degree + 1>;

Order_sums sums_of_order(const Geomagnetic_field& field, const Legendre_factors& factors, const Powers& powers,
                         const Geocentric& place, std::size_t m, double q) {
  Order_sums sums;
  double before = 0;
  for (std::size_t n = m; n <= static_cast<std::size_t>(field.order); ++n) {
    if (n > m) {
      const double next = factors.step[n][m] * place.cosine * q - factors.back[n][m] * before;
      before = q;
      q = next;
    }
    const double degree = static_cast<double>(n);
    const double g = powers[n] * field.g[n][m];
    const double h = powers[n] * field.h[n][m];
    const double slope = degree * place.cosine * q - factors.root[n][m] * before;
    sums.g_slope += g * slope;
    sums.h_slope += h * slope;
    sums.g_east += g * q;
    sums.h_east += h * q;
    sums.g_down += (degree + 1) * g * q;
    sums.h_down += (degree + 1) * h * q;
  }
  sums.g_down *= place.sine;
  sums.h_down *= place.sine;
  return sums;
}

// The zonal terms, whose derivative comes from the functions of order 1.
void add_zonal(const Geomagnetic_field& field, const Legendre_factors& factors, const Powers& powers,
               const Geocentric& place, Field_vector& sphere) {
  double p_before = 0, p = 1;  // P(n-1,0), P(n,0)
  double q_before = 0, q = 0;  // P(n-1,1) / sine, P(n,1) / sine
  for (std::size_t n = 1; n <= static_cast<std::size_t>(field.order); ++n) {
    const double next_p = factors.step[n][0] * place.cosine * p - factors.back[n][0] * p_before;
    const double next_q = n == 1 ? 1 : factors.step[n][1] * place.cosine * q - factors.back[n][1] * q_before;
    p_before = p;
    p = next_p;
    q_before = q;
    q = next_q;
    const double g = powers[n] * field.g[n][0];
    sphere.X -= g * factors.zonal[n] * place.sine * q;
    sphere.Z -= static_cast<double>(n + 1) * g * p;
  }
}

// North, east and down on the sphere.
Field_vector sphere_field(const Geomagnetic_field& field, const Geocentric& place, double longitude) {
  static const Legendre_factors factors = make_factors();
  Powers powers{};
  const double ratio = reference_radius / place.radius;
  powers[0] = ratio * ratio;
  for (std::size_t n = 1; n <= static_cast<std::size_t>(field.order); ++n) powers[n] = powers[n - 1] * ratio;
  Field_vector sphere;
  add_zonal(field, factors, powers, place, sphere);
  const double cosine = std::cos(longitude);
  const double sine = std::sin(longitude);
  double cos_m = 1, sin_m = 0;
  double diagonal = 1;  // P(m,m) / sine
  for (std::size_t m = 1; m <= static_cast<std::size_t>(field.order); ++m) {
    const double next = cos_m * cosine - sin_m * sine;
    sin_m = sin_m * cosine + cos_m * sine;
    cos_m = next;
    if (m > 1) diagonal *= factors.diagonal[m] * place.sine;
    const Order_sums sums = sums_of_order(field, factors, powers, place, m, diagonal);
    sphere.X += sums.g_slope * cos_m + sums.h_slope * sin_m;
    sphere.Y += static_cast<double>(m) * (sums.g_east * sin_m - sums.h_east * cos_m);
    sphere.Z -= sums.g_down * cos_m + sums.h_down * sin_m;
  }
  return sphere;
}

}  // namespace

Geomagnetic_field field_of_lines(std::span<const std::string> lines) {
  Geomagnetic_field field;
  if (lines.empty()) return field;
  const Header header = header_of(lines.front());
  if (!(header.epoch > 0)) return field;
  int rows = 0;
  for (const std::string& line : lines.subspan(1)) {
    const auto tokens = tokens_of(line);
    if (tokens.empty()) continue;
    if (!begins_a_row(tokens) || ++rows > largest_coefficient_rows) break;
    take_row(tokens, header, field);
  }
  field.model = header.model;
  field.epoch = header.epoch;
  field.order = order_in_use(field);
  return field;
}

Field_vector field_at(const Geomagnetic_field& field, double latitude, double longitude, double altitude) {
  const Geocentric place = geocentric_of(latitude / degrees_per_radian, altitude / 1000);
  const Field_vector sphere = sphere_field(field, place, longitude / degrees_per_radian);
  return {sphere.X * place.up_cosine + sphere.Z * place.up_sine, sphere.Y,
          sphere.Z * place.up_cosine - sphere.X * place.up_sine};
}

}  // namespace observations
