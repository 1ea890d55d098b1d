#include "observations/reference_points.h"

#include <gtest/gtest.h>

#include "observations/observation_place.h"

namespace {

struct Reference_points_read : testing::Test, support::Observation_place {
  observations::Reference_points points;
  void read4(int count) { chisoumen_read4(points, files, count, observations::reference_paths(project)); }
};

TEST_F(Reference_points_read, TakesTheColumnsOfARow) {
  put_lines({"12,13886245.41,3578126.9,388.6,4,5,鳴沢鉱山,銅,休山"}, "関東山梨情報.csv");
  read4(1);
  ASSERT_EQ(points.count, 1);
  const observations::Reference_point& row = points.rows[1];
  EXPECT_EQ(row.number, 12);
  EXPECT_EQ(row.X, 13886245.41);
  EXPECT_EQ(row.Y, 3578126.9);
  EXPECT_EQ(row.values, (std::array<double, 3>{388.6, 4, 5}));
  EXPECT_EQ(row.name, "鳴沢鉱山");
  EXPECT_EQ(row.columns[0], "銅");
  EXPECT_EQ(row.columns[1], "休山");
  EXPECT_EQ(row.columns[15], "");
}

TEST_F(Reference_points_read, TakesTheFileOfEachPassAndSkipsDeletedLines) {
  put_lines({"1,1,1"}, "関東山梨情報.csv");
  put_lines({"2,-9999,1", "3,1,1"}, "全国鉱山情報.csv");
  read4(3);
  ASSERT_EQ(points.count, 2);
  EXPECT_EQ(points.rows[1].number, 1);
  EXPECT_EQ(points.rows[2].number, 3);
  read4(2);
  EXPECT_EQ(points.count, 1);
  read4(9);
  EXPECT_EQ(points.count, 2);
  read4(-1);
  EXPECT_EQ(points.count, 0);
}

TEST_F(Reference_points_read, StopsAtFiveThousandRowsWithACountOfZero) {
  put_lines(std::vector<std::string>(5000, "7,1,1"), "関東山梨情報.csv");
  read4(3);
  EXPECT_EQ(points.count, 5000);
  put_lines({"8,1,1"}, "関東山梨市町村.csv");
  read4(3);
  EXPECT_EQ(points.count, 0);
}

}  // namespace
