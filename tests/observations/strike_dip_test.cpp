#include "observations/strike_dip.h"

#include <gtest/gtest.h>

#include <array>
#include <cmath>

#include "platform/failures.h"
#include "table_rows.h"

namespace {

using namespace observations;
using observations_test::golden_rows;
using observations_test::number;
using observations_test::Row;

struct Plane {
  double a, d;
};

void PrintTo(const Plane& plane, std::ostream* out) {
  *out << plane.a << " / " << plane.d;
}

// Equal to the ninth decimal.
bool operator==(const Plane& x, const Plane& y) {
  return std::abs(x.a - y.a) < 1e-9 && std::abs(x.d - y.d) < 1e-9;
}

// The outputs come in with values that a parser must not leave standing.
Plane main_plane(std::string_view strike, std::string_view dip) {
  double a = 777, d = 777;
  角度変換(strike, dip, a, d);
  return {a, d};
}

Plane export_plane(std::string_view strike, std::string_view dip, double before) {
  double a = 777, d = before;
  角度変換B(strike, dip, a, d);
  return {a, d};
}

Plane drawn_plane(std::string strike, std::string dip, std::string_view henkaku_done = "", double decl = 0) {
  double a = 777, d = 777;
  Dip_Strike_Trance(strike, dip, henkaku_done, a, d, decl);
  return {a, d};
}

TEST(Strike_dip, ReadsEveryTextOfTheTableAsTheMapDoes) {
  const auto rows = golden_rows("notation_parse.csv");
  ASSERT_GT(rows.size(), 12'000u);
  for (const Row& row : rows)
    EXPECT_EQ(main_plane(row.at("strike"), row.at("dip")), (Plane{number(row, "main_a"), number(row, "main_d")}))
        << row.at("strike") << " " << row.at("dip");
}

TEST(Strike_dip, ReadsEveryTextOfTheTableAsTheExportDoes) {
  const auto rows = golden_rows("notation_parse.csv");
  ASSERT_GT(rows.size(), 12'000u);
  for (const Row& row : rows)
    EXPECT_EQ(export_plane(row.at("strike"), row.at("dip"), -7), (Plane{number(row, "b_a"), number(row, "b_d")}))
        << row.at("strike") << " " << row.at("dip");
}

TEST(Strike_dip, ReadsEveryTextOfTheTableAsTheDrawingDoes) {
  const auto rows = golden_rows("notation_parse.csv");
  ASSERT_GT(rows.size(), 12'000u);
  for (const Row& row : rows)
    EXPECT_EQ(drawn_plane(row.at("strike"), row.at("dip")), (Plane{number(row, "batch_a"), number(row, "batch_d")}))
        << row.at("strike") << " " << row.at("dip");
}

TEST(Strike_dip, OnlyADipOnTheLeftTurnsTheAzimuth) {
  EXPECT_EQ(main_plane("N15W", "30E"), (Plane{-15, 30}));
  EXPECT_EQ(main_plane("N15W", "30W"), (Plane{165, 30}));
}

TEST(Strike_dip, AStrikeFromTheSouthIsTheSameLineFromTheNorth) {
  EXPECT_EQ(main_plane("S47W", "49S"), (Plane{47, 49}));
  EXPECT_EQ(main_plane("S47E", "49S"), (Plane{133, 49}));  // N47W, south on its left: -47 + 180
}

TEST(Strike_dip, TakesSmallLetters) {
  EXPECT_EQ(main_plane("n15w", "30w"), (Plane{165, 30}));
  EXPECT_EQ(main_plane("s47w", "49s"), (Plane{47, 49}));
}

TEST(Strike_dip, ABlankStrikeIsNoPlane) {
  EXPECT_EQ(main_plane("", "30E"), (Plane{0, 0}));
  EXPECT_EQ(main_plane("  ", "30W"), (Plane{0, 0}));
  EXPECT_EQ(export_plane(" ", "30W", 5), (Plane{0, 0}));
}

TEST(Strike_dip, TrimsNothingElse) {
  EXPECT_EQ(main_plane(" N15E", "30E"), (Plane{0, 30}));   // begins with no "N": the value of the text
  EXPECT_EQ(main_plane("N15W ", "30E"), (Plane{15, 30}));  // no last letter: the number
  EXPECT_EQ(main_plane("N15E", "30 "), (Plane{15, 0}));    // neither a letter nor a digit
}

TEST(Strike_dip, ATurnedAzimuthOfExactly360Stays) {
  EXPECT_EQ(main_plane("180", "30W"), (Plane{360, 30}));
  EXPECT_EQ(main_plane("181", "30W"), (Plane{1, 30}));
  EXPECT_EQ(main_plane("-200", "30W"), (Plane{340, 30}));
}

TEST(Strike_dip, ABareDipWithAMinusSignIsTurned) {
  EXPECT_EQ(main_plane("N15E", "-30"), (Plane{195, 30}));
  EXPECT_EQ(main_plane("N15E", "-30E"), (Plane{195, 30}));
}

TEST(Strike_dip, LettersOfTheMapLeaveEastWestAtZero) {
  EXPECT_EQ(main_plane("EW", "30E"), (Plane{0, 30}));
  EXPECT_EQ(main_plane("SN", "30E"), (Plane{0, 30}));
  EXPECT_EQ(main_plane("N", ""), (Plane{0, 0}));
  EXPECT_EQ(main_plane("S", ""), (Plane{0, 0}));
}

TEST(Strike_dip, LettersOfOtherScriptsAreLettersThatTellNoSide) {
  EXPECT_EQ(main_plane("N15E", "30Ｅ"), (Plane{15, 0}));
  EXPECT_EQ(main_plane("走向", "傾斜"), (Plane{0, 0}));
}

TEST(Strike_dip, TheExportReadsWestFromTheSouth) {
  EXPECT_EQ(export_plane("N15W", "30E", 0), (Plane{165, 30}));
  EXPECT_EQ(export_plane("N15W", "30S", 0), (Plane{165, 30}));
  EXPECT_EQ(export_plane("SN", "30E", 0), (Plane{180, 30}));
  EXPECT_EQ(export_plane("S20W", "30E", 0), (Plane{340, 30}));
  EXPECT_EQ(export_plane("NS", "30W", 0), (Plane{0, -30}));
}

TEST(Strike_dip, TheExportKeepsTheDipThatItHadBesideAnotherLetterThanEast) {
  EXPECT_EQ(export_plane("N15E", "30E", 12), (Plane{15, 30}));
  EXPECT_EQ(export_plane("N15E", "30S", 12), (Plane{15, 12}));
  EXPECT_EQ(export_plane("NS", "30", 12), (Plane{0, 12}));
}

TEST(Strike_dip, TheExportTakesTwoBareTextsByTheirValues) {
  EXPECT_EQ(export_plane("127", "30", 5), (Plane{127, 30}));
  EXPECT_EQ(export_plane("N15", "30", 5), (Plane{0, 30}));  // no last letter, and no numeric prefix
}

TEST(Strike_dip, TheDrawingReadsASouthStrikeAsZero) {
  EXPECT_EQ(drawn_plane("S47W", "49S", "", 7.5), (Plane{7.5, -49}));
}

TEST(Strike_dip, TheDrawingDropsABareDipThatEndsInNine) {
  EXPECT_EQ(drawn_plane("N15E", "29"), (Plane{15, 0}));
  EXPECT_EQ(drawn_plane("N15E", "28"), (Plane{15, 28}));
  EXPECT_EQ(main_plane("N15E", "29"), (Plane{15, 29}));
}

TEST(Strike_dip, TheDrawingNeitherTurnsNorWraps) {
  EXPECT_EQ(drawn_plane("N15W", "30W", "", -9.4), (Plane{-24.4, -30}));
  EXPECT_EQ(drawn_plane("350", "30E", "", 20), (Plane{370, 30}));
}

TEST(Strike_dip, TheDrawingUpperCasesTheTextsInPlace) {
  std::string strike = "n15w", dip = "30e";
  double a = 0, d = 0;
  Dip_Strike_Trance(strike, dip, "", a, d, 0);
  EXPECT_EQ(strike, "N15W");
  EXPECT_EQ(dip, "30E");
}

TEST(Strike_dip, TheDrawingTakesAllRecordsAtOnce) {
  std::array<std::string, 3> strikes{"n15w", "NS", "30"}, dips{"30E", "45w", "60"};
  const std::array<std::string, 3> done{"", "1", " 1 "};
  std::array<double, 3> a{}, d{};
  Dip_Strike_Trance(strikes, dips, done, a, d, 10);
  EXPECT_EQ(a, (std::array<double, 3>{-5, 0, 30}));
  EXPECT_EQ(d, (std::array<double, 3>{30, -45, 60}));
  EXPECT_EQ(strikes[0], "N15W");
  EXPECT_THROW(Dip_Strike_Trance(strikes, dips, done, std::span(a).first(2), d, 10), platform::Subscript_failure);
}

// Horizontal components of a field whose declination is 45 degrees west everywhere on the equator at longitude 0: north
// 30,000 and west 30,000.
Geomagnetic_field slanting_field() {
  Geomagnetic_field field;
  field.order = 1;
  field.g[1][0] = -30'000;
  field.h[1][1] = 30'000;
  return field;
}

TEST(Strike_dip, OneRecordTakesTheDeclinationOfItsPlaceAfterTheTurn) {
  const Geomagnetic_field field = slanting_field();
  double a = 0, d = 0;
  const Declination_label label = Dip_Strike_Trance_S(field, 0, 0, "N15W", "30W", "", a, d);
  EXPECT_NEAR(a, 165 - 45, 1e-9);
  EXPECT_EQ(d, 30);
  EXPECT_EQ(label, (Declination_label{"偏角 -45.0°", "declination -45.0 Deg"}));
}

TEST(Strike_dip, OneRecordDividesItsPositionIntoDegrees) {
  // At longitude 90 the dipole's h has no east component, so the declination is 0; the latitude is 0 either way.
  double a = 0, d = 0;
  Dip_Strike_Trance_S(slanting_field(), 9'000'000, 0, "N15E", "30E", "", a, d);
  EXPECT_NEAR(a, 15, 1e-9);
}

TEST(Strike_dip, OneRecordThatIsCorrectedTakesNoDeclinationButShowsIt) {
  double a = 0, d = 0;
  const Declination_label label = Dip_Strike_Trance_S(slanting_field(), 0, 0, "S15W", "30E", "1", a, d);
  EXPECT_EQ(a, 15);
  EXPECT_EQ(label.english, "declination -45.0 Deg");
}

TEST(Strike_dip, OneRecordWithoutAStrikeStaysAtZero) {
  double a = 777, d = 777;
  Dip_Strike_Trance_S(slanting_field(), 0, 0, " ", "30E", "", a, d);
  EXPECT_EQ(a, 0);
  EXPECT_EQ(d, 0);
}

TEST(Strike_dip, OneRecordInAFieldWithoutDeclinationIsLeftAsItWas) {
  double a = 777, d = 777;
  EXPECT_THROW(Dip_Strike_Trance_S({}, 0, 0, "N15E", "30E", "", a, d), platform::Division_failure);
  EXPECT_EQ(a, 777);
}

}  // namespace
