// Observations through the window: menu of a point, panel, lines, table, undo.
#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QMenu>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QStatusBar>
#include <QTabWidget>
#include <QTimer>

#include "gui/main_window.h"
#include "support/golden.h"
#include "ui/canvas_view.h"
#include "ui/frame6.h"
#include "ui/observation_table.h"

using platform::Answer;

namespace {

struct Frm_main_entry : support::Main_window {
  void open_map(const std::string& language = "English") {
    open(language);
    open_sheet();
    ASSERT_TRUE(session.sheet_shown());
  }
  // The journal is kept as main() does it.
  void open_map_with_journal() {
    session.state_folder = folder.text() + "/state";
    open_map();
    ASSERT_EQ(other.journal.state(), platform::Journal_state::kept);
  }
  ui::Canvas_view* map() { return find<ui::Canvas_view>("Picture1"); }
  QPoint middle() { return map()->rect().center(); }
  void type(const char* box, const QString& text) {
    auto* line = find<QLineEdit>(box);
    line->setFocus();
    line->selectAll();
    QTest::keyClicks(line, text);
  }
  void press(const char* button) { QTest::mouseClick(find<QAbstractButton>(button), Qt::LeftButton); }
  void trigger(const char* action) {
    find<QAction>(action)->trigger();
    QCoreApplication::processEvents();
  }
  // Right press at a place; `choose` is called with the menu that comes up.
  void right_press(QPoint at, const std::function<void(QMenu*)>& choose) {
    bool came_up = false;
    QTimer::singleShot(0, window.get(), [&] {
      auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
      came_up = menu != nullptr;
      if (!menu) return;
      choose(menu);
      menu->close();
    });
    QTest::mouseClick(map(), Qt::RightButton, {}, at);
    QCoreApplication::processEvents();
    EXPECT_TRUE(came_up);
  }
  std::string registry() { return files.read_bytes(project() + "/chisou_men/genchi.csv"); }
  QPoint pixel_of(double x, double y) {
    const maps::Canvas_point at = maps::henkan_px(session.canvas, x, y);
    return {qRound(at.x / 2), qRound(at.y / 2)};
  }
  QImage seen() { return map()->grab().toImage(); }
  void register_at(const QString& x, const QString& y) {
    trigger("mnu_sinki");
    type("Text14_0", x);
    type("Text14_1", y);
    type("Text14_5", "N15W");
    type("Text14_6", "30E");
    press("Command9");
    QCoreApplication::processEvents();
  }
};

// A line over the sheet in black, from (13900300, 3500500) to (13900700, 3500500).
constexpr const char* black_line =
    " 0 ,13900300.0,3500500.0,,,,,,081115-001,,Line, 2 , 0 , 0 , 0 , 0 , 0 , 0 ,0,,,,, 2 , 13900300 , 3500500 , "
    "13900700 , 3500500 ,\r\n";

bool is_red(const QColor& colour) {
  return colour.red() > 180 && colour.green() < 100 && colour.blue() < 100;
}

// What register_at writes as the first record of 15 November 2008.
std::string record_line(const std::string& x, const std::string& y, const std::string& number) {
  return " 0 ," + x + "," + y + ",,,,N15W,30E,081115-00" + number + "*" + number +
         ",,circle, 2 , 0 , 0 , 0 , 0 , 0 , 0 ,0,,,,, 0 ,\r\n";
}

}  // namespace

TEST_F(Frm_main_entry, ARightPressOffersNewChangeAndDelete) {
  open_map();
  right_press(middle(), [](QMenu* menu) {
    EXPECT_EQ(menu->objectName(), "mnuPopup1");
    QStringList texts;
    for (const QAction* action : menu->actions()) texts << action->text();
    EXPECT_EQ(texts, (QStringList{"No observation here", "", "NewPosition", "Change", "Delete"}));
    menu->actions().at(2)->trigger();
  });
  EXPECT_TRUE(session.entry.open);
  EXPECT_EQ(find<QTabWidget>("TabStrip1")->currentIndex(), 0);
  // The sheet runs from 139 E 35 N over 36 seconds each way: a hundredth of a degree.
  const double x = find<QLineEdit>("Text14_0")->text().toDouble(), y = find<QLineEdit>("Text14_1")->text().toDouble();
  EXPECT_NEAR(x, 13'900'500, 600);
  EXPECT_NEAR(y, 3'500'500, 600);
  EXPECT_EQ(find<QLineEdit>("Text14_7")->text(), "081115-001");
}

