// What the entry panel shows back of the texts in its boxes while they are typed: the strike, dip and lineation as they
// will be read, the declination of the record's own place and the true strike, as plain lines of text; and which box
// holds a text that will be read in another way than it looks. Nothing is refused.
#pragma once

#include <string>
#include <vector>

#include "maps/canvas.h"
#include "observations/declination.h"
#include "observations/entry_boxes.h"
#include "observations/strike_symbol.h"
#include "observations/understood.h"

namespace observations {

// Boxes that a slip can lie in: those of Text14 by their index, and Text13.
inline constexpr int box_measurement = 8;

struct Echo_slip {
  int box = box_X;
  Reading reading = Reading::fits;  // beyond, partly or as_zero
  std::string sentence;
};

// All texts are in the language asked for; one is empty where there is nothing to show.
struct Entry_echo {
  // The plane as read: azimuth "345°", dip "30°", the side to which it falls with its azimuth "E 75°", and the texts.
  std::string raw, raw_dip, raw_side, raw_text;
  std::string declination;  // "-7.0°"; or that it isn't applied, or isn't known
  // The same with the declination, the texts as the display of the map gives them. As read where it isn't known.
  std::string corrected, corrected_dip, corrected_side, corrected_text;
  // The lineation as the map draws it: its direction, read and true, and its dip.
  std::string lineation, lineation_dip, lineation_corrected;
  Correction correction = Correction::unknown;
  std::string model;  // the declination with its model and epoch, or the sentence that says why there is none
  std::vector<Echo_slip> slips;
  std::vector<std::string> losses;  // how the record is lost if it is saved like this
  std::vector<std::string> notes;   // what else should be known: where the drawing or the clinometer reads otherwise
};

// Texts are taken as the record will hold them: trimmed where a save trims. The position is that of the boxes; in
// metres it is brought into degrees by the canvas's frame. `coefficients` are those last read.
Entry_echo entry_echo(const Entry_boxes& boxes, const Coefficients& coefficients, const maps::Canvas& canvas,
                      const std::string& language);

// The symbol that the map would draw for the boxes.
Symbol entry_symbol(const Entry_boxes& boxes, const Coefficients& coefficients, const maps::Canvas& canvas);

}  // namespace observations
