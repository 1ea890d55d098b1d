#include "core/session/entry.h"

#include <algorithm>

#include "core/session/redraw.h"
#include "core/session/undo.h"
#include "session/session_fixture.h"
#include "support/fault_files.h"

using platform::Answer;
using session::Button;
using session::Redraw;

namespace {

// One canvas unit to the metre: the map place (X, Y) lies at canvas (X + 100, 1100 - Y). The sheet has no geographic
// frame, so that positions are metres.
struct Entry : support::Session_fixture {
  void SetUp() override {
    Session_fixture::SetUp();
    start_with_sheet();
    session.canvas.is_geographic = false;
    session.canvas.canvas_scale = 1;
    session.canvas.map_x0 = session.canvas.map_y0 = 0;
    session.canvas.map_x1 = session.canvas.map_y1 = 1000;
    session.bars.horizontal = session.bars.vertical = {0, 0, -10000, 10000};
    session::add_entry_tools(tools, ports);
  }
  static double twips_x(double map_x) { return (map_x + 100) * 7.5; }
  static double twips_y(double map_y) { return (1100 - map_y) * 7.5; }
  session::Mouse_result press_at(Button button, double x, double y) { return press(button, twips_x(x), twips_y(y)); }
  std::string& box(observations::Text14_box name) { return session.entry.boxes.Text14[name]; }

  void open_new(double x, double y) {
    EXPECT_TRUE(press_at(Button::right, x, y).point_menu);
    ASSERT_TRUE(session::mnu_sinki(session, ports));
  }
  void save_new(double x, double y, const std::string& strike = "N15W", const std::string& dip = "30E") {
    open_new(x, y);
    box(observations::box_soukou) = strike;
    box(observations::box_keisha) = dip;
    ASSERT_TRUE(session::Command9(session, ports).saved);
  }
  std::string registry() { return files.read_bytes(project() + "/chisou_men/genchi.csv"); }
  void follow_the_mouse(double x, double y) { session::mouse_move(session, twips_x(x), twips_y(y)); }
  void open_journal() {
    session.state_folder = folder.text() + "/state";
    session::journal_r(session, ports);
    ASSERT_EQ(other.journal.state(), platform::Journal_state::kept);
  }
};

// The record that save_new makes at (300, 400) on 15 November 2008, mark and size as the panel offers them.
constexpr const char* first_line =
    " 0 ,300.0,400.0,,,,N15W,30E,081115-001*1,,circle, 2 , 0 , 0 , 0 , 0 , 0 , 0 ,0,,,,, 0 ,\r\n";

}  // namespace

TEST_F(Entry, ARightPressNewAndSaveWriteARecord) {
  save_new(300, 400);
  EXPECT_TRUE(support::same_bytes(registry(), first_line));
  EXPECT_EQ(session.registry.N, 1);
  EXPECT_FALSE(session.entry.open);
  EXPECT_EQ(session.highlighted, 1);
  EXPECT_EQ(session.flags.data_dirty, 0);
}

TEST_F(Entry, NewArmsThePickOfAPosition) {
  open_new(300, 400);
  EXPECT_EQ(session.flags.point_mode, 1);
  EXPECT_TRUE(press_at(Button::left, 310.25, 420).taken);
  EXPECT_EQ(box(observations::box_X), "310.25");
  EXPECT_EQ(box(observations::box_Y), "420.0");
  EXPECT_EQ(session.flags.point_mode, 0);
  EXPECT_EQ(session.flags.data_dirty, 1);
  EXPECT_FALSE(press_at(Button::left, 700, 700).taken);  // the next one drags the map
  EXPECT_EQ(box(observations::box_X), "310.25");
}

TEST_F(Entry, ARightPressMovesTheRecordWhileThePanelIsOpen) {
  open_new(300, 400);
  EXPECT_FALSE(press_at(Button::right, 500, 600).point_menu);
  EXPECT_EQ(box(observations::box_X), "500.0");
  EXPECT_EQ(registry(), "");
}

TEST_F(Entry, TheMenuNamesTheRecordUnderTheMouse) {
  save_new(300, 400);
  press_at(Button::right, 310, 400);
  EXPECT_EQ(session::menu_label(session), "1");
  press_at(Button::right, 350, 400);  // 50 units away
  EXPECT_EQ(session::menu_label(session), "");
}

