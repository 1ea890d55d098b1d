#include "ui/tiltvane_data_view.h"

#include <gmock/gmock.h>

#include <QCheckBox>
#include <QComboBox>
#include <QElapsedTimer>
#include <QImage>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QSignalSpy>
#include <QTableView>
#include <QTest>

#include <memory>

#include "gui/clipping.h"
#include "gui/gui_support.h"
#include "instruments/data_place.h"
#include "platform/qt/qt_pictures.h"
#include "support/fake_ports.h"
#include "ui/toolkit_text.h"

namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

// The page on a program folder with a memory of three measurements and one saved file.
struct Tiltvane_data_view : testing::TestWithParam<const char*> {
  support::Data_place place;
  platform::Qt_pictures pictures;
  support::Recorded_processes processes;
  support::Other_ports other{place.files};
  session::Ports ports{place.files, pictures,      place.prompts, processes,
                       place.clock, other.journal, other.sheets,  other.sounds};
  session::Session session;
  instruments::Tiltvane_boxes boxes;
  std::unique_ptr<ui::Tiltvane_data_view> view;
  QStringList asked;

  bool japanese() const { return std::string(GetParam()) == "Japanese"; }
  std::string program(const std::string& name) const { return place.folder.text() + "\\" + name; }
  void open() {
    place.speak(GetParam());
    session.settings = place.settings;
    boxes.Text1 = "-7.5";
    view = std::make_unique<ui::Tiltvane_data_view>(session, ports, boxes);
    view->ask_path = [this](const QString& title, const QString& filter, const QString& ending) {
      asked << title << filter << ending;
      return ui::to_toolkit(program("out." + ui::from_toolkit(ending)));
    };
    view->resize(view->sizeHint());
    view->show();
    QCoreApplication::processEvents();
  }
  void open_on_memory() {
    place.put_program("TMP2.TMP", {instruments::measurement_header(true), support::with_lineation, support::plane_alone,
                                   support::without_plane});
    place.put_program("Tiltvane\\a.csv", {instruments::measurement_header(true), support::plane_alone});
    open();
    view->show_memory();
  }
  template <typename Widget>
  Widget* find(const char* name) const {
    auto* widget = view->findChild<Widget*>(QString::fromUtf8(name));
    if (!widget) ADD_FAILURE() << "no widget " << name;
    return widget;
  }
  void press(const char* name) const { find<QPushButton>(name)->click(); }
  QTableView* table() const { return find<QTableView>("List1"); }
  QString text(const char* label) const { return find<QLabel>(label)->text(); }
  QString cell(int row, int column) const { return table()->model()->index(row, column).data().toString(); }
};
INSTANTIATE_TEST_SUITE_P(BothLanguages, Tiltvane_data_view, testing::Values("Japanese", "English"));

TEST_P(Tiltvane_data_view, HasEveryWidgetByItsName) {
  open();
  for (const char* name : {"FileImage", "List1",    "Command10", "Command9", "Command16",
                           "Command1",  "再表示",   "Check8",    "FileGPS",  "DirGPS",
                           "Check1",    "FileGPS2", "DirGPS2",   "Text2",    "Tiltvane_File_Make",
                           "stereonet", "picture",  "all",       "none",     "invert",
                           "hosei"})
    find<QWidget>(name);
  EXPECT_EQ(find<QPushButton>("Command10")->text(), japanese() ? "ファイルに保存(&S)" : "&Save as file");
}

TEST_P(Tiltvane_data_view, IsClippedNowhereAndNamesEveryBox) {
  open_on_memory();
  press("all");
  for (const QSize size : {view->sizeHint(), QSize(1400, 900), view->minimumSizeHint()}) {
    view->resize(size);
    QCoreApplication::processEvents();
    EXPECT_TRUE(support::nothing_clipped(view.get()));
  }
  EXPECT_THAT(support::nameless_widgets(*view), IsEmpty());
  EXPECT_LE(view->minimumSizeHint().width(), 1180);
  EXPECT_LE(view->minimumSizeHint().height(), 700);
}

TEST_P(Tiltvane_data_view, ShowsTheMemory) {
  open_on_memory();
  EXPECT_EQ(text("title"), japanese() ? "Tiltvaneメモリー表示" : "Tiltvane Memory View");
  ASSERT_EQ(table()->model()->rowCount(), 3);
  EXPECT_EQ(cell(0, 2), "N50E");
  EXPECT_EQ(cell(2, 2), "-0-");
  EXPECT_EQ(text("declination"), japanese() ? "偏角 -7.5°" : "declination -7.5 Deg");
}

