#include "exchange/shapefile.h"

#include <gmock/gmock.h>

#include "exchange/exchange_place.h"
#include "platform/failures.h"
#include "support/golden.h"

namespace {

using exchange::Shape;
using exchange::Shape_kind;
using exchange::Shapefile;
using support::big_32;
using support::little;

Shapefile made_of(const Shape& shape) {
  Shapefile file;
  exchange::shape_out(file, shape);
  return file;
}

const Shape two_points{Shape_kind::line, {{0, 0}, {10, 0}}};
const Shape triangle{Shape_kind::polygon, {{0, 0}, {10, 0}, {10, 10}}};

TEST(Shapefile, HasTheBytesOfTheGoldenFiles) {
  struct Case {
    const char* name;
    Shape shape;
  };
  for (const Case& one :
       {Case{"point", {Shape_kind::point, {{10, 20}}}}, Case{"line", two_points}, Case{"polygon", triangle}}) {
    const Shapefile file = made_of(one.shape);
    EXPECT_TRUE(support::same_as_golden(file.shp, "exchange/" + std::string(one.name) + ".shp")) << one.name;
    EXPECT_TRUE(support::same_as_golden(file.shx, "exchange/" + std::string(one.name) + ".shx")) << one.name;
  }
}

TEST(Shapefile, GivesAPointABoxOfTwiceItsCoordinates) {
  const Shapefile file = made_of({Shape_kind::point, {{10, 20}}});
  EXPECT_EQ(file.shp.size(), 128u);
  EXPECT_EQ(file.shx.size(), 108u);
  EXPECT_EQ(support::real(file.shp, 36), 0);
  EXPECT_EQ(support::real(file.shp, 44), 0);
  EXPECT_EQ(support::real(file.shp, 52), 20);
  EXPECT_EQ(support::real(file.shp, 60), 40);
}

TEST(Shapefile, GivesALineOfTwoPointsTheLengths94And40) {
  const Shapefile file = made_of(two_points);
  for (const std::string& content : {file.shp, file.shx}) {
    EXPECT_EQ(big_32(content, 24), 94u);
    EXPECT_EQ(big_32(content, 104), 40u);
  }
  EXPECT_EQ(big_32(file.shx, 100), 51u);
  EXPECT_EQ(little(file.shp, 148, 4), 2u);
}

TEST(Shapefile, ClosesNoPolygon) {
  EXPECT_EQ(support::read_shp(made_of(triangle).shp).points, triangle.points);
}

TEST(Shapefile, LeavesTheTailOfALongerShapeBehindAShorter) {
  Shapefile file = made_of({Shape_kind::line, {{1.5, -2.25}, {3, 4}, {-5, 6}, {7, 8.125}}});
  exchange::shape_out(file, {Shape_kind::point, {{10, 20}}});
  EXPECT_TRUE(support::same_as_golden(file.shp, "exchange/point_over_line.shp"));
  EXPECT_TRUE(support::same_as_golden(file.shx, "exchange/point_over_line.shx"));
}

TEST(Shapefile, LeavesTheUpperHalvesOf16BitFieldsAsTheFileHadThem) {
  Shapefile file{std::string(200, '\xff'), std::string(108, '\xff')};
  exchange::shape_out(file, two_points);
  // Each field: where its two bytes stand, what they say in their order, and where the two untouched bytes stand.
  struct Field {
    std::size_t at, untouched;
    std::string bytes;
  };
  using namespace std::string_literals;
  for (const Field& field : {Field{28, 30, "\xe8\x03"s}, Field{32, 34, "\x03\x00"s}, Field{102, 100, "\x00\x01"s},
                             Field{106, 104, "\x00\x28"s}, Field{108, 110, "\x03\x00"s}, Field{144, 146, "\x01\x00"s},
                             Field{148, 150, "\x02\x00"s}, Field{152, 154, "\x00\x00"s}}) {
    EXPECT_EQ(file.shp.substr(field.at, 2), field.bytes) << field.at;
    EXPECT_EQ(file.shp.substr(field.untouched, 2), "\xff\xff") << field.untouched;
  }
  EXPECT_EQ(file.shx.substr(100), "\xff\xff\x00\x33\xff\xff\x00\x28"s);
  EXPECT_EQ(file.shp.substr(0, 4), "\x00\x00\x27\x0a"s);
  EXPECT_EQ(file.shp.substr(4, 24), std::string(20, '\0') + "\x00\x00\x00\x5e"s);
  EXPECT_EQ(file.shp.substr(188), std::string(12, '\xff'));
}

TEST(Shapefile, WritesAShapeWithoutPointsWithABoxOfZeros) {
  const Shapefile file = made_of({Shape_kind::polygon, {}});
  EXPECT_EQ(file.shp.size(), 156u);
  EXPECT_EQ(big_32(file.shp, 24), 78u);
  EXPECT_EQ(big_32(file.shp, 104), 24u);
  EXPECT_EQ(file.shp.substr(36, 32), std::string(32, '\0'));
}

TEST(Shapefile, TakesAsManyPointsAs16BitsCanTellAndNotOneMore) {
  Shape shape{Shape_kind::line, std::vector<drawing::Point>(8188, {1, 2})};
  Shapefile file = made_of(shape);
  EXPECT_EQ(big_32(file.shp, 104), 65528u);
  EXPECT_EQ(support::read_shp(file.shp).points.size(), 8188u);
  const Shapefile before = file;
  shape.points.push_back({3, 4});
  EXPECT_THROW(exchange::shape_out(file, shape), platform::Division_failure);
  EXPECT_TRUE(support::same_bytes(file.shp, before.shp));
  EXPECT_TRUE(support::same_bytes(file.shx, before.shx));
}

}  // namespace
