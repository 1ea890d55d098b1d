#include <QAction>
#include <QApplication>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QPainter>
#include <QProgressBar>
#include <QScrollBar>
#include <QSortFilterProxyModel>
#include <QTimer>

#include "core/session/redraw.h"
#include "core/session/sheet.h"
#include "core/session/start_up.h"
#include "core/session/undo.h"
#include "core/settei.h"
#include "platform/memory.h"
#include "ui/canvas_view.h"
#include "ui/frame10.h"
#include "ui/frame2.h"
#include "ui/frame6.h"
#include "ui/frm_chikeizu_sentaku.h"
#include "ui/frm_main.h"
#include "ui/overlay.h"
#include "ui/sheet_model.h"
#include "ui/toolkit_text.h"

namespace ui {

namespace {

// A row reached with the keyboard opens after the keys have rested.
constexpr int rest_of_keys = 250;  // milliseconds

// A list that only gets the keyboard chooses no row by itself: the first map comes when a person picks one.
class Column_view : public QListView {
 protected:
  void focusInEvent(QFocusEvent* event) override {
    QListView::focusInEvent(event);
    if (!selectionModel()->hasSelection()) selectionModel()->setCurrentIndex({}, QItemSelectionModel::NoUpdate);
  }
};

QListView* make_column(const char* name, QAbstractItemModel* model, int column) {
  QListView* const view = new Column_view;
  view->setObjectName(name);
  view->setModel(model);
  view->setModelColumn(column);
  view->setEditTriggers(QAbstractItemView::NoEditTriggers);
  view->setSelectionBehavior(QAbstractItemView::SelectRows);
  view->setUniformItemSizes(true);
  view->setSpacing(1);
  view->setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
  view->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  view->setTextElideMode(Qt::ElideRight);
  return view;
}

}  // namespace

QWidget* Frm_main::build_sheet_list() {
  auto* panel = new QWidget;
  panel->setMinimumWidth(190);
  auto* grid = new QGridLayout(panel);
  grid->setContentsMargins(4, 4, 0, 4);
  grid->setSpacing(4);
  auto* title = new QLabel;
  title->setObjectName("Label4");
  grid->addWidget(title, 0, 0, 1, 2);
  list_filter_ = new QLineEdit;
  list_filter_->setObjectName("list_filter");
  list_filter_->setClearButtonEnabled(true);
  grid->addWidget(list_filter_, 1, 0, 1, 2);

  list_model_ = new Sheet_model(session_.sheets, this);
  list_shown_ = new QSortFilterProxyModel(this);
  list_shown_->setSourceModel(list_model_);
  list_shown_->setFilterKeyColumn(-1);
  list_shown_->setFilterCaseSensitivity(Qt::CaseInsensitive);
  // One row of the list: its name on the left, its stem on the right, chosen together.
  List1_ = make_column("List1", list_shown_, 0);
  List2_ = make_column("List2", list_shown_, 1);
  List2_->setSelectionModel(List1_->selectionModel());
  List1_->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  title->setBuddy(List1_);
  grid->addWidget(List1_, 2, 0);
  grid->addWidget(List2_, 2, 1);
  grid->setColumnStretch(0, 3);
  grid->setColumnStretch(1, 2);
  connect_sheet_list();
  return panel;
}

void Frm_main::connect_sheet_list() {
  list_delay_ = new QTimer(this);
  list_delay_->setObjectName("list_delay");
  list_delay_->setSingleShot(true);
  list_delay_->setInterval(rest_of_keys);
  connect(List1_->verticalScrollBar(), &QScrollBar::valueChanged, List2_->verticalScrollBar(), &QScrollBar::setValue);
  connect(List2_->verticalScrollBar(), &QScrollBar::valueChanged, List1_->verticalScrollBar(), &QScrollBar::setValue);
  for (QListView* list : {List1_, List2_}) {
    connect(list, &QListView::clicked, this, &Frm_main::list_clicked);
    connect(list, &QListView::activated, this, &Frm_main::list_clicked);
  }
  // A row is chosen when it is selected; one that is only current isn't.
  connect(List1_->selectionModel(), &QItemSelectionModel::selectionChanged, this, [this](const QItemSelection& chosen) {
    if (!filling_ && !chosen.isEmpty()) list_delay_->start();
  });
  connect(list_delay_, &QTimer::timeout, this, &Frm_main::open_current_row);
  connect(list_filter_, &QLineEdit::textChanged, this, [this](const QString& text) {
    filling_ = true;
    list_shown_->setFilterFixedString(text);
    filling_ = false;
  });
  connect(list_filter_, &QLineEdit::returnPressed, this, &Frm_main::open_first_found);
}

void Frm_main::start() {
  QMainWindow::show();
  activate();
  activate();
  List1_->setFocus();
}

void Frm_main::activate() {
  if (settings_ && settings_->isVisible()) return;
  // Who has closed the basic settings without saving any is not asked again at once.
  if (settings_left_ && ports_.files.length(core::settei_path(session_.settings)) == 0) return;
  guarded([this] {
    const session::Activated outcome = session::form_activate(session_, ports_, {false, false});
    Frame6_->lists_fill();
    if (outcome == session::Activated::nothing) return follow_registry();
    session::journal_r(session_, ports_);
    apply_captions();
    fill_lists();
    show_sheet_list();
    show_all();
    if (outcome == session::Activated::settings_asked) open_settings();
  });
}

// What another program has written meanwhile comes to the map and the table.
void Frm_main::follow_registry() {
  if (!session_.sheet_shown() || !session::registry_follow(session_, ports_)) return;
  show(session::Redraw::all);
  records_changed();
}

void Frm_main::show_sheet_list() {
  const session::Sheet_list& sheets = session_.sheets;
  filling_ = true;
  list_model_->list_changed();
  if (sheets.selected >= 0) {
    const QModelIndex index = list_shown_->mapFromSource(list_model_->index(sheets.selected, 0));
    List1_->setCurrentIndex(index);
    List1_->scrollTo(index);
  }
  filling_ = false;
}

void Frm_main::list_clicked() {
  list_delay_->stop();
  open_current_row();
}

// Enter in the filter opens the first sheet that it left.
void Frm_main::open_first_found() {
  if (list_shown_->rowCount() == 0) return;
  filling_ = true;
  List1_->setCurrentIndex(list_shown_->index(0, 0));
  filling_ = false;
  List1_->setFocus();
  open_current_row();
}

void Frm_main::open_current_row() {
  const QModelIndex index = list_shown_->mapToSource(List1_->currentIndex());
  if (index.isValid()) open_row(index.row());
}

void Frm_main::open_row(int row) {
  list_delay_->stop();
  QApplication::setOverrideCursor(Qt::WaitCursor);
  progress_->setVisible(true);
  guarded([&] {
    const session::Redraw redraw = session::chizu_out(session_, ports_, row, [this](int tile, int tiles) {
      progress_->setRange(0, tiles);
      progress_->setValue(tile);
      progress_->repaint();
    });
    canvas_measured();
    if (redraw != session::Redraw::none) show_all();
  });
  platform::give_back_holes();
  progress_->setVisible(false);
  QApplication::restoreOverrideCursor();
}

void Frm_main::open_settings() {
  if (!settings_) {
    settings_ = new Frame2_dialog(session_.settings, session_.boxes, ports_.files, ports_.prompts, this);
    settings_->keep_in(ports_.journal);
    settings_->saved = [this] { settings_saved(); };
    settings_->closed = [this] {
      settings_left_ = true;
      activate();
    };
  }
  core::menu_settei(session_.settings, session_.boxes, ports_.files);
  settings_->boxes_out();
  settings_->show();
  settings_->raise();
  settings_->activateWindow();
}

// The catalogue follows the datum and the folder, and so does the sheet that is drawn.
void Frm_main::settings_saved() {
  guarded([this] {
    session::journal_r(session_, ports_);
    show_undo();
    session::sheet_list_r(session_, ports_);
    show_sheet_list();
    show_all();
    if (session_.sheet_shown() && session_.sheets.selected >= 0) open_row(session_.sheets.selected);
  });
}

void Frm_main::open_picture_save() {
  if (!session_.sheet_shown()) return;
  guarded([this] {
    Frame10_dialog dialog(
        ports_, session_.settings, [this] { return picture_to_save(); }, this);
    dialog.exec();
  });
}

// The canvas as a person sees it, but for what follows the mouse.
QImage Frm_main::picture_to_save() {
  QImage image = canvas_->map_image();
  image.setDevicePixelRatio(canvas_->devicePixelRatioF());
  QPainter painter(&image);
  paint_fixed_controls(painter, canvas_->rect(), session_);
  painter.end();
  image.setDevicePixelRatio(1);
  return image;
}

void Frm_main::open_sheet_index() {
  Frm_chikeizu_sentaku dialog(session_, ports_, this);
  if (dialog.exec() != QDialog::Accepted) return;
  const int row = session::row_of(session_.sheets, dialog.chosen_stem());
  if (row < 0) return;
  show_row(row);
  open_row(row);
}

// Chooses a row of the list without opening it.
void Frm_main::show_row(int row) {
  list_filter_->clear();
  filling_ = true;
  List1_->setCurrentIndex(list_shown_->mapFromSource(list_model_->index(row, 0)));
  filling_ = false;
}

}  // namespace ui
