#include "soak/noise.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAbstractScrollArea>
#include <QApplication>
#include <QComboBox>
#include <QFileDialog>
#include <QHeaderView>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QMessageBox>
#include <QPlainTextEdit>
#include <QTabBar>

#include "soak/hand.h"
#include "soak/texts.h"
#include "ui/toolkit_text.h"

namespace soak {

namespace {

const std::vector<QKeySequence> plain_keys{
    Qt::Key_Tab,      Qt::Key_Tab,  Qt::Key_Backtab, Qt::Key_Escape,    Qt::Key_Return, Qt::Key_Enter,  Qt::Key_Space,
    Qt::Key_Up,       Qt::Key_Down, Qt::Key_Left,    Qt::Key_Right,     Qt::Key_Home,   Qt::Key_End,    Qt::Key_PageUp,
    Qt::Key_PageDown, Qt::Key_F2,   Qt::Key_F4,      Qt::Key_Backspace, Qt::Key_Delete, Qt::Key_Insert, Qt::Key_Menu};
const std::vector<QKeySequence> shortcuts{
    QKeySequence("Ctrl+Z"),  QKeySequence("Ctrl+Y"),    QKeySequence("Ctrl+Shift+Z"), QKeySequence("Ctrl+N"),
    QKeySequence("Ctrl+E"),  QKeySequence("Ctrl+D"),    QKeySequence("Ctrl+T"),       QKeySequence("Ctrl+K"),
    QKeySequence("Ctrl+G"),  QKeySequence("Ctrl+S"),    QKeySequence("Ctrl+="),       QKeySequence("Ctrl+-"),
    QKeySequence("Ctrl+0"),  QKeySequence("Ctrl+R"),    QKeySequence("Ctrl+L"),       QKeySequence("Ctrl+Left"),
    QKeySequence("Ctrl+Up"), QKeySequence("Ctrl+Down"), QKeySequence("Ctrl+Right"),   QKeySequence("Ctrl+M"),
    QKeySequence("Ctrl+I"),  QKeySequence("Ctrl+A"),    QKeySequence("Alt+F"),        QKeySequence("Alt+E"),
    QKeySequence("Alt+T"),   QKeySequence("Alt+V"),     QKeySequence("Alt+3"),        QKeySequence("F10"),
    QKeySequence("Alt+S"),   QKeySequence("Alt+C"),     QKeySequence("Alt+N"),        QKeySequence("Shift+F10")};

template <typename Widget>
std::vector<QWidget*> usable_of(QWidget* window) {
  std::vector<QWidget*> found;
  for (QWidget* widget : usable(window))
    if (qobject_cast<Widget*>(widget)) found.push_back(widget);
  return found;
}

Box box_of(const QWidget* widget) {
  const QString name = widget->objectName();
  if (qobject_cast<const QPlainTextEdit*>(widget)) return Box::free;
  if (name.startsWith("Dir")) return Box::folder;
  const QString window = widget->window()->objectName();
  if (window == "frm_main" || window == "Tiltvane_Read2") return Box::record;
  return window == "Frame2" ? Box::number : Box::free;
}

void type_somewhere(Run& run, QWidget* window) {
  std::vector<QWidget*> boxes = usable_of<QLineEdit>(window);
  for (QWidget* box : usable_of<QPlainTextEdit>(window)) boxes.push_back(box);
  if (boxes.empty()) return;
  QWidget* const box = run.random.of(boxes);
  fill(run, box, text_for(run.random, box_of(box), run.place.root.string()));
}

void press_button(Run& run, QWidget* window) {
  const std::vector<QWidget*> buttons = usable_of<QAbstractButton>(window);
  if (buttons.empty()) return;
  QWidget* const button = run.random.of(buttons);
  press(run, button, button->rect().center());
}

void press_anything(Run& run, QWidget* window) {
  const std::vector<QWidget*> widgets = usable(window);
  if (widgets.empty()) return;
  QWidget* const widget = run.random.of(widgets);
  const QPoint at = place_in(run.random, widget);
  if (run.random.one_in(8)) return press_twice(run, widget, at);
  const Qt::MouseButton button = run.random.one_in(6) ? Qt::RightButton : Qt::LeftButton;
  const std::vector<Qt::KeyboardModifiers> held{{}, {}, {}, {}, Qt::ControlModifier, Qt::ShiftModifier};
  press(run, widget, at, button, run.random.of(held));
}

void choose(Run& run, QWidget* window) {
  std::vector<QWidget*> lists = usable_of<QComboBox>(window);
  for (QWidget* view : usable_of<QAbstractItemView>(window))
    lists.push_back(static_cast<QAbstractItemView*>(view)->viewport());
  for (QWidget* tabs : usable_of<QTabBar>(window)) lists.push_back(tabs);
  if (lists.empty()) return;
  QWidget* const list = run.random.of(lists);
  if (list->visibleRegion().isEmpty()) return;
  if (qobject_cast<QComboBox*>(list) && run.random.one_in(2)) {
    list->setFocus();
    return key(run, window, run.random.one_in(2) ? Qt::Key_Down : Qt::Key_Up);
  }
  const QPoint at = place_in(run.random, list);
  run.random.one_in(6) ? press_twice(run, list, at) : press(run, list, at);
}

void drag_anything(Run& run, QWidget* window) {
  const std::vector<QWidget*> widgets = usable(window);
  if (widgets.empty()) return;
  QWidget* widget = run.random.of(widgets);
  if (window == run.window && run.random.one_in(2)) {
    QWidget* const map = usable_named(window, "Picture1");
    if (map) widget = map;
  }
  const std::vector<Qt::MouseButton> buttons{Qt::LeftButton, Qt::LeftButton, Qt::LeftButton, Qt::MiddleButton,
                                             Qt::RightButton};
  const QPoint from = place_in(run.random, widget), to = place_in(run.random, widget);
  drag(run, widget, from, to, run.random.of(buttons));
}

void turn_wheel(Run& run, QWidget* window) {
  const std::vector<QWidget*> widgets = usable(window);
  if (widgets.empty()) return;
  QWidget* widget = run.random.of(widgets);
  QWidget* const map = usable_named(window, "Picture1");
  if (map && run.random.one_in(2)) widget = map;
  wheel(run, widget, place_in(run.random, widget), run.random.between(-3, 3));
}

void press_map(Run& run, QWidget* window) {
  QWidget* const map = usable_named(window, "Picture1");
  if (!map) return press_anything(run, window);
  const QPoint at = place_in(run.random, map);
  if (run.random.one_in(3)) move_to(run, map, place_in(run.random, map));
  press(run, map, at, run.random.one_in(4) ? Qt::RightButton : Qt::LeftButton);
}

void open_menu(Run& run, QWidget* window) {
  auto* const bar = window->findChild<QMenuBar*>();
  if (!bar || bar->actions().isEmpty()) return press_button(run, window);
  QAction* const menu = bar->actions()[run.random.below(static_cast<int>(bar->actions().size()))];
  press(run, bar, bar->actionGeometry(menu).center());
}

void press_key(Run& run, QWidget* window) {
  key(run, window, run.random.of(plain_keys));
}

void press_shortcut(Run& run, QWidget* window) {
  key(run, window, run.random.of(shortcuts));
}

void resize_window(Run& run, QWidget* window) {
  count(run.log, "hand", "resize");
  const int width = run.random.between(300, 1500), height = run.random.between(200, 1000);
  log_line(run.log, "resize " + std::to_string(width) + "x" + std::to_string(height));
  if (run.random.one_in(5))
    window->setWindowState(window->windowState() ^ Qt::WindowMaximized);
  else
    window->resize(width, height);
}

// The window's frame has a button for it.
void close_window(Run& run, QWidget* window) {
  if (window == run.window && !run.random.one_in(20)) return;
  count(run.log, "hand", "close");
  log_line(run.log, "close " + ui::from_toolkit(told(window)));
  window->close();
}

void rest_a_moment(Run& run, QWidget*) {
  run.next_wait = run.random.between(50, 400);
}

void instrument(Run& run, QWidget*) {
  const int number = run.random.one_in(4) ? run.random.between(1, 8) : run.random.between(4, 5);
  log_line(run.log, "instrument at " + std::to_string(number));
  if (run.random.one_in(3)) {
    count(run.log, "instruments", "pulled");
    unplug(run.instruments, number);
  } else if (number == 4 || run.random.one_in(3)) {
    count(run.log, "instruments", "receiver plugged in");
    plug_receiver(run.instruments, number, run.random);
  } else {
    count(run.log, "instruments", "clinometer plugged in");
    plug_clinometer(run.instruments, number, run.random);
  }
}

struct Kind {
  int weight;
  const char* name;
  void (*act)(Run&, QWidget*);
};

const std::vector<Kind> kinds{{14, "anything pressed", press_anything},
                              {14, "button pressed", press_button},
                              {10, "text typed", type_somewhere},
                              {10, "choice made", choose},
                              {12, "map pressed", press_map},
                              {8, "dragged", drag_anything},
                              {6, "wheel turned", turn_wheel},
                              {12, "key", press_key},
                              {8, "shortcut", press_shortcut},
                              {5, "menu opened", open_menu},
                              {1, "window resized", resize_window},
                              {1, "window closed", close_window},
                              {4, "waited", rest_a_moment},
                              {1, "instrument", instrument}};

// Its folders are the machine's own: only what is typed there is chosen, and nothing can be renamed or deleted.
void answer_file_dialog(Run& run, QFileDialog* dialog) {
  dialog->setOption(QFileDialog::ReadOnly);
  if (run.random.one_in(4)) return key(run, dialog, Qt::Key_Escape);
  const std::string root = run.place.root.string();
  const bool folder = dialog->fileMode() == QFileDialog::Directory;
  const std::vector<std::string> names{"a", "記録", "x y", "net", "long.name"}, pictures{".png", ".jpg", ".bmp", ""};
  // A file gets the ending of its kind, so that it can be read back as what it is.
  const std::string suffix = ui::from_toolkit(dialog->defaultSuffix());
  const std::string ending = suffix == "png" ? run.random.of(pictures) : "." + suffix;
  const std::string path =
      folder ? text_for(run.random, Box::folder, root) : root + "/out/" + run.random.of(names) + ending;
  auto* const name = dialog->findChild<QLineEdit*>("fileNameEdit");
  if (!name || path.rfind(root, 0) != 0) return key(run, dialog, Qt::Key_Escape);
  const QPointer<QFileDialog> kept = dialog;
  name->setFocus();
  name->selectAll();
  log_line(run.log, "file dialog " + path);
  type(run, dialog, path);
  if (QWidget* completions = QApplication::activePopupWidget()) key(run, completions, Qt::Key_Escape);
  if (kept) key(run, kept, Qt::Key_Return);
  // A file or folder that isn't there keeps the dialog open.
  if (kept && kept->isVisible() && !is_message(QApplication::activeModalWidget()) && run.random.one_in(2))
    key(run, kept, Qt::Key_Escape);
}

void answer_message(Run& run, QWidget* box) {
  if (run.random.one_in(10)) return key(run, box, run.random.one_in(2) ? Qt::Key_Escape : Qt::Key_Return);
  press_button(run, box);
}

void noise_in_popup(Run& run, QWidget* popup) {
  if (run.random.one_in(5)) return leave(run, popup, 0);
  if (auto* menu = qobject_cast<QMenu*>(popup)) {
    if (!run.random.one_in(8) && press_entry(run, menu)) return;
    return press_key(run, popup);
  }
  press_anything(run, popup);
}

}  // namespace

bool press_entry(Run& run, QMenu* menu, const char* name) {
  std::vector<QAction*> entries;
  for (QAction* action : menu->actions())
    if (action->isEnabled() && action->isVisible() && !action->isSeparator() && (!name || action->objectName() == name))
      entries.push_back(action);
  if (entries.empty()) return false;
  QAction* const entry = run.random.of(entries);
  // The end of the program is one entry among few.
  if (!name && entry->objectName() == "menu_end" && !run.random.one_in(10)) return false;
  count(run.log, "menu entries",
        ui::from_toolkit(entry->objectName().isEmpty() ? "of the toolkit" : entry->objectName()));
  log_line(run.log, "entry " + ui::from_toolkit(entry->objectName()));
  press(run, menu, menu->actionGeometry(entry).center());
  return true;
}

void leave(Run& run, QWidget* window, int attempts) {
  constexpr int keys_first = 20;
  if (attempts < keys_first || qobject_cast<QMenu*>(window)) return key(run, window, Qt::Key_Escape);
  if (attempts % 2) return press_button(run, window);
  log_line(run.log, "close " + ui::from_toolkit(told(window)));
  window->close();
}

void noise_in(Run& run, QWidget* window) {
  if (window->windowType() == Qt::Popup) return noise_in_popup(run, window);
  if (auto* dialog = qobject_cast<QFileDialog*>(window)) return answer_file_dialog(run, dialog);
  if (is_message(window)) return answer_message(run, window);
  int total = 0;
  for (const Kind& kind : kinds) total += kind.weight;
  int left = run.random.below(total);
  for (const Kind& kind : kinds) {
    left -= kind.weight;
    if (left >= 0) continue;
    count(run.log, "noise", kind.name);
    return kind.act(run, window);
  }
}

void noise(Run& run) {
  if (QWidget* window = front(run)) noise_in(run, window);
}

}  // namespace soak
