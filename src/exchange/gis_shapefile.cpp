#include "exchange/gis_shapefile.h"

#include <algorithm>
#include <cmath>

#include "core/project_settings.h"
#include "exchange/byte_block.h"
#include "exchange/dbf.h"
#include "exchange/shape_box.h"

namespace exchange {
namespace {

constexpr double geographic_from = 1'000'000;  // magnitude above which a coordinate is geographic
constexpr double units_of_degree = 100'000;
constexpr std::uint32_t header_words = 50;
constexpr std::size_t most_points = 100'000'000;  // a .shp below 2 gigabytes, which 32-bit readers need

// Code page of the table's texts, as the readers of .cpg files name it.
constexpr const char* cpg = "932";

constexpr const char* prj_tokyo =
    "GEOGCS[\"GCS_Tokyo\",DATUM[\"D_Tokyo\",SPHEROID[\"Bessel_1841\",6377397.155,299.1528128]],"
    "PRIMEM[\"Greenwich\",0.0],UNIT[\"Degree\",0.0174532925199433]]";
constexpr const char* prj_wgs_84 =
    "GEOGCS[\"GCS_WGS_1984\",DATUM[\"D_WGS_1984\",SPHEROID[\"WGS_1984\",6378137.0,298.257223563]],"
    "PRIMEM[\"Greenwich\",0.0],UNIT[\"Degree\",0.0174532925199433]]";

bool is_geographic(const std::vector<drawing::Point>& points) {
  return std::all_of(points.begin(), points.end(), [](drawing::Point point) {
    return std::abs(point.x) > geographic_from && std::abs(point.y) > geographic_from;
  });
}

// Twice the area, positive where the ring runs counter-clockwise (shoelace formula). Taken from the first point, so
// that a small ring far from the origin keeps its digits.
double double_area(const std::vector<drawing::Point>& ring) {
  double sum = 0;
  for (std::size_t i = 0; i < ring.size(); ++i) {
    const drawing::Point a = ring[i], b = ring[(i + 1) % ring.size()], o = ring[0];
    sum += (a.x - o.x) * (b.y - o.y) - (b.x - o.x) * (a.y - o.y);
  }
  return sum;
}

std::vector<drawing::Point> closed_clockwise(std::vector<drawing::Point> ring) {
  if (double_area(ring) > 0) std::reverse(ring.begin(), ring.end());
  if (ring.front() != ring.back()) ring.push_back(ring.front());
  return ring;
}

std::string header(Shape_kind kind, std::size_t words, const Shape_box& box) {
  std::string block;
  put_big_32(block, 0, 9994);                                  // file code
  put_zeros(block, 4, 20);                                     // unused
  put_big_32(block, 24, static_cast<std::uint32_t>(words));    // file length, 16-bit words
  put_little_32(block, 28, 1000);                              // version
  put_little_32(block, 32, static_cast<std::uint32_t>(kind));  // shape type
  put_double(block, 36, box.least.x);                          // Xmin
  put_double(block, 44, box.least.y);                          // Ymin
  put_double(block, 52, box.most.x);                           // Xmax
  put_double(block, 60, box.most.y);                           // Ymax
  put_zeros(block, 68, 32);                                    // Z and M ranges, unused
  return block;
}

std::string point_content(drawing::Point point) {
  std::string block;
  put_little_32(block, 0, static_cast<std::uint32_t>(Shape_kind::point));  // shape type
  put_double(block, 4, point.x);                                           // x
  put_double(block, 12, point.y);                                          // y
  return block;
}

std::string poly_content(Shape_kind kind, const std::vector<drawing::Point>& points, const Shape_box& box) {
  std::string block;
  put_little_32(block, 0, static_cast<std::uint32_t>(kind));            // shape type
  put_double(block, 4, box.least.x);                                    // Xmin
  put_double(block, 12, box.least.y);                                   // Ymin
  put_double(block, 20, box.most.x);                                    // Xmax
  put_double(block, 28, box.most.y);                                    // Ymax
  put_little_32(block, 36, 1);                                          // number of parts
  put_little_32(block, 40, static_cast<std::uint32_t>(points.size()));  // number of points
  put_little_32(block, 44, 0);                                          // start of the part
  for (std::size_t i = 0; i < points.size(); ++i) {
    put_double(block, 48 + 16 * i, points[i].x);
    put_double(block, 56 + 16 * i, points[i].y);
  }
  return block;
}

// A record's place in the .shx, and the head of the record in the .shp but for the first number.
void length_pair(std::string& block, std::size_t offset, std::uint32_t first, std::size_t content_words) {
  put_big_32(block, offset, first);
  put_big_32(block, offset + 4, static_cast<std::uint32_t>(content_words));
}

}  // namespace

bool gis_takes(const Shape& shape) {
  const auto& points = shape.points;
  if (points.size() > most_points) return false;
  switch (shape.kind) {
    case Shape_kind::point:
      return points.size() == 1;
    case Shape_kind::line:
      return points.size() >= 2;
    case Shape_kind::polygon:
      return points.size() >= 3 && std::isfinite(double_area(points)) && double_area(points) != 0;
  }
  return false;
}

Gis_shapefile gis_shapefile(const Shape& shape, int datum_mode, const std::string& name,
                            const platform::Date_time& today) {
  Gis_shapefile set;
  std::vector<drawing::Point> points = shape.points;
  if (is_geographic(points)) {
    for (drawing::Point& point : points) point = {point.x / units_of_degree, point.y / units_of_degree};
    set.prj = datum_mode == core::wgs_84 ? prj_wgs_84 : prj_tokyo;
  }
  if (shape.kind == Shape_kind::polygon) points = closed_clockwise(std::move(points));

  const Shape_box box = shape_box(points);
  const std::string content =
      shape.kind == Shape_kind::point ? point_content(points.at(0)) : poly_content(shape.kind, points, box);
  const std::size_t content_words = content.size() / 2;
  set.shp = header(shape.kind, header_words + 4 + content_words, box);
  length_pair(set.shp, 100, 1, content_words);  // record number, content length
  put_text(set.shp, 108, content);
  set.shx = header(shape.kind, header_words + 4, box);
  length_pair(set.shx, 100, header_words, content_words);  // offset of the record, content length
  set.dbf = dbf_bytes("NAME", name, today);
  set.cpg = cpg;
  return set;
}

}  // namespace exchange
