#include "instruments/registry_writing.h"

#include <algorithm>
#include <functional>
#include <optional>
#include <unordered_map>
#include <unordered_set>
#include <utility>

#include "core/language.h"
#include "core/project_folders.h"
#include "core/save_messages.h"
#include "core/settings_files.h"
#include "instruments/tiltvane_line.h"
#include "instruments/track_log.h"
#include "observations/record_line.h"
#include "observations/registry_edit.h"
#include "platform/failures.h"
#include "platform/numbers.h"

namespace instruments {
namespace {

using observations::column_of;
using observations::Record;
using observations::Registry;
using platform::trim_text;
using platform::val;

constexpr int shortest_row = 4;  // columns
constexpr const char* flagged = "1";
constexpr double new_size = 2;

// Where a record stands, and when it was measured where the time counts too.
struct Stand {
  double X = 0, Y = 0;
  std::string time;
  bool operator==(const Stand&) const = default;
};
struct Stand_hash {
  std::size_t operator()(const Stand& stand) const {
    const std::hash<double> number;
    return (number(stand.X) * 31 + number(stand.Y)) * 31 + std::hash<std::string>()(stand.time);
  }
};
using Stands = std::unordered_set<Stand, Stand_hash>;

Stands stands_of(const Registry& registry, bool with_time) {
  Stands stands;
  stands.reserve(static_cast<std::size_t>(registry.N) * 2);
  for (int i = 1; i <= registry.N; ++i) {
    const Record& record = registry.rows[i];
    stands.insert({record.X, record.Y, with_time ? record.keisoku_jikoku : std::string()});
  }
  return stands;
}

// The first record of each measurement number, compared as numbers. A number that holds none is no key.
std::unordered_map<double, int> numbers_of(const Registry& registry) {
  std::unordered_map<double, int> numbers;
  for (int i = 1; i <= registry.N; ++i)
    if (!trim_text(registry.rows[i].keisoku_no).empty()) numbers.try_emplace(val(registry.rows[i].keisoku_no), i);
  return numbers;
}

void angles_to(Record& record, const Measurement& measurement) {
  record.soukou = measurement.strike;
  record.keisha = measurement.dip;
  record.sen_keisha = measurement.plunge;
  record.sen_houkou = measurement.azimuth;
  record.keisoku_jikoku = measurement.time;
}

Record new_record(const Measurement& measurement, geodesy::Point position, bool japanese) {
  Record record;
  record.X = position.x;
  record.Y = position.y;
  angles_to(record, measurement);
  record.decl_flag2 = measurement.declination ? flagged : "";
  record.touroku_no = touroku_no_of(measurement);
  record.keisoku_no = observations::number_parts(record.touroku_no).measurement;
  record.mark = japanese ? "○" : "circle";
  record.size = new_size;
  return record;
}

// The table as it was, for the case that it can't take or keep what is put into it.
struct Before {
  int N = 0;
  std::vector<std::pair<int, Record>> changed;  // in the order of the changes
};

void put_back(Registry& registry, const Before& before) {
  for (auto row = before.changed.rbegin(); row != before.changed.rend(); ++row)
    if (row->first <= before.N) registry.rows[row->first] = row->second;
  registry.N = before.N;
}

void append(Registry& registry, Record record) {
  registry.rows[registry.N + 1] = std::move(record);
  ++registry.N;
}

int put_on_track(Registry& registry, const std::vector<Measurement>& measurements, const Track& track, bool japanese) {
  Stands stands = stands_of(registry, true);
  int count = 0;
  for (const Measurement& measurement : measurements) {
    const std::optional<platform::Date_time> time = date_time_of(measurement.time);
    const int point = time ? partner_of(track, key_of(*time)) : -1;
    if (point < 0) continue;
    const geodesy::Point at = track.positions[static_cast<std::size_t>(point)];
    if (!stands.insert({at.x, at.y, measurement.time}).second) continue;
    append(registry, new_record(measurement, at, japanese));
    ++count;
  }
  return count;
}

void change(Registry& registry, int number, const Measurement& measurement, Before& before) {
  Record& record = registry.rows[number];
  before.changed.emplace_back(number, record);
  angles_to(record, measurement);
  record.henkaku_done = measurement.declination ? flagged : "";
}

int put_by_number(Registry& registry, const std::vector<Measurement>& measurements, bool japanese, Before& before) {
  Stands stands = stands_of(registry, false);
  std::unordered_map<double, int> numbers = numbers_of(registry);
  int count = 0;
  for (const Measurement& measurement : measurements) {
    const auto found = measurement.number.empty() ? numbers.end() : numbers.find(val(measurement.number));
    const geodesy::Point at = measurement.position;
    if (found != numbers.end()) {
      change(registry, found->second, measurement, before);
    } else if (at.x >= 0 && at.y >= 0 && stands.insert({at.x, at.y, {}}).second) {
      append(registry, new_record(measurement, at, japanese));
      if (!measurement.number.empty()) numbers.try_emplace(val(measurement.number), registry.N);
    } else {
      continue;
    }
    ++count;
  }
  return count;
}

// Runs one of the two; a full table is put back before its failure goes on.
int merged(Registry& registry, Before& before, const std::function<int()>& put) {
  before.N = registry.N;
  try {
    return put();
  } catch (const platform::Subscript_failure&) {
    put_back(registry, before);
    throw;
  }
}

int merge(Registry& registry, const std::vector<Measurement>& measurements, const Track* track, bool japanese,
          Before& before) {
  return merged(registry, before, [&] {
    return track ? put_on_track(registry, measurements, *track, japanese)
                 : put_by_number(registry, measurements, japanese, before);
  });
}

std::string chosen_file(const std::string& folder, const std::string& file) {
  return file.empty() ? file : platform::join_path(folder, file);
}

// What forbids the writing, told to the user. The file is read on the way.
bool refused(const Data_context& context, Registry& registry, const std::string& path) {
  if (path.empty()) {
    context.prompts.message(no_registry);
    return true;
  }
  if (context.settings.registry_count > 1) {
    context.prompts.message(observations::several_files);
    return true;
  }
  observations::chisoumen_read(registry, context.files, 1, {path});
  if (registry.complete) return false;
  core::read_in_part(context.prompts, path);
  return true;
}

// The dialog's settings are kept on the way; that they can't be doesn't stop the registry.
void keep_boxes(const Data_context& context, const Tiltvane_boxes& boxes) {
  try {
    core::rsport_w(context.files, context.settings.program_path, boxes);
  } catch (const platform::File_failure& failure) {
    core::write_failed(context.prompts, platform::join_path(context.settings.program_path, "RSPORT.dat"), failure);
  }
}

void tell_limits(const Data_context& context, const Measurement_list& list, const Track& track) {
  if (track.shortened)
    context.prompts.message("GPS位置記録は最初の10,000点だけを使います。",
                            "Only the first 10,000 points of the GPS track are used.");
  if (static_cast<int>(ticked_lines(list).size()) > measurement_limit)
    context.prompts.message("選択されたデータは最初の999個だけを書き込みます。",
                            "Only the first 999 ticked rows are written.");
}

bool write(const Data_context& context, Registry& registry, const Before& before, const std::string& path) {
  const auto operation = undoable(context, "クリノメータデータの登録", "Clinometer data");
  context.files.make_folder(core::chisou_men(context.settings.project_path));
  try {
    context.files.write_whole(path, observations::registry_bytes(registry));
  } catch (const platform::File_failure& failure) {
    put_back(registry, before);
    core::write_failed(context.prompts, path, failure);
    return false;
  }
  observations::registry_backup(context.files, context.settings.project_path);
  return true;
}

}  // namespace

// 12,L,S47W,49S,3.5,N30E,12,2008/11/15 10:20:30,＋,0,0,S54W,49S,3.5,N37E,12,7.0,3541.1234,N,13945.6789,E,7.0
// 1  2 3    4   5   6    7  8                   9  10 11 12 13  14  15   16 17  18        19 20         21
Measurement measurement_of(std::string_view line) {
  const auto column = [&](int number) { return trim_text(column_of(line, number)); };
  Measurement measurement;
  measurement.number = column(1);
  if (column(3) != no_plane) measurement.strike = column(3), measurement.dip = column(4);
  if (column(6) != no_plane) measurement.azimuth = column(6), measurement.plunge = column(7);
  measurement.time = column(8);
  measurement.declination = val(column(11)) != 0;
  if (has_position(line)) {
    const std::string letter = column(21);
    const double x = units_of(column(20), 3), y = units_of(column(18), 2);
    const geodesy::Point at{letter == "W" ? -x : x, letter == "S" ? -y : y};
    if (is_place(at)) measurement.position = rounded_position(at);
  }
  return measurement;
}

std::vector<Measurement> ticked_measurements(const Measurement_list& list) {
  std::vector<Measurement> measurements;
  int ticked = 0;
  for (const std::string& line : ticked_lines(list)) {
    if (++ticked > measurement_limit) break;
    const auto commas = std::count(line.begin(), line.end(), ',');
    if (commas + 1 >= shortest_row) measurements.push_back(measurement_of(line));
  }
  return measurements;
}

std::string touroku_no_of(const Measurement& measurement) {
  std::string date;
  if (const std::optional<platform::Date_time> time = date_time_of(measurement.time))
    for (const int part : {time->year % 100, time->month, time->day}) date += platform::format_number(part, "00");
  const std::string& number = measurement.number;
  return date + "-" + (number.empty() ? number : number + "*" + number);
}

Track track_r(platform::Files& files, const Tiltvane_boxes& boxes) {
  Track track;
  if (boxes.Check8) track_first_r(track, files, chosen_file(boxes.DirGPS, boxes.FileGPS));
  if (boxes.Check1)
    for (const core::File_choice& file : boxes.FileGPS2_list)
      if (file.selected) track_second_r(track, files, chosen_file(boxes.DirGPS2, file.name), val(boxes.Text2));
  return track;
}

int merge_with_track(Registry& registry, const std::vector<Measurement>& measurements, const Track& track,
                     bool japanese) {
  Before before;
  return merge(registry, measurements, &track, japanese, before);
}

int merge_without_track(Registry& registry, const std::vector<Measurement>& measurements, bool japanese) {
  Before before;
  return merge(registry, measurements, nullptr, japanese, before);
}

File_make_result Tiltvane_File_Make(const Data_context& context, Registry& registry, const Measurement_list& list,
                                    const Tiltvane_boxes& boxes) {
  const std::string path = observations::registry_file(context.settings);
  if (refused(context, registry, path)) return {};
  keep_boxes(context, boxes);
  if (boxes.Check8 && boxes.Check1) {
    context.prompts.message(two_tracks);
    return {};
  }
  const bool with_track = boxes.Check8 || boxes.Check1;
  const Track track = track_r(context.files, boxes);
  tell_limits(context, list, track);
  Before before;
  File_make_result result;
  result.count = merge(registry, ticked_measurements(list), with_track ? &track : nullptr,
                       core::is_japanese(context.settings.language), before);
  // A table in which nothing was changed is not written.
  if (result.count > 0 && !write(context, registry, before, path)) return {};
  result.written = result.count > 0;
  const std::string number = platform::number_text(result.count);
  context.prompts.message(number + "個のデータを書き込みました。", number + " Data Saved");
  return result;
}

}  // namespace instruments
