// The field instruments in the main window: the clinometer's dialog, the live receiver, routes, the replay.
#include <QAction>
#include <QLabel>
#include <QStatusBar>
#include <QTimer>
#include <QToolButton>

#include "core/session/gps_follow.h"
#include "core/session/redraw.h"
#include "platform/qt/qt_serial_port.h"
#include "ui/canvas_view.h"
#include "ui/frm_keiro.h"
#include "ui/frm_keiro_nmea.h"
#include "ui/frm_main.h"
#include "ui/frm_tiltvane.h"
#include "ui/gps_data_out.h"
#include "ui/gps_state.h"
#include "ui/tiltvane_read2.h"
#include "ui/toolkit_text.h"

namespace ui {

using session::Redraw;

void Frm_main::connect_instruments() {
  MSComm1_ = std::make_unique<platform::Qt_serial_port>(ports_.files, session_.settings.program_path);
  Timer2_ = new QTimer(this);
  Timer2_->setInterval(instruments::timer2_interval);
  connect(Timer2_, &QTimer::timeout, this, &Frm_main::gps_tick);
}

// The routes and the registry are read again, and all of the map is drawn.
void Frm_main::project_changed() {
  perform([this] { return session::re_gamen(session_, ports_); });
  records_changed();
}

void Frm_main::open_clinometer(bool with_memory) {
  if (session_.entry.open) close_record();
  if (session_.entry.open) return;
  guarded([this, with_memory] {
    Tiltvane_read2 dialog(session_, ports_, this);
    connect(&dialog, &Tiltvane_read2::registry_written, this, &Frm_main::project_changed);
    if (with_memory) dialog.show_memory();
    dialog.exec();
  });
  records_changed();
}

// The small dialog only reads the instrument; the table of what was read follows.
void Frm_main::open_clinometer_cable() {
  bool read = false;
  guarded([this, &read] { read = Frm_Tiltvane(session_, ports_, this).exec() == QDialog::Accepted; });
  if (read) open_clinometer(true);
}

void Frm_main::open_routes(bool nmea) {
  guarded([this, nmea] {
    const platform::Journal_operation operation(ports_.journal, "経路の選択", "Choice of routes");
    if (nmea) {
      Frm_keiroNMEA dialog(session_, ports_, this);
      connect(&dialog, &Frm_keiroNMEA::routes_changed, this, &Frm_main::project_changed);
      dialog.exec();
    } else {
      Frm_keiro dialog(session_, ports_, this);
      connect(&dialog, &Frm_keiro::routes_changed, this, &Frm_main::project_changed);
      dialog.exec();
    }
  });
  show_undo();
}

void Frm_main::open_replay() {
  guarded([this] {
    const std::string& program = session_.settings.program_path;
    platform::Qt_serial_port port(ports_.files, program);
    Gps_data_out dialog(session_, ports_, port, this);
    dialog.show_devices(platform::serial_devices(ports_.files, program));
    dialog.exec();
  });
}

void Frm_main::switch_gps() {
  guarded([this] {
    if (session_.flags.gps_running == 1) {
      Timer2_->stop();
      session::gps_stop(session_, *MSComm1_);
      gps_sheet_->clear();
      gps_sheet_->hide();
      show_project();
    } else {
      session::gps_start(session_, ports_, *MSComm1_);
      Timer2_->start();
    }
  });
  show_gps();
  canvas_->overlay_changed();
}

void Frm_main::gps_tick() {
  guarded([this] {
    const session::Gps_followed followed = session::gps_tick(session_, ports_, *MSComm1_);
    if (followed.moved) {
      // The folder is on a page that may be covered; a position without a map must be seen on each.
      gps_sheet_->setText(followed.outside && followed.Label16.empty()
                              ? QString::fromUtf8(japanese() ? "範囲外" : "Outside all sheets")
                              : to_toolkit(followed.Label16));
      gps_sheet_->setVisible(!gps_sheet_->text().isEmpty());
      shown_folder_->setText(to_toolkit(followed.data_path));
    }
    if (followed.row >= 0) {
      show_row(followed.row);
      open_row(followed.row);
    }
    show(followed.redraw);
  });
  show_gps();
}

void Frm_main::show_gps() {
  gps_state_->show(session_.gps);
  gps_tool_->setChecked(session_.flags.gps_running == 1);
  findChild<QAction*>("gps_switch")->setChecked(session_.flags.gps_running == 1);
}

}  // namespace ui
