// The live receiver over the map: a tick of Timer2, the sheet that the position lies on, and the mark in sight.
#pragma once

#include <string>

#include "core/session/session.h"
#include "platform/serial_port.h"

namespace session {

struct Gps_followed {
  Redraw redraw = Redraw::none;
  bool moved = false;     // a position came; the members below hold then
  bool outside = false;   // no listed sheet is there
  int row = -1;           // of the sheet list that must be opened; -1: the sheet stays
  std::string Label16;    // name of the sheet of the position
  std::string data_path;  // what stands for the project's folder: "範囲外" outside every sheet
};

// Start and stop of the receiver, with the port and the speed of the basic settings.
void gps_start(Session& session, Ports& ports, platform::Serial_port& port);
void gps_stop(Session& session, platform::Serial_port& port);

// What the tick of Timer2 does. The caller opens the row.
Gps_followed gps_tick(Session& session, Ports& ports, platform::Serial_port& port);

}  // namespace session
