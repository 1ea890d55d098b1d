#include "observations/entry_echo.h"

#include <gmock/gmock.h>

#include "support/golden.h"
#include "support/places.h"
#include "support/temporary_folder.h"

namespace {

using namespace observations;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;

// Boxes of a record in Kochi (33.5597 N, 133.5311 E), where the field's declination is -6.715845 degrees.
struct Entry_echo_of : testing::Test {
  support::Temporary_folder folder;
  platform::Disk_files files;
  Coefficients coefficients;
  maps::Canvas canvas;
  Entry_boxes boxes;
  std::string language = "English";

  Entry_echo_of() {
    files.write_whole(platform::join_path(folder.text(), "igrf10.coef"),
                      support::bytes_of(support::golden_file("observations/igrf10.coef")));
    take_coefficients(files, folder.text(), coefficients);
    boxes.Text14[box_X] = "13353110.0";
    boxes.Text14[box_Y] = "3355970.0";
    boxes.Combo1 = "○";
  }
  Entry_echo echo() const { return entry_echo(boxes, coefficients, canvas, language); }
  Entry_echo plane(const std::string& strike, const std::string& dip) {
    boxes.Text14[box_soukou] = strike;
    boxes.Text14[box_keisha] = dip;
    return echo();
  }
  Entry_echo line(const std::string& direction, const std::string& dip) {
    boxes.Text14[box_sen_houkou] = direction;
    boxes.Text14[box_sen_keisha] = dip;
    return echo();
  }
  void without_field() {
    files.remove(platform::join_path(folder.text(), "igrf10.coef"));
    take_coefficients(files, folder.text(), coefficients);
  }
  static Reading slip_of(const Entry_echo& echo, int box) {
    for (const Echo_slip& slip : echo.slips)
      if (slip.box == box) return slip.reading;
    return Reading::fits;
  }
  static std::string sentence_of(const Entry_echo& echo, int box) {
    for (const Echo_slip& slip : echo.slips)
      if (slip.box == box) return slip.sentence;
    return {};
  }
  static std::string notes_of(const Entry_echo& echo) {
    std::string all;
    for (const std::string& note : echo.notes) all += note + "\n";
    return all;
  }
};

struct Notation {
  const char *strike, *dip;
  const char *raw, *raw_dip, *raw_side;
  const char *corrected, *corrected_side, *corrected_text;
};

// Worked out by hand from the notation, with -6.7 degrees.
// clang-format off
constexpr Notation notations[] = {
    {"N15W",  "30E",  "345°", "30°", "E 75°",   "338.3°", "E 68.3°",   "N21.7W 30E"},
    {"N15W",  "30W",  "165°", "30°", "W 255°",  "158.3°", "W 248.3°",  "S21.7W 30W"},  // turned: west is on the left
    {"n15w",  "30e",  "345°", "30°", "E 75°",   "338.3°", "E 68.3°",   "N21.7W 30E"},
    {"N15W ", " 30E", "345°", "30°", "E 75°",   "338.3°", "E 68.3°",   "N21.7W 30E"},  // a save trims both
    {"S47W",  "49S",  "47°",  "49°", "SE 137°", "40.3°",  "SE 130.3°", "N40.3E 49E"},  // the same line as N47E
    {"S47E",  "49S",  "133°", "49°", "SW 223°", "126.3°", "SW 216.3°", "S53.7W 49S"},  // N47W, south is on the left
    {"NS",    "20E",  "0°",   "20°", "E 90°",   "353.3°", "E 83.3°",   "N6.7W 20E"},
    {"NS",    "20W",  "180°", "20°", "W 270°",  "173.3°", "W 263.3°",  "S6.7W 20W"},
    {"N80E",  "40S",  "80°",  "40°", "S 170°",  "73.3°",  "S 163.3°",  "N73.3E 40S"},
    {"N80E",  "40N",  "260°", "40°", "N 350°",  "253.3°", "N 343.3°",  "S73.3E 40N"},
    {"127",   "30",   "127°", "30°", "none",    "120.3°", "",          "S59.7W 30S"},
    {"N6.7E", "5.5E", "6.7°", "5.5°", "E 96.7°", "0°",    "E 90°",     "NS 5.5E"},
    {"N90W",  "90",   "270°", "90°", "none",    "263.3°", "",          "S83.3E 90N"},
};
// clang-format on

}  // namespace