TEST_F(Frm_main_entry, WhatIsTypedAndSavedStandsInTheRegistry) {
  open_map();
  register_at("13900500", "3500500");
  EXPECT_TRUE(support::same_bytes(registry(), record_line("13900500.0", "3500500.0", "1")));
  EXPECT_FALSE(session.entry.open);
  EXPECT_EQ(session.highlighted, 1);
  EXPECT_EQ(window->statusBar()->currentMessage(), "The observation is saved.");
}

TEST_F(Frm_main_entry, EnterInABoxSavesAndEscAsksWhatToDoWithUnsavedEntries) {
  open_map();
  trigger("mnu_sinki");
  type("Text14_5", "N40E");
  QTest::keyClick(find<QLineEdit>("Text14_5"), Qt::Key_Return);
  EXPECT_EQ(session.registry.N, 1);
  trigger("mnu_sinki");
  type("Text14_5", "N50E");
  prompts.answers = {Answer::no};
  QTest::keyClick(find<QLineEdit>("Text14_5"), Qt::Key_Escape);
  EXPECT_EQ(prompts.shown.back(), "Data is not preserved. Do preserve it?");
  EXPECT_FALSE(session.entry.open);
  EXPECT_EQ(session.registry.N, 1);
}

TEST_F(Frm_main_entry, APanelThatNobodyTypedIntoClosesWithoutAQuestion) {
  open_map();
  trigger("mnu_sinki");
  QTest::keyClick(find<QLineEdit>("Text14_5"), Qt::Key_Escape);
  EXPECT_TRUE(prompts.shown.empty());
  EXPECT_FALSE(session.entry.open);
}

TEST_F(Frm_main_entry, ARecordIsMarkedByAPressChangedAndDeleted) {
  open_map();
  register_at("13900500", "3500500");
  session.highlighted = 0;
  const maps::Canvas_point at = maps::henkan_px(session.canvas, 13'900'500, 3'500'500);
  QTest::mouseClick(map(), Qt::LeftButton, {}, QPoint(int(at.x / 2), int(at.y / 2)));
  EXPECT_EQ(session.highlighted, 1);
  trigger("mnu_henkou");
  type("Text14_6", "45E");
  press("Command9");
  EXPECT_EQ(session.registry.rows[1].keisha, "45E");
  prompts.answers = {Answer::ok};
  trigger("mnu_del");
  EXPECT_EQ(prompts.shown.back(), "[May I delete the specified point?1]");
  EXPECT_EQ(registry(), "");
}

// The next record has the number of the one that has gone: it would be deleted by the next press of the same keys.
TEST_F(Frm_main_entry, NoRecordIsMarkedAfterADeletion) {
  open_map();
  for (const char* y : {"3500500", "3500600", "3500700"}) register_at("13900500", y);
  session.highlighted = 2;
  prompts.answers = {Answer::ok};
  trigger("mnu_del");
  ASSERT_EQ(session.registry.N, 2);
  EXPECT_EQ(session.highlighted, 0);
}

TEST_F(Frm_main_entry, UndoAndRedoGoThroughAllThatWasDone) {
  open_map_with_journal();
  EXPECT_FALSE(find<QAction>("menu_undo")->isEnabled());
  register_at("13900500", "3500500");
  const std::string first = registry();
  register_at("13900600", "3500600");
  const std::string second = registry();
  prompts.answers = {Answer::ok};
  trigger("mnu_del");
  EXPECT_EQ(registry(), first);
  EXPECT_EQ(find<QAction>("menu_undo")->text(), "Undo: Delete observation");
  EXPECT_EQ(find<QStatusBar>("StatusBar1")->currentMessage(), "The observation was deleted. Ctrl+Z brings it back.");
  trigger("menu_undo");
  EXPECT_EQ(registry(), second);
  EXPECT_EQ(session.registry.N, 2);
  trigger("menu_undo");
  EXPECT_EQ(registry(), first);
  trigger("menu_undo");
  EXPECT_EQ(registry(), "");
  EXPECT_EQ(session.registry.N, 0);
  EXPECT_FALSE(find<QAction>("menu_undo")->isEnabled());
  trigger("menu_redo");
  EXPECT_EQ(registry(), first);
  EXPECT_EQ(find<QAction>("menu_redo")->text(), "Redo: Save observation");
}

