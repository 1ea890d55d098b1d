#include "observations/vertices.h"

#include <algorithm>

#include "observations/kouten.h"

namespace observations {
namespace {

using geodesy::Point;

void set_count(core::Interaction& flags, const Line_input& line) {
  flags.line_count = static_cast<int>(line.vertices.size());
}

void end_input(core::Interaction& flags, Line_input& line) {
  line.vertices.clear();
  flags.line_mode = 0;
  flags.line_count = 0;
}

// Closes the ring at the first segment that the new one crosses. The last segment ends where the new one begins, and a
// crossing at an end doesn't count.
bool close_ring(std::vector<Point>& vertices, Point at) {
  for (std::size_t start = 0; start + 2 < vertices.size(); ++start) {
    const Crossing crossing = crossing_inside(vertices[start], vertices[start + 1], vertices.back(), at);
    if (!crossing.found) continue;
    vertices.erase(vertices.begin(), vertices.begin() + static_cast<std::ptrdiff_t>(start) + 1);
    vertices.push_back(crossing.at);
    return true;
  }
  return false;
}

Bounds bounds_of(const std::vector<Point>& vertices) {
  Bounds bounds;
  for (const Point& vertex : vertices) {
    bounds.low = {std::min(bounds.low.x, vertex.x), std::min(bounds.low.y, vertex.y)};
    bounds.high = {std::max(bounds.high.x, vertex.x), std::max(bounds.high.y, vertex.y)};
  }
  return bounds;
}

}  // namespace

void Command6(core::Interaction& flags, Line_input& line) {
  line.vertices.clear();
  flags.line_mode = 1;
  flags.line_count = 0;
}

Vertex_taken line_vertex(core::Interaction& flags, Line_input& line, Point at, bool area, platform::Prompts& prompts) {
  if (line.vertices.size() >= core::line_limit) {
    prompts.message(line_is_full);
    return Vertex_taken::none;
  }
  const bool closed = area && close_ring(line.vertices, at);
  if (!closed) line.vertices.push_back(at);
  set_count(flags, line);
  return closed ? Vertex_taken::closed : Vertex_taken::added;
}

bool Command31(core::Interaction& flags, Line_input& line, Point mouse) {
  if (flags.line_mode == 0 || line.vertices.empty()) {
    end_input(flags, line);
    return false;
  }
  line.vertices.push_back(mouse);
  set_count(flags, line);
  return true;
}

Line_stored line_store(core::Interaction& flags, Line_input& line, Registry& registry, int touroku) {
  Line_stored result;
  result.bounds = bounds_of(line.vertices);
  if (touroku != 0) {
    result.stored = true;
    result.shortened = line.vertices.size() > stored_limit;
    line.vertices.resize(std::min<std::size_t>(line.vertices.size(), stored_limit));
    registry.rows[touroku].vertices = std::move(line.vertices);
  }
  end_input(flags, line);
  return result;
}

}  // namespace observations
