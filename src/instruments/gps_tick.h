// The live receiver: its port's start and stop, and what each tick of Timer2 makes of the bytes that came. Positions
// are used as they come, without a conversion of the datum.
#pragma once

#include <string>

#include "core/interaction.h"
#include "core/project_settings.h"
#include "maps/canvas.h"
#include "platform/clock.h"
#include "platform/serial_port.h"

namespace instruments {

// Milliseconds from tick to tick. Not a whole second, so that the ticks fall on ever other places of a receiver that
// speaks once a second: one that always fell into a burst would cut each of them.
inline constexpr int timer2_interval = 900;
inline constexpr int lost_after = 10;                // seconds without what was there before
inline constexpr int reopen_after = 3;               // seconds between two tries to open a port again
inline constexpr std::size_t buffer_limit = 16'384;  // bytes; what a receiver sends at most between two ticks

// What the state light says.
enum class Gps_light {
  closed,    // no port is open
  open,      // the port is open and silent
  bytes,     // bytes arrive, no position was asked for yet
  no_fix,    // the receiver searches
  fix,       // a position not older than 10 s
  doubtful,  // the same from a sentence that is malformed
  lost       // there was a position, more than 10 s ago
};

// The cross lines and the marker "○". Geographic units: hundred-thousandths of a degree.
struct Gps_mark {
  bool visible = false;
  double longitude = 0, latitude = 0;
};

struct Gps {
  std::string b;       // what came and was not used yet
  std::string Label7;  // the status text
  Gps_light light = Gps_light::closed;
  Gps_mark mark;
  double longitude = 0, latitude = 0;  // degrees, of the last position since the start
  bool has_position = false;
  bool is_doubtful = false;      // the last position came from a malformed sentence
  bool searches = false;         // the last sentence had none
  platform::Date_time last_fix;  // while has_position
  bool has_bytes = false;
  platform::Date_time last_bytes;  // while has_bytes
  platform::Date_time last_try;    // to open the port
};

// What the window must do after a tick.
struct Gps_step {
  bool moved = false;                  // a position came: the mark moves, and the sheet may change
  double longitude = 0, latitude = 0;  // degrees
};

// Opens the port of `Combo4` at the speed of `Combo5` unless it is open, and sets gps_running; Timer2 starts anew then.
// A port that can't be opened is passed over: each tick tries it again after a while.
void gps_start(Gps& gps, core::Interaction& flags, platform::Serial_port& port, const core::Settings_boxes& boxes,
               platform::Clock& clock);
// Closes the port, takes the mark away and clears gps_running; Timer2 stops then.
void gps_stop(Gps& gps, core::Interaction& flags, platform::Serial_port& port);

// The tick. Reads all that the port has. A GGA that a GSA follows is used, the first one of the buffer; an RMC empties
// the buffer. A receiver that was pulled is opened again when it is back; while it is gone, and when its position is
// lost, Label7 tells no more of a position.
Gps_step Timer2(Gps& gps, const core::Interaction& flags, platform::Serial_port& port, platform::Clock& clock);

// Mode 1 moves the mark to a position in geographic units and shows it; mode 0 hides it.
void GPS_MARK(Gps_mark& mark, int mode, double longitude, double latitude);
// Where a mark stands on the canvas now, in canvas units.
maps::Canvas_point gps_mark_at(maps::Canvas& canvas, const Gps_mark& mark);

// The port number of a text like "04", and the line settings of a speed.
int port_number(const std::string& text);
std::string line_settings(const std::string& speed);

}  // namespace instruments
