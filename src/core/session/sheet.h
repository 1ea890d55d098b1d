// The sheet list, and what a click on one of its rows brings to the map.
#pragma once

#include <functional>
#include <string>

#include "core/session/session.h"

namespace session {

// Loads the catalogue and fills the list with the sheets of the folder in force. The selection and the sheet that is
// drawn stay where their stem is still in the list.
void sheet_list_r(Session& session, Ports& ports);

// The row of a stem; -1 when the list has none.
int row_of(const Sheet_list& sheets, const std::string& stem);

// Reads the registration file in use and works out what its strikes and dips come to on the sheet that is drawn; reads
// the base data and the routes that were chosen.
void registry_r(Session& session, Ports& ports);

// Reads the registration file again when another program has changed it since it was read; what is open in the panel
// stays. True when it was read.
bool registry_follow(Session& session, Ports& ports);

// A click on the list: frame, pictures and point files of the row, then a redraw. Pictures that can't be read or don't
// fit in memory are told in one sentence. `progress` is told the tile that comes next and their number.
Redraw chizu_out(Session& session, Ports& ports, int row, const std::function<void(int, int)>& progress = {});

}  // namespace session
