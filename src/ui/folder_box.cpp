#include "ui/folder_box.h"

#include <QDialog>
#include <QDir>
#include <QFileDialog>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QPushButton>

namespace ui {

Folder_box::Folder_box(const QString& name, QWidget* parent)
    : QWidget(parent), edit_(new QLineEdit(this)), button_(new QPushButton(this)) {
  edit_->setObjectName(name);
  edit_->setMinimumWidth(220);
  button_->setObjectName(name + "_browse");
  button_->setAutoDefault(false);
  auto* row = new QHBoxLayout(this);
  row->setContentsMargins(0, 0, 0, 0);
  row->addWidget(edit_, 1);
  row->addWidget(button_);
  setFocusProxy(edit_);
  setFocusPolicy(edit_->focusPolicy());  // otherwise the letter of the label beside the box does nothing
  start_folder = [](const QString& text) { return text; };
  pick = [this](const QString& start) { return QFileDialog::getExistingDirectory(window(), title_, start); };
  connect(button_, &QPushButton::clicked, this, &Folder_box::browse);
  // A box also ends its editing when its window goes, and who listens may have gone before it: of a dialog that is
  // being destroyed no more than the toolkit's own part is left.
  connect(edit_, &QLineEdit::editingFinished, this, [this] {
    if (isVisible() && window()->metaObject() != &QDialog::staticMetaObject) emit chosen(folder());
  });
}

QString Folder_box::folder() const {
  return edit_->text();
}

void Folder_box::set_folder(const QString& folder) {
  edit_->setText(folder);
}

void Folder_box::set_captions(const QString& browse, const QString& title) {
  button_->setText(browse);
  button_->setAccessibleName(QString(browse).remove("...") + ": " + title);
  if (edit_->accessibleName().isEmpty()) edit_->setAccessibleName(title);
  title_ = title;
}

void Folder_box::browse() {
  const QString picked = pick(start_folder(folder()));
  if (picked.isEmpty()) return;
  set_folder(QDir::toNativeSeparators(picked));
  emit chosen(folder());
}

}  // namespace ui
