#include "ui/frm_main.h"

#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QElapsedTimer>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QMenu>
#include <QMessageBox>
#include <QScrollBar>
#include <QTabWidget>
#include <QTest>
#include <QTimer>
#include <QToolButton>

#include "core/session/start_up.h"
#include "gui/clipping.h"
#include "gui/gui_support.h"
#include "gui/main_window.h"
#include "ui/canvas_view.h"

namespace {

using Frm_main = support::Main_window;

}  // namespace

TEST_F(Frm_main, ShowsTheSheetListWithoutAClick) {
  open("Japanese");
  EXPECT_EQ(find<QListView>("List1")->model()->rowCount(), 1);
  EXPECT_EQ(find<QListView>("List1")->model()->index(0, 0).data().toString(), "free");
  EXPECT_EQ(find<QListView>("List2")->model()->index(0, 1).data().toString(), "free");
  EXPECT_FALSE(session.sheet_shown());
  EXPECT_FALSE(find<QAbstractButton>("Command16")->isEnabled());
}

// A list takes its first row as the current one when it gets the keyboard; nobody has chosen it.
TEST_F(Frm_main, OpensNoSheetThatNobodyChose) {
  open("English");
  find<QListView>("List2")->setFocus();
  find<QListView>("List1")->setFocus();
  QCoreApplication::processEvents();
  EXPECT_FALSE(find<QTimer>("list_delay")->isActive()) << "a row would open when the keys have rested";
  EXPECT_FALSE(session.sheet_shown());
  QTest::keyClick(find<QListView>("List1"), Qt::Key_Down);
  EXPECT_TRUE(QTest::qWaitFor([&] { return session.current_sheet == "free"; }));
}

TEST_F(Frm_main, HasEveryNamedWidget) {
  open("English");
  for (const char* name :
       {"Picture1",  "HScroll1",  "VScroll1",   "List1",      "List2",      "TabStrip1",  "Frame6",
        "Frame4",    "Frame5",    "StatusBar1", "Main_act_7", "Main_act_8", "Main_act_0", "Command5",
        "Command6",  "Command8",  "Command9",   "Command16",  "Command17",  "Command18",  "Command19",
        "Command22", "Command25", "Command31",  "Command38",  "Check2",     "Check3",     "Check5",
        "Check6",    "Check8",    "Check9",     "Combo1",     "Combo3",     "Combo6",     "Combo7",
        "Combo8",    "Label1_0",  "Label1_1",   "Label19_2",  "Label19_3",  "Label19_4",  "Label19_5",
        "Label19_6", "Label19_7", "Label19_8",  "Label29",    "Label60",    "Label4",     "Text1"})
    EXPECT_TRUE(window->findChild<QWidget*>(name)) << name;
  for (const char* name :
       {"menu_settei", "menu_web_henkann", "menu_chikeizu_tuika", "menu_ninni_tuika", "menu_gazou_save", "menu_English",
        "menu_Japanese", "menu_end", "menu_bor_touroku", "menu_PDAbunkatu", "menu_PDAkiridasi", "menu_bunkatu",
        "menu_PDA", "mnu_Trailbook", "menu_dc_read", "menu_3D_make", "menu_souzyo", "menu_keiro", "GPS_MNEA"})
    EXPECT_TRUE(window->findChild<QAction*>(name)) << name;
}

TEST_F(Frm_main, TheTabsKeepTheirCaptionsAndShowTheirFrames) {
  open("Japanese");
  auto* tabs = find<QTabWidget>("TabStrip1");
  ASSERT_EQ(tabs->count(), 3);
  const char* const captions[] = {"Position", "File", "View"};
  const char* const frames[] = {"Frame6", "Frame4", "Frame5"};
  for (int i = 0; i < 3; ++i) {
    tabs->setCurrentIndex(i);
    EXPECT_EQ(tabs->tabText(i), captions[i]);
    for (int k = 0; k < 3; ++k) EXPECT_EQ(find<QWidget>(frames[k])->isVisible(), k == i);
    EXPECT_EQ(find<QWidget>("Command9")->isVisible(), i == 0);
    EXPECT_EQ(find<QWidget>("Command22")->isVisible(), i == 0);
  }
}

