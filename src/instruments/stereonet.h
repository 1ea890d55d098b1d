// The stereonet of measurements: the lower hemisphere in Lambert's azimuthal equal-area projection (Schmidt's net),
// north at the top. A direction stands at radius x sqrt(1 - z) from the centre, z being its part downwards.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "drawing/surface.h"
#include "instruments/scatter.h"

namespace instruments {

// Where the net stands, canvas units.
struct Net {
  drawing::Point centre;
  double radius = 0;
};

struct Net_texts {
  std::string mean;                     // the line of the mean below the net; empty: none
  std::string pole, lineation, circle;  // names of the signs, beside them
};

inline constexpr drawing::Colour pole_colour = drawing::black;
inline constexpr drawing::Colour lineation_colour = drawing::blue;
inline constexpr drawing::Colour mean_colour = 0xd00000;

// The net that fits into a picture with room for its letters above and its texts below.
Net net_in(double width, double height);
Net_texts net_texts(const std::optional<Scatter>& scatter, bool japanese);

// Where a direction stands; one that points up is taken by its other end.
drawing::Point net_point(const Net& net, const Direction& direction);
// The great circle of a plane from one end of its strike over its dip to the other, points 2 degrees apart.
std::vector<drawing::Point> great_circle(const Net& net, const Plane& plane);
// The circle at `angle` degrees about an axis: one line, or more where it leaves the net on one side and comes back on
// the other.
std::vector<std::vector<drawing::Point>> small_circle(const Net& net, const Axis& axis, double angle);

// Draws the net on white: its circle with a tick every 10 degrees, each pole with the mark of its measurement, the
// lineations, and the mean's pole, great circle and cone.
void stereonet_out(drawing::Surface& surface, const Net& net, const std::vector<Measured>& measured,
                   const std::optional<Scatter>& scatter, const Net_texts& texts);

}  // namespace instruments
