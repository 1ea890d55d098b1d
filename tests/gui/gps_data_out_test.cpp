#include "ui/gps_data_out.h"

#include <QComboBox>

#include "gui/route_dialogs.h"

namespace {

using testing::ElementsAre;

struct Gps_data_out : support::Route_dialogs {
  support::Fed_port port;
  void TearDown() override { dialog.reset(); }  // it closes the port when it goes
  void put_sentences() {
    place.put_lines(place.folder.text() + "\\GPS_DATA.DAT", {"$GPGGA,1,3530.0,N,13915.1,E,1", "$GPGSA,A,3"});
  }
  QString state() const { return find<QLabel>("state")->text(); }
};
INSTANTIATE_TEST_SUITE_P(BothLanguages, Gps_data_out, testing::Values("Japanese", "English"));

TEST_P(Gps_data_out, HasEveryWidgetAndIsClippedNowhere) {
  put_sentences();
  open<ui::Gps_data_out>(port);
  EXPECT_EQ(dialog->objectName(), "GPS_DATA_OUT");
  for (const char* name : {"Combo1", "Label2", "Command1", "Command2"}) find<QWidget>(name);
  ASSERT_EQ(find<QComboBox>("Combo1")->count(), 13);
  EXPECT_EQ(find<QComboBox>("Combo1")->itemText(0), "1");
  EXPECT_EQ(find<QComboBox>("Combo1")->itemText(12), "13");
  EXPECT_EQ(state(), japanese() ? "停止中（2行）" : "Stopped (2 lines)");
  expect_well_laid_out();
}

TEST_P(Gps_data_out, AsksForAPort) {
  put_sentences();
  open<ui::Gps_data_out>(port);
  press("Command1");
  EXPECT_THAT(place.prompts.shown, ElementsAre("ポート番号を選択して下さい。"));
  EXPECT_EQ(port.tries, 0);
}

TEST_P(Gps_data_out, SendsUntilItIsStopped) {
  put_sentences();
  session.boxes.Combo5 = "4800";
  open<ui::Gps_data_out>(port);
  find<QComboBox>("Combo1")->setCurrentIndex(4);
  press("Command1");
  EXPECT_EQ(port.number, 5);
  EXPECT_EQ(port.line, "4800,n,8,1");
  EXPECT_EQ(port.written, "$GPGGA,102030.00,3530.0,S,13915.1,E,1\r$GPGSA,A,3\r");
  EXPECT_EQ(find<QLabel>("Label2")->text(), "10:20:30");
  EXPECT_FALSE(find<QPushButton>("Command1")->isEnabled());
  place.clock.time.second = 31;
  ASSERT_TRUE(QTest::qWaitFor([&] { return find<QLabel>("Label2")->text() == "10:20:31"; }, 5000));
  press("Command2");
  EXPECT_FALSE(port.is_open());
  EXPECT_TRUE(find<QPushButton>("Command1")->isEnabled());
}

TEST_P(Gps_data_out, ClosesThePortWhenItGoes) {
  put_sentences();
  open<ui::Gps_data_out>(port);
  find<QComboBox>("Combo1")->setCurrentIndex(0);
  press("Command1");
  press("close");
  EXPECT_FALSE(port.is_open());
  EXPECT_FALSE(dialog->isVisible());
}

TEST_P(Gps_data_out, SaysThatThePortHasGone) {
  put_sentences();
  open<ui::Gps_data_out>(port);
  find<QComboBox>("Combo1")->setCurrentIndex(0);
  press("Command1");
  port.pull();
  ASSERT_TRUE(QTest::qWaitFor([&] { return find<QPushButton>("Command1")->isEnabled(); }, 5000));
  EXPECT_EQ(state(), japanese() ? "ポートが切断されました" : "The port has gone");
}

TEST_P(Gps_data_out, HasNothingToStartWithoutSentences) {
  open<ui::Gps_data_out>(port);
  EXPECT_FALSE(find<QPushButton>("Command1")->isEnabled());
  expect_well_laid_out();
}

TEST_P(Gps_data_out, ShowsTheDevicesBesideTheirNumbers) {
  auto* shown = open<ui::Gps_data_out>(port);
  shown->show_devices({{2, "/dev/ttyUSB0", "USB Serial"}, {3, "/dev/ttyS0", ""}, {40, "/dev/ttyS9", "far"}});
  EXPECT_EQ(find<QComboBox>("Combo1")->itemText(1), "2  USB Serial");
  EXPECT_EQ(find<QComboBox>("Combo1")->itemText(2), "3  /dev/ttyS0");
}

}  // namespace
