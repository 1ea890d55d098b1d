// A frame file of any bytes: it is read without a fault, and the frame that follows from it has finite numbers only.
#include <cmath>

#include "maps/frame_file.h"
#include "one_file.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  support::One_file files(data, size);
  maps::Corner_texts corners;
  maps::frame_read(files, "a.set", corners);
  maps::Canvas canvas;
  maps::zahyo_r3(canvas, corners);
  for (const double value : {canvas.map_x1, canvas.map_y1, canvas.map_w, canvas.map_h, canvas.canvas_scale,
                             canvas.cell_w, canvas.cell_h, canvas.sec_m_x, canvas.sec_m_y})
    support::promise(std::isfinite(value));
  support::promise(canvas.map_h >= 0);
  const maps::Canvas_point corner = maps::henkan_px4(canvas, canvas.geo_x0, canvas.geo_y0);
  support::promise(std::isfinite(corner.x) && std::isfinite(corner.y));
  return 0;
}
