// The colour of texts that warn.
#pragma once

#include <QColor>
#include <QPalette>

namespace ui {

// A red that can be read on the ground of boxes and windows, light or dark.
inline QColor warning_colour(const QPalette& palette) {
  return palette.color(QPalette::Window).lightness() < 128 ? QColor(0xff, 0x8a, 0x80) : QColor(0xc6, 0x28, 0x28);
}

}  // namespace ui
