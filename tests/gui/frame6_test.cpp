#include "ui/frame6.h"

#include <gmock/gmock.h>

#include <QApplication>
#include <QCheckBox>
#include <QColorDialog>
#include <QComboBox>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QTimer>
#include <QToolButton>
#include <QWheelEvent>

#include "core/language.h"
#include "gui/clipping.h"
#include "gui/frame6_place.h"
#include "gui/gui_support.h"
#include "observations/marks.h"
#include "support/places.h"
#include "ui/colour_button.h"

namespace {

using namespace observations;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

struct Frame6 : testing::TestWithParam<const char*> {
  support::Frame6_place place{GetParam()};
  Entry_boxes& boxes = place.session.entry.boxes;

  bool japanese() const { return std::string(GetParam()) == "Japanese"; }
  const char* either(const char* in_japanese, const char* in_english) const {
    return japanese() ? in_japanese : in_english;
  }
  template <typename Widget>
  Widget* find(const char* name) const {
    return place.find<Widget>(name);
  }
  std::string text(const char* name) const { return ui::from_toolkit(find<QLineEdit>(name)->text()); }
  std::string choice(const char* name) const { return ui::from_toolkit(find<QComboBox>(name)->currentText()); }
  std::string tip(const char* name) const { return ui::from_toolkit(find<QWidget>(name)->toolTip()); }
  bool marked(const char* name) const {
    return find<QWidget>(name)->styleSheet().contains("border") &&
           find<QWidget>(name + QByteArray("_slip"))->isVisible();
  }
  // Picks in the colour dialog that the button opens.
  void pick(const char* button, const QColor& colour) const {
    QTimer::singleShot(0, [colour] {
      auto* dialog = qobject_cast<QColorDialog*>(QApplication::activeModalWidget());
      ASSERT_TRUE(dialog);
      dialog->setCurrentColor(colour);
      dialog->accept();
    });
    find<QPushButton>(button)->click();
  }
};
INSTANTIATE_TEST_SUITE_P(BothLanguages, Frame6, testing::Values("Japanese", "English"));

const char* const text_boxes[] = {"Text14_0", "Text14_1", "Text14_2", "Text14_3", "Text14_4",
                                  "Text14_5", "Text14_6", "Text14_7", "Text13"};

}  // namespace

TEST_P(Frame6, HasEveryWidgetByItsName) {
  for (const char* name : text_boxes) find<QLineEdit>(name);
  for (const char* name :
       {"Label19_0",      "Label19_1",    "Label19_2", "Label19_3", "Label19_4", "Label19_5",        "Label19_6",
        "Label19_7",      "Label19_8",    "Label60",   "Label29",   "Combo1",    "Combo2",           "Combo3",
        "Combo6",         "Combo7",       "Check1",    "Check7",    "Check9",    "Label3",           "VScroll2",
        "Shape1",         "Shape4",       "memo",      "Command1",  "Command6",  "Command7",         "Command8",
        "Command9",       "Command22",    "Command23", "Command31", "echo_raw",  "echo_declination", "echo_corrected",
        "echo_lineation", "pick_position"})
    find<QWidget>(name);
  EXPECT_EQ(place.frame->objectName(), "Frame6");
}

TEST_P(Frame6, TakesItsLabelsFromTheLanguageTable) {
  EXPECT_EQ(place.label("Label19_6"), either("走向", "Strike"));
  EXPECT_EQ(place.label("Label19_7"), either("傾斜", "Dip"));
  EXPECT_EQ(place.label("Label19_2"), either("Z(m)", "H(m)"));
  EXPECT_EQ(place.label("Label19_3"), either("計測対象", "Type"));
  EXPECT_EQ(place.label("Label19_4"), either("地層名", "Stratum"));
  EXPECT_EQ(place.label("Label19_5"), either("線傾斜", "Plange"));
  EXPECT_EQ(place.label("Label19_8"), either("線方向", "Lineation"));
  EXPECT_EQ(place.label("Label60"), either("登録番号", "RecordNo"));
  EXPECT_EQ(place.label("Label29"), either("走向傾斜計測番号", "TiltvaneDataNo"));
  EXPECT_EQ(find<QPushButton>("Command9")->text(), QString(either("保存", "Save")));
  EXPECT_EQ(find<QPushButton>("Command22")->text(), QString(either("閉じる", "Close")));
  EXPECT_EQ(find<QPushButton>("Command6")->text(), QString(either("線(囲み)開始", "Line Start")));
  EXPECT_EQ(find<QCheckBox>("Check9")->text(),
            QString(either("偏角補正済みデータ(偏角補正を行わない。)", "True North Data")));
}

