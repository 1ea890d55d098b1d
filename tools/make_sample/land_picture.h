// The land itself, pixel by pixel: tints, relief shading, contours and still water. Lines and names are drawn over it
// by sheet_painter.
#pragma once

#include <QImage>

#include "make_sample/country.h"
#include "make_sample/view.h"

namespace sample {

// A 32-bit picture of the view. Contours every 10 m at 1:25,000 and every 20 m at 1:50,000, each fifth one bold.
QImage land_picture(const Country& country, const View& view);

inline constexpr int contour_interval(int scale) {
  return scale >= 50000 ? 20 : 10;
}

}  // namespace sample
