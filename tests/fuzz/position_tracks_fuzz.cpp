// A track of any bytes, of both kinds: its arrays have one length, each point has a time that reads back to its key,
// and a point is its own partner or finds an earlier one.
#include "instruments/position_tracks.h"

#include <cmath>

#include "one_file.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using support::promise;
  support::One_file files(data, size);
  instruments::Track track;
  instruments::track_first_r(track, files, "a.csv");
  instruments::track_second_r(track, files, "a.nme", size % 2 == 0 ? 9 : -0.5);
  promise(track.keys.size() <= instruments::track_limit);
  promise(track.keys.size() == track.positions.size() && track.keys.size() == track.times.size());
  for (std::size_t i = 0; i < track.keys.size(); ++i) {
    promise(std::isfinite(track.positions[i].x) && std::isfinite(track.positions[i].y));
    const auto time = instruments::date_time_of(track.times[i]);
    promise(time && instruments::key_of(*time) == track.keys[i]);
    const int partner = instruments::partner_of(track, track.keys[i]);
    promise(partner >= 0 && partner <= static_cast<int>(i));
  }
  return 0;
}
