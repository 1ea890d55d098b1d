#include "observations/input_sheet.h"

#include <cmath>
#include <optional>

#include "core/project_folders.h"
#include "core/save_messages.h"
#include "observations/link.h"
#include "platform/failures.h"
#include "platform/numbers.h"
#include "platform/text_case.h"
#include "platform/utf8.h"

namespace observations {
namespace {

using platform::Sheet_outcome;

// Text3 of the basic settings by index.
enum Text3_box { box_sheet, box_map_name, box_latitude, box_longitude, box_point_number };

constexpr const char* standard_sheet = "sheet1";
constexpr double units_per_degree = 100'000;

// ".xls" of "genchi.xls"; empty where the name has no dot.
std::string extension_of(const std::string& name) {
  const std::size_t dot = name.find_last_of('.');
  return dot == std::string::npos ? std::string() : name.substr(dot);
}

// The position in geographic units; none where it is in metres and the map has no geographic frame.
std::optional<geodesy::Point> geographic_position(const maps::Canvas& canvas, geodesy::Point position) {
  if (std::abs(position.x) > geographic_from && std::abs(position.y) > geographic_from) return position;
  if (!canvas.is_geographic || canvas.sec_m_x == 0 || canvas.sec_m_y == 0) return std::nullopt;
  maps::map_to_geographic(canvas, position.x, position.y);
  return position;
}

bool asks_for_position(const core::Settings_boxes& basic) {
  return !cell_address(basic.Text3[box_latitude]).empty() || !cell_address(basic.Text3[box_longitude]).empty();
}

// Puts the template where it is filled in. False with a message.
bool copy_template(const Sheet_context& context, const std::string& path) {
  if (context.files.length(path) > 0) return true;
  const std::string source = platform::join_path(context.basic.Dir3, context.basic.File4);
  context.files.make_folder(core::chisou_men(context.settings.project_path));
  try {
    context.files.copy(source, path);
  } catch (const platform::File_failure& failure) {
    core::file_failed(context.prompts, {"入力基本枠のファイルをコピーできません: ", "The template can't be copied: "},
                      source + " → " + path, failure);
    return false;
  }
  return true;
}

bool open_copy(const Sheet_context& context, const std::string& path) {
  if (context.processes.open_with_program(path)) return true;
  context.prompts.message("関連付けられたプログラムで開けません: " + path,
                          "It can't be opened by its associated program: " + path);
  return false;
}

void tell_outcome(platform::Prompts& prompts, const platform::Sheet_job& job, Sheet_outcome outcome) {
  switch (outcome) {
    case Sheet_outcome::filled:
    case Sheet_outcome::not_shown:  // it is opened now
      return;
    case Sheet_outcome::no_program:
      prompts.message({"表計算プログラムがないため、入力シートは記入せずに開きます。",
                       "There is no office program, so the input sheet is opened without being filled in."});
      return;
    case Sheet_outcome::no_sheet:
      prompts.message("シート「" + job.sheet + "」がないため、入力シートは記入せずに開きます。",
                      "There is no sheet \"" + job.sheet + "\", so the input sheet is opened without being filled in.");
      return;
    case Sheet_outcome::bad_cell:
      prompts.message({"基本設定のセルの番地に誤りがあります。ほかのセルは記入しました。",
                       "A cell address of the basic settings is wrong. The other cells are filled in."});
      return;
    case Sheet_outcome::failed:
      prompts.message({"入力シートに記入できませんでした。記入せずに開きます。",
                       "The input sheet could not be filled in. It is opened as it is."});
      return;
  }
}

bool fill_copy(const Sheet_context& context, const Entry_boxes& boxes, const std::string& path) {
  const platform::Sheet_job job = sheet_job(context, boxes, path);
  if (asks_for_position(context.basic) && !geographic_position(context.canvas, position_of(boxes)))
    context.prompts.message({"位置がメートルのため、緯度と経度は記入しません。",
                             "The position is in metres, so latitude and longitude are not filled in."});
  const Sheet_outcome outcome = context.sheets.fill(job);
  tell_outcome(context.prompts, job, outcome);
  const bool shown = outcome == Sheet_outcome::filled || outcome == Sheet_outcome::bad_cell;
  return shown || open_copy(context, path);
}

}  // namespace

std::string cell_address(const std::string& typed) {
  constexpr char32_t wide_first = 0xFF01, wide_last = 0xFF5E, wide_distance = 0xFEE0, wide_blank = 0x3000;
  std::string address;
  for (std::size_t at = 0; at < typed.size();) {
    const platform::Utf8_character c = platform::character_at(typed, at);
    if (c.code >= wide_first && c.code <= wide_last)
      platform::append_character(address, c.code - wide_distance);
    else if (c.code != U' ' && c.code != wide_blank)
      address += typed.substr(at, c.length);
    at += c.length;
  }
  return platform::upper_case(address);
}

std::string degrees_text(double units) {
  // In this order a whole minute stays whole.
  const double total = std::abs(units) * 3600 / units_per_degree;
  const double degrees = platform::fix(total / 3600);
  const double minutes = platform::fix((total - degrees * 3600) / 60);
  // The difference has the binary noise of a number in the hundred thousands; it would tip a rounding of halves.
  const double seconds = std::round((total - degrees * 3600 - minutes * 60) * 1e6) / 1e6;
  return (units < 0 ? "-" : "") + platform::format_number(degrees, "###") + "度" +
         platform::format_number(minutes, "#0") + "分" + platform::format_number(seconds, "##0.#0") + "秒";
}

platform::Sheet_job sheet_job(const Sheet_context& context, const Entry_boxes& boxes, const std::string& path) {
  const auto& Text3 = context.basic.Text3;
  const std::string sheet = platform::trim_text(Text3[box_sheet]);
  platform::Sheet_job job{path, sheet.empty() ? standard_sheet : sheet, {}};
  const auto set = [&](Text3_box box, const std::string& text) {
    const std::string address = cell_address(Text3[box]);
    if (!address.empty()) job.cells.push_back({address, text});
  };
  set(box_map_name, context.settings.project_path);
  if (const auto position = geographic_position(context.canvas, position_of(boxes))) {
    set(box_latitude, "北緯 " + degrees_text(position->y));
    set(box_longitude, "東経 " + degrees_text(position->x));
  }
  set(box_point_number, platform::trim_text(boxes.Text14[box_touroku_no]));
  return job;
}

bool Command1(const Sheet_context& context, Entry_boxes& boxes) {
  const std::string& File4 = context.basic.File4;
  if (platform::trim_text(File4).empty()) {
    context.prompts.message(no_template);
    return false;
  }
  const std::string number = platform::trim_text(boxes.Text14[box_touroku_no]);
  const std::string name = number + extension_of(File4);
  const std::string path = picture_path(context.settings.project_path, name);
  if (number.empty() || path.empty()) {
    context.prompts.message({"登録番号を、ファイル名に使える文字で入力して下さい。",
                             "Please enter a registration number that can be the name of a file."});
    return false;
  }
  if (!copy_template(context, path)) return false;
  boxes.Label3 = name;
  const bool is_workbook = platform::upper_case(extension_of(File4)) == ".XLS";
  if (!(is_workbook ? fill_copy(context, boxes, path) : open_copy(context, path))) return false;
  if (context.map_cut_out) context.map_cut_out(path);
  return true;
}

}  // namespace observations
