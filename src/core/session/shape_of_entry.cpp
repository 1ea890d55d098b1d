#include "core/session/shape_of_entry.h"

#include "observations/marks.h"

namespace session {

namespace {

std::vector<drawing::Point> drawn_points(const std::vector<geodesy::Point>& vertices) {
  std::vector<drawing::Point> points;
  points.reserve(vertices.size());
  for (const geodesy::Point& vertex : vertices) points.push_back({vertex.x, vertex.y});
  return points;
}

// Whether the row of the table is still the panel's own, as the save tests it.
bool has_own_row(const observations::Entry& entry, const observations::Registry& registry) {
  if (entry.touroku < 1 || entry.touroku > registry.N) return false;
  return entry.unsaved ? entry.reads == registry.reads : registry.rows[entry.touroku].touroku_no == entry.stored_number;
}

}  // namespace

exchange::Shape shape_of_entry(const observations::Entry& entry, const observations::Registry& registry) {
  const geodesy::Point position = observations::position_of(entry.boxes);
  std::vector<drawing::Point> vertices;
  if (has_own_row(entry, registry)) vertices = drawn_points(registry.rows[entry.touroku].vertices);
  return exchange::drawn_shape(observations::is_area(entry.boxes.Combo1), {position.x, position.y}, vertices);
}

void Command7(const Session& session, Ports& ports) {
  exchange::shape_list_w(ports.files, session.settings.program_path, shape_of_entry(session.entry, session.registry));
}

}  // namespace session
