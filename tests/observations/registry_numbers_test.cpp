#include "observations/registry_numbers.h"

#include <gtest/gtest.h>

#include "observations/observation_place.h"

namespace {

using observations::mesh_number;
using observations::third_mesh_code;
using observations::touroku_no_get;

struct Registry_numbers : testing::Test, support::Observation_place {
  std::string next() { return touroku_no_get(files, project, clock.now()); }
  static std::string numbered(const std::string& number) { return support::point_at("1.0", "2.0", number); }
  void table(const std::vector<std::string>& numbers) {
    std::vector<std::string> lines;
    for (const std::string& number : numbers) lines.push_back(numbered(number));
    put_lines(lines);
    read();
  }
};

TEST_F(Registry_numbers, BeginEachDayAtOne) {
  EXPECT_EQ(next(), "081115-001");
  put_lines({numbered("081115-001")});
  EXPECT_EQ(next(), "081115-002");
  clock.time.day = 16;
  EXPECT_EQ(next(), "081116-001");
}

TEST_F(Registry_numbers, TakeTwoDigitsOfTheYearMonthAndDay) {
  clock.time = {2105, 3, 7, 0, 0, 0};
  EXPECT_EQ(next(), "050307-001");
}

TEST_F(Registry_numbers, AreCountedOverAllFilesOfTheProject) {
  put_lines({numbered("081115-004*2"), numbered("081115-003")});
  put_lines({numbered("081115-017")}, "SAWA.CSV");
  put_lines({numbered("081115-090")}, "note.txt");
  EXPECT_EQ(next(), "081115-018");
}

TEST_F(Registry_numbers, CountDeletedLinesAsUsed) {
  put_lines({"0,-9999,1,,,,,,081115-009"});
  EXPECT_EQ(next(), "081115-010");
}

TEST_F(Registry_numbers, BeginBehindTheSeventhCharacterWhateverItIs) {
  put_lines({numbered("081115－006"), numbered("081115"), numbered("081115-"), numbered("0811150009")});
  EXPECT_EQ(next(), "081115-010");
}

TEST_F(Registry_numbers, ShowTheLastThreeDigitsOnly) {
  put_lines({numbered("081115-998")});
  EXPECT_EQ(next(), "081115-999");
  put_lines({numbered("081115-999")});
  EXPECT_EQ(next(), "081115-000");
  put_lines({numbered("081115-1233")});
  EXPECT_EQ(next(), "081115-234");
}

TEST(Third_mesh_code, IsTheCellOfAKnownPlace) {
  // Tokyo station, 35.681236 N 139.767125 E, is known to lie in 5339-46-11.
  EXPECT_EQ(third_mesh_code({13976712.5, 3568123.6}), "53394611");
  // 35 degrees 44 minutes 30 seconds: 1470 seconds above row 53 (35 degrees 20 minutes), 4 x 300 + 9 x 30; 139 degrees
  // 44 minutes 15 seconds: 2655 seconds, 5 x 450 + 9 x 45. The next cell to the north-east begins the next second-level
  // cell.
  EXPECT_EQ(third_mesh_code({13973750, 3574166.67}), "53394599");
  EXPECT_EQ(third_mesh_code({13974999.99, 3574999.99}), "53394599");
  EXPECT_EQ(third_mesh_code({13975000, 3575000}), "53395600");
}

TEST(Third_mesh_code, KeepsPositionsOnCellEdgesInTheCellThatBeginsThere) {
  // Whole multiples of 90 seconds have two decimals at most in geographic units. Latitude 35 degrees 1 minute 30
  // seconds is row 3 of second-level row 0 (of first-level 52, which begins at 34 degrees 40 minutes): 1290 seconds.
  EXPECT_EQ(third_mesh_code({13900000, 3502500}), "52394030");
  for (int i = 0; i < 40; ++i) {
    const double y = 3500000 + 2500 * i, x = 13900000 + 1250 * i;  // steps of 90 and of 45 seconds
    const int lat = 126000 + 90 * i, lon = 500400 + 45 * i;        // the same in seconds
    const std::string code = third_mesh_code({x, y});
    ASSERT_EQ(code.size(), 8u);
    const auto digit = [&](int at) { return code[static_cast<std::size_t>(at)] - '0'; };
    EXPECT_EQ((digit(0) * 10 + digit(1)) * 2400 + digit(4) * 300 + digit(6) * 30, lat);
    EXPECT_EQ((digit(2) * 10 + digit(3) + 100) * 3600 + digit(5) * 450 + digit(7) * 45, lon);
  }
}

TEST(Third_mesh_code, IsNoneForMetresAndOutsideTheMesh) {
  for (const geodesy::Point at : {geodesy::Point{500, 300},
                                  {9'999'999, 3'500'000},
                                  {13'900'000, -3'500'000},
                                  {13'900'000, 1'000'000},
                                  {13'900'000, 1e300},
                                  {1e300, 3'500'000}})
    EXPECT_EQ(third_mesh_code(at), "") << at.x << " " << at.y;
}

TEST_F(Registry_numbers, CountInTheMeshCellOverAllFiles) {
  const geodesy::Point at{13973750, 3574166.67};
  EXPECT_EQ(mesh_number(files, project, at), "53394599-01");
  put_lines({numbered("53394599-01"), numbered("53394598-40")});
  put_lines({numbered("53394599-11*4")}, "b.csv");
  EXPECT_EQ(mesh_number(files, project, at), "53394599-12");
  put_lines({numbered("53394599-99")}, "b.csv");
  EXPECT_EQ(mesh_number(files, project, at), "53394599-00");
  EXPECT_EQ(mesh_number(files, project, {500, 300}), "");
}

TEST_F(Registry_numbers, FindTheHighestMeasurement) {
  EXPECT_EQ(observations::highest_measurement(registry), 0);
  table({"a*3", "b", "c*12", "d*"});
  EXPECT_EQ(observations::highest_measurement(registry), 12);
}

TEST_F(Registry_numbers, CompareMeasurementsAsNumbersUpToARow) {
  table({"a*3", "b", "c*012"});
  EXPECT_TRUE(observations::measurement_in_use(registry, " 3", 3));
  EXPECT_TRUE(observations::measurement_in_use(registry, "12", 3));
  EXPECT_FALSE(observations::measurement_in_use(registry, "12", 2));
  EXPECT_FALSE(observations::measurement_in_use(registry, "0", 9)) << "b has no measurement number";
  table({"a*"});
  EXPECT_TRUE(observations::measurement_in_use(registry, "0", 9)) << "a bare star counts";
}

}  // namespace
