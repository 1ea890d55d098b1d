#include "ui/frm_keiro.h"

#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QVBoxLayout>

#include "core/language.h"
#include "ui/guard.h"
#include "ui/toolkit_text.h"

namespace ui {

Frm_keiro::Frm_keiro(session::Session& session, session::Ports& ports, QWidget* parent)
    : QDialog(parent), session_(session), ports_(ports), japanese_(core::is_japanese(session.settings.language)) {
  setObjectName("frm_keiro");
  instruments::frm_keiro_load(ports.files, session.settings, boxes_);
  lay_out();
  connect_all();
  show_routes(parts_, boxes_.List1, japanese_);
  parts_.List1->setFocus();
}

void Frm_keiro::lay_out() {
  setWindowTitle(QString::fromUtf8(japanese_ ? "ルート表示" : "Show Routes"));
  auto* column = new QVBoxLayout(this);
  auto* heading = new QLabel(QString::fromUtf8(japanese_ ? "地図に表示するルート(&R)" : "&Routes to show on the map"));
  heading->setObjectName("heading");
  column->addWidget(heading);
  parts_ = add_route_parts(column, japanese_, "*.txt");
  heading->setBuddy(parts_.List1);
  parts_.told->setToolTip(to_toolkit(ports_.files.native_path(boxes_.Dir1)));
}

void Frm_keiro::connect_all() {
  connect(parts_.Command1, &QPushButton::clicked, this, &Frm_keiro::OK);
  connect_routes(parts_, this, japanese_);
}

void Frm_keiro::OK() {
  boxes_.List1 = routes_of(parts_);
  bool written = false;
  guarded(ports_.prompts,
          [&] { written = instruments::frm_keiro_Command1(ports_.files, ports_.prompts, session_.settings, boxes_); });
  if (!written) return;
  accept();
  emit routes_changed();
}

}  // namespace ui
