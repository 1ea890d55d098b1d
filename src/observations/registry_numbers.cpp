#include "observations/registry_numbers.h"

#include <algorithm>
#include <cmath>

#include "core/project_folders.h"
#include "observations/record_line.h"
#include "platform/numbers.h"
#include "platform/text_files.h"
#include "platform/utf8.h"

namespace observations {
namespace {

constexpr double units_per_degree = 100'000;
constexpr double seconds_per_degree = 3600;

// The counter in a column 9 that begins with the prefix: the number behind the one character that parts them.
double counter_of(std::string_view touroku_no, std::string_view prefix) {
  if (!touroku_no.starts_with(prefix)) return 0;
  touroku_no.remove_prefix(prefix.size());
  if (touroku_no.empty()) return 0;
  return platform::val(touroku_no.substr(platform::character_at(touroku_no, 0).length));
}

// The last `digits` characters of the counter with zeros in front.
std::string counter_text(double counter, std::size_t digits) {
  const std::string padded = std::string(digits, '0') + platform::number_text(counter);
  return padded.substr(padded.size() - digits);
}

std::string date_prefix(const platform::Date_time& today) {
  const std::string year = platform::format_number(today.year, "0000");
  return year.substr(2, 2) + platform::format_number(today.month, "00") + platform::format_number(today.day, "00");
}

// Whole seconds of arc. Multiplied before it is divided, so that a position on a cell's edge falls to no neighbour.
long long arc_seconds(double units) {
  return static_cast<long long>(units * seconds_per_degree / units_per_degree);
}

bool counts_as_measured(const Record& record) {
  return record.touroku_no.find('*') != std::string::npos || platform::val(record.keisoku_no) != 0;
}

}  // namespace

double highest_counter(platform::Files& files, const std::string& project_path, std::string_view prefix) {
  constexpr int number_column = 9;
  const std::string folder = core::chisou_men(project_path);
  double highest = 0;
  for (const std::string& name : files.list(folder, "*.csv"))
    for (const std::string& line : platform::read_lines(files, platform::join_path(folder, name)))
      highest = std::max(highest, counter_of(column_of(line, number_column), prefix));
  return highest;
}

std::string touroku_no_get(platform::Files& files, const std::string& project_path, const platform::Date_time& today) {
  const std::string prefix = date_prefix(today);
  return prefix + "-" + counter_text(highest_counter(files, project_path, prefix) + 1, 3);
}

std::string third_mesh_code(geodesy::Point position) {
  constexpr double furthest = 18'000'000;  // 180 degrees
  if (!(position.x >= 100 * units_per_degree && position.x <= furthest)) return {};
  if (!(position.y > geographic_from && position.y <= furthest / 2)) return {};
  const long long lat = arc_seconds(position.y), lon = arc_seconds(position.x);
  const auto digits = [](long long count) { return std::to_string(count); };
  return digits(lat / 2400) + digits(lon / 3600 - 100) +                 // 40 minutes, 1 degree
         digits(lat % 2400 / 300) + digits(lon % 3600 / 450) +           // 300 and 450 seconds
         digits(lat % 2400 % 300 / 30) + digits(lon % 3600 % 450 / 45);  // 30 and 45 seconds
}

std::string mesh_number(platform::Files& files, const std::string& project_path, geodesy::Point position) {
  const std::string code = third_mesh_code(position);
  if (code.empty()) return {};
  return code + "-" + counter_text(highest_counter(files, project_path, code) + 1, 2);
}

double highest_measurement(const Registry& registry) {
  double highest = 0;
  for (int i = 1; i <= registry.N; ++i)
    if (counts_as_measured(registry.rows[i])) highest = std::max(highest, platform::val(registry.rows[i].keisoku_no));
  return highest;
}

bool measurement_in_use(const Registry& registry, std::string_view measurement, int last) {
  const double number = platform::val(measurement);
  for (int i = 1; i <= std::min(last, registry.N); ++i)
    if (counts_as_measured(registry.rows[i]) && platform::val(registry.rows[i].keisoku_no) == number) return true;
  return false;
}

}  // namespace observations