TEST_F(Frm_main_entry, AFileThatAnotherProgramChangedIsNotOverwrittenByAnUndo) {
  open_map_with_journal();
  register_at("13900500", "3500500");
  files.append(project() + "/chisou_men/genchi.csv", "1,13900700,3500700,\r\n");
  const std::string changed = registry();
  trigger("menu_undo");
  EXPECT_EQ(registry(), changed);
  ASSERT_FALSE(prompts.shown.empty());
  EXPECT_NE(prompts.shown.back().find("Another program has changed these files"), std::string::npos);
}

TEST_F(Frm_main_entry, ALineIsDrawnByPressesAndEndsWithEnter) {
  open_map();
  trigger("mnu_sinki");
  find<QComboBox>("Combo1")->setCurrentText("Line");
  press("Command6");
  for (const QPoint by : {QPoint(-40, 0), QPoint(0, 30)}) QTest::mouseClick(map(), Qt::LeftButton, {}, middle() + by);
  EXPECT_EQ(session.flags.line_count, 2);
  QTest::mouseMove(map(), middle() + QPoint(50, 50));
  QCoreApplication::processEvents();
  QTest::keyClick(map(), Qt::Key_Return);
  EXPECT_EQ(session.flags.line_mode, 0);
  press("Command9");
  ASSERT_EQ(session.registry.N, 1);
  EXPECT_EQ(session.registry.rows[1].mark, "Line");
  EXPECT_EQ(session.registry.rows[1].vertices.size(), 3u);
}

TEST_F(Frm_main_entry, TheTableAndTheMapMarkTheSameRecord) {
  open_map();
  register_at("13900500", "3500500");
  register_at("13900600", "3500600");
  trigger("observation_table");
  auto* table = window->findChild<ui::Observation_table*>();
  ASSERT_TRUE(table);
  EXPECT_TRUE(table->isVisible());
  emit table->chosen(1);
  EXPECT_EQ(session.highlighted, 1);
  emit table->change_asked(2);
  EXPECT_TRUE(session.entry.open);
  EXPECT_EQ(session.entry.touroku, 2);
  EXPECT_EQ(find<QLineEdit>("Text14_7")->text(), "081115-002");
}

TEST_F(Frm_main_entry, APressOnAMarkOpensWhatItsRecordLinksTo) {
  open_map();
  files.write_whole(project() + "/chisou_men/081115-001.xls", "a sheet");
  files.write_whole(
      project() + "/chisou_men/genchi.csv",
      " 0 ,13900500.0,3500500.0,,,,,,081115-001,081115-001.xls,circle, 4 , 0 , 0 , 0 , 0 , 0 , 0 ,0,,,,, 0 ,\r\n");
  open_sheet();
  const maps::Canvas_point at = maps::henkan_px(session.canvas, 13'900'500, 3'500'500);
  QTest::mouseClick(map(), Qt::LeftButton, {}, QPoint(int(at.x / 2), int(at.y / 2)));
  ASSERT_EQ(processes.started.size(), 1u);
  EXPECT_NE(processes.started[0].find("081115-001.xls"), std::string::npos);
}

TEST_F(Frm_main_entry, CharactersThatCannotBeStoredAreToldBeforeTheSave) {
  open_map();
  trigger("mnu_sinki");
  find<QPlainTextEdit>("memo")->setPlainText(QString::fromUtf8("\xF0\x9F\x8C\x8B"));
  press("Command9");
  EXPECT_EQ(prompts.shown.back(), "These characters can't be stored, please replace them: \xF0\x9F\x8C\x8B");
  EXPECT_TRUE(session.entry.open);
  EXPECT_EQ(registry(), "");
}

TEST_F(Frm_main_entry, ChangingTheSheetKeepsWhatIsTyped) {
  open_map();
  trigger("mnu_sinki");
  type("Text14_5", "N15W");
  open_sheet();
  EXPECT_TRUE(session.entry.open);
  EXPECT_EQ(find<QLineEdit>("Text14_5")->text(), "N15W");
  press("Command9");
  ASSERT_EQ(session.registry.N, 1);
  EXPECT_EQ(session.registry.rows[1].soukou, "N15W");
}

TEST_F(Frm_main_entry, EnterOnTheMapSavesAndEscClosesThePanel) {
  open_map();
  trigger("mnu_sinki");
  QTest::mouseClick(map(), Qt::LeftButton, {}, middle());  // the picked position
  map()->setFocus();
  QTest::keyClick(map(), Qt::Key_Return);
  EXPECT_EQ(session.registry.N, 1);
  EXPECT_FALSE(session.entry.open);
  trigger("mnu_sinki");
  window->activateWindow();
  map()->setFocus();
  QTest::keyClick(map(), Qt::Key_Escape);  // disarms the pick
  EXPECT_TRUE(session.entry.open);
  QTest::keyClick(map(), Qt::Key_Escape);
  EXPECT_FALSE(session.entry.open);
  EXPECT_TRUE(prompts.shown.empty());
}

