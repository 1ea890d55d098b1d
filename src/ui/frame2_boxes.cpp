// Between the widgets of the basic settings and their boxes; what the buttons call.
#include <QCloseEvent>
#include <QComboBox>
#include <QGroupBox>
#include <QKeyEvent>
#include <QListWidget>
#include <QMouseEvent>
#include <QRadioButton>
#include <QScopedValueRollback>
#include <QScrollArea>
#include <QScrollBar>
#include <QTabWidget>
#include <QTimer>

#include <array>

#include "core/language.h"
#include "core/settei.h"
#include "platform/failures.h"
#include "ui/folder_box.h"
#include "ui/frame2.h"
#include "ui/frame2_captions.h"
#include "ui/text_box.h"
#include "ui/toolkit_text.h"

namespace ui {

using core::Settings_boxes;

namespace {

struct Text_row {
  const char* name;
  std::string Settings_boxes::*member;
};

constexpr Text_row text_rows[] = {
    {"Dir3", &Settings_boxes::Dir3},   {"Dir4", &Settings_boxes::Dir4},     {"Dir10", &Settings_boxes::Dir10},
    {"Text2", &Settings_boxes::Text2}, {"Text4", &Settings_boxes::Text4},   {"Text5", &Settings_boxes::Text5},
    {"Text6", &Settings_boxes::Text6}, {"Text7", &Settings_boxes::Text7},   {"Text8", &Settings_boxes::Text8},
    {"Text9", &Settings_boxes::Text9}, {"Text10", &Settings_boxes::Text10}, {"Label11", &Settings_boxes::Label11}};

constexpr Text_row combo_rows[] = {
    {"File4", &Settings_boxes::File4}, {"Combo4", &Settings_boxes::Combo4}, {"Combo5", &Settings_boxes::Combo5}};

struct Option_row {
  const char* name;
  bool* value;
};

std::array<Option_row, 9> option_rows(Settings_boxes& boxes) {
  return {{{"Option4_0", &boxes.Option4[0]},
           {"Option4_1", &boxes.Option4[1]},
           {"Option4_2", &boxes.Option4[2]},
           {"Option5_0", &boxes.Option5[0]},
           {"Option5_1", &boxes.Option5[1]},
           {"Option6", &boxes.Option6},
           {"Option7", &boxes.Option7},
           {"Option8", &boxes.Option8},
           {"Option9", &boxes.Option9}}};
}

// The example that stands in an empty cell box, in both languages.
QString cell_hint() {
  return QString::fromUtf8("記入例例：Ｂ４");
}

QString cell_name(std::size_t index) {
  return QString("Text3_%1").arg(index);
}

void caption_set(QWidget* widget, const QString& text) {
  if (auto* frame = qobject_cast<QGroupBox*>(widget)) frame->setTitle(text);
  if (auto* label = qobject_cast<QLabel*>(widget)) label->setText(text);
  if (auto* pressed = qobject_cast<QAbstractButton*>(widget)) {
    const QKeySequence keys = pressed->shortcut();  // a new text takes the shortcut away
    pressed->setText(text);
    pressed->setShortcut(keys);
  }
  if (auto* button = qobject_cast<QPushButton*>(widget)) {
    button->setMinimumWidth(0);
    button->setMinimumWidth(button->sizeHint().width() + 12);
  }
}

}  // namespace

void Frame2_dialog::Language_set() {
  const bool japanese = core::is_japanese(settings_.language);
  const auto pick = [&](const Frame2_caption& row) { return QString::fromUtf8(japanese ? row.japanese : row.english); };
  setWindowTitle(to_toolkit(core::caption_of(settings_, "Frame2")));
  for (const char* name : frame2_table_captions())
    caption_set(findChild<QWidget*>(name), to_toolkit(core::caption_of(settings_, name)));
  auto* tabs = findChild<QTabWidget*>("tabs");
  for (const Frame2_caption& row : frame2_captions()) {
    const QString name = row.name;
    if (name.startsWith("tab_"))
      tabs->setTabText(name.mid(4).toInt(), pick(row));
    else
      caption_set(findChild<QWidget*>(name), pick(row));
  }
  for (auto* box : findChildren<QLineEdit*>())
    if (!box->isReadOnly()) text_box_hint(box, japanese, {});
  for (const Frame2_caption& row : frame2_hints()) {
    auto* widget = findChild<QWidget*>(row.name);
    widget->setToolTip(pick(row));
    if (auto* combo = qobject_cast<QComboBox*>(widget)) widget = combo->lineEdit();
    if (auto* box = qobject_cast<QLineEdit*>(widget)) text_box_hint(box, japanese, pick(row));
  }
  for (std::size_t i = 1; i < 5; ++i) findChild<QLineEdit*>(cell_name(i))->setPlaceholderText(cell_hint());
  for (auto* label : findChildren<QLabel*>())
    if (label->buddy()) label->buddy()->setAccessibleName(label->text().remove('&'));
  findChild<QListWidget*>("File11")->setAccessibleName(findChild<QGroupBox*>("Frame17")->title());
  for (auto* box : findChildren<Folder_box*>()) {
    const QString title = box->accessibleName();
    box->edit()->setAccessibleName(title);
    box->set_captions(japanese ? QString::fromUtf8("参照...") : QString("Browse..."), title);
  }
  pages_fit();
}

// A page never needs a bar to be read across, only one to be read down on a low screen.
void Frame2_dialog::pages_fit() {
  for (auto* area : findChildren<QScrollArea*>()) {
    const int bar = area->verticalScrollBar()->sizeHint().width();
    area->setMinimumWidth(area->widget()->minimumSizeHint().width() + bar);
    area->setMinimumHeight(220);
  }
}

void Frame2_dialog::boxes_out() {
  Settings_boxes shown = boxes_;
  core::File11_refresh(shown, files_);
  widgets_fill(shown);
}

void Frame2_dialog::widgets_fill(const Settings_boxes& shown) {
  for (const Text_row& row : text_rows) findChild<QLineEdit*>(row.name)->setText(to_toolkit(shown.*row.member));
  for (std::size_t i = 0; i < shown.Text3.size(); ++i)
    findChild<QLineEdit*>(cell_name(i))->setText(to_toolkit(shown.Text3[i]));
  frame_files_fill(to_toolkit(shown.Dir3));
  for (const Text_row& row : combo_rows) findChild<QComboBox*>(row.name)->setEditText(to_toolkit(shown.*row.member));
  Settings_boxes values = shown;
  for (const Option_row& row : option_rows(values)) {
    auto* option = findChild<QRadioButton*>(row.name);
    option->setAutoExclusive(false);  // otherwise the last one of a group can't be taken off
    option->setChecked(*row.value);
  }
  for (const Option_row& row : option_rows(values)) findChild<QRadioButton*>(row.name)->setAutoExclusive(true);
  registries_fill(shown);
}

void Frame2_dialog::registries_fill(const Settings_boxes& shown) {
  auto* list = findChild<QListWidget*>("File11");
  list->clear();
  for (const core::File_choice& file : shown.File11) {
    auto* item = new QListWidgetItem(to_toolkit(file.name), list);
    item->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsUserCheckable);
    item->setCheckState(file.selected ? Qt::Checked : Qt::Unchecked);
  }
  listed_folder_ = to_toolkit(shown.Dir4);
}

