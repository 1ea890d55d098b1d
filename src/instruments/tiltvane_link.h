// The serial talk with the clinometer: the search for its port, the download of its memory, and the table \TMP2.TMP
// that is made of what came. The dialogs drive it: they call the procedure of the timer that runs, every 200 ms or so,
// and show the state. What came over the line is in \Tiltvane.tmp of the program folder before anything is made of it.
// docs/clinometer.md tells the talk.
#pragma once

#include <cstddef>
#include <string>

#include "instruments/tiltvane_boxes.h"
#include "platform/clock.h"
#include "platform/files.h"
#include "platform/prompts.h"
#include "platform/serial_port.h"

namespace instruments {

inline constexpr const char* clinometer_line = "9600,n,8,1";
inline constexpr int search_quiet_ticks = 10;    // the next tick without input goes on to the next port
inline constexpr int download_quiet_ticks = 50;  // the next one gives up
inline constexpr int last_port = 50;
inline constexpr std::size_t most_records = 1200;  // of one answer; more are dropped
// A device that talks but never says "END" is no clinometer: ticks at one port, and bytes of one download.
inline constexpr int most_probe_ticks = 100;
inline constexpr std::size_t largest_answer = 4'000'000;

enum class Link_timer { none, Timer1, Timer3 };
enum class Status_colour { plain, magenta, blue, red };

// The label that tells how the connection stands; Timer5 shows it and an empty label in turn while it blinks.
struct Link_status {
  platform::Message text{"", ""};
  Status_colour colour = Status_colour::plain;
  bool blinks = false;
};

struct Tiltvane_link {
  Link_timer timer = Link_timer::none;  // the one that runs
  int tick = 0;                         // ticks since the last command
  int quiet = 0;                        // ticks without input in a row
  int port = 0;                         // the port tried now
  std::string buf;                      // all that was received
  Link_status status;
  int probe_ticks = 0;           // at this port
  std::size_t end_sought = 0;    // bytes of `buf` in which there is no "END"
  std::size_t lines = 0;         // that came, the unfinished one not counted
  std::string file_name;         // the name that the records would be saved under; empty: no records were taken
  std::size_t record_count = 0;  // in \TMP2.TMP
};

// What the procedures work with beside the state. `full` is false for the small dialog, which keeps two lines of the
// link settings only.
struct Link_ports {
  platform::Serial_port& serial;
  platform::Files& files;
  platform::Prompts& prompts;
  platform::Clock& clock;
  const std::string& program_path;
  bool full = true;
};

// "Start": writes \RSPORT.dat, then searches the ports from 1 to 50 when Check3 is ticked, or reads at once.
void link_start(Tiltvane_link& link, Tiltvane_boxes& boxes, const Link_ports& ports);
// The download from the port of Combo8: keeps and empties the log, sends "o" and the count, starts Timer3.
void GeoRead_start(Tiltvane_link& link, const Tiltvane_boxes& boxes, const Link_ports& ports);

// One tick of the search; Combo8 follows the port. Starts the download when the instrument has answered.
void timer1_tick(Tiltvane_link& link, Tiltvane_boxes& boxes, const Link_ports& ports);
// One tick of the download. True when the records have come and \TMP2.TMP holds them. File_failure ends the download:
// the port is closed and no timer runs.
bool timer3_tick(Tiltvane_link& link, const Tiltvane_boxes& boxes, const Link_ports& ports);

// Stop: closes the port; no timer runs.
void Command50(Tiltvane_link& link, platform::Serial_port& serial);

// A download that broke off, as its log holds it.
struct Broken_download {
  std::string path;         // of the log; empty: there is none
  std::size_t records = 0;  // whole lines that are records
  bool cut = false;         // the last line is unfinished
};
// Of \Tiltvane.tmp, or of the log before it while that one holds no record and no
// answer. A log that was read again is no more offered.
Broken_download broken_download(platform::Files& files, const std::string& program_path);
// Reads it again, without an unfinished line, and makes \TMP2.TMP of it. False when there is none; File_failure when it
// can't be read or the table not be written, and then it is offered again.
bool read_again(Tiltvane_link& link, const Tiltvane_boxes& boxes, const Link_ports& ports);

}  // namespace instruments
