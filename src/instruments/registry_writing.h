// The ticked measurements into the registration file, with the positions that they bear or those of a track.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "core/project_settings.h"
#include "instruments/measurement_files.h"
#include "instruments/position_tracks.h"
#include "instruments/tiltvane_boxes.h"
#include "observations/registry.h"

namespace instruments {

inline constexpr int measurement_limit = 999;        // ticked rows that one press writes
inline constexpr double no_position = -999'999'999;  // both coordinates of a measurement without a position

inline constexpr platform::Message no_registry{
    "データ地点ファイルが設定してありません。地点台帳システムの基本設定を行って下さい",
    "データ地点ファイルが設定してありません。地点台帳システムの基本設定を行って下さい"};
inline constexpr platform::Message two_tracks{"２種類のGPSファイルの同時読み込みは出来ません。",
                                              "２種類のGPSファイルの同時読み込みは出来ません。"};

// What the registry takes from a line of a measurement file.
struct Measurement {
  std::string number;                                 // column 1
  std::string strike, dip;                            // columns 3 and 4, magnetic; empty without a plane
  std::string azimuth;                                // column 6, of the lineation, magnetic; empty without one
  std::string plunge;                                 // column 7
  std::string time;                                   // column 8 as it stands
  bool declination = false;                           // column 11: the instrument had one set
  geodesy::Point position{no_position, no_position};  // geographic units
};

// The sign of both coordinates is taken from column 21, so a latitude's own letter in column 19 is not seen.
Measurement measurement_of(std::string_view line);
// The ticked rows with four columns or more, measurement_limit of the ticked ones at most.
std::vector<Measurement> ticked_measurements(const Measurement_list& list);

// "081115-12*12", the date with the measurement's number in both places of column 9; "081115-" without a number.
std::string touroku_no_of(const Measurement& measurement);

// The points of the tracks that the boxes choose. A path is made of a folder box and a file box.
Track track_r(platform::Files& files, const Tiltvane_boxes& boxes);

// Puts measurements into the table and gives how many were put there. With a track, each takes the place of the first
// point near it in time and is added unless a record of the same time stands there; without a near point it is left
// out. Subscript_failure when the table is full; it is then as it was.
int merge_with_track(observations::Registry& registry, const std::vector<Measurement>& measurements, const Track& track,
                     bool japanese);
// Without one, a record that bears the measurement's number takes its angles; otherwise one with a position of its own
// is added unless a record stands there.
int merge_without_track(observations::Registry& registry, const std::vector<Measurement>& measurements, bool japanese);

struct File_make_result {
  bool written = false;  // the table must be read and drawn again
  int count = 0;         // records that were added or changed
};

// Reads the registration file in use, merges the ticked rows and writes it whole, with a copy in the backup folder as
// after each save. Nothing is written, with a message, without a registration file or with several, with both kinds of
// track at once, when the table is not all that the file holds, and when the file can't be written.
File_make_result Tiltvane_File_Make(const Data_context& context, observations::Registry& registry,
                                    const Measurement_list& list, const Tiltvane_boxes& boxes);

}  // namespace instruments
