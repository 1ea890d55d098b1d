#include "ui/observation_table.h"

#include <gmock/gmock.h>

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTableView>
#include <QTest>

#include <memory>

#include "gui/clipping.h"
#include "gui/gui_support.h"
#include "gui/observation_registry.h"
#include "ui/observation_list.h"
#include "ui/observation_model.h"

namespace {

using testing::ElementsAre;

// The table of a session, opened in one of the languages.
struct Observation_table : testing::TestWithParam<const char*> {
  session::Session session;
  std::unique_ptr<ui::Observation_table> window;
  std::unique_ptr<QSignalSpy> chosen, asked;

  bool japanese() const { return std::string(GetParam()) == "Japanese"; }
  void open(const std::vector<std::string>& lines = support::five_records) {
    session.settings.language = GetParam();
    support::fill_registry(session, lines, -7.04);
    window = std::make_unique<ui::Observation_table>(session);
    chosen = std::make_unique<QSignalSpy>(window.get(), &ui::Observation_table::chosen);
    asked = std::make_unique<QSignalSpy>(window.get(), &ui::Observation_table::change_asked);
    window->show();
    window->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(window.get()));
  }
  template <typename Widget>
  Widget* find(const char* name) const {
    auto* widget = window->findChild<Widget*>(name);
    if (!widget) ADD_FAILURE() << "no widget " << name;
    return widget;
  }
  QTableView* table() const { return find<QTableView>("observations"); }
  QHeaderView* header() const { return table()->horizontalHeader(); }
  QString text(int row, int column) const { return table()->model()->index(row, column).data().toString(); }
  // The record numbers of the rows from the top.
  std::vector<int> rows() const {
    std::vector<int> numbers;
    for (int row = 0; row < table()->model()->rowCount(); ++row)
      numbers.push_back(text(row, ui::column_record).toInt());
    return numbers;
  }
  std::vector<int> selected() const {
    std::vector<int> numbers;
    for (const QModelIndex& index : table()->selectionModel()->selectedRows())
      numbers.push_back(text(index.row(), ui::column_record).toInt());
    return numbers;
  }
  static std::vector<int> numbers_of(const QSignalSpy& spy) {
    std::vector<int> numbers;
    for (const auto& call : spy) numbers.push_back(call.at(0).toInt());
    return numbers;
  }
  QPoint middle(int row, int column = ui::column_registration) const {
    return table()->visualRect(table()->model()->index(row, column)).center();
  }
  void click(int row, Qt::KeyboardModifiers keys = {}, int column = ui::column_registration) const {
    QTest::mouseClick(table()->viewport(), Qt::LeftButton, keys, middle(row, column));
  }
  void click_header(int column) const {
    const QPoint at(header()->sectionViewportPosition(column) + 10, header()->height() / 2);
    QTest::mouseClick(header()->viewport(), Qt::LeftButton, {}, at);
  }
  std::string told() const { return find<QLabel>("told")->text().toStdString(); }
  std::string count() const { return find<QLabel>("count")->text().toStdString(); }
};
INSTANTIATE_TEST_SUITE_P(BothLanguages, Observation_table, testing::Values("Japanese", "English"));

std::vector<std::string> many_records(int count) {
  std::vector<std::string> lines;
  for (int i = 1; i <= count; ++i)
    lines.push_back(support::Point_line{"n" + std::to_string(i), "N15W", "30E", "", "0"}.text());
  return lines;
}

TEST_P(Observation_table, ShowsTheRecordsInTheOrderOfTheFile) {
  open();
  EXPECT_EQ(window->windowTitle(), japanese() ? "登録地点の一覧" : "Registered observations");
  EXPECT_THAT(rows(), ElementsAre(1, 2, 3, 4, 5));
  EXPECT_EQ(count(), "5 / 5");
  EXPECT_EQ(text(0, ui::column_true_strike), "N22W 338.0°");
  EXPECT_EQ(text(0, ui::column_boundary), japanese() ? "境界" : "boundary");
  EXPECT_EQ(header()->model()->headerData(ui::column_soukou, Qt::Horizontal), japanese() ? "走向" : "Strike");
  EXPECT_EQ(told(), "");
}

TEST_P(Observation_table, IsClippedNowhereAndNamesEveryBox) {
  open();
  for (const QSize size : {window->size(), QSize(1600, 900), window->minimumSizeHint()}) {
    window->resize(size);
    QCoreApplication::processEvents();
    EXPECT_TRUE(support::nothing_clipped(window.get())) << size.width();
  }
  EXPECT_EQ(support::nameless_widgets(*window).join(", ").toStdString(), "");
  for (int column = 0; column < ui::list_columns; ++column) {
    const QString caption = header()->model()->headerData(column, Qt::Horizontal).toString();
    EXPECT_GE(header()->sectionSize(column), header()->fontMetrics().horizontalAdvance(caption) + 8)
        << caption.toStdString();
    EXPECT_FALSE(header()->model()->headerData(column, Qt::Horizontal, Qt::ToolTipRole).toString().isEmpty());
  }
}