TEST_F(Entry_echo_of, TellsThePlaneAndTheTrueStrikeOfEachNotation) {
  for (const Notation& row : notations) {
    SCOPED_TRACE(std::string(row.strike) + " " + row.dip);
    const Entry_echo shown = plane(row.strike, row.dip);
    EXPECT_EQ(shown.raw, row.raw);
    EXPECT_EQ(shown.raw_dip, row.raw_dip);
    EXPECT_EQ(shown.raw_side, row.raw_side);
    EXPECT_EQ(shown.declination, "-6.7°");
    EXPECT_EQ(shown.corrected, row.corrected);
    EXPECT_EQ(shown.corrected_dip, row.raw_dip);
    EXPECT_EQ(shown.corrected_side, row.corrected_side);
    EXPECT_EQ(shown.corrected_text, row.corrected_text);
    EXPECT_THAT(shown.slips, IsEmpty());
  }
}

TEST_F(Entry_echo_of, NamesTheDeclinationItsModelAndItsEpoch) {
  EXPECT_EQ(echo().model, "declination -6.7 Deg (IGRF2005, 2005.0)");
  language = "Japanese";
  EXPECT_EQ(echo().model, "偏角 -6.7° (IGRF2005、2005.0年)");
}

TEST_F(Entry_echo_of, LeavesACorrectedStrikeAsItIs) {
  boxes.Check9 = true;
  boxes.Text14[box_sen_houkou] = "N30E";
  const Entry_echo shown = plane("N15W", "30E");
  EXPECT_EQ(shown.correction, Correction::not_taken);
  EXPECT_EQ(shown.corrected, "345°");
  EXPECT_EQ(shown.corrected_text, "N15W 30E");
  EXPECT_EQ(shown.lineation_corrected, "30°");
  EXPECT_EQ(shown.declination, "not applied");
  EXPECT_THAT(shown.model, HasSubstr("not applied"));
  language = "Japanese";
  EXPECT_EQ(echo().declination, "加えない");
}

TEST_F(Entry_echo_of, SaysWhyAStrikeIsUncorrectedWithoutAField) {
  without_field();
  const Entry_echo shown = plane("N15W", "30E");
  EXPECT_EQ(shown.correction, Correction::unknown);
  EXPECT_EQ(shown.corrected, "345°");
  EXPECT_EQ(shown.corrected_text, "N15W 30E");
  EXPECT_EQ(shown.declination, "unknown");
  EXPECT_THAT(shown.model, HasSubstr("igrf10.coef is not in the program"));
  language = "Japanese";
  EXPECT_THAT(echo().model, HasSubstr("igrf10.coef がないため"));
}

TEST_F(Entry_echo_of, TakesThePlaceOfARecordInMetresFromTheSheet) {
  boxes.Text14[box_X] = "100";
  boxes.Text14[box_Y] = "100";
  EXPECT_EQ(plane("N15W", "30E").correction, Correction::unknown);
  EXPECT_THAT(echo().model, HasSubstr("latitude and longitude"));
  // A sheet whose south-west corner lies at 33.5 N, 133.5 E: seven kilometres from Kochi.
  maps::zahyo_r3(canvas, {"N334000.0", "E1333000.0", "N333000.0", "E1334000.0"});
  EXPECT_EQ(echo().declination, "-6.7°");
  EXPECT_EQ(echo().corrected, "338.3°");
}

TEST_F(Entry_echo_of, FollowsThePosition) {
  EXPECT_EQ(plane("N15W", "30E").declination, "-6.7°");
  boxes.Text14[box_X] = "14134690";  // Sapporo: -9.224401
  boxes.Text14[box_Y] = "4306420";
  EXPECT_EQ(echo().declination, "-9.2°");
  EXPECT_EQ(echo().corrected, "335.8°");
}

