// The small clinometer dialog `frmTiltvane`: reads the memory from the port that is set, and no more.
#pragma once

#include <QDialog>

#include "core/session/session.h"
#include "instruments/tiltvane_boxes.h"

namespace ui {

class Tiltvane_connect;

class Frm_Tiltvane : public QDialog {
  Q_OBJECT

 public:
  // Goes with `accept` when \TMP2.TMP holds what was read.
  Frm_Tiltvane(session::Session& session, session::Ports& ports, QWidget* parent = nullptr);

 private:
  instruments::Tiltvane_boxes boxes_;
  Tiltvane_connect* connect_page_ = nullptr;
};

}  // namespace ui
