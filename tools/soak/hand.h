// Mouse and keyboard: events given to the windows as the window system would give them, each told in the log.
#pragma once

#include <QKeySequence>
#include <QPoint>
#include <QString>
#include <QWidget>

#include <vector>

#include "soak/run.h"

namespace soak {

// What a person can use now: the popup, else the modal dialog, else one of the open windows, mostly the main one.
QWidget* front(Run& run);
// The popup or the dialog that is up, the basic settings too, which leave the main window usable; none with the main
// window alone.
QWidget* dialog_up(Run& run);
bool is_message(const QWidget* widget);
QString told(const QWidget* widget);

// The widgets of a window that can be seen and used.
std::vector<QWidget*> usable(QWidget* window);
// The one of that name; none when it can't be used.
QWidget* usable_named(QWidget* window, const char* name);
QPoint place_in(Random& random, const QWidget* widget);

void press(Run& run, QWidget* widget, QPoint at, Qt::MouseButton button = Qt::LeftButton,
           Qt::KeyboardModifiers keys = {});
void press_twice(Run& run, QWidget* widget, QPoint at);
void drag(Run& run, QWidget* widget, QPoint from, QPoint to, Qt::MouseButton button = Qt::LeftButton);
void move_to(Run& run, QWidget* widget, QPoint at);
void wheel(Run& run, QWidget* widget, QPoint at, int steps);
void key(Run& run, QWidget* window, const QKeySequence& keys);
// Into what has the keyboard: letter by letter, or what isn't on the keyboard as an input method commits it.
void type(Run& run, QWidget* window, const std::string& text);
// Into a box: presses it, mostly takes away what it holds, types.
void fill(Run& run, QWidget* box, const std::string& text);

}  // namespace soak