TEST_P(Frame6, ShowsTheExamplesInTheEmptyBoxes) {
  place.open();
  EXPECT_EQ(find<QLineEdit>("Text14_5")->placeholderText(), QString(either("(入力例:N15W)", "(Example: N15W)")));
  EXPECT_EQ(find<QLineEdit>("Text14_6")->placeholderText(), QString(either("(入力例：30E)", "(Example: 30E)")));
  EXPECT_EQ(tip("Text14_5"), either("(入力例:N15W)", "(Example: N15W)"));
}

TEST_P(Frame6, NamesTheTwoWaysOfGivingAPosition) {
  place.open();
  EXPECT_EQ(place.label("move_hint"), either("地点変更は右クリック", "A right click changes the position"));
  EXPECT_TRUE(find<QWidget>("move_hint")->isVisible());
  EXPECT_TRUE(find<QPushButton>("pick_position")->isEnabled());
}

TEST_P(Frame6, NamesTheBoxesThatNoTableNames) {
  EXPECT_EQ(place.label("Label19_0"), "X(m)");
  EXPECT_EQ(place.label("Label19_1"), "Y(m)");
  EXPECT_EQ(place.label("label_mark"), "Mark");
  EXPECT_EQ(place.label("label_size"), "Large");
  EXPECT_EQ(place.label("label_colour"), "Color");
  EXPECT_EQ(place.label("label_picture"), either("画像ファイル名", "Picture file"));
  EXPECT_EQ(find<QPushButton>("colour_select")->text(), "Select");
  EXPECT_EQ(find<QPushButton>("Command8")->text(), QString(either("囲み線色", "Color")));
  EXPECT_EQ(find<QCheckBox>("Check7")->text(), QString(either("境界に使用する", "Use as a boundary")));
  EXPECT_EQ(find<QCheckBox>("Check1")->text(),
            QString(either("同標高点繰り返し入力", "Keep the height for new points")));
  EXPECT_EQ(find<QPushButton>("Command31")->text(), QString(either("線終了", "Line Stop")));
  EXPECT_EQ(find<QPushButton>("Command1")->text(), QString(either("入力シート登録", "Input sheet")));
  EXPECT_EQ(find<QPushButton>("Command7")->text(), QString(either("Shapeファイル作成", "Make Shapefile")));
  EXPECT_EQ(find<QPushButton>("Command23")->text(), QString(either("メモ表示", "Show memo")));
  EXPECT_EQ(find<QPushButton>("surface_add")->text(), QString(either("他の地層面に追加", "Add to another surface")));
}

TEST_P(Frame6, ChangesItsLanguage) {
  place.open();
  boxes.Text14[box_soukou] = "EW";
  place.session.settings.language = japanese() ? "English" : "Japanese";
  place.frame->Language_set();
  EXPECT_EQ(place.label("Label19_6"), either("Strike", "走向"));
  EXPECT_THAT(place.label("echo_notes"), HasSubstr(either("reads as 0", "0 と読まれます")));
  EXPECT_EQ(find<QComboBox>("Combo7")->itemText(1), QString(either("Stratum", "地層面")));
  // The marks are those of the language in which they were first offered.
  EXPECT_EQ(find<QComboBox>("Combo1")->itemText(0), QString(either("○", "circle")));
}

TEST_P(Frame6, OffersMarksSizesKindsAndStrata) {
  EXPECT_EQ(find<QComboBox>("Combo1")->count(), 13);
  EXPECT_EQ(find<QComboBox>("Combo1")->itemText(10), QString(either("範囲", "Area")));
  EXPECT_EQ(find<QComboBox>("Combo3")->itemText(9), "10");
  EXPECT_EQ(find<QComboBox>("Combo7")->itemText(2), QString(either("線構造", "Lineation")));
  EXPECT_EQ(find<QComboBox>("Combo6")->itemText(0), QString("砂岩"));
}

