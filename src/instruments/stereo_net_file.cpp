#include "instruments/stereo_net_file.h"

#include "core/language.h"
#include "core/save_messages.h"
#include "instruments/tiltvane_line.h"
#include "observations/clinometer_notation.h"
#include "observations/declination.h"
#include "observations/record_line.h"
#include "platform/failures.h"
#include "platform/numbers.h"
#include "platform/text_files.h"
#include "platform/utf8.h"

namespace instruments {
namespace {

namespace clinometer = observations::clinometer;
using observations::column_of;
using platform::Message;
using platform::val;

constexpr const char* header_japanese =
    "NO,計測モード,面走向,面傾斜,線走向,線傾斜,面走向基準,面走向値,面走向方位,面傾斜,面傾斜方向,線走向基準,線走向値,"
    "線走向方位,線傾斜,偏角,コメント";
constexpr const char* header_english =
    "NO,MeasureMode,Strike,Dip,Lineation Strike,Lineation Dip,Azimuth,Strike,,Dip,,Lineation Azimuth,"
    "Lineation Strike,,Lineation Dip,Declination,Comment";

constexpr Message told_true{"偏角補正を行い真北表示でファイルが作成されます。",
                            "File is made by the true north display. "};
constexpr Message told_magnetic{"偏角補正を行わず磁北表示でファイルが作成されます。",
                                "File is made by the magnetic north display. "};

constexpr int aligned_width = 6;

// Two texts of a plane or of a lineation, and the pieces of them.
struct Parts {
  std::string strike, dip;
  clinometer::Pieces pieces;
};

// The rightmost six characters of six blanks and the text.
std::string right_aligned(const std::string& text) {
  const std::string padded = std::string(aligned_width, ' ') + text;
  return std::string(platform::cut_characters(padded, platform::character_count(text) + 1));
}

std::string without_letter(std::string text) {
  if (!text.empty() && std::string_view("SNEW").find(text.back()) != std::string_view::npos) text.pop_back();
  return text;
}

Parts plane_of(std::string_view line, const Stereo_net_choice& choice) {
  Parts parts{std::string(column_of(line, 3)), std::string(column_of(line, 4)), {}};
  if (choice.corrected)
    clinometer::偏角表示変換(column_of(line, 3), column_of(line, 4), val(choice.Text1), parts.strike, parts.dip);
  if (column_of(line, 3) == no_plane) return parts;
  double a = 0, d = 0;
  clinometer::角度変換(parts.strike, parts.dip, a, d);
  parts.pieces = clinometer::走向変換(a, d);
  return parts;
}

bool has_lineation(std::string_view line) {
  const std::string azimuth = platform::trim_text(column_of(line, 6));
  return column_of(line, 2) == "L" && !azimuth.empty() && azimuth != no_plane;
}

Parts lineation_of(std::string_view line, const Stereo_net_choice& choice) {
  if (!has_lineation(line)) return {};
  Parts parts{std::string(column_of(line, 6)), std::string(column_of(line, 7)), {}};
  if (choice.corrected)
    clinometer::線偏角表示変換(column_of(line, 6), column_of(line, 7), val(choice.Text1), parts.strike, parts.dip);
  double a = 0, d = 0;
  clinometer::線角度変換(parts.strike, parts.dip, a, d);
  parts.pieces = clinometer::線走向変換(a, d);
  parts.dip = without_letter(parts.dip);
  return parts;
}

std::string value_text(const std::string& number) {
  return number.empty() ? number : platform::format_number(val(number), "#####0");
}

// The file in one go; the count of its measurements.
int write(const Data_context& context, const Measurement_list& list, const Stereo_net_choice& choice,
          const std::string& path) {
  const std::vector<std::string> lines = ticked_lines(list);
  if (lines.empty()) return 0;
  platform::Line_writer writer;
  writer.line(stereo_net_header(core::is_japanese(context.settings.language)));
  for (const std::string& line : lines) writer.line(stereo_net_line(line, choice));
  context.files.write_whole(path, writer.bytes());
  return static_cast<int>(lines.size());
}

void keep_declination(const Data_context& context, const std::string& Text1) {
  try {
    observations::henkaku_w(context.files, context.settings.program_path, Text1);
  } catch (const platform::File_failure& failure) {
    core::write_failed(context.prompts, platform::join_path(context.settings.program_path, "henkaku.dat"), failure);
  }
}

}  // namespace

std::string stereo_net_header(bool japanese) {
  return japanese ? header_japanese : header_english;
}

// 12,L,  N50E,   49S,  N37E,    12,N,50,E,49,S,N,37,E,12, 7 ,012 ＋
// 1  2 3      4      5      6      7 8  9 10 11 12 13 14 15 16 17
std::string stereo_net_line(std::string_view line, const Stereo_net_choice& choice) {
  const Parts plane = plane_of(line, choice);
  const Parts lineation = lineation_of(line, choice);
  std::string text = std::string(column_of(line, 1)) + "," + std::string(column_of(line, 2)) + ",";
  for (const std::string& column : {plane.strike, plane.dip, lineation.strike, lineation.dip})
    text += right_aligned(column) + ",";
  for (const std::string& column :
       {plane.pieces.base, value_text(plane.pieces.number), plane.pieces.direction, plane.pieces.dip,
        plane.pieces.dip_letter, lineation.pieces.base, value_text(lineation.pieces.number), lineation.pieces.direction,
        lineation.pieces.dip})
    text += column + ",";
  text += platform::print_number(val(choice.Text1)) + ",";
  return text + platform::format_number(val(column_of(line, 1)), "#000") + " " + std::string(column_of(line, 9));
}

bool Command9(const Data_context& context, const Measurement_list& list, const Stereo_net_choice& choice,
              const Ask_path& ask) {
  if (list.rows.empty()) {
    context.prompts.message(no_row_to_export);
    return false;
  }
  context.prompts.message(choice.corrected ? told_true : told_magnetic);
  const std::string path = ask();
  if (path.empty()) return false;
  keep_declination(context, choice.Text1);
  int count = 0;
  try {
    count = write(context, list, choice, path);
  } catch (const platform::File_failure& failure) {
    core::write_failed(context.prompts, path, failure);
    return false;
  }
  if (count == 0) {
    context.prompts.message(no_ticked_row);
    return false;
  }
  const std::string number = platform::number_text(count);
  context.prompts.message(number + "個のデータが書き込まれました。", number + "data was written.");
  return true;
}

bool net_picture_save(const Data_context& context, const std::string& path, const std::string& bytes) {
  try {
    if (bytes.empty()) throw platform::File_failure("there is no picture of the net");
    context.files.write_whole(path, bytes);
    return true;
  } catch (const platform::File_failure& failure) {
    core::write_failed(context.prompts, path, failure);
    return false;
  }
}

}  // namespace instruments
