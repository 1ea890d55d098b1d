#include "ui/frame2.h"

#include <gmock/gmock.h>

#include <QComboBox>
#include <QGroupBox>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>
#include <QTabWidget>
#include <QTest>

#include <memory>

#include "core/language.h"
#include "gui/clipping.h"
#include "support/settings_place.h"
#include "ui/folder_box.h"
#include "ui/text_box.h"
#include "ui/toolkit_text.h"

namespace {

using support::Place;
using testing::ElementsAre;

// The dialog on a project with two registration files, opened as the menu does.
struct Opened {
  Place place{{"a.csv", "谷.csv"}};
  std::unique_ptr<ui::Frame2_dialog> dialog;
  int saved = 0, closed = 0;

  explicit Opened(const char* language, bool with_settings = true) {
    place.settings.language = language;
    place.settings.english_seen = !core::is_japanese(language);
    place.prompts.use_language(language);
    if (with_settings) {
      place.settei(support::joined(support::settei_lines(place.project.string(), "a.csv")));
      place.read();
    }
    core::menu_settei(place.settings, place.boxes, place.files);
    dialog = std::make_unique<ui::Frame2_dialog>(place.settings, place.boxes, place.files, place.prompts);
    dialog->saved = [this] { ++saved; };
    dialog->closed = [this] { ++closed; };
    dialog->show();
  }

  template <typename Widget>
  Widget* find(const QString& name) const {
    auto* widget = dialog->findChild<Widget*>(name);
    if (!widget) ADD_FAILURE() << "no widget " << name.toStdString();
    return widget;
  }
  void type(const QString& name, const QString& text) const {
    find<QLineEdit>(name)->setFocus();
    find<QLineEdit>(name)->selectAll();
    QTest::keyClicks(find<QLineEdit>(name), text);
  }
  void press(const QString& name) const { find<QPushButton>(name)->click(); }
  void page(int index) const { find<QTabWidget>("tabs")->setCurrentIndex(index); }
};

class Frame2 : public testing::TestWithParam<const char*> {};
INSTANTIATE_TEST_SUITE_P(BothLanguages, Frame2, testing::Values("Japanese", "English"));

TEST_P(Frame2, HasEveryWidgetByItsName) {
  const Opened opened(GetParam());
  const char* names[] = {"Dir3",      "File4",     "Dir4",      "Label11",   "Combo4",    "Combo5",    "Option4_0",
                         "Option4_1", "Option4_2", "Option5_0", "Option5_1", "Text3_0",   "Text3_1",   "Text3_2",
                         "Text3_3",   "Text3_4",   "Option6",   "Option7",   "File11",    "Text5",     "Text6",
                         "Text7",     "Text8",     "Text9",     "Text10",    "Dir10",     "Option8",   "Option9",
                         "Text2",     "Text4",     "Command10", "Command11", "Command14", "Command44", "Command45",
                         "Command24", "Command20", "Frame12",   "Frame8",    "Frame17",   "Frame15",   "Label30"};
  for (const char* name : names) EXPECT_NE(opened.dialog->findChild<QWidget*>(name), nullptr) << name;
  EXPECT_EQ(opened.dialog->objectName(), "Frame2");
}

TEST_P(Frame2, EveryEntryBoxAndButtonSaysWhatItIs) {
  const Opened opened(GetParam());
  for (const auto* box : opened.dialog->findChildren<QLineEdit*>()) {
    const bool in_combo = qobject_cast<QComboBox*>(box->parentWidget());
    const QString name = in_combo ? box->parentWidget()->accessibleName() : box->accessibleName();
    EXPECT_FALSE(name.isEmpty()) << box->objectName().toStdString();
  }
  for (const auto* pressed : opened.dialog->findChildren<QAbstractButton*>()) {
    const QString name = pressed->objectName();
    if (name.startsWith("qt_") || name.startsWith("Scroll") || name.isEmpty()) continue;  // the toolkit's own
    EXPECT_FALSE(pressed->text().isEmpty()) << name.toStdString();
  }
}

TEST_P(Frame2, NothingIsClippedOnAnyPage) {
  const Opened opened(GetParam());
  for (const QSize size : {opened.dialog->size(), QSize(1280, 660), opened.dialog->minimumSizeHint()}) {
    opened.dialog->resize(size);
    for (int page = 0; page < 3; ++page) {
      opened.page(page);
      if (page == 2) opened.press("Command24");
      QCoreApplication::processEvents();
      EXPECT_TRUE(support::nothing_clipped(opened.dialog.get())) << "page " << page << ", width " << size.width();
    }
  }
}

TEST_P(Frame2, TheTabKeyGoesDownThePage) {
  const Opened opened(GetParam());
  const char* order[] = {"Dir4",  "Dir4_browse", "Text2",     "Command14", "File11",
                         "Text4", "Command44",   "Command45", "Command10", "Command11"};
  opened.dialog->activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(opened.dialog.get()));
  opened.find<QLineEdit>("Dir4")->setFocus();
  for (const char* name : order) {
    QWidget* at = opened.dialog->focusWidget();
    ASSERT_NE(at, nullptr);
    EXPECT_EQ(at->objectName(), name);
    QTest::keyClick(at, Qt::Key_Tab);
  }
}

