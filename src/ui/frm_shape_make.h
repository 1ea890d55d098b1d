// The dialog `frm_ShapeMake`: a text file of shapes, picked from a list of files, as a Shapefile beside it.
#pragma once

#include <QDialog>

#include "core/session/session.h"
#include "exchange/shape_export.h"

class QCheckBox;
class QListWidget;
class QPushButton;

namespace ui {

class Folder_box;

class Frm_ShapeMake : public QDialog {
  Q_OBJECT

 public:
  // Begins in the project folder. Goes with `accept` when the files are made.
  Frm_ShapeMake(const core::Settings& settings, session::Ports& ports, platform::Clock& clock,
                QWidget* parent = nullptr);

 private:
  void lay_out(bool japanese);
  void connect_all();
  void files_fill();
  void OK();

  const core::Settings& settings_;
  session::Ports& ports_;
  platform::Clock& clock_;
  Folder_box* Dir1_ = nullptr;
  QListWidget* File1_ = nullptr;
  QCheckBox* Check1_ = nullptr;
  QPushButton* ok_ = nullptr;
  QPushButton* close_ = nullptr;
};

}  // namespace ui
