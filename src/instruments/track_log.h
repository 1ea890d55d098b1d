// The ticked rows as a track log: a text of NMEA sentences that navigation software reads as a track.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "instruments/measurement_files.h"
#include "instruments/stereo_net_file.h"

namespace instruments {

// A coordinate of a measurement as the log has it: behind the point five digits, filled up with zeros from the left.
// So "3541.1234" becomes "3541.01234", another place by up to a minute; readers of these logs know them like that.
std::string track_log_coordinate(std::string_view text);

// Whether a line of a measurement file has a position: more than a "-" in columns 18 and 20.
bool has_position(std::string_view line);

// The two sentences of a measurement; none without a position, or without a date and time that exist.
std::vector<std::string> track_log_lines(std::string_view line);

// Writes the ticked rows that have a position. False, with a message, where there is none and where the file can't be
// written; and, in silence, without a path.
bool Command16(const Data_context& context, const Measurement_list& list, const Ask_path& ask);

}  // namespace instruments