TEST_F(Frm_main_entry, EscLeavesALineAndThePanelShowsIt) {
  open_map();
  trigger("mnu_sinki");
  find<QComboBox>("Combo1")->setCurrentText("Line");
  press("Command6");
  EXPECT_TRUE(map()->hasFocus());
  QTest::mouseClick(map(), Qt::LeftButton, {}, middle());
  EXPECT_FALSE(find<QAbstractButton>("Command6")->isEnabled());
  QTest::keyClick(map(), Qt::Key_Escape);
  EXPECT_EQ(session.flags.line_mode, 0);
  EXPECT_TRUE(find<QAbstractButton>("Command6")->isEnabled());
  EXPECT_TRUE(session.entry.open);
}

TEST_F(Frm_main_entry, TheHintOfAToolIsNotHiddenByTheLastMessage) {
  open_map();
  register_at("13900500", "3500500");
  EXPECT_FALSE(window->statusBar()->currentMessage().isEmpty());
  trigger("view_section");
  EXPECT_TRUE(window->statusBar()->currentMessage().isEmpty());
}

TEST_F(Frm_main_entry, AShapefileDialogThatIsCancelledIsNoStepOfTheUndo) {
  open_map_with_journal();
  register_at("13900500", "3500500");
  trigger("mnu_henkou");
  QTimer::singleShot(0, window.get(), [] {
    if (QWidget* dialog = QApplication::activeModalWidget()) dialog->close();
  });
  press("Command7");
  EXPECT_EQ(find<QAction>("menu_undo")->text(), "Undo: Save observation");
}

// The vertices of a line are little squares, its segments red, above the line that the map itself shows.
TEST_F(Frm_main_entry, TheLineOfTheRecordInThePanelIsShownWithItsVertices) {
  open_map();
  files.write_whole(project() + "/chisou_men/genchi.csv", black_line);
  open_sheet();
  const QPoint first = pixel_of(13'900'300, 3'500'500), second = pixel_of(13'900'700, 3'500'500);
  const QPoint between = (first + second) / 2;
  EXPECT_FALSE(is_red(seen().pixelColor(between)));
  session.highlighted = 1;
  trigger("mnu_henkou");
  ASSERT_TRUE(session.entry.open);
  const QImage open_panel = seen();
  EXPECT_TRUE(is_red(open_panel.pixelColor(between)));
  EXPECT_GT(open_panel.pixelColor(second).blue(), 200) << "the middle of a square is white";
  press("Command22");
  EXPECT_FALSE(is_red(seen().pixelColor(between)));
}

// What is drawn so far is a red line, and a broken one leads from its last vertex to the mouse.
TEST_F(Frm_main_entry, TheLineIsSeenWhileItIsDrawn) {
  open_map();
  trigger("mnu_sinki");
  find<QComboBox>("Combo1")->setCurrentText("Area");
  press("Command6");
  const QPoint first = middle() + QPoint(-100, 0), second = middle() + QPoint(60, 0), mouse = second + QPoint(0, 80);
  for (const QPoint& at : {first, second}) QTest::mouseClick(map(), Qt::LeftButton, {}, at);
  QTest::mouseMove(map(), mouse);
  QTest::qWait(10);
  const QImage drawn = seen();
  EXPECT_TRUE(is_red(drawn.pixelColor((first + second) / 2)));
  int red = 0;
  for (int y = second.y() + 6; y < mouse.y(); ++y) red += is_red(drawn.pixelColor(second.x(), y)) ? 1 : 0;
  EXPECT_GT(red, 20);
  EXPECT_LT(red, 70) << "it is broken";
}

// Its ring has a radius of 9 pixels, which is 6.4 each way on the diagonal.
TEST_F(Frm_main_entry, TheMarkerFollowsThePositionOfThePanel) {
  open_map();
  const QPoint aside(6, 6), first = pixel_of(13'900'400, 3'500'600), second = pixel_of(13'900'700, 3'500'300);
  trigger("mnu_sinki");
  type("Text14_0", "13900400");
  type("Text14_1", "3500600");
  EXPECT_TRUE(is_red(seen().pixelColor(first + aside)));
  QTest::mouseClick(map(), Qt::RightButton, {}, second);
  EXPECT_NEAR(find<QLineEdit>("Text14_0")->text().toDouble(), 13'900'700, 3);
  EXPECT_NEAR(find<QLineEdit>("Text14_1")->text().toDouble(), 3'500'300, 3);
  EXPECT_TRUE(is_red(seen().pixelColor(second + aside)));
  EXPECT_FALSE(is_red(seen().pixelColor(first + aside)));
  prompts.answers = {Answer::no};
  press("Command22");
  EXPECT_FALSE(is_red(seen().pixelColor(second + aside)));
}

