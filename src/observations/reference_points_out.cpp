#include "observations/reference_points_out.h"

#include <algorithm>
#include <cmath>
#include <unordered_map>
#include <vector>

#include "observations/mark_out.h"
#include "observations/painted_part.h"
#include "platform/utf8.h"

namespace observations {
namespace {

using drawing::Point;

constexpr double half_cross = 5;              // canvas units
constexpr drawing::Point name_place{8, -10};  // of a name's top-left corner from its point
constexpr double name_units = 2.25;           // canvas units to a step of the label scale
constexpr std::size_t longest_name = 20;      // characters

struct Named_place {
  Point at;     // canvas units
  Point fixed;  // the same without the view's offset, so that a pan changes nothing
  int row = 0;
  std::string_view name;  // as far as it is shown; empty without names
};

// The squares of a text's height that a name lies over.
struct Cells {
  int left = 0, top = 0, right = 0, bottom = 0;
};

Cells cells_of(const Named_place& place, double height) {
  // A character takes no more than a square; the usual ones of a single byte take half.
  const double width = static_cast<double>(place.name.size() + 2 * platform::character_count(place.name)) / 5 * height;
  const auto cell = [height](double value) {
    return static_cast<int>(std::clamp(std::floor(value / height), -1e6, 1e6));
  };
  const Point corner{place.fixed.x + name_place.x, place.fixed.y + name_place.y};
  return {cell(corner.x), cell(corner.y), cell(corner.x + width), cell(corner.y + height)};
}

template <typename Visit>
void each_cell(const Cells& cells, Visit visit) {
  for (int y = cells.top; y <= cells.bottom; ++y)
    for (int x = cells.left; x <= cells.right; ++x)
      visit(static_cast<std::uint64_t>(static_cast<std::uint32_t>(y)) << 32 | static_cast<std::uint32_t>(x));
}

// The first row of the table that wants each square.
using Owners = std::unordered_map<std::uint64_t, int>;

Owners owners_of(const std::vector<Named_place>& places, double height) {
  Owners owners;
  for (const Named_place& place : places)
    if (!place.name.empty())
      each_cell(cells_of(place, height), [&](std::uint64_t cell) { owners.try_emplace(cell, place.row); });
  return owners;
}

bool owns_its_place(const Owners& owners, const Named_place& place, double height) {
  bool owns = true;
  each_cell(cells_of(place, height), [&](std::uint64_t cell) { owns = owns && owners.at(cell) == place.row; });
  return owns;
}

// The points that may be seen, and those whose names may push a seen one aside.
std::vector<Named_place> places_near(const Sides& part, maps::Canvas& canvas, const Reference_points& points,
                                     const Sides& reach, bool named) {
  maps::Canvas still = canvas;
  still.view_x = still.view_y = 0;
  std::vector<Named_place> places;
  for (int row = 1; row <= points.count; ++row) {
    const Reference_point& point = points.rows[row];
    const Point at = place_of(canvas, point.X, point.Y);
    if (!reaches_into(part, at, reach)) continue;
    places.push_back({at, place_of(still, point.X, point.Y), row, {}});
    if (named) places.back().name = platform::cut_characters(point.name, 1, longest_name);
  }
  return places;
}

void cross_out(drawing::Surface& surface, Point at) {
  ld(surface, {at.x - half_cross, at.y}, {at.x + half_cross, at.y}, reference_colour);
  ld(surface, {at.x, at.y - half_cross}, {at.x, at.y + half_cross}, reference_colour);
}

}  // namespace

void reference_points_out(drawing::Surface& surface, maps::Canvas& canvas, const Reference_points& points,
                          const Chiten_choice& choice) {
  const double height = canvas.label_scale * name_units;
  if (!choice.marks) return;
  const bool named = choice.number != Number_shown::none && height > 0;
  // A name may be pushed aside by another one that begins as far away as the two are long.
  const double around = named ? 2 * (longest_name + 2) * height : half_cross + 2;
  const std::vector<Named_place> places =
      places_near(painted_part(surface, canvas), canvas, points, {around, around, around, around}, named);
  const Owners owners = owners_of(places, height);
  for (const Named_place& place : places) {
    cross_out(surface, place.at);
    if (place.name.empty() || !owns_its_place(owners, place, height)) continue;
    surface.text({place.at.x + name_place.x, place.at.y + name_place.y}, std::string(place.name), {.height = height},
                 reference_colour, 0);
  }
}

}  // namespace observations