TEST_P(Frame6, KeepsATypedTextWhenTheListsAreFilledAgain) {
  place.open();
  find<QComboBox>("Combo6")->setFocus();
  QTest::keyClicks(find<QComboBox>("Combo6"), "chert");
  EXPECT_EQ(boxes.Combo6, "chert");
  place.session.stratum_names = {"礫岩"};
  boxes.Combo2_list = {"surface1"};
  const int before = place.edits;
  place.frame->lists_fill();
  EXPECT_EQ(choice("Combo6"), "chert");
  EXPECT_EQ(find<QComboBox>("Combo6")->itemText(0), QString("礫岩"));
  EXPECT_EQ(find<QComboBox>("Combo2")->itemText(0), "surface1");
  EXPECT_EQ(place.edits, before);
}

TEST_P(Frame6, ShowsWhatTheBoxesHold) {
  for (std::size_t i = 0; i < 8; ++i) boxes.Text14[i] = "t" + std::string(1, static_cast<char>('0' + i));
  boxes.Text13 = "17";
  boxes.Combo6 = "花崗岩";
  boxes.Combo7 = "Fault";
  boxes.Label3 = "081115-001.XLS";
  boxes.memo = "two\nlines";
  boxes.Shape1 = {10, 20, 300};  // as a file may hold it
  boxes.Shape4 = {1, 2, 3};
  boxes.Check1 = boxes.Check7 = boxes.Check9 = true;
  place.open();
  EXPECT_EQ(text("Text14_2"), "t2");
  EXPECT_EQ(text("Text14_7"), "t7");
  EXPECT_EQ(text("Text13"), "17");
  EXPECT_EQ(choice("Combo6"), "花崗岩");
  EXPECT_EQ(choice("Combo7"), "Fault");
  EXPECT_EQ(text("Label3"), "081115-001.XLS");
  EXPECT_EQ(find<QPlainTextEdit>("memo")->toPlainText(), "two\nlines");
  EXPECT_EQ(find<ui::Swatch>("Shape1")->colour(), QColor(10, 20, 255));
  EXPECT_EQ(find<ui::Swatch>("Shape4")->colour(), QColor(1, 2, 3));
  for (const char* name : {"Check1", "Check7", "Check9"}) EXPECT_TRUE(find<QCheckBox>(name)->isChecked()) << name;
  EXPECT_EQ(place.edits, 0);
  EXPECT_EQ(place.session.flags.data_dirty, 0);
}

TEST_P(Frame6, ShowsAMarkAndASizeThatNoListHas) {
  boxes.Combo1 = "囲み";
  boxes.Combo3 = "2.5";
  place.open();
  EXPECT_EQ(choice("Combo1"), "囲み");
  EXPECT_EQ(choice("Combo3"), "2.5");
  EXPECT_EQ(boxes.Combo1, "囲み");
}

TEST_P(Frame6, WritesEachTextAsItIsTyped) {
  place.open();
  for (std::size_t i = 0; i < 8; ++i) {
    place.type(text_boxes[i], "12");
    EXPECT_EQ(boxes.Text14[i], "12") << i;
  }
  place.type("Text13", "5");
  EXPECT_EQ(boxes.Text13, "5");
  EXPECT_EQ(place.edits, 17);  // one for each character
  EXPECT_EQ(place.positions, 4);
  EXPECT_EQ(place.session.flags.data_dirty, 1);
}

TEST_P(Frame6, WritesTicksChoicesAndTheMemo) {
  place.open();
  find<QCheckBox>("Check7")->click();
  find<QCheckBox>("Check9")->click();
  find<QComboBox>("Combo1")->setFocus();
  QTest::keyClick(find<QComboBox>("Combo1"), Qt::Key_Down);
  QTest::keyClick(find<QComboBox>("Combo3"), Qt::Key_Down);
  find<QPlainTextEdit>("memo")->setFocus();
  QTest::keyClicks(find<QPlainTextEdit>("memo"), "fresh");
  EXPECT_TRUE(boxes.Check7);
  EXPECT_TRUE(boxes.Check9);
  EXPECT_EQ(boxes.Combo1, either("●", "filled circle"));
  EXPECT_EQ(boxes.Combo3, "3");
  EXPECT_EQ(boxes.memo, "fresh");
  EXPECT_EQ(place.edits, 9);
}

TEST_P(Frame6, DoesNotCountTheTickForTheNextRecordAsAChangeOfThisOne) {
  place.open();
  find<QCheckBox>("Check1")->click();
  EXPECT_TRUE(boxes.Check1);
  EXPECT_EQ(place.edits, 0);
  EXPECT_EQ(place.session.flags.data_dirty, 0);
}

