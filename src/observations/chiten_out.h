// The registry over the map: marks, lines, enclosures, strike symbols and numbers. What a record's texts come to is
// worked out when the registry is read; a repaint draws from memory and leaves out what lies outside the canvas, or
// outside of the part that is painted.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "drawing/surface.h"
#include "maps/canvas.h"
#include "observations/geomagnetic_field.h"
#include "observations/painted_part.h"
#include "observations/registry.h"
#include "observations/strike_symbol.h"

namespace observations {

enum class Number_shown { none, registration, measurement };

struct Chiten_choice {
  bool marks = true;                         // Check5: points, lines and enclosures are drawn at all
  bool filled = false;                       // Check6: enclosures see-through, otherwise their outline
  Number_shown number = Number_shown::none;  // Check2 with Option8 or Option9
};

enum class Drawn_as : std::uint8_t { point, line, area, word };

// Where a record is drawn and how far its mark, symbol and texts reach, so that a repaint of a strip passes over the
// rest without touching it.
struct Drawn_record {
  double X = 0, Y = 0;
  Drawn_as as = Drawn_as::point;
  std::uint8_t shape = 0;  // mark_shape of a point
  bool has_symbol = false;
  std::uint16_t letters = 0;  // of the longest text that may stand beside it
  float mark_reach = 0;       // canvas units
  drawing::Colour colour = drawing::black;
};

// What a record's drawing covers of a canvas that has not been moved, a little more rather than less; a repaint of a
// strip looks at nothing else of the records that it passes over. Worked out anew when the frame or the scale is
// another.
struct Kept_boxes {
  maps::Canvas still;  // the canvas they hold for, its view at the origin
  std::vector<Sides> boxes;
};

// One of each for each record of the table. Made anew when the table is: a record that is changed meanwhile is drawn
// with its old place and colours. Records behind the last are drawn without symbols.
struct Drawn_records {
  std::vector<Symbol> symbols;
  // Degrees at the record's place; none where it can't be had, and for a record without a strike or a trend.
  std::vector<std::optional<double>> declinations;
  std::vector<Drawn_record> records;
  mutable Kept_boxes kept;
};

// The declination at a record's own place, degrees. A record in metres takes that of its place on a geographic sheet.
// None without a field (order 0) or a frame, and where the field has none.
std::optional<double> declination_of(const Record& record, const Geomagnetic_field& field, const maps::Canvas& canvas);

// The symbols of all records, each with the declination of its own place. A record in metres takes that of its place on
// a geographic sheet; without a field (order 0) or a frame its strike counts as uncorrected.
Drawn_records drawn_records(const Registry& registry, const Geomagnetic_field& field, const maps::Canvas& canvas);

// The number that stands beside a point: column 9 up to "*", without the date part before "-"; or the measurement
// number.
std::string number_text_of(const Record& record, Number_shown shown);

void chiten_out(drawing::Surface& surface, maps::Canvas& canvas, const Registry& registry, const Drawn_records& drawn,
                const Chiten_choice& choice);

}  // namespace observations
