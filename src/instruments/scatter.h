// The mean and the scatter of planes that were measured at one place, by their poles. A pole is an axis: it has no
// upper and no lower end, so the poles of two steep planes that fall to opposite sides lie close together though their
// lower ends point away from each other.
#pragma once

#include <array>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace instruments {

// Azimuth of the strike, 0 to 360 degrees, the plane falling to its right; dip 0 to 90.
struct Plane {
  double azimuth = 0, dip = 0;
};
// A line in the lower hemisphere: where it points to, 0 to 360 degrees, and how steeply down, 0 to 90.
struct Axis {
  double trend = 0, plunge = 0;
};

// North, east, down; of length 1.
using Direction = std::array<double, 3>;

Axis pole_of(const Plane& plane);
// The plane with this pole.
Plane plane_of(const Axis& pole);
Direction direction_of(const Axis& axis);
// The axis along a direction; one that points up is taken by its other end.
Axis axis_of(const Direction& direction);

struct Scatter {
  int count = 0;
  Plane mean;            // the plane whose pole is the spherical mean of the poles
  double resultant = 0;  // length of the poles' sum, each of them by the end on the side of their common axis
  // Fisher's precision, (n - 1) / (n - resultant); none for fewer than two poles, and where all are the same, for
  // which it has no bound. R. A. Fisher, "Dispersion on a sphere", Proc. R. Soc. Lond. A 217 (1953), 295-305.
  std::optional<double> k;
  // Half the angle, in degrees, of the cone about the mean pole that holds the true one with a probability of 95 %, by
  // the same paper; none where k has none, and for poles too scattered to have one.
  std::optional<double> cone;
  // The share of the poles' orientation tensor that lies along their common axis: 1/3 for poles all around, 1 for poles
  // that are the same. Below 1/2 a mean says little.
  double share = 0;
};

// Which end of each pole counts is settled by their common axis, the first eigenvector of the orientation tensor (N. I.
// Fisher, T. Lewis, B. J. J. Embleton, "Statistical Analysis of Spherical Data", 1987, section 3.2.4). None for no
// plane.
std::optional<Scatter> scatter_of(const std::vector<Plane>& planes);

// The plane in readings from the north, "N50.2E 49.1S", its dip with the letter of the quadrant into which it falls.
std::string plane_text(const Plane& plane);
// "n = 12   mean N50.2E 49.1S   k = 35.2   α95 = 7.4°", "-" where there is no number.
std::string scatter_text(const std::optional<Scatter>& scatter, bool japanese);

// What a stereonet shows of one row: its plane and its lineation, and the mark that it bears.
struct Measured {
  std::optional<Plane> plane;
  std::optional<Axis> lineation;
  std::string mark;
};

// From the magnetic columns of a measurement's line; `declination` in degrees is added to its azimuths.
Measured measured_of(std::string_view line, double declination);
std::vector<Measured> measured_of(const std::vector<std::string>& lines, double declination);
std::vector<Plane> planes_of(const std::vector<Measured>& measured);

}  // namespace instruments