TEST_P(Frame2, FitsASmallScreen) {
  const Opened opened(GetParam());
  EXPECT_LE(opened.dialog->width(), 1280);
  EXPECT_LE(opened.dialog->height(), 620);
  EXPECT_LE(opened.dialog->minimumSizeHint().height(), 620);
}

TEST_P(Frame2, SavesWhatWasTyped) {
  Opened opened(GetParam());
  opened.type("Text5", "1500");
  opened.type("Text10", "3000");
  opened.type("Text3_1", "C9");
  opened.find<QComboBox>("Combo4")->setCurrentText("07");
  opened.find<QRadioButton>("Option4_2")->click();
  opened.find<QRadioButton>("Option7")->click();
  opened.find<QRadioButton>("Option9")->click();
  opened.find<QListWidget>("File11")->item(1)->setCheckState(Qt::Checked);
  opened.press("Command10");
  std::vector<std::string> lines = support::settei_lines(opened.place.project.string(), "a.csv,谷.csv");
  lines[3] = "07";
  lines[5] = lines[15] = lines[25] = "False";
  lines[7] = lines[16] = lines[26] = "True";
  lines[11] = "C9";
  lines[18] = "1500";
  lines[22] = "4500";  // 1500 / 1000 x 3000
  lines[23] = "3000";
  EXPECT_TRUE(support::same_bytes(opened.place.settei(), platform::encode_932(support::joined(lines))));
  EXPECT_FALSE(opened.dialog->isVisible());
  EXPECT_EQ(opened.saved, 1);
  EXPECT_EQ(opened.closed, 1);
  EXPECT_EQ(opened.place.settings.datum_mode, core::wgs_84);
  EXPECT_EQ(opened.place.boxes.Text9, "4500");
  EXPECT_TRUE(opened.place.prompts.shown.empty());
}

TEST_P(Frame2, CancelThrowsTheEditsAway) {
  for (const bool by_key : {false, true}) {
    Opened opened(GetParam());
    const std::string before = opened.place.settei();
    opened.type("Text5", "9");
    if (by_key)
      QTest::keyClick(opened.dialog.get(), Qt::Key_Escape);
    else
      opened.press("Command11");
    EXPECT_FALSE(opened.dialog->isVisible());
    EXPECT_EQ(opened.saved, 0);
    EXPECT_EQ(opened.closed, 1);
    EXPECT_EQ(opened.place.settei(), before);
    opened.dialog->show();
    EXPECT_EQ(opened.find<QLineEdit>("Text5")->text(), "1000");
  }
}

TEST_P(Frame2, WithoutAFileTickedStaysOpenWithWhatWasTyped) {
  Opened opened(GetParam());
  opened.find<QListWidget>("File11")->item(0)->setCheckState(Qt::Unchecked);
  opened.type("Text5", "9");
  opened.press("Command10");
  ASSERT_EQ(opened.place.prompts.shown.size(), 1u);
  EXPECT_TRUE(opened.dialog->isVisible());
  EXPECT_EQ(opened.find<QLineEdit>("Text5")->text(), "9");
  EXPECT_EQ(opened.saved, 0);
}

TEST_P(Frame2, AFailingSaveKeepsTheDialogOpenWithWhatWasTyped) {
  Opened opened(GetParam());
  support::Read_only_files files;
  ui::Frame2_dialog dialog(opened.place.settings, opened.place.boxes, files, opened.place.prompts);
  dialog.show();
  const std::string before = opened.place.settei();
  dialog.findChild<QLineEdit*>("Text5")->setText("1234");
  dialog.findChild<QPushButton*>("Command10")->click();
  ASSERT_EQ(opened.place.prompts.shown.size(), 1u);
  EXPECT_TRUE(dialog.isVisible());
  EXPECT_EQ(dialog.findChild<QLineEdit*>("Text5")->text(), "1234");
  EXPECT_EQ(dialog.findChild<QLineEdit*>("Text9")->text(), "6000");
  EXPECT_EQ(opened.place.settei(), before);
  EXPECT_EQ(opened.place.boxes.Text5, "1000");
}

