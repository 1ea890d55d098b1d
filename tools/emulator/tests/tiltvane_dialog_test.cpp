#include <gmock/gmock.h>

#include <QCheckBox>
#include <QComboBox>
#include <QElapsedTimer>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScreen>
#include <QTabWidget>
#include <QTest>
#include <QTimer>

#include <filesystem>
#include <fstream>
#include <memory>

#include "emulator/tests/line_end.h"
#include "emulator_clinometer/clinometer_memory.h"
#include "gui/clipping.h"
#include "gui/gui_support.h"
#include "instruments/tiltvane_line.h"
#include "platform/text_files.h"
#include "support/fake_ports.h"
#include "support/golden.h"
#include "support/places.h"
#include "support/scripted_prompts.h"
#include "support/temporary_folder.h"
#include "ui/frm_tiltvane.h"
#include "ui/tiltvane_read2.h"
#include "ui/toolkit_text.h"

namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

// The clinometer's dialogs on an empty program folder, in one of the languages; conversations at the far ends.
struct Tiltvane_dialog : testing::TestWithParam<const char*> {
  support::Temporary_folder folder;
  platform::Disk_files files;
  support::Scripted_prompts prompts;
  support::Fake_pictures pictures;
  support::Recorded_processes processes;
  support::Other_ports other{files};
  session::Ports ports{files, pictures, prompts, processes, other.clock, other.journal, other.sheets, other.sounds};
  session::Session session;
  std::unique_ptr<QDialog> dialog;

  Tiltvane_dialog() {
    session.settings.program_path = folder.text();
    session.settings.language = GetParam();
    prompts.use_language(GetParam());
  }

  bool japanese() const { return std::string(GetParam()) == "Japanese"; }
  QString either(const char* in_japanese, const char* in_english) const {
    return QString::fromUtf8(japanese() ? in_japanese : in_english);
  }
  template <typename Dialog = ui::Tiltvane_read2>
  void open() {
    dialog = std::make_unique<Dialog>(session, ports);
    dialog->show();
  }
  template <typename Widget>
  Widget* find(const char* name) const {
    auto* widget = dialog->findChild<Widget*>(name);
    if (!widget) ADD_FAILURE() << "no widget " << name;
    return widget;
  }
  void choose_port(int number) const {
    auto* box = find<QComboBox>("Combo8");
    box->setCurrentIndex(box->findData(number));
  }
  void press(const char* name) const { find<QPushButton>(name)->click(); }
  // A test's clock runs ten times as fast.
  void hurry() const {
    for (const char* name : {"Timer1", "Timer3"}) find<QTimer>(name)->setInterval(20);
  }
  bool is_running() const { return find<QPushButton>("Command50")->isEnabled(); }
  bool ends(int milliseconds = 20'000) const {
    return QTest::qWaitFor([this] { return !is_running(); }, milliseconds);
  }
  std::string bytes(const char* name) const { return support::bytes_of((folder.path() / name).string()); }
  std::vector<std::string> table() { return platform::read_lines(files, folder.text() + "\\TMP2.TMP"); }
  QString label() const { return find<QLabel>("status")->text(); }
  // The hue of the label's text in degrees: red 0, blue 240, magenta 300.
  int hue() const { return find<QLabel>("status")->palette().color(QPalette::WindowText).hsvHue(); }
  QString not_there() const {
    return either("Tiltvaneが見つかりません。Tiltvaneの電源,ケーブル接続を確認して下さい。",
                  "There is not Tiltvane.  ");
  }
  void put(const char* name, const std::string& text) const {
    std::ofstream(folder.path() / name, std::ios::binary) << text;
  }
};
INSTANTIATE_TEST_SUITE_P(BothLanguages, Tiltvane_dialog, testing::Values("Japanese", "English"));