TEST_F(Entry, AChangeIsStoredAtTheRecordsPlace) {
  save_new(300, 400);
  save_new(600, 700);
  press_at(Button::right, 305, 400);
  ASSERT_TRUE(session::mnu_henkou(session, ports));
  EXPECT_EQ(box(observations::box_soukou), "N15W");
  box(observations::box_soukou) = "N20W";
  ASSERT_TRUE(session::Command9(session, ports).saved);
  EXPECT_EQ(session.registry.N, 2);
  EXPECT_EQ(session.registry.rows[1].soukou, "N20W");
  EXPECT_EQ(session.registry.rows[2].soukou, "N15W");
}

TEST_F(Entry, DeleteAsksAndTakesTheLineOut) {
  save_new(300, 400);
  press_at(Button::right, 300, 400);
  EXPECT_FALSE(session::mnu_del(session, ports));  // Cancel
  EXPECT_TRUE(support::same_bytes(registry(), first_line));
  press_at(Button::right, 300, 400);
  prompts.answers = {Answer::ok};
  EXPECT_TRUE(session::mnu_del(session, ports));
  EXPECT_EQ(registry(), "");
  EXPECT_EQ(session.registry.N, 0);
  EXPECT_EQ(prompts.shown.back(), "[May I delete the specified point?1]");
}

// The limits are those of the table and of the deletion; the sentences are the user's.
TEST_F(Entry, TellsThatTheTableIsFull) {
  std::string lines;
  for (int i = 0; i < observations::record_limit; ++i) lines += "0,1,2\r\n";
  files.write_whole(project() + "/chisou_men/genchi.csv", lines);
  session::registry_r(session, ports);
  press_at(Button::right, 300, 400);
  EXPECT_FALSE(session::mnu_sinki(session, ports));
  EXPECT_EQ(prompts.shown.back(), "A registration file holds 15000 points, and this one is full.");
  EXPECT_FALSE(session.entry.open);
  EXPECT_EQ(session.registry.N, observations::record_limit);
}

TEST_F(Entry, TellsHowMuchOfALongFileIsShown) {
  std::string lines;
  for (int i = 0; i <= observations::record_limit; ++i) lines += "0,1,2\r\n";
  files.write_whole(project() + "/chisou_men/genchi.csv", lines);
  session::registry_r(session, ports);
  EXPECT_EQ(prompts.shown.back(),
            "The point registration file can't be read to its end. Its first 15000 points are shown, and no change of "
            "them is saved.");
}

TEST_F(Entry, TellsThatNothingCanBeDeletedFromALongFile) {
  std::string lines;
  for (int i = 0; i < 1001; ++i) lines += "0,300,400\r\n";
  files.write_whole(project() + "/chisou_men/genchi.csv", lines);
  session::registry_r(session, ports);
  press_at(Button::right, 300, 400);
  prompts.answers = {Answer::ok};
  EXPECT_FALSE(session::mnu_del(session, ports));
  EXPECT_EQ(prompts.shown.back(), "Nothing can be deleted from a registration file of more than 1000 lines.");
  EXPECT_EQ(registry(), lines);
  EXPECT_EQ(session.registry.N, 1001);
}

TEST_F(Entry, LeavingAPanelWithUnsavedEntriesOffersToKeepThem) {
  open_new(300, 400);
  session::entry_edited(session);
  prompts.answers = {Answer::yes};
  EXPECT_TRUE(session::leave_entry(session, ports));
  EXPECT_EQ(prompts.shown.back(), "Data is not preserved. Do preserve it?");
  EXPECT_EQ(session.registry.N, 1);
  open_new(500, 400);
  session::entry_edited(session);
  prompts.answers = {Answer::no};
  EXPECT_TRUE(session::leave_entry(session, ports));
  EXPECT_EQ(session.registry.N, 1);
  EXPECT_FALSE(session.entry.open);
}

TEST_F(Entry, ASaveThatIsRefusedKeepsThePanelOpen) {
  open_new(300, 400);
  session.entry.boxes.Combo7 = "\xF0\x9F\x8C\x8B";  // a volcano, which the file's code page has not
  session::entry_edited(session);
  prompts.answers = {Answer::yes};
  EXPECT_FALSE(session::leave_entry(session, ports));
  EXPECT_TRUE(session.entry.open);
  EXPECT_EQ(session.flags.data_dirty, 1);
}

