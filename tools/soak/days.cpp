#include "soak/days.h"

#include <QApplication>
#include <QComboBox>
#include <QLineEdit>
#include <QListView>
#include <QListWidget>
#include <QMenu>
#include <QMenuBar>
#include <QTabBar>
#include <QTabWidget>
#include <QTableView>

#include <cmath>

#include "soak/hand.h"
#include "soak/noise.h"
#include "soak/texts.h"
#include "ui/toolkit_text.h"

namespace soak {

namespace {

using Act = std::function<void(Run&)>;

QWidget* in_front(Run& run, Where where) {
  return where == Where::main ? run.window.data() : dialog_up(run);
}

void add(Run& run, Where where, const std::string& name, const Act& act, int rest = 0) {
  run.plan.push_back({where, name, act, rest});
}

// Steps that every day is made of.

void press_named(Run& run, Where where, const char* name, int rest = 0) {
  add(
      run, where, std::string("press ") + name,
      [where, name](Run& now) {
        QWidget* const window = in_front(now, where);
        if (QWidget* widget = usable_named(window, name))
          press(now, widget, widget->rect().center());
        else
          count(now.log, "days", std::string("no ") + name);
      },
      rest);
}

void fill_named(Run& run, Where where, const char* name, const std::string& text) {
  add(run, where, std::string("fill ") + name, [where, name, text](Run& now) {
    QWidget* const window = in_front(now, where);
    if (QWidget* widget = usable_named(window, name)) fill(now, widget, text);
  });
}

void press_keys(Run& run, Where where, const char* keys, int rest = 0) {
  add(
      run, where, std::string("keys ") + keys,
      [where, keys](Run& now) { key(now, in_front(now, where), QKeySequence(keys)); }, rest);
}

// Goes through a choice box by the keyboard.
void step_named(Run& run, const char* name, int steps) {
  add(run, Where::main, std::string("step ") + name, [name, steps](Run& now) {
    auto* const box = qobject_cast<QComboBox*>(usable_named(now.window, name));
    if (!box) return;
    box->setFocus();
    const QPointer<QWidget> kept = box;
    for (int i = 0; i < std::abs(steps) && kept; ++i) key(now, now.window, steps > 0 ? Qt::Key_Down : Qt::Key_Up);
  });
}

// An entry of the menu bar, through its menu.
void menu_entry(Run& run, const char* menu, const char* entry) {
  add(run, Where::main, std::string("menu ") + menu, [menu](Run& now) {
    auto* const found = now.window->findChild<QMenu*>(menu);
    QMenuBar* const bar = now.window->menuBar();
    if (found) press(now, bar, bar->actionGeometry(found->menuAction()).center());
  });
  add(run, Where::popup, std::string("entry ") + entry, [entry](Run& now) {
    auto* const up = qobject_cast<QMenu*>(QApplication::activePopupWidget());
    if (!up || !press_entry(now, up, entry)) key(now, front(now), Qt::Key_Escape);
  });
}

// Noise in a dialog for some steps, then its end by one of the buttons; where none can be pressed, by Esc.
void dwell(Run& run, int steps, const std::vector<const char*>& ends) {
  for (int i = 0; i < steps; ++i) add(run, Where::dialog, "dwell", [](Run& now) { noise_in(now, dialog_up(now)); });
  const char* const end = run.random.of(ends);
  add(run, Where::dialog, std::string("end by ") + end, [end](Run& now) {
    QWidget* const window = dialog_up(now);
    if (QWidget* button = usable_named(window, end))
      press(now, button, button->rect().center());
    else
      key(now, window, Qt::Key_Escape);
  });
}

void press_on_map(Run& run, Qt::MouseButton button) {
  add(run, Where::main, "press on the map", [button](Run& now) {
    if (QWidget* map = usable_named(now.window, "Picture1")) {
      const QPoint at = place_in(now.random, map);
      QCursor::setPos(map->mapToGlobal(at));
      press(now, map, at, button);
    }
  });
}

void open_sheet(Run& run) {
  add(
      run, Where::main, "open a sheet",
      [](Run& now) {
        auto* const list = qobject_cast<QListView*>(usable_named(now.window, "List2"));
        if (!list || list->model()->rowCount() == 0) return count(now.log, "days", "no sheet to open");
        const QModelIndex row = list->model()->index(now.random.below(list->model()->rowCount()), 1);
        list->scrollTo(row);
        press(now, list->viewport(), list->visualRect(row).center());
        count(now.log, "days", "sheets opened");
      },
      20);
}

// Marks a record of the registry on the map, where it is in sight.
void press_on_record(Run& run, Qt::MouseButton button) {
  add(run, Where::main, "press on a record", [button](Run& now) {
    session::Session& session = *now.session;
    QWidget* const map = usable_named(now.window, "Picture1");
    if (!map || session.registry.N == 0 || !session.sheet_shown()) return;
    for (int attempt = 0; attempt < 40; ++attempt) {
      const observations::Record& record = session.registry.rows[now.random.between(1, session.registry.N)];
      maps::Canvas canvas = session.canvas;
      const maps::Canvas_point at = maps::henkan_px(canvas, record.X, record.Y);
      const QPointF pixel((at.x * maps::twips_per_unit + canvas.view_x) / maps::twips_per_pixel,
                          (at.y * maps::twips_per_unit + canvas.view_y) / maps::twips_per_pixel);
      if (!map->rect().contains(pixel.toPoint())) continue;
      QCursor::setPos(map->mapToGlobal(pixel.toPoint()));
      return press(now, map, pixel.toPoint(), button);
    }
  });
}

void choose_tab(Run& run, int index) {
  add(run, Where::main, "tab", [index](Run& now) {
    auto* const tabs = now.window->findChild<QTabWidget*>("TabStrip1");
    if (tabs) press(now, tabs->tabBar(), tabs->tabBar()->tabRect(index).center());
  });
}

void answer_entry(Run& run, const char* name) {
  add(run, Where::popup, std::string("entry ") + name, [name](Run& now) {
    auto* const menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
    if (!menu || !press_entry(now, menu, name)) key(now, front(now), Qt::Key_Escape);
  });
}

void save_record(Run& run) {
  switch (run.random.below(4)) {
    case 0:
      return press_keys(run, Where::main, "Ctrl+S");
    case 1:
      return press_keys(run, Where::main, "Return");
    default:
      return press_named(run, Where::main, "Command9", 5);
  }
}

// Some boxes of the record, well or badly filled.
void fill_record(Run& run) {
  Random& random = run.random;
  const std::string root = run.place.root.string();
  if (!random.one_in(4)) fill_named(run, Where::main, "Text14_5", strike(random));
  if (!random.one_in(4)) fill_named(run, Where::main, "Text14_6", dip(random));
  for (const char* name : {"Text14_2", "Text14_3", "Text14_4", "Text14_7", "Text13", "Combo7", "Combo6"})
    if (random.one_in(3)) fill_named(run, Where::main, name, text_for(random, Box::record, root));
  if (random.one_in(12)) fill_named(run, Where::main, "Text14_0", text_for(random, Box::number, root));
  if (random.one_in(3)) step_named(run, "Combo1", random.between(-4, 4));
  if (random.one_in(3)) step_named(run, "Combo3", random.between(-4, 4));
  for (const char* name : {"Check7", "Check9", "Check1", "pick_position"})
    if (random.one_in(6)) press_named(run, Where::main, name);
  if (random.one_in(3)) fill_named(run, Where::main, "memo", text_for(random, Box::free, root));
}

void leave_record(Run& run) {
  if (run.random.one_in(8))
    press_keys(run, Where::main, "Esc");
  else
    save_record(run);
}

// The days.

void day_new_record(Run& run) {
  if (run.random.one_in(2)) {
    press_on_map(run, Qt::RightButton);
    answer_entry(run, "mnu_sinki");
  } else {
    press_keys(run, Where::main, "Ctrl+N");
  }
  fill_record(run);
  leave_record(run);
}

void day_new_line(Run& run) {
  press_keys(run, Where::main, "Ctrl+N");
  // From the first mark, "○", the tenth step is the last kind of point; the next are area, line and word.
  step_named(run, "Combo1", -14);
  step_named(run, "Combo1", run.random.between(10, 11));
  press_named(run, Where::main, "Command6");
  for (int i = run.random.between(1, run.random.one_in(20) ? 145 : 12); i > 0; --i) press_on_map(run, Qt::LeftButton);
  if (run.random.one_in(3))
    press_keys(run, Where::main, "Return");
  else
    press_named(run, Where::main, "Command31");
  if (run.random.one_in(3)) fill_record(run);
  leave_record(run);
}

void day_change(Run& run) {
  press_on_record(run, Qt::RightButton);
  answer_entry(run, "mnu_henkou");
  if (run.random.one_in(2)) press_on_map(run, Qt::RightButton);  // moves the record
  fill_record(run);
  leave_record(run);
}

void day_delete(Run& run) {
  press_on_record(run, Qt::RightButton);
  answer_entry(run, "mnu_del");
}

void day_undo(Run& run) {
  const int back = run.random.between(1, 6);
  for (int i = 0; i < back; ++i) press_keys(run, Where::main, "Ctrl+Z", 5);
  for (int i = run.random.between(0, back); i > 0; --i) press_keys(run, Where::main, "Ctrl+Y", 5);
}

void day_map(Run& run) {
  open_sheet(run);
  const std::vector<const char*> moves{"Ctrl+=", "Ctrl+-", "Ctrl+Left", "Ctrl+Right", "Ctrl+Up", "Ctrl+Down", "Ctrl+0"};
  for (int i = run.random.between(3, 12); i > 0; --i) press_keys(run, Where::main, run.random.of(moves));
  press_keys(run, Where::main, run.random.one_in(2) ? "Ctrl+R" : "Ctrl+L");
  press_on_map(run, Qt::LeftButton);
  press_on_map(run, Qt::LeftButton);
  press_keys(run, Where::main, "Esc");
}

void day_view(Run& run) {
  choose_tab(run, run.random.below(3));
  for (const char* name : {"Check2", "Check3", "Check5", "Check6", "Check8"})
    if (run.random.one_in(2)) press_named(run, Where::main, name);
}

void day_pictures(Run& run) {
  if (run.random.one_in(2)) {
    day_new_record(run);
    run.plan.pop_back();  // the record stays open
    press_named(run, Where::main, "picture_dialog");
  } else {
    choose_tab(run, 1);
    press_named(run, Where::main, run.random.one_in(2) ? "Main_act_7" : "Main_act_8");
  }
  fill_named(run, Where::dialog, "Dir1", run.place.root.string() + "/pictures");
  press_keys(run, Where::dialog, "Return");
  for (int i = run.random.between(1, 4); i > 0; --i) {
    add(run, Where::dialog, "choose a picture", [](Run& now) {
      auto* const list = qobject_cast<QListWidget*>(usable_named(dialog_up(now), "File1"));
      if (!list || list->count() == 0) return;
      const QModelIndex row = list->model()->index(now.random.below(list->count()), 0);
      list->scrollTo(row);
      press(now, list->viewport(), list->visualRect(row).center());
    });
    const std::vector<const char*> takes{"Command10", "Command11", "Command12"};
    press_named(run, Where::dialog, run.random.of(takes), 20);
  }
  dwell(run, run.random.between(0, 12), {"Command5", "Command7"});
  dwell(run, 1, {"close"});
}

void day_shape(Run& run) {
  if (run.random.one_in(2))
    menu_entry(run, "menu_tool", "shape_make");
  else
    press_named(run, Where::main, "Command7");
  dwell(run, run.random.between(2, 12), {"OK", "OK", "close"});
  dwell(run, 0, {"close"});
}

void day_settings(Run& run) {
  menu_entry(run, "menu_file", "menu_settei");
  dwell(run, run.random.between(3, 25), {"Command10", "Command11"});
  add(run, Where::anywhere, "settings closed", [](Run& now) {
    if (QWidget* settings = now.window->findChild<QWidget*>("Frame2"); settings && settings->isVisible())
      key(now, settings, Qt::Key_Escape);
  });
}

// After noise in the settings: the project, a registration file and the standard sheets again.
void day_settings_back(Run& run) {
  const std::string project = run.place.project();
  menu_entry(run, "menu_file", "menu_settei");
  const auto in_settings = [&run](const std::string& name, const std::function<void(Run&, QWidget*)>& act) {
    add(run, Where::anywhere, name, [act](Run& now) {
      QWidget* const settings = now.window->findChild<QWidget*>("Frame2");
      if (settings && settings->isVisible() && !QApplication::activeModalWidget()) act(now, settings);
    });
  };
  const auto box = [&](const char* name, const std::string& text) {
    in_settings(std::string("fill ") + name, [name, text](Run& now, QWidget* settings) {
      if (auto* edit = settings->findChild<QLineEdit*>(name)) {
        for (QWidget* above = edit; above; above = above->parentWidget())
          if (auto* tabs = qobject_cast<QTabWidget*>(settings->findChild<QTabWidget*>("tabs")))
            for (int i = 0; i < tabs->count(); ++i)
              if (tabs->widget(i)->isAncestorOf(edit)) tabs->setCurrentIndex(i);
        edit->setFocus();
        edit->selectAll();
        type(now, settings, text);
        key(now, settings, Qt::Key_Tab);
      }
    });
  };
  box("Dir4", project);
  box("Dir10", run.place.program() + "/map");
  const auto press_in = [&](const char* name) {
    in_settings(std::string("press ") + name, [name](Run& now, QWidget* settings) {
      if (QWidget* widget = usable_named(settings, name)) press(now, widget, QPoint(6, widget->height() / 2));
    });
  };
  press_in("Option5_0");
  box("Text4", "soak" + std::to_string(run.random.below(3)));
  press_in("Command44");
  in_settings("choose a registration file", [](Run& now, QWidget* settings) {
    auto* const list = qobject_cast<QListWidget*>(usable_named(settings, "File11"));
    if (!list || list->count() == 0) return;
    list->scrollToTop();
    const QModelIndex row = list->model()->index(now.random.below(list->count()), 0);
    list->scrollTo(row);
    press(now, list->viewport(), list->visualRect(row).center());
  });
  press_in("Command10");
  open_sheet(run);
}

void day_clinometer(Run& run) {
  const int number = run.random.between(5, 6);
  add(run, Where::anywhere, "plug in", [number](Run& now) {
    count(now.log, "instruments", "clinometer plugged in");
    plug_clinometer(now.instruments, number, now.random);
  });
  menu_entry(run, "menu_tool", run.random.one_in(4) ? "clinometer_cable" : "menu_dc_read");
  add(run, Where::dialog, "choose the port", [number](Run& now) {
    if (auto* ports = qobject_cast<QComboBox*>(usable_named(dialog_up(now), "Combo8")))
      ports->setCurrentIndex(number - 1);
  });
  press_named(run, Where::dialog, "start", 1500);
  for (int i = 0; i < 4; ++i)
    add(
        run, Where::dialog, "wait", [](Run&) {}, 600);
  for (const char* name : {"all", "hosei", "Command10", "Command9", "Command16", "picture", "Tiltvane_File_Make"})
    if (!run.random.one_in(3)) press_named(run, Where::dialog, name, 10);
  dwell(run, run.random.between(0, 25), {"close"});
}

void day_receiver(Run& run) {
  add(run, Where::anywhere, "plug in", [](Run& now) {
    count(now.log, "instruments", "receiver plugged in");
    plug_receiver(now.instruments, 4, now.random);
  });
  press_keys(run, Where::main, "Ctrl+G", 800);
  for (int i = run.random.between(2, 12); i > 0; --i)
    add(
        run, Where::anywhere, "drive", [](Run&) {}, 300);
  if (run.random.one_in(2))
    add(
        run, Where::anywhere, "pull", [](Run& now) { unplug(now.instruments, 4); }, 500);
  press_keys(run, Where::main, "Ctrl+G");
}

void day_routes(Run& run) {
  menu_entry(run, "menu_tool", run.random.one_in(2) ? "menu_keiro" : "GPS_MNEA");
  if (run.random.one_in(2)) {
    fill_named(run, Where::dialog, "Dir1", run.place.root.string() + "/logs");
    press_keys(run, Where::dialog, "Tab");
  }
  press_named(run, Where::dialog, "Command3");
  dwell(run, run.random.between(0, 6), {"Command1", "Command1", "Command2"});
}

void day_replay(Run& run) {
  add(run, Where::anywhere, "plug in", [](Run& now) { plug_receiver(now.instruments, 5, now.random); });
  menu_entry(run, "menu_tool", "gps_data_out");
  press_named(run, Where::dialog, "Command1", 700);
  dwell(run, run.random.between(1, 5), {"close"});
}

void day_table(Run& run) {
  press_keys(run, Where::main, "Ctrl+T", 30);
  for (int i = run.random.between(3, 15); i > 0; --i)
    add(run, Where::anywhere, "in the table", [](Run& now) {
      QWidget* const table = now.window->findChild<QWidget*>("registered_observations");
      if (QApplication::activePopupWidget() || QApplication::activeModalWidget()) return noise(now);
      if (table && table->isVisible()) noise_in(now, table);
    });
  add(run, Where::anywhere, "close the table", [](Run& now) {
    QWidget* const table = now.window->findChild<QWidget*>("registered_observations");
    if (table && table->isVisible() && !QApplication::activeModalWidget() && now.random.one_in(2)) table->close();
  });
}

void day_picture_of_map(Run& run) {
  menu_entry(run, "menu_file", "menu_gazou_save");
  const std::vector<const char*> kinds{"Option1", "Option2", "Option3"};
  fill_named(run, Where::dialog, "Text16", "map" + std::to_string(run.random.below(4)));
  press_named(run, Where::dialog, run.random.of(kinds));
  fill_named(run, Where::dialog, "Dir2", run.place.root.string() + "/out");
  dwell(run, run.random.between(0, 2), {"Command29", "Command29", "close"});
  dwell(run, 0, {"close"});
}

void day_index(Run& run) {
  press_keys(run, Where::main, "Ctrl+I");
  dwell(run, run.random.between(1, 10), {"Command1", "Command2"});
}

void day_language(Run& run) {
  menu_entry(run, "menu_file", run.random.one_in(2) ? "menu_Japanese" : "menu_English");
}

void day_memo_and_sheet(Run& run) {
  press_on_record(run, Qt::RightButton);
  answer_entry(run, "mnu_henkou");
  fill_named(run, Where::main, "memo", text_for(run.random, Box::free, run.place.root.string()));
  press_named(run, Where::main, run.random.one_in(2) ? "Command23" : "Command1");
  if (run.random.one_in(3)) press_named(run, Where::main, "surface_add");
  leave_record(run);
}

struct Day {
  int weight;
  const char* name;
  void (*plan)(Run&);
};

const std::vector<Day> days{{18, "new record", day_new_record},
                            {8, "new line", day_new_line},
                            {12, "change", day_change},
                            {3, "delete", day_delete},
                            {6, "undo", day_undo},
                            {8, "map", day_map},
                            {3, "view", day_view},
                            {6, "pictures", day_pictures},
                            {5, "shape", day_shape},
                            {3, "settings", day_settings},
                            {5, "settings back", day_settings_back},
                            {4, "clinometer", day_clinometer},
                            {3, "receiver", day_receiver},
                            {3, "routes", day_routes},
                            {2, "replay", day_replay},
                            {5, "table", day_table},
                            {3, "picture of the map", day_picture_of_map},
                            {3, "index", day_index},
                            {3, "language", day_language},
                            {4, "memo and sheet", day_memo_and_sheet}};

}  // namespace

void plan_day(Run& run) {
  // Nothing can be entered without a registration file and a sheet.
  if (run.session->sheets.List1.empty() || (run.session->settings.registry_count != 1 && run.random.one_in(3))) {
    count(run.log, "days", "settings back, since nothing can be entered");
    return day_settings_back(run);
  }
  if (!run.session->sheet_shown()) open_sheet(run);
  int total = 0;
  for (const Day& day : days) total += day.weight;
  int left = run.random.below(total);
  for (const Day& day : days) {
    left -= day.weight;
    if (left >= 0) continue;
    count(run.log, "days", day.name);
    log_line(run.log, std::string("day: ") + day.name);
    return day.plan(run);
  }
}

}  // namespace soak
