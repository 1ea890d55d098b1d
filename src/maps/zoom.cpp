#include "maps/zoom.h"

#include <algorithm>
#include <cmath>

#include "platform/numbers.h"

namespace maps {
namespace {

constexpr double drag_part = 5;        // a drag moves the bars by one fifth, and a zoom sets them to one
constexpr double most_zoom = 100'000;  // times the arrival scale, both ways
// The rectangle's corner never lies in the margin of 100 units, 750 twips.
constexpr double least_corner = 751;
constexpr double margin_twips = sheet_margin * twips_per_unit;

int bar_value(double value) {
  constexpr double limit = 1e9;
  return std::isnan(value) ? 0 : static_cast<int>(platform::round_even(std::clamp(value, -limit, limit)));
}

// Sets a bar from the program: no change event is to follow from it.
void set_bar(Scroll_bar& bar, double value) {
  bar.value = bar.last = bar_value(value);
}

void settle_after_zoom(Scroll_bar& bar, double& view) {
  if (view < 0)
    set_bar(bar, -view / drag_part);
  else
    view = 0;
}

// A change of scale as a product and a quotient, one of them 1: a step out divides, it doesn't multiply by an inverse.
struct Factor {
  double times = 1, over = 1;
  double operator()(double value) const { return value * times / over; }
};
constexpr Factor step_in{zoom_step, 1};
constexpr Factor step_out{1, zoom_step};

// The offset that keeps the canvas position `mouse` over the same place when the scale changes. The margin stays.
double offset_about(double mouse, double view, Factor factor) {
  return mouse - margin_twips - factor(mouse - margin_twips - view);
}

bool may_zoom(const Canvas& canvas, Factor factor) {
  const double scale = factor(canvas.canvas_scale);
  if (!std::isfinite(scale)) return false;
  if (canvas.canvas_scale0 <= 0) return true;
  return scale > canvas.canvas_scale ? scale <= canvas.canvas_scale0 * most_zoom
                                     : scale >= canvas.canvas_scale0 / most_zoom;
}

void zoom_by(Canvas& canvas, Scroll_bars& bars, Factor factor, double view_x, double view_y) {
  canvas.label_scale = factor(canvas.label_scale);
  canvas.canvas_scale = factor(canvas.canvas_scale);
  canvas.view_x = view_x;
  canvas.view_y = view_y;
  settle_after_zoom(bars.horizontal, canvas.view_x);
  settle_after_zoom(bars.vertical, canvas.view_y);
}

void zoom_about_corner(Canvas& canvas, Scroll_bars& bars, Factor factor) {
  if (may_zoom(canvas, factor)) zoom_by(canvas, bars, factor, factor(canvas.view_x), factor(canvas.view_y));
}

void zoom_about(Canvas& canvas, Scroll_bars& bars, Factor factor, double mouse_x, double mouse_y) {
  if (may_zoom(canvas, factor))
    zoom_by(canvas, bars, factor, offset_about(mouse_x, canvas.view_x, factor),
            offset_about(mouse_y, canvas.view_y, factor));
}

// Moves a bar by the program as a hand would: between its ends, and the view with it.
bool move_bar(Scroll_bar& bar, double& view, double by) {
  const int low = std::min(bar.minimum, bar.value), high = std::max(bar.maximum, bar.value);
  return scroll_changed(bar, view, std::clamp(bar_value(bar.value + by), low, high), true, true);
}

bool move_bars(Canvas& canvas, Scroll_bars& bars, double dx, double dy) {
  const bool moved_x = move_bar(bars.horizontal, canvas.view_x, dx);
  const bool moved_y = move_bar(bars.vertical, canvas.view_y, dy);
  return moved_x || moved_y;
}

// `content` and `window` in twips: the view runs from 0 down to what is left of the content outside the window.
void set_ends(Scroll_bar& bar, double view, double content, double window) {
  const double furthest = std::min(0.0, window - content);
  bar.minimum = std::min(bar.value, bar_value(bar.value + view));
  bar.maximum = std::max(bar.value, bar_value(bar.value + view - furthest));
}

}  // namespace

void Command16(Canvas& canvas, Scroll_bars& bars) {
  zoom_about_corner(canvas, bars, step_in);
}

void Command17(Canvas& canvas, Scroll_bars& bars) {
  zoom_about_corner(canvas, bars, step_out);
}

void Command18(Canvas& canvas, Scroll_bars& bars, double label_size) {
  canvas.canvas_scale = canvas.canvas_scale0;
  canvas.zoom_count = 1;
  canvas.label_scale = label_size;
  canvas.view_x = canvas.view_y = 0;
  set_bar(bars.horizontal, 0);
  set_bar(bars.vertical, 0);
}

void zoom_in_at(Canvas& canvas, Scroll_bars& bars, double mouse_x, double mouse_y) {
  zoom_about(canvas, bars, step_in, mouse_x, mouse_y);
}

void zoom_out_at(Canvas& canvas, Scroll_bars& bars, double mouse_x, double mouse_y) {
  zoom_about(canvas, bars, step_out, mouse_x, mouse_y);
}

bool zoom_to_rectangle(Canvas& canvas, Scroll_bars& bars, const drawing::Rect& twips) {
  if (twips.width <= 0 || canvas.width <= 0) return false;
  const Factor factor{canvas.width, twips.width};
  if (!may_zoom(canvas, factor)) return false;
  const Map_position corner = henkan_M(canvas, std::max(twips.x, least_corner), std::max(twips.y, least_corner));
  canvas.canvas_scale = factor(canvas.canvas_scale);
  canvas.label_scale = factor(canvas.label_scale);
  const Canvas_point moved = henkan_px(canvas, corner.x, corner.y);
  canvas.view_x -= moved.x * twips_per_unit;
  canvas.view_y -= moved.y * twips_per_unit;
  if (canvas.view_x <= 0) set_bar(bars.horizontal, -canvas.view_x);
  if (canvas.view_y <= 0) set_bar(bars.vertical, -canvas.view_y);
  return true;
}

bool scroll_changed(Scroll_bar& bar, double& view, int new_value, bool pan_flag, bool sheet_shown) {
  bar.value = new_value;
  if (!sheet_shown) return false;
  const int moved = new_value - bar.last;
  bar.last = new_value;
  if (!pan_flag || moved == 0) return false;
  view -= moved;
  return true;
}

bool drag_pan(Canvas& canvas, Scroll_bars& bars, double dx, double dy) {
  if (std::abs(dx) <= drag_threshold && std::abs(dy) <= drag_threshold) return false;
  move_bars(canvas, bars, -dx / drag_part, -dy / drag_part);
  return true;
}

bool pan_by(Canvas& canvas, Scroll_bars& bars, double dx, double dy) {
  return move_bars(canvas, bars, -dx, -dy);
}

void scroll_range(Canvas& canvas, Scroll_bars& bars, int columns, int rows) {
  const double scale = canvas.canvas_scale == 0 ? fallback_scale : canvas.canvas_scale;
  const auto content = [&](double metres, int sheets) {
    return (std::abs(metres) * scale * sheets + 2 * sheet_margin) * twips_per_unit;
  };
  set_ends(bars.horizontal, canvas.view_x, content(canvas.map_w, columns), canvas.width);
  set_ends(bars.vertical, canvas.view_y, content(canvas.map_h, rows), canvas.height);
}

}  // namespace maps
