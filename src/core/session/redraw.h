// The redraw of the map: one ordered list of what lies on it. No subsystem calls it; a procedure that must be followed
// by a redraw says so in its result.
#pragma once

#include "core/session/session.h"
#include "drawing/surface.h"

namespace session {

// Draws everything that lies on the map from memory, in order: the pictures with the sheet's grid, the boundaries, the
// observations. Touches no file.
void 画面再表示(Session& session, drawing::Surface& surface);

// Brings the section line's controls to where its ends stand now.
void place_section_controls(Session& session);

// Takes the list's selected row as the current sheet and reads its points again, without loading its pictures.
Redraw re_gamen(Session& session, Ports& ports);

}  // namespace session