TEST_F(Entry_echo_of, MarksATextThatReadsAsZero) {
  for (const char* strike : {"EW", "WE", "SN", "X15", "-0-", "Ｎ１５Ｗ", "走向"})
    EXPECT_EQ(slip_of(plane(strike, "30E"), box_soukou), Reading::as_zero) << strike;
  for (const char* dip : {"E", "30X", "30°", "傾斜"})
    EXPECT_EQ(slip_of(plane("N15E", dip), box_keisha), Reading::as_zero) << dip;
  EXPECT_EQ(slip_of(plane("NS", "30N"), box_keisha), Reading::as_zero);  // beside NS a north tells no side
  EXPECT_EQ(sentence_of(plane("EW", "30E"), box_soukou), "Strike \"EW\" reads as 0.");
  language = "Japanese";
  EXPECT_EQ(sentence_of(echo(), box_soukou), "走向「EW」は 0 と読まれます。");
}

TEST_F(Entry_echo_of, MarksATextThatIsReadInPart) {
  EXPECT_EQ(slip_of(plane("15W", "30E"), box_soukou), Reading::partly);
  EXPECT_EQ(sentence_of(echo(), box_soukou), "Strike \"15W\" is read only in part, as 15.");
  EXPECT_EQ(slip_of(plane("N15E", "-30E"), box_keisha), Reading::partly);
}

TEST_F(Entry_echo_of, MarksAnAngleBeyondItsRange) {
  EXPECT_EQ(slip_of(plane("N120E", "30E"), box_soukou), Reading::beyond);
  EXPECT_EQ(slip_of(plane("N15E", "95E"), box_keisha), Reading::beyond);
  language = "Japanese";
  EXPECT_THAT(sentence_of(plane("400", "30E"), box_soukou), HasSubstr("範囲を超えています"));
}

TEST_F(Entry_echo_of, TellsWhereTheDrawingReadsAnotherPlane) {
  // A reading from the south is taken by its value alone there, and a bare dip that ends in 9 by neither test.
  EXPECT_THAT(notes_of(plane("S20W", "29")), HasSubstr("The map draws it as 0°, dip 0°."));
  EXPECT_THAT(notes_of(plane("N20E", "29")), HasSubstr("The map draws it as 20°, dip 0°."));
  EXPECT_THAT(notes_of(plane("N20E", "28")), Not(HasSubstr("The map draws")));
}

TEST_F(Entry_echo_of, TellsWhereTheClinometerReadsAnotherPlane) {
  EXPECT_THAT(notes_of(plane("EW", "30N")), HasSubstr("reads 270°, dip 30°."));
  EXPECT_THAT(notes_of(plane("S20W", "28")), HasSubstr("reads 200°, dip 28°."));
  EXPECT_THAT(notes_of(plane("S20E", "28")), HasSubstr("reads 160°, dip 28°."));
  // With a side both families come to one plane: 200 with east on the left is 20.
  EXPECT_THAT(notes_of(plane("S20W", "30E")), Not(HasSubstr("clinometer")));
  EXPECT_THAT(notes_of(plane("N15W", "30W")), IsEmpty());
  language = "Japanese";
  EXPECT_THAT(notes_of(plane("EW", "30N")), HasSubstr("クリノメータの画面では 270°、傾斜 30° と読みます。"));
}

TEST_F(Entry_echo_of, TellsALineationAsTheMapDrawsIt) {
  const Entry_echo shown = line("N30E", "20S");
  EXPECT_EQ(shown.lineation, "30°");
  EXPECT_EQ(shown.lineation_dip, "20°");
  EXPECT_EQ(shown.lineation_corrected, "23.3°");
  EXPECT_THAT(shown.slips, IsEmpty());
  // Its arrow isn't turned by the side.
  EXPECT_EQ(line("N15W", "30W").lineation, "345°");
  EXPECT_THAT(notes_of(echo()), HasSubstr("reads 165°"));
}

