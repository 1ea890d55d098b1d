#include "ui/frm_main.h"

#include <QApplication>
#include <QCloseEvent>
#include <QEvent>
#include <QGridLayout>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QProgressBar>
#include <QScreen>
#include <QScrollBar>
#include <QSplitter>
#include <QStatusBar>
#include <QTabWidget>
#include <utility>

#include "core/language.h"
#include "core/session/gps_follow.h"
#include "core/session/start_up.h"
#include "platform/qt/qt_serial_port.h"
#include "ui/accessible_roles.h"
#include "ui/canvas_view.h"
#include "ui/either.h"
#include "ui/frame6.h"
#include "ui/gps_state.h"
#include "ui/guard.h"
#include "ui/icons.h"
#include "ui/map_bar.h"
#include "ui/toolkit_text.h"

namespace ui {

namespace {

QLabel* add_panel(QStatusBar* bar, const char* name, const QString& widest) {
  auto* panel = new QLabel;
  panel->setObjectName(name);
  panel->setMinimumWidth(panel->fontMetrics().horizontalAdvance(widest) + 12);
  bar->addPermanentWidget(panel);
  return panel;
}

}  // namespace

Frm_main::Frm_main(session::Session& session, session::Ports& ports) : session_(session), ports_(ports) {
  setObjectName("frm_main");
  use_accessible_roles();
  setWindowIcon(make_icon(Icon::program));
  build_window();
  build_menus();
  build_tool_bar();
  build_status_bar();
  connect_all();
  apply_design_captions();
  apply_captions();
  fill_lists();
  show_all();
}

Frm_main::~Frm_main() = default;

void Frm_main::build_window() {
  auto* map = new QWidget;
  auto* grid = new QGridLayout(map);
  grid->setContentsMargins(0, 0, 0, 0);
  grid->setSpacing(0);
  canvas_ = new Canvas_view;
  HScroll1_ = new Map_bar(Qt::Horizontal);
  HScroll1_->setObjectName("HScroll1");
  VScroll1_ = new Map_bar(Qt::Vertical);
  VScroll1_->setObjectName("VScroll1");
  grid->addWidget(canvas_, 0, 0);
  grid->addWidget(VScroll1_, 0, 1);
  grid->addWidget(HScroll1_, 1, 0);

  build_tabs();
  auto* splitter = new QSplitter;
  splitter->setObjectName("regions");
  splitter->addWidget(build_sheet_list());
  splitter->addWidget(map);
  splitter->addWidget(TabStrip1_);
  splitter->setStretchFactor(0, 0);
  splitter->setStretchFactor(1, 1);
  splitter->setStretchFactor(2, 0);
  splitter->setSizes({230, 900, 270});
  splitter->setChildrenCollapsible(false);
  setCentralWidget(splitter);
  const QSize screen = QGuiApplication::primaryScreen()->availableSize();
  resize(screen.boundedTo({1600, 1000}));
}

void Frm_main::build_status_bar() {
  QStatusBar* const bar = statusBar();
  bar->setObjectName("StatusBar1");
  status_tool_ = new QLabel;
  status_tool_->setObjectName("status_tool");
  bar->addWidget(status_tool_, 1);
  progress_ = new QProgressBar;
  progress_->setMaximumWidth(160);
  progress_->setVisible(false);
  bar->addPermanentWidget(progress_);
  status_x_ = add_panel(bar, "status_x", "X -00000.00 m");
  status_y_ = add_panel(bar, "status_y", "Y -00000.00 m");
  status_latitude_ = add_panel(bar, "status_latitude", "N 00°00'00.00\"");
  status_longitude_ = add_panel(bar, "status_longitude", "E 000°00'00.00\"");
  gps_sheet_ = add_panel(bar, "Label16", "53394500");
  gps_sheet_->hide();  // until the receiver tells it: the hint of the tool has the room
  gps_state_ = new Gps_state;
  gps_state_->setObjectName("status_gps");
  bar->addPermanentWidget(gps_state_);
}

void Frm_main::connect_all() {
  connect(TabStrip1_, &QTabWidget::currentChanged, this, &Frm_main::show_tab);
  connect(HScroll1_, &QScrollBar::valueChanged, this, &Frm_main::bar_moved);
  connect(VScroll1_, &QScrollBar::valueChanged, this, &Frm_main::bar_moved);
  connect_canvas();
  connect_entry();
  connect_instruments();
}

void Frm_main::guarded(const std::function<void()>& procedure) {
  if (!ui::guarded(ports_.prompts, procedure)) show_all();
}

void Frm_main::perform(const std::function<session::Redraw()>& procedure) {
  guarded([&] { show(procedure()); });
}

void Frm_main::show(session::Redraw redraw) {
  if (redraw == session::Redraw::none) return;
  if (redraw == session::Redraw::all) canvas_->map_changed();
  if (redraw == session::Redraw::view) canvas_->view_moved();
  if (redraw == session::Redraw::overlay) canvas_->overlay_changed();
  bars_to_widgets();
  show_tool();
  show_notice();
}

void Frm_main::show_all() {
  show_state();
  Frame6_->boxes_out();
  show(session::Redraw::all);
}

// What can be used depends on whether a sheet is drawn.
void Frm_main::show_state() {
  const bool shown = session_.sheet_shown();
  for (const char* name : {"Command16", "Command17", "Command18", "Command19", "Command25", "Main_act_0", "show_table"})
    if (auto* tool = findChild<QWidget*>(name)) tool->setEnabled(shown);
  for (QAction* action : findChildren<QAction*>())
    if (action->property("needs_sheet").toBool()) action->setEnabled(shown);
  HScroll1_->setEnabled(shown);
  VScroll1_->setEnabled(shown);
  setWindowTitle(to_toolkit(session::window_caption(session_)));
  show_project();
}

bool Frm_main::japanese() const {
  return core::is_japanese(session_.settings.language);
}

QString Frm_main::either(const char* japanese_text, const char* english_text) const {
  return Either{japanese()}(japanese_text, english_text);
}

// The return from a message is no return from a dialog: a message of the activation itself would come up for ever.
void Frm_main::changeEvent(QEvent* event) {
  QMainWindow::changeEvent(event);
  if (event->type() != QEvent::ActivationChange || !isVisible()) return;
  if (isActiveWindow()) {
    if (!std::exchange(left_for_message_, false)) activate();
    return;
  }
  const QWidget* const modal = QApplication::activeModalWidget();
  left_for_message_ = modal && modal->objectName() == "message";
}

// Closing the window by its frame asks nothing, unsaved entries or not.
void Frm_main::closeEvent(QCloseEvent* event) {
  session::gps_stop(session_, *MSComm1_);
  session::menu_end(session_);
  QMainWindow::closeEvent(event);
}

}  // namespace ui
