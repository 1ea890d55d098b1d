// A sheet table of any bytes, read as both tables: rows and index agree, and every row can be framed and named.
#include <cmath>

#include "maps/catalogue.h"
#include "maps/mosaic.h"
#include "one_file.h"
#include "platform/failures.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  support::One_file files(data, size);
  for (const int option5 : {maps::folder_25000, maps::folder_50000}) {
    maps::Catalogue catalogue;
    std::string language;
    try {
      maps::zumei_read(files, catalogue, "C:\\program", option5, static_cast<int>(size % 2), language);
    } catch (const platform::Subscript_failure&) {
      support::promise(catalogue.sheet_count == maps::catalogue_limit);
    }
    for (int row = 1; row <= catalogue.sheet_count; ++row) {
      const std::string& code = catalogue.rows[row].code;
      const int found = maps::catalogue_row(catalogue, code);
      support::promise(found <= row && (found > 0 || code.empty()));
      maps::tile_names(catalogue, code, option5);
      maps::chikeizu_name_get(catalogue, code + ".bmp", language);
      maps::Canvas canvas;
      maps::zahyo_r3(canvas, maps::catalogue_corners(catalogue.rows[row]));
      support::promise(std::isfinite(canvas.map_w) && std::isfinite(canvas.map_h));
    }
  }
  return 0;
}
