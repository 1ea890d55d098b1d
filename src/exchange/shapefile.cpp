#include "exchange/shapefile.h"

#include "exchange/byte_block.h"
#include "exchange/shape_box.h"
#include "platform/failures.h"

namespace exchange {
namespace {

constexpr std::uint16_t record_offset = 51;  // one more than the header's 50 words, on purpose

void header(std::string& block, Shape_kind kind, std::uint32_t length, const Shape_box& box) {
  put_big_32(block, 0, 9994);                                      // file code
  put_zeros(block, 4, 20);                                         // unused
  put_big_32(block, 24, length);                                   // file length
  put_little_low_16(block, 28, 1000);                              // version
  put_little_low_16(block, 32, static_cast<std::uint16_t>(kind));  // shape type
  put_double(block, 36, box.least.x);                              // Xmin
  put_double(block, 44, box.least.y);                              // Ymin
  put_double(block, 52, box.most.x);                               // Xmax
  put_double(block, 60, box.most.y);                               // Ymax
  put_zeros(block, 68, 32);                                        // Z and M ranges, unused
}

void index_record(std::string& shx, std::uint16_t content_length) {
  put_big_low_16(shx, 100, record_offset);   // offset of the record
  put_big_low_16(shx, 104, content_length);  // length of its content
}

void poly(Shapefile& file, Shape_kind kind, const std::vector<drawing::Point>& points) {
  const std::size_t n = points.size();
  if (n > shape_points_limit)
    throw platform::Division_failure("a shape of " + std::to_string(n) + " points; " +
                                     std::to_string(shape_points_limit) + " is the most that a Shapefile takes");
  const auto length = static_cast<std::uint32_t>(n * 8 + 78);
  const auto content_length = static_cast<std::uint16_t>(n * 8 + 24);
  const Shape_box box = shape_box(points);

  header(file.shp, kind, length, box);
  put_big_low_16(file.shp, 100, 1);                                    // record number
  put_big_low_16(file.shp, 104, content_length);                       // content length
  put_little_low_16(file.shp, 108, static_cast<std::uint16_t>(kind));  // shape type
  put_double(file.shp, 112, box.least.x);                              // Xmin
  put_double(file.shp, 120, box.least.y);                              // Ymin
  put_double(file.shp, 128, box.most.x);                               // Xmax
  put_double(file.shp, 136, box.most.y);                               // Ymax
  put_little_low_16(file.shp, 144, 1);                                 // number of parts
  put_little_low_16(file.shp, 148, static_cast<std::uint16_t>(n));     // number of points
  put_little_low_16(file.shp, 152, 0);                                 // start of the part
  for (std::size_t i = 0; i < n; ++i) {
    put_double(file.shp, 156 + 16 * i, points[i].x);
    put_double(file.shp, 164 + 16 * i, points[i].y);
  }

  header(file.shx, kind, length, box);
  index_record(file.shx, content_length);
}

}  // namespace

void shape_point(Shapefile& file, drawing::Point point) {
  constexpr std::uint32_t length = 64;
  constexpr std::uint16_t content_length = 10;
  const Shape_box box{{0, 0}, {2 * point.x, 2 * point.y}};

  header(file.shp, Shape_kind::point, length, box);
  put_big_low_16(file.shp, 100, 1);               // record number
  put_big_low_16(file.shp, 104, content_length);  // content length
  put_little_low_16(file.shp, 108, 1);            // shape type
  put_double(file.shp, 112, point.x);             // x
  put_double(file.shp, 120, point.y);             // y

  header(file.shx, Shape_kind::point, length, box);
  index_record(file.shx, content_length);
}

void shape_line(Shapefile& file, const std::vector<drawing::Point>& points) {
  poly(file, Shape_kind::line, points);
}

void shape_polygon(Shapefile& file, const std::vector<drawing::Point>& points) {
  poly(file, Shape_kind::polygon, points);
}

void shape_out(Shapefile& file, const Shape& shape) {
  switch (shape.kind) {
    case Shape_kind::point:
      return shape_point(file, shape.points.at(0));
    case Shape_kind::line:
      return shape_line(file, shape.points);
    case Shape_kind::polygon:
      return shape_polygon(file, shape.points);
  }
}

}  // namespace exchange
