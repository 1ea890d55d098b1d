#include "maps/catalogue.h"

#include <array>
#include <vector>

#include "core/language.h"
#include "drawing/text_split.h"
#include "geodesy/mesh_code.h"
#include "platform/numbers.h"
#include "platform/text_case.h"
#include "platform/text_files.h"

namespace maps {
namespace {

using Fields = std::array<std::string, drawing::settings_fields>;

// Column numbers count from 1; what stands in the other columns is not read. A row of \ZUMEI.CSV:
//   533935,神流,20,...,354000.0,1393730.0,,354011.7,1393718.4,...,354500.0,1393000.0,354511.6,1392948.3
//   1      2           8        9           10       11             13       14        15       16
struct Corner_columns {
  int lat_a, lon_a, lat_b, lon_b;
};
constexpr int code_column = 1;
constexpr int name_column = 2;
constexpr Corner_columns tokyo_columns{13, 14, 8, 9};
constexpr Corner_columns wgs84_columns{15, 16, 10, 11};

// First column of degrees, minutes and seconds in a row of \map50000\50000.CSV.
constexpr Corner_columns columns_50000{12, 15, 24, 27};

const std::string& field(const Fields& fields, int column) {
  return fields[static_cast<std::size_t>(column - 1)];
}

Dms dms(const Fields& fields, int column) {
  return {platform::val(field(fields, column)), platform::val(field(fields, column + 1)),
          platform::val(field(fields, column + 2))};
}

bool is_english(std::string_view language) {
  return platform::upper_case(language) == "ENGLISH";
}

Sheet_row row_25000(const Fields& fields, int datum_mode, bool english) {
  const Corner_columns& columns = datum_mode == core::wgs_84 ? wgs84_columns : tokyo_columns;
  Sheet_row row;
  row.code = field(fields, code_column);
  row.name = field(fields, english ? code_column : name_column);
  row.corners = {platform::trim_text(field(fields, columns.lat_a)), platform::trim_text(field(fields, columns.lon_a)),
                 platform::trim_text(field(fields, columns.lat_b)), platform::trim_text(field(fields, columns.lon_b))};
  return row;
}

Sheet_row row_50000(const Fields& fields) {
  Sheet_row row;
  row.code = field(fields, code_column);
  row.name = field(fields, name_column);
  row.lat_a = dms(fields, columns_50000.lat_a);
  row.lon_a = dms(fields, columns_50000.lon_a);
  row.lat_b = dms(fields, columns_50000.lat_b);
  row.lon_b = dms(fields, columns_50000.lon_b);
  return row;
}

template <typename Make_row>
void load(platform::Files& files, Catalogue& catalogue, const std::string& path, Make_row make_row) {
  const std::vector<std::string> lines = platform::read_lines(files, path);
  if (lines.empty()) return;
  catalogue.sheet_count = 0;
  catalogue.row_of_code.clear();
  Fields fields;
  for (const std::string& line : lines) {
    drawing::split_csv(line, fields);
    Sheet_row& row = catalogue.rows[catalogue.sheet_count + 1];
    row = make_row(fields);
    catalogue.row_of_code.emplace(row.code, ++catalogue.sheet_count);
  }
}

// The place of a quarter sheet in its whole sheet, by the last two digits of its code.
struct Quarter {
  std::string_view digits;
  std::string_view japanese;
};
constexpr std::array<Quarter, 4> quarters{{
    {"00", "南西部"},
    {"50", "北西部"},
    {"05", "南東部"},
    {"55", "北東部"},
}};

std::string quarter_name(const Catalogue& catalogue, std::string_view stem, std::string_view language) {
  const int row = catalogue_row(catalogue, stem.substr(0, 6));
  if (row == 0) return std::string(stem);
  for (const Quarter& quarter : quarters)
    if (stem.ends_with(quarter.digits))
      return catalogue.rows[row].name + std::string(is_english(language) ? quarter.digits : quarter.japanese);
  return std::string(stem);
}

}  // namespace

void zumei_read(platform::Files& files, Catalogue& catalogue, const std::string& program_path, int option5,
                int datum_mode, std::string& language) {
  language = core::language_r(files, program_path);
  if (option5 == folder_50000)
    load(files, catalogue, platform::join_path(program_path, "map50000\\50000.CSV"), row_50000);
  else
    load(files, catalogue, platform::join_path(program_path, "ZUMEI.CSV"),
         [&](const Fields& fields) { return row_25000(fields, datum_mode, is_english(language)); });
}

int catalogue_row(const Catalogue& catalogue, std::string_view code) {
  if (code.empty()) return 0;  // an empty line of the table has an empty code
  const auto found = catalogue.row_of_code.find(std::string(code));
  return found == catalogue.row_of_code.end() ? 0 : found->second;
}

Corner_texts catalogue_corners(const Sheet_row& row) {
  return {"N" + row.corners.lat_a, "E" + row.corners.lon_a, "N" + row.corners.lat_b, "E" + row.corners.lon_b};
}

bool is_code(std::string_view stem, std::size_t digits) {
  return stem.size() == digits && stem.find_first_not_of("0123456789") == std::string_view::npos;
}

Sheet_name chikeizu_name_get(const Catalogue& catalogue, std::string_view file_name, std::string_view language) {
  const std::size_t dot = file_name.find('.');
  if (dot == std::string_view::npos) return {};
  const std::string stem(file_name.substr(0, dot));
  if (const int row = catalogue_row(catalogue, stem); row > 0) return {stem, catalogue.rows[row].name};
  if (is_code(stem, 8)) return {stem, quarter_name(catalogue, stem, language)};
  return {stem, stem};
}

std::string sheet_at(const Dms& latitude, const Dms& longitude, std::size_t stem_length) {
  if (stem_length != 6 && stem_length != 8) return {};
  try {
    const geodesy::Half_code code =
        geodesy::mesh_code_half(static_cast<float>(latitude.degrees), static_cast<float>(latitude.minutes),
                                static_cast<float>(latitude.seconds), static_cast<float>(longitude.degrees),
                                static_cast<float>(longitude.minutes), static_cast<float>(longitude.seconds));
    return (stem_length == 6 ? code.six_digits : code.code) + ".bmp";
  } catch (const platform::Division_failure&) {
    return {};  // a position that no code can hold lies on no sheet
  }
}

}  // namespace maps
