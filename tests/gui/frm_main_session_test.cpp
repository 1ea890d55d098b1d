// The session through the window: captions, lists, keys, menus, basic settings, the end.
#include <gmock/gmock.h>

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QDialog>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QMenu>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollBar>
#include <QTest>

#include <set>
#include <string>

#include "core/language.h"
#include "gui/main_window.h"
#include "ui/canvas_view.h"

namespace {

using Frm_main_session = support::Main_window;
using testing::ElementsAre;

// What a person reads at a control; a null text when there is none of that name.
QString shown_text(QWidget& window, const QString& name) {
  auto* const object = window.findChild<QObject*>(name);
  if (auto* button = qobject_cast<QAbstractButton*>(object)) return button->text();
  if (auto* label = qobject_cast<QLabel*>(object)) return label->text();
  if (auto* menu = qobject_cast<QMenu*>(object)) return menu->title();
  if (auto* action = qobject_cast<QAction*>(object)) return action->text();
  if (auto* group = qobject_cast<QGroupBox*>(object)) return group->title();
  if (auto* dialog = qobject_cast<QDialog*>(object)) return dialog->windowTitle();
  return {};
}

QString object_of(const core::Caption& row) {
  return QString::fromUtf8(row.control) + (row.index == core::no_index ? QString() : QString("_%1").arg(row.index));
}

// The frame of the 3D model stands with later work; area_word is a word and no control.
const std::set<std::string> no_control_yet = {
    "area_word", "Label32",    "Label33",   "Label12_0", "Label12_1", "Label12_2", "Label12_3", "Label31", "Check11",
    "Frame1",    "Rockview3D", "Command47", "Command2",  "Command48", "Label35",   "Label26",   "Label25"};

// The controls of both tables whose text isn't that of the language; `long_english` for the long list.
std::set<std::string> other_texts(QWidget& window, bool english, bool long_english) {
  std::set<std::string> others;
  const auto look = [&](const core::Caption& row, bool in_english) {
    const QString name = object_of(row);
    if (shown_text(window, name) != QString::fromUtf8(in_english ? row.english : row.japanese))
      others.insert(name.toStdString());
  };
  for (const core::Caption& row : core::captions_short()) look(row, english);
  for (const core::Caption& row : core::captions_long()) look(row, long_english);
  return others;
}

void key(QWidget* window, Qt::Key code, Qt::KeyboardModifiers held = Qt::ControlModifier) {
  QTest::keyClick(window, code, held);
  QTest::qWait(5);
}

// A pen of a pixel and a half between two rows of pixels takes a quarter of the sheet's colour, (10, 200, 30).
bool is_red(const QImage& image, QPoint at) {
  const QColor colour = image.pixelColor(at);
  return colour.red() > 180 && colour.green() < 60 && colour.blue() < 60;
}

}  // namespace

TEST_F(Frm_main_session, EveryCaptionOfTheTablesStandsAtItsControl) {
  open("Japanese");
  find<QAction>("menu_settei")->trigger();
  EXPECT_EQ(other_texts(*window, false, false), no_control_yet);
  find<QAction>("menu_English")->trigger();
  EXPECT_EQ(other_texts(*window, true, true), no_control_yet);
  find<QAction>("menu_Japanese")->trigger();
  EXPECT_EQ(other_texts(*window, false, true), no_control_yet) << "the long list stays until the next start";
}

TEST_F(Frm_main_session, TheLanguageMenuTicksTheLanguageInForce) {
  open("English");
  EXPECT_TRUE(find<QAction>("menu_English")->isChecked());
  EXPECT_FALSE(find<QAction>("menu_Japanese")->isChecked());
  find<QAction>("menu_Japanese")->trigger();
  EXPECT_FALSE(find<QAction>("menu_English")->isChecked());
  EXPECT_TRUE(find<QAction>("menu_Japanese")->isChecked());
  EXPECT_EQ(session.settings.language, "Japanese");
}

