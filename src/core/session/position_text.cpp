#include "core/session/position_text.h"

#include <cmath>

#include "platform/numbers.h"

namespace session {

namespace {

constexpr double geographic_units = 100'000;  // to a degree
constexpr double hundredths = 100 * 3600;     // of a second, to a degree

}  // namespace

std::string angle_text(double degrees, char positive, char negative) {
  if (!std::isfinite(degrees) || std::abs(degrees) > 360) return "";
  // Rounded first, so that 59.999 seconds carry into the minutes.
  const auto total = std::llround(std::abs(degrees) * hundredths);
  const double seconds = static_cast<double>(total % 6000) / 100;
  const long long minutes = total / 6000;
  return std::string(1, degrees < 0 ? negative : positive) + " " + std::to_string(minutes / 60) + "°" +
         platform::format_number(static_cast<double>(minutes % 60), "00") + "'" +
         platform::format_number(seconds, "00.00") + "\"";
}

Position_texts position_texts(Session& session, double x, double y) {
  const maps::Map_position position = maps::henkan_M(session.canvas, x, y);
  Position_texts texts;
  texts.x = platform::format_number(position.x, "########0.#0") + " m";
  texts.y = platform::format_number(position.y, "########0.#0") + " m";
  if (!session.canvas.is_geographic) return texts;
  texts.latitude = angle_text(position.geo_y / geographic_units, 'N', 'S');
  texts.longitude = angle_text(position.geo_x / geographic_units, 'E', 'W');
  return texts;
}

}  // namespace session
