#include "ui/text_box.h"

#include <QVariant>

#include "platform/code_page_932.h"
#include "ui/toolkit_text.h"

namespace ui {

namespace {

QString unknown_characters(const QLineEdit* box) {
  return to_toolkit(platform::characters_without_code(from_toolkit(box->text())));
}

void mark(QLineEdit* box) {
  const QString unknown = unknown_characters(box);
  if (unknown.isEmpty()) {
    box->setStyleSheet({});
    box->setToolTip(box->property("hint").toString());
    return;
  }
  const bool japanese = box->property("japanese").toBool();
  box->setStyleSheet("QLineEdit { border: 2px solid #c62828; border-radius: 3px; padding: 1px; }");
  box->setToolTip((japanese ? QString::fromUtf8("保存できない文字: ") : QString("Can't be stored: ")) + unknown);
}

}  // namespace

void text_box_watch(QLineEdit* box) {
  QObject::connect(box, &QLineEdit::textChanged, box, [box] { mark(box); });
  mark(box);
}

void text_box_hint(QLineEdit* box, bool japanese, const QString& hint) {
  box->setProperty("japanese", japanese);
  box->setProperty("hint", hint);
  mark(box);
}

bool text_box_good(const QLineEdit* box) {
  return unknown_characters(box).isEmpty();
}

}  // namespace ui
