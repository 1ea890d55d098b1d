// Where the sample's place lies: its sheets by mesh code, its plane of metres on the Earth, and the shift between its
// two datums. Positions are on the Tokyo datum. The plane's origin is the middle of the block of 2 x 2 whole sheets.
#pragma once

#include <string>
#include <vector>

#include "make_sample/streams.h"

namespace sample {

struct Position {
  double latitude = 0, longitude = 0;  // degrees
};

// A plane with even metres per degree, taken at the origin: sheets are rectangles in it.
Position position_of(ground::Point at);
ground::Point point_of(Position position);

// The invented shift from the Tokyo datum to JGD2000 at a position, in arc seconds: smooth, and of the size that the
// real one has in this part of the country.
Position datum_shift_seconds(Position position);

// Declination at 2005.0 in degrees, east positive: the field model's value and first slopes at the origin, within 0.01
// degrees of the model over all sheets.
double declination(Position position);

struct Frame {
  double south = 0, west = 0, north = 0, east = 0;  // second counts
};

enum class Sheet_kind { whole, quarter, fifty_thousand };

struct Sheet {
  std::string stem;
  std::string name;  // Japanese; empty for a quarter sheet, whose name follows from its whole sheet's
  std::string roman_name;
  Sheet_kind kind = Sheet_kind::whole;
  Frame frame;
};

// The four whole sheets, the nine quarter sheets, and the 1:50,000 sheet that covers the whole ones.
std::vector<Sheet> sheets();

// The sheet from which each mosaic spreads to the east and south.
inline constexpr const char* first_whole_sheet = "533856";
inline constexpr const char* first_quarter_sheet = "53385650";

}  // namespace sample