TEST_P(Frame2, MarksABoxWithCharactersThatCannotBeStored) {
  Opened opened(GetParam());
  auto* box = opened.find<QLineEdit>("Text3_1");
  const QString hint = box->toolTip();
  EXPECT_EQ(hint, "記入例例：Ｂ４");
  box->setText("B4𠮷");
  EXPECT_FALSE(ui::text_box_good(box));
  EXPECT_TRUE(box->toolTip().endsWith("𠮷")) << box->toolTip().toStdString();
  opened.press("Command10");
  EXPECT_TRUE(opened.dialog->isVisible());
  ASSERT_EQ(opened.place.prompts.shown.size(), 1u);
  EXPECT_THAT(opened.place.prompts.shown[0], testing::EndsWith("𠮷"));
  box->setText("B4髙");
  EXPECT_TRUE(ui::text_box_good(box));
  EXPECT_EQ(box->toolTip(), hint);
}

TEST_P(Frame2, ThePickerFillsTheFolderAndListsItsFiles) {
  Opened opened(GetParam());
  const auto other = opened.place.folder.path() / "other";
  std::filesystem::create_directories(other / "chisou_men");
  support::put(other / "chisou_men" / "new.csv", "");
  QString started;
  opened.find<ui::Folder_box>("Dir4_box")->pick = [&](const QString& start) {
    started = start;
    return QString::fromStdString(other.string());
  };
  opened.press("Dir4_browse");
  EXPECT_EQ(started.toStdString(), opened.place.project.string());
  EXPECT_EQ(opened.find<QLineEdit>("Dir4")->text().toStdString(), other.string());
  auto* list = opened.find<QListWidget>("File11");
  ASSERT_EQ(list->count(), 1);
  EXPECT_EQ(list->item(0)->text(), "new.csv");
  EXPECT_EQ(list->item(0)->checkState(), Qt::Unchecked);
}

TEST_P(Frame2, ADismissedPickerLeavesTheFolder) {
  Opened opened(GetParam());
  opened.find<ui::Folder_box>("Dir10_box")->pick = [](const QString&) { return QString(); };
  opened.find<QLineEdit>("Dir10")->setText("C:\\sheets");
  opened.press("Dir10_browse");
  EXPECT_EQ(opened.find<QLineEdit>("Dir10")->text(), "C:\\sheets");
}

TEST_P(Frame2, MakesAProjectAndItsFirstFile) {
  Opened opened(GetParam(), false);
  opened.find<QLineEdit>("Dir4")->setText(QString::fromStdString(opened.place.folder.text()));
  opened.type("Text2", "fresh");
  opened.press("Command14");
  const auto fresh = opened.place.folder.path() / "fresh";
  EXPECT_TRUE(std::filesystem::is_directory(fresh / "chisou_men"));
  EXPECT_EQ(opened.find<QLineEdit>("Dir4")->text().toStdString(), opened.place.folder.text() + "\\fresh");
  opened.type("Text4", "first");
  QTest::keyClick(opened.find<QLineEdit>("Text4"), Qt::Key_Return);
  EXPECT_TRUE(std::filesystem::exists(fresh / "chisou_men" / "first.csv"));
  EXPECT_TRUE(opened.dialog->isVisible()) << "Enter in the name makes the file and saves nothing";
  opened.press("Command10");
  EXPECT_FALSE(opened.dialog->isVisible());
  EXPECT_EQ(opened.place.settings.registry_name, "first.csv");
  EXPECT_TRUE(opened.place.prompts.shown.empty());
}

TEST_P(Frame2, DeletesTickedFilesAfterTheQuestion) {
  Opened opened(GetParam());
  opened.place.prompts.answers = {platform::Answer::yes};
  opened.press("Command45");
  auto* list = opened.find<QListWidget>("File11");
  ASSERT_EQ(list->count(), 1);
  EXPECT_EQ(list->item(0)->text(), "谷.csv");
}

TEST_P(Frame2, OpensAndClosesTheFrameOfTheInputSheet) {
  Opened opened(GetParam());
  opened.page(2);
  EXPECT_FALSE(opened.find<QWidget>("Frame12")->isVisible());
  opened.press("Command24");
  EXPECT_EQ(opened.find<QLineEdit>("Text3_2")->placeholderText(), "記入例例：Ｂ４");
  EXPECT_TRUE(opened.find<QWidget>("Frame12")->isVisible());
  opened.press("Command20");
  EXPECT_FALSE(opened.find<QWidget>("Frame12")->isVisible());
}

