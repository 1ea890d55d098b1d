#include "observations/geomagnetic_field.h"

#include <gtest/gtest.h>

#include <cmath>

#include "platform/text_files.h"
#include "support/places.h"
#include "table_rows.h"

namespace {

using namespace observations;
using observations_test::golden_rows;
using observations_test::number;

// The published coefficients, as the fixture has them.
std::vector<std::string> igrf_lines() {
  platform::Disk_files files;
  return platform::read_lines(files, support::golden_file("observations/igrf10.coef"));
}

// A dipole of 30,000 nT towards the north and 5,000 nT towards the west at latitude and longitude 0 on the sphere.
const std::vector<std::string> dipole{"DIPOLE 2005.00 1 1 0", " 1  0 -30000.00 0.00 0.00 0.00",
                                      " 1  1 0.00 5000.00 0.00 100.00"};

TEST(Geomagnetic_field, ReadsThePublishedCoefficients) {
  const Geomagnetic_field field = field_of_lines(igrf_lines());
  EXPECT_EQ(field.model, "IGRF2005");
  EXPECT_EQ(field.epoch, 2005.0);
  EXPECT_EQ(field.order, 13);
  EXPECT_EQ(field.g[1][0], -29556.80);
  EXPECT_EQ(field.g[2][1], 3047.00);
  EXPECT_EQ(field.h[2][1], -2594.90);
  EXPECT_EQ(field.g[13][13], -0.30);
  EXPECT_EQ(field.h[13][13], -1.00);
}

TEST(Geomagnetic_field, AgreesWithTheSynthesisByExactPolynomials) {
  const Geomagnetic_field field = field_of_lines(igrf_lines());
  const auto rows = golden_rows("declination.csv");
  ASSERT_GT(rows.size(), 180u);
  for (const auto& row : rows) {
    const double latitude = number(row, "latitude"), longitude = number(row, "longitude");
    const Field_vector vector = field_at(field, latitude, longitude, 0);
    EXPECT_NEAR(vector.X, number(row, "x"), 1e-5) << latitude << " " << longitude;
    EXPECT_NEAR(vector.Y, number(row, "y"), 1e-5) << latitude << " " << longitude;
    EXPECT_NEAR(vector.Z, number(row, "z"), 1e-5) << latitude << " " << longitude;
  }
}

TEST(Geomagnetic_field, ADipoleIsWorkedOutByHand) {
  // On the equator both verticals agree, and the radius is the semi-major axis: (6371.2 / 6378.137) cubed.
  const double factor = std::pow(6371.2 / 6378.137, 3);
  const Field_vector vector = field_at(field_of_lines(dipole), 0, 0, 0);
  EXPECT_NEAR(vector.X, 30'000 * factor, 1e-6);
  EXPECT_NEAR(vector.Y, -5'000 * factor, 1e-6);
  EXPECT_NEAR(vector.Z, 0, 1e-6);
}

TEST(Geomagnetic_field, TakesTheAltitudeInMetres) {
  const double factor = std::pow(6371.2 / (6378.137 + 1.5), 3);
  EXPECT_NEAR(field_at(field_of_lines(dipole), 0, 0, 1500).X, 30'000 * factor, 1e-6);
}

TEST(Geomagnetic_field, ADipoleStandsUprightAtThePoles) {
  // The polar radius is a (1 - 1/298.25722); the vertical component is twice the dipole, down at the north pole.
  const double polar = 6378.137 * (1 - 1 / 298.25722);
  const double factor = std::pow(6371.2 / polar, 3);
  EXPECT_NEAR(field_at(field_of_lines(dipole), 90, 0, 0).Z, 60'000 * factor, 1e-6);
  EXPECT_NEAR(field_at(field_of_lines(dipole), -90, 0, 0).Z, -60'000 * factor, 1e-6);
  // The horizontal component of h(1,1) at the pole: -h to the east on the meridian of longitude 0.
  EXPECT_NEAR(field_at(field_of_lines(dipole), 90, 0, 0).Y, -5'000 * factor, 1e-6);
}

TEST(Geomagnetic_field, BringsAnotherEpochTo2005) {
  auto lines = dipole;
  lines[0] = "DIPOLE 2000.00 1 1 0";
  EXPECT_EQ(field_of_lines(lines).h[1][1], 5'500);
  EXPECT_EQ(field_of_lines(lines).epoch, 2000);
  lines[0] = "DIPOLE 2010.00 1 1 0";
  EXPECT_EQ(field_of_lines(lines).h[1][1], 4'500);
}

TEST(Geomagnetic_field, RowsBeyondTheDegreeOfTheVariationDontChange) {
  auto lines = dipole;
  lines[0] = "DIPOLE 2000.00 1 0 0";
  EXPECT_EQ(field_of_lines(lines).h[1][1], 5'000);
}

TEST(Geomagnetic_field, TrailingZeroCoefficientsDontCount) {
  auto lines = dipole;
  lines[0] = "DIPOLE 2005.00 4 4 0";
  lines.insert(lines.end(), {"2 0 0 0 0 0", "3 1 0 7 0 0", "4 4 0 0 5 5"});
  EXPECT_EQ(field_of_lines(lines).order, 3);
}

TEST(Geomagnetic_field, StopsAtTheHeaderOfTheNextModel) {
  auto lines = dipole;
  lines.insert(lines.end(), {"NEXT 2010.00 1 1 0", "1 0 -1 0 0 0"});
  EXPECT_EQ(field_of_lines(lines).g[1][0], -30'000);
}

TEST(Geomagnetic_field, ReadsNoMoreThanFourHundredRows) {
  std::vector<std::string> lines{"LONG 2005.00 2 0 0"};
  for (int row = 0; row < 400; ++row) lines.push_back("1 0 " + std::to_string(-row) + " 0 0 0");
  lines.push_back("1 0 -30000 0 0 0");
  EXPECT_EQ(field_of_lines(lines).g[1][0], -399);
}

TEST(Geomagnetic_field, LeavesOddRowsOut) {
  for (const char* row : {"21 0 9 9 9 9", "2 3 9 9 9 9", "2 -1 9 9 9 9", "1.5 1 9 9 9 9", "2", "2 x 9 9"}) {
    auto lines = dipole;
    lines[0] = "DIPOLE 2005.00 20 20 0";
    lines.insert(lines.begin() + 1, row);
    lines.insert(lines.begin() + 1, "");
    const Geomagnetic_field field = field_of_lines(lines);
    EXPECT_EQ(field.order, std::string(row) == "2 x 9 9" ? 2 : 1) << row;  // no number is order 0
    EXPECT_EQ(field.g[1][0], -30'000) << row;
  }
}

TEST(Geomagnetic_field, TakesTabsAndRunsOfBlanks) {
  const std::vector<std::string> lines{"\tDIPOLE   2005.00\t1  1 0", "1\t0\t-30000\t0\t0\t0"};
  EXPECT_EQ(field_of_lines(lines).g[1][0], -30'000);
}

TEST(Geomagnetic_field, ATextWithoutAModelIsNoField) {
  using Lines = std::vector<std::string>;
  EXPECT_EQ(field_of_lines({}).order, 0);
  EXPECT_EQ(field_of_lines(Lines{""}).order, 0);
  EXPECT_EQ(field_of_lines(Lines{"IGRF2005 2005.00 13 8 0"}).order, 0);
  EXPECT_EQ(field_of_lines(Lines{"IGRF2005", "1 0 -30000 0 0 0"}).order, 0);
  EXPECT_EQ(field_of_lines(Lines{"1 0 -30000 0 0 0", "1 1 5 5 5 5"}).order, 0);
}

}  // namespace