// The file's own header has them the other way round.
TEST_P(Tiltvane_data_view, NamesLatitudeAndLongitudeWhereTheyStand) {
  open_on_memory();
  ASSERT_EQ(table()->model()->columnCount(), 21);
  const auto head = [&](int column) {
    return table()->model()->headerData(column - 1, Qt::Horizontal).toString().toStdString();
  };
  EXPECT_EQ(head(18), japanese() ? "緯度 ddmm.mmmm" : "Latitude ddmm.mmmm");
  EXPECT_EQ(head(20), japanese() ? "経度 dddmm.mmmm" : "Longitude dddmm.mmmm");
  EXPECT_EQ(cell(0, 17), "3541.1234");
  EXPECT_EQ(cell(0, 19), "13945.6789");
}

TEST_P(Tiltvane_data_view, TakesTheDeclinationWheneverItComesUp) {
  open_on_memory();
  press("all");
  view->hide();
  boxes.Text1 = "3.2";
  view->show();
  EXPECT_THAT(text("declination").toStdString(), HasSubstr("3.2"));
}

TEST_P(Tiltvane_data_view, KeepsTheMemoryWhenTheKeyboardComesToTheFiles) {
  open_on_memory();
  table()->setFocus();
  find<QListWidget>("FileImage")->setFocus();
  EXPECT_EQ(table()->model()->rowCount(), 3);
  QTest::keyClick(find<QListWidget>("FileImage"), Qt::Key_Space);
  EXPECT_EQ(table()->model()->rowCount(), 1);
}

TEST_P(Tiltvane_data_view, ShowsAChosenFileAndReloadsIt) {
  open_on_memory();
  find<QListWidget>("FileImage")->setCurrentRow(0);
  EXPECT_EQ(text("title"), "a.csv");
  EXPECT_EQ(table()->model()->rowCount(), 1);
  place.put_program("Tiltvane\\a.csv", {support::plane_alone, support::with_lineation});
  press("再表示");
  EXPECT_EQ(table()->model()->rowCount(), 2);
}

TEST_P(Tiltvane_data_view, SaysThatTheMemoryHasNoOtherDisplay) {
  open_on_memory();
  press("再表示");
  EXPECT_THAT(place.prompts.shown, ElementsAre("Tiltvaneのメモリーは偏角表示ができません。"));
}

TEST_P(Tiltvane_data_view, TicksAllNoneTheOthersAndByTheSpaceBar) {
  open_on_memory();
  press("all");
  EXPECT_EQ(text("ticked"), japanese() ? "3 行中 3 行を選択" : "3 of 3 rows ticked");
  press("none");
  EXPECT_EQ(text("ticked"), japanese() ? "3 行中 0 行を選択" : "0 of 3 rows ticked");
  table()->setFocus();
  table()->selectRow(1);
  QTest::keyClick(table(), Qt::Key_Space);
  EXPECT_EQ(text("ticked"), japanese() ? "3 行中 1 行を選択" : "1 of 3 rows ticked");
  press("invert");
  EXPECT_EQ(text("ticked"), japanese() ? "3 行中 2 行を選択" : "2 of 3 rows ticked");
  EXPECT_EQ(table()->model()->index(1, 0).data(Qt::CheckStateRole).toInt(), Qt::Unchecked);
}

TEST_P(Tiltvane_data_view, SortsNumbersAsNumbersAndTicksTheRowsThatAreSeen) {
  place.put_program("TMP2.TMP", {"10,P,N20W,30E,0.1", "9,P,N20W,31E,0.1"});
  open();
  view->show_memory();
  EXPECT_EQ(cell(0, 0), "10");
  table()->sortByColumn(0, Qt::AscendingOrder);
  EXPECT_EQ(cell(0, 0), "9");
  table()->selectRow(0);
  QTest::keyClick(table(), Qt::Key_Space);
  press("Command10");
  EXPECT_THAT(place.prompts.shown.front(), HasSubstr("009-009_2008-11-15"));
}

TEST_P(Tiltvane_data_view, ShowsTheScatterOfTheTickedRows) {
  open_on_memory();
  EXPECT_EQ(text("scatter"), japanese() ? "選択された行に面がありません。" : "No plane among the ticked rows.");
  press("all");
  EXPECT_THAT(text("scatter").toStdString(), HasSubstr("n = 2"));
  press("none");
  table()->selectRow(1);
  QTest::keyClick(table(), Qt::Key_Space);
  EXPECT_THAT(text("scatter").toStdString(), HasSubstr("N27.5W 30.0E"));
  find<QCheckBox>("hosei")->setChecked(false);
  EXPECT_THAT(text("scatter").toStdString(), HasSubstr("N20.0W 30.0E"));
}

TEST_P(Tiltvane_data_view, SavesTheTickedRowsAndListsTheFile) {
  open_on_memory();
  press("all");
  press("Command10");
  EXPECT_TRUE(support::same_as_golden(
      place.program_bytes("Tiltvane\\001-003_2008-11-15_09-30-00.csv"),
      japanese() ? "instruments/measurements_japanese.csv" : "instruments/measurements_english.csv"));
  EXPECT_EQ(find<QListWidget>("FileImage")->count(), 2);
}