TEST_F(Frm_main, AClickInTheListBringsTheSheet) {
  open("English");
  open_sheet();
  EXPECT_TRUE(session.sheet_shown());
  EXPECT_TRUE(find<QAbstractButton>("Command16")->isEnabled());
  const QImage map = find<ui::Canvas_view>("Picture1")->map_image();
  // 100 units of margin are 50 pixels; the sheet is 500 pixels high. Grid lines lie every tenth, so 25 pixels in is
  // between two of them.
  EXPECT_EQ(map.pixelColor(50 + 25, 50 + 25), QColor(10, 200, 30));
  EXPECT_EQ(map.pixelColor(20, 20), QColor(Qt::white));
}

TEST_F(Frm_main, TheGridBoxTakesTheGridOffTheMap) {
  open("English");
  open_sheet();
  auto* canvas = find<ui::Canvas_view>("Picture1");
  const QImage with = canvas->map_image();
  QTest::mouseClick(find<QCheckBox>("Check3"), Qt::LeftButton, {}, QPoint(8, find<QCheckBox>("Check3")->height() / 2));
  const QImage without = canvas->map_image();
  EXPECT_NE(with, without);
  EXPECT_EQ(without.pixelColor(50 + 50, 50 + 20), QColor(10, 200, 30));
}

TEST_F(Frm_main, ZoomButtonsKeysAndWheelStepBy12) {
  open("English");
  open_sheet();
  const double scale = session.canvas.canvas_scale;
  QTest::mouseClick(find<QAbstractButton>("Command16"), Qt::LeftButton);
  EXPECT_DOUBLE_EQ(session.canvas.canvas_scale, scale * 1.2);
  QTest::mouseClick(find<QAbstractButton>("Command17"), Qt::LeftButton);
  EXPECT_DOUBLE_EQ(session.canvas.canvas_scale, scale * 1.2 / 1.2);
  auto* canvas = find<ui::Canvas_view>("Picture1");
  QWheelEvent notch(QPointF(100, 100), canvas->mapToGlobal(QPointF(100, 100)), {}, {0, 120}, Qt::NoButton,
                    Qt::NoModifier, Qt::NoScrollPhase, false);
  QApplication::sendEvent(canvas, &notch);
  EXPECT_NEAR(session.canvas.canvas_scale, scale * 1.2, 1e-12);
  QTest::mouseClick(find<QAbstractButton>("Command18"), Qt::LeftButton);
  EXPECT_DOUBLE_EQ(session.canvas.canvas_scale, scale);
}

TEST_F(Frm_main, TheMiddleButtonMovesThePictureOneToOne) {
  open("English");
  open_sheet();
  for (int i = 0; i < 8; ++i) find<QAbstractButton>("Command16")->click();
  auto* canvas = find<ui::Canvas_view>("Picture1");
  const QImage before = canvas->map_image();
  QTest::mousePress(canvas, Qt::MiddleButton, {}, {300, 300});
  QTest::mouseMove(canvas, {260, 270});
  QTest::mouseRelease(canvas, Qt::MiddleButton, {}, {260, 270});
  EXPECT_DOUBLE_EQ(session.canvas.view_x, -40 * 15);
  EXPECT_DOUBLE_EQ(session.canvas.view_y, -30 * 15);
  const QImage after = canvas->map_image();
  EXPECT_EQ(after.copy(0, 0, 200, 200), before.copy(40, 30, 200, 200));
}

// What a pan moves and paints beside must be what a full painting gives.
TEST_F(Frm_main, APannedMapEqualsAFreshlyPaintedOne) {
  open("English");
  open_sheet();
  for (int i = 0; i < 8; ++i) find<QAbstractButton>("Command16")->click();
  auto* canvas = find<ui::Canvas_view>("Picture1");
  canvas->map_image();
  for (const QPoint to : {QPoint(123, 77), QPoint(450, 300), QPoint(390, 41), QPoint(12, 260)}) {
    QTest::mousePress(canvas, Qt::MiddleButton, {}, {250, 150});
    QTest::mouseMove(canvas, to);
    QTest::mouseRelease(canvas, Qt::MiddleButton, {}, to);
    const QImage panned = canvas->map_image();
    canvas->map_changed();
    EXPECT_EQ(panned, canvas->map_image());
  }
}

TEST_F(Frm_main, TheStatusBarShowsTheMapAndGeographicPosition) {
  open("English");
  open_sheet();
  auto* canvas = find<ui::Canvas_view>("Picture1");
  QTest::mouseMove(canvas, {50, 50});
  EXPECT_TRUE(QTest::qWaitFor([&] { return find<QLabel>("status_x")->text() == "X 0.0 m"; }));
  EXPECT_EQ(find<QLabel>("status_latitude")->text(), "N 35°00'36.00\"");
  EXPECT_EQ(find<QLabel>("status_longitude")->text(), "E 139°00'00.00\"");
}

