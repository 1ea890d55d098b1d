#include "make_sample/place.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <set>

#include "geodesy/mesh_code.h"

namespace {

using sample::Frame;
using sample::Position;
using sample::Sheet;
using sample::Sheet_kind;

struct Offset {
  double east, south;  // seconds
};

// The places of a mosaic that spreads to the east and south, in seconds from the first sheet's middle.
constexpr Offset whole_offsets[] = {{0, 0}, {0, 300}, {450, 0}, {450, 300}};
constexpr Offset quarter_offsets[] = {{0, 0},     {0, 150}, {225, 0},   {225, 150}, {450, 0},
                                      {450, 150}, {0, 300}, {225, 300}, {450, 300}};

Frame frame_of(const std::string& stem) {
  for (const Sheet& sheet : sample::sheets())
    if (sheet.stem == stem) return sheet.frame;
  return {};
}

geodesy::Half_code code_at(double latitude_seconds, double longitude_seconds) {
  const geodesy::Dms_pair dms =
      geodesy::seconds_to_dms(static_cast<float>(latitude_seconds), static_cast<float>(longitude_seconds));
  return geodesy::mesh_code_half(dms.lat_d, dms.lat_m, dms.lat_s, dms.lon_d, dms.lon_m, dms.lon_s);
}

std::set<std::string> stems_of(Sheet_kind kind) {
  std::set<std::string> stems;
  for (const Sheet& sheet : sample::sheets())
    if (sheet.kind == kind) stems.insert(sheet.stem);
  return stems;
}

TEST(Place, HasTheFramesOfItsMeshCodes) {
  // 533856: 53 x 40 minutes and 5 x 5 minutes are 35 degrees 45 minutes; 138 degrees and 6 x 7.5 minutes, 138.75.
  const Frame whole = frame_of("533856");
  EXPECT_EQ(whole.south, 35 * 3600 + 45 * 60);
  EXPECT_EQ(whole.north, 35 * 3600 + 50 * 60);
  EXPECT_EQ(whole.west, 138 * 3600 + 45 * 60);
  EXPECT_EQ(whole.east, 138 * 3600 + 52 * 60 + 30);
  // Its north-western quarter.
  const Frame quarter = frame_of("53385650");
  EXPECT_EQ(quarter.south, 35 * 3600 + 47 * 60 + 30);
  EXPECT_EQ(quarter.north, whole.north);
  EXPECT_EQ(quarter.west, whole.west);
  EXPECT_EQ(quarter.east, 138 * 3600 + 48 * 60 + 45);
}

TEST(Place, HasExactlyTheWholeSheetsThatAMosaicSeeks) {
  const Frame first = frame_of(sample::first_whole_sheet);
  std::set<std::string> sought;
  for (const Offset& offset : whole_offsets)
    sought.insert(code_at((first.south + first.north) / 2 - offset.south, (first.west + first.east) / 2 + offset.east)
                      .six_digits);
  EXPECT_EQ(sought.size(), 4u);
  EXPECT_EQ(sought, stems_of(Sheet_kind::whole));
}

TEST(Place, HasExactlyTheQuarterSheetsThatAMosaicSeeks) {
  const Frame first = frame_of(sample::first_quarter_sheet);
  std::set<std::string> sought;
  for (const Offset& offset : quarter_offsets)
    sought.insert(
        code_at((first.south + first.north) / 2 - offset.south, (first.west + first.east) / 2 + offset.east).code);
  EXPECT_EQ(sought.size(), 9u);
  EXPECT_EQ(sought, stems_of(Sheet_kind::quarter));
}

TEST(Place, LaysEachNeighbourEdgeToEdge) {
  for (const auto& [first, offsets] :
       {std::pair{std::string(sample::first_whole_sheet),
                  std::vector<Offset>(std::begin(whole_offsets), std::end(whole_offsets))},
        std::pair{std::string(sample::first_quarter_sheet),
                  std::vector<Offset>(std::begin(quarter_offsets), std::end(quarter_offsets))}})
    for (const Offset& offset : offsets) {
      const Frame from = frame_of(first);
      const geodesy::Half_code code =
          code_at((from.south + from.north) / 2 - offset.south, (from.west + from.east) / 2 + offset.east);
      const Frame neighbour = frame_of(first.size() == 6 ? code.six_digits : code.code);
      EXPECT_EQ(neighbour.north, from.north - offset.south);
      EXPECT_EQ(neighbour.west, from.west + offset.east);
    }
}

TEST(Place, CoversTheWholeSheetsWithTheSmallScaleOne) {
  const Frame small = frame_of(*stems_of(Sheet_kind::fifty_thousand).begin());
  EXPECT_EQ(small.south, frame_of("533846").south);
  EXPECT_EQ(small.west, frame_of("533846").west);
  EXPECT_EQ(small.north, frame_of("533857").north);
  EXPECT_EQ(small.east, frame_of("533857").east);
}

TEST(Place, TurnsPositionsIntoMetresAndBack) {
  // On Bessel at 35.75 degrees a minute of latitude is 1849.2 m and a minute of longitude 1507.5 m (radii of curvature
  // 6357103 m and 6384686 m).
  const ground::Point at = sample::point_of({35.75 + 1 / 60.0, 138.875 - 1 / 60.0});
  EXPECT_NEAR(at.y, 6357103.0 / 10800 * 3.14159265358979, 0.5);
  EXPECT_NEAR(at.x, -6384686.0 * std::cos(35.75 / 180 * 3.14159265358979) / 10800 * 3.14159265358979, 0.5);
  const Position back = sample::position_of(at);
  EXPECT_NEAR(back.latitude, 35.75 + 1 / 60.0, 1e-12);
  EXPECT_NEAR(back.longitude, 138.875 - 1 / 60.0, 1e-12);
}

TEST(Place, KnowsItsDeclination) {
  // By an independent synthesis of the field model at 2005.0 that agrees with the published samples to 1e-6 degrees.
  struct Row {
    double latitude, longitude, declination;
  };
  constexpr Row rows[] = {
      {35.750000, 138.875, -7.056677}, {35.666667, 138.750, -7.042766}, {35.666667, 139.000, -7.012092},
      {35.833333, 138.750, -7.100943}, {35.833333, 139.000, -7.070339},
  };
  for (const Row& row : rows) EXPECT_NEAR(sample::declination({row.latitude, row.longitude}), row.declination, 0.001);
}

TEST(Place, ShiftsItsDatumByWhatIsUsualThere) {
  // Some 11.6 seconds to the north and to the west, and smooth: within a third-level cell it is nearly even.
  for (double north = -0.2; north <= 0.2; north += 0.02)
    for (double east = -0.25; east <= 0.25; east += 0.025) {
      const Position at{35.75 + north, 138.875 + east};
      const Position shift = sample::datum_shift_seconds(at);
      EXPECT_NEAR(shift.latitude, 11.6, 0.3);
      EXPECT_NEAR(shift.longitude, -11.7, 0.4);
      const Position beside = sample::datum_shift_seconds({at.latitude + 30 / 3600.0, at.longitude + 45 / 3600.0});
      EXPECT_NEAR(shift.latitude, beside.latitude, 0.02);
      EXPECT_NEAR(shift.longitude, beside.longitude, 0.02);
    }
}

}  // namespace