TEST_P(Frame6, TakesColoursFromThePicker) {
  place.open();
  pick("colour_select", QColor(200, 30, 40));
  pick("Command8", QColor(5, 6, 7));
  EXPECT_EQ(boxes.Shape1, (Colour{200, 30, 40}));
  EXPECT_EQ(boxes.Shape4, (Colour{5, 6, 7}));
  EXPECT_EQ(find<ui::Swatch>("Shape1")->colour(), QColor(200, 30, 40));
  EXPECT_EQ(place.edits, 2);
  EXPECT_THAT(place.commands, IsEmpty());
}

TEST_P(Frame6, LeavesTheColourWhenThePickerIsCancelled) {
  place.open();
  QTimer::singleShot(0, [] { qobject_cast<QDialog*>(QApplication::activeModalWidget())->reject(); });
  find<QPushButton>("colour_select")->click();
  EXPECT_EQ(boxes.Shape1, Colour{});
  EXPECT_EQ(place.edits, 0);
}

TEST_P(Frame6, ShowsHowTheTextsAreReadWhileTheyAreTyped) {
  place.open();
  place.type("Text14_5", "N15W");
  EXPECT_EQ(place.label("echo_raw"), "345°");
  EXPECT_EQ(place.label("echo_declination"), "-6.7°");  // Kochi: -6.715845
  EXPECT_EQ(place.label("echo_corrected"), "338.3°");
  place.type("Text14_6", "30W");
  EXPECT_EQ(place.label("echo_raw"), "165°");
  EXPECT_EQ(place.label("echo_dip"), "30°");
  EXPECT_EQ(place.label("echo_side"), "W 255°");
  EXPECT_EQ(place.label("echo_text_corrected"), "S21.7W 30W");
  EXPECT_THAT(place.label("echo_model"), HasSubstr("IGRF2005"));
  EXPECT_THAT(place.label("echo_model"), HasSubstr("2005.0"));
  EXPECT_FALSE(find<QWidget>("echo_lineation")->isVisible());
  place.type("Text14_4", "N30E");
  EXPECT_TRUE(find<QWidget>("echo_lineation")->isVisible());
  EXPECT_EQ(place.label("echo_lineation"), "30°");
  EXPECT_EQ(place.label("echo_lineation_corrected"), "23.3°");
}

TEST_P(Frame6, TakesTheDeclinationOfTheTypedPosition) {
  place.open();
  place.type("Text14_5", "N15W");
  place.type("Text14_0", "14134690");  // Sapporo: -9.224401
  place.type("Text14_1", "4306420");
  EXPECT_EQ(place.label("echo_declination"), "-9.2°");
  EXPECT_EQ(place.label("echo_corrected"), "335.8°");
}

TEST_P(Frame6, AppliesNoDeclinationToCorrectedData) {
  place.open();
  place.type("Text14_5", "N15W");
  find<QCheckBox>("Check9")->click();
  EXPECT_EQ(place.label("echo_declination"), either("加えない", "not applied"));
  EXPECT_EQ(place.label("echo_corrected"), "345°");
  find<QCheckBox>("Check9")->click();
  EXPECT_EQ(place.label("echo_corrected"), "338.3°");
}

TEST_P(Frame6, MarksABoxWhoseTextReadsAsZeroAndTakesTheMarkOff) {
  place.open();
  place.type("Text14_5", "EW");
  EXPECT_TRUE(marked("Text14_5"));
  EXPECT_THAT(tip("Text14_5"), HasSubstr(either("0 と読まれます", "reads as 0")));
  EXPECT_THAT(place.label("echo_notes"), HasSubstr(either("0 と読まれます", "reads as 0")));
  EXPECT_TRUE(find<QWidget>("echo_icon")->isVisible());
  EXPECT_EQ(boxes.Text14[box_soukou], "EW");  // marked, not refused
  place.type("Text14_5", "N90E");
  EXPECT_FALSE(marked("Text14_5"));
  EXPECT_EQ(tip("Text14_5"), either("(入力例:N15W)", "(Example: N15W)"));
  EXPECT_FALSE(find<QWidget>("echo_told")->isVisible());
}

TEST_P(Frame6, MarksOneBoxForItsOwnSlip) {
  place.open();
  place.type("Text14_5", "N120E");
  place.type("Text14_6", "30X");
  place.type("Text14_2", "high");
  for (const char* name : {"Text14_5", "Text14_6", "Text14_2"}) EXPECT_TRUE(marked(name)) << name;
  for (const char* name : {"Text14_0", "Text14_1", "Text14_3", "Text14_4", "Text14_7", "Text13"})
    EXPECT_FALSE(marked(name)) << name;
}