TEST_F(Frm_main, ASectionLineIsDrawnWithTwoClicksAndEscEndsTheTool) {
  open("English");
  open_sheet();
  auto* canvas = find<ui::Canvas_view>("Picture1");
  QTest::mouseClick(find<QAbstractButton>("Command25"), Qt::LeftButton);
  EXPECT_EQ(canvas->cursor().shape(), Qt::CrossCursor);
  EXPECT_TRUE(find<QLabel>("status_tool")->text().startsWith("Section line"));
  QTest::keyClick(window.get(), Qt::Key_Escape);
  EXPECT_EQ(session.flags.section_step, 0);
  QTest::mouseClick(find<QAbstractButton>("Command25"), Qt::LeftButton);
  QTest::mouseClick(canvas, Qt::LeftButton, {}, {100, 100});
  QTest::mouseMove(canvas, {200, 220});
  QTest::mouseClick(canvas, Qt::LeftButton, {}, {200, 220});
  EXPECT_GT(files.length(program() + "/danmen.dat"), 0);
  EXPECT_TRUE(QTest::qWaitFor([&] { return session.section_controls.visible; }));
}

TEST_F(Frm_main, ShowsTheShortCaptionsInBothLanguagesAndKeepsTheLongOnesInEnglish) {
  open("Japanese");
  EXPECT_EQ(find<QAbstractButton>("Command16")->text(), "拡大");
  EXPECT_EQ(find<QMenu>("menu_file")->title(), "ファイル");
  const QString designed = find<QAction>("menu_gazou_save")->text();
  EXPECT_EQ(designed, "画像保存");
  find<QAction>("menu_English")->trigger();
  EXPECT_EQ(find<QAbstractButton>("Command16")->text(), "Expansion");
  EXPECT_EQ(find<QAction>("menu_gazou_save")->text(), "Image Save");
  find<QAction>("menu_Japanese")->trigger();
  EXPECT_EQ(find<QAbstractButton>("Command16")->text(), "拡大");
  EXPECT_EQ(find<QAction>("menu_gazou_save")->text(), "Image Save");
  EXPECT_EQ(files.read_bytes(program() + "/Language.set"), "Japanese\r\n");
}

TEST_F(Frm_main, NothingIsClippedInEitherLanguageAtTwoSizes) {
  for (const char* language : {"Japanese", "English"}) {
    for (const QSize size : {QSize(1366, 720), QSize(1280, 700)}) {
      session = session::Session();
      open(language, size);
      auto* tabs = find<QTabWidget>("TabStrip1");
      for (int tab = 0; tab < 3; ++tab) {
        tabs->setCurrentIndex(tab);
        QCoreApplication::processEvents();
        EXPECT_TRUE(support::nothing_clipped(window.get())) << language << " " << size.width() << " tab " << tab;
      }
      window.reset();
    }
  }
}

TEST_F(Frm_main, EveryEnabledWidgetThatTakesTheKeyboardHasAName) {
  open("Japanese");
  EXPECT_EQ(support::nameless_widgets(*window).join(", ").toStdString(), "");
}

TEST_F(Frm_main, ARepaintTouchesNoFile) {
  open("English");
  open_sheet();
  auto* canvas = find<ui::Canvas_view>("Picture1");
  watched.log.clear();
  canvas->map_changed();
  canvas->repaint();
  EXPECT_EQ(canvas->map_image().pixelColor(50 + 25, 50 + 25), QColor(10, 200, 30));
  EXPECT_EQ(watched.log, std::vector<std::string>{});
}

TEST_F(Frm_main, ZoomPanAndTheRubberBandsTouchNoFile) {
  open("English");
  open_sheet();
  auto* canvas = find<ui::Canvas_view>("Picture1");
  watched.log.clear();
  for (int i = 0; i < 8; ++i) find<QAbstractButton>("Command16")->click();
  QTest::mousePress(canvas, Qt::LeftButton, {}, {300, 300});
  QTest::mouseMove(canvas, {100, 120});
  QTest::mouseRelease(canvas, Qt::LeftButton, {}, {100, 120});
  find<QAbstractButton>("Command19")->click();
  QTest::mouseClick(canvas, Qt::LeftButton, {}, {100, 100});
  for (int x = 110; x < 200; x += 10) QTest::mouseMove(canvas, {x, x});
  QTest::mouseClick(canvas, Qt::LeftButton, {}, {200, 200});
  find<QAbstractButton>("Command18")->click();
  QCoreApplication::processEvents();
  EXPECT_EQ(watched.log, std::vector<std::string>{});
}

