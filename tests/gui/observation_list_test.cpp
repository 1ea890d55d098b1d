#include "ui/observation_list.h"

#include <gmock/gmock.h>

#include "gui/observation_registry.h"

namespace {

using testing::ElementsAre;
using ui::Kept;

struct Observation_list : testing::Test {
  session::Session session;
  ui::Observation_list list;

  void read(const std::vector<std::string>& lines, std::optional<double> declination, bool japanese = true) {
    support::fill_registry(session, lines, declination);
    list = ui::observation_list(session.registry, session.drawn_records, japanese);
  }
  std::string cell(int touroku, int column) const { return ui::cell_text(list, touroku, column); }
  std::vector<int> filtered(std::string_view words, Kept kept = Kept::all) const {
    return ui::filtered(list, words, kept);
  }
  std::vector<int> sorted(int column, bool descending = false) const {
    std::vector<int> records = filtered("");
    ui::sort_records(list, column, descending, records);
    return records;
  }
};

// 13886245.41 units are 138.8624541 degrees: 138 degrees 51.747246 minutes, that is 51 minutes 44.83476 seconds.
// 3578126.9 units are 35.781269 degrees: 46.87614 minutes, 46 minutes 52.5684 seconds.
TEST_F(Observation_list, ShowsEachColumnOfARecord) {
  read(support::five_records, -7.04);
  const std::pair<ui::List_column, const char*> cells[] = {
      {ui::column_record, "1"},
      {ui::column_registration, "081115-002"},
      {ui::column_measurement, "12"},
      {ui::column_taishou, "地層境界面"},
      {ui::column_chisou, "砂岩"},
      {ui::column_X, "E 138°51'44.83\""},
      {ui::column_Y, "N 35°46'52.57\""},
      {ui::column_Z, "120"},
      {ui::column_soukou, "N15W"},
      {ui::column_keisha, "30E"},
      {ui::column_mark, "○"},
      {ui::column_size, "2"},
      {ui::column_vertices, ""},
      {ui::column_boundary, "境界"},
      {ui::column_corrected, ""},
  };
  for (const auto& [column, text] : cells) EXPECT_EQ(cell(1, column), text) << column;
  EXPECT_EQ(cell(2, ui::column_X), "-1234.5 m");
  EXPECT_EQ(cell(2, ui::column_Y), "6789.25 m");
  EXPECT_EQ(cell(2, ui::column_gazou), "photo.jpg");
  EXPECT_EQ(cell(2, ui::column_time), "2008/11/15 09:30:00");
  EXPECT_EQ(cell(2, ui::column_corrected), "補正済");
  EXPECT_EQ(cell(3, ui::column_sen_keisha), "12");
  EXPECT_EQ(cell(3, ui::column_sen_houkou), "N40E");
  EXPECT_EQ(cell(4, ui::column_vertices), "2");
  EXPECT_EQ(cell(6, ui::column_record), "");
  EXPECT_EQ(cell(0, ui::column_record), "");
}

// -7.04 is taken as -7: N15W is 345, and 338 with it. N20E with a plane that falls west is turned to 200.
TEST_F(Observation_list, ShowsTheTrueStrikeAndHowItCameAbout) {
  read(support::five_records, -7.04);
  EXPECT_EQ(cell(1, ui::column_true_strike), "N22W 338.0°");
  EXPECT_EQ(cell(2, ui::column_true_strike), "S20E 200.0° 補正済");
  EXPECT_EQ(cell(3, ui::column_true_strike), "");
  EXPECT_EQ(cell(5, ui::column_true_strike), "") << "the words of a text are no strike";
  read(support::five_records, std::nullopt, false);
  EXPECT_EQ(cell(1, ui::column_true_strike), "N15W 345.0° uncorrected");
  EXPECT_EQ(cell(2, ui::column_true_strike), "S20E 200.0° already true");
}

TEST_F(Observation_list, MarksAStrikeThatDoesNotReadAsItStands) {
  read({support::Point_line{"a", "EW", "30E", "", "0"}.text()}, 5.0);
  EXPECT_EQ(cell(1, ui::column_true_strike), "N5E 5.0° ?");
}

TEST_F(Observation_list, TakesAMissingDeclinationForUnknown) {
  support::fill_registry(session, support::five_records, 5.0);
  session.drawn_records = {};
  list = ui::observation_list(session.registry, session.drawn_records, true);
  EXPECT_EQ(cell(1, ui::column_true_strike), "N15W 345.0° 未補正");
}

TEST_F(Observation_list, KeepsTheRecordsThatHoldEveryWordInAnyColumn) {
  read(support::five_records, 0.0);
  EXPECT_THAT(filtered(""), ElementsAre(1, 2, 3, 4, 5));
  EXPECT_THAT(filtered(" 　 "), ElementsAre(1, 2, 3, 4, 5));
  EXPECT_THAT(filtered("砂岩"), ElementsAre(1, 3));
  EXPECT_THAT(filtered("砂岩 081115-001"), ElementsAre(3));
  EXPECT_THAT(filtered("砂岩　n15w"), ElementsAre(1));
  EXPECT_THAT(filtered("MUDSTONE"), ElementsAre(2));
  EXPECT_THAT(filtered("photo 補正済"), ElementsAre(2));
  EXPECT_THAT(filtered("砂岩 photo"), ElementsAre());
  EXPECT_THAT(filtered("12030"), ElementsAre()) << "no word runs over two cells";
}

TEST_F(Observation_list, KeepsTheKindThatIsChosen) {
  read(support::five_records, std::nullopt);
  EXPECT_THAT(filtered("", Kept::with_strike), ElementsAre(1, 2));
  EXPECT_THAT(filtered("", Kept::lineations), ElementsAre(3));
  EXPECT_THAT(filtered("", Kept::lines_and_areas), ElementsAre(4));
  EXPECT_THAT(filtered("", Kept::uncorrected), ElementsAre(1)) << "2 is corrected already";
  EXPECT_THAT(filtered("", Kept::with_image), ElementsAre(2));
  EXPECT_THAT(filtered("砂岩", Kept::with_strike), ElementsAre(1));
  read(support::five_records, 3.0);
  EXPECT_THAT(filtered("", Kept::uncorrected), ElementsAre());
}

TEST_F(Observation_list, SortsNumbersByValueAndTextsNaturally) {
  read(support::five_records, 0.0);
  EXPECT_THAT(sorted(ui::column_record, true), ElementsAre(5, 4, 3, 2, 1));
  EXPECT_THAT(sorted(ui::column_registration), ElementsAre(3, 1, 2, 5, 4)) << "001, 002, 010, memo, none";
  EXPECT_THAT(sorted(ui::column_measurement), ElementsAre(2, 1, 3, 4, 5));
  EXPECT_THAT(sorted(ui::column_Z), ElementsAre(4, 2, 1, 3, 5)) << "-3, 95.5, 120";
  EXPECT_THAT(sorted(ui::column_keisha), ElementsAre(2, 1, 3, 4, 5));
  EXPECT_THAT(sorted(ui::column_size), ElementsAre(4, 1, 5, 2, 3));
  EXPECT_THAT(sorted(ui::column_true_strike), ElementsAre(2, 1, 3, 4, 5)) << "200, 345";
}

TEST_F(Observation_list, KeepsEmptyCellsLastInEitherDirection) {
  read(support::five_records, 0.0);
  EXPECT_THAT(sorted(ui::column_Z, true), ElementsAre(1, 2, 4, 3, 5));
  EXPECT_THAT(sorted(ui::column_measurement, true), ElementsAre(1, 2, 3, 4, 5));
}

TEST_F(Observation_list, SortsMetresBeforeDegrees) {
  read(support::five_records, 0.0);
  EXPECT_THAT(sorted(ui::column_X), ElementsAre(2, 3, 5, 4, 1)) << "-1234.5, 1, 7, 10.5 m, and 138 degrees";
  EXPECT_THAT(sorted(ui::column_Y, true), ElementsAre(1, 2, 4, 5, 3));
}

TEST_F(Observation_list, LeavesEqualRecordsInTheOrderOfTheFile) {
  std::vector<std::string> lines;
  for (const char* number : {"c", "a", "b", "a"}) lines.push_back(support::Point_line{number, "", "", "5", "0"}.text());
  read(lines, 0.0);
  EXPECT_THAT(sorted(ui::column_Z, true), ElementsAre(1, 2, 3, 4));
  EXPECT_THAT(sorted(ui::column_registration), ElementsAre(2, 4, 3, 1));
  EXPECT_THAT(sorted(ui::column_registration, true), ElementsAre(1, 3, 2, 4));
}

TEST_F(Observation_list, MakesTheRowsThatChangedAnew) {
  read(support::five_records, 0.0);
  std::vector<std::string> lines = support::five_records;
  lines[0] = support::Point_line{"new", "N30E", "5E", "", "0"}.text();
  support::fill_registry(session, lines, 0.0);
  session.drawn_records.declinations[1] = 5.0;
  const ui::Observation_list again = ui::observation_list(session.registry, session.drawn_records, true, list);
  EXPECT_EQ(ui::cell_text(again, 1, ui::column_registration), "new");
  EXPECT_EQ(again.rows[1].declination, 5.0);
  EXPECT_EQ(again.rows[2].searched, list.rows[2].searched);
  const ui::Observation_list english = ui::observation_list(session.registry, session.drawn_records, false, again);
  EXPECT_EQ(ui::cell_text(english, 2, ui::column_corrected), "corrected");
}

std::string line(const char* number, const char* height = "") {
  return support::Point_line{number, "", "", height, "0"}.text();
}

struct Followed : Observation_list {
  std::vector<int> follow(const std::vector<std::string>& before, const std::vector<std::string>& after) {
    read(before, 0.0);
    const ui::Observation_list old = list;
    read(after, 0.0);
    return ui::followed(old, list);
  }
};

TEST_F(Followed, FindsARecordAtItsNewPlace) {
  EXPECT_THAT(follow({line("a"), line("b"), line("c")}, {line("a"), line("c")}), ElementsAre(1, 0, 2));
  EXPECT_THAT(follow({line("a"), line("b")}, {line("x"), line("b"), line("a")}), ElementsAre(3, 2));
}

TEST_F(Followed, StaysWithARecordWhoseNumberIsChanged) {
  EXPECT_THAT(follow({line("a"), line("b")}, {line("a"), line("new")}), ElementsAre(1, 2));
}

TEST_F(Followed, TellsRecordsOfOneNumberApartByTheirOrder) {
  EXPECT_THAT(follow({line("a", "1"), line("a", "2"), line("", "3")}, {line("b"), line("a", "1"), line("a", "2")}),
              ElementsAre(2, 3, 0));
}

}  // namespace