TEST_P(Frame6, TakesTheMarksOffWhenItCloses) {
  place.open();
  place.type("Text14_5", "EW");
  ASSERT_TRUE(find<QWidget>("Text14_5")->styleSheet().contains("border"));
  place.session.entry.open = false;
  place.session.flags.data_dirty = 0;
  place.frame->boxes_out();
  EXPECT_FALSE(find<QWidget>("Text14_5")->styleSheet().contains("border"));
}

TEST_P(Frame6, TellsThatALineIsNotDrawnYet) {
  const char* const told = either("線がまだ描かれていません", "No line is drawn");
  place.open();
  EXPECT_EQ(place.label("echo_notes"), "");
  find<QComboBox>("Combo1")->setCurrentIndex(mark_line);
  EXPECT_THAT(place.label("echo_notes"), HasSubstr(told));
  EXPECT_TRUE(find<QWidget>("echo_icon")->isVisible());
  find<QComboBox>("Combo1")->setCurrentIndex(mark_area);
  EXPECT_THAT(place.label("echo_notes"), HasSubstr(either("囲みが描かれていません", "No enclosure is drawn")));
  find<QComboBox>("Combo1")->setCurrentIndex(mark_line);
  place.session.registry.rows[1].vertices = {{0, 0}, {1, 1}};
  place.frame->boxes_out();
  EXPECT_EQ(place.label("echo_notes"), "");
}

TEST_P(Frame6, NamesTheCharactersThatCanNotBeStored) {
  place.open();
  place.type("Text14_7", "A€");
  EXPECT_TRUE(marked("Text14_7"));
  EXPECT_EQ(tip("Text14_7"), std::string(either("保存できない文字: ", "Can't be stored: ")) + "€");
  EXPECT_EQ(place.label("echo_notes"), either("登録番号 - 保存できない文字: €", "RecordNo - Can't be stored: €"));
  EXPECT_TRUE(find<QWidget>("echo_icon")->isVisible());
  place.type("Text14_7", "A,B");  // a comma would end the column
  EXPECT_EQ(tip("Text14_7"), std::string(either("保存できない文字: ", "Can't be stored: ")) + ",");
  place.type("Text14_7", "AB");
  EXPECT_FALSE(marked("Text14_7"));
  find<QComboBox>("Combo6")->setEditText("𠮷野層");
  EXPECT_THAT(ui::from_toolkit(find<QComboBox>("Combo6")->lineEdit()->toolTip()), HasSubstr("𠮷"));
  find<QPlainTextEdit>("memo")->setPlainText("🙂, here");
  EXPECT_EQ(tip("memo"), std::string(either("保存できない文字: ", "Can't be stored: ")) + "🙂");
}

TEST_P(Frame6, DoesNotMarkATextThatCameFromTheFile) {
  boxes.Text14[box_Z] = "1\xEF\xBF\xBD";  // a byte without a character: it goes back as it is
  boxes.Combo6 = "a\xEF\xBF\xBD";
  place.open();
  EXPECT_FALSE(find<QComboBox>("Combo6")->lineEdit()->styleSheet().contains("border"));
  EXPECT_THAT(tip("Text14_2"), testing::Not(HasSubstr(either("保存できない", "stored:"))));
}

TEST_P(Frame6, ShowsAStrikeUncorrectedWithoutCoefficients) {
  support::Frame6_place bare(GetParam(), false);
  bare.open();
  bare.type("Text14_5", "N15W");
  EXPECT_EQ(bare.label("echo_corrected"), "345°");
  EXPECT_EQ(bare.label("echo_declination"), either("不明", "unknown"));
  EXPECT_EQ(bare.label("head_corrected"), either("未補正", "Uncorrected"));
  EXPECT_THAT(bare.label("echo_model"), HasSubstr("igrf10.coef"));
  EXPECT_THAT(ui::from_toolkit(bare.find<QLabel>("echo_corrected")->styleSheet()), HasSubstr("color"));
  // The file comes: the next filling takes it.
  bare.files.write_whole(platform::join_path(bare.folder.text(), "igrf10.coef"),
                         support::bytes_of(support::golden_file("observations/igrf10.coef")));
  bare.frame->boxes_out();
  EXPECT_EQ(bare.label("echo_corrected"), "338.3°");
  EXPECT_EQ(bare.label("head_corrected"), either("真方位", "True"));
}