TEST_F(Entry, ALineIsDrawnPressByPressAndEndsAtTheMouse) {
  open_new(300, 400);
  session.entry.boxes.Combo1 = "Line";
  EXPECT_EQ(session::Command6(session, ports), Redraw::overlay);
  press_at(Button::left, 100, 100);
  press_at(Button::left, 200, 100);
  follow_the_mouse(250, 150);
  EXPECT_EQ(session::Command31(session), Redraw::all);
  ASSERT_TRUE(session::Command9(session, ports).saved);
  EXPECT_TRUE(support::same_bytes(
      registry(),
      " 0 ,300.0,400.0,,,,,,081115-001*1,,Line, 2 , 0 , 0 , 0 , 0 , 0 , 0 ,0,,,,, 3 , 100 , 100 , 200 , "
      "100 , 250 , 150 ,\r\n"));
  EXPECT_EQ(session.registry.rows[1].X, 100);  // a line stands at its first vertex
}

TEST_F(Entry, ALineThatIsNotEndedIsNotLostByASave) {
  open_new(300, 400);
  session.entry.boxes.Combo1 = "Line";
  session::Command6(session, ports);
  press_at(Button::left, 100, 100);
  EXPECT_EQ(session.flags.data_dirty, 1);  // closing the panel asks
  EXPECT_FALSE(session::Command9(session, ports).saved);
  EXPECT_EQ(prompts.shown.back(), "A line is being drawn. Please end it before you save.");
  EXPECT_EQ(session.line.vertices.size(), 1u);
  EXPECT_TRUE(session.entry.open);
  follow_the_mouse(200, 100);
  session::Command31(session);
  EXPECT_TRUE(session::Command9(session, ports).saved);
  EXPECT_EQ(session.registry.rows[1].vertices.size(), 2u);
}

TEST_F(Entry, ARightPressFixesTheFreeEndOfALine) {
  open_new(300, 400);
  session.entry.boxes.Combo1 = "Line";
  session::Command6(session, ports);
  press_at(Button::left, 100, 100);
  press_at(Button::right, 180, 190);
  EXPECT_EQ(session.flags.line_count, 1);
  follow_the_mouse(900, 900);  // on the way to the button
  session::Command31(session);
  ASSERT_EQ(session.registry.rows[1].vertices.size(), 2u);
  EXPECT_EQ(session.registry.rows[1].vertices[1].x, 180);
  EXPECT_EQ(session.registry.rows[1].vertices[1].y, 190);
}

TEST_F(Entry, AnEnclosureClosesWhereItCrossesItself) {
  open_new(300, 400);
  session.entry.boxes.Combo1 = "Area";
  session::Command6(session, ports);
  press_at(Button::left, 100, 100);
  press_at(Button::left, 300, 100);
  press_at(Button::left, 300, 300);
  EXPECT_EQ(press_at(Button::left, 200, 0).redraw, Redraw::all);  // crosses the first side
  EXPECT_EQ(session.flags.line_mode, 0);
  EXPECT_EQ(session.registry.rows[1].vertices.size(), 3u);  // (300, 100), (300, 300) and the crossing
}

TEST_F(Entry, AMarkOtherThanLineAndAreaDrawsNoLine) {
  open_new(300, 400);
  EXPECT_EQ(session::Command6(session, ports), Redraw::none);
  EXPECT_EQ(prompts.shown.back(), "Please choose the mark Line or Area first.");
}

TEST_F(Entry, ALongLineKeepsItsFirst100VerticesAndSaysSo) {
  open_new(300, 400);
  session.entry.boxes.Combo1 = "Line";
  session::Command6(session, ports);
  for (int i = 0; i < 101; ++i) press_at(Button::left, i, 100);
  session::Command31(session);
  EXPECT_EQ(session.registry.rows[1].vertices.size(), 100u);
  EXPECT_EQ(session.notice.english, "The first 100 points are kept.");
}

TEST_F(Entry, EscLeavesAnOpenLineWithoutItsVertices) {
  open_new(300, 400);
  session.entry.boxes.Combo1 = "Line";
  session::Command6(session, ports);
  press_at(Button::left, 100, 100);
  EXPECT_TRUE(session::end_tool(session, ports, tools).taken);
  EXPECT_EQ(session.flags.line_mode, 0);
  EXPECT_TRUE(session.line.vertices.empty());
  EXPECT_TRUE(session.entry.open);
  EXPECT_FALSE(session::end_tool(session, ports, tools).taken);
}

