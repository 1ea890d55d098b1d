#include "ui/observation_table.h"

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QEvent>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QItemSelection>
#include <QKeyEvent>
#include <QMenu>
#include <QScrollBar>
#include <QShortcut>
#include <QTableView>

#include <algorithm>

#include "core/language.h"
#include "ui/either.h"
#include "ui/observation_model.h"
#include "ui/window_size.h"

namespace ui {

namespace {

constexpr QSize first_size(1100, 520);
constexpr QSize least_size(560, 260);
constexpr int cell_margin = 12;
constexpr int sort_mark = 16;  // beside the caption
constexpr int swatch_side = 12;

struct Kept_text {
  Kept kept;
  const char* japanese;
  const char* english;
};

constexpr Kept_text kept_texts[] = {
    {Kept::all, "すべての地点", "All records"},
    {Kept::with_strike, "走向のある地点", "With a strike"},
    {Kept::lineations, "線構造のある地点", "With a lineation"},
    {Kept::lines_and_areas, "線と範囲", "Lines and enclosures"},
    {Kept::uncorrected, "偏角未補正の走向", "Uncorrected strikes"},
    {Kept::with_image, "画像のある地点", "With an image"},
};

// Cells are parted by tabs, so none may hold one.
QString copied_cell(QString text) {
  return text.replace('\t', ' ').replace('\n', ' ').replace('\r', ' ');
}

}  // namespace

Observation_table::Observation_table(session::Session& session, QWidget* parent)
    : QDialog(parent, Qt::Window | Qt::WindowMinMaxButtonsHint | Qt::WindowCloseButtonHint), session_(session) {
  setObjectName("registered_observations");
  setSizeGripEnabled(true);
  model_ = new Observation_model(session, this);
  build_table();
  lay_out();
  connect_all();
  set_captions();
  usual_columns();
  setMinimumSize(least_size);
  resize(size_on_screen(*this, first_size));
}

void Observation_table::build_table() {
  table_ = new QTableView;
  table_->setObjectName("observations");
  table_->setModel(model_);
  table_->setSelectionBehavior(QAbstractItemView::SelectRows);
  table_->setSelectionMode(QAbstractItemView::ExtendedSelection);
  table_->setEditTriggers(QAbstractItemView::NoEditTriggers);
  table_->setHorizontalScrollMode(QAbstractItemView::ScrollPerPixel);
  table_->setAlternatingRowColors(true);
  table_->setTabKeyNavigation(false);
  table_->setWordWrap(false);
  table_->setIconSize({swatch_side, swatch_side});
  table_->verticalHeader()->hide();
  table_->verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
  table_->verticalHeader()->setDefaultSectionSize(fontMetrics().height() + 8);
  QHeaderView* const header = table_->horizontalHeader();
  header->setSectionsMovable(true);
  header->setSectionsClickable(true);
  header->setSortIndicatorShown(true);
  header->setSortIndicator(column_record, Qt::AscendingOrder);
  header->setHighlightSections(false);
  header->setContextMenuPolicy(Qt::CustomContextMenu);
  columns_menu_ = new QMenu(this);
  columns_menu_->setObjectName("columns_menu");

  show_action_ = add_row_action("show_on_map", {});
  change_action_ = add_row_action("change", {Qt::Key_Return});
  change_action_->setShortcuts({QKeySequence(Qt::Key_Return), QKeySequence(Qt::Key_Enter)});
  copy_action_ = add_row_action("copy", QKeySequence::Copy);
  table_->setContextMenuPolicy(Qt::ActionsContextMenu);
}

QAction* Observation_table::add_row_action(const char* name, const QKeySequence& keys) {
  auto* action = new QAction(this);
  action->setObjectName(name);
  action->setShortcut(keys);
  action->setShortcutContext(Qt::WidgetWithChildrenShortcut);
  table_->addAction(action);
  return action;
}

void Observation_table::lay_out() {
  auto* column = new QVBoxLayout(this);
  auto* top = new QHBoxLayout;
  filter_label_ = new QLabel;
  filter_ = new QLineEdit;
  filter_->setObjectName("filter");
  filter_->setClearButtonEnabled(true);
  filter_label_->setBuddy(filter_);
  kept_ = new QComboBox;
  kept_->setObjectName("kept");
  for (const Kept_text& text : kept_texts) kept_->addItem({}, static_cast<int>(text.kept));
  count_ = new QLabel;
  count_->setObjectName("count");
  count_->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
  count_->setMinimumWidth(fontMetrics().horizontalAdvance("15000 / 15000") + cell_margin);
  top->addWidget(filter_label_);
  top->addWidget(filter_, 1);
  top->addWidget(kept_);
  top->addWidget(count_);
  column->addLayout(top);
  column->addWidget(table_, 1);

  auto* bottom = new QHBoxLayout;
  told_ = new QLabel;
  told_->setObjectName("told");
  told_->setWordWrap(true);
  change_ = new QPushButton;
  change_->setObjectName("change_button");
  close_ = new QPushButton;
  close_->setObjectName("close");
  bottom->addWidget(told_, 1);
  for (QPushButton* button : {change_, close_}) {
    button->setAutoDefault(false);
    bottom->addWidget(button);
  }
  column->addLayout(bottom);
}

void Observation_table::connect_all() {
  connect(filter_, &QLineEdit::textChanged, this, &Observation_table::filter_changed);
  connect(filter_, &QLineEdit::returnPressed, this, &Observation_table::enter_table);
  connect(kept_, &QComboBox::currentIndexChanged, this, &Observation_table::filter_changed);
  connect(table_->horizontalHeader(), &QHeaderView::sortIndicatorChanged, this, &Observation_table::sort_changed);
  connect(table_->horizontalHeader(), &QWidget::customContextMenuRequested, this,
          &Observation_table::show_columns_menu);
  connect(table_->selectionModel(), &QItemSelectionModel::currentRowChanged, this, &Observation_table::row_changed);
  connect(table_, &QAbstractItemView::pressed, this, &Observation_table::row_pressed);
  connect(table_, &QAbstractItemView::doubleClicked, this, &Observation_table::ask_change);
  connect(show_action_, &QAction::triggered, this, &Observation_table::row_pressed);
  connect(change_action_, &QAction::triggered, this, &Observation_table::ask_change);
  connect(copy_action_, &QAction::triggered, this, &Observation_table::copy_rows);
  connect(change_, &QPushButton::clicked, this, &Observation_table::ask_change);
  connect(close_, &QPushButton::clicked, this, &QDialog::reject);
  table_->viewport()->installEventFilter(this);
  filter_->installEventFilter(this);

  connect(new QShortcut(QKeySequence::Find, this), &QShortcut::activated, this, [this] {
    filter_->setFocus(Qt::ShortcutFocusReason);
    filter_->selectAll();
  });
  connect(new QShortcut(Qt::Key_Escape, this), &QShortcut::activated, this, &Observation_table::clear_filter);
}

void Observation_table::set_captions() {
  const Either either{core::is_japanese(session_.settings.language)};
  setWindowTitle(either("登録地点の一覧", "Registered observations"));
  filter_label_->setText(either("絞り込み(&F)", "&Filter"));
  filter_->setAccessibleName(either("絞り込みの語", "Words to filter by"));
  filter_->setPlaceholderText(either("語を空白で区切って入力", "Words, parted by blanks"));
  filter_->setToolTip(either("すべての語を含む地点だけを表示します。(Ctrl+F、Escで解除)",
                             "Shows the records that hold all the words (Ctrl+F; Esc clears it)."));
  kept_->setAccessibleName(either("表示する地点の種類", "Kind of records to show"));
  kept_->setToolTip(either("表示する地点の種類", "Kind of records to show"));
  for (int i = 0; i < kept_->count(); ++i) kept_->setItemText(i, either(kept_texts[i].japanese, kept_texts[i].english));
  table_->setAccessibleName(either("登録地点", "Registered observations"));
  show_action_->setText(either("地図で表示(&M)", "Show on the &map"));
  change_action_->setText(either("変更(&H)...", "C&hange..."));
  copy_action_->setText(either("行をコピー(&C)", "&Copy rows"));
  change_->setText(either("変更(&H)...", "C&hange..."));
  change_->setToolTip(
      either("選択した地点を入力画面で開きます。(Enter)", "Opens the record in the entry panel (Enter)."));
  close_->setText(either("閉じる(&C)", "&Close"));
  count_->setAccessibleName(either("表示数 / 登録数", "Shown / registered"));
  count_->setToolTip(either("表示数 / 登録数", "Shown / registered"));
  show_state();
}

void Observation_table::make_usual_width(int column) {
  const QFontMetrics metrics = table_->fontMetrics();
  const QString caption = model_->headerData(column, Qt::Horizontal, Qt::DisplayRole).toString();
  const bool japanese = core::is_japanese(session_.settings.language);
  const int width = cell_margin + std::max(metrics.horizontalAdvance(QString::fromUtf8(usual_text(column, japanese))),
                                           metrics.horizontalAdvance(caption) + sort_mark);
  widths_[static_cast<std::size_t>(column)] = width;
  table_->horizontalHeader()->resizeSection(column, width);
}

void Observation_table::usual_columns() {
  QHeaderView* const header = table_->horizontalHeader();
  for (int column = 0; column < list_columns; ++column) {
    header->setSectionHidden(column, false);
    header->moveSection(header->visualIndex(column), column);
    make_usual_width(column);
  }
}

void Observation_table::showEvent(QShowEvent* event) {
  QDialog::showEvent(event);
  if (stale_) registry_read();
  if (chosen_meanwhile_) select(model_->found(*chosen_meanwhile_, touroku_));
}

void Observation_table::registry_read() {
  stale_ = !isVisible();
  if (stale_) return;
  keep_place([this] { return model_->registry_read(); });
}

void Observation_table::Language_set() {
  // A width that the person has changed stays.
  for (int column = 0; column < list_columns; ++column)
    if (table_->columnWidth(column) == widths_[static_cast<std::size_t>(column)]) make_usual_width(column);
  model_->Language_set();
  set_captions();
  registry_read();
}

void Observation_table::select(int touroku) {
  touroku_ = touroku;
  chosen_meanwhile_.reset();
  if (stale_) {
    const bool known = touroku >= 1 && touroku <= session_.registry.N;
    chosen_meanwhile_ = known ? identity_of(session_.registry.rows[touroku]) : std::string();
    return;
  }
  mark(touroku == 0 ? std::vector<int>() : std::vector<int>{touroku});
  const int row = model_->row_of(touroku);
  if (row >= 0) table_->scrollTo(model_->index(row, table_->horizontalHeader()->logicalIndexAt(0)));
  show_state();
}

void Observation_table::keep_place(const std::function<std::vector<int>()>& change) {
  std::vector<int> records = marked();
  int top = model_->touroku_at(table_->rowAt(0));
  const int sideways = table_->horizontalScrollBar()->value();
  filling_ = true;
  const std::vector<int> numbers = change();
  filling_ = false;
  if (!numbers.empty()) {
    const auto now = [&](int touroku) {
      return touroku < 1 || touroku > static_cast<int>(numbers.size()) ? 0
                                                                       : numbers[static_cast<std::size_t>(touroku - 1)];
    };
    std::transform(records.begin(), records.end(), records.begin(), now);
    touroku_ = now(touroku_);
    top = now(top);
  }
  if (touroku_ != 0 && std::find(records.begin(), records.end(), touroku_) == records.end())
    records.push_back(touroku_);
  mark(records);
  const int row = model_->row_of(top);
  if (row >= 0) table_->scrollTo(model_->index(row, 0), QAbstractItemView::PositionAtTop);
  table_->horizontalScrollBar()->setValue(sideways);
  show_state();
}

std::vector<int> Observation_table::marked() const {
  std::vector<int> rows;
  for (const QItemSelectionRange& range : table_->selectionModel()->selection())
    for (int row = range.top(); row <= range.bottom(); ++row) rows.push_back(row);
  // A range for each block of columns where columns have been moved.
  std::sort(rows.begin(), rows.end());
  rows.erase(std::unique(rows.begin(), rows.end()), rows.end());
  std::transform(rows.begin(), rows.end(), rows.begin(), [this](int row) { return model_->touroku_at(row); });
  return rows;
}

void Observation_table::mark(const std::vector<int>& records) {
  std::vector<int> rows;
  for (const int touroku : records)
    if (const int row = model_->row_of(touroku); row >= 0) rows.push_back(row);
  std::sort(rows.begin(), rows.end());
  QItemSelection selection;
  for (std::size_t first = 0; first < rows.size();) {
    std::size_t last = first;
    while (last + 1 < rows.size() && rows[last + 1] == rows[last] + 1) ++last;
    selection.append({model_->index(rows[first], 0), model_->index(rows[last], list_columns - 1)});
    first = last + 1;
  }
  filling_ = true;
  table_->selectionModel()->select(selection, QItemSelectionModel::ClearAndSelect);
  const int current = model_->row_of(touroku_);
  table_->selectionModel()->setCurrentIndex(current < 0 ? QModelIndex() : model_->index(current, 0),
                                            QItemSelectionModel::NoUpdate);
  filling_ = false;
}

int Observation_table::current_record() const {
  return model_->touroku_at(table_->currentIndex().row());
}

void Observation_table::filter_changed() {
  keep_place([this] {
    model_->set_filter(filter_->text(), static_cast<Kept>(kept_->currentData().toInt()));
    return std::vector<int>();
  });
}

void Observation_table::clear_filter() {
  if (filter_->text().isEmpty() && kept_->currentIndex() == 0) {
    close();
    return;
  }
  filter_->clear();
  kept_->setCurrentIndex(0);
}

void Observation_table::sort_changed() {
  const QHeaderView* const header = table_->horizontalHeader();
  keep_place([this, header] {
    model_->sort(header->sortIndicatorSection(), header->sortIndicatorOrder());
    return std::vector<int>();
  });
}

void Observation_table::row_changed() {
  if (filling_) return;
  if (!pressing_) row_pressed();
}

void Observation_table::row_pressed() {
  const int touroku = current_record();
  if (touroku == 0) return;
  touroku_ = touroku;
  show_state();
  emit chosen(touroku);
}

// From the filter into the rows.
void Observation_table::enter_table() {
  if (model_->rowCount() == 0) return;
  table_->setFocus(Qt::TabFocusReason);
  if (!table_->currentIndex().isValid()) table_->selectRow(0);
}

void Observation_table::ask_change() {
  if (const int touroku = current_record(); touroku != 0) emit change_asked(touroku);
}

void Observation_table::copy_rows() {
  const QHeaderView* const header = table_->horizontalHeader();
  QString copied;
  for (const int touroku : marked()) {
    QStringList cells;
    for (int place = 0; place < list_columns; ++place) {
      const int column = header->logicalIndex(place);
      if (!header->isSectionHidden(column)) cells << copied_cell(model_->text_at(model_->row_of(touroku), column));
    }
    copied += cells.join('\t') + '\n';
  }
  if (!copied.isEmpty()) QApplication::clipboard()->setText(copied);
}

void Observation_table::show_columns_menu(QPoint at) {
  QHeaderView* const header = table_->horizontalHeader();
  const bool japanese = core::is_japanese(session_.settings.language);
  const int visible = header->count() - header->hiddenSectionCount();
  columns_menu_->clear();
  for (int place = 0; place < list_columns; ++place) {
    const int column = header->logicalIndex(place);
    QAction* const action =
        columns_menu_->addAction(model_->headerData(column, Qt::Horizontal, Qt::DisplayRole).toString());
    action->setCheckable(true);
    action->setChecked(!header->isSectionHidden(column));
    action->setEnabled(visible > 1 || !action->isChecked());  // one column stays
    connect(action, &QAction::toggled, header,
            [header, column](bool shown) { header->setSectionHidden(column, !shown); });
  }
  columns_menu_->addSeparator();
  QAction* const usual = columns_menu_->addAction(QString::fromUtf8(japanese ? "列を初期状態に戻す" : "Usual columns"));
  usual->setObjectName("usual_columns");
  connect(usual, &QAction::triggered, this, &Observation_table::usual_columns);
  columns_menu_->popup(header->mapToGlobal(at));
}

void Observation_table::show_state() {
  const bool japanese = core::is_japanese(session_.settings.language);
  count_->setText(QString("%1 / %2").arg(model_->rowCount()).arg(model_->total()));
  const bool has_current = current_record() != 0;
  for (QAction* action : {show_action_, change_action_, copy_action_}) action->setEnabled(has_current);
  change_->setEnabled(has_current);
  const char* told = "";
  if (model_->total() == 0)
    told = japanese ? "登録された地点はありません。" : "No observation is registered.";
  else if (model_->rowCount() == 0)
    told = japanese ? "絞り込みに合う地点はありません。" : "No record fits the filter.";
  else if (touroku_ != 0 && model_->row_of(touroku_) < 0)
    told = japanese ? "選択中の地点は絞り込みで隠れています。" : "The filter hides the chosen record.";
  told_->setText(QString::fromUtf8(told));
}

bool Observation_table::eventFilter(QObject* watched, QEvent* event) {
  if (watched == table_->viewport()) {
    if (event->type() == QEvent::MouseButtonPress) pressing_ = true;
    if (event->type() == QEvent::MouseButtonRelease) pressing_ = false;
  }
  if (watched == filter_ && event->type() == QEvent::KeyPress &&
      static_cast<QKeyEvent*>(event)->key() == Qt::Key_Down) {
    enter_table();
    return true;
  }
  return QDialog::eventFilter(watched, event);
}

}  // namespace ui
