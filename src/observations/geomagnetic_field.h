// The International Geomagnetic Reference Field at one fixed time: its Gauss coefficients, read from a coefficient
// file, and the spherical-harmonic synthesis of the field at a place.
#pragma once

#include <array>
#include <span>
#include <string>

namespace observations {

inline constexpr int largest_degree = 20;
inline constexpr int largest_coefficient_rows = 400;
// The field is always that of this year, whatever the date is.
inline constexpr double evaluation_epoch = 2005.0;

using Gauss_table = std::array<std::array<double, largest_degree + 1>, largest_degree + 1>;  // [n][m], nanotesla

// The coefficients brought to `evaluation_epoch`.
struct Geomagnetic_field {
  std::string model;  // the name in the file's header, "IGRF2005"
  double epoch = 0;   // the file's own, years
  int order = 0;      // the highest degree with a coefficient other than 0; 0: there is no field
  Gauss_table g{}, h{};
};

// North, east and down components at a place, nanotesla.
struct Field_vector {
  double X = 0, Y = 0, Z = 0;
};

// From the lines of a coefficient file (docs/formats/igrf10.coef.md tells the reading of odd ones). A text that holds
// no model gives a field of order 0.
Geomagnetic_field field_of_lines(std::span<const std::string> lines);

// The field at geodetic latitude and longitude in degrees (WGS-84) and an altitude in metres, by the synthesis of
// Schmidt quasi-normal harmonics (Langel, "The main field", in Geomagnetism I, 1987, sections 3.2 and 4).
Field_vector field_at(const Geomagnetic_field& field, double latitude, double longitude, double altitude);

// Degrees to a radian as the system has them; the last digits differ from 180/pi.
inline constexpr double degrees_per_radian = 57.29577951307855;

}  // namespace observations