TEST_P(Frame6, CanOnlyBeUsedWhileTheRecordIsOpen) {
  EXPECT_FALSE(find<QWidget>("Text14_5")->isEnabled());
  EXPECT_FALSE(find<QWidget>("Command9")->isEnabled());
  EXPECT_FALSE(find<QWidget>("Command22")->isEnabled());
  EXPECT_FALSE(find<QWidget>("entry_new")->isEnabled());  // no sheet
  EXPECT_FALSE(find<QWidget>("echo")->isVisible());
  QTest::keyClick(place.frame.get(), Qt::Key_Return);
  QTest::keyClick(place.frame.get(), Qt::Key_Escape);
  EXPECT_THAT(place.commands, IsEmpty());
  place.session.current_sheet = "free";
  place.frame->boxes_out();
  EXPECT_TRUE(find<QWidget>("entry_new")->isEnabled());
  place.open();
  EXPECT_TRUE(find<QWidget>("Text14_5")->isEnabled());
  EXPECT_TRUE(find<QWidget>("Command9")->isEnabled());
  EXPECT_TRUE(find<QWidget>("echo")->isVisible());
  EXPECT_FALSE(find<QWidget>("entry_new")->isEnabled());
}

TEST_P(Frame6, GoesToTheFirstEntryByDownInAnEmptyListBox) {
  place.open();
  find<QComboBox>("Combo7")->setEditText("");
  place.frame->boxes_out();
  QTest::keyClick(find<QComboBox>("Combo7"), Qt::Key_Down);
  EXPECT_EQ(choice("Combo7"), either("地層境界面", "Boundary"));
  EXPECT_EQ(boxes.Combo7, either("地層境界面", "Boundary"));
}

TEST_P(Frame6, SavesByEnterFromEachBox) {
  place.open();
  for (const char* name : text_boxes) QTest::keyClick(find<QWidget>(name), Qt::Key_Return);
  EXPECT_EQ(place.commands.size(), 9u);
  for (const char* name : {"Combo1", "Combo3", "Check7", "Check9"}) QTest::keyClick(find<QWidget>(name), Qt::Key_Enter);
  EXPECT_EQ(place.commands.size(), 13u);
  for (const char* name : {"Combo6", "Combo7"}) QTest::keyClick(find<QComboBox>(name)->lineEdit(), Qt::Key_Return);
  EXPECT_EQ(place.commands.size(), 15u);
  for (const QString& name : place.commands) EXPECT_EQ(name, "Command9");
}

// The window has this key for the picture of the map.
TEST_P(Frame6, SavesByCtrlSWhileItIsOpen) {
  const auto press = [this](const char* name) {
    QKeyEvent asked(QEvent::ShortcutOverride, Qt::Key_S, Qt::ControlModifier);
    asked.ignore();
    QCoreApplication::sendEvent(place.frame.get(), &asked);
    QTest::keyClick(find<QWidget>(name), Qt::Key_S, Qt::ControlModifier);
    return asked.isAccepted();
  };
  EXPECT_FALSE(press("entry_new"));
  EXPECT_THAT(place.commands, IsEmpty());
  place.open();
  for (const char* name : {"Text14_5", "memo", "Combo1"}) EXPECT_TRUE(press(name)) << name;
  EXPECT_EQ(place.commands, std::vector<QString>(3, "Command9"));
}

TEST_P(Frame6, ClosesByEscFromEachBox) {
  place.open();
  for (const char* name : text_boxes) QTest::keyClick(find<QWidget>(name), Qt::Key_Escape);
  for (const char* name : {"Combo1", "Check7", "memo", "Command6"})
    QTest::keyClick(find<QWidget>(name), Qt::Key_Escape);
  QTest::keyClick(find<QComboBox>("Combo6")->lineEdit(), Qt::Key_Escape);
  EXPECT_EQ(place.commands, std::vector<QString>(14, "Command22"));
}

TEST_P(Frame6, PressesTheButtonThatHasTheKeyboard) {
  place.open();
  place.frame->activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(place.frame.get()));
  find<QWidget>("Command23")->setFocus();
  QTest::keyClick(find<QWidget>("Command23"), Qt::Key_Return);
  EXPECT_THAT(place.commands, ElementsAre("Command23"));
}