TEST_F(Entry_echo_of, MarksALineationFromTheSouthThatIsDrawnAsZero) {
  const Entry_echo shown = line("S47W", "20");
  EXPECT_EQ(shown.lineation, "0°");
  EXPECT_EQ(shown.lineation_corrected, "353.3°");
  EXPECT_EQ(slip_of(shown, box_sen_houkou), Reading::as_zero);
  EXPECT_EQ(slip_of(line("NS", "20"), box_sen_houkou), Reading::fits);
  EXPECT_EQ(slip_of(line("N47E", "20X"), box_sen_keisha), Reading::as_zero);
}

TEST_F(Entry_echo_of, MarksNumbersThatAreNone) {
  boxes.Text14[box_Z] = "12m";
  boxes.Text13 = "three";
  EXPECT_EQ(slip_of(echo(), box_Z), Reading::partly);
  EXPECT_EQ(slip_of(echo(), box_measurement), Reading::as_zero);
  for (const char* number : {"12", "-3.5", "+4", "1e3", ".5", "0", ""}) {
    boxes.Text14[box_Z] = number;
    EXPECT_EQ(slip_of(echo(), box_Z), Reading::fits) << number;
  }
  boxes.Text14[box_X] = "";
  boxes.Text14[box_Y] = "north";
  EXPECT_EQ(slip_of(echo(), box_X), Reading::as_zero);
  EXPECT_EQ(slip_of(echo(), box_Y), Reading::as_zero);
}

TEST_F(Entry_echo_of, MarksAPlaceThatIsNotOnTheEarth) {
  boxes.Text14[box_X] = "18000001";
  boxes.Text14[box_Y] = "9000001";
  EXPECT_EQ(slip_of(echo(), box_X), Reading::beyond);
  EXPECT_EQ(slip_of(echo(), box_Y), Reading::beyond);
  boxes.Text14[box_X] = "18000000";
  boxes.Text14[box_Y] = "9000000";
  EXPECT_THAT(echo().slips, IsEmpty());
}

TEST_F(Entry_echo_of, TakesTheStrikeOfAWordForItsText) {
  for (const char* mark : {"文字", "Word"}) {
    boxes.Combo1 = mark;
    const Entry_echo shown = plane("露頭A", "");
    EXPECT_THAT(shown.slips, IsEmpty());
    EXPECT_EQ(shown.raw, "");
    EXPECT_THAT(notes_of(shown), HasSubstr("Word"));
    EXPECT_EQ(entry_symbol(boxes, coefficients, canvas).kind, Symbol_kind::none);
  }
}

TEST_F(Entry_echo_of, ShowsNothingOfBlankTexts) {
  const Entry_echo shown = plane(" ", "");
  for (const std::string& text : {shown.raw, shown.raw_dip, shown.raw_side, shown.raw_text, shown.corrected,
                                  shown.corrected_text, shown.lineation, shown.lineation_dip})
    EXPECT_EQ(text, "");
  EXPECT_THAT(shown.slips, IsEmpty());
  EXPECT_THAT(shown.notes, IsEmpty());
}

TEST_F(Entry_echo_of, DrawsTheSymbolWithTheDeclinationOfThePlace) {
  plane("N15W", "30E");
  const Symbol symbol = entry_symbol(boxes, coefficients, canvas);
  EXPECT_EQ(symbol.kind, Symbol_kind::plane);
  EXPECT_NEAR(symbol.azimuth, -15 - 6.715845, 1e-6);
  EXPECT_TRUE(symbol.true_north);
  without_field();
  EXPECT_EQ(entry_symbol(boxes, coefficients, canvas).azimuth, -15);
  EXPECT_FALSE(entry_symbol(boxes, coefficients, canvas).true_north);
}

TEST_F(Entry_echo_of, TellsThatARecordWithTheNoDataTextIsLost) {
  EXPECT_THAT(echo().losses, IsEmpty());
  boxes.Text14[box_Z] = "-9999";
  EXPECT_THAT(echo().losses, testing::ElementsAre(HasSubstr("counts as deleted")));
  language = "Japanese";
  EXPECT_THAT(echo().losses, testing::ElementsAre(HasSubstr("「-9999」")));
  boxes.Text14[box_Z] = "-999";
  boxes.Text14[box_X] = "-9999.5";
  EXPECT_EQ(echo().losses.size(), 1u);
}
