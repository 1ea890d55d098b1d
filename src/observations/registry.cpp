#include "observations/registry.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "core/project_folders.h"
#include "observations/record_line.h"
#include "platform/failures.h"

namespace observations {
namespace {

using platform::Files;
using platform::Text_line;

constexpr char end_of_text = '\x1a';

// Lines of one file to records behind those that the table has.
void append_records(Registry& registry, const std::vector<Text_line>& lines) {
  for (const Text_line& line : lines) {
    if (is_deleted(line.text)) continue;
    registry.rows[registry.N + 1] = record_of(line);
    ++registry.N;
  }
}

bool same_points(const std::vector<geodesy::Point>& a, const std::vector<geodesy::Point>& b) {
  return std::equal(a.begin(), a.end(), b.begin(), b.end(),
                    [](const geodesy::Point& p, const geodesy::Point& q) { return p.x == q.x && p.y == q.y; });
}

}  // namespace

bool Record::operator==(const Record& other) const {
  const auto numbers = [](const Record& r) {
    return std::array{r.boundary, r.X, r.Y, r.size, r.R, r.G, r.B, r.R2, r.G2, r.B2};
  };
  const auto texts = [](const Record& r) {
    return std::array{r.Z,    r.taishou,      r.chisou,     r.soukou,         r.keisha,     r.touroku_no, r.gazou,
                      r.mark, r.henkaku_done, r.decl_flag2, r.keisoku_jikoku, r.sen_keisha, r.sen_houkou, r.keisoku_no};
  };
  return numbers(*this) == numbers(other) && texts(*this) == texts(other) && strays == other.strays &&
         same_points(vertices, other.vertices);
}

void chisoumen_read(Registry& registry, Files& files, int count, const std::vector<std::string>& paths) {
  registry.N = 0;
  registry.complete = false;
  ++registry.reads;
  registry.file = paths.empty() ? "" : paths.front();
  registry.length = files.length(registry.file);
  registry.time_stamp = files.time_stamp(registry.file);
  bool readable = true;
  for (int pass = 1; pass <= count && !paths.empty(); ++pass) {
    try {
      append_records(registry, lines_to_keep(files, paths.front()));
    } catch (const platform::File_failure&) {
      append_records(registry, platform::read_text_lines(files, paths.front()));  // what can be read is shown
      readable = false;
    }
  }
  registry.complete = readable && count == 1 && !paths.empty();
}

bool is_changed(const Registry& registry, Files& files) {
  return !registry.file.empty() &&
         (files.length(registry.file) != registry.length || files.time_stamp(registry.file) != registry.time_stamp);
}

std::string registry_bytes(const Registry& registry) {
  platform::Line_writer writer;
  for (int i = 1; i <= registry.N; ++i)
    if (registry.rows[i].X != no_data) writer.line(line_of(registry.rows[i]));  // Y is not looked at, on purpose
  return writer.bytes();
}

std::string registry_file(const core::Settings& settings) {
  if (settings.project_path.empty() || !platform::stays_inside(settings.registry_name)) return {};
  return core::chisou_men(settings.project_path, settings.registry_name);
}

void registry_backup(Files& files, const std::string& project_path) {
  const std::string folder = core::chisou_men(project_path);
  const std::string backup = core::chisou_men(project_path, "csv");
  files.make_folder(backup);
  for (const std::string& name : files.list(folder, "*.csv")) {
    try {
      files.copy(platform::join_path(folder, name), platform::join_path(backup, name));
    } catch (const platform::File_failure&) {
      continue;  // a copy that fails is silent: the file itself is saved
    }
  }
}

std::vector<Text_line> lines_to_keep(Files& files, const std::string& path) {
  if (files.length(path) == 0) return {};
  const std::string bytes = files.read_bytes(path);
  const std::size_t end = bytes.find(end_of_text);
  if (end != std::string::npos && end + 1 < bytes.size())
    throw platform::File_failure(path + " holds text behind its end-of-text mark");
  return platform::text_lines_of(bytes);  // read a second time it might fail, and the file would lose its lines
}

bool is_deleted(std::string_view line) {
  return line.find(no_data_text) != std::string_view::npos;
}

bool is_geographic(const Record& record) {
  return std::abs(record.X) > geographic_from && std::abs(record.Y) > geographic_from;
}

}  // namespace observations
