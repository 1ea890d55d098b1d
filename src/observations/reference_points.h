// The base data drawn below the observations: three files of reference points in \chisou_men that are no registries.
// The program only reads them.
#pragma once

#include <array>
#include <string>
#include <vector>

#include "platform/files.h"
#include "platform/rows.h"

namespace observations {

inline constexpr int reference_limit = 5000;
inline constexpr std::array reference_files{"関東山梨情報.csv", "関東山梨市町村.csv", "全国鉱山情報.csv"};

// Columns 1 to 23 of a line.
struct Reference_point {
  double number = 0;                    // 1
  double X = 0, Y = 0;                  // 2, 3: as those of a record
  std::array<double, 3> values{};       // 4 to 6
  std::string name;                     // 7
  std::array<std::string, 16> columns;  // 8 to 23, as they stand
};

struct Reference_points {
  platform::Rows<Reference_point, reference_limit> rows;
  int count = 0;
};

// Reads file i of `paths` in pass i, 1 to `count`. A missing or empty file, and a pass without a file, have no rows; a
// line that holds "-9999" is skipped. With more than 5000 rows in all the read stops and the count is 0.
void chisoumen_read4(Reference_points& points, platform::Files& files, int count,
                     const std::vector<std::string>& paths);

// The paths of the three files of a project.
std::vector<std::string> reference_paths(const std::string& project_path);

}  // namespace observations