TEST_P(Tiltvane_dialog, HasEveryWidgetByItsNameAndItsTexts) {
  open();
  EXPECT_EQ(dialog->objectName(), "Tiltvane_Read2");
  for (const char* name : {"Combo8", "Text15", "Text1", "Check3", "Command17", "start", "Command50", "status"})
    find<QWidget>(name);
  auto* tabs = find<QTabWidget>("SSTab1");
  EXPECT_EQ(tabs->tabText(0), "TiltvaneConnect");
  EXPECT_EQ(tabs->tabText(1), "TiltvaneDataShow");
  EXPECT_EQ(find<QComboBox>("Combo8")->currentText(), "05");
  EXPECT_GE(find<QComboBox>("Combo8")->count(), 22);
  EXPECT_EQ(find<QComboBox>("Combo8")->itemText(21), "22");
  EXPECT_EQ(find<QLineEdit>("Text15")->text(), "999");
  EXPECT_EQ(find<QLabel>("note_bluetooth")->text(),
            either("Bluetooth対応のTiltvaneの場合はパソコンのBluetooth設定で機器接続を行ってください。",
                   "Connect Tiltvane and PC by Bluetooth."));
  if (japanese()) {
    EXPECT_EQ(find<QLabel>("note_usb")->text(), "TiltvaneとパソコンをUSB-シリアル変換ケーブルで接続");
    EXPECT_THAT(find<QCheckBox>("Check3")->text().toStdString(),
                HasSubstr("接続COMポート番号を収録時に自動で取得する。"));
  }
  EXPECT_FALSE(find<QWidget>("offer")->isVisible());
}

TEST_P(Tiltvane_dialog, IsClippedNowhereAndNamesEveryBox) {
  put("Tiltvane.tmp", emulator::memory_line(1) + "\r\n002,L");
  open();
  EXPECT_TRUE(find<QWidget>("offer")->isVisible());
  for (const QSize size : {dialog->size(), QSize(1300, 900), dialog->minimumSizeHint()}) {
    dialog->resize(size);
    QCoreApplication::processEvents();
    EXPECT_TRUE(support::nothing_clipped(dialog.get())) << size.width();
  }
  EXPECT_EQ(support::nameless_widgets(*dialog).join(", ").toStdString(), "");
}

TEST_P(Tiltvane_dialog, FitsOnTheScreenWithItsFrame) {
  open();
  const QSize screen = dialog->screen()->availableSize();
  EXPECT_LE(dialog->height(), screen.height() - 40);
  EXPECT_LE(dialog->minimumSizeHint().height(), 720 - 30);
}

TEST_P(Tiltvane_dialog, GoesOnWithTheLastSettings) {
  put("RSPORT.dat", "07\r\n120\r\n\r\n\r\n\r\n\r\n\r\n\r\n\r\n\r\n\r\n-6.5\r\n1\r\n");
  open();
  EXPECT_EQ(find<QComboBox>("Combo8")->currentData().toInt(), 7);
  EXPECT_EQ(find<QLineEdit>("Text15")->text(), "120");
  EXPECT_EQ(find<QLineEdit>("Text1")->text(), "-6.5");
  EXPECT_TRUE(find<QCheckBox>("Check3")->isChecked());
  put("henkaku.dat", "-7.1\r\n");
  open();
  EXPECT_EQ(find<QLineEdit>("Text1")->text(), "-7.1");
}

TEST_P(Tiltvane_dialog, SavesTheDeclination) {
  open();
  find<QLineEdit>("Text1")->clear();
  QTest::keyClicks(find<QLineEdit>("Text1"), "-7,2.x50");
  EXPECT_EQ(find<QLineEdit>("Text1")->text(), "-72.50") << "a comma would part the columns of the file";
  press("Command17");
  EXPECT_EQ(bytes("henkaku.dat"), "-72.50\r\n");
}

