#include "observations/chiten_out.h"

#include <algorithm>
#include <cmath>

#include "observations/declination.h"
#include "observations/mark_out.h"
#include "observations/marks.h"
#include "platform/failures.h"
#include "platform/numbers.h"

namespace observations {
namespace {

using drawing::Point;

constexpr double line_pen = 2;
constexpr Point number_place{10, 13};
constexpr double units_per_degree = 100'000;
constexpr double label_units = 2.75;   // canvas units to a step of the label scale, whose 8 are 11 pixels
constexpr double longest_label = 400;  // canvas units that a number or text may reach from its point

Point place_of(maps::Canvas& canvas, double x, double y) {
  const maps::Canvas_point at = maps::henkan_px(canvas, x, y);
  return {at.x, at.y};
}

std::vector<Point> places_of(maps::Canvas& canvas, const Record& record) {
  std::vector<Point> places;
  places.reserve(record.vertices.size());
  for (const geodesy::Point& vertex : record.vertices) places.push_back(place_of(canvas, vertex.x, vertex.y));
  return places;
}

// A canvas without a width shows everything.
bool is_near(const maps::Canvas& canvas, Point at, double reach) {
  if (canvas.width <= 0 || canvas.height <= 0) return true;
  return at.x >= -reach && at.y >= -reach && at.x <= canvas.width / maps::twips_per_unit + reach &&
         at.y <= canvas.height / maps::twips_per_unit + reach;
}

bool may_be_seen(const maps::Canvas& canvas, const std::vector<Point>& places) {
  if (places.empty()) return false;
  const auto [left, right] =
      std::minmax_element(places.begin(), places.end(), [](Point a, Point b) { return a.x < b.x; });
  const auto [top, low] = std::minmax_element(places.begin(), places.end(), [](Point a, Point b) { return a.y < b.y; });
  if (canvas.width <= 0 || canvas.height <= 0) return true;
  return right->x >= 0 && low->y >= 0 && left->x <= canvas.width / maps::twips_per_unit &&
         top->y <= canvas.height / maps::twips_per_unit;
}

// Places far beyond any screen would cost the painter dear.
bool is_drawable(const std::vector<Point>& places) {
  return std::all_of(places.begin(), places.end(),
                     [](Point at) { return std::abs(at.x) < 1e7 && std::abs(at.y) < 1e7; });
}

void sen_out(drawing::Surface& surface, const std::vector<Point>& places, drawing::Colour colour) {
  for (std::size_t i = 1; i < places.size(); ++i) ld(surface, places[i - 1], places[i], colour, line_pen);
}

void kakomi_out(drawing::Surface& surface, const std::vector<Point>& places, drawing::Colour colour, bool filled) {
  const drawing::Fill_style style = filled ? drawing::Fill_style::see_through : drawing::Fill_style::none;
  surface.polygon(places, {colour, line_pen}, {colour, style});
}

void shape_out(drawing::Surface& surface, maps::Canvas& canvas, const Record& record, bool filled) {
  const std::vector<Point> places = places_of(canvas, record);
  if (!may_be_seen(canvas, places) || !is_drawable(places)) return;
  const drawing::Colour colour = colour_of(record.R2, record.G2, record.B2);
  if (is_area(record.mark))
    kakomi_out(surface, places, colour, filled);
  else
    sen_out(surface, places, colour);
}

void number_out(drawing::Surface& surface, Point at, const Record& record, Number_shown shown, double height) {
  const std::string text = number_text_of(record, shown);
  if (text.empty()) return;
  const bool measured = shown == Number_shown::measurement && !record.keisoku_no.empty();
  surface.text({at.x + number_place.x, at.y + number_place.y}, text, {.height = height},
               measured ? drawing::red : drawing::black, 0);
}

}  // namespace

std::optional<double> declination_of(const Record& record, const Geomagnetic_field& field, const maps::Canvas& canvas) {
  if (field.order == 0) return std::nullopt;
  double x = record.X, y = record.Y;
  if (!is_geographic(record)) {
    if (!canvas.is_geographic || canvas.sec_m_x == 0) return std::nullopt;
    maps::map_to_geographic(canvas, x, y);
  }
  try {
    return declination_at(field, y / units_per_degree, x / units_per_degree);
  } catch (const platform::Division_failure&) {
    return std::nullopt;  // at a pole of the field: shown as uncorrected
  }
}

Drawn_records drawn_records(const Registry& registry, const Geomagnetic_field& field, const maps::Canvas& canvas) {
  Drawn_records drawn;
  drawn.symbols.reserve(static_cast<std::size_t>(registry.N));
  drawn.declinations.reserve(static_cast<std::size_t>(registry.N));
  for (int row = 1; row <= registry.N; ++row) {
    const Record& record = registry.rows[row];
    const bool has_strike = !record.soukou.empty() || !record.sen_houkou.empty();
    const std::optional<double> decl = has_strike ? declination_of(record, field, canvas) : std::nullopt;
    drawn.symbols.push_back(symbol_of(record, decl.value_or(0), decl.has_value()));
    drawn.declinations.push_back(decl);
  }
  return drawn;
}

std::string number_text_of(const Record& record, Number_shown shown) {
  if (shown == Number_shown::measurement) return record.keisoku_no;
  if (shown == Number_shown::none) return {};
  const std::string number = record.touroku_no.substr(0, record.touroku_no.find('*'));
  const std::size_t date_end = number.find('-');
  return date_end == std::string::npos ? number : number.substr(date_end + 1);
}

void chiten_out(drawing::Surface& surface, maps::Canvas& canvas, const Registry& registry, const Drawn_records& drawn,
                const Chiten_choice& choice) {
  if (!choice.marks) return;
  const double height = canvas.label_scale * label_units;
  const double reach = std::max(symbol_reach * canvas.zoom_count, longest_label);
  for (int row = 1; row <= registry.N; ++row) {
    const Record& record = registry.rows[row];
    const Point at = place_of(canvas, record.X, record.Y);
    if (is_area(record.mark) || is_line(record.mark)) shape_out(surface, canvas, record, choice.filled);
    if (!is_near(canvas, at, reach)) continue;
    if (is_word(record.mark))
      surface.text(at, record.soukou, {.height = height}, colour_of(record.R, record.G, record.B), 0);
    else
      mark_out(surface, at, colour_of(record.R, record.G, record.B), record.size, record.mark);
    const auto symbol = static_cast<std::size_t>(row - 1);
    if (symbol < drawn.symbols.size() && !is_word(record.mark))
      symbol_out(surface, at, drawn.symbols[symbol], canvas.zoom_count, height);
    number_out(surface, at, record, choice.number, height);
  }
}

}  // namespace observations
