// The view tools: zoom, scroll, the starting of the map tools, and what tells a person which tool is in force.
#pragma once

#include "core/session/session.h"

namespace session {

// Command16 (in) and Command17 (out): one step about the top-left corner.
Redraw zoom(Session& session, bool in);
// So many steps about a place, in twips; negative steps make the map smaller.
Redraw zoom_wheel(Session& session, int steps, double x, double y);
// Command18: back to the size and place of a sheet just selected.
Redraw Command18(Session& session);
// Command19 arms the zoom by rectangle, Command25 the section line. One that is armed already takes the mouse as long
// as it stands above the other in the table of presses.
Redraw Command19(Session& session);
Redraw Command25(Session& session);

// The scroll bars were moved to these values.
Redraw bars_moved(Session& session, int horizontal, int vertical);
// Moves the picture with the hand; twips. Bounded by the bars' ends.
Redraw pan_one_to_one(Session& session, double dx, double dy);
// Sets the bars' ends after the canvas or the scale changed.
void measure_bars(Session& session);

struct Tool_hint {
  bool armed = false;  // a press on the map goes to a tool
  const char* japanese = "";
  const char* english = "";
};
Tool_hint tool_hint(const Session& session);

}  // namespace session
