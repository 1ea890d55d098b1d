// Every window of the program, each of its pages, in both languages: what a screen reader says of it, that all of it
// can be reached and told apart without a mouse, and that its texts are whole on a small screen.
#include <gtest/gtest.h>

#include <QApplication>
#include <QDialog>
#include <QMessageBox>
#include <QPushButton>
#include <QTabWidget>
#include <QTest>
#include <QTimer>

#include <memory>

#include "core/session/entry.h"
#include "gui/clipping.h"
#include "gui/main_window.h"
#include "gui/window_walk.h"
#include "instruments/receiver_place.h"
#include "ui/frame10.h"
#include "ui/frame2.h"
#include "ui/frm_chikeizu_sentaku.h"
#include "ui/frm_keiro.h"
#include "ui/frm_keiro_nmea.h"
#include "ui/frm_sel_picture.h"
#include "ui/frm_shape.h"
#include "ui/frm_shape_make.h"
#include "ui/frm_tiltvane.h"
#include "ui/gps_data_out.h"
#include "ui/observation_table.h"
#include "ui/qt_prompts.h"
#include "ui/tiltvane_read2.h"

namespace {

// The small screen, less the frames of a window and a bar of the desktop.
constexpr QSize small_screen(1024, 700);

// Names that are the same in both languages, or that are data: captions told for both, units, words of formats, files.
const QStringList told_names{"X",
                             "Y",
                             "X(m)",
                             "Y(m)",
                             "Z(m)",
                             "OK",
                             "GPS",
                             "Mark",
                             "Large",
                             "Select",
                             "PDA",
                             "bmp",
                             "jpeg",
                             "png",
                             "Color",
                             "RecordNo",
                             ".csv",
                             "日本語 (Japanese)",
                             "map (1:25,000)",
                             "map50000 (1:50,000)",
                             "ＰＤＡ"};

// Widgets that paint a picture of their own.
const QStringList painted{"ui::Canvas_view",  "ui::Sheet_grid",     "ui::Picture_view",
                          "ui::Mark_preview", "ui::Stereonet_view", "ui::Swatch"};

struct Window_name {
  const char* name;
  int pages;
};

// Each has as many pages as are looked at one by one.
constexpr Window_name window_names[] = {
    {"main", 3},         {"main_with_sheet", 3}, {"entry", 1},      {"settings", 3}, {"settings_frame", 1},
    {"picture_save", 1}, {"sheet_grid", 1},      {"table", 1},      {"pictures", 1}, {"pictures_edit", 1},
    {"shape", 1},        {"shape_make", 1},      {"clinometer", 2}, {"cable", 1},    {"routes", 1},
    {"nmea_routes", 1},  {"replay", 1}};

struct Case {
  Window_name window;
  const char* language;
};

void PrintTo(const Case& one, std::ostream* out) {
  *out << one.window.name << " " << one.language;
}

std::vector<Case> every_window() {
  std::vector<Case> cases;
  for (const Window_name& window : window_names)
    for (const char* language : {"Japanese", "English"}) cases.push_back({window, language});
  return cases;
}

std::string case_name(const testing::TestParamInfo<Case>& info) {
  return std::string(info.param.window.name) + "_" + info.param.language;
}

struct Accessibility : support::Main_window, testing::WithParamInterface<Case> {
  support::Fed_port port;
  std::unique_ptr<QDialog> dialog;
  QWidget* shown = nullptr;

  bool japanese() const { return std::string(GetParam().language) == "Japanese"; }
  std::string name() const { return GetParam().window.name; }

  template <typename Dialog, typename... More>
  void make(More&&... more) {
    dialog = std::make_unique<Dialog>(std::forward<More>(more)...);
  }