TEST_F(Frm_main_session, ALanguageThatCannotBeKeptLeavesItsTick) {
  open("English");
  watched.read_only = true;
  find<QAction>("menu_Japanese")->trigger();
  ASSERT_EQ(prompts.shown.size(), 1u);
  EXPECT_NE(prompts.shown[0].find("Language.set"), std::string::npos);
  EXPECT_TRUE(find<QAction>("menu_English")->isChecked());
  EXPECT_EQ(find<QAbstractButton>("Command16")->text(), "Expansion");
}

TEST_F(Frm_main_session, TheKindsFollowTheLanguage) {
  open("Japanese");
  EXPECT_EQ(find<QComboBox>("Combo7")->itemText(0), "地層境界面");
  find<QAction>("menu_English")->trigger();
  ASSERT_EQ(find<QComboBox>("Combo7")->count(), 6);
  EXPECT_EQ(find<QComboBox>("Combo7")->itemText(0), "Boundary");
  EXPECT_EQ(find<QComboBox>("Combo1")->itemText(10), "Area");
}

TEST_F(Frm_main_session, TheListBoxesStandAtTheirDefaults) {
  open("English");
  EXPECT_EQ(find<QComboBox>("Combo3")->currentText(), "2");
  EXPECT_EQ(find<QComboBox>("Combo8")->currentText(), "1.0");
  EXPECT_EQ(find<QComboBox>("Combo8")->count(), 10);
}

TEST_F(Frm_main_session, LaterWorkStandsInItsPlaceDisabled) {
  open("English");
  open_sheet();
  for (const char* name :
       {"menu_chikeizu_tuika", "menu_ninni_tuika", "menu_bor_touroku", "menu_PDAbunkatu", "menu_PDAkiridasi",
        "menu_bunkatu", "menu_PDA", "mnu_Trailbook", "menu_3D_make", "menu_souzyo"})
    EXPECT_FALSE(find<QAction>(name)->isEnabled()) << name;
  for (const char* name : {"Command5", "Command38"}) EXPECT_FALSE(find<QWidget>(name)->isEnabled()) << name;
  for (const char* name : {"menu_settei", "menu_web_henkann", "menu_gazou_save", "menu_end", "menu_dc_read",
                           "menu_keiro", "GPS_MNEA", "mnu_sinki", "mnu_henkou", "mnu_del"})
    EXPECT_TRUE(find<QAction>(name)->isEnabled()) << name;
}

TEST_F(Frm_main_session, TheMapDownloadIsStartedFromTheMenu) {
  open("English");
  find<QAction>("menu_web_henkann")->trigger();
  EXPECT_EQ(processes.started, std::vector<std::string>{program() + "\\Tilefetch.exe"});
}

TEST_F(Frm_main_session, TheCanvasIsMeasuredAtEachSize) {
  open("English");
  for (const QSize size : {QSize(1366, 720), QSize(1500, 800)}) {
    window->resize(size);
    QTest::qWait(20);
    auto* canvas = find<ui::Canvas_view>("Picture1");
    EXPECT_EQ(session.canvas.width, canvas->width() * 15);
    EXPECT_EQ(session.canvas.height, canvas->height() * 15);
    EXPECT_EQ(find<QScrollBar>("HScroll1")->width(), canvas->width());
    EXPECT_EQ(find<QScrollBar>("VScroll1")->height(), canvas->height());
  }
}

