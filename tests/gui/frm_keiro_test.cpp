#include "ui/frm_keiro.h"

#include "gui/route_dialogs.h"

namespace {

using testing::ElementsAre;
using testing::HasSubstr;

struct Frm_keiro : support::Route_dialogs {
  void put_tracks() {
    place.put_track("081115.txt", "x");
    place.put_track("081116.txt", "x");
    place.put_lines(place.data("keiro_out.dat"), {"081116.txt"});
  }
};
INSTANTIATE_TEST_SUITE_P(BothLanguages, Frm_keiro, testing::Values("Japanese", "English"));

TEST_P(Frm_keiro, HasEveryWidgetAndIsClippedNowhere) {
  put_tracks();
  open<ui::Frm_keiro>();
  EXPECT_EQ(dialog->objectName(), "frm_keiro");
  for (const char* name : {"List1", "Command1", "Command2", "Command3"}) find<QWidget>(name);
  EXPECT_EQ(dialog->windowTitle(), japanese() ? "ルート表示" : "Show Routes");
  EXPECT_EQ(dialog->focusWidget()->objectName(), "List1");
  expect_well_laid_out();
}

TEST_P(Frm_keiro, ShowsEarlierChoicesTickedAndWritesTheNewOnes) {
  put_tracks();
  const auto* shown = open<ui::Frm_keiro>();
  QSignalSpy changed(shown, &ui::Frm_keiro::routes_changed);
  EXPECT_EQ(row(0)->checkState(), Qt::Unchecked);
  EXPECT_EQ(row(1)->checkState(), Qt::Checked);
  EXPECT_EQ(find<QLabel>("counted")->text(), japanese() ? "1 / 2 件" : "1 of 2");
  QTest::keyClick(find<QListWidget>("List1"), Qt::Key_Space);
  EXPECT_EQ(row(0)->checkState(), Qt::Checked);
  row(1)->setCheckState(Qt::Unchecked);
  EXPECT_EQ(find<QLabel>("counted")->text(), japanese() ? "1 / 2 件" : "1 of 2");
  QTest::keyClick(dialog.get(), Qt::Key_Return);
  EXPECT_EQ(list("keiro_out.dat"), "081115.txt\r\n");
  EXPECT_EQ(changed.count(), 1);
  EXPECT_FALSE(dialog->isVisible());
}

TEST_P(Frm_keiro, TicksAllAndNone) {
  put_tracks();
  open<ui::Frm_keiro>();
  press("Command3");
  EXPECT_EQ(row(0)->checkState(), Qt::Checked);
  press("none");
  EXPECT_EQ(row(1)->checkState(), Qt::Unchecked);
  press("Command1");
  EXPECT_EQ(list("keiro_out.dat"), "");
}

TEST_P(Frm_keiro, ClosesWithoutAChange) {
  put_tracks();
  const auto* shown = open<ui::Frm_keiro>();
  QSignalSpy changed(shown, &ui::Frm_keiro::routes_changed);
  press("Command3");
  press("Command2");
  EXPECT_FALSE(dialog->isVisible());
  EXPECT_EQ(list("keiro_out.dat"), "081116.txt\r\n");
  EXPECT_EQ(changed.count(), 0);
}

TEST_P(Frm_keiro, SaysThatThereIsNoTrack) {
  open<ui::Frm_keiro>();
  EXPECT_TRUE(find<QLabel>("told")->isVisible());
  EXPECT_THAT(ui::from_toolkit(find<QLabel>("told")->text()), HasSubstr("*.txt"));
  EXPECT_FALSE(find<QPushButton>("Command3")->isEnabled());
  expect_well_laid_out();
}

TEST_P(Frm_keiro, StaysOpenWhenTheListCantBeWritten) {
  put_tracks();
  const auto* shown = open<ui::Frm_keiro>();
  QSignalSpy changed(shown, &ui::Frm_keiro::routes_changed);
  place.files.read_only = true;
  press("Command1");
  EXPECT_THAT(place.prompts.shown, ElementsAre(HasSubstr("keiro_out.dat")));
  EXPECT_TRUE(dialog->isVisible());
  EXPECT_EQ(changed.count(), 0);
}

}  // namespace