Settings_boxes Frame2_dialog::boxes_in() const {
  Settings_boxes typed = boxes_;
  for (const Text_row& row : text_rows) typed.*row.member = from_toolkit(findChild<QLineEdit*>(row.name)->text());
  for (std::size_t i = 0; i < typed.Text3.size(); ++i)
    typed.Text3[i] = from_toolkit(findChild<QLineEdit*>(cell_name(i))->text());
  for (const Text_row& row : combo_rows)
    typed.*row.member = from_toolkit(findChild<QComboBox*>(row.name)->currentText());
  for (const Option_row& row : option_rows(typed)) *row.value = findChild<QRadioButton*>(row.name)->isChecked();
  const auto* list = findChild<QListWidget*>("File11");
  typed.File11.clear();
  for (int i = 0; i < list->count(); ++i)
    typed.File11.push_back({from_toolkit(list->item(i)->text()), list->item(i)->checkState() == Qt::Checked});
  return typed;
}

void Frame2_dialog::frame_files_fill(const QString& folder) {
  auto* box = findChild<QComboBox*>("File4");
  const QString name = box->currentText();
  box->clear();
  for (const std::string& file : files_.list(from_toolkit(folder), "*")) box->addItem(to_toolkit(file));
  box->setEditText(name);
}

void Frame2_dialog::project_chosen(const QString& folder) {
  if (folder == listed_folder_) return;
  Settings_boxes typed = boxes_in();
  core::Dir4_change(typed, from_toolkit(folder), files_);
  registries_fill(typed);
}

