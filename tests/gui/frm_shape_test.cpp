#include "ui/frm_shape.h"

#include <gmock/gmock.h>

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QTest>

#include <memory>

#include "exchange/exchange_place.h"
#include "gui/clipping.h"
#include "gui/gui_support.h"
#include "support/fake_ports.h"
#include "ui/frm_shape_make.h"
#include "ui/toolkit_text.h"

namespace {

using testing::ElementsAre;
using testing::HasSubstr;

// A dialog on a place with a drawn shape, opened in one of the languages.
struct Shape_dialogs : testing::TestWithParam<const char*> {
  support::Exchange_place place;
  support::Fake_pictures pictures;
  support::Recorded_processes processes;
  support::Other_ports other{place.files};
  session::Ports ports{place.files, pictures,      place.prompts, processes,
                       place.clock, other.journal, other.sheets,  other.sounds};
  std::unique_ptr<QDialog> dialog;

  bool japanese() const { return std::string(GetParam()) == "Japanese"; }
  template <typename Dialog>
  void open() {
    place.settings.language = GetParam();
    place.prompts.use_language(GetParam());
    dialog = std::make_unique<Dialog>(place.settings, ports, place.clock);
    dialog->show();
  }
  template <typename Widget>
  Widget* find(const char* name) const {
    auto* widget = dialog->findChild<Widget*>(name);
    if (!widget) ADD_FAILURE() << "no widget " << name;
    return widget;
  }
  void type(const char* name, const QString& text) const {
    find<QLineEdit>(name)->setFocus();
    find<QLineEdit>(name)->selectAll();
    QTest::keyClicks(find<QLineEdit>(name), text);
  }
  void press(const char* name) const { find<QPushButton>(name)->click(); }
  void shape_set(const std::string& folder) { place.put_program("shape.set", folder + "\r\n"); }
};

struct Frm_Shape : Shape_dialogs {
  void open_on(const std::string& list) {
    place.list(list);
    shape_set(place.target);
    open<ui::Frm_Shape>();
  }
};
INSTANTIATE_TEST_SUITE_P(BothLanguages, Frm_Shape, testing::Values("Japanese", "English"));

TEST_P(Frm_Shape, GoesInPeaceWhileTheFolderHasTheKeyboard) {
  open<ui::Frm_Shape>();
  dialog->activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(dialog.get()));
  find<QLineEdit>("Dir1")->setFocus();
  dialog.reset();
}

TEST_P(Frm_Shape, HasEveryWidgetByItsNameAndItsCaption) {
  open_on("P,10,20\r\n");
  EXPECT_EQ(dialog->objectName(), "frm_Shape");
  for (const char* name : {"Drive1", "Dir1", "Text1", "Check1", "OK", "close", "hint"}) find<QWidget>(name);
  EXPECT_EQ(dialog->windowTitle(), japanese() ? "Shapeファイル作成" : "Make Shapefile");
}

TEST_P(Frm_Shape, IsClippedNowhereAndNamesEveryBox) {
  open_on("P,10,20\r\n");
  for (const QSize size : {dialog->size(), QSize(900, 500), dialog->minimumSizeHint()}) {
    dialog->resize(size);
    QCoreApplication::processEvents();
    EXPECT_TRUE(support::nothing_clipped(dialog.get())) << size.width();
  }
  EXPECT_EQ(support::nameless_widgets(*dialog).join(", ").toStdString(), "");
}

TEST_P(Frm_Shape, OpensWithTheLastFolderAndTheSecondSetUnticked) {
  open_on("P,10,20\r\n");
  EXPECT_EQ(ui::from_toolkit(find<QLineEdit>("Dir1")->text()), place.target);
  EXPECT_FALSE(find<QCheckBox>("Check1")->isChecked());
  EXPECT_THAT(ui::from_toolkit(find<QLabel>("hint")->text()), HasSubstr("_gis"));
  EXPECT_EQ(dialog->focusWidget()->objectName(), "Text1");
}

TEST_P(Frm_Shape, MakesTheFilesAndGoes) {
  open_on("P,10,20\r\n");
  type("Text1", "hill");
  QTest::keyClick(dialog.get(), Qt::Key_Return);
  EXPECT_THAT(place.names(), ElementsAre("hill.dbf", "hill.shp", "hill.shx"));
  EXPECT_THAT(place.prompts.shown, ElementsAre(place.target + "\\hillを作成しました。"));
  EXPECT_EQ(dialog->result(), QDialog::Accepted);
  EXPECT_FALSE(dialog->isVisible());
}

