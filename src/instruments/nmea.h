// Sentences of NMEA 0183, as a receiver sends them and a logger stores them: lines of fields parted by commas, counted
// from 1. Only the position of a GGA is read:
//   $GPGGA,045851.000,3519.9046,N,13640.2631,E,1,04,2.2,80.4,M,,,,0000*39
//   1      2          3         4 5          6 7 8
//   time; latitude ddmm.mmmm and its letter; longitude dddmm.mmmm and its letter; quality (0: no fix); satellites
#pragma once

#include <array>
#include <functional>
#include <string>
#include <string_view>

#include "platform/files.h"

namespace instruments {

inline constexpr int nmea_fields = 200;  // more are dropped
inline constexpr std::string_view gga_word = "$GPGGA";
inline constexpr std::string_view gsa_word = "$GPGSA";
inline constexpr std::string_view rmc_word = "$GPRMC";

// Views into the text that was split; what is missing is empty.
struct Nmea {
  std::array<std::string_view, nmea_fields> fields;
  int count = 0;  // fields filled

  std::string_view field(int number) const { return fields.at(static_cast<std::size_t>(number - 1)); }
};

// Splits at every comma; fields beyond the last one kept are dropped.
void nmea_split(std::string_view text, Nmea& nmea);

// Seconds of arc of a latitude "3519.9046" (two characters of degrees) and a longitude "13640.2631" (three). Nothing is
// checked: what is no number counts as 0, and the letter of the hemisphere isn't looked at.
double latitude_seconds(std::string_view field);
double longitude_seconds(std::string_view field);

// The same field with the digits behind the point brought to five by noughts in front of them, as stored logs are read:
// 3519.9046 becomes 3519.09046.
std::string padded_angle(std::string_view field);

// Whether the position of a GGA can be relied on: a checksum that fits where there is one, both angles in their form
// and range, north and east (the letters aren't read, so any other is shown on the wrong side), and a quality that is a
// fix. `sentence` runs from "$GPGGA" to the end of its line at least.
bool is_sound(std::string_view sentence);

// Takes the next line off a text, without its end: CR LF, a lone CR or LF. 1A ends the text.
std::string_view take_line(std::string_view& rest);

inline constexpr std::size_t longest_log_line = 65'536;  // bytes; what stands further on in a line is dropped

// Hands the lines of a log to `take` until that gives false; no more of the log than a piece and a line is in memory. A
// log that is missing has none. False when it can't be read to its end.
bool each_log_line(platform::Files& files, const std::string& path, const std::function<bool(std::string_view)>& take);

}  // namespace instruments
