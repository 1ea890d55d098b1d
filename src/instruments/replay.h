// GPS_DATA_OUT: plays the sentences of \GPS_DATA.DAT through a serial port in place of a receiver, for work in the
// office.
#pragma once

#include <string>
#include <vector>

#include "platform/clock.h"
#include "platform/files.h"
#include "platform/prompts.h"
#include "platform/serial_port.h"

namespace instruments {

inline constexpr int replay_line_limit = 100;
inline constexpr int replay_port_limit = 13;  // Combo1 offers "1" to "13"

// The boxes of GPS_DATA_OUT.
struct Replay_boxes {
  std::string Combo1;  // port number; empty before one is chosen
  std::string Label2;  // time of the last tick, "10:20:31"
};

// \GPS_DATA.DAT of the program folder, at most 100 lines; none when it is missing.
std::vector<std::string> gps_data_r(platform::Files& files, const std::string& program_path);

// Milliseconds from tick to tick: a second, or as long as the line takes for all sentences at `speed` baud.
int replay_interval(const std::vector<std::string>& lines, const std::string& speed);

// Start: opens the port of Combo1 at `speed`. False with a message when none is chosen or it can't be opened.
bool replay_Command1(const Replay_boxes& boxes, platform::Serial_port& port, const std::string& speed,
                     platform::Prompts& prompts);
// Stop: closes the port.
void replay_Command2(platform::Serial_port& port);

// The tick: shows the time and sends every line, those of a GGA with the present time and the letters S and E. False
// when the port has gone.
bool replay_Timer1(Replay_boxes& boxes, const std::vector<std::string>& lines, platform::Serial_port& port,
                   platform::Clock& clock);

// A line as it is sent: of a GGA field 2 is the time as hhmmss.00, field 4 "S" and field 6 "E"; any other as it stands.
// A checksum stays what it was.
std::string replayed(const std::string& line, const platform::Date_time& now);

// Sends a text and a carriage return if the port is open. False when nothing went out.
bool SEND_COMMAND(platform::Serial_port& port, const std::string& text);

}  // namespace instruments