TEST_F(Frm_main_session, KeysZoomMoveResetAndArmTheTools) {
  open("English");
  open_sheet();
  find<QListView>("List1")->setFocus();
  const double scale = session.canvas.canvas_scale;
  for (int i = 1; i <= 4; ++i) key(window.get(), Qt::Key_Plus);
  EXPECT_DOUBLE_EQ(session.canvas.canvas_scale, scale * 1.2 * 1.2 * 1.2 * 1.2);
  key(window.get(), Qt::Key_Minus);
  EXPECT_NEAR(session.canvas.canvas_scale, scale * 1.2 * 1.2 * 1.2, 1e-9);
  key(window.get(), Qt::Key_Down);
  EXPECT_NEAR(session.canvas.view_y, -session.canvas.height / 5, 1);
  EXPECT_EQ(session.canvas.view_x, 0);
  key(window.get(), Qt::Key_Up);
  EXPECT_NEAR(session.canvas.view_y, 0, 1);
  key(window.get(), Qt::Key_R);
  EXPECT_EQ(session.flags.zoom_box_step, 1);
  key(window.get(), Qt::Key_Escape, Qt::NoModifier);
  EXPECT_EQ(session.flags.zoom_box_step, 0);
  key(window.get(), Qt::Key_L);
  EXPECT_EQ(session.flags.section_step, 1);
  key(window.get(), Qt::Key_L);
  EXPECT_EQ(session.flags.section_step, 0) << "the armed tool's key ends it";
  key(window.get(), Qt::Key_0);
  EXPECT_DOUBLE_EQ(session.canvas.canvas_scale, scale);
  EXPECT_EQ(session.canvas.view_y, 0);
}

TEST_F(Frm_main_session, TheSpaceBarLetsTheLeftButtonMoveThePictureOneToOne) {
  open("English");
  open_sheet();
  for (int i = 0; i < 8; ++i) find<QAbstractButton>("Command16")->click();
  auto* canvas = find<ui::Canvas_view>("Picture1");
  canvas->setFocus();
  QTest::keyPress(canvas, Qt::Key_Space);
  EXPECT_EQ(canvas->cursor().shape(), Qt::OpenHandCursor);
  QTest::mousePress(canvas, Qt::LeftButton, {}, {300, 300});
  QTest::mouseMove(canvas, {260, 270});
  QTest::mouseRelease(canvas, Qt::LeftButton, {}, {260, 270});
  QTest::keyRelease(canvas, Qt::Key_Space);
  EXPECT_DOUBLE_EQ(session.canvas.view_x, -40 * 15);
  EXPECT_DOUBLE_EQ(session.canvas.view_y, -30 * 15);
}

TEST_F(Frm_main_session, TheToolInForceShowsOnItsButtonAndItsSecondPressEndsIt) {
  open("Japanese");
  open_sheet();
  auto* tool = find<QAbstractButton>("Command19");
  tool->click();
  EXPECT_TRUE(tool->isChecked());
  EXPECT_EQ(find<QLabel>("status_tool")->text(), "範囲拡大: 左上の角をクリックしてください（右クリック・Escで中止）");
  tool->click();
  EXPECT_FALSE(tool->isChecked());
  EXPECT_EQ(session.flags.zoom_box_step, 0);
  EXPECT_EQ(find<ui::Canvas_view>("Picture1")->cursor().shape(), Qt::ArrowCursor);
}

TEST_F(Frm_main_session, TheBandsAndTheSectionLineAreRed) {
  open("English");
  open_sheet();
  auto* canvas = find<ui::Canvas_view>("Picture1");
  find<QAbstractButton>("Command25")->click();
  QTest::mouseClick(canvas, Qt::LeftButton, {}, {140, 181});
  QTest::mouseMove(canvas, {340, 181});
  EXPECT_TRUE(is_red(canvas->grab().toImage(), {233, 181})) << "the band";
  QTest::mouseClick(canvas, Qt::LeftButton, {}, {340, 181});
  EXPECT_TRUE(is_red(canvas->grab().toImage(), {233, 181})) << "the line";
}

// A north arrow in the upper right corner and a scale in the lower left one, both dark on paper.
TEST_F(Frm_main_session, AScaleAndTheNorthAreSeen) {
  open("English");
  auto* canvas = find<ui::Canvas_view>("Picture1");
  const auto dark_pixels = [&](QRect part) {
    const QImage image = canvas->grab(part).toImage();
    int dark = 0;
    for (int y = 0; y < image.height(); ++y)
      for (int x = 0; x < image.width(); ++x) dark += image.pixelColor(x, y).lightness() < 60 ? 1 : 0;
    return dark;
  };
  const QRect north(canvas->width() - 62, 4, 58, 74), scale(10, canvas->height() - 56, 240, 46);
  EXPECT_EQ(dark_pixels(north), 0);
  open_sheet();
  EXPECT_GT(dark_pixels(north), 50);
  EXPECT_GT(dark_pixels(scale), 50);
}

