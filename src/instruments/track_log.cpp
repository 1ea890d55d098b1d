#include "instruments/track_log.h"

#include <optional>

#include "core/save_messages.h"
#include "instruments/position_tracks.h"
#include "observations/record_line.h"
#include "platform/digits.h"
#include "platform/failures.h"
#include "platform/numbers.h"
#include "platform/text_files.h"

namespace instruments {
namespace {

using observations::column_of;
using platform::two_digits;

constexpr const char* first_line = "@Sonygps/ver1.0/wgs-84";
constexpr long long japan_seconds = 9 * 60 * 60;
constexpr std::size_t fraction_digits = 5;

std::string trimmed_column(std::string_view line, int column) {
  return platform::trim_text(column_of(line, column));
}

}  // namespace

std::string track_log_coordinate(std::string_view text) {
  const std::size_t point = text.find('.');
  const std::string padded =
      std::string(fraction_digits, '0') + std::string(point == text.npos ? "" : text.substr(point + 1));
  return std::string(text.substr(0, point)) + "." + padded.substr(padded.size() - fraction_digits);
}

bool has_position(std::string_view line) {
  return trimmed_column(line, 18).size() >= 2 && trimmed_column(line, 20).size() >= 2;
}

// $GPGGA,012030.00,3541.01234,N,13945.06789,E,1,08,,,M,,M,,
// $GPRMC,012030.00,A,3541.01234,N,13945.06789,E,0.00,0,151108,,
std::vector<std::string> track_log_lines(std::string_view line) {
  const std::optional<platform::Date_time> local = date_time_of(column_of(line, 8));
  if (!has_position(line) || !local) return {};
  const platform::Date_time utc = seconds_later(*local, -japan_seconds);
  const std::string time = two_digits(utc.hour) + two_digits(utc.minute) + two_digits(utc.second) + ".00";
  const std::string date = two_digits(utc.day) + two_digits(utc.month) + two_digits(utc.year % 100);
  const std::string position = track_log_coordinate(trimmed_column(line, 18)) + "," + trimmed_column(line, 19) + "," +
                               track_log_coordinate(trimmed_column(line, 20)) + "," + trimmed_column(line, 21) + ",";
  return {"$GPGGA," + time + "," + position + "1,08,,,M,,M,,",
          "$GPRMC," + time + ",A," + position + "0.00,0," + date + ",,"};
}

bool Command16(const Data_context& context, const Measurement_list& list, const Ask_path& ask) {
  const std::string path = ask();
  if (path.empty()) return false;
  platform::Line_writer writer;
  writer.line(first_line);
  bool any = false;
  for (const std::string& line : ticked_lines(list))
    for (const std::string& sentence : track_log_lines(line)) {
      writer.line(sentence);
      any = true;
    }
  if (!any) {
    context.prompts.message(no_ticked_row);
    return false;
  }
  try {
    context.files.write_whole(path, writer.bytes());
  } catch (const platform::File_failure& failure) {
    core::write_failed(context.prompts, path, failure);
    return false;
  }
  return true;
}

}  // namespace instruments