  void make_dialog() {
    const std::string wanted = name();
    if (wanted.starts_with("settings"))
      make<ui::Frame2_dialog>(session.settings, session.boxes, files, prompts);
    else if (wanted == "picture_save")
      make<ui::Frame10_dialog>(ports, session.settings, [] { return QImage(6, 4, QImage::Format_RGB32); });
    else if (wanted == "sheet_grid")
      make<ui::Frm_chikeizu_sentaku>(session, ports);
    else if (wanted == "table")
      make<ui::Observation_table>(session);
    else if (wanted.starts_with("pictures"))
      make<ui::Frm_sel_picture>(session, ports, wanted == "pictures_edit");
    else if (wanted == "shape")
      make<ui::Frm_Shape>(session.settings, ports, other.clock);
    else if (wanted == "shape_make")
      make<ui::Frm_ShapeMake>(session.settings, ports, other.clock);
    else if (wanted == "clinometer")
      make<ui::Tiltvane_read2>(session, ports);
    else if (wanted == "cable")
      make<ui::Frm_Tiltvane>(session, ports);
    else if (wanted == "routes")
      make<ui::Frm_keiro>(session, ports);
    else if (wanted == "nmea_routes")
      make<ui::Frm_keiroNMEA>(session, ports);
    else if (wanted == "replay")
      make<ui::Gps_data_out>(session, ports, port);
  }

  void SetUp() override {
    open(GetParam().language, small_screen);
    shown = window.get();
    if (name() == "main_with_sheet" || name() == "entry") open_sheet();
    if (name() == "entry") {
      find<QTabWidget>("TabStrip1")->setCurrentIndex(0);
      find<QAction>("mnu_sinki")->trigger();
      ASSERT_TRUE(session.entry.open);
    }
    make_dialog();
    if (dialog) {
      shown = dialog.get();
      dialog->show();
    }
    if (name() == "settings_frame") {
      dialog->findChild<QTabWidget*>("tabs")->setCurrentIndex(2);
      dialog->findChild<QPushButton*>("Command24")->click();
    }
    shown->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(shown));
  }
  void TearDown() override { dialog.reset(); }

  // Runs a check on each page; what it finds is told with the page.
  void on_each_page(const std::function<QStringList()>& check) {
    auto* tabs = shown->findChild<QTabWidget*>();
    for (int page = 0; page < GetParam().window.pages; ++page) {
      if (tabs && GetParam().window.pages > 1) tabs->setCurrentIndex(page);
      QCoreApplication::processEvents();
      EXPECT_EQ(check().join("\n").toStdString(), "") << "page " << page;
    }
  }
};

}  // namespace

INSTANTIATE_TEST_SUITE_P(EveryWindow, Accessibility, testing::ValuesIn(every_window()), case_name);

TEST_P(Accessibility, EveryControlHasANameAndARole) {
  on_each_page([&] { return support::controls_without_name(shown) + support::controls_without_role(shown); });
}

TEST_P(Accessibility, EveryNameIsInTheLanguageInForce) {
  on_each_page([&] { return support::names_of_another_language(shown, japanese(), told_names); });
}

TEST_P(Accessibility, NoTwoButtonsHaveOneName) {
  on_each_page([&] { return support::buttons_of_one_name(shown); });
}

TEST_P(Accessibility, EveryImageIsToldInWords) {
  on_each_page([&] { return support::images_without_words(shown, painted); });
}

TEST_P(Accessibility, ALetterOfTheCaptionsAndAKeyBringOneThingOnly) {
  on_each_page([&] { return support::letters_used_twice(shown) + support::keys_used_twice(shown); });
}

TEST_P(Accessibility, TheTabKeyComesToEveryControl) {
  on_each_page([&] { return support::controls_off_the_way(shown); });
}

// Within a column of boxes the Tab key goes down.
TEST_P(Accessibility, TheTabKeyGoesDownAForm) {
  on_each_page([&] { return support::steps_up_a_form(shown); });
}

TEST_P(Accessibility, NothingIsCutOnASmallScreen) {
  EXPECT_LE(shown->minimumSizeHint().width(), small_screen.width());
  EXPECT_LE(shown->minimumSizeHint().height(), small_screen.height());
  EXPECT_LE(shown->minimumSize().width(), small_screen.width());
  EXPECT_LE(shown->minimumSize().height(), small_screen.height());
  shown->resize(shown->size().boundedTo(small_screen));
  on_each_page([&] {
    const testing::AssertionResult whole = support::nothing_clipped(shown);
    return whole ? QStringList() : QStringList(whole.message());
  });
}

TEST_P(Accessibility, EscClosesADialog) {
  if (!dialog) return;  // the main window stays
  QTest::keyClick(QApplication::focusWidget() ? QApplication::focusWidget() : shown, Qt::Key_Escape);
  QCoreApplication::processEvents();
  EXPECT_FALSE(dialog->isVisible());
}
