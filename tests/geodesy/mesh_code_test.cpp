#include "geodesy/mesh_code.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <random>

#include "geodesy/sample_rows.h"
#include "platform/failures.h"

namespace {

using namespace geodesy;

constexpr float infinite = std::numeric_limits<float>::infinity();

TEST(Mesh_code, HalfOfACornerOfTheFirstLevelIsAllNoughtsBelowIt) {
  const Half_code half = mesh_code_half(36, 0, 0, 140, 0, 0);
  EXPECT_EQ(half.code, "54400000");
  EXPECT_EQ(half.six_digits, "544000");
  EXPECT_EQ(half.second_level, "00");
}

TEST(Mesh_code, SecondsDoNotLiftTheMinuteOfTheFirstLevel) {
  const Half_code half = mesh_code_half(35, 59, 59.9f, 140, 0, 0);
  EXPECT_EQ(half.code, "53407050");  // 2399.9 seconds above 35 degrees 20 minutes: step 7, then 299.9 of 300
  EXPECT_EQ(half.second_level, "70");
}

// 35 degrees 7 minutes 30 and 137 degrees 3 minutes 45 is the middle of cell 5237-50: 150 and 225 seconds from its
// corner.
TEST(Mesh_code, EveryGrainOfTheMiddleOfACell) {
  EXPECT_EQ(mesh_code_half(35, 7, 30, 137, 3, 45).code, "52375055");
  EXPECT_EQ(mesh_code_2x4(35, 7, 30, 137, 3, 45), "5237500102");
  EXPECT_EQ(mesh_code_6x10(35, 7, 30, 137, 3, 45), "5237500305");
  EXPECT_EQ(mesh_code_12x20(35, 7, 30, 137, 3, 45), "5237500610");
  EXPECT_EQ(mesh_code_24x40(35, 7, 30, 137, 3, 45), "5237501220");
}

TEST(Mesh_code, EveryGrainOfTheNorthEastEndOfACell) {
  EXPECT_EQ(mesh_code_half(35, 9, 59.9f, 137, 7, 29.9f).code, "52375055");
  EXPECT_EQ(mesh_code_2x4(35, 9, 59.9f, 137, 7, 29.9f), "5237500103");
  EXPECT_EQ(mesh_code_6x10(35, 9, 59.9f, 137, 7, 29.9f), "5237500509");
  EXPECT_EQ(mesh_code_12x20(35, 9, 59.9f, 137, 7, 29.9f), "5237501119");
  EXPECT_EQ(mesh_code_24x40(35, 9, 59.9f, 137, 7, 29.9f), "5237502339");
}

TEST(Mesh_code, TakesDegreesWithAFraction) {
  EXPECT_EQ(mesh_code_half(35.125f, 0, 0, 137.0625f, 0, 0).code, "52375055");
}

TEST(Mesh_code, FirstLevelIsNeitherPaddedNorCut) {
  EXPECT_EQ(mesh_code_half(6, 0, 0, 105, 0, 0).code, "950000");
  EXPECT_EQ(mesh_code_half(36, 0, 0, 99, 30, 0).code, "54-10400");
  EXPECT_EQ(mesh_code_half(36, 0, 0, 99.5f, 0, 0).code, "5400-400");  // -0.5 is truncated to 0, so the step is -4
}

TEST(Mesh_code, PaddingKeepsTheLastTwoCharactersOfANegativeStep) {
  EXPECT_EQ(mesh_code_24x40(36, 0, 0, 100, 0, -30), "5400000-2");
}

TEST(Mesh_code, SumsOfSecondsAreNotRoundedToSingle) {
  // In single precision 126299.998 is 126300, which would be the next cell.
  EXPECT_EQ(mesh_code_half(35, 4, 59.998f, 137, 0, 0).code, "52374050");
}

TEST(Mesh_code, AgreesWithWholeNumberArithmeticOverTheCountry) {
  std::mt19937 random(1);
  for (int i = 0; i < 20000; ++i) {
    // Eighths of a second, which singles hold exactly.
    const int lat = static_cast<int>(20 * 28800 + random() % (26 * 28800));
    const int lon = static_cast<int>(120 * 28800 + random() % (34 * 28800));
    const auto as_single = [](int count) { return static_cast<float>(count); };
    const auto d = [&](int t) { return as_single(t / 28800); };
    const auto m = [&](int t) { return as_single(t / 480 % 60); };
    const auto s = [](int t) { return static_cast<float>(t % 480) / 8; };
    const auto two = [](int n) { return std::to_string(n / 10) + std::to_string(n % 10); };
    const int lat_rest = lat % 2400, lon_rest = lon % 3600;  // inside the second-level cell
    const std::string six = std::to_string(lat / 19200) + two(lon / 28800 - 100) + std::to_string(lat / 2400 % 8) +
                            std::to_string(lon / 3600 % 8);
    const Half_code half = mesh_code_half(d(lat), m(lat), s(lat), d(lon), m(lon), s(lon));
    ASSERT_EQ(half.six_digits, six);
    ASSERT_EQ(half.code, six + std::to_string(lat_rest / 1200 * 5) + std::to_string(lon_rest / 1800 * 5));
    ASSERT_EQ(mesh_code_2x4(d(lat), m(lat), s(lat), d(lon), m(lon), s(lon)),
              six + two(lat_rest / 1200) + two(lon_rest / 900));
    ASSERT_EQ(mesh_code_6x10(d(lat), m(lat), s(lat), d(lon), m(lon), s(lon)),
              six + two(lat_rest / 400) + two(lon_rest / 360));
    ASSERT_EQ(mesh_code_12x20(d(lat), m(lat), s(lat), d(lon), m(lon), s(lon)),
              six + two(lat_rest / 200) + two(lon_rest / 180));
    ASSERT_EQ(mesh_code_24x40(d(lat), m(lat), s(lat), d(lon), m(lon), s(lon)),
              six + two(lat_rest / 100) + two(lon_rest / 90));
  }
}

TEST(Mesh_code, AgreesWithThePublishedCodes) {
  TAKE_SAMPLE_ROWS(rows, "mesh_sample.csv");
  for (const auto& row : rows) {
    if (row.at("use") == "guard") continue;
    const auto lat = static_cast<float>(std::stod(row.at("lat")) * 3600);
    const auto lon = static_cast<float>(std::stod(row.at("lon")) * 3600);
    const Dms_pair dms = seconds_to_dms(lat, lon);
    const Half_code half = mesh_code_half(dms.lat_d, dms.lat_m, dms.lat_s, dms.lon_d, dms.lon_m, dms.lon_s);
    EXPECT_EQ(half.six_digits, row.at("mesh2")) << row.at("lat") << " " << row.at("lon");
    EXPECT_EQ(half.code.substr(0, 4), row.at("mesh1"));
  }
}

TEST(Mesh_code, OverflowIsAFailure) {
  EXPECT_THROW(mesh_code_half(infinite, 0, 0, 140, 0, 0), platform::Division_failure);
  EXPECT_THROW(mesh_code_24x40(36, 0, 0, 3e38f, 0, 0), platform::Division_failure);
}

TEST(Mesh_code_origin, OfSixDigits) {
  const Mesh_origin origin = mesh_code_origin("543823");
  EXPECT_DOUBLE_EQ(origin.lat_seconds, 129600 + 600);
  EXPECT_DOUBLE_EQ(origin.lon_seconds, 496800 + 1350);
}

TEST(Mesh_code_origin, OfEightDigitsCountsThirdLevelCells) {
  const Mesh_origin origin = mesh_code_origin("54382355");
  EXPECT_DOUBLE_EQ(origin.lat_seconds, 129600 + 600 + 150);
  EXPECT_DOUBLE_EQ(origin.lon_seconds, 496800 + 1350 + 225);
}

TEST(Mesh_code_origin, IsTheSameWithNoughtsAppended) {
  const Mesh_origin six = mesh_code_origin("523750"), eight = mesh_code_origin("52375000");
  EXPECT_EQ(six.lat_seconds, eight.lat_seconds);
  EXPECT_EQ(six.lon_seconds, eight.lon_seconds);
}

TEST(Mesh_code_origin, AnyOtherLengthCountsAsSixDigits) {
  const Mesh_origin six = mesh_code_origin("543823");
  for (const char* code : {"5438235", "543823555", "5438235512"}) {
    EXPECT_EQ(mesh_code_origin(code).lat_seconds, six.lat_seconds) << code;
    EXPECT_EQ(mesh_code_origin(code).lon_seconds, six.lon_seconds) << code;
  }
}

TEST(Mesh_code_origin, WhatIsNoDigitOrMissingReadsAsNought) {
  EXPECT_EQ(mesh_code_origin("").lat_seconds, 0);
  EXPECT_EQ(mesh_code_origin("").lon_seconds, 360000);
  EXPECT_EQ(mesh_code_origin("54").lat_seconds, 129600);
  EXPECT_EQ(mesh_code_origin("54xx2y").lat_seconds, 129600 + 600);
  EXPECT_EQ(mesh_code_origin("54xx2y").lon_seconds, 360000);
  EXPECT_EQ(mesh_code_origin("54382355").lat_seconds - mesh_code_origin("543823x5").lat_seconds, 150);
}

TEST(Mesh_code_origin, CountsCharactersNotBytes) {
  const Mesh_origin origin = mesh_code_origin("543823地5");  // eight characters
  EXPECT_DOUBLE_EQ(origin.lat_seconds, 129600 + 600);
  EXPECT_DOUBLE_EQ(origin.lon_seconds, 496800 + 1350 + 225);
}

TEST(Mesh_code_origin, AgreesWithThePublishedCorners) {
  TAKE_SAMPLE_ROWS(rows, "mesh_corner_sample.csv");
  for (const auto& row : rows) {
    const Mesh_origin origin = mesh_code_origin(row.at("code"));
    EXPECT_NEAR(origin.lat_seconds, std::stod(row.at("sw_lat_seconds")), 1e-6) << row.at("code");
    EXPECT_NEAR(origin.lon_seconds, std::stod(row.at("sw_lon_seconds")), 1e-6) << row.at("code");
  }
}

struct Split {
  float seconds;
  bool whole;
  float d, m, s;
};

TEST(Seconds_to_dms, SplitsTowardNought) {
  for (const Split& row :
       {Split{7199.5f, true, 1, 59, 59}, Split{7199.5f, false, 1, 59, 59.5f}, Split{0, false, 0, 0, 0},
        Split{60, false, 0, 1, 0}, Split{3600, true, 1, 0, 0}, Split{59.99f, true, 0, 0, 59},
        Split{503999.96875f, false, 139, 59, 59.96875f},  // 140 degrees if divided as singles
        Split{-3661.5f, false, -1, -1, -1.5f}}) {
    const Dms_pair as_lat = seconds_to_dms(row.seconds, 12345, row.whole);
    EXPECT_EQ(as_lat.lat_d, row.d) << row.seconds;
    EXPECT_EQ(as_lat.lat_m, row.m) << row.seconds;
    EXPECT_EQ(as_lat.lat_s, row.s) << row.seconds;
    const Dms_pair as_lon = seconds_to_dms(12345, row.seconds, row.whole);
    EXPECT_EQ(as_lon.lon_d, row.d) << row.seconds;
    EXPECT_EQ(as_lon.lon_m, row.m) << row.seconds;
    EXPECT_EQ(as_lon.lon_s, row.s) << row.seconds;
    EXPECT_EQ(as_lon.lat_d, 3);  // 12345 = 3 degrees 25 minutes 45
    EXPECT_EQ(as_lon.lat_m, 25);
    EXPECT_EQ(as_lon.lat_s, 45);
  }
}

// Sixty carries: beside every whole minute of the globe no split shows 60 seconds or 60 minutes.
TEST(Seconds_to_dms, ShowsNoSixty) {
  for (int minute = 1; minute <= 21600; ++minute) {
    const auto at = static_cast<float>(minute * 60);
    for (const float seconds : {std::nextafter(at, 0.0f), at, std::nextafter(at, 1e9f)})
      for (const bool whole : {false, true}) {
        const Dms_pair dms = seconds_to_dms(seconds, -seconds, whole);
        ASSERT_TRUE(dms.lat_s >= 0 && dms.lat_s < 60 && dms.lat_m >= 0 && dms.lat_m < 60) << seconds;
        ASSERT_TRUE(dms.lon_s <= 0 && dms.lon_s > -60 && dms.lon_m <= 0 && dms.lon_m > -60) << seconds;
        const double sum = static_cast<double>(dms.lat_d) * 3600 + dms.lat_m * 60 + dms.lat_s;
        ASSERT_NEAR(sum, seconds, whole ? 1 : 0) << seconds;
      }
  }
}

TEST(Seconds_to_dms, AnInfinityIsAFailure) {
  EXPECT_THROW(seconds_to_dms(infinite, 0), platform::Division_failure);
  EXPECT_THROW(seconds_to_dms(0, std::numeric_limits<float>::quiet_NaN()), platform::Division_failure);
}

}  // namespace