TEST_F(Frm_main, EnterInTheFilterOpensTheFirstSheetThatIsLeft) {
  open("English");
  auto* filter = find<QLineEdit>("list_filter");
  QTest::keyClicks(filter, "nothing of that name");
  QTest::keyClick(filter, Qt::Key_Return);
  EXPECT_FALSE(session.sheet_shown());
  filter->clear();
  QTest::keyClicks(filter, "FRE");
  QTest::keyClick(filter, Qt::Key_Return);
  EXPECT_EQ(session.current_sheet, "free");
  EXPECT_TRUE(find<QListView>("List1")->hasFocus());
}

TEST_F(Frm_main, TheStrataAreReadAgainAtEachReturnToTheWindow) {
  open("English");
  open_sheet();
  EXPECT_EQ(find<QComboBox>("Combo6")->count(), 0);
  write(project() + "/chisou_men/souzyo.dat", {"1, 1 ,Base,0,", "1, 2 ,Tuff,200,"});
  find<QComboBox>("Combo7")->setCurrentIndex(3);
  QEvent activation(QEvent::ActivationChange);
  QApplication::sendEvent(window.get(), &activation);
  ASSERT_EQ(find<QComboBox>("Combo6")->count(), 1);
  EXPECT_EQ(find<QComboBox>("Combo6")->itemText(0), "Tuff");
  EXPECT_EQ(find<QComboBox>("Combo7")->currentText(), "Fault");
}

TEST_F(Frm_main, ASectionLineThatCannotBeWrittenIsToldInOneSentence) {
  open("English");
  open_sheet();
  auto* canvas = find<ui::Canvas_view>("Picture1");
  watched.read_only = true;
  find<QAbstractButton>("Command25")->click();
  QTest::mouseClick(canvas, Qt::LeftButton, {}, {100, 100});
  QTest::mouseClick(canvas, Qt::LeftButton, {}, {200, 220});
  ASSERT_EQ(prompts.shown.size(), 1u);
  EXPECT_NE(prompts.shown[0].find("danmen.dat"), std::string::npos);
  EXPECT_EQ(session.flags.section_step, 0);
}

TEST_F(Frm_main, ASectionLineBeyondAllNumbersIsDrawnInTime) {
  make_project("English");
  write(program() + "/danmen.dat", {"A-A',2", "1e300,-1e300", "-1e38,5e30"});
  session::form_load(session, ports, program());
  window = std::make_unique<ui::Frm_main>(session, ports);
  window->start();
  open_sheet();
  QElapsedTimer time;
  time.start();
  find<ui::Canvas_view>("Picture1")->repaint();
  EXPECT_LT(time.elapsed(), 2000);
}

TEST_F(Frm_main, WithoutSettingsTheBasicSettingsComeUpAfterTheMessage) {
  files.make_folder(program());
  session::form_load(session, ports, program());
  window = std::make_unique<ui::Frm_main>(session, ports);
  window->start();
  EXPECT_EQ(prompts.shown, std::vector<std::string>{"Please Do [BasicSetting]"});
  EXPECT_TRUE(find<QWidget>("Frame2")->isVisible());
}

TEST_F(Frm_main, WhoClosesTheSettingsWithoutSavingIsNotAskedAgainAtOnce) {
  files.make_folder(program());
  session::form_load(session, ports, program());
  window = std::make_unique<ui::Frm_main>(session, ports);
  window->start();
  find<QWidget>("Frame2")->close();
  QCoreApplication::processEvents();
  EXPECT_FALSE(find<QWidget>("Frame2")->isVisible());
  EXPECT_EQ(prompts.shown.size(), 1u);
  find<QAction>("menu_settei")->trigger();
  EXPECT_TRUE(find<QWidget>("Frame2")->isVisible());
}

