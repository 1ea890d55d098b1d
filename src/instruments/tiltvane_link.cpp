#include "instruments/tiltvane_link.h"

#include <algorithm>
#include <string_view>
#include <vector>

#include "instruments/tiltvane_line.h"
#include "observations/record_line.h"
#include "platform/code_page_932.h"
#include "platform/failures.h"
#include "platform/numbers.h"
#include "platform/text_files.h"
#include "platform/utf8.h"

namespace instruments {
namespace {

using platform::join_path;

constexpr const char* log_name = "Tiltvane.tmp";
constexpr const char* earlier_log_name = "Tiltvane.old";
constexpr const char* answer_name = "TMP.TMP";
constexpr const char* table_name = "TMP2.TMP";
constexpr std::string_view end_word = "END";

constexpr Link_status searching{{"Tiltvaneを探しています。", "Seaching Tiltvane"}, Status_colour::magenta, true};
constexpr Link_status connected{{"Tiltvaneと接続しました。", "it connects Tiltvane. "}, Status_colour::blue, false};
constexpr Link_status not_connected{{"Tiltvane未接続", "Tiltvane don't connect"}, Status_colour::red, false};
constexpr platform::Message not_there{"Tiltvaneが見つかりません。Tiltvaneの電源,ケーブル接続を確認して下さい。",
                                      "There is not Tiltvane.  "};

void settings_w(const Tiltvane_boxes& boxes, const Link_ports& ports) {
  if (ports.full)
    core::rsport_w(ports.files, ports.program_path, boxes);
  else
    core::rsport_w2(ports.files, ports.program_path, boxes);
}

// Opens a port and sends the command; one that can't be opened is silent.
void send_to(int port, std::string_view command, platform::Serial_port& serial) {
  serial.set_port(port);
  serial.set_line(clinometer_line);
  if (serial.open()) serial.write(command);
}

// Adds what came, and counts the ticks on which nothing did.
void take_input(Tiltvane_link& link, const std::string& input) {
  link.buf += input;
  link.lines += static_cast<std::size_t>(std::count(input.begin(), input.end(), '\n'));
  link.quiet = input.empty() ? link.quiet + 1 : 0;
}

// Whether "END" has come, perhaps in two pieces. Looks at what is new, so that a long answer isn't gone through again
// at every tick.
bool has_ended(Tiltvane_link& link) {
  if (link.buf.find(end_word, link.end_sought) != std::string::npos) return true;
  link.end_sought = link.buf.size() - std::min(link.buf.size(), end_word.size() - 1);
  return false;
}

void stop_with(Tiltvane_link& link, platform::Serial_port& serial, const Link_status& status) {
  serial.close();
  link.timer = Link_timer::none;
  link.status = status;
}

void give_up(Tiltvane_link& link, const Link_ports& ports) {
  stop_with(link, ports.serial, not_connected);
  ports.prompts.message(not_there);
}

// ---- the search

void search_start(Tiltvane_link& link, const Tiltvane_boxes& boxes, const Link_ports& ports) {
  settings_w(boxes, ports);
  ports.files.write_whole(join_path(ports.program_path, table_name), "");
  link = Tiltvane_link{};
  link.port = 1;
  link.tick = 2;
  link.status = searching;
  link.timer = Link_timer::Timer1;
  ports.serial.close();
  send_to(link.port, "o1", ports.serial);
}

void next_port(Tiltvane_link& link, Tiltvane_boxes& boxes, const Link_ports& ports) {
  link.quiet = 0;
  link.probe_ticks = 0;
  ports.serial.close();
  ++link.port;
  if (link.port > last_port) {
    give_up(link, ports);
    return;
  }
  boxes.Combo8 = platform::format_number(link.port, "00");
  send_to(link.port, "o1", ports.serial);
}

// ---- the records

// A line as text. Control characters are noise of the wire; one of them would end the table for its readers.
std::string text_of(std::string_view bytes) {
  std::string line(bytes);
  std::replace_if(
      line.begin(), line.end(), [](unsigned char c) { return c < 0x20; }, '?');
  return platform::decode_932(line);
}

std::vector<std::string> lines_of(std::string_view bytes) {
  std::vector<std::string> lines;
  while (!bytes.empty()) {
    const std::size_t end = std::min(bytes.find_first_of("\r\n"), bytes.size());
    if (end > 0) lines.push_back(text_of(bytes.substr(0, end)));
    bytes.remove_prefix(std::min(end + 1, bytes.size()));
  }
  return lines;
}

bool is_record(const std::string& line) {
  return platform::character_count(line) >= shortest_line && !platform::trim_text(line).starts_with(end_word);
}

std::vector<std::string> records_of(std::string_view bytes) {
  std::vector<std::string> lines = lines_of(bytes);
  std::erase_if(lines, [](const std::string& line) { return !is_record(line); });
  if (lines.size() > most_records) lines.resize(most_records);
  return lines;
}

std::string number_in(const std::string& record) {
  return record.substr(0, record.find(','));
}

// The name from the log, the answer to \TMP.TMP, and from there the records turned to true north to \TMP2.TMP. The
// table has the Japanese header in both languages.
void make_table(Tiltvane_link& link, std::string_view log, const Tiltvane_boxes& boxes, const Link_ports& ports) {
  const std::vector<std::string> logged = records_of(log);
  const std::string name =
      logged.empty() ? std::string{}
                     : measurement_file_name(number_in(logged.front()), number_in(logged.back()), ports.clock.now());
  const std::string answer_path = join_path(ports.program_path, answer_name);
  ports.files.write_whole(answer_path, link.buf);
  const std::vector<std::string> records =
      link.buf.empty() ? std::vector<std::string>{} : records_of(ports.files.read_bytes(answer_path));
  platform::Line_writer table;
  table.line(measurement_header(true));
  for (const std::string& record : records) table.line(converted_line(record, boxes.Text1));
  ports.files.write_whole(join_path(ports.program_path, table_name), table.bytes());
  link.file_name = name;
  link.record_count = records.size();
}

// ---- the log

std::string_view whole_lines(std::string_view bytes) {
  return bytes.substr(0, bytes.find_last_of("\r\n") + 1);
}

std::size_t records_in(const std::string& log) {
  return records_of(whole_lines(log)).size();
}

// Of a missing file nothing; File_failure for one that can't be read.
std::string content_of(platform::Files& files, const std::string& path) {
  return files.length(path) == 0 ? std::string{} : files.read_bytes(path);
}

// The last log is kept under another name, so that a download that brings nothing, or noise, doesn't cost the one
// before.
void empty_log(const Link_ports& ports) {
  const std::string path = join_path(ports.program_path, log_name);
  if (records_in(content_of(ports.files, path)) > 0)
    ports.files.copy(path, join_path(ports.program_path, earlier_log_name));
  ports.files.write_whole(path, "");
}

// A record by its number and time, which no declination changes.
std::string key_of(const std::string& record) {
  using observations::column_of;
  return std::string(column_of(record, 1)) + "," + std::string(column_of(record, 8));
}

// Whether a log holds what no table was made of. The answer may be in its file without a table: a fault came between.
bool is_unread(const std::string& log, platform::Files& files, const std::string& program_path) {
  const std::vector<std::string> table = lines_of(content_of(files, join_path(program_path, table_name)));
  const std::vector<std::string> logged = records_of(whole_lines(log));
  // The table has a header, and then each record as it was turned and written.
  const auto same_record = [](const std::string& record, const std::string& row) {
    return key_of(text_of(platform::encode_932(converted_line(record, {})))) == key_of(row);
  };
  return table.size() < logged.size() + 1 || !std::equal(logged.begin(), logged.end(), table.begin() + 1, same_record);
}

Broken_download broken_log(platform::Files& files, const std::string& program_path) {
  std::string path = join_path(program_path, log_name);
  std::string log = content_of(files, path);
  if (records_in(log) == 0 && log.find(end_word) == std::string::npos) {
    path = join_path(program_path, earlier_log_name);
    log = content_of(files, path);
  }
  const std::size_t records = records_in(log);
  if (records == 0 || !is_unread(log, files, program_path)) return {};
  return {path, records, whole_lines(log).size() < log.size()};
}

}  // namespace

void link_start(Tiltvane_link& link, Tiltvane_boxes& boxes, const Link_ports& ports) {
  if (boxes.Check3 != 0)
    search_start(link, boxes, ports);
  else
    GeoRead_start(link, boxes, ports);
}

void GeoRead_start(Tiltvane_link& link, const Tiltvane_boxes& boxes, const Link_ports& ports) {
  settings_w(boxes, ports);
  empty_log(ports);
  // A search that has just found the instrument says so; otherwise the first bytes will.
  const bool found = link.status.colour == Status_colour::blue && link.port > 0;
  link = Tiltvane_link{};
  link.status = found ? connected : searching;
  link.timer = Link_timer::Timer3;
  ports.serial.close();
  send_to(static_cast<int>(platform::val(boxes.Combo8)), "o" + three_digits(boxes.Text15), ports.serial);
}

void timer1_tick(Tiltvane_link& link, Tiltvane_boxes& boxes, const Link_ports& ports) {
  if (link.timer != Link_timer::Timer1) return;
  ++link.tick;
  if (link.tick < 1) return;
  if (!ports.serial.is_open()) send_to(link.port, "o1", ports.serial);
  take_input(link, ports.serial.read_all());
  ++link.probe_ticks;
  if (has_ended(link)) {
    stop_with(link, ports.serial, connected);
    boxes.Combo8 = platform::format_number(link.port, "00");
    GeoRead_start(link, boxes, ports);
  } else if (link.quiet > search_quiet_ticks || link.probe_ticks >= most_probe_ticks) {
    next_port(link, boxes, ports);
  }
}

bool timer3_tick(Tiltvane_link& link, const Tiltvane_boxes& boxes, const Link_ports& ports) {
  if (link.timer != Link_timer::Timer3) return false;
  ++link.tick;
  if (link.tick < 1) return false;
  const std::string log_path = join_path(ports.program_path, log_name);
  try {
    // A port that was closed meanwhile gives what it had, and then nothing: it is silent.
    const std::string input = ports.serial.read_all();
    if (!input.empty()) {
      ports.files.append(log_path, input);
      link.status = connected;
    }
    take_input(link, input);
    if (has_ended(link)) {
      stop_with(link, ports.serial, connected);
      make_table(link, ports.files.read_bytes(log_path), boxes, ports);
      return true;
    }
  } catch (const platform::File_failure&) {
    stop_with(link, ports.serial, not_connected);
    throw;
  }
  if (link.quiet > download_quiet_ticks || link.buf.size() > largest_answer) give_up(link, ports);
  return false;
}

void Command50(Tiltvane_link& link, platform::Serial_port& serial) {
  stop_with(link, serial, link.status.blinks ? Link_status{} : link.status);
}

Broken_download broken_download(platform::Files& files, const std::string& program_path) {
  try {
    return broken_log(files, program_path);
  } catch (const platform::File_failure&) {
    return {};  // a log that can't be read is not offered
  }
}

bool read_again(Tiltvane_link& link, const Tiltvane_boxes& boxes, const Link_ports& ports) {
  const Broken_download broken = broken_log(ports.files, ports.program_path);
  if (broken.path.empty()) return false;
  Command50(link, ports.serial);
  link = Tiltvane_link{};
  link.buf = whole_lines(ports.files.read_bytes(broken.path));
  make_table(link, link.buf, boxes, ports);
  return true;
}

}  // namespace instruments
