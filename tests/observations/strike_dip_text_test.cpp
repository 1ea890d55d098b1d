#include "observations/strike_dip_text.h"

#include <gtest/gtest.h>

#include "observations/angle_text.h"
#include "platform/failures.h"
#include "table_rows.h"

namespace {

using namespace observations;
using observations_test::golden_rows;
using observations_test::number;
using observations_test::Row;

// Both texts with a blank between them.
using Display = void (*)(std::string_view, std::string_view, double, std::string&, std::string&);

std::string shown(Display display, std::string_view strike, std::string_view dip, double decl) {
  std::string out_strike = "left", out_dip = "over";
  display(strike, dip, decl, out_strike, out_dip);
  return out_strike + " " + out_dip;
}

std::string section(double first_y, double second_y, double a, double d) {
  std::string strike = "as", dip = "before";
  走向変換(first_y, second_y, a, d, strike, dip);
  return strike + " " + dip;
}

TEST(Strike_dip_text, GivesEveryDisplayOfTheTable) {
  const auto rows = golden_rows("notation_display.csv");
  ASSERT_GT(rows.size(), 7'000u);
  for (const Row& row : rows) {
    const auto text = [&](Display display) {
      return shown(display, row.at("strike"), row.at("dip"), number(row, "declination"));
    };
    const std::string which = row.at("strike") + " " + row.at("dip") + " " + row.at("declination");
    EXPECT_EQ(text(偏角表示変換), row.at("main") + " " + row.at("main_dip")) << which;
    EXPECT_EQ(text(偏角表示変換Rockview), row.at("rockview") + " " + row.at("rockview_dip")) << which;
  }
}

TEST(Strike_dip_text, GivesEverySectionTextOfTheTable) {
  const auto rows = golden_rows("notation_section.csv");
  ASSERT_GT(rows.size(), 2'900u);
  for (const Row& row : rows) {
    const double a = number(row, "azimuth"), d = number(row, "dip");
    EXPECT_EQ(section(2, 1, a, d), row.at("north_strike") + " " + row.at("north_dip")) << a << " " << d;
    EXPECT_EQ(section(1, 2, a, d), row.at("south_strike") + " " + row.at("south_dip")) << a << " " << d;
  }
}

TEST(Strike_dip_text, TheDisplayRoundsTheDeclinationToOneDecimal) {
  EXPECT_EQ(shown(偏角表示変換, "N15W", "30E", 7.04), "N8W 30E");
  EXPECT_EQ(shown(偏角表示変換, "NS", "30E", 7.25), "N7.2E 30E");  // half to even on 72.5
  EXPECT_EQ(shown(偏角表示変換, "NS", "30E", 7.75), "N7.8E 30E");
}

TEST(Strike_dip_text, TheDisplayMirrorsStrikesInTheSouthernHalf) {
  EXPECT_EQ(shown(偏角表示変換, "100", "30E", 0), "S80W 30S");
  EXPECT_EQ(shown(偏角表示変換, "200", "30E", 0), "S20E 30W");
}

TEST(Strike_dip_text, SumsAreTakenThroughTheirTexts) {
  EXPECT_EQ(shown(偏角表示変換, "15.2", "30E", -9.4), "N5.8E 30E");  // 5.799999999999999 in double
  EXPECT_EQ(shown(偏角表示変換, "44.9", "30E", 0.1), "N45E 30E");
  EXPECT_EQ(shown(偏角表示変換Rockview, "9.4", "30E", -9.4), "NS 30E");
}

TEST(Strike_dip_text, ADipOnTheLeftIsShownFromTheOtherEnd) {
  EXPECT_EQ(shown(偏角表示変換, "N30E", "40W", 0), "S30E 40W");  // 210
  EXPECT_EQ(shown(偏角表示変換Rockview, "N30E", "40W", 0), "N30E 40W");
}

TEST(Strike_dip_text, NoRowTakesAnAzimuthAbove360) {
  EXPECT_EQ(shown(偏角表示変換, "360", "30E", 0), "N0W 30E");
  EXPECT_EQ(shown(偏角表示変換, "360", "30E", 0.1), " ");
  EXPECT_EQ(shown(偏角表示変換Rockview, "400", "30E", 0), " ");
}

TEST(Strike_dip_text, AnAzimuthFarBelowZeroIsLiftedOnce) {
  EXPECT_EQ(shown(偏角表示変換, "-700", "30E", 0), " ");
}

TEST(Strike_dip_text, TheExportKeepsTheFourPointsOfTheCompass) {
  EXPECT_EQ(shown(偏角表示変換Rockview, "90", "30E", 0), "N90E 30S");
  EXPECT_EQ(shown(偏角表示変換Rockview, "180", "30E", 0), "NS 30W");
  EXPECT_EQ(shown(偏角表示変換Rockview, "270", "30E", 0), "N90W 30N");
}

TEST(Strike_dip_text, ADeclinationBeyondArithmeticFailsAndLeavesTheTexts) {
  std::string strike = "N15E", dip = "30E";
  EXPECT_THROW(偏角表示変換("N15E", "30E", 1e308, strike, dip), platform::Division_failure);
  EXPECT_EQ(strike + dip, "N15E30E");
}

TEST(Strike_dip_text, AtNinetyTheLowerRowOfASectionStands) {
  EXPECT_EQ(section(2, 1, 90, 30), "N90.0W 30.0E");
  EXPECT_EQ(section(2, 1, -90, 30), "N90.0E 30.0E");
}

TEST(Strike_dip_text, ATurnedOverPlaneOnASectionTakesTheOtherSide) {
  EXPECT_EQ(section(2, 1, 15, 120), "N15.0E 60E");
  EXPECT_EQ(section(1, 2, 15, 120), "N15.0W 60E");
}

TEST(Strike_dip_text, ASectionAlongAnEastWestLineWritesNothing) {
  EXPECT_EQ(section(1, 1, 15, 30), "as before");
  EXPECT_EQ(section(2, 1, 181, 30), "as before");
}

TEST(Angle_text, HasNoMoreThanFifteenDigits) {
  EXPECT_EQ(angle_text(5.799999999999999), "5.8");
  EXPECT_EQ(angle_text(-9.4), "-9.4");
  EXPECT_EQ(angle_text(352), "352");
  EXPECT_EQ(angle_text(0.1 + 0.2), "0.3");
  EXPECT_EQ(angle_text(-0.0), "0");
  EXPECT_EQ(angle_text(360 - 352.8), "7.2");  // 7.199999999999989 in double
  EXPECT_EQ(angle_text(9.5 - 9.4), "0.1");
  EXPECT_EQ(angle_text(1e-13), "0");
  EXPECT_EQ(angle_through_text(-9.4 + 15.2), 5.8);
}

TEST(Angle_text, RoundsToOneDecimalHalfToEven) {
  EXPECT_EQ(one_decimal(7.04), 7);
  EXPECT_EQ(one_decimal(7.25), 7.2);
  EXPECT_EQ(one_decimal(7.75), 7.8);
  EXPECT_EQ(one_decimal(-7.25), -7.2);
  EXPECT_EQ(one_decimal(-0.04), 0);
}

}  // namespace
