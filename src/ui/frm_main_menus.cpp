#include <QAction>
#include <QActionGroup>
#include <QListView>
#include <QMenuBar>
#include <QShortcut>
#include <QToolButton>

#include <algorithm>

#include "core/session/start_up.h"
#include "ui/frm_main.h"
#include "ui/icons.h"
#include "ui/tool_bar.h"

namespace ui {

// An entry of a menu; one whose work is not there yet stands disabled in its place, and its tool tip tells so.
QAction* Frm_main::add_action(QMenu* menu, const char* name, bool ready) {
  QAction* const action = menu->addAction(QString());
  action->setObjectName(name);
  action->setEnabled(ready);
  action->setProperty("to_come", !ready);
  return action;
}

QMenu* Frm_main::add_menu(const char* name) {
  QMenu* const menu = menuBar()->addMenu(QString());
  menu->setObjectName(name);
  menu->setToolTipsVisible(true);
  return menu;
}

void Frm_main::build_menus() {
  build_file_menu();
  build_edit_menu();
  build_tool_menu();
  QMenu* const solid = add_menu("menu_3D");
  for (const char* name : {"menu_3D_make", "menu_souzyo"}) add_action(solid, name, false);
  build_view_menu();
  connect_menu_keys();
}

void Frm_main::build_file_menu() {
  QMenu* const file = add_menu("menu_file");
  connect(add_action(file, "menu_settei", true), &QAction::triggered, this, &Frm_main::open_settings);
  file->addSeparator();
  connect(add_action(file, "menu_web_henkann", true), &QAction::triggered, this,
          [this] { session::menu_web_henkann(session_, ports_); });
  add_action(file, "menu_chikeizu_tuika", false);
  add_action(file, "menu_ninni_tuika", false);
  file->addSeparator();
  QAction* const save = add_action(file, "menu_gazou_save", true);
  save->setShortcut(QKeySequence::Save);
  save->setProperty("needs_sheet", true);
  connect(save, &QAction::triggered, this, &Frm_main::open_picture_save);
  file->addSeparator();
  auto* languages = new QActionGroup(this);
  for (const char* name : {"menu_Japanese", "menu_English"}) {
    QAction* const action = add_action(file, name, true);
    action->setCheckable(true);
    languages->addAction(action);
    const std::string language = name + 5;
    connect(action, &QAction::triggered, this, [this, language] { switch_language(language); });
  }
  file->addSeparator();
  QAction* const end = add_action(file, "menu_end", true);
  end->setShortcut(QKeySequence::Quit);
  connect(end, &QAction::triggered, this, [this] { close(); });
}

void Frm_main::build_tool_menu() {
  QMenu* const tool = add_menu("menu_tool");
  const auto add = [&](const char* name, auto procedure) {
    QAction* const action = add_action(tool, name, true);
    connect(action, &QAction::triggered, this, procedure);
    return action;
  };
  add("menu_dc_read", [this] { open_clinometer(false); })->setShortcut(QKeySequence("Ctrl+K"));
  add("clinometer_cable", [this] { open_clinometer_cable(); });
  add("menu_keiro", [this] { open_routes(false); });
  add("GPS_MNEA", [this] { open_routes(true); });
  QAction* const gps = add("gps_switch", [this] { switch_gps(); });
  gps->setCheckable(true);
  gps->setShortcut(QKeySequence("Ctrl+G"));
  add("gps_data_out", [this] { open_replay(); });
  add_action(tool, "menu_bor_touroku", false);
  add("shape_make", [this] { open_shape_make(); });
  tool->addSeparator();
  for (const char* name : {"menu_bunkatu", "menu_PDAbunkatu", "menu_PDAkiridasi", "menu_PDA", "mnu_Trailbook"})
    add_action(tool, name, false);
}

void Frm_main::build_edit_menu() {
  QMenu* const edit = add_menu("menu_edit");
  const auto add = [&](const char* name, const QList<QKeySequence>& keys, auto procedure) {
    QAction* const action = add_action(edit, name, true);
    action->setShortcuts(keys);
    connect(action, &QAction::triggered, this, procedure);
    return action;
  };
  add("menu_undo", {QKeySequence("Ctrl+Z")}, [this] { undo(false); });
  add("menu_redo", {QKeySequence("Ctrl+Y"), QKeySequence("Ctrl+Shift+Z")}, [this] { undo(true); });
  edit->addSeparator();
  add("mnu_sinki", {QKeySequence("Ctrl+N")}, [this] { open_new_record(); })->setProperty("needs_sheet", true);
  add("mnu_henkou", {QKeySequence("Ctrl+E")}, [this] { open_record(0); })->setProperty("needs_sheet", true);
  add("mnu_del", {QKeySequence("Ctrl+D")}, [this] { delete_record(); })->setProperty("needs_sheet", true);
  edit->addSeparator();
  add("observation_table", {QKeySequence("Ctrl+T")}, [this] { open_table(); })->setProperty("needs_sheet", true);
}

void Frm_main::build_view_menu() {
  QMenu* const view = add_menu("menu_view");
  const auto add = [&](const char* name, const QList<QKeySequence>& keys, auto procedure) {
    QAction* const action = add_action(view, name, true);
    action->setProperty("needs_sheet", true);
    action->setShortcuts(keys);
    connect(action, &QAction::triggered, this, procedure);
  };
  add("view_zoom_in", {QKeySequence::ZoomIn, QKeySequence("Ctrl+=")}, [this] { zoom(true); });
  add("view_zoom_out", {QKeySequence::ZoomOut}, [this] { zoom(false); });
  add("view_zoom_reset", {QKeySequence("Ctrl+0")}, [this] { zoom_reset(); });
  add("view_zoom_box", {QKeySequence("Ctrl+R")}, [this] { start_zoom_box(); });
  add("view_section", {QKeySequence("Ctrl+L")}, [this] { start_section_line(); });
  view->addSeparator();
  add("view_left", {QKeySequence("Ctrl+Left")}, [this] { step_view(-1, 0); });
  add("view_right", {QKeySequence("Ctrl+Right")}, [this] { step_view(1, 0); });
  add("view_up", {QKeySequence("Ctrl+Up")}, [this] { step_view(0, -1); });
  add("view_down", {QKeySequence("Ctrl+Down")}, [this] { step_view(0, 1); });
  view->addSeparator();
  QAction* const list = add_action(view, "view_sheet_list", true);
  list->setShortcut(QKeySequence("Ctrl+M"));
  connect(list, &QAction::triggered, this, [this] { List1_->setFocus(); });
  QAction* const index = add_action(view, "view_sheet_index", true);
  index->setShortcut(QKeySequence("Ctrl+I"));
  connect(index, &QAction::triggered, this, &Frm_main::open_sheet_index);
}

// The menus' captions have no mnemonics of their own. As with those, the menu comes up with its first entry marked.
void Frm_main::connect_menu_keys() {
  for (const auto& [keys, name] : {std::pair{"Alt+F", "menu_file"},
                                   {"F10", "menu_file"},
                                   {"Alt+E", "menu_edit"},
                                   {"Alt+T", "menu_tool"},
                                   {"Alt+3", "menu_3D"},
                                   {"Alt+V", "menu_view"}})
    connect(new QShortcut(QKeySequence(keys), this), &QShortcut::activated, this,
            [this, menu = findChild<QMenu*>(name)] {
              menuBar()->setActiveAction(menu->menuAction());
              const QList<QAction*> entries = menu->actions();
              const auto usable =
                  std::find_if(entries.begin(), entries.end(), [](const QAction* entry) { return entry->isEnabled(); });
              if (usable != entries.end()) menu->setActiveAction(*usable);
            });
  auto* escape = new QShortcut(Qt::Key_Escape, this);
  connect(escape, &QShortcut::activated, this, &Frm_main::end_tool);
}

QToolButton* Frm_main::add_tool(QToolBar* bar, const char* name, int icon) {
  auto* tool = new QToolButton;
  tool->setObjectName(name);
  tool->setIcon(make_icon(static_cast<Icon>(icon)));
  tool->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
  tool->setAutoRaise(true);
  tool->setFocusPolicy(Qt::TabFocus);
  bar->addWidget(tool);
  return tool;
}

void Frm_main::build_tool_bar() {
  auto* const bar = new Tool_bar;
  addToolBar(bar);
  bar->setObjectName("tools");
  bar->setMovable(false);
  bar->setIconSize({22, 22});
  const auto add = [&](const char* name, Icon icon, auto procedure) {
    connect(add_tool(bar, name, static_cast<int>(icon)), &QToolButton::clicked, this, procedure);
  };
  add("Command16", Icon::zoom_in, [this] { zoom(true); });
  add("Command17", Icon::zoom_out, [this] { zoom(false); });
  add("Command18", Icon::zoom_reset, [this] { zoom_reset(); });
  bar->addSeparator();
  add("Command19", Icon::zoom_box, [this] { start_zoom_box(); });
  add("Command25", Icon::section, [this] { start_section_line(); });
  bar->addSeparator();
  add("Main_act_0", Icon::save_range, [this] { open_picture_save(); });
  bar->addSeparator();
  add("gps_tool", Icon::gps, [this] { switch_gps(); });
  gps_tool_ = findChild<QToolButton*>("gps_tool");
  gps_tool_->setCheckable(true);
  zoom_box_tool_ = findChild<QToolButton*>("Command19");
  section_tool_ = findChild<QToolButton*>("Command25");
  zoom_box_tool_->setCheckable(true);
  section_tool_->setCheckable(true);
}

}  // namespace ui