TEST_P(Frm_Shape, MakesTheSecondSetWhenItIsTicked) {
  open_on("P,10,20\r\n");
  type("Text1", "hill");
  find<QCheckBox>("Check1")->click();
  press("OK");
  EXPECT_THAT(place.names(), testing::Contains("hill_gis.shp"));
}

TEST_P(Frm_Shape, StaysWithoutAWordForANameOfBlanks) {
  open_on("P,10,20\r\n");
  type("Text1", "   ");
  press("OK");
  EXPECT_TRUE(dialog->isVisible());
  EXPECT_THAT(place.prompts.shown, ElementsAre());
  EXPECT_THAT(place.names(), ElementsAre());
}

TEST_P(Frm_Shape, SaysThatThereIsNoDrawnShape) {
  open_on("");
  EXPECT_TRUE(find<QLabel>("told")->isVisible());
  type("Text1", "hill");
  press("OK");
  EXPECT_TRUE(dialog->isVisible());
  EXPECT_THAT(place.names(), ElementsAre());
}

TEST_P(Frm_Shape, TellsAFailureInOneSentenceAndStays) {
  open_on("P,10,20\r\n");
  place.files.remove(platform::join_path(place.program, "def.dbf"));
  type("Text1", "hill");
  press("OK");
  EXPECT_THAT(place.prompts.shown, ElementsAre(HasSubstr("def.dbf")));
  EXPECT_TRUE(dialog->isVisible());
  place.list("P,ten,20\r\n");
  press("OK");
  EXPECT_THAT(place.prompts.shown.back(), HasSubstr("ten"));
  EXPECT_TRUE(dialog->isVisible());
}

TEST_P(Frm_Shape, GoesAndWritesNothingWhenItIsClosed) {
  open_on("P,10,20\r\n");
  type("Text1", "hill");
  press("close");
  EXPECT_EQ(dialog->result(), QDialog::Rejected);
  EXPECT_THAT(place.names(), ElementsAre());
}

struct Frm_ShapeMake : Shape_dialogs {
  void open_on_target() {
    place.files.write_whole(platform::join_path(place.target, "line.txt"), "L,0,0,10,0\r\n");
    place.files.write_whole(platform::join_path(place.target, "odd.txt"), "nothing\r\n");
    place.settings.project_path = place.target;
    open<ui::Frm_ShapeMake>();
  }
};
INSTANTIATE_TEST_SUITE_P(BothLanguages, Frm_ShapeMake, testing::Values("Japanese", "English"));

TEST_P(Frm_ShapeMake, IsClippedNowhereAndNamesEveryBox) {
  open_on_target();
  EXPECT_EQ(dialog->objectName(), "frm_ShapeMake");
  EXPECT_TRUE(support::nothing_clipped(dialog.get()));
  EXPECT_EQ(support::nameless_widgets(*dialog).join(", ").toStdString(), "");
}

TEST_P(Frm_ShapeMake, ConvertsThePickedFile) {
  open_on_target();
  auto* list = find<QListWidget>("File1");
  ASSERT_EQ(list->count(), 2);
  press("OK");  // nothing is picked
  EXPECT_TRUE(dialog->isVisible());
  list->setCurrentRow(1);
  press("OK");
  EXPECT_EQ(place.prompts.shown.size(), 1u);  // no shape in it
  EXPECT_TRUE(dialog->isVisible());
  list->setCurrentRow(0);
  press("OK");
  EXPECT_THAT(place.names(), ElementsAre("line.dbf", "line.shp", "line.shx", "line.txt", "odd.txt"));
  EXPECT_FALSE(dialog->isVisible());
}

TEST_P(Frm_ShapeMake, ListsTheFilesOfAnotherFolder) {
  open_on_target();
  dialog->activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(dialog.get()));
  type("Dir1", ui::to_toolkit(place.program));
  QTest::keyClick(find<QLineEdit>("Dir1"), Qt::Key_Tab);
  ASSERT_EQ(find<QListWidget>("File1")->count(), 1);
  EXPECT_EQ(find<QListWidget>("File1")->item(0)->text(), "def.dbf");
}

}  // namespace
