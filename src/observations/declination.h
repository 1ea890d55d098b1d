// The magnetic declination: the coefficient file \igrf10.coef of the program folder, kept while it is unchanged; the
// declination at a place; and \henkaku.dat, the declination that the user typed into the clinometer's dialog.
#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "observations/geomagnetic_field.h"
#include "platform/files.h"
#include "platform/prompts.h"

namespace observations {

// A coefficient file beyond this size can't be one (a full one has 9 KB).
inline constexpr std::int64_t largest_coefficient_bytes = 1'000'000;

enum class Coefficient_fault {
  none,
  missing,     // not there, or without length
  unreadable,  // can't be read
  no_model,    // read, but it holds no model
};

// What was read last, and how the file looked then. A field of order 0 where there is a fault.
struct Coefficients {
  std::string path;
  std::int64_t time_stamp = 0;
  std::int64_t length = -1;
  Coefficient_fault fault = Coefficient_fault::missing;
  Geomagnetic_field field;
};

// Reads \igrf10.coef anew when its path, time stamp or length is another than that of what is kept; never throws for
// the file. A redraw calls it once and then declination_at for each record.
Coefficient_fault take_coefficients(platform::Files& files, const std::string& program_path, Coefficients& kept);

// The one sentence to show for a fault; nothing for none.
std::optional<platform::Message> sentence_of(Coefficient_fault fault);

// Degrees east of true north at geodetic latitude and longitude in degrees, at sea level in 2005: the arctangent of
// east by north, so from -90 to 90 also where the field points south. Division_failure where the north component is 0
// or the place is no finite number.
double declination_at(const Geomagnetic_field& field, double latitude, double longitude);

// The same with the file looked at first. File_failure when there is no model to take.
double declination(platform::Files& files, const std::string& program_path, Coefficients& kept, double latitude,
                   double longitude);

// The text of the label that shows a declination: "偏角 -7.0°", "declination -7.0 Deg".
struct Declination_label {
  std::string japanese;
  std::string english;
  bool operator==(const Declination_label&) const = default;
};
Declination_label declination_label(double degrees);

// The line of \henkaku.dat, the text of the declination box as it was typed; empty when there is no file.
std::string henkaku_r(platform::Files& files, const std::string& program_path);
// Writes it. File_failure when it can't be written.
void henkaku_w(platform::Files& files, const std::string& program_path, const std::string& text);

}  // namespace observations
