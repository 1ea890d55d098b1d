#include <gtest/gtest.h>

#include <QAction>
#include <QApplication>
#include <QDialog>
#include <QImage>
#include <QLabel>
#include <QListView>
#include <QPushButton>
#include <QTest>
#include <QTimer>

#include <fstream>
#include <functional>
#include <memory>

#include "core/session/start_up.h"
#include "emulator/pseudo_terminal.h"
#include "emulator_clinometer/clinometer_memory.h"
#include "platform/qt/qt_pictures.h"
#include "platform/text_files.h"
#include "support/fake_ports.h"
#include "support/scripted_prompts.h"
#include "support/temporary_folder.h"
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
    QTest::qWait(20);
  }
  void open_sheet(int row) {
    auto* list = window->findChild<QListView*>("List2");
    QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, list->visualRect(list->model()->index(row, 1)).center());
    QTest::qWait(20);
  }
  void switch_gps() {
    window->findChild<QAction*>("gps_switch")->trigger();
    for (QTimer* timer : window->findChildren<QTimer*>())
      if (timer->interval() == instruments::timer2_interval) timer->setInterval(20);
  }
  QString label(const char* name) const { return window->findChild<QLabel*>(name)->text(); }
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
  open_sheet(0);
  ASSERT_EQ(session.current_sheet, "533846");
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

  const QString folder_shown = label("shown_folder");
  line.write(burst("3542.0000", "13901.0000"));
  EXPECT_TRUE(comes([&] { return label("shown_folder") == QString::fromUtf8("範囲外"); }));
  EXPECT_EQ(label("Label16"), QString::fromUtf8("範囲外"));
  EXPECT_EQ(session.current_sheet, "533847");

  pass(11);
  EXPECT_TRUE(comes([&] { return session.gps.light == Gps_light::lost; }));
  line.unplug();
  EXPECT_TRUE(comes([&] { return session.gps.light == Gps_light::closed; }));
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

// A download that broke off, read back, saved and registered; then the registering is taken back.
TEST_F(Window_instruments, KeepWhatCameFromTheClinometerWhenTheRegistryIsTakenBack) {
  open();
  open_sheet(0);
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
