#include <gtest/gtest.h>

#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QDialog>
#include <QImage>
#include <QLabel>
#include <QListView>
#include <QPushButton>
#include <QTest>
#include <QTimer>

#include <algorithm>
#include <filesystem>
#include <functional>
#include <memory>
#include <utility>

#include "core/session/start_up.h"
#include "emulator/pseudo_terminal.h"
#include "emulator_clinometer/clinometer_memory.h"
#include "platform/qt/qt_pictures.h"
#include "platform/text_files.h"
#include "support/fake_ports.h"
#include "support/scripted_prompts.h"
#include "support/temporary_folder.h"
#include "ui/canvas_view.h"
#include "ui/frm_main.h"

namespace {

using instruments::Gps_light;

// The whole window on two sheets side by side, 533846 and 533847, whose common edge is 138°52.5' east; instruments at
// the far ends of their ports.
struct Window_instruments : testing::Test {
  support::Temporary_folder folder;
  platform::Disk_files disk;
  platform::Journal journal{disk};
  platform::Journal_files files{disk, journal};
  platform::Qt_pictures pictures;
  support::Recorded_processes processes;
  support::Scripted_prompts prompts;
  support::Other_ports other{files};
  session::Ports ports{files, pictures, prompts, processes, other.clock, journal, other.sheets, other.sounds};
  session::Session session;
  std::unique_ptr<ui::Frm_main> window;

  std::string program(const std::string& name = {}) const { return folder.text() + "/program/" + name; }
  std::string project(const std::string& name = {}) const { return folder.text() + "/project/" + name; }

  void write(const std::string& path, const std::vector<std::string>& lines) {
    platform::Line_writer out;
    for (const std::string& line : lines) out.line(line);
    disk.write_whole(path, out.bytes());
  }
  void make_project() {
    for (const std::string& made :
         {program(), project(), project("chisou_men"), program("map"), program("ports"), folder.text() + "/state"})
      disk.make_folder(made);
    write(project("chisou_men/genchi.csv"), {});
    write(program("Language.set"), {"Japanese"});
    write(program("settei.ini"), {"",      "",       folder.text() + "/project",
                                  "04",    "9600",   "True",
                                  "False", "False",  "True",
                                  "False", "sheet1", "",
                                  "",      "",       "",
                                  "True",  "False",  "genchi.csv",
                                  "1000",  "1000",   "500",
                                  "100",   "6000",   "6000",
                                  "",      "True",   "False"});
    // Without their corners the sheets would have no place on earth.
    write(program("ZUMEI.CSV"), {"533846,西沢,NISHIZAWA,,,,,354000.0,1385230.0,354011.6,1385218.3,,"
                                 "354500.0,1384500.0,354511.6,1384448.3",
                                 "533847,東沢,HIGASHIZAWA,,,,,354000.0,1390000.0,354011.6,1385948.3,,"
                                 "354500.0,1385230.0,354511.6,1385218.3"});
    QImage picture(40, 30, QImage::Format_RGB32);
    picture.fill(QColor(200, 220, 180));
    for (const char* name : {"533846", "533847"}) picture.save(QString::fromStdString(program("map/") + name + ".bmp"));
  }
  void open() {
    make_project();
    session.state_folder = folder.text() + "/state";
    session::form_load(session, ports, folder.text() + "/program");
    window = std::make_unique<ui::Frm_main>(session, ports);
    window->resize(1366, 720);
    window->start();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(window.get()));
  }
  void open_sheet(int row, const std::string& name) {
    auto* list = window->findChild<QListView*>("List2");
    ASSERT_TRUE(comes([&] { return list->model()->rowCount() > row; }));
    QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, list->visualRect(list->model()->index(row, 1)).center());
    ASSERT_TRUE(comes([&] { return session.current_sheet == name; })) << session.current_sheet;
  }
  void switch_gps() {
    window->findChild<QAction*>("gps_switch")->trigger();
    for (QTimer* timer : window->findChildren<QTimer*>())
      if (timer->interval() == instruments::timer2_interval) timer->setInterval(20);
  }
  QString label(const char* name) const { return window->findChild<QLabel*>(name)->text(); }
  // Chooses a menu entry that opens a dialog, and does something with that.
  void choose(const char* action, const std::function<void(QWidget*)>& in_dialog) {
    bool opened = false;
    QTimer::singleShot(0, window.get(), [&] {
      QWidget* dialog = QApplication::activeModalWidget();
      ASSERT_TRUE(dialog) << action;
      opened = true;
      in_dialog(dialog);
      dialog->close();
    });
    window->findChild<QAction*>(action)->trigger();
    EXPECT_TRUE(opened) << action;
  }
  // Pixels of the map in magenta, at a line's edge mixed with the ground.
  int route_pixels() const {
    const QImage map = window->findChild<ui::Canvas_view*>("Picture1")->map_image();
    int count = 0;
    for (int y = 0; y < map.height(); ++y)
      for (int x = 0; x < map.width(); ++x) {
        const QColor colour = map.pixelColor(x, y);
        count += std::min(colour.red(), colour.blue()) > colour.green() + 60;
      }
    return count;
  }
  void pass(int seconds) { other.clock.time.second += seconds; }
  static bool comes(const std::function<bool()>& reached) { return QTest::qWaitFor(reached, 5000); }
};

