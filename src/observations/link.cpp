#include "observations/link.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include "core/project_folders.h"
#include "observations/mark_out.h"
#include "platform/failures.h"
#include "platform/numbers.h"
#include "platform/path_keys.h"
#include "platform/text_case.h"
#include "platform/text_files.h"

namespace observations {
namespace {

constexpr const char* log_program = "logprint2.exe";
constexpr const char* hand_off_file = "boring_out.tmp";

// Where the address begins in a text; npos when it holds none.
std::size_t address_in(std::string_view link) {
  return std::min(link.find("http:"), link.find("https:"));
}

// "a\b" of "\a//b"; empty when a part could lead out of the folder that it is to stand in.
std::string inner_path(std::string_view link) {
  std::string path;
  while (!link.empty()) {
    const std::size_t end = std::min(link.find_first_of("\\/"), link.size());
    const std::string_view part = link.substr(0, end);
    link.remove_prefix(std::min(end + 1, link.size()));
    if (part.empty()) continue;
    if (!platform::stays_inside(part)) return {};
    path += (path.empty() ? "" : "\\") + std::string(part);
  }
  return path;
}

// The names of a path's key below that of a folder, as the path writes them; empty when it doesn't lie there.
std::string below(std::string_view path, std::string_view folder) {
  if (!platform::lies_below(path, folder)) return {};
  const std::string rest = platform::path_key(path).substr(platform::path_key(folder).size() + 1);
  std::string names;
  for (auto left = std::count(rest.begin(), rest.end(), '\\'); left >= 0; --left) {
    const std::size_t cut = path.find_last_of("\\/");
    names = std::string(path.substr(cut + 1)) + (names.empty() ? "" : "\\") + names;
    path = path.substr(0, std::min(path.find_last_not_of("\\/", cut) + 1, cut));
  }
  // A path with a detour, "a\..\b", has other names at its end than its key.
  return platform::fold_case(names) == rest ? names : std::string();
}

std::string_view last_part(std::string_view path) {
  return path.substr(path.find_last_of("\\/") + 1);  // npos + 1 is 0
}

bool is_log(std::string_view path) {
  const std::string upper = platform::upper_case(path);
  return upper.ends_with(".XML") || upper.ends_with(".BOR");
}

// boring_out.tmp, one line:
//   B-12
//   1     name of the log, its file's without the extension
bool write_hand_off(const Link_context& context, std::string_view path) {
  const std::string_view name = last_part(path);
  platform::Line_writer writer;
  writer.line(name.substr(0, name.find_last_of('.')));
  try {
    context.files.write_whole(platform::join_path(context.settings.program_path, hand_off_file), writer.bytes());
  } catch (const platform::File_failure&) {
    return false;  // logprint2 would show the log of an earlier hand-off
  }
  return true;
}

Link_opened hand_to_log_program(const Link_context& context, const std::string& path) {
  if (context.log_folder.empty() || !write_hand_off(context, path)) return Link_opened::failed;
  const bool started = context.processes.start(platform::join_path(context.log_folder, log_program),
                                               {context.files.native_path(path)}, context.log_folder);
  return started ? Link_opened::opened : Link_opened::failed;
}

Link_opened outcome_of(bool opened) {
  return opened ? Link_opened::opened : Link_opened::failed;
}

}  // namespace

std::string picture_path(const std::string& project_path, std::string_view name) {
  if (project_path.empty() || !platform::stays_inside(name)) return {};
  return core::chisou_men(project_path, std::string(name));
}

std::string linked_file(platform::Files& files, const std::string& project_path, std::string_view link) {
  const std::string inner = inner_path(platform::trim_text(link));
  if (inner.empty() || project_path.empty()) return {};
  const std::string in_chisou_men = core::chisou_men(project_path, inner);
  const std::string in_project = platform::join_path(project_path, inner);
  const bool only_in_project = files.length(in_chisou_men) == 0 && files.length(in_project) > 0;
  return only_in_project ? in_project : in_chisou_men;
}

std::string link_to(const std::string& project_path, std::string_view file) {
  if (project_path.empty()) return {};
  const std::string in_chisou_men = below(file, core::chisou_men(project_path));
  return inner_path(in_chisou_men.empty() ? below(file, project_path) : in_chisou_men);
}

int linked_record_at(const Registry& registry, const maps::Canvas& canvas, const maps::Map_position& position,
                     double x_twips, double y_twips) {
  double best = std::numeric_limits<double>::infinity();
  int nearest = 0;
  for (int i = 1; i <= registry.N; ++i) {
    double x = registry.rows[i].X, y = registry.rows[i].Y;
    if (canvas.is_geographic && is_geographic(registry.rows[i])) maps::geographic_to_map(canvas, x, y);
    const double dx = x - position.x, dy = y - position.y;
    const double distance = dx * dx + dy * dy;
    if (!(distance < best)) continue;
    best = distance;
    nearest = i;
  }
  if (nearest == 0) return 0;
  const Record& record = registry.rows[nearest];
  maps::Canvas scratch = canvas;
  const maps::Canvas_point at = maps::henkan_px(scratch, record.X, record.Y);
  const double half = mark_half(record.size);
  const bool inside = std::abs(x_twips / maps::twips_per_unit - at.x) <= half &&
                      std::abs(y_twips / maps::twips_per_unit - at.y) <= half;
  return inside ? nearest : 0;
}

Link_opened open_link(const Link_context& context, std::string_view link) {
  if (platform::trim_text(link).empty()) return Link_opened::none;
  if (const std::size_t address = address_in(link); address != std::string_view::npos)
    return outcome_of(context.processes.open_with_program(std::string(link.substr(address))));
  const std::string path = linked_file(context.files, context.settings.project_path, link);
  if (path.empty()) return Link_opened::failed;
  if (is_log(path)) return hand_to_log_program(context, path);
  if (context.files.length(path) == 0) return Link_opened::failed;
  return outcome_of(context.processes.open_with_program(path));
}

Link_opened open_link(const Link_context& context, const maps::Map_position& position, double x_twips, double y_twips) {
  const int record = linked_record_at(context.registry, context.canvas, position, x_twips, y_twips);
  return record == 0 ? Link_opened::none : open_link(context, context.registry.rows[record].gazou);
}

}  // namespace observations
