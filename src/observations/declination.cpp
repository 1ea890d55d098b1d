#include "observations/declination.h"

#include <cmath>

#include "platform/failures.h"
#include "platform/numbers.h"
#include "platform/text_files.h"

namespace observations {
namespace {

constexpr const char* coefficient_name = "igrf10.coef";
constexpr const char* henkaku_name = "henkaku.dat";

Coefficient_fault read_field(platform::Files& files, const std::string& path, std::int64_t length,
                             Geomagnetic_field& field) {
  if (length == 0) return Coefficient_fault::missing;
  if (length > largest_coefficient_bytes) return Coefficient_fault::no_model;
  const std::vector<std::string> lines = platform::read_lines(files, path);
  if (lines.empty()) return Coefficient_fault::unreadable;
  field = field_of_lines(lines);
  return field.order == 0 ? Coefficient_fault::no_model : Coefficient_fault::none;
}

}  // namespace

Coefficient_fault take_coefficients(platform::Files& files, const std::string& program_path, Coefficients& kept) {
  const std::string path = platform::join_path(program_path, coefficient_name);
  const std::int64_t length = files.length(path);
  const std::int64_t time_stamp = files.time_stamp(path);
  const bool same = kept.path == path && kept.length == length && kept.time_stamp == time_stamp;
  // What couldn't be read may be readable now though it looks the same.
  if (same && kept.fault != Coefficient_fault::unreadable) return kept.fault;
  Coefficients fresh;
  fresh.path = path;
  fresh.time_stamp = time_stamp;
  fresh.length = length;
  fresh.fault = read_field(files, path, length, fresh.field);
  kept = fresh;
  return kept.fault;
}

std::optional<platform::Message> sentence_of(Coefficient_fault fault) {
  switch (fault) {
    case Coefficient_fault::none:
      return std::nullopt;
    case Coefficient_fault::missing:
      return platform::Message{
          "プログラムのフォルダに磁気偏角の係数ファイル igrf10.coef がないため、走向は偏角補正をせずに表示します。",
          "Strikes are shown without declination, since the coefficient file igrf10.coef is not in the program "
          "folder."};
    case Coefficient_fault::unreadable:
      return platform::Message{
          "磁気偏角の係数ファイル igrf10.coef を読み込めないため、走向は偏角補正をせずに表示します。",
          "Strikes are shown without declination, since the coefficient file igrf10.coef can't be read."};
    case Coefficient_fault::no_model:
      return platform::Message{
          "磁気偏角の係数ファイル igrf10.coef に係数がないため、走向は偏角補正をせずに表示します。",
          "Strikes are shown without declination, since the coefficient file igrf10.coef holds no model."};
  }
  return std::nullopt;
}

double declination_at(const Geomagnetic_field& field, double latitude, double longitude) {
  constexpr double sea_level = 0;
  const Field_vector vector = field_at(field, latitude, longitude, sea_level);
  if (vector.X == 0 || !std::isfinite(vector.X) || !std::isfinite(vector.Y))
    throw platform::Division_failure("the magnetic field has no declination here");
  return std::atan(vector.Y / vector.X) * degrees_per_radian;
}

double declination(platform::Files& files, const std::string& program_path, Coefficients& kept, double latitude,
                   double longitude) {
  const Coefficient_fault fault = take_coefficients(files, program_path, kept);
  if (fault != Coefficient_fault::none)
    throw platform::File_failure(kept.path + (fault == Coefficient_fault::missing      ? " is missing"
                                              : fault == Coefficient_fault::unreadable ? " can't be read"
                                                                                       : " holds no model"));
  return declination_at(kept.field, latitude, longitude);
}

Declination_label declination_label(double degrees) {
  const std::string value = platform::format_number(degrees, "##0.0");
  return {"偏角 " + value + "°", "declination " + value + " Deg"};
}

std::string henkaku_r(platform::Files& files, const std::string& program_path) {
  platform::Line_reader reader(platform::read_lines(files, platform::join_path(program_path, henkaku_name)));
  return reader.whole_line();
}

void henkaku_w(platform::Files& files, const std::string& program_path, const std::string& text) {
  platform::Line_writer writer;
  writer.line(text);
  files.write_whole(platform::join_path(program_path, henkaku_name), writer.bytes());
}

}  // namespace observations
