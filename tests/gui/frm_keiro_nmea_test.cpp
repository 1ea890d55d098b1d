#include "ui/frm_keiro_nmea.h"

#include <QComboBox>

#include "gui/route_dialogs.h"

namespace {

struct Frm_keiroNMEA : support::Route_dialogs {
  std::string logs = place.folder.text() + "\\logs";
  void put_logs() {
    place.disk.make_folder(logs);
    place.put(logs + "\\081115.NME", "x");
    place.put(logs + "\\081116.NME", "x");
    place.put_track("081117.NME", "x");
  }
};
INSTANTIATE_TEST_SUITE_P(BothLanguages, Frm_keiroNMEA, testing::Values("Japanese", "English"));

TEST_P(Frm_keiroNMEA, HasEveryWidgetAndIsClippedNowhere) {
  put_logs();
  open<ui::Frm_keiroNMEA>();
  EXPECT_EQ(dialog->objectName(), "frm_keiroNMEA");
  for (const char* name : {"Drive1", "Dir1", "List1", "Command1", "Command2", "Command3"}) find<QWidget>(name);
  EXPECT_EQ(dialog->windowTitle(), japanese() ? "ルート表示（NMEA形式）" : "Show Routes (NMEA Logs)");
  expect_well_laid_out();
}

TEST_P(Frm_keiroNMEA, BrowsesToAFolderAndWritesFullPaths) {
  put_logs();
  const auto* shown = open<ui::Frm_keiroNMEA>();
  QSignalSpy changed(shown, &ui::Frm_keiroNMEA::routes_changed);
  ASSERT_EQ(find<QListWidget>("List1")->count(), 1);
  dialog->activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(dialog.get()));
  find<QLineEdit>("Dir1")->setFocus();
  find<QLineEdit>("Dir1")->selectAll();
  QTest::keyClicks(find<QLineEdit>("Dir1"), ui::to_toolkit(logs));
  QTest::keyClick(find<QLineEdit>("Dir1"), Qt::Key_Tab);
  ASSERT_EQ(find<QListWidget>("List1")->count(), 2);
  row(1)->setCheckState(Qt::Checked);
  press("Command1");
  EXPECT_EQ(list("keiro_out2.dat"), logs + "\\081116.NME\r\n");
  EXPECT_EQ(changed.count(), 1);
  open<ui::Frm_keiroNMEA>();
  EXPECT_EQ(ui::from_toolkit(find<QLineEdit>("Dir1")->text()), logs);
  EXPECT_EQ(row(0)->checkState(), Qt::Unchecked);
  EXPECT_EQ(row(1)->checkState(), Qt::Checked);
}

// A drive as the machine would offer it; with one alone the box has nothing to choose and isn't shown.
TEST_P(Frm_keiroNMEA, GoesToAChosenDrive) {
  put_logs();
  open<ui::Frm_keiroNMEA>();
  auto* drives = find<QComboBox>("Drive1");
  EXPECT_EQ(drives->isVisible(), drives->count() > 1);
  ASSERT_EQ(find<QListWidget>("List1")->count(), 1);
  drives->addItem("L:", ui::to_toolkit(place.disk.native_path(logs)));
  drives->setCurrentIndex(drives->count() - 1);
  emit drives->activated(drives->currentIndex());
  ASSERT_EQ(find<QListWidget>("List1")->count(), 2);
  EXPECT_EQ(row(0)->text(), "081115.NME");
}

TEST_P(Frm_keiroNMEA, KeepsTicksWhileTheFolderStays) {
  put_logs();
  open<ui::Frm_keiroNMEA>();
  press("Command3");
  emit find<QLineEdit>("Dir1")->editingFinished();
  EXPECT_EQ(row(0)->checkState(), Qt::Checked);
}

TEST_P(Frm_keiroNMEA, WritesTheFolderThatWasTypedLast) {
  put_logs();
  open<ui::Frm_keiroNMEA>();
  press("Command3");
  find<QLineEdit>("Dir1")->setText(ui::to_toolkit(logs));
  press("Command1");
  EXPECT_EQ(list("keiro_out2.dat"), "");  // nothing of that folder was ticked
}

TEST_P(Frm_keiroNMEA, ClosesWithoutAChangeAndTicksNone) {
  put_logs();
  open<ui::Frm_keiroNMEA>();
  press("Command3");
  press("none");
  EXPECT_EQ(row(0)->checkState(), Qt::Unchecked);
  press("Command2");
  EXPECT_FALSE(dialog->isVisible());
  EXPECT_EQ(list("keiro_out2.dat"), "");
}

}  // namespace
