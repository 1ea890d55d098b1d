#include <QApplication>
#include <QLabel>
#include <QMouseEvent>
#include <QScrollBar>
#include <QStatusBar>
#include <QToolButton>

#include "core/session/entry.h"
#include "core/session/position_text.h"
#include "core/session/redraw.h"
#include "core/session/tools.h"
#include "ui/canvas_view.h"
#include "ui/frame6.h"
#include "ui/frm_main.h"
#include "ui/observation_table.h"
#include "ui/overlay.h"
#include "ui/toolkit_text.h"

namespace ui {

using session::Button;
using session::Redraw;

namespace {

Button button_of(int number) {
  return number == 2 ? Button::right : Button::left;
}

}  // namespace

void Frm_main::connect_canvas() {
  canvas_->connect_map([this](drawing::Surface& surface) { session::画面再表示(session_, surface); },
                       [this](QPainter& painter) { paint_overlay(painter); },
                       [this] { return QPointF(session_.canvas.view_x, session_.canvas.view_y); });
  connect(canvas_, &Canvas_view::measure_changed, this, &Frm_main::canvas_measured);
  connect(canvas_, &Canvas_view::map_pressed, this, &Frm_main::map_pressed);
  connect(canvas_, &Canvas_view::map_moved, this, &Frm_main::map_moved);
  connect(canvas_, &Canvas_view::map_released, this, &Frm_main::map_released);
  connect(canvas_, &Canvas_view::wheel_turned, this, &Frm_main::wheel_turned);
  connect(canvas_, &Canvas_view::dragged_one_to_one, this,
          [this](double dx, double dy) { perform([&] { return session::pan_one_to_one(session_, dx, dy); }); });
  connect(canvas_, &Canvas_view::arrow_pressed, this, [this](int right, int down) {
    if (session_.sheet_shown()) step_view(right, down);
  });
  connect(canvas_, &Canvas_view::mouse_left, this, [this] {
    for (QLabel* panel : {status_x_, status_y_, status_latitude_, status_longitude_}) panel->clear();
  });
}

void Frm_main::canvas_measured() {
  session_.canvas.width = canvas_->width() * twips_per_pixel;
  session_.canvas.height = canvas_->height() * twips_per_pixel;
  session::measure_bars(session_);
  bars_to_widgets();
}

void Frm_main::map_pressed(int button, double x, double y) {
  if (!session_.sheet_shown()) return;
  session::Mouse_result result;
  perform([&] {
    result = session::mouse_press(session_, ports_, tools_, {button_of(button), x, y});
    return result.redraw;
  });
  show_tool();
  if (session_.entry.open && result.taken) Frame6_->boxes_out();
  if (table_ && result.taken) table_->select(session_.highlighted);
  if (result.point_menu) show_point_menu(QCursor::pos());
}

void Frm_main::map_moved(double x, double y) {
  if (!session_.sheet_shown()) return;
  perform([&] { return session::mouse_move(session_, x, y).redraw; });
  const session::Position_texts texts = session::position_texts(session_, x, y);
  status_x_->setText("X " + to_toolkit(texts.x));
  status_y_->setText("Y " + to_toolkit(texts.y));
  status_latitude_->setText(to_toolkit(texts.latitude));
  status_longitude_->setText(to_toolkit(texts.longitude));
}

void Frm_main::map_released(int button, double x, double y) {
  // A press that went to no tool and moved nothing marks the record under it.
  const bool free_press = session_.drag.prepared;
  perform([&] {
    const session::Mouse_result result = session::mouse_release(session_, {button_of(button), x, y});
    if (result.taken || !free_press || session_.entry.open) return result.redraw;
    const Redraw redraw = session::highlight_at(session_, x, y);
    if (table_) table_->select(session_.highlighted);
    return redraw;
  });
}

void Frm_main::wheel_turned(int steps, double x, double y) {
  perform([&] { return session::zoom_wheel(session_, steps, x, y); });
}

void Frm_main::zoom(bool in) {
  perform([&] { return session::zoom(session_, in); });
}

// A reset selects the sheet again.
void Frm_main::zoom_reset() {
  perform([&] { return session::Command18(session_); });
}

// The button of the armed tool, pressed again, ends the tool.
void Frm_main::start_zoom_box() {
  if (session_.flags.zoom_box_step > 0) return end_tool();
  perform([&] { return session::Command19(session_); });
}

void Frm_main::start_section_line() {
  if (session_.flags.section_step > 0) return end_tool();
  perform([&] { return session::Command25(session_); });
}

// Esc ends the armed tool; without one it closes the panel.
void Frm_main::end_tool() {
  session::Mouse_result result;
  perform([&] {
    result = session::end_tool(session_, ports_, tools_);
    return result.redraw;
  });
  if (!result.taken && session_.entry.open) return close_record();
  Frame6_->boxes_out();
  show_tool();
}

// The view goes by a fifth of the window: the picture goes the other way.
void Frm_main::step_view(int right, int down) {
  constexpr double fifth = 0.2;
  const maps::Canvas& canvas = session_.canvas;
  perform(
      [&] { return session::pan_one_to_one(session_, -right * fifth * canvas.width, -down * fifth * canvas.height); });
}

void Frm_main::bars_to_widgets() {
  filling_ = true;
  const auto set = [](QScrollBar* widget, const maps::Scroll_bar& bar, double page) {
    widget->setRange(bar.minimum, bar.maximum);
    widget->setPageStep(qRound(page));
    widget->setSingleStep(qRound(page / 10));
    widget->setValue(bar.value);
  };
  set(HScroll1_, session_.bars.horizontal, session_.canvas.width);
  set(VScroll1_, session_.bars.vertical, session_.canvas.height);
  filling_ = false;
}

void Frm_main::bar_moved() {
  if (filling_) return;
  perform([&] { return session::bars_moved(session_, HScroll1_->value(), VScroll1_->value()); });
}

// The tool in force is seen at the cursor, in the status bar and on its button.
void Frm_main::show_tool() {
  const core::Interaction& flags = session_.flags;
  const session::Tool_hint hint = session::tool_hint(session_);
  const QString text = either(hint.japanese, hint.english);
  if (status_tool_->text() != text) {
    status_tool_->setText(text);
    statusBar()->clearMessage();  // what was told of the last step must not hide the hint of the next
  }
  zoom_box_tool_->setChecked(flags.zoom_box_step > 0);
  section_tool_->setChecked(flags.section_step > 0);
  canvas_->use_tool_cursor(hint.armed ? Qt::CrossCursor : Qt::ArrowCursor);
}

void Frm_main::paint_overlay(QPainter& painter) {
  if (!session_.sheet_shown()) {
    paint_invitation(
        painter, canvas_->rect(),
        session_.sheets.List1.empty()
            ? either("地図フォルダに図葉がありません。「ファイル」の「基本設定」で地図フォルダを選んでください。",
                     "The map folder holds no sheet. Choose a map folder in the basic settings.")
            : either("左の一覧から地図を選んでください。", "Choose a map from the list on the left."));
    return;
  }
  session::place_section_controls(session_);
  paint_controls(painter, canvas_->rect(), session_);
}

}  // namespace ui
