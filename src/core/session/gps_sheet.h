// The map sheet that a received position lies on: whether the shown one must give way, and to which row of the list.
#pragma once

#include <string>

#include "core/session/session.h"

namespace session {

struct Gps_sheet {
  enum class Found {
    none,    // no sheet is shown, or one whose name is no mesh code: nothing to follow
    shown,   // the position lies on the sheet that is drawn
    listed,  // on another one of the list: `row`
    outside  // on none of the list
  };
  Found found = Found::none;
  int row = -1;         // of List1 and List2, with `listed`
  std::string Label16;  // name of the sheet in the catalogue; empty when it isn't there
  std::string wanted;   // file name of the sheet, "53393551.bmp"
};

// Seeks the sheet of a position in degrees among the sheets that have names as long as that of `current_sheet`: six
// digits for whole sheets, eight for quarters.
Gps_sheet gps_sheet(const Sheet_list& sheets, const maps::Catalogue& catalogue, const std::string& current_sheet,
                    double longitude, double latitude);

// What data_path shows for it: "範囲外" for a position outside every sheet, otherwise `usual`.
std::string data_path_text(const Gps_sheet& sheet, const std::string& usual);

}  // namespace session
