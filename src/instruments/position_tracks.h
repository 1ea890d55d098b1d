// Tracks of positions by time, from the files of a field logger (first kind) and of a receiver (second kind), and the
// search for the point that belongs to a measurement. A key is the second of a point in Japan time, counted through all
// days; positions are geographic units, rounded as the registry's.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "geodesy/plane.h"
#include "platform/clock.h"
#include "platform/files.h"

namespace instruments {

inline constexpr int track_limit = 10'000;    // points of a track; further ones are left out
inline constexpr long long same_moment = 16;  // seconds: a point this far from a measurement isn't its own any more

// Arrays of one length, a point each.
struct Track {
  std::vector<long long> keys;
  std::vector<geodesy::Point> positions;
  std::vector<std::string> times;  // "yyyy/mm/dd hh:mm:ss", Japan time
  bool shortened = false;          // there were more points than track_limit
};

// "2008/11/15 10:20:30" in numbers, with "-" for "/" too; a year of two digits is of this century, seconds may be
// missing. None for a date or a time of day that doesn't exist.
std::optional<platform::Date_time> date_time_of(std::string_view text);
// So many seconds later, or earlier for a negative number; the date follows.
platform::Date_time seconds_later(const platform::Date_time& time, long long seconds);
// The day's number times the seconds of a day, and the second of the day.
long long key_of(const platform::Date_time& time);

// Degrees and minutes in one text, "3541.1234" with two digits of degrees, in geographic units.
double units_of(std::string_view text, int degree_digits);
// Whether both numbers are of the size that a position can have; a slip of the file can be of any.
bool is_place(geodesy::Point position);
// The position as it reads back from the registry's columns.
geodesy::Point rounded_position(geodesy::Point position);

// Adds the points of a logger's file, whose hours are UTC. Lines with "start" in them, and those without a date or a
// time that exists, are left out, and so are numbers that can't be a place. A missing file has no points.
void track_first_r(Track& track, platform::Files& files, const std::string& path);
// Adds the points of the sentences "$GPRMC" of a file; `hours` brings their time to that of Japan. Sentences without a
// position, a date or a time are left out.
void track_second_r(Track& track, platform::Files& files, const std::string& path, double hours);

// The first point less than same_moment away from a key; -1 when there is none.
int partner_of(const Track& track, long long key);

}  // namespace instruments
