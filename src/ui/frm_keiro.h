// The dialog `frm_keiro`: which text tracks of \chisou_men\gps are drawn.
#pragma once

#include <QDialog>

#include "core/session/session.h"
#include "instruments/route_lists.h"
#include "ui/route_parts.h"

namespace ui {

class Frm_keiro : public QDialog {
  Q_OBJECT

 public:
  Frm_keiro(session::Session& session, session::Ports& ports, QWidget* parent = nullptr);

 signals:
  void routes_changed();  // the list file is written; the map must read the routes and be drawn anew

 private:
  void lay_out();
  void connect_all();
  void OK();

  session::Session& session_;
  session::Ports& ports_;
  bool japanese_;
  instruments::Route_boxes boxes_;
  Route_parts parts_{};
};

}  // namespace ui
