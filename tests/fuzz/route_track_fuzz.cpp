// A text track of any bytes: at most 10,000 points, and what is drawn of it keeps to the canvas.
#include <cmath>

#include "instruments/routes.h"
#include "one_file.h"

namespace {

class Checking_surface : public drawing::Surface {
 public:
  void clear(drawing::Colour) override {}
  void line(drawing::Point, drawing::Point, const drawing::Pen&) override {}
  void polyline(std::span<const drawing::Point> points, const drawing::Pen&) override {
    support::promise(points.size() > 1);
    // A canvas of 1600 by 1200 units, and 20 units beyond its edges.
    for (const drawing::Point& at : points)
      support::promise(at.x >= -20 && at.x <= 1620 && at.y >= -20 && at.y <= 1220);
  }
  void polygon(std::span<const drawing::Point>, const drawing::Pen&, const drawing::Fill&) override {}
  void circle(drawing::Point, double, const drawing::Pen&, const drawing::Fill&) override {}
  void text(drawing::Point, const std::string&, const drawing::Font&, drawing::Colour, int) override {}
  void picture(const drawing::Sheet_picture&, const drawing::Rect&) override {}
};

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  support::One_file files(data, size);
  instruments::Routes routes;
  routes.routes.push_back({{}, 0, instruments::track_r(files, "C:\\a.txt")});
  support::promise(routes.routes[0].points.size() <= instruments::track_point_limit);
  maps::Canvas canvas;
  canvas.is_geographic = true;
  canvas.geo_x0 = 13'900'000;
  canvas.geo_y1 = 3'500'000;
  canvas.sec_m_x = canvas.sec_m_y = 25;
  canvas.map_x1 = canvas.map_y1 = 10'000;
  canvas.canvas_scale = 0.1;
  canvas.width = 1600 * maps::twips_per_unit;
  canvas.height = 1200 * maps::twips_per_unit;
  Checking_surface surface;
  instruments::routes_out(surface, canvas, routes);
  return 0;
}
