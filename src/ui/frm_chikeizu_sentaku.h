// The sheet dialog `frm_chikeizu_sentaku`: the folder's sheets as a grid, for picking one by its position.
#pragma once

#include <QDialog>

#include <string>

#include "core/session/session.h"
#include "maps/sheet_index.h"

class QLabel;
class QSpinBox;

namespace ui {

class Sheet_grid;

class Frm_chikeizu_sentaku : public QDialog {
  Q_OBJECT

 public:
  Frm_chikeizu_sentaku(session::Session& session, session::Ports& ports, QWidget* parent = nullptr);

  // Stem of the sheet that was chosen when the dialog was accepted.
  const std::string& chosen_stem() const { return chosen_; }

 private:
  void lay_out(bool japanese);
  void connect_all();
  void display_changed();
  void choose(int row);

  session::Session& session_;
  session::Ports& ports_;
  maps::Sheet_index index_;
  std::string chosen_;
  Sheet_grid* grid_ = nullptr;
  QLabel* told_ = nullptr;
  QSpinBox* width_ = nullptr;
  QSpinBox* height_ = nullptr;
  QSpinBox* text_ = nullptr;
};

}  // namespace ui