TEST_P(Tiltvane_dialog, OffersTheModelsDeclinationAtTheMapsPlaceAndBeginsWithIt) {
  open();
  EXPECT_FALSE(find<QPushButton>("model")->isEnabled());
  EXPECT_EQ(find<QLineEdit>("Text1")->text(), "0");
  const std::string coefficients = support::shared_data("igrf10.coef");
  if (!std::filesystem::exists(coefficients)) GTEST_SKIP() << "no " << coefficients;
  std::filesystem::copy_file(coefficients, folder.path() / "igrf10.coef");
  session.current_sheet = "503305";
  session.canvas.is_geographic = true;
  session.canvas.geo_x0 = 13'333'110;
  session.canvas.geo_x1 = 13'373'110;
  session.canvas.geo_y0 = 3'365'970;
  session.canvas.geo_y1 = 3'345'970;
  open();
  // Kochi, 33.5597 N, 133.5311 E: -6.715845 in the table of an independent computation, declination_sample.csv.
  EXPECT_EQ(find<QLineEdit>("Text1")->text(), "-6.7");
  put("henkaku.dat", "0\r\n");
  open();
  EXPECT_EQ(find<QLineEdit>("Text1")->text(), "0");  // as it was stored
  press("model");
  EXPECT_EQ(find<QLineEdit>("Text1")->text(), "-6.7");
}

TEST_P(Tiltvane_dialog, NamesThePluggedInDeviceBesideItsNumberAsItComesAndGoes) {
  open();
  auto* box = find<QComboBox>("Combo8");
  choose_port(5);
  EXPECT_EQ(box->itemText(6), "07");
  {
    const support::Line_end end(folder.path(), "com07", emulator::Conversation{});
    EXPECT_TRUE(QTest::qWaitFor([&] { return box->itemText(6).contains(ui::to_toolkit(end.line.path())); }, 5000))
        << box->itemText(6).toStdString();
    EXPECT_EQ(box->currentData().toInt(), 5);
  }
  EXPECT_TRUE(QTest::qWaitFor([&] { return box->itemText(6) == "07"; }, 5000));
}

TEST_P(Tiltvane_dialog, ListsADeviceBeyondTheUsualNumbersInItsPlace) {
  put("RSPORT.dat", "30\r\n000\r\n");
  const support::Line_end end(folder.path(), "com27", emulator::Conversation{});
  open();
  auto* box = find<QComboBox>("Combo8");
  ASSERT_GE(box->count(), 24);
  EXPECT_EQ(box->itemData(22).toInt(), 27);
  EXPECT_EQ(box->itemData(23).toInt(), 30);
  EXPECT_EQ(box->currentData().toInt(), 30);
  EXPECT_FALSE(find<QPushButton>("start")->isEnabled()) << "no record is asked for";
}

TEST_P(Tiltvane_dialog, ReadsOneRecord) {
  const support::Line_end end(folder.path(), "com07", support::conversation("one_record.txt"));
  open();
  hurry();
  choose_port(7);
  find<QLineEdit>("Text15")->setText("1");
  press("start");
  EXPECT_TRUE(is_running());
  EXPECT_FALSE(find<QPushButton>("start")->isVisible());
  ASSERT_TRUE(ends());
  EXPECT_THAT(prompts.shown, IsEmpty());
  EXPECT_EQ(label(), either("Tiltvaneと接続しました。", "it connects Tiltvane. "));
  EXPECT_EQ(hue(), 240);
  EXPECT_EQ(table().size(), 2u);
  EXPECT_EQ(find<QTabWidget>("SSTab1")->currentIndex(), 1);
  EXPECT_TRUE(find<QPushButton>("start")->isVisibleTo(find<QWidget>("TiltvaneConnect")));
  EXPECT_EQ(bytes("RSPORT.dat").substr(0, 9), "07\r\n001\r\n");
}

TEST_P(Tiltvane_dialog, ReadsAllOfAFullMemory) {
  const std::string all = emulator::answer_to("o999", 999);
  emulator::Conversation talk = emulator::conversation_of("> o999");
  talk.steps.push_back({emulator::Step_kind::send, all, 0});
  const support::Line_end end(folder.path(), "com05", talk);
  open();
  hurry();
  press("start");
  ASSERT_TRUE(ends());
  EXPECT_THAT(prompts.shown, IsEmpty());
  EXPECT_EQ(bytes("Tiltvane.tmp"), all);
  EXPECT_EQ(bytes("TMP.TMP"), all);
  EXPECT_EQ(table().size(), 1000u);
  EXPECT_EQ(table().back().substr(0, 4), "999,");
}

