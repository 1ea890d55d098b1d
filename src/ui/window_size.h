// The first size of a window.
#pragma once

#include <QScreen>
#include <QWidget>

namespace ui {

// `wanted`, or what a smaller screen has beside the title bar and the edges, so that the last button is seen too.
inline QSize size_on_screen(const QWidget& window, QSize wanted) {
  constexpr QSize frame_room(16, 56);
  return wanted.boundedTo(window.screen()->availableSize() - frame_room);
}

}  // namespace ui
