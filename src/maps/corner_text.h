// The corner of a sheet as a text: letter, degrees, minutes and seconds with no separator. A latitude has two digits of
// degrees, a longitude three: "N353000.0", "E1393000.0". Between the files and the canvas a corner is always this text.
#pragma once

#include <string>
#include <string_view>

#include "maps/canvas.h"

namespace maps {

// `letter` is put in front as it is; the seconds get one to three decimals.
std::string latitude_text(std::string_view letter, double degrees, double minutes, double seconds);
std::string longitude_text(std::string_view letter, double degrees, double minutes, double seconds);

// Second counts to texts with "N" and "E"; degrees, minutes and seconds are split in single precision.
Corner_texts corner_texts_of_seconds(float lat_a, float lon_a, float lat_b, float lon_b);

struct Corner_seconds {
  double lat_a = 0, lon_a = 0, lat_b = 0, lon_b = 0;
};

// Cuts a text by position: a latitude from characters 2, 4 and 6, a longitude from 2, 5 and 7. South and west ("S",
// "W" in either case) are negative. An empty text, a part that is no number, and a sum beyond any angle give 0.
double latitude_seconds(std::string_view text);
double longitude_seconds(std::string_view text);
Corner_seconds corner_seconds(const Corner_texts& corners);

}  // namespace maps