// 30 records at 9600 baud take some 2.5 s; the real ticks of the dialog are no slower than the line.
TEST_P(Tiltvane_dialog, KeepsUpWithTheLine) {
  emulator::Conversation talk = emulator::conversation_of("> o030\nbaud 9600");
  talk.steps.push_back({emulator::Step_kind::send, emulator::answer_to("o030", 999), 0});
  const support::Line_end end(folder.path(), "com05", talk);
  open();
  find<QLineEdit>("Text15")->setText("30");
  press("start");
  const std::size_t size = emulator::answer_to("o030", 999).size();
  QElapsedTimer clock;
  clock.start();
  ASSERT_TRUE(ends());
  EXPECT_LT(clock.elapsed(), static_cast<qint64>(size) * 10 * 1000 / 9600 + 3000);
  EXPECT_EQ(table().size(), 31u);
}

TEST_P(Tiltvane_dialog, FindsAnEndInTwoPieces) {
  const support::Line_end end(folder.path(), "com05", support::conversation("split_end.txt"));
  open();
  hurry();
  press("start");
  ASSERT_TRUE(ends());
  EXPECT_THAT(prompts.shown, IsEmpty());
  EXPECT_EQ(table().size(), 3u);
}

TEST_P(Tiltvane_dialog, TellsThatASilentInstrumentIsNotThere) {
  const support::Line_end end(folder.path(), "com05", support::conversation("silence.txt"));
  open();
  hurry();
  press("start");
  ASSERT_TRUE(ends());
  EXPECT_THAT(prompts.shown, ElementsAre(not_there().toStdString()));
  EXPECT_EQ(label(), either("Tiltvane未接続", "Tiltvane don't connect"));
  EXPECT_EQ(hue(), 0);
  EXPECT_TRUE(find<QPushButton>("start")->isVisible());
}

// A message that stays open while events go on, as one does on the screen, and what the label says meanwhile.
struct Open_message : support::Scripted_prompts {
  std::function<QString()> label;
  QStringList labels;

 protected:
  platform::Answer show(Kind kind, const std::string& text) override {
    QCoreApplication::processEvents();
    labels << label();
    return Scripted_prompts::show(kind, text);
  }
};

TEST_P(Tiltvane_dialog, SaysUnderTheMessageThatNothingIsConnected) {
  Open_message open_message;
  open_message.use_language(GetParam());
  open_message.label = [this] { return label(); };
  session::Ports with_message{files,       pictures,      open_message, processes,
                              other.clock, other.journal, other.sheets, other.sounds};
  dialog = std::make_unique<ui::Tiltvane_read2>(session, with_message);
  dialog->show();
  choose_port(5);
  hurry();
  press("start");
  ASSERT_TRUE(ends());
  EXPECT_EQ(open_message.labels, QStringList(either("Tiltvane未接続", "Tiltvane don't connect")));
}

TEST_P(Tiltvane_dialog, TakesACutLineAsItCame) {
  const support::Line_end end(folder.path(), "com05", support::conversation("cut_line.txt"));
  open();
  hurry();
  press("start");
  ASSERT_TRUE(ends());
  EXPECT_THAT(prompts.shown, IsEmpty());
  ASSERT_EQ(table().size(), 4u);
  EXPECT_EQ(table()[2].substr(0, 11), "002,P,N20W,");
  EXPECT_EQ(table()[3].substr(0, 4), "003,");
}

TEST_P(Tiltvane_dialog, ReadsWhatStandsBetweenGarbage) {
  const support::Line_end end(folder.path(), "com05", support::conversation("garbage.txt"));
  open();
  hurry();
  press("start");
  ASSERT_TRUE(ends());
  EXPECT_THAT(prompts.shown, IsEmpty());
  EXPECT_THAT(table(), testing::Contains(testing::StartsWith("001,P,N20W,30E,3,")));
  EXPECT_THAT(table(), testing::Contains(testing::StartsWith("002,P,N20W,30E,3,")));
}

