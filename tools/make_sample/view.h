// The part of the place that one picture shows, and the measures that follow from it.
#pragma once

#include <QPointF>
#include <cmath>

#include "make_sample/streams.h"

namespace sample {

enum class Theme { topographic, geological, slope };

struct View {
  double west = 0, south = 0, east = 0, north = 0;  // metres
  int width = 0, height = 0;                        // pixels
  int scale = 25000;                                // of the printed map that the picture is a scan of
  Theme theme = Theme::topographic;
};

inline double pixels_per_metre(const View& view) {
  return view.width / (view.east - view.west);
}
// Pixels for a millimetre on the printed map: signs and letters are measured in these, whatever the picture's size.
inline double pixels_per_mm(const View& view) {
  return pixels_per_metre(view) * view.scale / 1000;
}

inline QPointF pixel_of(const View& view, ground::Point at) {
  return {(at.x - view.west) * view.width / (view.east - view.west),
          (view.north - at.y) * view.height / (view.north - view.south)};
}
inline ground::Point point_at(const View& view, double column, double row) {
  return {view.west + column * (view.east - view.west) / view.width,
          view.north - row * (view.north - view.south) / view.height};
}
inline bool in_view(const View& view, ground::Point at, double margin_metres) {
  return at.x > view.west - margin_metres && at.x < view.east + margin_metres && at.y > view.south - margin_metres &&
         at.y < view.north + margin_metres;
}

}  // namespace sample
