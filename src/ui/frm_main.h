// The main window: sheet list, canvas, three tabs of tool frames, menus, status bar. It owns widgets; what they do is
// told by core/session. Its sources: frm_main.cpp builds the window, _menus the menu bar and the tool bar, _tabs the
// tool frames, _sheets the sheet list and the start, _mouse the canvas, _entry the observations, _language the
// captions.
#pragma once

#include <QMainWindow>

#include <functional>
#include <memory>
#include <string>

#include "core/language.h"
#include "core/session/mouse.h"
#include "core/session/session.h"

class QAbstractButton;
class QAction;
class QLabel;
class QLineEdit;
class QListView;
class QMenu;
class QProgressBar;
class QScrollBar;
class QSortFilterProxyModel;
class QTabWidget;
class QTimer;
class QToolButton;

namespace platform {
class Qt_serial_port;
}

namespace ui {

class Canvas_view;
class Frame2_dialog;
class Frame6;
class Gps_state;
class Observation_table;
class Sheet_model;

class Frm_main : public QMainWindow {
  Q_OBJECT

 public:
  Frm_main(session::Session& session, session::Ports& ports);
  ~Frm_main() override;

  // The first showing: both passes of the activation, so that the sheet list is there without a click.
  void start();

 protected:
  void closeEvent(QCloseEvent* event) override;
  void changeEvent(QEvent* event) override;
  bool eventFilter(QObject* object, QEvent* event) override;

 private:
  // frm_main.cpp
  void build_window();
  void build_status_bar();
  void connect_all();
  // Runs a procedure of the logic; a failure that ends it is told in one sentence, and the window goes on.
  void guarded(const std::function<void()>& procedure);
  // The same, and shows what the procedure says must be drawn again.
  void perform(const std::function<session::Redraw()>& procedure);
  void show(session::Redraw redraw);
  // After another sheet, other settings or another language: what can be used, captions of the project, the whole map.
  void show_all();
  void show_state();
  bool japanese() const;
  QString either(const char* japanese_text, const char* english_text) const;

  // frm_main_menus.cpp
  void build_menus();
  void build_file_menu();
  void build_edit_menu();
  void build_tool_menu();
  void build_view_menu();
  void connect_menu_keys();
  void build_tool_bar();
  QAction* add_action(QMenu* menu, const char* name, bool ready);
  QMenu* add_menu(const char* name);
  QToolButton* add_tool(class QToolBar* bar, const char* name, int icon);

  // frm_main_tabs.cpp
  void build_tabs();
  QWidget* build_Frame4();
  QWidget* build_Frame5();
  void show_tab(int index);
  void fill_lists();
  void show_project();

  // frm_main_sheets.cpp
  QWidget* build_sheet_list();
  void connect_sheet_list();
  void activate();
  void follow_registry();
  void show_sheet_list();
  void open_row(int row);
  void show_row(int row);
  void open_current_row();
  void list_clicked();
  void open_first_found();
  void settings_saved();
  void open_settings();
  void open_picture_save();
  QImage picture_to_save();
  void open_sheet_index();

  // frm_main_mouse.cpp
  void connect_canvas();
  void canvas_measured();
  void map_pressed(int button, double x, double y);
  void map_moved(double x, double y);
  void map_released(int button, double x, double y);
  void wheel_turned(int steps, double x, double y);
  void zoom(bool in);
  void zoom_reset();
  void start_zoom_box();
  void start_section_line();
  void end_tool();
  void step_view(int right, int down);
  void bars_to_widgets();
  void bar_moved();
  void show_tool();
  void paint_overlay(QPainter& painter);

  // frm_main_entry.cpp
  void connect_entry();
  void show_point_menu(const QPoint& at);
  void take_place();
  void open_new_record();
  void open_record(int touroku);  // 0: the one at the place
  void delete_record();
  void panel_opened();
  void records_changed();
  void panel_command(const QString& name);
  void save_record();
  void close_record();
  void open_input_sheet();
  void open_pictures(bool edit);
  void show_memo();
  void open_shape();
  void open_shape_make();
  void start_line();
  void end_line();
  void undo(bool again);
  void show_undo();
  void show_notice();
  void open_table();

  // frm_main_instruments.cpp
  void connect_instruments();
  void project_changed();
  void open_clinometer(bool with_memory);
  void open_clinometer_cable();
  void open_routes(bool nmea);
  void open_replay();
  void switch_gps();
  void gps_tick();
  void show_gps();

  // frm_main_language.cpp
  void switch_language(const std::string& language);
  void apply_design_captions();
  void apply_captions();
  void apply_own_texts();
  void apply_hints();
  void set_table_caption(const core::Caption_set& caption);
  void set_caption(const QString& object, const QString& text);

  session::Session& session_;
  session::Ports& ports_;
  session::Map_tools tools_;

  Canvas_view* canvas_ = nullptr;
  QScrollBar* HScroll1_ = nullptr;
  QScrollBar* VScroll1_ = nullptr;
  QListView* List1_ = nullptr;
  QListView* List2_ = nullptr;
  QLineEdit* list_filter_ = nullptr;
  QToolButton* zoom_box_tool_ = nullptr;
  QToolButton* section_tool_ = nullptr;
  Sheet_model* list_model_ = nullptr;
  QSortFilterProxyModel* list_shown_ = nullptr;
  QTimer* list_delay_ = nullptr;
  QTabWidget* TabStrip1_ = nullptr;
  QLabel* status_tool_ = nullptr;
  QLabel* status_x_ = nullptr;
  QLabel* status_y_ = nullptr;
  QLabel* status_latitude_ = nullptr;
  QLabel* status_longitude_ = nullptr;
  QLabel* gps_sheet_ = nullptr;  // Label16: the sheet that the receiver is on
  Gps_state* gps_state_ = nullptr;
  QToolButton* gps_tool_ = nullptr;
  QTimer* Timer2_ = nullptr;
  std::unique_ptr<platform::Qt_serial_port> MSComm1_;
  QProgressBar* progress_ = nullptr;
  QLabel* shown_map_ = nullptr;
  QLabel* shown_folder_ = nullptr;
  class QListWidget* shown_files_ = nullptr;
  Frame2_dialog* settings_ = nullptr;
  Frame6* Frame6_ = nullptr;
  Observation_table* table_ = nullptr;  // made when it is first asked for
  bool settings_left_ = false;          // the basic settings were closed in this run
  bool left_for_message_ = false;       // the window is inactive since a message stands over it
  bool place_chosen_ = false;           // the menu of a point is up: the press that brought it is the place
  bool filling_ = false;                // the program itself sets widgets now
};

}  // namespace ui
