#include "exchange/gis_shapefile.h"

#include <gmock/gmock.h>

#include <cstdlib>

#include "exchange/exchange_place.h"
#include "exchange/shapefile.h"
#include "support/golden.h"

namespace {

using exchange::Gis_shapefile;
using exchange::Shape;
using exchange::Shape_kind;
using testing::HasSubstr;
using testing::Not;

constexpr platform::Date_time day{2024, 5, 6, 7, 8, 9};

Gis_shapefile set_of(const Shape& shape, int datum_mode = core::tokyo_datum, const std::string& name = "谷") {
  return exchange::gis_shapefile(shape, datum_mode, name, day);
}

const Shape point{Shape_kind::point, {{10, 20}}};
const Shape line{Shape_kind::line, {{13'950'000, 3'550'000}, {13'925'000, 3'625'000}}};
const Shape triangle{Shape_kind::polygon, {{0, 0}, {10, 0}, {10, 10}}};

TEST(Gis_shapefile, HasTheBytesOfTheGoldenFiles) {
  struct Case {
    const char* name;
    Shape shape;
  };
  for (const Case& one : {Case{"point_gis", point}, Case{"degrees_gis", line}, Case{"metres_gis", triangle}}) {
    const Gis_shapefile set = set_of(one.shape);
    EXPECT_TRUE(support::same_as_golden(set.shp, "exchange/" + std::string(one.name) + ".shp")) << one.name;
    EXPECT_TRUE(support::same_as_golden(set.shx, "exchange/" + std::string(one.name) + ".shx")) << one.name;
    EXPECT_TRUE(support::same_as_golden(set.dbf, "exchange/tani_gis.dbf")) << one.name;
    EXPECT_EQ(set.cpg, "932");
  }
}

TEST(Gis_shapefile, ClosesARingOnceAndTurnsItClockwise) {
  const std::vector<drawing::Point> clockwise = {{10, 10}, {10, 0}, {0, 0}, {10, 10}};
  EXPECT_EQ(support::read_shp(set_of({Shape_kind::polygon, {{10, 10}, {10, 0}, {0, 0}}}).shp).points, clockwise);
  EXPECT_EQ(support::read_shp(set_of({Shape_kind::polygon, clockwise}).shp).points, clockwise);
  EXPECT_EQ(support::read_shp(set_of({Shape_kind::polygon, {{10, 10}, {0, 0}, {10, 0}, {10, 10}}}).shp).points,
            clockwise);
}

TEST(Gis_shapefile, IsInDegreesOnlyWhenEveryPointIsGeographic) {
  EXPECT_TRUE(set_of(line).prj.has_value());
  EXPECT_FALSE(set_of(point).prj.has_value());
  const Shape mixed{Shape_kind::line, {{13'950'000, 3'550'000}, {13'925'000, 900'000}}};
  EXPECT_FALSE(set_of(mixed).prj.has_value());
  EXPECT_EQ(support::read_shp(set_of(mixed).shp).points, mixed.points);
  EXPECT_FALSE(set_of({Shape_kind::point, {{1'000'000, 3'550'000}}}).prj.has_value());
  EXPECT_TRUE(set_of({Shape_kind::point, {{-1'000'001, -3'550'000}}}).prj.has_value());
}

TEST(Gis_shapefile, NamesTheDatumOfTheProject) {
  EXPECT_THAT(*set_of(line, core::tokyo_datum).prj, HasSubstr("SPHEROID[\"Bessel_1841\",6377397.155,299.1528128]"));
  EXPECT_THAT(*set_of(line, core::wgs_84).prj, HasSubstr("SPHEROID[\"WGS_1984\",6378137.0,298.257223563]"));
}

TEST(Gis_shapefile, TakesNoShapeThatTheFormatHasNoPlaceFor) {
  for (const Shape& shape : {point, line, triangle}) EXPECT_TRUE(exchange::gis_takes(shape));
  for (const Shape& shape :
       {Shape{Shape_kind::line, {}}, Shape{Shape_kind::line, {{1, 1}}}, Shape{Shape_kind::polygon, {}},
        Shape{Shape_kind::polygon, {{0, 0}, {1, 1}}}, Shape{Shape_kind::polygon, {{0, 0}, {1, 1}, {2, 2}}},
        Shape{Shape_kind::polygon, {{0, 0}, {1, 1}, {0, 0}}}})
    EXPECT_FALSE(exchange::gis_takes(shape));
}

TEST(Gis_shapefile, TakesMorePointsThanTheProgramsOwnFile) {
  const Shape shape{Shape_kind::line, std::vector<drawing::Point>(70'000, {1, 2})};
  const Gis_shapefile set = set_of(shape);
  EXPECT_EQ(support::big_32(set.shx, 104), (48u + 16u * 70'000u) / 2);
  EXPECT_EQ(support::read_shp(set.shp).points.size(), 70'000u);
}

bool ogrinfo_is_there() {
  return std::system("ogrinfo --version > /dev/null 2>&1") == 0;
}
constexpr const char* no_ogrinfo =
    "ogrinfo is not installed (package gdal-bin): the set is not read by another program";

// What ogrinfo of the package gdal-bin says of a set.
std::string ogrinfo_of(const Gis_shapefile& set) {
  support::Exchange_place place;
  const auto put = [&](const char* ending, const std::string& bytes) {
    place.files.write_whole(platform::join_path(place.target, std::string("set_gis") + ending), bytes);
  };
  put(".shp", set.shp);
  put(".shx", set.shx);
  put(".dbf", set.dbf);
  put(".cpg", set.cpg);
  if (set.prj) put(".prj", *set.prj);
  const std::string target = place.files.native_path(place.target), told = target + "/told.txt";
  // SHAPE_RESTORE_SHX would let it pass over a .shx that doesn't fit.
  const std::string command =
      "ogrinfo --config SHAPE_RESTORE_SHX NO -ro -al \"" + target + "/set_gis.shp\" > \"" + told + "\" 2>&1";
  const int result = std::system(command.c_str());
  return support::bytes_of(told) + "\nexit " + std::to_string(result) + "\n";
}

struct Ogr_case {
  const char* holds;
  Shape shape;
  int datum_mode;
  std::vector<std::string> said, unsaid;
};

TEST(Gis_shapefile, IsReadByOgrinfo) {
  if (!ogrinfo_is_there()) GTEST_SKIP() << no_ogrinfo;
  const std::vector<Ogr_case> cases = {
      {"a point in metres",
       point,
       core::tokyo_datum,
       {"Geometry: Point", "POINT (10 20)", "Extent: (10.000000, 20.000000) - (10.000000, 20.000000)", "(unknown)"},
       {"GEOGCRS"}},
      {"a line in degrees on the Tokyo datum",
       line,
       core::tokyo_datum,
       {"Geometry: Line String", "LINESTRING (139.5 35.5,139.25 36.25)",
        "ELLIPSOID[\"Bessel 1841\",6377397.155,299.1528128", "DATUM[\"Tokyo\""},
       {}},
      {"a line in degrees on WGS 84",
       line,
       core::wgs_84,
       {"LINESTRING (139.5 35.5,139.25 36.25)", "6378137,298.257223563"},
       {"Bessel"}},
      {"a polygon, closed", triangle, core::wgs_84, {"Geometry: Polygon", "POLYGON ((10 10,10 0,0 0,10 10))"}, {}},
  };
  for (const Ogr_case& one : cases) {
    const std::string told = ogrinfo_of(set_of(one.shape, one.datum_mode));
    SCOPED_TRACE(one.holds);
    for (const std::string& text : one.said) EXPECT_THAT(told, HasSubstr(text));
    for (const std::string& text : one.unsaid) EXPECT_THAT(told, Not(HasSubstr(text)));
    EXPECT_THAT(told, HasSubstr("Feature Count: 1"));
    EXPECT_THAT(told, HasSubstr("NAME (String) = 谷"));  // code page 932
    EXPECT_THAT(told, HasSubstr("exit 0"));
    for (const char* fault : {"Warning", "ERROR", "FAILURE"}) EXPECT_THAT(told, Not(HasSubstr(fault)));
  }
}

// The dialogs' hint says so: the reason why there is a second set.
TEST(Gis_shapefile, IsNeededSinceOgrinfoRefusesTheProgramsOwnShx) {
  if (!ogrinfo_is_there()) GTEST_SKIP() << no_ogrinfo;
  exchange::Shapefile own;
  exchange::shape_out(own, line);
  Gis_shapefile set = set_of(line);
  set.shx = own.shx;
  EXPECT_THAT(ogrinfo_of(set), HasSubstr("Unable to open"));
}

}  // namespace
