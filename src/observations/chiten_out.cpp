#include "observations/chiten_out.h"

#include <algorithm>
#include <cmath>
#include <optional>
#include <span>

#include "observations/declination.h"
#include "observations/mark_out.h"
#include "observations/marks.h"
#include "observations/painted_part.h"
#include "platform/failures.h"
#include "platform/utf8.h"

namespace observations {
namespace {

using drawing::Point;

constexpr double line_pen = 2;
constexpr double line_reach = 6;  // canvas units that a line's pen reaches from its middle, at its ends too
constexpr Point number_place{10, 13};
constexpr double units_per_degree = 100'000;
constexpr double label_units = 2.75;  // canvas units to a step of the label scale, whose 8 are 11 pixels
constexpr double line_height = 1.5;   // of a text at most, in heights of its font

// How far a record's mark, symbol and texts reach from its point.
Sides reach_of(const Drawn_record& drawn, double scale, double height) {
  const double symbol = drawn.has_symbol ? symbol_reach * scale : 0;
  const double around = std::max<double>(drawn.mark_reach, symbol);
  if (drawn.letters == 0) return {around, around, around, around};
  const double offset = std::max(number_place.y, symbol);
  return {around, around, std::max(around, offset + drawn.letters * height),
          std::max(around, offset + line_height * height)};
}

// A point stands this much beside its box's place at the most: places are narrowed to single precision.
Sides widened(const Sides& box) {
  constexpr double least = 1, of_the_place = 1e-6;
  const auto by = [](double place) { return least + std::abs(place) * of_the_place; };
  return {box.left - by(box.left), box.top - by(box.top), box.right + by(box.right), box.bottom + by(box.bottom)};
}

Sides joined(const Sides& a, const Sides& b) {
  return {std::min(a.left, b.left), std::min(a.top, b.top), std::max(a.right, b.right), std::max(a.bottom, b.bottom)};
}

Sides box_of(maps::Canvas& canvas, const Record& record, const Drawn_record& drawn, double height) {
  const Point at = place_of(canvas, drawn.X, drawn.Y);
  const Sides reach = reach_of(drawn, canvas.zoom_count, height);
  Sides box{at.x - reach.left, at.y - reach.top, at.x + reach.right, at.y + reach.bottom};
  if (drawn.as == Drawn_as::area || drawn.as == Drawn_as::line) {
    for (const geodesy::Point& vertex : record.vertices) {
      const Point corner = place_of(canvas, vertex.x, vertex.y);
      box = joined(box, {corner.x - line_reach, corner.y - line_reach, corner.x + line_reach, corner.y + line_reach});
    }
  }
  return widened(box);
}

double text_height(const maps::Canvas& canvas) {
  return canvas.label_scale * label_units;
}

// The boxes of the first `known` records for this canvas.
const std::vector<Sides>& boxes_for(const maps::Canvas& canvas, const Registry& registry, const Drawn_records& drawn,
                                    int known) {
  maps::Canvas still = canvas;
  still.view_x = still.view_y = still.width = still.height = 0;
  Kept_boxes& kept = drawn.kept;
  if (kept.boxes.size() == static_cast<std::size_t>(known) && kept.still == still) return kept.boxes;
  kept.still = still;
  kept.boxes.clear();
  kept.boxes.reserve(static_cast<std::size_t>(known));
  for (int row = 1; row <= known; ++row)
    kept.boxes.push_back(
        box_of(still, registry.rows[row], drawn.records[static_cast<std::size_t>(row - 1)], text_height(still)));
  return kept.boxes;
}

Sides moved(const Sides& part, double x, double y) {
  return {part.left + x, part.top + y, part.right + x, part.bottom + y};
}

bool meets(const Sides& a, const Sides& b) {
  return a.right >= b.left && a.left <= b.right && a.bottom >= b.top && a.top <= b.bottom;
}

void sen_out(drawing::Surface& surface, const Sides& part, std::span<const Point> places, drawing::Colour colour) {
  for (std::size_t i = 1; i < places.size(); ++i)
    if (may_be_seen(part, places.subspan(i - 1, 2), line_reach))
      ld(surface, places[i - 1], places[i], colour, line_pen);
}

void kakomi_out(drawing::Surface& surface, std::span<const Point> places, drawing::Colour colour, bool filled) {
  const drawing::Fill_style style = filled ? drawing::Fill_style::see_through : drawing::Fill_style::none;
  surface.polygon(places, {colour, line_pen}, {colour, style});
}

// What a repaint needs for each of its records.
struct Painting {
  drawing::Surface& surface;
  maps::Canvas& canvas;
  const Chiten_choice& choice;
  Sides part;
  double height = 0;          // of texts, canvas units
  std::vector<Point> places;  // of the vertices in hand
};

void shape_out(Painting& painting, const Record& record, Drawn_as as) {
  painting.places.clear();
  for (const geodesy::Point& vertex : record.vertices)
    painting.places.push_back(place_of(painting.canvas, vertex.x, vertex.y));
  if (!may_be_seen(painting.part, painting.places, line_reach) || !is_drawable(painting.places)) return;
  const drawing::Colour colour = colour_of(record.R2, record.G2, record.B2);
  if (as == Drawn_as::area)
    kakomi_out(painting.surface, painting.places, colour, painting.choice.filled);
  else
    sen_out(painting.surface, painting.part, painting.places, colour);
}

void number_out(Painting& painting, Point at, const Record& record) {
  const std::string text = number_text_of(record, painting.choice.number);
  if (text.empty()) return;
  const bool measured = painting.choice.number == Number_shown::measurement;  // the text is empty without one
  painting.surface.text({at.x + number_place.x, at.y + number_place.y}, text, {.height = painting.height},
                        measured ? drawing::red : drawing::black, 0);
}

Drawn_as drawn_as(const Record& record) {
  switch (mark_index(record.mark)) {
    case mark_area:
      return Drawn_as::area;
    case mark_line:
      return Drawn_as::line;
    case mark_word:
      return Drawn_as::word;
    default:
      return Drawn_as::point;
  }
}

std::uint16_t letters_beside(const Record& record, const Symbol* symbol) {
  std::size_t letters = std::max(platform::character_count(number_text_of(record, Number_shown::registration)),
                                 platform::character_count(record.keisoku_no));
  if (symbol) letters = std::max(letters, symbol->dip_text.size());
  if (is_word(record.mark)) letters = std::max(letters, platform::character_count(record.soukou));
  return static_cast<std::uint16_t>(std::min<std::size_t>(letters, 0xffff));
}

// Without a symbol for a record that none was worked out for.
Drawn_record drawn_record(const Record& record, const Symbol* symbol) {
  Drawn_record drawn{.X = record.X, .Y = record.Y, .as = drawn_as(record)};
  drawn.shape = static_cast<std::uint8_t>(mark_shape(record.mark));
  drawn.has_symbol = symbol && symbol->kind != Symbol_kind::none && drawn.as != Drawn_as::word;
  drawn.letters = letters_beside(record, symbol);
  drawn.mark_reach = static_cast<float>(drawn.shape == 0 ? 0 : mark_reach(record.size));
  drawn.colour = colour_of(record.R, record.G, record.B);
  return drawn;
}

void point_and_texts_out(Painting& painting, Point at, const Record& record, const Drawn_record& drawn,
                         const Symbol* symbol) {
  if (drawn.as == Drawn_as::word)
    painting.surface.text(at, record.soukou, {.height = painting.height}, drawn.colour, 0);
  else
    mark_out(painting.surface, at, drawn.colour, record.size, drawn.shape);
  if (drawn.has_symbol) symbol_out(painting.surface, at, *symbol, painting.canvas.zoom_count, painting.height);
  number_out(painting, at, record);
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
  drawn.records.reserve(static_cast<std::size_t>(registry.N));
  for (int row = 1; row <= registry.N; ++row) {
    const Record& record = registry.rows[row];
    const bool has_strike = !record.soukou.empty() || !record.sen_houkou.empty();
    const std::optional<double> decl = has_strike ? declination_of(record, field, canvas) : std::nullopt;
    drawn.symbols.push_back(symbol_of(record, decl.value_or(0), decl.has_value()));
    drawn.declinations.push_back(decl);
    drawn.records.push_back(drawn_record(record, &drawn.symbols.back()));
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
  Painting painting{surface, canvas, choice, painted_part(surface, canvas), text_height(canvas), {}};
  const auto known =
      std::min(static_cast<int>(std::min(drawn.records.size(), drawn.symbols.size())), std::max(registry.N, 0));
  const std::vector<Sides>& boxes = boxes_for(canvas, registry, drawn, known);
  const Sides still_part =
      moved(painting.part, -canvas.view_x / maps::twips_per_unit, -canvas.view_y / maps::twips_per_unit);
  for (int row = 1; row <= registry.N; ++row) {
    const auto place = static_cast<std::size_t>(row - 1);
    if (row <= known && !meets(boxes[place], still_part)) continue;
    const Symbol* const symbol = row <= known ? &drawn.symbols[place] : nullptr;
    const Drawn_record made = symbol ? Drawn_record{} : drawn_record(registry.rows[row], nullptr);
    const Drawn_record& record = symbol ? drawn.records[place] : made;
    const Point at = place_of(canvas, record.X, record.Y);
    if (record.as == Drawn_as::area || record.as == Drawn_as::line) shape_out(painting, registry.rows[row], record.as);
    if (reaches_into(painting.part, at, reach_of(record, canvas.zoom_count, painting.height)))
      point_and_texts_out(painting, at, registry.rows[row], record, symbol);
  }
}

}  // namespace observations
