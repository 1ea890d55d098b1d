#include "soak/hand.h"

#include <QAbstractScrollArea>
#include <QApplication>
#include <QInputMethodEvent>
#include <QScrollArea>
#include <QTest>
#include <QWheelEvent>
#include <QWindow>

#include <algorithm>

#include "ui/toolkit_text.h"

namespace soak {

namespace {

constexpr int main_window_in = 5;  // one in so many steps goes to another open window
constexpr std::size_t typed_by_letter = 40;

void log_hand(Run& run, const char* what, const QWidget* widget, QPoint at) {
  count(run.log, "hand", what);
  log_line(run.log, std::string(what) + " " + ui::from_toolkit(told(widget)) + " " + std::to_string(at.x()) + "," +
                        std::to_string(at.y()));
}

// The window's own handle; none while it isn't on the screen. A window that is used gets the keyboard, as a window
// manager gives it to the one under a press.
QWindow* handle_of(const QWidget* widget) {
  QWidget* const window = widget->window();
  if (window->windowType() != Qt::Popup && !window->isActiveWindow()) window->activateWindow();
  QWindow* const handle = window->windowHandle();
  return handle && handle->isVisible() ? handle : nullptr;
}

QPoint in_window(const QWidget* widget, QPoint at) {
  const QPoint place = widget->mapTo(widget->window(), at);
  return place.isNull() ? QPoint(1, 1) : place;  // the toolkit takes 0, 0 for the middle
}

bool is_on_keyboard(const std::string& text) {
  return text.size() <= typed_by_letter &&
         std::all_of(text.begin(), text.end(), [](char c) { return c >= ' ' && c <= '~'; });
}

void scroll_to(QWidget* widget) {
  for (QWidget* above = widget->parentWidget(); above; above = above->parentWidget())
    if (auto* area = qobject_cast<QScrollArea*>(above)) area->ensureWidgetVisible(widget);
}

}  // namespace

QString told(const QWidget* widget) {
  if (!widget) return "nothing";
  QString name = widget->objectName();
  for (const QWidget* above = widget; name.isEmpty() && above; above = above->parentWidget())
    name = above->objectName();
  return QString(widget->metaObject()->className()) + "#" + name;
}

bool is_message(const QWidget* widget) {
  return widget && widget->inherits("QMessageBox");
}

QWidget* dialog_up(Run& run) {
  if (QWidget* popup = QApplication::activePopupWidget()) return popup;
  if (QWidget* modal = QApplication::activeModalWidget()) return modal;
  auto* const settings = run.window->findChild<QWidget*>("Frame2");
  return settings && settings->isVisible() ? settings : nullptr;
}

QWidget* front(Run& run) {
  if (QWidget* popup = QApplication::activePopupWidget()) return popup;
  if (QWidget* modal = QApplication::activeModalWidget()) return modal;
  std::vector<QWidget*> others;
  for (QWidget* window : QApplication::topLevelWidgets())
    if (window->isVisible() && window != run.window && window->windowType() != Qt::ToolTip &&
        window->windowType() != Qt::Popup)
      others.push_back(window);
  if (others.empty() || !run.random.one_in(main_window_in)) return run.window;
  // The toolkit keeps its windows in no order.
  std::sort(others.begin(), others.end(), [](QWidget* a, QWidget* b) { return told(a) < told(b); });
  return run.random.of(others);
}

std::vector<QWidget*> usable(QWidget* window) {
  std::vector<QWidget*> found;
  for (QWidget* widget : window->findChildren<QWidget*>())
    if (widget->isVisible() && widget->isEnabled() && widget->window() == window && !widget->visibleRegion().isEmpty())
      found.push_back(widget);
  return found;
}

QWidget* usable_named(QWidget* window, const char* name) {
  auto* const widget = window ? window->findChild<QWidget*>(name) : nullptr;
  if (!widget || !widget->isVisible() || !widget->isEnabled()) return nullptr;
  scroll_to(widget);
  return widget->visibleRegion().isEmpty() ? nullptr : widget;
}

QPoint place_in(Random& random, const QWidget* widget) {
  const QRect seen = widget->visibleRegion().boundingRect();
  return {seen.x() + random.below(seen.width()), seen.y() + random.below(seen.height())};
}

void press(Run& run, QWidget* widget, QPoint at, Qt::MouseButton button, Qt::KeyboardModifiers keys) {
  log_hand(run, button == Qt::RightButton ? "right press" : "press", widget, at);
  if (QWindow* handle = handle_of(widget)) QTest::mouseClick(handle, button, keys, in_window(widget, at));
}

void press_twice(Run& run, QWidget* widget, QPoint at) {
  log_hand(run, "double press", widget, at);
  if (QWindow* handle = handle_of(widget)) QTest::mouseDClick(handle, Qt::LeftButton, {}, in_window(widget, at));
}

void move_to(Run& run, QWidget* widget, QPoint at) {
  log_hand(run, "move", widget, at);
  if (QWindow* handle = handle_of(widget)) QTest::mouseMove(handle, in_window(widget, at));
}

void drag(Run& run, QWidget* widget, QPoint from, QPoint to, Qt::MouseButton button) {
  log_hand(run, "drag", widget, from);
  const QPointer<QWindow> handle = handle_of(widget);
  if (!handle) return;
  const QPoint begin = in_window(widget, from), end = in_window(widget, to);
  constexpr int parts = 4;
  QTest::mousePress(handle, button, {}, begin);
  for (int i = 1; i <= parts && handle; ++i) QTest::mouseMove(handle, begin + (end - begin) * i / parts);
  if (handle) QTest::mouseRelease(handle, button, {}, end);
}

void wheel(Run& run, QWidget* widget, QPoint at, int steps) {
  log_hand(run, "wheel", widget, at);
  constexpr int one_step = 120;
  const QPoint turned(0, steps * one_step);
  QWheelEvent event(at, widget->mapToGlobal(at), {}, turned, Qt::NoButton, {}, Qt::NoScrollPhase, false);
  QApplication::sendEvent(widget, &event);
}

void key(Run& run, QWidget* window, const QKeySequence& keys) {
  count(run.log, "hand", "key");
  log_line(run.log, "key " + ui::from_toolkit(keys.toString(QKeySequence::PortableText)) + " in " +
                        ui::from_toolkit(told(window)));
  const QPointer<QWindow> handle = handle_of(window);
  for (int i = 0; i < keys.count() && handle; ++i)
    QTest::keyClick(handle, keys[static_cast<unsigned>(i)].key(), keys[static_cast<unsigned>(i)].keyboardModifiers());
}

void type(Run& run, QWidget* window, const std::string& text) {
  count(run.log, "hand", "type");
  log_line(run.log, "type \"" + text.substr(0, 60) + "\"");
  const QPointer<QWindow> handle = handle_of(window);
  if (!handle) return;
  if (is_on_keyboard(text)) {
    for (const char c : text)
      if (handle) QTest::keyClick(handle, c);
    return;
  }
  QObject* const taker = QApplication::focusObject();
  if (!taker) return;
  QInputMethodEvent event;
  event.setCommitString(ui::to_toolkit(text));
  QApplication::sendEvent(taker, &event);
}

void fill(Run& run, QWidget* box, const std::string& text) {
  const QPointer<QWidget> kept = box;
  press(run, box, place_in(run.random, box));
  if (!kept || !kept->isVisible()) return;
  if (!run.random.one_in(6)) key(run, kept->window(), QKeySequence(Qt::CTRL | Qt::Key_A));
  if (kept && text.empty()) return key(run, kept->window(), QKeySequence(Qt::Key_Delete));
  if (kept) type(run, kept->window(), text);
}

}  // namespace soak
