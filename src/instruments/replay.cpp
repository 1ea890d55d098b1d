#include "instruments/replay.h"

#include <algorithm>

#include "drawing/text_split.h"
#include "instruments/gps_tick.h"
#include "instruments/nmea.h"
#include "platform/code_page_932.h"
#include "platform/digits.h"
#include "platform/numbers.h"
#include "platform/text_files.h"

namespace instruments {
namespace {

using platform::two_digits;

constexpr int shortest_interval = 1000;  // milliseconds; a receiver speaks once a second
constexpr double bits_per_byte = 10;     // with the start and the stop bit of 8N1

}  // namespace

std::vector<std::string> gps_data_r(platform::Files& files, const std::string& program_path) {
  std::vector<std::string> lines = platform::read_lines(files, platform::join_path(program_path, "GPS_DATA.DAT"));
  if (lines.size() > replay_line_limit) lines.resize(replay_line_limit);
  return lines;
}

int replay_interval(const std::vector<std::string>& lines, const std::string& speed) {
  double bytes = 0;
  for (const std::string& line : lines) bytes += static_cast<double>(line.size()) + 1;
  const double baud = std::max(platform::val(speed), 1.0);
  return static_cast<int>(std::clamp(bytes * bits_per_byte * 1000 / baud, double{shortest_interval}, 3'600'000.0));
}

bool replay_Command1(const Replay_boxes& boxes, platform::Serial_port& port, const std::string& speed,
                     platform::Prompts& prompts) {
  const int number = port_number(boxes.Combo1);
  if (number == 0) {
    prompts.message({"ポート番号を選択して下さい。", "ポート番号を選択して下さい。"});
    return false;
  }
  port.close();
  port.set_port(number);
  port.set_line(line_settings(speed));
  if (port.open()) return true;
  prompts.message("ポート" + boxes.Combo1 + "を開けません。", "Port " + boxes.Combo1 + " can't be opened.");
  return false;
}

void replay_Command2(platform::Serial_port& port) {
  port.close();
}

bool replay_Timer1(Replay_boxes& boxes, const std::vector<std::string>& lines, platform::Serial_port& port,
                   platform::Clock& clock) {
  const platform::Date_time now = clock.now();
  boxes.Label2 = two_digits(now.hour) + ":" + two_digits(now.minute) + ":" + two_digits(now.second);
  for (const std::string& line : lines)
    if (!SEND_COMMAND(port, replayed(line, now)) && !port.is_open()) return false;
  return port.is_open();
}

std::string replayed(const std::string& line, const platform::Date_time& now) {
  std::vector<std::string> fields(static_cast<std::size_t>(std::count(line.begin(), line.end(), ',')) + 1);
  drawing::split_csv(line, fields);
  if (fields[0] != gga_word) return line;
  fields.resize(std::max<std::size_t>(fields.size(), 6));
  fields[1] = two_digits(now.hour) + two_digits(now.minute) + two_digits(now.second) + ".00";
  fields[3] = "S";
  fields[5] = "E";
  std::string joined = fields[0];
  for (std::size_t i = 1; i < fields.size(); ++i) joined += "," + fields[i];
  return joined;
}

bool SEND_COMMAND(platform::Serial_port& port, const std::string& text) {
  return port.is_open() && port.write(platform::encode_932(text) + "\r");
}

}  // namespace instruments
