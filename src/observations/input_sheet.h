// The input sheet of a record: a copy of the user's template, filled in with the record's place and number.
#pragma once

#include <functional>
#include <string>

#include "core/project_settings.h"
#include "core/settei.h"
#include "maps/canvas.h"
#include "observations/entry_boxes.h"
#include "platform/files.h"
#include "platform/processes.h"
#include "platform/prompts.h"
#include "platform/sheets.h"

namespace observations {

inline constexpr platform::Message no_template{"基本設定で入力基本枠のファイルを選択して下さい。",
                                               "Please Basic Setting"};

struct Sheet_context {
  const core::Settings& settings;
  const core::Settings_boxes& basic;  // Dir3, File4 and Text3 tell the template and its cells
  const maps::Canvas& canvas;
  platform::Files& files;
  platform::Processes& processes;
  platform::Sheets& sheets;
  platform::Prompts& prompts;
  // Makes the map cut-out that belongs to a sheet, whose path it is given. Called last, once the sheet is before the
  // user; not called where it is empty.
  std::function<void(const std::string& sheet)> map_cut_out = {};
};

// "入力シート登録". Copies the template as <registration number><extension> to the folder of the registry's pictures,
// unless a file of that name is there, puts the name into Label3 and opens it: an .XLS filled in by the office program,
// anything else, and an .XLS where there is no office program, by the associated program. A sheet that could not be
// filled in is opened with one sentence that says so.
// False, with a message, when no template is chosen, the registration number can't be a file's name, the template can't
// be copied or the copy not be opened; Label3 changes as soon as the copy is there.
bool Command1(const Sheet_context& context, Entry_boxes& boxes);

// What goes into the workbook at `path`. A cell whose box has no address is left out, and so are those of latitude and
// longitude where the position is in metres and the sheet of the map has no geographic frame.
platform::Sheet_job sheet_job(const Sheet_context& context, const Entry_boxes& boxes, const std::string& path);

// An address as a workbook takes it: full-width letters, digits and signs ("Ｂ４" as the hint has it) become half-width
// ones, blanks go and letters become capitals.
std::string cell_address(const std::string& typed);

// "35度41分22.2秒" of geographic units: whole degrees and minutes, seconds with one or two decimals. 0 degrees print
// nothing, and seconds that round to 60 stay 60. A minus sign stands in front.
std::string degrees_text(double units);

}  // namespace observations
