// The entry of observations in the main window: the menu of a point, the panel of the tab "Position", the table beside
// the map, undo and redo.
#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QContextMenuEvent>
#include <QCursor>
#include <QKeyEvent>
#include <QMenu>
#include <QStatusBar>
#include <QTabWidget>

#include "core/session/entry.h"
#include "core/session/shape_of_entry.h"
#include "core/session/undo.h"
#include "core/undo.h"
#include "ui/canvas_view.h"
#include "ui/frame6.h"
#include "ui/frm_main.h"
#include "ui/frm_sel_picture.h"
#include "ui/frm_shape.h"
#include "ui/frm_shape_make.h"
#include "ui/observation_table.h"
#include "ui/toolkit_text.h"

namespace ui {

using session::Redraw;

namespace {

constexpr int notice_time = 12'000;  // milliseconds in the status bar

bool is_enter(const QEvent& event) {
  if (event.type() != QEvent::KeyPress) return false;
  const int key = static_cast<const QKeyEvent&>(event).key();
  return key == Qt::Key_Return || key == Qt::Key_Enter;
}

}  // namespace

void Frm_main::connect_entry() {
  session::add_entry_tools(tools_, ports_);
  canvas_->installEventFilter(this);
  connect(Frame6_, &Frame6::edited, this, [this] {
    session::entry_edited(session_);
    canvas_->overlay_changed();
  });
  connect(Frame6_, &Frame6::position_typed, this, [this] { canvas_->overlay_changed(); });
  connect(Frame6_->findChild<QAbstractButton*>("pick_position"), &QAbstractButton::toggled, this, &Frm_main::show_tool);
  connect(Frame6_, &Frame6::command, this, &Frm_main::panel_command);
}

// The menu of a point under the mouse. Its entries are those of the menu bar, which work without a mouse too.
void Frm_main::show_point_menu(const QPoint& at) {
  QMenu menu(this);
  menu.setObjectName("mnuPopup1");
  const std::string label = session::menu_label(session_);
  QAction* const title = menu.addAction(label.empty() ? either("この場所に登録地点はありません", "No observation here")
                                                      : "[" + to_toolkit(label) + "]");
  title->setEnabled(false);
  menu.addSeparator();
  for (const char* name : {"mnu_sinki", "mnu_henkou", "mnu_del"}) menu.addAction(findChild<QAction*>(name));
  place_chosen_ = true;
  menu.exec(at);
  place_chosen_ = false;
}

// Without the menu under the mouse a new record goes to the mouse, or to the middle of the map; change and delete take
// the record that is marked.
void Frm_main::take_place() {
  if (place_chosen_) return;
  QPointF at = canvas_->rect().center();
  if (canvas_->underMouse()) at = canvas_->mapFromGlobal(QCursor::pos());
  const QPointF twips = at * twips_per_pixel;
  session_.entry_click = {maps::henkan_M(session_.canvas, twips.x(), twips.y()), twips.x()};
  if (!session_.entry.open) session_.entry.touroku = session_.highlighted;
}

void Frm_main::open_new_record() {
  if (!session_.sheet_shown()) return;
  guarded([this] {
    take_place();
    if (!session::leave_entry(session_, ports_)) return;
    if (session::mnu_sinki(session_, ports_)) panel_opened();
  });
}

void Frm_main::open_record(int touroku) {
  if (!session_.sheet_shown()) return;
  guarded([this, touroku] {
    if (!session::leave_entry(session_, ports_)) return;
    if (touroku == 0) take_place();
    const bool opened =
        touroku == 0 ? session::mnu_henkou(session_, ports_) : session::mnu_henkou(session_, ports_, touroku);
    if (opened)
      panel_opened();
    else
      show(Redraw::overlay);
  });
}

void Frm_main::delete_record() {
  if (!session_.sheet_shown()) return;
  guarded([this] {
    take_place();
    const bool gone = session::mnu_del(session_, ports_);
    Frame6_->boxes_out();
    show(gone ? Redraw::all : Redraw::overlay);
  });
  records_changed();
}

void Frm_main::panel_opened() {
  TabStrip1_->setCurrentIndex(0);
  Frame6_->lists_fill();
  Frame6_->boxes_out();
  records_changed();
  show(Redraw::all);
}

// The table beside the map and the undo entries follow whatever was done.
void Frm_main::records_changed() {
  if (table_) {
    table_->registry_read();
    table_->select(session_.highlighted);
  }
  show_undo();
}

void Frm_main::panel_command(const QString& name) {
  if (name == "mnu_sinki") return open_new_record();
  if (name == "mnu_del") return delete_record();
  if (name == "Command9") return save_record();
  if (name == "Command22") return close_record();
  if (name == "Command6") return start_line();
  if (name == "Command31") return end_line();
  if (name == "Command1") return open_input_sheet();
  if (name == "Command7") return open_shape();
  if (name == "Command8") return open_pictures(false);
  if (name == "Command23") return show_memo();
  if (name == "surface_add") return guarded([this] { session::surface_add(session_, ports_), show_undo(); });
}

void Frm_main::save_record() {
  guarded([this] {
    const session::Entry_saved result = session::Command9(session_, ports_);
    if (!result.saved) return;
    for (const core::Caption_set& caption : result.captions) set_table_caption(caption);
    Frame6_->Language_set();
    Frame6_->boxes_out();
    canvas_->setFocus();
    session_.notice = {"地点を保存しました。", "The observation is saved."};
    show(Redraw::all);
  });
  records_changed();
}

void Frm_main::close_record() {
  guarded([this] {
    if (!session::leave_entry(session_, ports_)) return;
    Frame6_->boxes_out();
    canvas_->setFocus();
    show(Redraw::all);
  });
  records_changed();
}

// The office program takes its time.
void Frm_main::open_input_sheet() {
  QApplication::setOverrideCursor(Qt::WaitCursor);
  guarded([this] { session::Command1(session_, ports_); });
  QApplication::restoreOverrideCursor();
  Frame6_->boxes_out();
  show_undo();
}

// Main_act(7) registers pictures of a point, Main_act(8) changes what is registered.
void Frm_main::open_pictures(bool edit) {
  guarded([this, edit] {
    const platform::Journal_operation operation(ports_.journal, "画像とテキストの登録", "Pictures and text");
    Frm_sel_picture dialog(session_, ports_, edit, this);
    connect(&dialog, &Frm_sel_picture::registered, this, &Frm_main::project_changed);
    dialog.exec();
  });
  show_undo();
}

// Without a file of its own, or a program for it, the memo is written in the panel.
void Frm_main::show_memo() {
  guarded([this] {
    if (session::Command23(session_, ports_) == observations::Memo_shown::panel)
      Frame6_->findChild<QWidget*>("memo")->setFocus();
  });
}

void Frm_main::open_shape() {
  guarded([this] {
    session::Command7(session_, ports_);  // the list that the dialog reads is no work of the person
    const platform::Journal_operation operation(ports_.journal, "Shapeファイル作成", "Make Shapefile");
    Frm_Shape(session_.settings, ports_, ports_.clock, this).exec();
  });
  show_undo();
}

void Frm_main::open_shape_make() {
  guarded([this] {
    const platform::Journal_operation operation(ports_.journal, "Shapeファイル作成", "Make Shapefile");
    Frm_ShapeMake(session_.settings, ports_, ports_.clock, this).exec();
  });
  show_undo();
}

void Frm_main::start_line() {
  perform([this] { return session::Command6(session_, ports_); });
  if (session_.flags.line_mode > 0) canvas_->setFocus();
}

void Frm_main::end_line() {
  perform([this] { return session::Command31(session_); });
  Frame6_->boxes_out();
}

void Frm_main::undo(bool again) {
  perform([&] { return again ? session::menu_redo(session_, ports_) : session::menu_undo(session_, ports_); });
  Frame6_->boxes_out();
  show_project();
  records_changed();
}

// What would be taken back stands in the menu. Without a journal the entries stay, and tell why they can't work.
void Frm_main::show_undo() {
  const platform::Journal& journal = ports_.journal;
  const bool kept = journal.state() == platform::Journal_state::kept;
  const auto set = [&](const char* name, const std::string& caption, bool some) {
    auto* action = findChild<QAction*>(name);
    action->setText(to_toolkit(caption));
    action->setEnabled(some || !kept);
  };
  set("menu_undo", core::undo_caption(journal, session_.settings.language), journal.undo_title() || journal.lost());
  set("menu_redo", core::redo_caption(journal, session_.settings.language), journal.redo_title() != nullptr);
}

void Frm_main::show_notice() {
  session::Notice& notice = session_.notice;
  if (notice.japanese.empty()) return;
  statusBar()->showMessage(to_toolkit(japanese() ? notice.japanese : notice.english), notice_time);
  notice = {};
}

void Frm_main::open_table() {
  if (!table_) {
    table_ = new Observation_table(session_, this);
    connect(table_, &Observation_table::chosen, this,
            [this](int touroku) { perform([&] { return session::highlight(session_, touroku); }); });
    connect(table_, &Observation_table::change_asked, this, [this](int touroku) {
      perform([&] { return session::highlight(session_, touroku); });
      open_record(touroku);
      activateWindow();
    });
  }
  table_->Language_set();
  records_changed();
  table_->show();
  table_->raise();
  table_->activateWindow();
}

// Enter ends a line, or saves the record in the panel; the menu key brings the menu of the marked record.
bool Frm_main::eventFilter(QObject* object, QEvent* event) {
  if (object != canvas_) return QMainWindow::eventFilter(object, event);
  if (is_enter(*event) && session_.flags.line_mode > 0) {
    end_line();
    return true;
  }
  if (is_enter(*event) && session_.entry.open && !static_cast<QKeyEvent*>(event)->isAutoRepeat()) {
    save_record();
    return true;
  }
  if (event->type() == QEvent::ContextMenu && session_.sheet_shown() && !session_.entry.open &&
      static_cast<QContextMenuEvent*>(event)->reason() == QContextMenuEvent::Keyboard) {
    take_place();
    show_point_menu(canvas_->mapToGlobal(canvas_->rect().center()));
    return true;
  }
  return QMainWindow::eventFilter(object, event);
}

}  // namespace ui
