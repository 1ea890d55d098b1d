// The flags that decide what a press on the map means, tested in the order in which they stand here.
#pragma once

namespace core {

// Most vertices of an open line or enclosure.
inline constexpr int line_limit = 148;

struct Interaction {
  int section_step = 0;    // 1 first end pending, 2 second end pending
  int zoom_box_step = 0;   // 1 first corner pending, 2 dragging
  int line_mode = 0;       // positive while a free line or enclosure is open
  int line_count = 0;      // vertices in the open line, 0 to line_limit
  int model_box_step = 0;  // 1 top-left pending, 2 bottom-right pending
  int point_mode = 0;      // 1: the next press fixes an observation position
  int gps_running = 0;     // 1: the map follows the fix
  int data_dirty = 0;      // 1: entered data not yet saved
  int pan_flag = 0;        // 1: changes of the horizontal bar move the view
  int pan_flag_v = 0;      // the same for the vertical bar
};

}  // namespace core
