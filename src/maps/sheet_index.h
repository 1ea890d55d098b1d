// frm_chikeizu_sentaku: the sheets of a folder as cells of a grid, for picking one by its position. The grid's cells
// are those of the 1:25,000 sheets, 300 seconds of latitude by 450 of longitude, counted from latitude 0 and longitude
// 100 degrees; rows grow to the north.
#pragma once

#include <string>
#include <string_view>

#include "drawing/surface.h"
#include "maps/catalogue.h"
#include "platform/files.h"
#include "platform/prompts.h"
#include "platform/rows.h"

namespace maps {

inline constexpr int index_limit = 3000;

struct Index_sheet {
  std::string stem;
  std::string name;            // as the sheet list shows it
  double row = 0, column = 0;  // of the south-west corner
  double rows = 1, columns = 1;
};

// The three lines of \chizuset.dat, all in canvas units.
struct Index_display {
  double cell_width = 120;
  double cell_height = 80;
  double text_height = 24;
};

struct Sheet_index {
  platform::Rows<Index_sheet, index_limit> sheets;
  int sheet_count = 0;
  // Extent of the south-west corners and of the far sides; the start values where there is no sheet.
  double row_min = 1e24, row_max = -1e24, column_min = 1e24, column_max = -1e24;
  Index_display display;
};

// The cell of a stem of six digits: row = first-level latitude digits x 8 + digit 5, column = first-level longitude
// digits x 8 + digit 6.
Index_sheet cell_of_code(std::string_view stem);

// Fills the index from the *.bmp of a folder. A stem of six digits is placed by its code, any other by the corners of
// its .set file; a quarter sheet without one by its code; what has no corners at all is left out. A sheet beyond 3000
// raises Subscript_failure; those before it are in the index.
void sheet_index_read(platform::Files& files, const Catalogue& catalogue, const std::string& folder,
                      std::string_view language, Sheet_index& index);

// \chizuset.dat of the program folder. A missing file or a line that is no positive number leaves the setting as it is.
void chizuset_r(platform::Files& files, const std::string& program_path, Index_display& display);
// "表示設定保存": writes the file. False with a message when it can't be written.
bool Command1(platform::Files& files, platform::Prompts& prompts, const std::string& program_path,
              const Index_display& display);

// Cells as large as the whole grid can have in a window of this measure (canvas units), within bounds.
void fit_display(Sheet_index& index, double width, double height);

// Where a sheet stands on the dialog's Picture1, canvas units: the north-west end of the grid at the margin.
drawing::Rect cell_rectangle(const Sheet_index& index, const Index_sheet& sheet);
// The measure of the whole grid with its margin.
drawing::Rect index_rectangle(const Sheet_index& index);

// Draws the grid of sheets with their names; `selected` is the stem to be marked. `offset` in canvas units is taken off
// every position, for a window that shows a part.
void chizu_out(drawing::Surface& surface, const Sheet_index& index, std::string_view selected,
               drawing::Point offset = {});

// The row of the sheet at a position of the grid in canvas units, the smallest one where several lie; 0 outside all.
int sheet_index_hit(const Sheet_index& index, drawing::Point at);

}  // namespace maps
