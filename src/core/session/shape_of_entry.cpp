#include "core/session/shape_of_entry.h"

#include "observations/marks.h"

namespace session {

namespace {

std::vector<drawing::Point> drawn_points(const std::vector<geodesy::Point>& vertices) {
  std::vector<drawing::Point> points;
  for (const geodesy::Point& vertex : vertices) points.push_back({vertex.x, vertex.y});
  return points;
}

}  // namespace

exchange::Shape shape_of_entry(const observations::Entry& entry, const observations::Registry& registry) {
  const geodesy::Point position = observations::position_of(entry.boxes);
  const bool has_record = entry.touroku > 0 && entry.touroku <= registry.N;
  return exchange::drawn_shape(
      observations::is_area(entry.boxes.Combo1), {position.x, position.y},
      has_record ? drawn_points(registry.rows[entry.touroku].vertices) : std::vector<drawing::Point>{});
}

void Command7(const core::Settings& settings, const observations::Entry& entry, const observations::Registry& registry,
              platform::Files& files) {
  exchange::shape_list_w(files, settings.program_path, shape_of_entry(entry, registry));
}

}  // namespace session
