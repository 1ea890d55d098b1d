// The dialog `frm_keiroNMEA`: which NMEA logs of a folder are drawn.
#pragma once

#include <QDialog>

#include "core/session/session.h"
#include "instruments/route_lists.h"
#include "ui/route_parts.h"

class QComboBox;

namespace ui {

class Folder_box;

class Frm_keiroNMEA : public QDialog {
  Q_OBJECT

 public:
  Frm_keiroNMEA(session::Session& session, session::Ports& ports, QWidget* parent = nullptr);

 signals:
  void routes_changed();  // the list file is written; the map must read the routes and be drawn anew

 private:
  void lay_out();
  void add_place(QVBoxLayout* column);
  void connect_all();
  void folder_chosen(const QString& folder);
  void drive_shown();
  void OK();
  QString either(const char* in_japanese, const char* in_english) const;

  session::Session& session_;
  session::Ports& ports_;
  bool japanese_;
  instruments::Route_boxes boxes_;
  QComboBox* Drive1_ = nullptr;
  Folder_box* Dir1_ = nullptr;
  Route_parts parts_{};
};

}  // namespace ui