TEST_P(Frame6, BreaksTheLineInTheMemoAndSavesWithCtrl) {
  place.open();
  find<QWidget>("memo")->setFocus();
  QTest::keyClicks(find<QWidget>("memo"), "a");
  QTest::keyClick(find<QWidget>("memo"), Qt::Key_Return);
  QTest::keyClicks(find<QWidget>("memo"), "b");
  EXPECT_EQ(boxes.memo, "a\nb");
  EXPECT_THAT(place.commands, IsEmpty());
  QTest::keyClick(find<QWidget>("memo"), Qt::Key_Return, Qt::ControlModifier);
  EXPECT_THAT(place.commands, ElementsAre("Command9"));
  EXPECT_EQ(boxes.memo, "a\nb");
}

TEST_P(Frame6, GoesThroughTheBoxesInTheOrderOfTheRecord) {
  place.open();
  place.frame->activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(place.frame.get()));
  find<QWidget>("Text14_0")->setFocus();
  QStringList order;
  for (int i = 0; i < 40 && !order.contains("Command22"); ++i) {
    const QWidget* at = place.frame->focusWidget();
    order.append(qobject_cast<QComboBox*>(at->parentWidget()) ? at->parentWidget()->objectName() : at->objectName());
    QTest::keyClick(place.frame->focusWidget(), Qt::Key_Tab);
  }
  EXPECT_EQ(order.join(' ').toStdString(),
            "Text14_0 Text14_1 Text14_2 pick_position Combo7 Combo6 Text14_5 Text14_6 Text14_7 Text13 Text14_3 "
            "Text14_4 Label3 Combo1 Combo3 colour_select Command8 Check7 Check9 memo Check1 Command6 Command23 "
            "picture_dialog Command1 Command7 Combo2 surface_add entry_delete Command9 Command22");
}

TEST_P(Frame6, BeginsAtTheHeightAndLeavesTheKeyboardWhereItIs) {
  place.open();
  EXPECT_EQ(place.frame->focusWidget(), find<QWidget>("Text14_2"));
  place.type("Text14_5", "N1");
  position_to_boxes(boxes, {13353000, 3355000});  // another place was picked
  place.frame->boxes_out();
  EXPECT_EQ(place.frame->focusWidget(), find<QWidget>("Text14_5"));
  EXPECT_EQ(text("Text14_0"), "13353000.0");
  QTest::keyClicks(find<QWidget>("Text14_5"), "5W");
  EXPECT_EQ(boxes.Text14[box_soukou], "N15W");
}

TEST_P(Frame6, HandsTheKeyboardToTheButtonForANewPointWhenItCloses) {
  place.session.current_sheet = "free";
  place.open();
  place.session.entry.open = false;
  place.frame->boxes_out();
  EXPECT_EQ(place.frame->focusWidget(), find<QWidget>("entry_new"));
}

TEST_P(Frame6, StepsTheMeasurementNumber) {
  place.open();
  place.session.registry.rows[1].touroku_no = "081115-001*7";
  place.session.registry.rows[1].keisoku_no = "7";
  find<QToolButton>("VScroll2_up")->click();  // from an empty box: the next free one
  EXPECT_EQ(text("Text13"), "8");
  find<QToolButton>("VScroll2_up")->click();
  EXPECT_EQ(boxes.Text13, "9");
  QTest::keyClick(find<QWidget>("Text13"), Qt::Key_Down);
  EXPECT_EQ(boxes.Text13, "8");
  place.type("Text13", "1");
  find<QToolButton>("VScroll2_down")->click();
  EXPECT_EQ(boxes.Text13, "1");
}

TEST_P(Frame6, ArmsThePickOfAPosition) {
  place.open();
  find<QPushButton>("pick_position")->click();
  EXPECT_EQ(place.session.flags.point_mode, 1);
  find<QPushButton>("pick_position")->click();
  EXPECT_EQ(place.session.flags.point_mode, 0);
  place.session.flags.point_mode = 1;
  place.frame->boxes_out();
  EXPECT_TRUE(find<QPushButton>("pick_position")->isChecked());
  EXPECT_EQ(place.edits, 0);
}

TEST_P(Frame6, TellsItsButtons) {
  place.session.current_sheet = "free";
  place.frame->boxes_out();
  find<QPushButton>("entry_new")->click();
  place.open();
  for (const char* name : {"entry_delete", "Command6", "Command1", "Command7", "Command23", "picture_dialog",
                           "surface_add", "Command9", "Command22"})
    find<QPushButton>(name)->click();
  EXPECT_THAT(place.commands, ElementsAre("mnu_sinki", "mnu_del", "Command6", "Command1", "Command7", "Command23",
                                          "Command8", "surface_add", "Command9", "Command22"));
}

