// A boundary file of any bytes: every line kept has two points at least, and only finite positions reach the surface.
#include <cmath>

#include "maps/boundaries.h"
#include "one_file.h"
#include "support/recorder.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  support::One_file files(data, size);
  maps::Boundaries boundaries;
  maps::gyousei_read(files, "C:\\program", boundaries);
  for (const maps::Boundary& line : boundaries.lines) support::promise(line.size() >= 2);
  maps::Canvas canvas;
  maps::zahyo_r3(canvas, {"N361000.0", "E1385230.0", "N360500.0", "E1390000.0"});
  support::Recorder surface;
  maps::gyousei_out(surface, canvas, boundaries);
  support::promise(surface.calls.size() == boundaries.lines.size());
  for (const support::Drawn& call : surface.calls)
    for (const drawing::Point& point : call.points) support::promise(std::isfinite(point.x) && std::isfinite(point.y));
  return 0;
}
