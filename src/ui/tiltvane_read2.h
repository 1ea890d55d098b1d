// The clinometer's dialog `Tiltvane_Read2`: the tab "TiltvaneConnect" talks with the instrument, "TiltvaneDataShow"
// shows what it holds and the saved files.
#pragma once

#include <QDialog>

#include "core/session/session.h"
#include "instruments/tiltvane_boxes.h"

class QTabWidget;

namespace ui {

class Tiltvane_connect;
class Tiltvane_data_view;

class Tiltvane_read2 : public QDialog {
  Q_OBJECT

 public:
  // Goes on with the link settings of the last time.
  Tiltvane_read2(session::Session& session, session::Ports& ports, QWidget* parent = nullptr);

  // Turns to the table of what was read last.
  void show_memory();

 signals:
  // The registration file holds measurements that it didn't before.
  void registry_written();

 private:
  void lay_out(bool japanese);
  void connect_all();

  session::Session& session_;
  session::Ports& ports_;
  instruments::Tiltvane_boxes boxes_;
  QTabWidget* tabs_ = nullptr;
  Tiltvane_connect* connect_page_ = nullptr;
  Tiltvane_data_view* data_page_ = nullptr;
};

}  // namespace ui