TEST_F(Frm_main_entry, UndoAndRedoHaveTheirKeys) {
  open_map_with_journal();
  window->activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(window.get()));
  register_at("13900500", "3500500");
  const std::string saved = registry();
  QTest::keyClick(window.get(), Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(registry(), "");
  QTest::keyClick(window.get(), Qt::Key_Y, Qt::ControlModifier);
  EXPECT_EQ(registry(), saved);
}

TEST_F(Frm_main_entry, UndoAndRedoStandInTheMenuInBothLanguages) {
  for (const auto& [language, undo, redo] :
       {std::tuple{"Japanese", "元に戻す", "やり直す"}, {"English", "Undo", "Redo"}}) {
    window.reset();
    session = {};
    open_map(language);
    auto* const menu = find<QMenu>("menu_edit");
    for (const auto& [name, text] : {std::pair{"menu_undo", undo}, {"menu_redo", redo}}) {
      auto* const action = find<QAction>(name);
      EXPECT_TRUE(menu->actions().contains(action));
      EXPECT_EQ(action->text(), text);
    }
  }
}

TEST_F(Frm_main_entry, TheTableOpensFromTheTabFile) {
  open_map();
  auto* const tabs = find<QTabWidget>("TabStrip1");
  auto* const button = find<QAbstractButton>("show_table");
  ASSERT_EQ(tabs->tabText(1), "File");
  ASSERT_TRUE(tabs->widget(1)->isAncestorOf(button));
  tabs->setCurrentIndex(1);
  press("show_table");
  auto* const table = window->findChild<ui::Observation_table*>();
  ASSERT_TRUE(table);
  EXPECT_TRUE(table->isVisible());
}

// The table only shows: whatever is pressed in it, no file is written.
TEST_F(Frm_main_entry, TheTableWritesNothing) {
  open_map();
  register_at("13900500", "3500500");
  register_at("13900600", "3500600");
  trigger("observation_table");
  const std::size_t writes = watched.log.size();
  auto* const table = window->findChild<ui::Observation_table*>();
  auto* const rows = table->findChild<QAbstractItemView*>();
  ASSERT_TRUE(rows);
  rows->setFocus();
  for (const int key : {Qt::Key_Down, Qt::Key_Delete, Qt::Key_F2, Qt::Key_Backspace, Qt::Key_A, Qt::Key_Space})
    QTest::keyClick(rows, static_cast<Qt::Key>(key));
  for (std::size_t i = writes; i < watched.log.size(); ++i)
    EXPECT_TRUE(watched.log[i].starts_with("read") || watched.log[i].starts_with("length")) << watched.log[i];
  EXPECT_EQ(session.registry.N, 2);
}

TEST_F(Frm_main_entry, TheSavedPictureShowsTheObservationsAsTheScreenDoes) {
  open_map();
  register_at("13900500", "3500500");
  session.highlighted = 0;
  open_sheet();
  QTimer::singleShot(50, window.get(), [] {
    QWidget* const dialog = QApplication::activeModalWidget();
    ASSERT_TRUE(dialog);
    dialog->findChild<QLineEdit*>("Text16")->setText("seen");
    dialog->findChild<QRadioButton*>("Option3")->setChecked(true);
    dialog->findChild<QAbstractButton*>("Command29")->click();
  });
  press("Main_act_0");
  const QImage saved(QString::fromStdString(project() + "/seen.png"));
  ASSERT_FALSE(saved.isNull());
  const QRect around(pixel_of(13'900'500, 3'500'500) - QPoint(40, 40), QSize(80, 80));
  const QImage there = saved.copy(around).convertToFormat(QImage::Format_RGB32);
  EXPECT_EQ(there, seen().copy(around).convertToFormat(QImage::Format_RGB32));
  int red = 0;  // without a coefficient file the strike is shown uncorrected
  for (int y = 0; y < there.height(); ++y)
    for (int x = 0; x < there.width(); ++x) red += is_red(there.pixelColor(x, y)) ? 1 : 0;
  EXPECT_GT(red, 20);
}