TEST_F(Frm_main, TheNamesOfTheSheetsFollowTheLanguageAtOnce) {
  make_project("Japanese");
  write(program() + "/ZUMEI.CSV", {"533945,霧沢"});
  files.write_whole(program() + "/map/53394500.bmp", files.read_bytes(program() + "/map/free.bmp"));
  session::form_load(session, ports, program());
  window = std::make_unique<ui::Frm_main>(session, ports);
  window->start();
  const auto* names = find<QListView>("List1")->model();
  ASSERT_EQ(names->rowCount(), 2);
  EXPECT_EQ(names->index(0, 0).data().toString(), "霧沢南西部");
  find<QAction>("menu_English")->trigger();
  EXPECT_EQ(names->index(0, 0).data().toString(), "53394500");
  find<QAction>("menu_Japanese")->trigger();
  EXPECT_EQ(names->index(0, 0).data().toString(), "霧沢南西部");
}

TEST_F(Frm_main, EveryToolIsSeenInANarrowWindow) {
  open("English", {1024, 700});
  auto* tool = find<QToolButton>("Command19");
  EXPECT_EQ(tool->toolButtonStyle(), Qt::ToolButtonIconOnly);
  for (const char* name : {"Command16", "Command25", "Main_act_0", "gps_tool"})
    EXPECT_TRUE(find<QWidget>(name)->isVisible()) << name;
  EXPECT_EQ(find<QWidget>("Command19")->toolTip(), "Two clicks on the map give the rectangle to zoom to (Ctrl+R)");
  window->resize(1800, 700);
  EXPECT_EQ(tool->toolButtonStyle(), Qt::ToolButtonTextBesideIcon);
}

TEST_F(Frm_main, TheArrowKeysMoveTheMapThatHasTheKeyboard) {
  open("English");
  open_sheet();
  for (int i = 0; i < 8; ++i) find<QAbstractButton>("Command16")->click();
  auto* canvas = find<ui::Canvas_view>("Picture1");
  const double x = session.canvas.view_x, y = session.canvas.view_y;
  QTest::keyClick(canvas, Qt::Key_Right);
  EXPECT_DOUBLE_EQ(session.canvas.view_x, x - 0.2 * 15 * canvas->width());
  QTest::keyClick(canvas, Qt::Key_Down);
  EXPECT_DOUBLE_EQ(session.canvas.view_y, y - 0.2 * 15 * canvas->height());
  QTest::keyClick(canvas, Qt::Key_Left);
  QTest::keyClick(canvas, Qt::Key_Up);
  EXPECT_DOUBLE_EQ(session.canvas.view_x, x);
  EXPECT_DOUBLE_EQ(session.canvas.view_y, y);
}

TEST_F(Frm_main, TheMapShowsThatItHasTheKeyboard) {
  open("English");
  window->activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(window.get()));
  auto* canvas = find<ui::Canvas_view>("Picture1");
  const QColor ring = canvas->palette().color(QPalette::Highlight);
  EXPECT_NE(canvas->grab().toImage().pixelColor(0, 90), ring);
  canvas->setFocus(Qt::TabFocusReason);
  EXPECT_EQ(canvas->grab().toImage().pixelColor(0, 90), ring);
}

TEST_F(Frm_main, AMenuThatIsOpenedByItsKeyHasItsFirstEntryMarked) {
  open("English");
  window->activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(window.get()));
  QTest::keyClick(window.get(), Qt::Key_F, Qt::AltModifier);
  auto* menu = find<QMenu>("menu_file");
  EXPECT_TRUE(menu->isVisible());
  EXPECT_EQ(menu->activeAction(), find<QAction>("menu_settei"));
  menu->close();
}

TEST_F(Frm_main, WhatCannotBeUsedYetSaysSo) {
  open("Japanese");
  for (const char* name : {"Text1", "Combo8", "Command5", "Command38"}) {
    EXPECT_FALSE(find<QWidget>(name)->isEnabled()) << name;
    EXPECT_EQ(find<QWidget>(name)->toolTip(), "この機能はまだ使えません。") << name;
  }
  find<QAction>("menu_English")->trigger();
  EXPECT_EQ(find<QAction>("menu_souzyo")->toolTip(), "This isn't available yet.");
  EXPECT_TRUE(find<QMenu>("menu_3D")->toolTipsVisible());
}

TEST_F(Frm_main, ClosingTheWindowWithUnsavedEntriesAsksNothing) {
  open("English");
  session.flags.data_dirty = 1;
  window->close();
  EXPECT_TRUE(prompts.shown.empty());
}