std::string burst(const std::string& latitude, const std::string& longitude) {
  const std::string position = latitude + ",N," + longitude + ",E";
  return "$GPGGA,102030.00," + position + ",1,08,1.1,120.4,M,36.2,M,,\r\n$GPGSA,A,3,09,05,14,,,,,,,,,,1.9,1.1,1.5\r\n" +
         "$GPRMC,102030.00,A," + position + ",2.6,45.0,151108,,\r\n";
}

TEST_F(Window_instruments, FollowTheReceiverOverTheSheetsThroughLossAndPulling) {
  open();
  open_sheet(0, "533846");
  emulator::Pseudo_terminal line(program("ports/com04"));
  ASSERT_TRUE(line.plug_in());
  switch_gps();
  line.write(burst("3542.0000", "13850.0000"));
  ASSERT_TRUE(comes([&] { return session.gps.light == Gps_light::doubtful || session.gps.light == Gps_light::fix; }));
  EXPECT_EQ(session.gps.light, Gps_light::fix);
  EXPECT_EQ(label("Label7"), QString::fromUtf8("GPS:補足"));
  EXPECT_EQ(session.current_sheet, "533846");
  EXPECT_TRUE(session.gps.mark.visible);

  line.write(burst("3542.0000", "13855.0000"));
  EXPECT_TRUE(comes([&] { return session.current_sheet == "533847"; }));
  EXPECT_EQ(label("Label16"), QString::fromUtf8("東沢"));
  EXPECT_EQ(window->findChild<QListView*>("List2")->currentIndex().row(), 1);

  const QString folder_shown = label("shown_folder");
  line.write(burst("3542.0000", "13901.0000"));
  EXPECT_TRUE(comes([&] { return label("shown_folder") == QString::fromUtf8("範囲外"); }));
  EXPECT_EQ(label("Label16"), QString::fromUtf8("範囲外"));
  EXPECT_EQ(session.current_sheet, "533847");

  pass(11);
  EXPECT_TRUE(comes([&] { return session.gps.light == Gps_light::lost; }));
  line.unplug();
  EXPECT_TRUE(comes([&] { return session.gps.light == Gps_light::closed; }));
  EXPECT_EQ(label("Label7"), QString::fromUtf8("GPS:検索中"));
  ASSERT_TRUE(line.plug_in());
  pass(4);
  EXPECT_TRUE(comes([&] { return session.gps.light != Gps_light::closed; }));
  line.write(burst("3542.0000", "13850.0000"));
  EXPECT_TRUE(comes([&] { return session.current_sheet == "533846"; }));
  EXPECT_EQ(session.gps.light, Gps_light::fix);
  EXPECT_EQ(label("shown_folder"), folder_shown);

  window->findChild<QAction*>("gps_switch")->trigger();
  EXPECT_EQ(label("Label7"), QString::fromUtf8("GPS停止中"));
  EXPECT_FALSE(session.gps.mark.visible);
}

// Every dialog of the instruments is opened by its own entry of the menu, and closes without a trace.
TEST_F(Window_instruments, OpenFromTheirMenus) {
  open();
  for (const auto& [action, dialog] :
       {std::pair("menu_dc_read", "Tiltvane_Read2"), std::pair("clinometer_cable", "frmTiltvane"),
        std::pair("menu_keiro", "frm_keiro"), std::pair("GPS_MNEA", "frm_keiroNMEA"),
        std::pair("gps_data_out", "GPS_DATA_OUT")})
    choose(action, [&](QWidget* opened) { EXPECT_EQ(opened->objectName(), dialog); });
  EXPECT_TRUE(prompts.shown.empty());
}