// Another sheet is chosen while the panel is open: the registry is read again.
TEST_F(Entry, WhatIsInNoFileYetOutlivesAReadingOfTheRegistry) {
  save_new(600, 700);
  open_new(300, 400);
  session.entry.boxes.Combo1 = "Line";
  session::Command6(session, ports);
  press_at(Button::left, 100, 100);
  follow_the_mouse(200, 200);
  session::Command31(session);
  session::registry_r(session, ports);
  EXPECT_EQ(session.entry.touroku, 2);
  EXPECT_EQ(session.registry.N, 2);
  ASSERT_TRUE(session::Command9(session, ports).saved);
  EXPECT_EQ(session.registry.N, 2);
  EXPECT_EQ(session.registry.rows[2].vertices.size(), 2u);
}

// A strike that can't be corrected is told once, and again in no view of the same run.
TEST_F(Entry, AMissingCoefficientFileIsToldOnceInARun) {
  save_new(300, 400);
  save_new(600, 700);
  session::registry_r(session, ports);
  const std::string told =
      "Strikes are shown without declination, since the coefficient file igrf10.coef is not in the program folder.";
  EXPECT_EQ(std::count(prompts.shown.begin(), prompts.shown.end(), told), 1);
}

TEST_F(Entry, AMissingCoefficientFileIsNoWordWhereNoStrikeNeedsIt) {
  open_new(300, 400);
  box(observations::box_soukou) = "N15W";
  box(observations::box_keisha) = "30E";
  session.entry.boxes.Check9 = true;
  ASSERT_TRUE(session::Command9(session, ports).saved);
  EXPECT_TRUE(prompts.shown.empty());
}

// A view that is built anew shows what the file holds now, and nothing that was kept.
TEST_F(Entry, ChoosingASheetReadsTheRegistryAgain) {
  save_new(600, 700);
  files.write_whole(project() + "/chisou_men/genchi.csv", "1,5,6,,,,,,first\r\n1,7,8,,,,,,second\r\n");
  session::chizu_out(session, ports, 0);
  ASSERT_EQ(session.registry.N, 2);
  EXPECT_EQ(session.registry.rows[1].touroku_no, "first");
  EXPECT_EQ(session.registry.rows[2].X, 7);
  files.remove(project() + "/chisou_men/genchi.csv");
  session::chizu_out(session, ports, 0);
  EXPECT_EQ(session.registry.N, 0);
}

// The settings, with another registration file or project, are saved while the panel is open.
TEST_F(Entry, ARecordGoesToNoOtherFileThanTheOneItWasOpenedFrom) {
  save_new(600, 700);
  const std::string name = session.settings.registry_name;
  const std::string copy = project() + "/chisou_men/copy.csv";
  files.copy(project() + "/chisou_men/" + name, copy);
  const std::string before = files.read_bytes(copy);
  press_at(Button::right, 600, 700);
  ASSERT_TRUE(session::mnu_henkou(session, ports));
  box(observations::box_soukou) = "N40E";
  session.settings.registry_name = "copy.csv";
  session::registry_r(session, ports);
  EXPECT_FALSE(session::Command9(session, ports).saved);
  EXPECT_NE(prompts.shown.back().find("Another registration file was chosen meanwhile"), std::string::npos);
  EXPECT_FALSE(session::mnu_del(session, ports));
  EXPECT_NE(prompts.shown.back().find("Another registration file was chosen meanwhile"), std::string::npos);
  EXPECT_TRUE(session.entry.open);
  EXPECT_EQ(files.read_bytes(copy), before);
  session.settings.registry_name = name;
  session::registry_r(session, ports);
  EXPECT_TRUE(session::Command9(session, ports).saved);
  EXPECT_EQ(session.registry.rows[1].soukou, "N40E");
}

TEST_F(Entry, AnotherProgramsRecordIsKeptWhenANewOneIsGivenUp) {
  save_new(600, 700);
  open_new(300, 400);
  files.append(project() + "/chisou_men/genchi.csv", "1,1,2,\r\n");
  session::registry_r(session, ports);
  session::entry_close(session);
  EXPECT_EQ(session.registry.N, 2);
  save_new(500, 100);
  EXPECT_EQ(session.registry.N, 3);
  EXPECT_EQ(session.registry.rows[2].X, 1);
}