void Frame2_dialog::sheet_folder_chosen(int index) {
  Settings_boxes typed = boxes_in();
  core::Option5_click(settings_, typed, index);
  findChild<QLineEdit*>("Dir10")->setText(to_toolkit(typed.Dir10));
}

void Frame2_dialog::save() {
  project_chosen(findChild<QLineEdit*>("Dir4")->text());
  Settings_boxes typed = boxes_in();
  if (!core::Command10(settings_, typed, files_, prompts_)) return;
  boxes_ = std::move(typed);
  finish(Accepted);
}

void Frame2_dialog::cancel() {
  const bool missing = files_.length(core::settei_path(settings_)) == 0;
  if (!(frame_closed_ && missing) && !core::Command11(settings_, boxes_, files_, prompts_)) return;
  finish(Rejected);
}

void Frame2_dialog::finish(int result) {
  done(result);
  frame12_show(false);
  if (result == Accepted && saved) saved();
  if (closed) closed();
}

std::unique_ptr<platform::Journal_operation> Frame2_dialog::operation(const char* japanese, const char* english) {
  return journal_ ? std::make_unique<platform::Journal_operation>(*journal_, japanese, english) : nullptr;
}

void Frame2_dialog::project_make() {
  const std::string made = core::Command14(boxes_in(), files_, prompts_);
  if (made.empty()) return;
  findChild<QLineEdit*>("Dir4")->setText(to_toolkit(made));
  findChild<QLineEdit*>("Text2")->clear();
  project_chosen(to_toolkit(made));
}

void Frame2_dialog::registry_make() {
  const auto kept = operation("新規ファイル作成", "New registration file");
  Settings_boxes typed = boxes_in();
  if (!core::Command44(settings_, typed, files_, prompts_)) return;
  findChild<QLineEdit*>("Text4")->clear();
  registries_fill(typed);
}

void Frame2_dialog::registries_delete() {
  const auto kept = operation("地点登録ファイルの削除", "Delete registration files");
  Settings_boxes typed = boxes_in();
  if (core::Command45(typed, files_, prompts_)) registries_fill(typed);
}

void Frame2_dialog::frame12_show(bool shown) {
  auto* frame = findChild<QGroupBox*>("Frame12");
  frame->setVisible(shown);
  findChild<QPushButton*>("Command24")->setEnabled(!shown);
  pages_fit();
  if (!shown) return;
  findChild<QLineEdit*>("Dir3")->setFocus();
  QScrollArea* area = nullptr;
  for (QWidget* at = frame; at && !area; at = at->parentWidget()) area = qobject_cast<QScrollArea*>(at);
  // Behind the layout of the page with the frame in it.
  if (area) QTimer::singleShot(0, area, [area, frame] { area->ensureWidgetVisible(frame); });
}

void Frame2_dialog::reject() {
  cancel();
}

void Frame2_dialog::closeEvent(QCloseEvent* event) {
  const QScopedValueRollback<bool> by_frame(frame_closed_, true);
  QDialog::closeEvent(event);
}

void Frame2_dialog::showEvent(QShowEvent* event) {
  if (!event->spontaneous()) boxes_out();
  QDialog::showEvent(event);
}

// The dialog is dragged over the map by any place that holds no box, not by its title alone.
void Frame2_dialog::mousePressEvent(QMouseEvent* event) {
  held_at_ = event->position().toPoint();
}

void Frame2_dialog::mouseMoveEvent(QMouseEvent* event) {
  if (event->buttons().testFlag(Qt::LeftButton)) move(pos() + event->position().toPoint() - held_at_);
}

// Enter in the name of a new folder or file makes it; elsewhere it saves.
void Frame2_dialog::keyPressEvent(QKeyEvent* event) {
  const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
  const QString name = enter && focusWidget() ? focusWidget()->objectName() : QString();
  if (name == "Text2") return project_make();
  if (name == "Text4") return registry_make();
  if (name.startsWith("Dir")) return;
  QDialog::keyPressEvent(event);
}

}  // namespace ui
