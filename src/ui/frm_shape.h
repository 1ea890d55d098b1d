// The dialog `frm_Shape`: the drawn shape, which lies in \TMP.TMP, as a Shapefile.
#pragma once

#include <QDialog>

#include "core/session/session.h"
#include "exchange/shape_export.h"

class QCheckBox;
class QComboBox;
class QFormLayout;
class QLabel;
class QLineEdit;
class QPushButton;

namespace ui {

class Folder_box;

class Frm_Shape : public QDialog {
  Q_OBJECT

 public:
  // Goes with `accept` when the files are made; a failure or a refusal leaves it open.
  Frm_Shape(const core::Settings& settings, session::Ports& ports, platform::Clock& clock, QWidget* parent = nullptr);

 private:
  void lay_out(bool japanese);
  void add_place(QFormLayout* form, bool japanese);
  void connect_all();
  void folder_shown();
  void drive_chosen();
  void OK();

  const core::Settings& settings_;
  session::Ports& ports_;
  platform::Clock& clock_;
  exchange::Shape_boxes boxes_;
  QComboBox* Drive1_ = nullptr;
  Folder_box* Dir1_ = nullptr;
  QLineEdit* Text1_ = nullptr;
  QCheckBox* Check1_ = nullptr;
  QLabel* told_ = nullptr;  // shown while there is no drawn shape
  QPushButton* ok_ = nullptr;
  QPushButton* close_ = nullptr;
};

}  // namespace ui