TEST_P(Observation_table, ShowsTheStoredPositionInATip) {
  open();
  const QString tip = table()->model()->index(0, ui::column_X).data(Qt::ToolTipRole).toString();
  EXPECT_EQ(tip, japanese() ? "登録値: 13886245.41" : "Stored: 13886245.41");
  const QString strike = table()->model()->index(0, ui::column_true_strike).data(Qt::ToolTipRole).toString();
  EXPECT_TRUE(strike.endsWith("-7.0°")) << strike.toStdString();
}

TEST_P(Observation_table, ShowsTheColourInWhichARecordIsDrawn) {
  open();
  const auto colour = [this](int row) {
    const auto icon = table()->model()->index(row, ui::column_size).data(Qt::DecorationRole).value<QIcon>();
    return icon.pixmap(16, 16).toImage().pixelColor(8, 8);
  };
  EXPECT_EQ(colour(0), QColor(255, 0, 0));
  EXPECT_EQ(colour(3), QColor(0, 200, 0)) << "a line stands in its line colour";
}

TEST_P(Observation_table, AClickChoosesARecordOnce) {
  open();
  click(2);
  EXPECT_THAT(numbers_of(*chosen), ElementsAre(3));
  click(2);
  EXPECT_THAT(numbers_of(*chosen), ElementsAre(3, 3)) << "a second click brings the map back to it";
  EXPECT_TRUE(asked->isEmpty());
}

TEST_P(Observation_table, TheArrowKeysChooseToo) {
  open();
  click(2);
  QTest::keyClick(table(), Qt::Key_Down);
  QTest::keyClick(table(), Qt::Key_End, Qt::ControlModifier);
  EXPECT_THAT(numbers_of(*chosen), ElementsAre(3, 4, 5));
}

TEST_P(Observation_table, DraggingOverRowsMovesTheMapOnce) {
  open();
  QTest::mousePress(table()->viewport(), Qt::LeftButton, {}, middle(0));
  for (int row = 1; row <= 3; ++row) QTest::mouseMove(table()->viewport(), middle(row));
  QTest::mouseRelease(table()->viewport(), Qt::LeftButton, {}, middle(3));
  EXPECT_THAT(numbers_of(*chosen), ElementsAre(1));
}

TEST_P(Observation_table, ARecordThatIsChosenOnTheMapIsSelectedSilently) {
  open(many_records(500));
  window->select(400);
  EXPECT_THAT(selected(), ElementsAre(400));
  EXPECT_TRUE(table()->viewport()->rect().contains(middle(399)));
  window->select(0);
  EXPECT_THAT(selected(), ElementsAre());
  window->select(501);
  EXPECT_THAT(selected(), ElementsAre());
  EXPECT_TRUE(chosen->isEmpty());
}

TEST_P(Observation_table, ASelectionWhileItIsHiddenShowsWhenItOpens) {
  open();
  window->hide();
  window->select(4);
  support::fill_registry(session, {support::five_records[3], support::five_records[0]}, 0.0);
  window->registry_read();
  window->select(2);
  support::fill_registry(session, {support::five_records[1], support::five_records[3], support::five_records[0]}, 0.0);
  window->registry_read();
  window->show();
  EXPECT_EQ(count(), "3 / 3");
  EXPECT_THAT(selected(), ElementsAre(3)) << "the record of the second read at its place in the third";
  EXPECT_TRUE(chosen->isEmpty());
}

TEST_P(Observation_table, DoubleClickEnterAndButtonAskForAChange) {
  open();
  EXPECT_FALSE(find<QPushButton>("change_button")->isEnabled());
  click(1);
  QTest::mouseDClick(table()->viewport(), Qt::LeftButton, {}, middle(1));
  EXPECT_THAT(numbers_of(*asked), ElementsAre(2));
  QTest::keyClick(table(), Qt::Key_Down);
  QTest::keyClick(table(), Qt::Key_Return);
  QTest::keyClick(table(), Qt::Key_Enter, Qt::KeypadModifier);
  find<QPushButton>("change_button")->click();
  EXPECT_THAT(numbers_of(*asked), ElementsAre(2, 3, 3, 3));
  EXPECT_TRUE(window->isVisible());
}

