#include "geodesy/datum.h"

#include <gtest/gtest.h>

#include <limits>
#include <random>

#include "geodesy/geocentric.h"
#include "geodesy/packed_angle.h"
#include "geodesy/sample_rows.h"
#include "geodesy/walk.h"
#include "platform/failures.h"
#include "platform/files.h"
#include "support/places.h"

namespace {

using namespace geodesy;

// The four corners of the cell whose south-west corner is latitude 36, longitude 140.
Shift_table four_corners() {
  Shift_table table;
  read_par("h\nh\n54400000 10 -12\n54400001 12 -12\n54400010 14 -12\n54400011 20 -12\n", table);
  return table;
}

TEST(LatLon2MeshCode, TellsEveryPartOfTheCell) {
  // 36.1 and 140.0875: m1 m2 54 40, 0.15 of 40 minutes is step 1 of 8, 0.0875 of a degree is 0.7 of a step;
  // then 0.2 of a second-level cell northward, 0.7 eastward.
  const Mesh_record mesh = LatLon2MeshCode(36.1, 140.0875);
  EXPECT_EQ(mesh.first, 5440);
  EXPECT_EQ(mesh.second, 10);
  EXPECT_EQ(mesh.third, 27);
  EXPECT_EQ(mesh.code, 54401027);
  EXPECT_EQ(mesh.text, "5440-10-27");
  EXPECT_NEAR(mesh.y, 0, 1e-9);
  EXPECT_NEAR(mesh.x, 0, 1e-9);
}

TEST(LatLon2MeshCode, FractionsRunFromTheSouthWestCorner) {
  const Mesh_record mesh = LatLon2MeshCode(36 + 7.5 / 3600, 140 + 33.75 / 3600);
  EXPECT_EQ(mesh.code, 54400000);
  EXPECT_NEAR(mesh.y, 0.25, 1e-9);
  EXPECT_NEAR(mesh.x, 0.75, 1e-9);
}

TEST(LatLon2MeshCode, TextPadsEveryLevel) {
  EXPECT_EQ(LatLon2MeshCode(6, 105).text, "0905-00-00");
  EXPECT_EQ(LatLon2MeshCode(6, 105).code, 9050000);
}

TEST(LatLon2MeshCode, AHairLiftsAPositionOntoTheBorder) {
  const Mesh_record third = LatLon2MeshCode(36.1 - 1e-15, 140.0875 - 1e-14);
  EXPECT_EQ(third.code, 54401027);
  const Mesh_record second = LatLon2MeshCode(36.25 - 1e-14, 140.25 - 2.9e-14);
  EXPECT_EQ(second.code, 54403200);
  const Mesh_record first = LatLon2MeshCode(36 - 8e-15, 140 - 2.9e-14);
  EXPECT_EQ(first.code, 54400000);
}

TEST(LatLon2MeshCode, AgreesWithThePublishedCodes) {
  TAKE_SAMPLE_ROWS(rows, "mesh_sample.csv");
  for (const auto& row : rows) {
    const Mesh_record mesh = LatLon2MeshCode(std::stod(row.at("lat")), std::stod(row.at("lon")));
    EXPECT_EQ(mesh.code, std::stoi(row.at("mesh3"))) << row.at("lat") << " " << row.at("lon");
  }
}

std::string failure_of(double latitude, double longitude) {
  try {
    LatLon2MeshCode(latitude, longitude);
  } catch (const platform::Type_failure& failure) {
    return failure.what();
  }
  return "no failure";
}

TEST(LatLon2MeshCode, ADigitOutOfRangeIsAFailureThatNamesItself) {
  // A hair below nought: the step in the cell below rounds up to 8 of 8.
  EXPECT_EQ(failure_of(-1e-17, 140), "LatLon2MeshCode: 緯度の2次メッシュコードが0-7の範囲にありません。 8");
  EXPECT_EQ(failure_of(36, -1e-17), "LatLon2MeshCode: 経度の2次メッシュコードが0-7の範囲にありません。 8");
  EXPECT_EQ(failure_of(-1e-17, -1e-17), "LatLon2MeshCode: 緯度の2次メッシュコードが0-7の範囲にありません。 8");
}

std::string failure_of_digits(double m3, double m4, double m5, double m6) {
  try {
    check_mesh_digits(m3, m4, m5, m6);
  } catch (const platform::Type_failure& failure) {
    return failure.what();
  }
  return "no failure";
}

TEST(LatLon2MeshCode, EachDigitHasItsRangeAndItsSentence) {
  EXPECT_EQ(failure_of_digits(0, 7, 0, 9), "no failure");
  EXPECT_EQ(failure_of_digits(-1, 0, 0, 0), "LatLon2MeshCode: 緯度の2次メッシュコードが0-7の範囲にありません。 -1");
  EXPECT_EQ(failure_of_digits(0, 8, 0, 0), "LatLon2MeshCode: 経度の2次メッシュコードが0-7の範囲にありません。 8");
  EXPECT_EQ(failure_of_digits(0, 0, 10, 0), "LatLon2MeshCode: 緯度の3次メッシュコードが0-9の範囲にありません。 10");
  EXPECT_EQ(failure_of_digits(0, 0, 0, -1), "LatLon2MeshCode: 経度の3次メッシュコードが0-9の範囲にありません。 -1");
  EXPECT_EQ(failure_of_digits(0, 0, 0, 10), "LatLon2MeshCode: 経度の3次メッシュコードが0-9の範囲にありません。 10");
}

TEST(LatLon2MeshCode, TheFirstDigitOutOfRangeIsTheOneThatIsNamed) {
  EXPECT_EQ(failure_of_digits(8, 9, 10, 11), "LatLon2MeshCode: 緯度の2次メッシュコードが0-7の範囲にありません。 8");
  EXPECT_EQ(failure_of_digits(7, 9, 10, 11), "LatLon2MeshCode: 経度の2次メッシュコードが0-7の範囲にありません。 9");
  EXPECT_EQ(failure_of_digits(7, 7, 10, 11), "LatLon2MeshCode: 緯度の3次メッシュコードが0-9の範囲にありません。 10");
}

TEST(LatLon2MeshCode, OverflowIsAFailure) {
  EXPECT_THROW(LatLon2MeshCode(std::numeric_limits<double>::infinity(), 140), platform::Division_failure);
  EXPECT_THROW(LatLon2MeshCode(36, std::numeric_limits<double>::quiet_NaN()), platform::Division_failure);
  EXPECT_THROW(LatLon2MeshCode(1e9, 140), platform::Division_failure);
}

struct Next {
  int first, second, third, east, north, north_east;
};

TEST(Next_meshes, RollOverAt9AndAt7) {
  for (const Next& row : {Next{5440, 0, 0, 54400001, 54400010, 54400011},
                          Next{5440, 0, 9, 54400100, 54400019, 54400110},     // 9 at the third level, eastward
                          Next{5440, 0, 90, 54400091, 54401000, 54401001},    // northward
                          Next{5440, 7, 9, 54410000, 54400719, 54410010},     // 7 at the second level, eastward
                          Next{5440, 70, 90, 54407091, 55400000, 55400001},   // northward
                          Next{5440, 77, 99, 54417090, 55400709, 55410000},   // all at once
                          Next{5499, 7, 9, 55000000, 54990719, 55000010}}) {  // nothing limits the first level
    Mesh_record mesh;
    mesh.first = row.first;
    mesh.second = row.second;
    mesh.third = row.third;
    mesh.code = row.first * 10000 + row.second * 100 + row.third;
    const Neighbours next = next_meshes(mesh);
    EXPECT_EQ(next.east, row.east) << mesh.code;
    EXPECT_EQ(next.north, row.north) << mesh.code;
    EXPECT_EQ(next.north_east, row.north_east) << mesh.code;
  }
}

TEST(Bilinear, TakesTheCornersAndWhatLiesBetween) {
  EXPECT_EQ(bilinear(10, 12, 14, 20, 0, 0), 10);
  EXPECT_EQ(bilinear(10, 12, 14, 20, 1, 0), 12);
  EXPECT_EQ(bilinear(10, 12, 14, 20, 0, 1), 14);
  EXPECT_EQ(bilinear(10, 12, 14, 20, 1, 1), 20);
  EXPECT_EQ(bilinear(10, 12, 14, 20, 0.5, 0.5), 14);
  EXPECT_EQ(bilinear(10, 12, 14, 20, 0.25, 0.5), 13);  // 10 + 0.5 + 2 + 4 / 8
}

TEST(Mesh_shift, InterpolatesBetweenTheFourCorners) {
  const Shift shift = mesh_shift(four_corners(), 36 + 15 / 3600.0, 140 + 22.5 / 3600);
  EXPECT_NEAR(shift.dB, 14, 1e-9);
  EXPECT_NEAR(shift.dL, -12, 1e-9);
}

TEST(Mesh_shift, OneAbsentCornerIsNoShiftAtAll) {
  for (int absent = 1; absent <= 4; ++absent) {
    Shift_table table = four_corners();
    table.mesh[absent] = 54400099;
    index_rows(table);
    const Shift shift = mesh_shift(table, 36.001, 140.001);
    EXPECT_EQ(shift.dB, -9999.0) << absent;
    EXPECT_EQ(shift.dL, -9999.0) << absent;
  }
}

TEST(Mesh_shift, TakesItsOwnLimitsAsInside) {
  Shift_table table;
  // Cells 69540000 and 30200000 with their neighbours: the corners 46, 154 and 20, 120.
  read_par(
      "h\nh\n69540000 1 2\n69540001 1 2\n69540010 1 2\n69540011 1 2\n"
      "30200000 3 4\n30200001 3 4\n30200010 3 4\n30200011 3 4\n",
      table);
  EXPECT_EQ(mesh_shift(table, 46, 154).dB, 1);
  EXPECT_EQ(mesh_shift(table, 20, 120).dL, 4);
  for (const auto& [latitude, longitude] : {Position{46.0000001, 154},
                                            {46, 154.0000001},
                                            {19.9999999, 120},
                                            {20, 119.9999999},
                                            {std::numeric_limits<double>::quiet_NaN(), 140}})
    EXPECT_EQ(mesh_shift(table, latitude, longitude).dB, -9999.0) << latitude << " " << longitude;
}

TEST(Mesh_shift, RepeatedCodesAreTakenAsTheWalkMeetsThem) {
  Shift_table table;
  // SW is row 2 (the first). SE from there on is row 4, not row 1; NW from row 4 on is row 5; NE wraps to row 3.
  read_par("h\nh\n54400001 1 0\n54400000 2 0\n54400011 3 0\n54400001 4 0\n54400010 5 0\n54400000 6 0\n", table);
  EXPECT_EQ(mesh_shift(table, 36, 140).dB, 2);
  EXPECT_NEAR(mesh_shift(table, 36 + 15 / 3600.0, 140 + 22.5 / 3600).dB, (2 + 4 + 5 + 3) / 4.0, 1e-9);
}

// mesh_shift with the plain walk in the place of the index.
Shift walked_shift(const Shift_table& table, double latitude, double longitude) {
  const Mesh_record mesh = LatLon2MeshCode(latitude, longitude);
  const Neighbours next = next_meshes(mesh);
  int row[5] = {1};
  const int codes[] = {mesh.code, next.east, next.north, next.north_east};
  for (int corner = 0; corner < 4; ++corner) {
    row[corner + 1] = geodesy_test::walk(table, codes[corner], row[corner]);
    if (row[corner + 1] == 0) return {};
  }
  return {bilinear(table.dB[row[1]], table.dB[row[2]], table.dB[row[3]], table.dB[row[4]], mesh.x, mesh.y),
          bilinear(table.dL[row[1]], table.dL[row[2]], table.dL[row[3]], table.dL[row[4]], mesh.x, mesh.y)};
}

TEST(Mesh_shift, IsThatOfAWalkThroughUnsortedTablesWithRepeatedCodes) {
  std::mt19937 random(11);
  std::uniform_real_distribution<double> within(0, 1);
  int found = 0;
  for (int round = 0; round < 100; ++round) {
    Shift_table table;
    table.count = static_cast<int>(random() % 300);
    for (int row = 1; row <= table.count; ++row) {
      // Around the corner of four first-level cells, so that every digit rolls over.
      const Mesh_record mesh = LatLon2MeshCode(36 + (static_cast<int>(random() % 6) - 3) / 120.0 + 1e-9,
                                               140 + (static_cast<int>(random() % 6) - 3) / 80.0 + 1e-9);
      table.mesh[row] = mesh.code;
      table.dB[row] = static_cast<float>(within(random));
      table.dL[row] = static_cast<float>(within(random));
    }
    index_rows(table);
    for (int i = 0; i < 200; ++i) {
      const double latitude = 36 + (within(random) * 6 - 3) / 120;
      const double longitude = 140 + (within(random) * 6 - 3) / 80;
      const Shift shift = mesh_shift(table, latitude, longitude);
      const Shift walked = walked_shift(table, latitude, longitude);
      ASSERT_EQ(shift.dB, walked.dB) << round << " " << latitude << " " << longitude;
      ASSERT_EQ(shift.dL, walked.dL) << round << " " << latitude << " " << longitude;
      if (shift.dB != no_shift) ++found;
    }
  }
  EXPECT_GT(found, 2000);  // the tables hold enough for the comparison to mean something
}

TEST(Tky2jgd, AddsTheShiftInSeconds) {
  double longitude = 0, latitude = 0;
  ASSERT_TRUE(tky2jgd(four_corners(), 1400022.5, 360015, longitude, latitude));
  EXPECT_NEAR(latitude, 36 + (15 + 14) / 3600.0, 1e-11);
  EXPECT_NEAR(longitude, 140 + (22.5 - 12) / 3600.0, 1e-11);
}

TEST(Tky2jgd, AnEmptyTableConvertsByThreeParameters) {
  const Shift_table table;
  double longitude = 0, latitude = 0;
  // 35 39 29.15719992 and 139 44 28.88580012; the result is PROJ's.
  ASSERT_TRUE(tky2jgd(table, 1394428.88580012, 353929.15719992, longitude, latitude));
  EXPECT_NEAR(latitude, 35.661340011336, 2e-9);
  EXPECT_NEAR(longitude, 139.738126308289, 2e-9);
}

TEST(Tky2jgd, BetweenItsLimitsAndTheTablesConvertsByThreeParameters) {
  Shift_table table = four_corners();
  for (const auto& [packed_latitude, packed_longitude, degrees] :
       {std::tuple{463000.0, 1400000.0, Position{46.5, 140}}, std::tuple{360000.0, 1543000.0, Position{36, 154.5}}}) {
    double longitude = 0, latitude = 0;
    ASSERT_TRUE(tky2jgd(table, packed_longitude, packed_latitude, longitude, latitude));
    const Position shifted = shift_3parameters(degrees.latitude, degrees.longitude);
    EXPECT_NEAR(latitude, shifted.latitude, 1e-10);
    EXPECT_NEAR(longitude, shifted.longitude, 1e-10);
    EXPECT_GT(std::abs(latitude - degrees.latitude), 0.001);
  }
}

TEST(Tky2jgd, ACornerAbsentConvertsByThreeParameters) {
  Shift_table table = four_corners();
  table.count = 3;
  index_rows(table);
  double longitude = 0, latitude = 0;
  ASSERT_TRUE(tky2jgd(table, 1400022.5, 360015, longitude, latitude));
  const Position shifted = shift_3parameters(36 + 15 / 3600.0, 140 + 22.5 / 3600);
  EXPECT_NEAR(latitude, shifted.latitude, 1e-10);
  EXPECT_NEAR(longitude, shifted.longitude, 1e-10);
}

TEST(Tky2jgd, RefusesWhatLiesOutsideAndLeavesTheOutputs) {
  const Shift_table table;
  constexpr double infinity = std::numeric_limits<double>::infinity();
  constexpr double no_number = std::numeric_limits<double>::quiet_NaN();
  for (const auto& [packed_latitude, packed_longitude] :
       {std::pair{470000.0, 1400000.0}, std::pair{195959.9, 1400000.0}, std::pair{-360000.0, 1400000.0},
        std::pair{0.0, 1400000.0}, std::pair{360000.0, 1550000.0}, std::pair{360000.0, 1195959.9},
        std::pair{360000.0, -1400000.0}, std::pair{360000.0, 0.0}, std::pair{infinity, 1400000.0},
        std::pair{360000.0, no_number}}) {
    double longitude = 1.5, latitude = 2.5;
    EXPECT_FALSE(tky2jgd(table, packed_longitude, packed_latitude, longitude, latitude)) << packed_latitude;
    EXPECT_EQ(longitude, 1.5);
    EXPECT_EQ(latitude, 2.5);
  }
}

TEST(Tky2jgd, LimitsCountInWholeDegrees) {
  const Shift_table table;
  double longitude = 0, latitude = 0;
  EXPECT_TRUE(tky2jgd(table, 1545959.9, 465959.9, longitude, latitude));
  EXPECT_TRUE(tky2jgd(table, 1200000, 200000, longitude, latitude));
}

TEST(Tky2jgd, AgreesWithThePublishedPoints) {
  TAKE_SAMPLE_ROWS(rows, "tky2jgd_sample.csv");
  platform::Disk_files files;
  Shift_table table;
  load_par(files, support::shared_data("TKY2JGD_subset.par"), table);
  ASSERT_EQ(table.count, 1383);
  for (const auto& row : rows) {
    const double packed_latitude = degrees_to_packed(std::stod(row.at("tokyo_lat")));
    const double packed_longitude = degrees_to_packed(std::stod(row.at("tokyo_lon")));
    double longitude = 0, latitude = 0;
    const bool converted = tky2jgd(table, packed_longitude, packed_latitude, longitude, latitude);
    ASSERT_EQ(converted, row.at("method") != "refused") << row.at("tokyo_lat");
    if (!converted) continue;
    const double tolerance = std::stod(row.at("tol_deg"));
    EXPECT_NEAR(latitude, std::stod(row.at("jgd2000_lat")), tolerance);
    EXPECT_NEAR(longitude, std::stod(row.at("jgd2000_lon")), tolerance);
  }
}

TEST(SOKUCHIKEI_HENKAN, TurnsACornerIntoSecondCounts) {
  double lat_seconds = 0, lon_seconds = 0;
  ASSERT_TRUE(SOKUCHIKEI_HENKAN(four_corners(), 36, 0, 15, 140, 0, 22.5, lat_seconds, lon_seconds));
  EXPECT_NEAR(lat_seconds, 36 * 3600 + 29, 2e-6);  // the seconds are singles: 29 and 10.5 to 2e-6
  EXPECT_NEAR(lon_seconds, 140 * 3600 + 10.5, 1e-6);
}

TEST(SOKUCHIKEI_HENKAN, SumsInDoublePrecision) {
  // 507,337.x seconds in single precision would come in steps of 1/32.
  double lat_seconds = 0, lon_seconds = 0;
  ASSERT_TRUE(SOKUCHIKEI_HENKAN({}, 35, 39, 29.15719992, 139, 44, 28.88580012, lat_seconds, lon_seconds));
  EXPECT_NEAR(lat_seconds, 35.661340011336 * 3600, 1e-5);
  EXPECT_NEAR(lon_seconds, 139.738126308289 * 3600, 1e-5);
}

TEST(SOKUCHIKEI_HENKAN, OutsideTheLimitsTheOutputsStay) {
  double lat_seconds = 1.5, lon_seconds = 2.5;
  EXPECT_FALSE(SOKUCHIKEI_HENKAN({}, 47, 0, 0, 140, 0, 0, lat_seconds, lon_seconds));
  EXPECT_FALSE(SOKUCHIKEI_HENKAN({}, 36, 0, 0, 155, 0, 0, lat_seconds, lon_seconds));
  EXPECT_FALSE(SOKUCHIKEI_HENKAN({}, -36, 0, 0, 140, 0, 0, lat_seconds, lon_seconds));
  EXPECT_EQ(lat_seconds, 1.5);
  EXPECT_EQ(lon_seconds, 2.5);
}

}  // namespace