TEST_P(Tiltvane_dialog, ShowsTwoBlanksForARecordOfAnUnknownMode) {
  const support::Line_end end(folder.path(), "com05", support::conversation("unknown_mode.txt"));
  open();
  hurry();
  press("start");
  ASSERT_TRUE(ends());
  ASSERT_EQ(table().size(), 2u);
  EXPECT_THAT(table()[1], testing::StartsWith("001,Z,N20W,30E,3,  ,  ,2008/11/15 10:20:30,1,0,0,"));
}

TEST_P(Tiltvane_dialog, TellsThatAnAdapterWasPulledAndOffersWhatHadCome) {
  const support::Line_end end(folder.path(), "com05", support::conversation("pulled.txt"));
  open();
  hurry();
  press("start");
  ASSERT_TRUE(ends());
  EXPECT_THAT(prompts.shown, ElementsAre(not_there().toStdString()));
  EXPECT_TRUE(find<QWidget>("offer")->isVisible());
  EXPECT_THAT(find<QLabel>("offer_text")->text().toStdString(), HasSubstr("2"));
  press("read_again");
  EXPECT_EQ(table().size(), 3u);
  EXPECT_EQ(find<QTabWidget>("SSTab1")->currentIndex(), 1);
  EXPECT_FALSE(find<QWidget>("offer")->isVisibleTo(find<QWidget>("TiltvaneConnect")));
}

TEST_P(Tiltvane_dialog, SearchesForThePortAndReads) {
  const support::Line_end silent(folder.path(), "com01", support::conversation("silence.txt"));
  const support::Line_end end(folder.path(), "com03", support::conversation("found.txt"));
  open();
  hurry();
  find<QCheckBox>("Check3")->setChecked(true);
  press("start");
  EXPECT_EQ(label(), either("Tiltvaneを探しています。", "Seaching Tiltvane"));
  ASSERT_TRUE(ends());
  EXPECT_THAT(prompts.shown, IsEmpty());
  EXPECT_EQ(find<QComboBox>("Combo8")->currentData().toInt(), 3);
  EXPECT_EQ(table().size(), 3u);
}