TEST_P(Observation_table, TheFilterKeepsRowsAndCountsThem) {
  open();
  QTest::keyClick(window.get(), Qt::Key_F, Qt::ControlModifier);
  ASSERT_EQ(window->focusWidget(), find<QLineEdit>("filter"));
  find<QLineEdit>("filter")->setText("砂岩");
  EXPECT_THAT(rows(), ElementsAre(1, 3));
  EXPECT_EQ(count(), "2 / 5");
  find<QComboBox>("kept")->setCurrentIndex(1);
  EXPECT_THAT(rows(), ElementsAre(1));
  QTest::keyClick(find<QLineEdit>("filter"), Qt::Key_Escape);
  EXPECT_THAT(rows(), ElementsAre(1, 2, 3, 4, 5));
  EXPECT_EQ(find<QComboBox>("kept")->currentIndex(), 0);
  EXPECT_TRUE(window->isVisible());
  QTest::keyClick(window.get(), Qt::Key_Escape);
  EXPECT_FALSE(window->isVisible());
}

TEST_P(Observation_table, TheWindowClosesWithAFilterInIt) {
  open();
  find<QLineEdit>("filter")->setText("砂岩");
  find<QPushButton>("close")->click();
  EXPECT_FALSE(window->isVisible());
  window->show();
  EXPECT_THAT(rows(), ElementsAre(1, 3));
}

TEST_P(Observation_table, ARecordThatTheFilterHidesComesBackSelected) {
  open();
  click(1);
  find<QLineEdit>("filter")->setText("砂岩");
  EXPECT_THAT(selected(), ElementsAre());
  EXPECT_EQ(told(), japanese() ? "選択中の地点は絞り込みで隠れています。" : "The filter hides the chosen record.");
  find<QLineEdit>("filter")->clear();
  EXPECT_THAT(selected(), ElementsAre(2));
  EXPECT_EQ(told(), "");
  EXPECT_THAT(numbers_of(*chosen), ElementsAre(2)) << "filtering chooses nothing";
}

TEST_P(Observation_table, SaysWhyThereIsNothingToSee) {
  open({});
  EXPECT_EQ(told(), japanese() ? "登録された地点はありません。" : "No observation is registered.");
  support::fill_registry(session, support::five_records, 0.0);
  window->registry_read();
  find<QLineEdit>("filter")->setText("nothing like it");
  EXPECT_EQ(told(), japanese() ? "絞り込みに合う地点はありません。" : "No record fits the filter.");
  QTest::keyClick(find<QLineEdit>("filter"), Qt::Key_Down);
  EXPECT_TRUE(chosen->isEmpty());
}

TEST_P(Observation_table, DownAndEnterLeadFromTheFilterIntoTheRows) {
  open();
  find<QLineEdit>("filter")->setFocus();
  find<QLineEdit>("filter")->setText("mudstone");
  QTest::keyClick(find<QLineEdit>("filter"), Qt::Key_Down);
  EXPECT_EQ(window->focusWidget(), table());
  EXPECT_THAT(numbers_of(*chosen), ElementsAre(2));
  EXPECT_TRUE(asked->isEmpty());
  find<QLineEdit>("filter")->setFocus();
  QTest::keyClick(find<QLineEdit>("filter"), Qt::Key_Return);
  EXPECT_EQ(window->focusWidget(), table());
  EXPECT_TRUE(asked->isEmpty());
}

TEST_P(Observation_table, AClickOnAHeaderSortsAndKeepsTheSelection) {
  open();
  click(3);
  click_header(ui::column_registration);
  EXPECT_THAT(rows(), ElementsAre(3, 1, 2, 5, 4));
  EXPECT_THAT(selected(), ElementsAre(4));
  click_header(ui::column_registration);
  EXPECT_THAT(rows(), ElementsAre(5, 2, 1, 3, 4));
  EXPECT_THAT(selected(), ElementsAre(4));
  EXPECT_THAT(numbers_of(*chosen), ElementsAre(4));
}

TEST_P(Observation_table, ANewReadKeepsTheSelectionByRecord) {
  open();
  click(0);
  click(2, Qt::ControlModifier);
  const std::vector<std::string> lines{support::five_records[2], support::five_records[4], support::five_records[0]};
  support::fill_registry(session, lines, 0.0);
  window->registry_read();
  EXPECT_EQ(count(), "3 / 3");
  EXPECT_THAT(selected(), testing::UnorderedElementsAre(1, 3));
  EXPECT_EQ(text(table()->currentIndex().row(), ui::column_registration), "081115-001");
  EXPECT_THAT(numbers_of(*chosen), ElementsAre(1, 3));
}

