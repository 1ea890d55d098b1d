#include "make_sample/observations.h"

#include <gtest/gtest.h>

#include <cmath>
#include <map>
#include <set>

#include "make_sample/place.h"
#include "platform/code_page_932.h"
#include "platform/numbers.h"

namespace {

using sample::Notation;

const sample::Country& the_country() {
  static const sample::Country made = sample::make_country(30);
  return made;
}

std::vector<std::string> columns_of(const std::string& line) {
  std::vector<std::string> columns;
  std::size_t from = 0;
  for (std::size_t comma; (comma = line.find(',', from)) != std::string::npos; from = comma + 1)
    columns.push_back(line.substr(from, comma - from));
  columns.push_back(line.substr(from));
  return columns;
}

// Rows of the registry, column 1 at place 1.
const std::vector<std::vector<std::string>>& rows() {
  static const std::vector<std::vector<std::string>> read = [] {
    std::vector<std::vector<std::string>> all;
    const std::string bytes = sample::registry_bytes(sample::observations(the_country()));
    std::size_t from = 0;
    for (std::size_t end; (end = bytes.find("\r\n", from)) != std::string::npos; from = end + 2) {
      std::vector<std::string> columns = columns_of(platform::decode_932(bytes.substr(from, end - from)));
      columns.insert(columns.begin(), "");
      all.push_back(columns);
    }
    return all;
  }();
  return read;
}

ground::Point place_of(const std::vector<std::string>& row) {
  return sample::point_of({std::stod(row[3]) / 100000, std::stod(row[2]) / 100000});
}

struct Read_plane {
  double strike = 0, dip = 0;  // azimuth with the plane falling to its right
};

// A geologist's reading of the two texts: the line's azimuth, then the end of it that has the dip's side on its right.
Read_plane read_plane(const std::string& strike, const std::string& dip) {
  double line = 0;
  if (strike != "NS") line = std::stod(strike.substr(1)) * (strike.back() == 'W' ? -1 : 1);
  const std::map<char, double> sides{{'N', 0}, {'E', 90}, {'S', 180}, {'W', 270}};
  const double side = sides.at(dip.back());
  const bool right = std::cos((line + 90 - side) / 180 * 3.14159265358979) > 0;
  return {right ? line : line + 180, std::stod(dip)};
}

double to_true_north(const std::vector<std::string>& row, double azimuth) {
  if (row[19] == "1") return azimuth;
  const ground::Point at = place_of(row);
  return azimuth + sample::declination(sample::position_of(at));
}

// Half a degree of rounding, and what the hundredths of a geographic unit take from the place.
constexpr double tolerance = 0.51;

void expect_attitude(const std::vector<std::string>& row, const ground::Attitude& plane) {
  const Read_plane read = read_plane(row[7], row[8]);
  EXPECT_NEAR(std::remainder(to_true_north(row, read.strike) - plane.strike, 360), 0, tolerance) << row[9];
  EXPECT_NEAR(read.dip, plane.dip, tolerance) << row[9];
}

TEST(Notation, WritesTheStrikeFromTheNorthAndTheSideOfTheDip) {
  struct Row {
    double azimuth, dip;
    const char *strike, *side;
  };
  constexpr Row cases[] = {
      {0, 20, "NS", "20E"},       {359.6, 20, "NS", "20E"},   {180, 20, "NS", "20W"},     {30, 41.6, "N30E", "42E"},
      {210, 41.4, "N30E", "41W"}, {345, 30, "N15W", "30E"},   {165, 30, "N15W", "30W"},   {90, 9, "N90E", "9S"},
      {270, 9, "N90E", "9N"},     {84.4, 55, "N84E", "55S"},  {264.4, 55, "N84E", "55N"}, {95.2, 55, "N85W", "55S"},
      {275.2, 55, "N85W", "55N"}, {-20.3, 60, "N20W", "60E"}, {380, 60, "N20E", "60E"},
  };
  for (const Row& one : cases) {
    const Notation read = sample::notation(one.azimuth, one.dip);
    EXPECT_EQ(read.strike, one.strike) << one.azimuth;
    EXPECT_EQ(read.dip, one.side) << one.azimuth;
  }
}

TEST(Observations, AreAboutTwoHundredOfEveryKind) {
  EXPECT_GE(rows().size(), 180u);
  EXPECT_LE(rows().size(), 230u);
  std::map<std::string, int> targets, marks, strata;
  for (const auto& row : rows()) {
    ++targets[row[5]];
    ++marks[row[11]];
    ++strata[row[6]];
  }
  EXPECT_GE(targets["地層面"], 60);
  EXPECT_GE(targets["地層境界面"], 30);
  EXPECT_GE(targets["断層"], 5);
  EXPECT_GE(targets["線構造"], 5);
  EXPECT_GE(targets["標高点"], 10);
  EXPECT_GE(marks["範囲"], 3);
  EXPECT_GE(marks["線"], 2);
  EXPECT_GE(marks["文字"], 3);
  for (const char* name : sample::stratum_names) EXPECT_GE(strata[name], 8) << name;
}

TEST(Observations, KeepTheirColumns) {
  for (const auto& row : rows()) {
    ASSERT_GE(row.size(), 26u);
    const int vertices = static_cast<int>(platform::val(row[24]));
    EXPECT_EQ(row.size(), 26u + 2 * static_cast<std::size_t>(vertices)) << row[9];
    EXPECT_EQ(row.back(), "");
    EXPECT_LE(vertices, 138);
    EXPECT_EQ(row[1].front(), ' ');
    EXPECT_EQ(row[1].back(), ' ');
    for (const std::string& column : row) EXPECT_EQ(column.find("-9999"), std::string::npos);
  }
}

TEST(Observations, HaveNumbersOfTheirOwn) {
  std::set<std::string> numbers, measurements;
  for (const auto& row : rows()) {
    const std::size_t star = row[9].find('*');
    EXPECT_TRUE(numbers.insert(row[9].substr(0, star)).second) << row[9];
    if (star != std::string::npos) {
      EXPECT_TRUE(measurements.insert(row[9].substr(star + 1)).second) << row[9];
    }
  }
}

TEST(Observations, StandOnTheLand) {
  for (const auto& row : rows()) {
    if (row[4].empty()) continue;
    const ground::Point at = place_of(row);
    EXPECT_NEAR(std::stod(row[4]), ground::topography(the_country().ground, at.x, at.y).z, 0.06) << row[9];
  }
}

TEST(Observations, AgreeWithTheBeddingToRounding) {
  int checked = 0;
  for (const auto& row : rows()) {
    if (row[5] != "地層面") continue;
    const ground::Point at = place_of(row);
    const double z = ground::topography(the_country().ground, at.x, at.y).z;
    EXPECT_EQ(row[6], sample::stratum_names[ground::stratum_at(at.x, at.y, z) - 1]);
    expect_attitude(row, ground::bedding(at.x, at.y, z));
    ++checked;
  }
  EXPECT_GT(checked, 60);
}

TEST(Observations, LieOnTheBoundariesThatTheyName) {
  for (const auto& row : rows()) {
    if (row[5] != "地層境界面") continue;
    const ground::Point at = place_of(row);
    const double z = ground::topography(the_country().ground, at.x, at.y).z;
    int k = 1;
    while (row[6] != sample::stratum_names[k - 1]) ++k;
    EXPECT_NEAR(ground::boundary(k, at.x, at.y).z, z, 0.05) << row[9];
    EXPECT_EQ(platform::val(row[1]), 1);
    expect_attitude(row, ground::strike_dip(k, at.x, at.y));
  }
}

TEST(Observations, ReadTheFaultAndItsScratches) {
  int points = 0;
  for (const auto& row : rows()) {
    if (row[5] != "断層" || row[11] == "線") continue;
    const ground::Point at = place_of(row);
    EXPECT_NEAR(ground::fault_plane(at.x, at.y).z, ground::topography(the_country().ground, at.x, at.y).z, 0.1);
    expect_attitude(row, ground::fault_strike_dip());
    const Read_plane line = read_plane(row[23], row[22]);
    EXPECT_NEAR(to_true_north(row, line.strike), ground::fault_striation().trend, tolerance);
    ++points;
  }
  EXPECT_GT(points, 4);
}

TEST(Observations, MarkTheCorrectedOnesOnly) {
  int corrected = 0;
  for (const auto& row : rows()) {
    EXPECT_TRUE(row[19] == "0" || row[19] == "1");
    EXPECT_EQ(row[19] == "1", row[20] == "1");
    EXPECT_EQ(row[21].size(), row[19] == "1" ? 19u : 0u) << row[9];
    corrected += row[19] == "1";
  }
  EXPECT_GT(corrected, 10);
}

}  // namespace
