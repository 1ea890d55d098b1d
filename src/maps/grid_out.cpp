#include "maps/grid_out.h"

#include <algorithm>
#include <cmath>

#include "platform/utf8.h"

namespace maps {
namespace {

// A canvas without a width shows everything.
bool is_in_window(const Canvas& canvas, const drawing::Rect& rect) {
  if (canvas.width <= 0 || canvas.height <= 0) return true;
  return rect.x < canvas.width / twips_per_unit && rect.x + rect.width > 0 && rect.y < canvas.height / twips_per_unit &&
         rect.y + rect.height > 0;
}

void paint_pictures(drawing::Surface& surface, Canvas& canvas, const Mosaic& mosaic) {
  const drawing::Rect main = sheet_rectangle(canvas);
  if (main.width <= 0 || main.height <= 0) return;
  for (std::size_t slot = 0; slot < mosaic_slots; ++slot) {
    if (mosaic.picture[slot].empty() || (slot > 0 && mosaic.tile_state[slot] != 1)) continue;
    drawing::Rect target = main;
    target.x += slot_places[slot].east * main.width;
    target.y += slot_places[slot].south * main.height;
    if (is_in_window(canvas, target)) surface.picture(mosaic.picture[slot], target);
  }
}

drawing::Point on_canvas(Canvas& canvas, double x, double y) {
  const Canvas_point point = henkan_px(canvas, x, y);
  return {point.x, point.y};
}

void draw_grid(drawing::Surface& surface, Canvas& canvas, int n) {
  const double step_x = (canvas.map_x1 - canvas.map_x0) / n, step_y = (canvas.map_y1 - canvas.map_y0) / n;
  const auto pen = [n](int line) { return drawing::Pen{drawing::black, line == 0 || line == n ? 2.0 : 1.0}; };
  for (int i = 0; i <= n; ++i) {
    const double x = canvas.map_x0 + i * step_x;
    surface.line(on_canvas(canvas, x, canvas.map_y0), on_canvas(canvas, x, canvas.map_y1), pen(i));
  }
  for (int i = 0; i <= n; ++i) {
    const double y = canvas.map_y0 + i * step_y;
    surface.line(on_canvas(canvas, canvas.map_x0, y), on_canvas(canvas, canvas.map_x1, y), pen(i));
  }
}

}  // namespace

int grid_divisions(const std::string& stem, int option5) {
  if (option5 == folder_50000) return 20;
  return platform::character_count(stem) >= 8 ? 5 : 10;  // the "." of "53393551.bmp" stands after position 8
}

drawing::Rect sheet_rectangle(Canvas& canvas) {
  const drawing::Point a = on_canvas(canvas, canvas.map_x0, canvas.map_y1);
  const drawing::Point b = on_canvas(canvas, canvas.map_x1, canvas.map_y0);
  // Where y grows with map Y the first corner is the lower one; the turned height starts at the other.
  return {a.x, std::min(a.y, b.y), b.x - a.x, std::abs(b.y - a.y)};
}

void Grid_out(drawing::Surface& surface, Canvas& canvas, const Mosaic& mosaic, const Grid_choice& choice) {
  surface.clear(drawing::white);
  canvas.zoom_factor = 0.5;
  paint_pictures(surface, canvas, mosaic);
  if (choice.Check3) draw_grid(surface, canvas, grid_divisions(choice.stem, choice.option5));
}

}  // namespace maps
