#include "ui/qt_prompts.h"

#include <QApplication>
#include <QMessageBox>

#include "ui/toolkit_text.h"

namespace ui {

using platform::Answer;

namespace {

struct Choice {
  Answer answer;
  QMessageBox::ButtonRole role;
  const char* japanese;
  const char* english;
};

constexpr Choice ok{Answer::ok, QMessageBox::AcceptRole, "OK", "OK"};
constexpr Choice yes{Answer::yes, QMessageBox::YesRole, "はい(&Y)", "&Yes"};
constexpr Choice no{Answer::no, QMessageBox::NoRole, "いいえ(&N)", "&No"};
constexpr Choice cancel{Answer::cancel, QMessageBox::RejectRole, "キャンセル", "Cancel"};

// A text with a Japanese character is answered with Japanese buttons: the text was picked by the language in force.
bool is_japanese_text(const QString& text) {
  return std::any_of(text.begin(), text.end(), [](QChar c) { return c.unicode() >= 0x3000; });
}

// The window that has the keyboard, a dialog too, so that the keyboard goes back to it.
QWidget* window_in_use(QWidget* main_window) {
  if (QWidget* modal = QApplication::activeModalWidget()) return modal;
  if (QWidget* active = QApplication::activeWindow()) return active;
  return main_window;
}

}  // namespace

Answer Qt_prompts::show(Kind kind, const std::string& text) {
  QMessageBox box(window_in_use(window_));
  box.setObjectName("message");
  box.setWindowTitle("Terranote");
  box.setText(to_toolkit(text));
  box.setTextFormat(Qt::PlainText);
  box.setIcon(kind == Kind::message ? QMessageBox::Information : QMessageBox::Question);
  std::vector<Choice> choices{ok};
  if (kind == Kind::yes_no) choices = {yes, no};
  if (kind == Kind::ok_cancel) choices = {ok, cancel};
  if (kind == Kind::yes_no_cancel) choices = {yes, no, cancel};
  const bool japanese = is_japanese_text(box.text());
  std::vector<QAbstractButton*> buttons;
  for (const Choice& choice : choices)
    buttons.push_back(box.addButton(QString::fromUtf8(japanese ? choice.japanese : choice.english), choice.role));
  box.setDefaultButton(qobject_cast<QPushButton*>(buttons.front()));
  box.setEscapeButton(buttons.back());
  // A message in the middle of a long operation is not to be answered with the wait cursor.
  const bool waiting = QApplication::overrideCursor() != nullptr;
  if (waiting) QApplication::setOverrideCursor(Qt::ArrowCursor);
  box.exec();
  if (waiting) QApplication::restoreOverrideCursor();
  for (std::size_t i = 0; i < choices.size(); ++i)
    if (box.clickedButton() == buttons[i]) return choices[i].answer;
  return choices.back().answer;
}

}  // namespace ui
