// The catalogue of map sheets: the human name of a sheet and its corners, by its code. Loaded from one of two tables in
// the program folder; the corners are those of the datum in force at the load, so a change of the datum loads again.
#pragma once

#include <string>
#include <string_view>
#include <unordered_map>

#include "maps/canvas.h"
#include "platform/files.h"
#include "platform/rows.h"

namespace maps {

inline constexpr int catalogue_limit = 5000;

// The sheet folder in force: Option5 (0) or (1).
inline constexpr int folder_25000 = 0;  // \map, 1:25,000 sheets by mesh code
inline constexpr int folder_50000 = 1;  // \map50000, 1:50,000 sheets

struct Dms {
  double degrees = 0, minutes = 0, seconds = 0;
};

struct Sheet_row {
  std::string code;  // sheet_code
  std::string name;  // sheet_name
  // 1:25,000 only: "ddmmss.s" and "dddmmss.s" without a letter. A is the upper left corner, B the lower right.
  Corner_texts corners;
  // 1:50,000 only.
  Dms lat_a, lon_a, lat_b, lon_b;
};

struct Catalogue {
  platform::Rows<Sheet_row, catalogue_limit> rows;
  int sheet_count = 0;  // the last row read
  // Row by sheet_code, the first of two rows with one code; as long as sheet_count says.
  std::unordered_map<std::string, int> row_of_code;
};

// Reads \Language.set into `language`, then loads the table of `option5` from row 1 on: \ZUMEI.CSV or
// \map50000\50000.CSV of the program folder. `datum_mode`: 0 Tokyo Datum, 1 WGS-84. A missing or empty table leaves the
// catalogue as it was. A row beyond 5000 raises Subscript_failure; the rows before it are loaded.
void zumei_read(platform::Files& files, Catalogue& catalogue, const std::string& program_path, int option5,
                int datum_mode, std::string& language);

// The row of a code, 0 when there is none.
int catalogue_row(const Catalogue& catalogue, std::string_view code);

// The corner texts of a 1:25,000 row; without letters when the row had none.
Corner_texts catalogue_corners(const Sheet_row& row);

// Whether a stem is a mesh code of so many digits: six for a whole sheet, eight for a quarter.
bool is_code(std::string_view stem, std::size_t digits);

struct Sheet_name {
  std::string stem;     // up to the first "."; empty when the file name has none
  std::string display;  // the name that the list shows
};

// Stem and display name of a picture file. A quarter sheet has the name of its whole sheet and its place in it, in
// words with any language but English.
Sheet_name chikeizu_name_get(const Catalogue& catalogue, std::string_view file_name, std::string_view language);

// The file name ("53393551.bmp") of the sheet at a position, for a shown sheet whose stem has `stem_length` characters:
// 6 asks for a whole sheet, 8 for a quarter. Empty for any other length and for a position beyond any code.
std::string sheet_at(const Dms& latitude, const Dms& longitude, std::size_t stem_length);

}  // namespace maps