TEST_P(Frame6, CountsTheVertices) {
  place.open();
  place.session.registry.rows[1].vertices = {{0, 0}, {1, 1}, {2, 2}};
  place.frame->boxes_out();
  EXPECT_THAT(place.label("line_count"), HasSubstr("3"));
  EXPECT_TRUE(find<QWidget>("Command6")->isEnabled());
  EXPECT_FALSE(find<QWidget>("Command31")->isEnabled());
  place.session.flags.line_mode = 1;
  place.session.flags.line_count = 5;
  place.frame->boxes_out();
  EXPECT_THAT(place.label("line_count"), HasSubstr("5 / 148"));
  EXPECT_FALSE(find<QWidget>("Command6")->isEnabled());
  EXPECT_TRUE(find<QWidget>("Command31")->isEnabled());
}

TEST_P(Frame6, OffersTheLinesEndAsSoonAsTheLineIsBegun) {
  place.open();
  QObject::connect(place.frame.get(), &ui::Frame6::command,
                   [this](const QString& name) { place.session.flags.line_mode = name == "Command6" ? 1 : 0; });
  find<QPushButton>("Command6")->click();
  EXPECT_TRUE(find<QWidget>("Command31")->isEnabled());
  EXPECT_FALSE(find<QWidget>("Command6")->isEnabled());
  find<QPushButton>("Command31")->click();
  EXPECT_TRUE(find<QWidget>("Command6")->isEnabled());
}

TEST_P(Frame6, OffersANewPointWhenItComesIntoViewOnASheet) {
  place.frame->hide();
  place.session.current_sheet = "free";
  place.frame->show();
  EXPECT_TRUE(find<QWidget>("entry_new")->isEnabled());
}

TEST_P(Frame6, TellsTheNumberingInForce) {
  EXPECT_THAT(place.label("numbering"), HasSubstr(either("入力年月日毎", "by entry date")));
  place.session.boxes.Option4 = {false, true, false};
  place.frame->boxes_out();
  EXPECT_THAT(place.label("numbering"), HasSubstr(either("標準メッシュ（３次メッシュ）", "third-level")));
  place.session.boxes.Option4 = {false, false, true};
  place.frame->boxes_out();
  EXPECT_THAT(place.label("numbering"), HasSubstr(either("手入力", "typed in")));
}

TEST_P(Frame6, DoesNotChangeAListByTheWheel) {
  place.open();
  auto* combo = find<QComboBox>("Combo1");
  find<QScrollArea>("entry_area")->ensureWidgetVisible(combo);
  combo->setFocus();
  const std::string before = choice("Combo1");
  QWheelEvent turn(QPointF(5, 5), combo->mapToGlobal(QPointF(5, 5)), {}, {0, -120}, Qt::NoButton, {}, Qt::NoScrollPhase,
                   false);
  QApplication::sendEvent(combo, &turn);
  EXPECT_EQ(choice("Combo1"), before);
  EXPECT_EQ(place.edits, 0);
}

TEST_P(Frame6, IsClippedNowhereAndNamesEveryBox) {
  for (const bool open : {false, true}) {
    if (open) {
      place.open();
      place.type("Text14_3", "20X");
      place.type("Text14_4", "S47W");
      place.type("Text14_5", "EW");
      place.type("Text14_6", "29");
      find<QCheckBox>("Check9")->click();
    }
    for (const QSize size : {QSize(270, 520), QSize(270, 700), QSize(420, 900)}) {
      place.frame->resize(size);
      QCoreApplication::processEvents();
      EXPECT_TRUE(support::nothing_clipped(place.frame.get())) << size.width() << (open ? " open" : " closed");
    }
    EXPECT_LE(place.frame->minimumSizeHint().width(), 270);
    EXPECT_EQ(support::nameless_widgets(*place.frame).join(", ").toStdString(), "");
  }
}

TEST_P(Frame6, KeepsSaveAndCloseInSightOnALowScreen) {
  place.open();
  place.frame->resize(270, 420);
  QCoreApplication::processEvents();
  for (const char* name : {"Command9", "Command22"})
    EXPECT_TRUE(place.frame->rect().contains(
        QRect(find<QWidget>(name)->mapTo(place.frame.get(), QPoint()), find<QWidget>(name)->size())))
        << name;
  EXPECT_GT(find<QScrollArea>("entry_area")->verticalScrollBar()->maximum(), 0);
}