TEST_F(Entry, ASaveKeepsWhatAnotherProgramHasWrittenMeanwhile) {
  save_new(600, 700);
  open_new(300, 400);
  files.append(project() + "/chisou_men/genchi.csv", "1,1,2,\r\n");
  ASSERT_TRUE(session::Command9(session, ports).saved);
  ASSERT_EQ(session.registry.N, 3);
  EXPECT_EQ(session.registry.rows[2].X, 1);
  EXPECT_EQ(session.registry.rows[3].X, 300);
  EXPECT_FALSE(session::registry_follow(session, ports));
  files.append(project() + "/chisou_men/genchi.csv", "1,5,6,\r\n");
  EXPECT_TRUE(session::registry_follow(session, ports));
  EXPECT_EQ(session.registry.N, 4);
}

TEST_F(Entry, ARecordThatIsInNoFileYetStaysMarkedBehindThoseThatCome) {
  save_new(600, 700);
  open_new(300, 400);
  ASSERT_EQ(session.highlighted, 2);
  files.append(project() + "/chisou_men/genchi.csv", "1,1,2,\r\n");
  EXPECT_TRUE(session::registry_follow(session, ports));
  EXPECT_EQ(session.entry.touroku, 3);
  EXPECT_EQ(session.highlighted, 3);
}

TEST_F(Entry, PointsFromPhotosLeaveTheRecordInThePanelAlone) {
  open_new(300, 400);
  session.entry.boxes.Combo1 = "Line";
  session::Command6(session, ports);
  press_at(Button::left, 100, 100);
  follow_the_mouse(200, 100);
  session::Command31(session);
  files.make_folder(project() + "/photo");
  files.write_whole(project() + "/photo/a.jpg", "x");
  prompts.answers = {Answer::yes};
  EXPECT_EQ(session::photo_read(session, ports, project() + "/photo", {500, 600}).added, 1);
  EXPECT_EQ(session.entry.touroku, 2);
  ASSERT_TRUE(session::Command9(session, ports).saved);
  ASSERT_EQ(session.registry.N, 2);
  EXPECT_EQ(session.registry.rows[1].gazou, "photo\\a.jpg");
  EXPECT_EQ(session.registry.rows[2].vertices.size(), 2u);
  EXPECT_EQ(session.registry.rows[2].keisoku_jikoku, "");
  EXPECT_EQ(session.registry.rows[1].touroku_no, "081115-001");
  EXPECT_EQ(session.registry.rows[2].touroku_no, "081115-002*1");
}

TEST_F(Entry, APressMarksTheRecordUnderIt) {
  save_new(300, 400);
  session.highlighted = 0;
  EXPECT_EQ(session::highlight_at(session, twips_x(310), twips_y(400)), Redraw::overlay);
  EXPECT_EQ(session.highlighted, 1);
  session::highlight_at(session, twips_x(900), twips_y(900));
  EXPECT_EQ(session.highlighted, 0);
}

// The press goes to the link, and still marks the record that it belongs to.
TEST_F(Entry, APressThatOpensALinkMarksTheRecordToo) {
  save_new(600, 700);
  open_new(300, 400);
  session.entry.boxes.Label3 = "a.jpg";
  ASSERT_TRUE(session::Command9(session, ports).saved);
  session.highlighted = 0;
  EXPECT_TRUE(press_at(Button::left, 300, 400).taken);
  EXPECT_EQ(session.highlighted, 2);
  EXPECT_EQ(session.notice.english, "It can't be opened: a.jpg");
  session.notice = {};
  files.write_whole(project() + "/chisou_men/a.jpg", "x");
  EXPECT_TRUE(press_at(Button::left, 300, 400).taken);
  EXPECT_EQ(session.notice.english, "");
  EXPECT_FALSE(press_at(Button::left, 600, 700).taken);
}

TEST_F(Entry, AMarkedRecordOutOfSightComesToTheMiddle) {
  save_new(300, 400);
  session.canvas.view_x = -6000;
  EXPECT_EQ(session::highlight(session, 1), Redraw::view);
  // (300, 400) stands at twips (3000, 5250) without an offset; the middle of the canvas is (6000, 4500).
  EXPECT_DOUBLE_EQ(session.canvas.view_x, 3000);
  EXPECT_DOUBLE_EQ(session.canvas.view_y, -750);
}

