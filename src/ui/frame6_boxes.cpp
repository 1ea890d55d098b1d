// Between the widgets of the entry panel and its boxes, and the keys.
#include <QCheckBox>
#include <QComboBox>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QScopedValueRollback>
#include <QScrollArea>
#include <QScrollBar>

#include <algorithm>

#include "core/choice_lists.h"
#include "observations/mark_out.h"
#include "observations/registry_numbers.h"
#include "platform/numbers.h"
#include "ui/colour_button.h"
#include "ui/frame6.h"
#include "ui/toolkit_text.h"

namespace ui {

using namespace observations;

namespace {

void text_show(QLineEdit* box, const std::string& text) {
  const QString shown = to_toolkit(text);
  if (box->text() != shown) box->setText(shown);
}

// Fills a list; the text that is chosen or typed stays, also where the list doesn't have it.
void list_show(QComboBox* combo, const QStringList& items, const std::string& text) {
  QStringList present;
  for (int i = 0; i < combo->count(); ++i) present.append(combo->itemText(i));
  const QString shown = to_toolkit(text);
  QStringList wanted = items;
  if (!combo->isEditable() && !shown.isEmpty() && !wanted.contains(shown)) wanted.append(shown);
  if (present != wanted) {
    combo->clear();
    combo->addItems(wanted);
  }
  // A text that is not in the list stands before its first entry: the Down key goes there.
  const int entry = static_cast<int>(wanted.indexOf(shown));
  if (combo->currentIndex() != entry) combo->setCurrentIndex(entry);
  if (combo->isEditable() && combo->currentText() != shown) combo->setEditText(shown);
}

QStringList to_list(core::Choices choices) {
  QStringList list;
  for (const char* choice : choices) list.append(QString::fromUtf8(choice));
  return list;
}

QStringList to_list(const std::vector<std::string>& texts) {
  QStringList list;
  for (const std::string& text : texts) list.append(to_toolkit(text));
  return list;
}

QColor to_colour(const observations::Colour& colour) {
  return QColor::fromRgb(colour_of(colour.red, colour.green, colour.blue));
}

}  // namespace

void Frame6::boxes_out() {
  take_coefficients(ports_.files, session_.settings.program_path, session_.coefficients);
  const int record = is_open() ? std::max(1, session_.entry.touroku) : 0;
  const bool another = record != shown_record_;
  if (another || session_.flags.data_dirty == 0) as_read_ = session_.entry.boxes;
  shown_record_ = record;
  widgets_fill();
  enable();
  state_show();
  echo_out();
  if (!another || !is_open()) return;
  area_->verticalScrollBar()->setValue(0);
  texts_[box_Z]->setFocus(Qt::OtherFocusReason);
  texts_[box_Z]->selectAll();
}

void Frame6::widgets_fill() {
  const QScopedValueRollback filling(filling_, true);
  const Entry_boxes& boxes = session_.entry.boxes;
  for (std::size_t i = 0; i < boxes.Text14.size(); ++i) text_show(texts_[i], boxes.Text14[i]);
  text_show(texts_[box_measurement], boxes.Text13);
  text_show(Label3_, boxes.Label3);
  Label3_->setToolTip(to_toolkit(boxes.Label3));
  mark_colour_->set_colour(to_colour(boxes.Shape1));
  line_colour_->set_colour(to_colour(boxes.Shape4));
  Check1_->setChecked(boxes.Check1);
  Check7_->setChecked(boxes.Check7);
  Check9_->setChecked(boxes.Check9);
  const QString memo = to_toolkit(boxes.memo);
  if (memo_->toPlainText() != memo) memo_->setPlainText(memo);
  lists_show();
}

void Frame6::lists_fill() {
  const QScopedValueRollback filling(filling_, true);
  lists_show();
}

// The lists of marks are those of their first use; before it they are in the language in force.
void Frame6::lists_show() {
  const Entry_boxes& boxes = session_.entry.boxes;
  const std::string& language = session_.settings.language;
  list_show(Combo1_, boxes.Combo1_list.empty() ? to_list(core::mark_shapes(language)) : to_list(boxes.Combo1_list),
            boxes.Combo1);
  list_show(Combo3_, boxes.Combo3_list.empty() ? to_list(core::mark_sizes()) : to_list(boxes.Combo3_list),
            boxes.Combo3.empty() ? core::mark_size_default : boxes.Combo3);
  list_show(Combo7_, to_list(core::target_kinds(language)), boxes.Combo7);
  list_show(Combo6_, to_list(session_.stratum_names), boxes.Combo6);
  list_show(Combo2_, to_list(boxes.Combo2_list), boxes.Combo2);
}

void Frame6::enable() {
  const bool line_open = session_.flags.line_mode > 0;
  const auto use = [this](const char* name, bool usable) { findChild<QWidget*>(name)->setEnabled(usable); };
  use("entry_new", session_.sheet_shown() && !is_open());
  const bool had_keys = !is_open() && isAncestorOf(window()->focusWidget());
  form_->setEnabled(is_open());
  use("Command6", is_open() && !line_open);
  use("Command31", is_open() && line_open);
  for (const char* name : {"entry_delete", "Command9", "Command22"}) use(name, is_open());
  if (had_keys && findChild<QWidget*>("entry_new")->isEnabled()) findChild<QWidget*>("entry_new")->setFocus();
  echo_box_->setVisible(is_open());
}

int Frame6::vertices_stored() const {
  const int row = session_.entry.touroku;
  return row > 0 && row <= session_.registry.N ? static_cast<int>(session_.registry.rows[row].vertices.size()) : 0;
}

// What the person doesn't type here: the title, the pick, the numbering in force, the line.
void Frame6::state_show() {
  const QScopedValueRollback filling(filling_, true);
  title_->setText(is_open() ? to_toolkit(session_.entry.boxes.frame_title)
                            : either("地図を右クリックして「新規地点」か「変更」を選ぶと、ここに入力できます。",
                                     "Right-click the map and choose \"NewPosition\" or \"Change\" to fill this in."));
  texts_[box_soukou]->setPlaceholderText(is_open() ? either("(入力例:N15W)", "(Example: N15W)") : QString());
  texts_[box_keisha]->setPlaceholderText(is_open() ? either("(入力例：30E)", "(Example: 30E)") : QString());
  pick_->setChecked(session_.flags.point_mode == 1);
  const auto& schemes = session_.boxes.Option4;
  const QString scheme = schemes[2] ? either("手入力", "typed in")
                         : schemes[1] ? either("標準メッシュ（３次メッシュ）", "by third-level standard mesh")
                                      : either("入力年月日毎", "by entry date");
  numbering_->setText(either("番号の付け方: ", "Numbering: ") + scheme);
  const bool line_open = session_.flags.line_mode > 0;
  const std::string count =
      line_open ? platform::number_text(session_.flags.line_count) + " / " + platform::number_text(core::line_limit)
                : platform::number_text(vertices_stored());
  line_count_->setText(either("頂点の数: ", "Vertices: ") + to_toolkit(count));
}

void Frame6::changed() {
  session_.flags.data_dirty = 1;
  echo_out();
  emit edited();
}

void Frame6::measurement_step(int by) {
  std::string& text = session_.entry.boxes.Text13;
  const double next = platform::trim_text(text).empty() ? highest_measurement(session_.registry) + 1
                                                        : platform::fix(platform::val(text)) + by;
  text = platform::number_text(std::max(1.0, next));
  text_show(texts_[box_measurement], text);
  changed();
}

// Esc and Ctrl+S belong to the panel while it is open, whatever shortcut the window has for it.
bool Frame6::event(QEvent* event) {
  if (event->type() == QEvent::ShortcutOverride && is_open()) {
    auto* const key = static_cast<QKeyEvent*>(event);
    if (key->key() == Qt::Key_Escape || key->matches(QKeySequence::Save)) {
      event->accept();
      return true;
    }
  }
  return QWidget::event(event);
}

// While another tab was in front a sheet may have come, and another numbering.
void Frame6::showEvent(QShowEvent* event) {
  QWidget::showEvent(event);
  boxes_out();
}

void Frame6::keyPressEvent(QKeyEvent* event) {
  const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
  auto* const button = qobject_cast<QPushButton*>(window()->focusWidget());
  if (enter && button && isAncestorOf(button)) {
    button->click();
  } else if ((enter || event->matches(QKeySequence::Save)) && is_open()) {
    emit command("Command9");
  } else if (event->key() == Qt::Key_Escape && is_open()) {
    emit command("Command22");
  } else {
    QWidget::keyPressEvent(event);
  }
}

bool Frame6::eventFilter(QObject* watched, QEvent* event) {
  // The wheel moves the form; it doesn't change what a list under the mouse has chosen.
  if (event->type() == QEvent::Wheel && qobject_cast<QComboBox*>(watched)) {
    event->ignore();
    return true;
  }
  // A list would look for the letter.
  if (event->type() == QEvent::KeyPress && qobject_cast<QComboBox*>(watched) &&
      static_cast<QKeyEvent*>(event)->matches(QKeySequence::Save)) {
    keyPressEvent(static_cast<QKeyEvent*>(event));
    return true;
  }
  if (event->type() == QEvent::KeyPress && watched == texts_[box_measurement]) {
    const int key = static_cast<QKeyEvent*>(event)->key();
    if (key == Qt::Key_Up || key == Qt::Key_Down) {
      measurement_step(key == Qt::Key_Up ? 1 : -1);
      return true;
    }
  }
  return QWidget::eventFilter(watched, event);
}

}  // namespace ui
