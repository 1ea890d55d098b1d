// A file of drawn areas of any bytes: each area that is read has the vertices that it may have.
#include "observations/area.h"
#include "one_file.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  support::One_file files(data, size);
  const std::vector<observations::Area> areas = observations::Area_read(files, "C:\\p");
  support::promise(areas.size() <= observations::area_limit);
  for (const observations::Area& area : areas)
    support::promise(area.size() >= 3 && area.size() <= observations::area_vertex_limit);
  return 0;
}
