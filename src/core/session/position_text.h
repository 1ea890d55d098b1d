// The status bar's texts of a place on the map.
#pragma once

#include <string>

#include "core/session/session.h"

namespace session {

// Map metres by "########0.#0" with " m" behind; latitude and longitude as N 35°30'12.34" where the sheet has a
// geographic frame, otherwise empty. x, y in twips.
struct Position_texts {
  std::string x, y, latitude, longitude;
};
Position_texts position_texts(Session& session, double x, double y);

// One angle in degrees as `positive` or `negative` letter, degrees, minutes and seconds to a hundredth.
std::string angle_text(double degrees, char positive, char negative);

}  // namespace session
