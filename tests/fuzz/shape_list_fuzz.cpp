// A list of shapes of any bytes: it reads as shapes of finite points or fails as told, and every shape that is read
// becomes both sets, with the lengths that their headers tell.
#include <cmath>

#include "exchange/gis_shapefile.h"
#include "exchange/shape_list.h"
#include "exchange/shapefile.h"
#include "one_file.h"
#include "platform/failures.h"

namespace {

std::size_t told_length(const std::string& content) {
  std::size_t words = 0;
  for (std::size_t i = 24; i < 28; ++i) words = words << 8 | static_cast<unsigned char>(content[i]);
  return 2 * words;
}

void check(const exchange::Shape& shape) {
  for (const drawing::Point& point : shape.points) support::promise(std::isfinite(point.x) && std::isfinite(point.y));
  if (shape.kind == exchange::Shape_kind::point) support::promise(shape.points.size() == 1);
  if (shape.points.size() <= exchange::shape_points_limit) {
    exchange::Shapefile file;
    exchange::shape_out(file, shape);
    support::promise(file.shp.size() == told_length(file.shp) && file.shx.size() == 108);
  }
  if (!exchange::gis_takes(shape)) return;
  const exchange::Gis_shapefile set = exchange::gis_shapefile(shape, 0, "a", {2024, 5, 6, 0, 0, 0});
  support::promise(set.shp.size() == told_length(set.shp) && set.shx.size() == told_length(set.shx));
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  support::One_file files(data, size);
  try {
    for (const exchange::Shape& shape : exchange::shape_list_r(files, "C:\\TMP.TMP")) check(shape);
  } catch (const platform::Type_failure&) {  // a coordinate that is no number ends the reading
  }
  return 0;
}
