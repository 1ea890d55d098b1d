// Registration and measurement numbers: which are used, and which one is the next.
#pragma once

#include <string>
#include <string_view>

#include "geodesy/plane.h"
#include "observations/registry.h"
#include "platform/clock.h"
#include "platform/files.h"

namespace observations {

// The numbering schemes of Option4, by index.
enum Numbering { by_date = 0, by_mesh = 1, by_hand = 2 };

// The next free number of today over all registration files of the project, "081115-001". Lines that count as deleted
// keep their number. Behind 999 only the last three digits show, so numbers repeat from there.
std::string touroku_no_get(platform::Files& files, const std::string& project_path, const platform::Date_time& today);

// The next free number of the point's third-level mesh cell, "54381700-01", over all registration files; two digits.
// Empty where there is no such cell: the position is in metres, or outside the mesh.
std::string mesh_number(platform::Files& files, const std::string& project_path, geodesy::Point position);

// The eight digits of the third-level cell (30 x 45 seconds, JIS X 0410) of a geographic position; empty when its
// magnitudes say metres, and south of the equator or west of 100 degrees, where the mesh has no codes.
std::string third_mesh_code(geodesy::Point position);

// The highest counter among the numbers that begin with `prefix` and one further character, over all registration files
// of the project; 0 when there is none.
double highest_counter(platform::Files& files, const std::string& project_path, std::string_view prefix);

// The highest measurement number of the table, 0 when there is none.
double highest_measurement(const Registry& registry);
// Whether one of the records 1 to `last` has this measurement number, compared as numbers.
bool measurement_in_use(const Registry& registry, std::string_view measurement, int last);

}  // namespace observations
