#include "observations/reference_points.h"

#include <algorithm>

#include "core/project_folders.h"
#include "drawing/text_split.h"
#include "observations/registry.h"
#include "platform/numbers.h"
#include "platform/text_files.h"

namespace observations {
namespace {

// 12,13886245.41,3578126.9,388.6,0,0,鳴沢鉱山,銅,休山
// 1  2           3         4     5 6 7        8  9 ...
Reference_point point_of(const std::string& line) {
  std::array<std::string, 23> fields;
  drawing::split_csv(line, fields);
  Reference_point point;
  point.number = platform::val(fields[0]);
  point.X = platform::val(fields[1]);
  point.Y = platform::val(fields[2]);
  for (std::size_t i = 0; i < point.values.size(); ++i) point.values[i] = platform::val(fields[3 + i]);
  point.name = fields[6];
  std::move(fields.begin() + 7, fields.end(), point.columns.begin());
  return point;
}

// False when the table is full before the file's end.
bool append_points(Reference_points& points, const std::vector<std::string>& lines) {
  for (const std::string& line : lines) {
    if (is_deleted(line)) continue;
    if (points.count == reference_limit) return false;
    points.rows[points.count + 1] = point_of(line);
    ++points.count;
  }
  return true;
}

}  // namespace

void chisoumen_read4(Reference_points& points, platform::Files& files, int count,
                     const std::vector<std::string>& paths) {
  points.count = 0;
  const std::size_t passes = std::min(static_cast<std::size_t>(std::max(count, 0)), paths.size());
  for (std::size_t pass = 0; pass < passes; ++pass) {
    if (append_points(points, platform::read_lines(files, paths[pass]))) continue;
    points.count = 0;
    return;
  }
}

std::vector<std::string> reference_paths(const std::string& project_path) {
  std::vector<std::string> paths;
  for (const char* name : reference_files) paths.push_back(core::chisou_men(project_path, name));
  return paths;
}

}  // namespace observations
