// A folder entry: a box with the folder's text as the settings keep it, and a button that opens the system's picker.
#pragma once

#include <QWidget>

#include <functional>

class QLineEdit;
class QPushButton;

namespace ui {

class Folder_box : public QWidget {
  Q_OBJECT

 public:
  // The entry box carries `name` as its object name, the button `name` + "_browse".
  Folder_box(const QString& name, QWidget* parent);

  QLineEdit* edit() const { return edit_; }
  QString folder() const;
  void set_folder(const QString& folder);
  // Caption of the button and title of the picker.
  void set_captions(const QString& browse, const QString& title);

  std::function<QString(const QString&)> start_folder;  // the box's text as this machine writes it
  std::function<QString(const QString&)> pick;          // the system's picker; a test puts its own in

 signals:
  void chosen(const QString& folder);  // typed and left, or picked

 private:
  void browse();

  QLineEdit* edit_;
  QPushButton* button_;
  QString title_;
};

}  // namespace ui