TEST_F(Frm_main_session, SavedSettingsFillTheSheetListAndTheCaption) {
  open("English");
  files.make_folder(folder.text() + "/others");
  files.write_whole(folder.text() + "/others/second.bmp", files.read_bytes(program() + "/map/free.bmp"));
  EXPECT_EQ(window->windowTitle(), "Terranote Ver '08.06.05 (Tokyo Datum)");
  find<QAction>("menu_settei")->trigger();
  find<QLineEdit>("Dir10")->setText(QString::fromStdString(folder.text() + "/others"));
  find<QRadioButton>("Option7")->click();
  find<QPushButton>("Command10")->click();
  QTest::qWait(20);
  EXPECT_FALSE(find<QWidget>("Frame2")->isVisible());
  EXPECT_EQ(session.sheets.List2, std::vector<std::string>{"second"});
  EXPECT_EQ(find<QListView>("List1")->model()->index(0, 0).data().toString(), "second");
  EXPECT_EQ(window->windowTitle(), "Terranote Ver '08.06.05 (WGS-84)");
  EXPECT_FALSE(session.sheet_shown());
}

TEST_F(Frm_main_session, CancelledSettingsAreReadAgainFromTheirFile) {
  open("English");
  find<QAction>("menu_settei")->trigger();
  find<QLineEdit>("Dir10")->setText("C:\\elsewhere");
  find<QPushButton>("Command11")->click();
  EXPECT_FALSE(find<QWidget>("Frame2")->isVisible());
  EXPECT_EQ(session.boxes.Dir10, "");
  EXPECT_EQ(session.settings.map_path, "");
  EXPECT_EQ(session.sheets.List2, std::vector<std::string>{"free"});
}

TEST_F(Frm_main_session, WithoutSettingsTheDialogShowsTheProgramFolder) {
  files.make_folder(program());
  session::form_load(session, ports, program());
  window = std::make_unique<ui::Frm_main>(session, ports);
  window->start();
  EXPECT_EQ(find<QLineEdit>("Dir4")->text().toStdString(), program());
  EXPECT_EQ(find<QLineEdit>("Dir3")->text().toStdString(), program());
  EXPECT_EQ(prompts.shown.size(), 1u);
}

TEST_F(Frm_main_session, TheMenusEndClosesTheWindowAndTheReceiverWithoutAQuestion) {
  open("English");
  session.flags.gps_running = session.flags.data_dirty = 1;
  find<QAction>("menu_end")->trigger();
  EXPECT_FALSE(window->isVisible());
  EXPECT_EQ(session.flags.gps_running, 0);
  EXPECT_TRUE(prompts.shown.empty());
}

// What follows the mouse is drawn over the painted map: the map itself isn't drawn again.
TEST(Canvas_overlay, IsDrawnWithoutPaintingTheMapAgain) {
  ui::Canvas_view canvas;
  int maps = 0, overlays = 0;
  canvas.connect_map([&](drawing::Surface&) { ++maps; }, [&](QPainter&) { ++overlays; }, [] { return QPointF(); });
  canvas.resize(300, 200);
  canvas.show();
  ASSERT_TRUE(QTest::qWaitForWindowExposed(&canvas));
  canvas.repaint();
  const int painted = maps, drawn = overlays;
  EXPECT_GE(painted, 1);
  for (int i = 0; i < 5; ++i) {
    canvas.overlay_changed();
    canvas.repaint();
  }
  EXPECT_EQ(maps, painted);
  EXPECT_EQ(overlays, drawn + 5);
}