// A track and a log across the sheet; the choice of the dialog and the box of the tab "View" decide what is drawn.
TEST_F(Window_instruments, DrawTheChosenRoutesWhileTheirBoxIsTicked) {
  open();
  disk.make_folder(project("chisou_men/gps"));
  // 138°46' to 138°51' east at 35°42' north, in seconds
  write(project("chisou_men/gps/walk.txt"), {"499560,128520,0,0,0", "499860,128520,0,0,1"});
  write(project("chisou_men/gps/walk.nme"),
        {"$GPGGA,1,3543.00000,N,13846.00000,E,1", "$GPGGA,1,3543.00000,N,13851.00000,E,1"});
  open_sheet(0, "533846");
  ASSERT_TRUE(session.canvas.is_geographic);
  EXPECT_EQ(route_pixels(), 0);
  const auto tick_all = [](QWidget* dialog) {
    dialog->findChild<QPushButton*>("Command3")->click();
    dialog->findChild<QPushButton*>("Command1")->click();
  };
  choose("menu_keiro", tick_all);
  const int track = route_pixels();
  EXPECT_GT(track, 100);
  choose("GPS_MNEA", tick_all);
  const int both = route_pixels();
  EXPECT_GT(both, track + 100);

  auto* box = window->findChild<QCheckBox*>("Check8");
  box->click();
  EXPECT_EQ(route_pixels(), 0);
  box->click();
  EXPECT_EQ(route_pixels(), both);

  choose("menu_keiro", [](QWidget* dialog) {
    dialog->findChild<QPushButton*>("none")->click();
    dialog->findChild<QPushButton*>("Command1")->click();
  });
  EXPECT_EQ(disk.length(project("chisou_men/keiro_out.dat")), 0);
  EXPECT_LT(route_pixels(), both - 100);
}

// How many of this process's open files are that device.
int open_ends(const std::string& device) {
  int count = 0;
  for (const auto& entry : std::filesystem::directory_iterator("/proc/self/fd")) {
    std::error_code gone;
    count += std::filesystem::read_symlink(entry.path(), gone) == device;
  }
  return count;
}

TEST_F(Window_instruments, CloseTheReceiversPortWhenTheWindowCloses) {
  if (!std::filesystem::exists("/proc/self/fd")) GTEST_SKIP() << "this system doesn't list a process's open files";
  open();
  emulator::Pseudo_terminal line(program("ports/com04"));
  ASSERT_TRUE(line.plug_in());
  const int before = open_ends(line.path());
  switch_gps();
  EXPECT_EQ(open_ends(line.path()), before + 1);
  window->findChild<QAction*>("menu_end")->trigger();
  EXPECT_FALSE(window->isVisible());
  EXPECT_EQ(session.flags.gps_running, 0);
  EXPECT_EQ(open_ends(line.path()), before);
}

// A download that broke off, read back, saved and registered; then the registering is taken back.
TEST_F(Window_instruments, KeepWhatCameFromTheClinometerWhenTheRegistryIsTakenBack) {
  open();
  open_sheet(0, "533846");
  const std::string log = emulator::memory_line(1) + "\r\n" + emulator::memory_line(2) + "\r\n00";
  disk.write_whole(program("Tiltvane.tmp"), log);
  QTimer::singleShot(0, [&] {
    QWidget* dialog = QApplication::activeModalWidget();
    ASSERT_TRUE(dialog);
    for (const char* name : {"read_again", "all", "Command10", "Tiltvane_File_Make", "close"}) {
      auto* button = dialog->findChild<QPushButton*>(name);
      ASSERT_TRUE(button) << name;
      button->click();
    }
  });
  window->findChild<QAction*>("menu_dc_read")->trigger();
  EXPECT_EQ(session.registry.N, 2);
  EXPECT_EQ(disk.list(program("Tiltvane"), "*.csv").size(), 1U);

  window->findChild<QAction*>("menu_undo")->trigger();
  EXPECT_EQ(session.registry.N, 0);
  EXPECT_EQ(disk.list(program("Tiltvane"), "*.csv").size(), 1U);
  EXPECT_EQ(disk.read_bytes(program("Tiltvane.tmp")), log);
  EXPECT_GT(disk.length(program("TMP2.TMP")), 0);
}

}  // namespace