TEST_P(Tiltvane_data_view, AsksWhereToExportWithTheFiltersOfTheFormats) {
  open_on_memory();
  press("all");
  press("Command9");
  press("Command16");
  ASSERT_EQ(asked.size(), 6);
  EXPECT_EQ(asked[1], "CSVファイル(*.CSV);;全てのファイル(*.*)");
  EXPECT_EQ(asked[4], "NMEファイル(*.NME);;全てのファイル(*.*)");
  EXPECT_GT(place.disk.length(program("out.CSV")), 0);
  EXPECT_TRUE(support::same_as_golden(place.disk.read_bytes(program("out.NME")), "instruments/track_log.nme"));
}

TEST_P(Tiltvane_data_view, DeletesTheChosenFile) {
  open_on_memory();
  press("Command1");  // none is chosen
  EXPECT_THAT(place.prompts.shown, IsEmpty());
  find<QListWidget>("FileImage")->setCurrentRow(0);
  place.prompts.answers = {platform::Answer::yes, platform::Answer::yes};
  press("Command1");
  EXPECT_EQ(find<QListWidget>("FileImage")->count(), 0);
  EXPECT_EQ(table()->model()->rowCount(), 0);
}

TEST_P(Tiltvane_data_view, WritesIntoTheRegistryAndSaysSo) {
  place.put_program("walk.csv", {"2008/11/15,012030,3541.1234,N,13945.6789,E"});
  open_on_memory();
  QSignalSpy written(view.get(), &ui::Tiltvane_data_view::registry_written);
  press("all");
  press("Tiltvane_File_Make");
  EXPECT_EQ(written.count(), 1);
  EXPECT_EQ(session.registry.N, 2);

  find<QLineEdit>("DirGPS")->setText(ui::to_toolkit(place.folder.text()));
  emit find<QLineEdit>("DirGPS")->editingFinished();
  auto* FileGPS = find<QComboBox>("FileGPS");
  FileGPS->setCurrentIndex(FileGPS->findText("walk.csv"));
  find<QCheckBox>("Check8")->setChecked(true);
  press("Tiltvane_File_Make");
  EXPECT_EQ(place.prompts.shown.back(), japanese() ? "0個のデータを書き込みました。" : "0 Data Saved");
  EXPECT_EQ(written.count(), 1);
  EXPECT_EQ(boxes.FileGPS, "walk.csv");
  EXPECT_EQ(session.registry.N, 2);
}

TEST_P(Tiltvane_data_view, TakesTheTickedReceiversLogs) {
  place.disk.make_folder(program("nmea"));
  place.put_program("nmea\\a.nme", {"$GPRMC,032030,A,3500.0,N,13500.0,E,0,0,151108,,"});
  boxes.DirGPS2 = program("nmea");
  open_on_memory();
  press("all");
  auto* files = find<QListWidget>("FileGPS2");
  ASSERT_EQ(files->count(), 1);
  files->item(0)->setCheckState(Qt::Checked);
  find<QCheckBox>("Check1")->setChecked(true);
  find<QLineEdit>("Text2")->setText("7");
  press("Tiltvane_File_Make");
  ASSERT_EQ(session.registry.N, 1);
  EXPECT_EQ(session.registry.rows[1].X, 13500000.0);
  EXPECT_EQ(boxes.FileGPS2, "a.nme");
}

TEST_P(Tiltvane_data_view, SavesTheStereonetAsAPicture) {
  open_on_memory();
  press("all");
  press("picture");
  const auto decoded = pictures.decode(place.disk.read_bytes(program("out.png")));
  EXPECT_EQ(decoded.picture.width, 2000);
  EXPECT_EQ(decoded.picture.height, 2240);
  place.files.failing_write = 1;
  press("picture");
  EXPECT_THAT(place.prompts.shown.back(), HasSubstr("out.png"));
}

TEST_P(Tiltvane_data_view, TakesTheOtherLanguage) {
  open_on_memory();
  session.settings.language = japanese() ? "English" : "Japanese";
  view->Language_set();
  EXPECT_EQ(find<QPushButton>("Command10")->text(), japanese() ? "&Save as file" : "ファイルに保存(&S)");
  EXPECT_EQ(text("title"), japanese() ? "Tiltvane Memory View" : "Tiltvaneメモリー表示");
  QCoreApplication::processEvents();
  EXPECT_TRUE(support::nothing_clipped(view.get()));
}

TEST_P(Tiltvane_data_view, FillsTwelveHundredRowsAtOnce) {
  place.put_program("TMP2.TMP", std::vector<std::string>(1200, support::with_lineation));
  open();
  QElapsedTimer timer;
  timer.start();
  view->show_memory();
  QCoreApplication::processEvents();
  const auto filled = timer.nsecsElapsed();
  RecordProperty("milliseconds", static_cast<int>(filled / 1'000'000));
  EXPECT_EQ(table()->model()->rowCount(), 1200);
  EXPECT_LT(filled, 1'000'000'000) << "well over the tenth of a second that it takes on a busy machine";
}

}  // namespace
