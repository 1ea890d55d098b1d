#include "observations/understood.h"

#include <gtest/gtest.h>

namespace {

using namespace observations;

TEST(Understood, ShowsThePlaneAndTheSideToWhichItFalls) {
  const Understood result = understood("N15W", "30W", 0, "");
  EXPECT_EQ(result.raw.azimuth, 165);  // turned, since west is on the left of N15W
  EXPECT_EQ(result.raw.dip, 30);
  EXPECT_EQ(result.fall, 255);
  EXPECT_EQ(result.side, "W");
  EXPECT_EQ(result.strike, Reading::fits);
  EXPECT_EQ(result.dip, Reading::fits);
}

TEST(Understood, NamesTheSideByEightPoints) {
  EXPECT_EQ(understood("N45E", "30E", 0, "").side, "SE");  // falls to 135
  EXPECT_EQ(understood("N45E", "30W", 0, "").side, "NW");  // 315
  EXPECT_EQ(understood("N80W", "30N", 0, "").side, "N");   // 10
  EXPECT_EQ(understood("N70W", "30S", 0, "").side, "S");
}

TEST(Understood, ShowsTheTrueStrikeBesideTheReading) {
  const Understood result = understood("N15W", "30E", 7.04, "");
  EXPECT_EQ(result.raw.azimuth, 345);
  EXPECT_EQ(result.correction, Correction::applied);
  EXPECT_EQ(result.declination, 7);
  EXPECT_EQ(result.corrected.azimuth, 352);
  EXPECT_TRUE(result.corrected.declination_applied);
  EXPECT_EQ(result.corrected_strike, "N8W");
  EXPECT_EQ(result.corrected_dip, "30E");
}

TEST(Understood, LeavesACorrectedRecordAsItIs) {
  const Understood result = understood("N15W", "30E", 7.04, "1");
  EXPECT_EQ(result.correction, Correction::not_taken);
  EXPECT_EQ(result.declination, 0);
  EXPECT_EQ(result.corrected.azimuth, 345);
  EXPECT_EQ(result.corrected_strike, "N15W");
}

TEST(Understood, ShowsTheStrikeUncorrectedWithoutADeclination) {
  const Understood result = understood("N15W", "30E", {}, "");
  EXPECT_EQ(result.correction, Correction::unknown);
  EXPECT_EQ(result.corrected.azimuth, 345);
  EXPECT_FALSE(result.corrected.declination_applied);
  EXPECT_EQ(result.corrected_strike, "N15W");
}

TEST(Understood, MarksATextThatReadsAsZero) {
  for (const char* strike : {"EW", "SN", "X15", "N", "E30N", "走向"})
    EXPECT_EQ(understood(strike, "30E", 0, "").strike, Reading::as_zero) << strike;
  for (const char* dip : {"E", "30X", "30°", "傾斜", "30 "})
    EXPECT_EQ(understood("N15E", dip, 0, "").dip, Reading::as_zero) << dip;
}

TEST(Understood, ADipSideThatDoesNotCountReadsAsZero) {
  EXPECT_EQ(understood("127", "30S", 0, "").dip, Reading::as_zero);
  EXPECT_EQ(understood("NS", "30N", 0, "").dip, Reading::as_zero);
  EXPECT_EQ(understood("", "30E", 0, "").dip, Reading::as_zero);  // a dip without a strike is no plane
  EXPECT_EQ(understood("127", "30S", 0, "").side, "");
}

TEST(Understood, ATextThatSaysZeroFits) {
  for (const char* strike : {"NS", "ns", "N0E", "S0W", "0", "N0"})
    EXPECT_EQ(understood(strike, "30E", 0, "").strike, Reading::fits) << strike;
  for (const char* dip : {"0", "0E", "0.0"}) EXPECT_EQ(understood("N15E", dip, 0, "").dip, Reading::fits) << dip;
}

TEST(Understood, MarksWhatIsReadInPart) {
  for (const char* strike : {"15W", "N15E ", "N-15E", "-15", "N15N", "N1.5.5E"})
    EXPECT_EQ(understood(strike, "30E", 0, "").strike, Reading::partly) << strike;
  for (const char* dip : {"-30", "-30E", "+30E"}) EXPECT_EQ(understood("N15E", dip, 0, "").dip, Reading::partly) << dip;
}

TEST(Understood, MarksAnglesBeyondTheirRange) {
  EXPECT_EQ(understood("N120E", "30E", 0, "").strike, Reading::beyond);
  EXPECT_EQ(understood("400", "30E", 0, "").strike, Reading::beyond);
  EXPECT_EQ(understood("N90E", "95S", 0, "").dip, Reading::beyond);
  EXPECT_EQ(understood("360", "90", 0, "").strike, Reading::fits);
  EXPECT_EQ(understood("360", "90", 0, "").raw.azimuth, 0);
}

TEST(Understood, ABareDipHasNoSide) {
  const Understood result = understood("N15E", "30", 0, "");
  EXPECT_EQ(result.dip, Reading::fits);
  EXPECT_FALSE(result.fall);
  EXPECT_EQ(result.side, "");
}

TEST(Understood, BlankTextsAreBlank) {
  const Understood result = understood("  ", "", 7, "");
  EXPECT_EQ(result.strike, Reading::blank);
  EXPECT_EQ(result.dip, Reading::blank);
  EXPECT_EQ(result.corrected_strike, "");
  EXPECT_FALSE(result.drawn_otherwise);
}

TEST(Understood, TellsWhereTheDrawingReadsAnotherPlane) {
  EXPECT_FALSE(understood("N15W", "30W", 0, "").drawn_otherwise);
  const Understood south = understood("S47W", "49S", 0, "");
  EXPECT_TRUE(south.drawn_otherwise);
  EXPECT_EQ(south.raw.azimuth, 47);
  EXPECT_EQ(south.drawn.azimuth, 180);  // read as 0, with south on the left of a strike that ends in W
  const Understood nine = understood("N15E", "29", 0, "");
  EXPECT_TRUE(nine.drawn_otherwise);
  EXPECT_EQ(nine.raw.dip, 29);
  EXPECT_EQ(nine.drawn.dip, 0);
}

}  // namespace
