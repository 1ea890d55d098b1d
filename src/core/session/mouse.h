// What a press, a move and a release of the mouse on the map mean.
#pragma once

#include <functional>
#include <string>

#include "core/session/session.h"

namespace session {

enum class Button { left = 1, right = 2 };

struct Press {
  Button button = Button::left;
  double x = 0, y = 0;  // twips
};

struct Mouse_result {
  bool taken = false;  // a tool took the event
  Redraw redraw = Redraw::none;
  bool point_menu = false;  // the context menu of a point is to come up
};

// Tools of other subsystems that take part in the table of presses. One that is not there leaves the press to the
// next row.
struct Map_tools {
  std::function<Mouse_result(Session&, const Press&, const maps::Map_position&)> line_vertex, line_free_end,
      model_corner, fix_point, point_menu, open_link;
};

// The ordered table of presses: the first row that applies takes the press.
Mouse_result mouse_press(Session& session, Ports& ports, const Map_tools& tools, const Press& press);
// The name of the table's row that would take the press, "" when it only prepares a drag. For tests and the status bar.
std::string press_taker(const Session& session, const Map_tools& tools, Button button);
// The rubber bands follow the mouse. Twips.
Mouse_result mouse_move(Session& session, double x, double y);
// Ends a drag: one of more than 100 twips in X or Y is a pan. Twips.
Mouse_result mouse_release(Session& session, const Press& release);
// Esc ends the armed tool as the right click does, whatever the position.
Mouse_result end_tool(Session& session, Ports& ports, const Map_tools& tools);

}  // namespace session