TEST_P(Tiltvane_dialog, GoesThroughFiftySilentPortsAndTellsIt) {
  std::vector<std::unique_ptr<support::Line_end>> ends_of_lines;
  for (int number = 1; number <= 51; ++number) {
    const std::string com = (number < 10 ? "com0" : "com") + std::to_string(number);
    ends_of_lines.push_back(std::make_unique<support::Line_end>(
        folder.path(), com, emulator::conversation_of(number == 51 ? "> o1\n< 001,P,N20W\n< END" : "")));
  }
  open();
  for (const char* name : {"Timer1", "Timer3"}) find<QTimer>(name)->setInterval(1);
  find<QCheckBox>("Check3")->setChecked(true);
  press("start");
  ASSERT_TRUE(ends(60'000));
  EXPECT_THAT(prompts.shown, ElementsAre(not_there().toStdString()));
  EXPECT_EQ(find<QComboBox>("Combo8")->currentData().toInt(), 50);
}

TEST_P(Tiltvane_dialog, StopsWhenItIsToldAndWhenItGoes) {
  const support::Line_end end(folder.path(), "com05", support::conversation("silence.txt"));
  open();
  press("start");
  press("Command50");
  EXPECT_FALSE(is_running());
  EXPECT_EQ(label(), "");
  press("start");
  dialog->close();
  EXPECT_FALSE(is_running());
  EXPECT_THAT(prompts.shown, IsEmpty());
}

TEST_P(Tiltvane_dialog, BlinksWhileItSearches) {
  open();
  find<QCheckBox>("Check3")->setChecked(true);
  press("start");
  const QString text = either("Tiltvaneを探しています。", "Seaching Tiltvane");
  EXPECT_EQ(label(), text);
  EXPECT_EQ(hue(), 300);
  EXPECT_TRUE(QTest::qWaitFor([&] { return label().isEmpty(); }, 3000));
  EXPECT_TRUE(QTest::qWaitFor([&] { return label() == text; }, 3000));
}

TEST_P(Tiltvane_dialog, StartsOnlyWithACountThatThePortTakes) {
  open();
  for (const char* count : {"", "0"}) {
    find<QLineEdit>("Text15")->setText(count);
    EXPECT_FALSE(find<QPushButton>("start")->isEnabled()) << count;
  }
  find<QLineEdit>("Text15")->setText("12");
  EXPECT_TRUE(find<QPushButton>("start")->isEnabled());
}

TEST_P(Tiltvane_dialog, TellsInASentenceWhenNothingCanBeWritten) {
  open();
  std::filesystem::create_directory(folder.path() / "RSPORT.dat");
  press("start");
  EXPECT_FALSE(is_running());
  ASSERT_EQ(prompts.shown.size(), 1u);
  EXPECT_THAT(prompts.shown[0], HasSubstr("RSPORT.dat"));
}

// ---- the small dialog

TEST_P(Tiltvane_dialog, TellsInTheSmallDialogThatASilentInstrumentIsNotThere) {
  const support::Line_end end(folder.path(), "com05", support::conversation("silence.txt"));
  open<ui::Frm_Tiltvane>();
  hurry();
  press("start");
  ASSERT_TRUE(ends());
  EXPECT_THAT(prompts.shown, ElementsAre(not_there().toStdString()));
  EXPECT_EQ(hue(), 0);
  EXPECT_TRUE(dialog->isVisible());
}

// The search is the full dialog's; the small one keeps to the port that is set, whatever the other has left ticked.
TEST_P(Tiltvane_dialog, SearchesNoPortInTheSmallDialog) {
  put("RSPORT.dat", "05\r\n999\r\n\r\n\r\n\r\n\r\n\r\n\r\n\r\n\r\n\r\n-6.5\r\n1\r\n");
  const support::Line_end end(folder.path(), "com05", support::conversation("split_end.txt"));
  open<ui::Frm_Tiltvane>();
  hurry();
  press("start");
  ASSERT_TRUE(QTest::qWaitFor([&] { return !dialog->isVisible(); }, 20'000));
  EXPECT_EQ(table().size(), 3u);
}

TEST_P(Tiltvane_dialog, ReadsInTheSmallDialogAndGoes) {
  const support::Line_end end(folder.path(), "com05", support::conversation("split_end.txt"));
  open<ui::Frm_Tiltvane>();
  EXPECT_EQ(dialog->objectName(), "frmTiltvane");
  EXPECT_EQ(find<QLabel>("note_cable")->text(), either("ケーブルを接続して下さい。", "Connect the cable."));
  EXPECT_TRUE(support::nothing_clipped(dialog.get()));
  EXPECT_EQ(support::nameless_widgets(*dialog).join(", ").toStdString(), "");
  if (japanese()) {
    EXPECT_THAT(find<QPushButton>("start")->text().toStdString(), HasSubstr("読込み実行"));
    EXPECT_THAT(find<QPushButton>("Command50")->text().toStdString(), HasSubstr("中止"));
    EXPECT_EQ(find<QComboBox>("Combo8")->accessibleName(), "接続COMポート番号");
  }
  for (const char* name : {"Check3", "Text1"}) EXPECT_FALSE(dialog->findChild<QWidget*>(name)) << name;
  hurry();
  press("start");
  EXPECT_EQ(bytes("RSPORT.dat"), "05\r\n999\r\n");
  ASSERT_TRUE(QTest::qWaitFor([&] { return !dialog->isVisible(); }, 20'000));
  EXPECT_EQ(dialog->result(), QDialog::Accepted);
  EXPECT_EQ(table().size(), 3u);
}

}  // namespace
