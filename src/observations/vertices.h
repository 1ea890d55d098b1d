// The line or enclosure that is being drawn: how its vertices are taken, when it closes, and what a record keeps of it.
// Vertices are in the units of the records: geographic on a sheet with a geographic frame, metres otherwise.
#pragma once

#include <vector>

#include "core/interaction.h"
#include "geodesy/plane.h"
#include "observations/registry.h"
#include "platform/prompts.h"

namespace observations {

inline constexpr int stored_limit = 100;  // vertices that a record made by hand keeps

inline constexpr platform::Message line_is_full{"これ以上囲み線を入力できません。", "Number of Point over!"};
inline constexpr platform::Message first_100_kept{"最初の100点を登録します。", "The first 100 points are kept."};

struct Line_input {
  std::vector<geodesy::Point> vertices;
};

enum class Vertex_taken { none, added, closed };

struct Bounds {
  geodesy::Point low{1e24, 1e24}, high{-1e24, -1e24};  // of nothing at all
};

struct Line_stored {
  bool stored = false;
  bool shortened = false;  // more than 100 were drawn: the status bar says first_100_kept
  Bounds bounds;           // of all that were drawn
};

// "線(囲み)開始": begins a line with no vertex.
void Command6(core::Interaction& flags, Line_input& line);

// A press while a line is open. None, with a message, when it has 148 vertices. With `area` a new segment that crosses
// an earlier one closes the ring: the vertices up to the crossed segment's start go, the crossing is the last vertex,
// and the line is ready to be stored. An open line may cross itself.
Vertex_taken line_vertex(core::Interaction& flags, Line_input& line, geodesy::Point at, bool area,
                         platform::Prompts& prompts);

// "線終了": the mouse's position is the last vertex. False when nothing was drawn; the input is over then.
bool Command31(core::Interaction& flags, Line_input& line, geodesy::Point mouse);

// Puts the first 100 vertices into record `touroku` of the table and ends the input. Without a current record (0)
// nothing is stored. The file is written by the save of the record.
Line_stored line_store(core::Interaction& flags, Line_input& line, Registry& registry, int touroku);

}  // namespace observations