TEST_F(Entry, UndoTakesASaveBackAndRedoDoesItAgain) {
  open_journal();
  platform::Journal_files kept(files, other.journal);
  session::Ports watched{kept, pictures, prompts, processes, other.clock, other.journal, other.sheets, other.sounds};
  press_at(Button::right, 300, 400);
  session::mnu_sinki(session, watched);
  box(observations::box_soukou) = "N15W";
  box(observations::box_keisha) = "30E";
  session.entry.boxes.memo = "A note";
  ASSERT_TRUE(session::Command9(session, watched).saved);
  const std::string saved = registry();
  EXPECT_EQ(session::menu_undo(session, watched), Redraw::all);
  EXPECT_EQ(registry(), "");
  EXPECT_EQ(files.length(project() + "/chisou_men/txt/081115-001.txt"), 0);
  EXPECT_EQ(session.registry.N, 0);
  EXPECT_EQ(session.notice.english, "Undone: Save observation");
  EXPECT_EQ(session::menu_redo(session, watched), Redraw::all);
  EXPECT_EQ(registry(), saved);
  EXPECT_EQ(session.registry.N, 1);
  EXPECT_EQ(files.read_bytes(project() + "/chisou_men/txt/081115-001.txt"), "A note\r\n");
}

TEST_F(Entry, UndoWaitsForUnsavedEntries) {
  open_journal();
  open_new(300, 400);
  session::entry_edited(session);
  EXPECT_EQ(session::menu_undo(session, ports), Redraw::none);
  EXPECT_EQ(prompts.shown.back(), "Please save or close the observation in the entry panel first.");
  EXPECT_TRUE(session.entry.open);
}

TEST_F(Entry, TheNextSessionOnAProjectRemovesWhatAKilledSaveLeft) {
  const std::string observations = project() + "/chisou_men";
  files.make_folder(observations + "/csv");
  files.make_folder(session.settings.program_path + "/Tiltvane");
  for (const std::string& place :
       {observations, observations + "/csv", project(), session.settings.program_path + "/Tiltvane"}) {
    const std::string left = place + "/.terranote-2147483647-1.tmp";
    files.write_whole(left, "half a regi");
    session::journal_r(session, ports);
    EXPECT_EQ(files.length(left), 0) << left;
  }
}

TEST_F(Entry, ALineIsNotSavedBeforeItIsDrawn) {
  open_new(300, 400);
  session.entry.boxes.Combo1 = "線";
  EXPECT_FALSE(session::Command9(session, ports).saved);
  EXPECT_EQ(prompts.shown.back(), "No line is drawn yet. Please draw it, or choose another mark.");
  EXPECT_EQ(registry(), "");
  EXPECT_TRUE(session.entry.open);
  session.entry.boxes.Combo1 = "Area";  // keeps its place without vertices
  EXPECT_TRUE(session::Command9(session, ports).saved);
}

// The next number of the day is the one of the record that was deleted.
TEST_F(Entry, AMemoOfARecordThatIsGoneDoesNotComeBackWithItsNumber) {
  open_new(300, 400);
  session.entry.boxes.memo = "Of the first";
  ASSERT_TRUE(session::Command9(session, ports).saved);
  press_at(Button::right, 300, 400);
  prompts.answers = {Answer::ok};
  ASSERT_TRUE(session::mnu_del(session, ports));
  save_new(300, 400);
  EXPECT_EQ(session.registry.rows[1].touroku_no, "081115-001*1");
  press_at(Button::right, 300, 400);
  ASSERT_TRUE(session::mnu_henkou(session, ports));
  EXPECT_EQ(session.entry.boxes.memo, "");
}

TEST_F(Entry, AMemoOfAnotherRecordWithTheSameNumberStays) {
  files.make_folder(project() + "/chisou_men/txt");
  save_new(600, 700);
  files.write_whole(project() + "/chisou_men/txt/081115-001.txt", "Of the first\r\n");
  open_new(300, 400);
  box(observations::box_touroku_no) = "081115-001";
  ASSERT_TRUE(session::Command9(session, ports).saved);
  EXPECT_EQ(files.read_bytes(project() + "/chisou_men/txt/081115-001.txt"), "Of the first\r\n");
}
