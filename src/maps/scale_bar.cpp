#include "maps/scale_bar.h"

#include <cmath>

#include "platform/numbers.h"

namespace maps {

Scale_bar scale_bar(const Canvas& canvas, double widest) {
  const double room = canvas.canvas_scale > 0 ? widest / canvas.canvas_scale : 0;
  if (!(room > 0) || !std::isfinite(room)) return {};
  const double decade = std::pow(10.0, std::floor(std::log10(room)));
  double metres = decade;
  for (const double step : {2.0, 5.0})
    if (step * decade <= room) metres = step * decade;
  Scale_bar bar{metres, metres * canvas.canvas_scale, ""};
  bar.text = metres >= 1000 ? platform::number_text(metres / 1000) + " km" : platform::number_text(metres) + " m";
  return bar;
}

}  // namespace maps