TEST_P(Observation_table, ANewReadKeepsTheScrollPlaceByRecord) {
  open(many_records(1000));
  table()->scrollTo(table()->model()->index(600, 0), QAbstractItemView::PositionAtTop);
  ASSERT_EQ(text(table()->rowAt(0), ui::column_registration), "n601");
  std::vector<std::string> lines = many_records(1000);
  lines.erase(lines.begin() + 10, lines.begin() + 20);
  support::fill_registry(session, lines, 0.0);
  window->registry_read();
  EXPECT_EQ(table()->rowAt(0), 590);
  EXPECT_EQ(text(table()->rowAt(0), ui::column_registration), "n601");
}

TEST_P(Observation_table, ARecordThatWentIsSelectedNoMore) {
  open();
  click(1);
  support::fill_registry(session, {support::five_records[0], support::five_records[2]}, 0.0);
  window->registry_read();
  EXPECT_THAT(selected(), ElementsAre());
  EXPECT_FALSE(find<QPushButton>("change_button")->isEnabled());
  EXPECT_EQ(told(), "");
}

TEST_P(Observation_table, CopiesTheSelectedRowsOfTheShownColumnsInTheirOrder) {
  open();
  for (int column = 0; column < ui::list_columns; ++column)
    header()->setSectionHidden(
        column, column != ui::column_record && column != ui::column_soukou && column != ui::column_chisou);
  header()->moveSection(header()->visualIndex(ui::column_soukou), 0);
  click(0, {}, ui::column_soukou);
  click(2, Qt::ControlModifier, ui::column_soukou);
  QTest::keyClick(table(), Qt::Key_C, Qt::ControlModifier);
  EXPECT_EQ(QApplication::clipboard()->text(), "N15W\t1\t砂岩\n\t3\t砂岩\n");
}

TEST_P(Observation_table, ColumnsAreHiddenByTheMenuOfTheHeaderAndStaySoWhileItLives) {
  open();
  emit header()->customContextMenuRequested({5, 5});
  auto* menu = find<QMenu>("columns_menu");
  ASSERT_EQ(menu->actions().size(), ui::list_columns + 2);
  menu->actions().at(ui::column_Z)->trigger();
  menu->close();
  EXPECT_TRUE(header()->isSectionHidden(ui::column_Z));
  header()->resizeSection(ui::column_X, 333);
  header()->moveSection(0, 3);
  window->close();
  window->show();
  support::fill_registry(session, support::five_records, 0.0);
  window->registry_read();
  session.settings.language = japanese() ? "English" : "Japanese";
  window->Language_set();
  EXPECT_TRUE(header()->isSectionHidden(ui::column_Z));
  EXPECT_EQ(header()->sectionSize(ui::column_X), 333);
  EXPECT_EQ(header()->visualIndex(ui::column_record), 3);
  emit header()->customContextMenuRequested({5, 5});
  find<QAction>("usual_columns")->trigger();
  menu->close();
  EXPECT_FALSE(header()->isSectionHidden(ui::column_Z));
  EXPECT_EQ(header()->visualIndex(ui::column_record), 0);
}

TEST_P(Observation_table, TheLastColumnCanNotBeHidden) {
  open();
  for (int column = 1; column < ui::list_columns; ++column) header()->setSectionHidden(column, true);
  emit header()->customContextMenuRequested({5, 5});
  auto* menu = find<QMenu>("columns_menu");
  EXPECT_FALSE(menu->actions().at(0)->isEnabled());
  EXPECT_TRUE(menu->actions().at(1)->isEnabled());
  menu->close();
}

TEST_P(Observation_table, SpeaksTheOtherLanguageAtOnce) {
  open();
  click(1);
  session.settings.language = japanese() ? "English" : "Japanese";
  window->Language_set();
  EXPECT_EQ(window->windowTitle(), japanese() ? "Registered observations" : "登録地点の一覧");
  EXPECT_EQ(header()->model()->headerData(ui::column_Z + 1, Qt::Horizontal), japanese() ? "Strike" : "走向");
  EXPECT_EQ(text(0, ui::column_boundary), japanese() ? "boundary" : "境界");
  EXPECT_THAT(selected(), ElementsAre(2));
  QCoreApplication::processEvents();
  EXPECT_TRUE(support::nothing_clipped(window.get()));
}

// A new record is a row of the registry before the table is read again, and an unsaved one is given back.
TEST_P(Observation_table, StandsARegistryThatChangedUnderIt) {
  open();
  session.registry.N = 2;
  EXPECT_EQ(text(3, ui::column_registration), "");
  click(3);
  find<QLineEdit>("filter")->setText("砂岩");
  EXPECT_THAT(rows(), ElementsAre(1));
  session.registry.N = 5;
  window->registry_read();
  EXPECT_THAT(rows(), ElementsAre(1, 3));
}

}  // namespace
