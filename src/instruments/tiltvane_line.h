// One measurement of the clinometer as a line of text: as the instrument's memory gives it, and as a saved measurement
// file holds it. Columns are parted by commas and counted from 1:
//    1 number   2 mode ("L": with a lineation)   3 strike   4 dip   5 roll angle   6 lineation azimuth   7 plunge
//    8 date and time   9 mark   10 declination shown (0: yes)   11 declination set in the instrument
//   12 GPS state ("A", "V") in the memory; true strike in a file   13-16 position in the memory
//   13 true dip   14 roll angle   15 true lineation azimuth   16 plunge   17 declination used
//   18 latitude ddmm.mmmm   19 its letter   20 longitude dddmm.mmmm   21 its letter
// Behind the last column of a file's line stands the declination used, once more and without a comma.
#pragma once

#include <string>
#include <string_view>

#include "platform/clock.h"

namespace instruments {

inline constexpr int line_columns = 500;         // more are dropped
inline constexpr int file_columns = 21;          // a line of a file has no fewer
inline constexpr std::size_t shortest_line = 7;  // characters; a shorter line is no record
inline constexpr const char* no_plane = "-0-";   // a strike or an azimuth that was not measured

// The first line of a measurement file.
std::string measurement_header(bool japanese);
// Whether a line is a header, also of the older form.
bool is_measurement_header(std::string_view line);

// A number as the names of files have it: the last three characters of "000" and the number.
std::string three_digits(std::string_view number);
// "001-123_2008-11-15_10-20-30.csv": the first and the last number (three digits are made of them), date and time; no
// character of it parts folders or drives.
std::string measurement_file_name(std::string_view first, std::string_view last, const platform::Date_time& time);

// A line of the memory turned to true north with the declination of the dialog, a text as it was typed.
std::string converted_line(std::string_view line, const std::string& declination);
// A line of a measurement file with its columns 12 to 17 worked out anew from the magnetic ones.
std::string reconverted_line(std::string_view line, const std::string& declination);

}  // namespace instruments
