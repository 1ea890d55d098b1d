#include "core/session/gps_sheet.h"

#include <cmath>

#include "core/session/sheet.h"
#include "platform/numbers.h"

namespace session {
namespace {

constexpr std::size_t whole_sheet_digits = 6;

// By truncation.
maps::Dms split(double degrees) {
  const double seconds = degrees * 3600;
  const double whole = platform::fix(seconds / 3600);
  const double minutes = platform::fix((seconds - whole * 3600) / 60);
  return {whole, minutes, seconds - whole * 3600 - minutes * 60};
}

bool is_on_earth(double longitude, double latitude) {
  return std::abs(longitude) <= 180 && std::abs(latitude) <= 90;
}

// The first row of the table whose code is the beginning of the sheet's.
std::string name_of(const maps::Catalogue& catalogue, const std::string& stem) {
  int row = maps::catalogue_row(catalogue, stem);
  if (row == 0) row = maps::catalogue_row(catalogue, stem.substr(0, whole_sheet_digits));
  return row == 0 ? std::string() : catalogue.rows[row].name;
}

}  // namespace

Gps_sheet gps_sheet(const Sheet_list& sheets, const maps::Catalogue& catalogue, const std::string& current_sheet,
                    double longitude, double latitude) {
  using Found = Gps_sheet::Found;
  Gps_sheet sheet;
  if (current_sheet.size() != whole_sheet_digits && current_sheet.size() != 8) return sheet;
  sheet.found = Found::outside;
  if (!is_on_earth(longitude, latitude)) return sheet;
  sheet.wanted = maps::sheet_at(split(latitude), split(longitude), current_sheet.size());
  const std::string stem = sheet.wanted.substr(0, sheet.wanted.find('.'));
  sheet.Label16 = name_of(catalogue, stem);
  if (stem == current_sheet) {
    sheet.found = Found::shown;
    return sheet;
  }
  sheet.row = row_of(sheets, stem);
  if (sheet.row >= 0) sheet.found = Found::listed;
  return sheet;
}

std::string data_path_text(const Gps_sheet& sheet, const std::string& usual) {
  return sheet.found == Gps_sheet::Found::outside ? "範囲外" : usual;
}

}  // namespace session