TEST_P(Frame2, ListsTenPortsAndShowsTheDefaults) {
  const Opened opened(GetParam(), false);
  auto* port = opened.find<QComboBox>("Combo4");
  ASSERT_EQ(port->count(), 10);
  EXPECT_EQ(port->itemText(0), "01");
  EXPECT_EQ(port->itemText(9), "10");
  EXPECT_EQ(port->currentText(), "04");
  EXPECT_EQ(opened.find<QComboBox>("Combo5")->currentText(), "9600");
  EXPECT_EQ(opened.find<QLineEdit>("Text3_0")->text(), "sheet1");
}

TEST_P(Frame2, ShowsTheStoredProjectFolderBesideTheTypedOne) {
  Opened opened(GetParam());
  opened.find<QLineEdit>("Dir4")->setText("C:\\typed");
  EXPECT_EQ(opened.find<QLineEdit>("Label11")->text().toStdString(), opened.place.project.string());
  EXPECT_TRUE(opened.find<QLineEdit>("Label11")->isReadOnly());
}

TEST_P(Frame2, IsDraggedByAnyPlaceThatHoldsNoBox) {
  Opened opened(GetParam());
  opened.dialog->move(100, 80);
  const QPoint before = opened.dialog->pos();
  QTest::mousePress(opened.dialog.get(), Qt::LeftButton, {}, {4, 4});
  QTest::mouseMove(opened.dialog.get(), {34, 24});
  EXPECT_EQ(opened.dialog->pos() - before, QPoint(30, 20));
  QTest::mouseRelease(opened.dialog.get(), Qt::LeftButton, {}, {4, 4});
  QTest::mouseMove(opened.dialog.get(), {60, 60});
  EXPECT_EQ(opened.dialog->pos() - before, QPoint(30, 20)) << "only while the button is held";
}

TEST_P(Frame2, TheSheetFolderFollowsItsOption) {
  Opened opened(GetParam());
  opened.find<QRadioButton>("Option5_1")->click();
  EXPECT_EQ(opened.find<QLineEdit>("Dir10")->text().toStdString(), opened.place.program.string() + "\\map50000");
}

TEST_P(Frame2, WithoutSettingsCancelStaysAndTheWindowsFrameCloses) {
  Opened opened(GetParam(), false);
  opened.press("Command11");
  EXPECT_TRUE(opened.dialog->isVisible());
  EXPECT_EQ(opened.place.prompts.shown.size(), 1u);
  opened.dialog->close();
  EXPECT_FALSE(opened.dialog->isVisible());
  EXPECT_EQ(opened.place.prompts.shown.size(), 1u);
  EXPECT_EQ(opened.closed, 1);
  EXPECT_EQ(opened.saved, 0);
}

TEST(Frame2_language, TakesItsCaptionsFromTheTables) {
  const Opened japanese("Japanese"), english("English");
  EXPECT_EQ(japanese.dialog->windowTitle(), "基本設定");
  EXPECT_EQ(english.dialog->windowTitle(), "Basic Setting");
  EXPECT_EQ(japanese.find<QRadioButton>("Option6")->text(), "旧日本測地系");
  EXPECT_EQ(english.find<QRadioButton>("Option6")->text(), "Tokyo Datum");
  EXPECT_EQ(japanese.find<QPushButton>("Command10")->text(), "保存");
  EXPECT_EQ(english.find<QPushButton>("Command45")->text(), "Delete");
  const std::pair<const char*, const char*> options[] = {
      {"Option4_0", "入力年月日毎"}, {"Option4_1", "標準メッシュ（３次メッシュ）"},
      {"Option4_2", "手入力"},       {"Option7", "世界測地系"},
      {"Option8", "登録番号"},       {"Option9", "走向傾斜計測番号"}};
  for (const auto& [name, text] : options) EXPECT_EQ(japanese.find<QRadioButton>(name)->text(), text);
  EXPECT_EQ(japanese.find<QGroupBox>("Frame12")->title(), "入力基本枠ファイルの設定");
}

TEST(Frame2_language, GoingBackToJapaneseLeavesTheTablesEnglishOnlyEntries) {
  Opened opened("English");
  core::menu_language(opened.place.settings, "Japanese", opened.place.files, opened.place.prompts);
  opened.dialog->Language_set();
  EXPECT_EQ(opened.find<QPushButton>("Command10")->text(), "Save");
  EXPECT_EQ(opened.find<QRadioButton>("Option4_0")->text(), "入力年月日毎");
}

}  // namespace
