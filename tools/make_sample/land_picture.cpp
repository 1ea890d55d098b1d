#include "make_sample/land_picture.h"

#include <algorithm>
#include <cmath>

namespace sample {

namespace {

struct Tint {
  double red = 0, green = 0, blue = 0;
};

constexpr Tint open_land{254, 252, 243};
constexpr Tint forest{217, 236, 204};
constexpr Tint high_forest{228, 235, 212};
constexpr Tint water{176, 214, 236};
constexpr Tint shore{70, 135, 190};
constexpr Tint contour_brown{171, 118, 70};
constexpr Tint strata_tints[ground::strata] = {{198, 214, 190}, {246, 225, 160}, {214, 196, 226}, {247, 206, 176}};

Tint mix(const Tint& a, const Tint& b, double part) {
  return {a.red + part * (b.red - a.red), a.green + part * (b.green - a.green), a.blue + part * (b.blue - a.blue)};
}

// Shadows go towards a cool grey, so that the tints stay clean.
constexpr Tint shadow{92, 112, 116};

Tint lit(const Tint& tint, double light) {
  if (light < 1) return mix(tint, shadow, 1 - light);
  return {tint.red * light, tint.green * light, tint.blue * light};
}

QRgb packed(const Tint& tint) {
  const auto part = [](double value) { return std::clamp(static_cast<int>(value + 0.5), 0, 255); };
  return qRgb(part(tint.red), part(tint.green), part(tint.blue));
}

double smooth_step(double from, double to, double value) {
  const double t = std::clamp((value - from) / (to - from), 0.0, 1.0);
  return t * t * (3 - 2 * t);
}

// Light from the north-west, 45 degrees high: 1 on level ground.
double light_on(const ground::Height& height, double strength) {
  const double facing = (height.dx - height.dy) / std::sqrt(2.0);
  const double light = (1 + facing) / std::sqrt(1 + height.dx * height.dx + height.dy * height.dy);
  return std::clamp(1 + strength * (light - 1), 0.5, 1.06);
}

// How much of a contour of the given width in pixels covers a pixel: its distance is the height's over the slope.
double contour_cover(double height, double interval, double slope, double metres_per_pixel, double width) {
  const double steps = height / interval;
  const double away =
      std::abs(steps - static_cast<int>(steps + 0.5)) * interval / std::max(slope, 0.004) / metres_per_pixel;
  return std::clamp(width / 2 + 0.5 - away, 0.0, 1.0);
}

struct Contours {
  double interval = 10;
  double metres_per_pixel = 1;
  double thin = 0.8, bold = 1.4;  // pixels
};

Contours contours_of(const View& view) {
  const double mm = pixels_per_mm(view);
  return {static_cast<double>(contour_interval(view.scale)), 1 / pixels_per_metre(view), std::max(0.72, 0.085 * mm),
          std::max(1.15, 0.19 * mm)};
}

Tint with_contours(const Tint& land, const Contours& contours, const ground::Height& height, double slope) {
  const double thin = contour_cover(height.z, contours.interval, slope, contours.metres_per_pixel, contours.thin);
  const double bold = contour_cover(height.z, 5 * contours.interval, slope, contours.metres_per_pixel, contours.bold);
  // Where they crowd they are drawn weaker, or the slope would turn all brown.
  const double apart = contours.interval / std::max(slope, 0.01) / contours.metres_per_pixel;
  const double strength = 0.34 + 0.4 * smooth_step(1.8, 6.0, apart);
  return mix(land, contour_brown, std::max(thin * strength, bold * 0.88));
}

Tint topographic_tint(const Country& country, Point at, const ground::Height& height, double slope) {
  const Tint wood = mix(forest, high_forest, smooth_step(350, 800, height.z));
  const double open = (1 - smooth_step(0.07, 0.2, slope)) * valley_at(country.relief, at.x, at.y);
  return mix(wood, open_land, open);
}

Tint geological_tint(Point at, double z) {
  return strata_tints[ground::stratum_at(at.x, at.y, z) - 1];
}

// Grey by steepness, warm on the sunny side: cliffs, gullies and landslips stand out.
Tint slope_tint(const ground::Height& height, double slope) {
  const double steep = smooth_step(0, 1.1, slope);
  const Tint grey = mix({252, 250, 246}, {84, 78, 84}, std::pow(steep, 0.8));
  return mix(grey, {232, 150, 104}, 0.28 * smooth_step(-0.2, 0.6, (height.dx - height.dy) / std::sqrt(2.0)));
}

Tint land_tint(const Country& country, const View& view, const Contours& contours, Point at,
               const ground::Height& height) {
  const double slope = std::sqrt(height.dx * height.dx + height.dy * height.dy);
  if (under_lake(country, at, height.z)) {
    const double away = (country.lake.level - height.z) / std::max(slope, 0.01) / contours.metres_per_pixel;
    return mix(shore, water, std::clamp(away - 0.7, 0.0, 1.0));
  }
  switch (view.theme) {
    case Theme::geological:
      return with_contours(lit(geological_tint(at, height.z), light_on(height, 0.5)), contours, height, slope);
    case Theme::slope:
      return slope_tint(height, slope);
    case Theme::topographic:
      break;
  }
  return with_contours(lit(topographic_tint(country, at, height, slope), light_on(height, 0.46)), contours, height,
                       slope);
}

}  // namespace

QImage land_picture(const Country& country, const View& view) {
  QImage picture(view.width, view.height, QImage::Format_RGB32);
  const Contours contours = contours_of(view);
  for (int row = 0; row < view.height; ++row) {
    QRgb* line = reinterpret_cast<QRgb*>(picture.scanLine(row));
    const Relief_row heights = relief_row(country.relief, point_at(view, 0, row + 0.5).y);
    for (int column = 0; column < view.width; ++column) {
      const Point at = point_at(view, column + 0.5, row + 0.5);
      line[column] = packed(land_tint(country, view, contours, at, relief_at(heights, at.x)));
    }
  }
  return picture;
}

}  // namespace sample
