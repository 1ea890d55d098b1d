#include "observations/clinometer_notation.h"

#include <gtest/gtest.h>

#include <cmath>

#include "table_rows.h"

namespace {

namespace clinometer = observations::clinometer;
using observations_test::golden_rows;
using observations_test::number;
using observations_test::Row;

struct Plane {
  double a, d;
};

void PrintTo(const Plane& plane, std::ostream* out) {
  *out << plane.a << " / " << plane.d;
}

bool operator==(const Plane& x, const Plane& y) {
  return std::abs(x.a - y.a) < 1e-9 && std::abs(x.d - y.d) < 1e-9;
}

Plane plane(std::string_view strike, std::string_view dip) {
  double a = 777, d = 777;
  clinometer::角度変換(strike, dip, a, d);
  return {a, d};
}

Plane lineation(std::string_view strike, std::string_view dip) {
  double a = 777, d = 777;
  clinometer::線角度変換(strike, dip, a, d);
  return {a, d};
}

std::string shown(std::string_view strike, std::string_view dip, double decl) {
  std::string out_strike = "left", out_dip = "over";
  clinometer::偏角表示変換(strike, dip, decl, out_strike, out_dip);
  return out_strike + " " + out_dip;
}

std::string shown_lineation(std::string_view strike, std::string_view dip, double decl) {
  std::string out_strike = "left", out_dip = "over";
  clinometer::線偏角表示変換(strike, dip, decl, out_strike, out_dip);
  return out_strike + " " + out_dip;
}

TEST(Clinometer_notation, ReadsEveryTextOfTheTable) {
  const auto rows = golden_rows("notation_parse.csv");
  ASSERT_GT(rows.size(), 12'000u);
  for (const Row& row : rows) {
    const Plane want{number(row, "clinometer_a"), number(row, "clinometer_d")};
    EXPECT_EQ(plane(row.at("strike"), row.at("dip")), want) << row.at("strike") << " " << row.at("dip");
    EXPECT_EQ(lineation(row.at("strike"), row.at("dip")), want) << row.at("strike") << " " << row.at("dip");
  }
}

TEST(Clinometer_notation, GivesEveryDisplayOfTheTable) {
  const auto rows = golden_rows("notation_display.csv");
  ASSERT_GT(rows.size(), 7'000u);
  for (const Row& row : rows) {
    const std::string want = row.at("clinometer") + " " + row.at("clinometer_dip");
    const double decl = number(row, "declination");
    const std::string which = row.at("strike") + " " + row.at("dip") + " " + row.at("declination");
    EXPECT_EQ(shown(row.at("strike"), row.at("dip"), decl), want) << which;
    EXPECT_EQ(shown_lineation(row.at("strike"), row.at("dip"), decl), want) << which;
  }
}

TEST(Clinometer_notation, GivesEveryBandOfTheTable) {
  const auto rows = golden_rows("notation_bands.csv");
  ASSERT_GT(rows.size(), 700u);
  for (const Row& row : rows) {
    const clinometer::Pieces want{row.at("first"), row.at("number"), row.at("second"), row.at("dip_number"),
                                  row.at("side")};
    const double a = number(row, "azimuth"), d = number(row, "dip");
    EXPECT_EQ(clinometer::走向変換(a, d), want) << a;
    EXPECT_EQ(clinometer::線走向変換(a, d), want) << a;
  }
}

TEST(Clinometer_notation, KeepsTheDirectionOfAStrike) {
  EXPECT_EQ(plane("S20W", ""), (Plane{200, 0}));
  EXPECT_EQ(plane("S20E", ""), (Plane{160, 0}));
  EXPECT_EQ(plane("N20W", ""), (Plane{340, 0}));
  EXPECT_EQ(plane("S20", ""), (Plane{200, 0}));
}

TEST(Clinometer_notation, ReadsTheQuadrantLines) {
  EXPECT_EQ(plane("NS", ""), (Plane{0, 0}));
  EXPECT_EQ(plane("SN", ""), (Plane{360, 0}));  // 180 and 180
  EXPECT_EQ(plane("EW", ""), (Plane{90, 0}));
  EXPECT_EQ(plane("E0W", ""), (Plane{90, 0}));
  EXPECT_EQ(plane("WE", ""), (Plane{270, 0}));
  EXPECT_EQ(plane("W0E", ""), (Plane{270, 0}));
}

TEST(Clinometer_notation, ALetterAloneIsZero) {
  for (const char* letter : {"N", "S", "E", "W"}) EXPECT_EQ(plane(letter, ""), (Plane{0, 0})) << letter;
}

TEST(Clinometer_notation, ADipOnTheLeftTurnsTheAzimuth) {
  EXPECT_EQ(plane("EW", "30N"), (Plane{270, 30}));
  EXPECT_EQ(plane("WE", "30S"), (Plane{90, 30}));
  EXPECT_EQ(plane("NS", "30W"), (Plane{180, 30}));
  EXPECT_EQ(plane("180", "30E"), (Plane{360, 30}));
  EXPECT_EQ(plane("SN", "30W"), (Plane{360, 30}));  // no rule takes 360
}

TEST(Clinometer_notation, ATurnedAzimuthIsLoweredButNotLifted) {
  EXPECT_EQ(plane("350", "-30"), (Plane{170, 30}));
  EXPECT_EQ(plane("-200", "-30"), (Plane{-20, 30}));
}

TEST(Clinometer_notation, ABareDipThatEndsInNineIsRead) {
  EXPECT_EQ(plane("N15E", "29"), (Plane{15, 29}));
  EXPECT_EQ(plane("N15E", "-29"), (Plane{195, 29}));
}

TEST(Clinometer_notation, ALetterThatTellsNoSideLeavesTheNumber) {
  EXPECT_EQ(plane("N15E", "30X"), (Plane{15, 30}));
}

TEST(Clinometer_notation, ARecordWithoutAPlaneShowsNothing) {
  EXPECT_EQ(shown("-0-", "-0-", 7), " ");
  EXPECT_EQ(shown_lineation("-0-", "0", 7), " ");
}

TEST(Clinometer_notation, ANumberStaysANumber) {
  EXPECT_EQ(shown("127", "30", -7.25), "119.75 30");
  EXPECT_EQ(shown("359", "30", 7), "6 30");
  EXPECT_EQ(shown("90", "30", 0), "90 30");  // the texts of the quadrant lines are for the letters only
}

TEST(Clinometer_notation, DueSouthReadsEastWest) {
  EXPECT_EQ(shown("S0W", "30W", 0), "EW 30N");
  EXPECT_EQ(shown("N90E", "30S", 0), "EW 30S");
  EXPECT_EQ(shown("NS", "30E", 0), "NS 30E");
  EXPECT_EQ(shown("WE", "30N", 0), "N90W 30N");  // due west has no text of its own
}

TEST(Clinometer_notation, TheDeclinationIsNotRounded) {
  EXPECT_EQ(shown("N15E", "30E", 7.04), "N22.04E 30E");
  EXPECT_EQ(shown("N15.2E", "30E", -9.4), "N5.8E 30N");
}

TEST(Clinometer_notation, TakingADeclinationAwayAndAddingItAgainGivesTheStrikeBack) {
  for (int angle = 1; angle < 90; ++angle) {
    const std::string strike = "N" + std::to_string(angle) + "E";
    std::string without, dip, again, again_dip;
    clinometer::偏角表示変換(strike, "40E", -0.5, without, dip);
    clinometer::偏角表示変換(without, dip, 0.5, again, again_dip);
    const Plane before = plane(strike, "40E"), after = plane(again, again_dip);
    EXPECT_NEAR(std::fmod(before.a, 180), std::fmod(after.a, 180), 1e-9) << strike << " " << again;
    EXPECT_EQ(before.d, after.d) << strike;
  }
}

}  // namespace
