// The file for stereo-net software: the ticked rows with their planes and lineations taken apart.
#pragma once

#include <functional>
#include <string>
#include <string_view>

#include "instruments/measurement_files.h"

namespace instruments {

inline constexpr platform::Message no_row_to_export{"データを選択して下さい。", "Please Select data. "};

// The path that the user chose in the save dialog; empty when it was closed.
using Ask_path = std::function<std::string()>;

struct Stereo_net_choice {
  std::string Text1;      // declination, as it was typed
  bool corrected = true;  // it is added to strikes and azimuths: the file is against true north
};

// The first line of the file.
std::string stereo_net_header(bool japanese);
// One measurement as a line of the file. A record without a plane has blanks and empty columns there, and so has one
// without a lineation.
std::string stereo_net_line(std::string_view line, const Stereo_net_choice& choice);

// Writes the ticked rows, after the declination was stored in \henkaku.dat. False, with a message, without rows,
// without a ticked row and where the file can't be written; and, in silence, without a path.
bool Command9(const Data_context& context, const Measurement_list& list, const Stereo_net_choice& choice,
              const Ask_path& ask);

// Writes a picture of the net, which is encoded already. False, with a message, where there is none or the file can't
// be written.
bool net_picture_save(const Data_context& context, const std::string& path, const std::string& bytes);

}  // namespace instruments
