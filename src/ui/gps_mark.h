// The marker of the receiver's position over the painted map.
#pragma once

#include <QPainter>
#include <QRect>

#include "instruments/gps_tick.h"
#include "maps/canvas.h"

namespace ui {

// The cross lines and the "○" in black, with a light edge that keeps them apart from a dark map. Logical pixels of the
// canvas; nothing for a mark that is hidden or far from the canvas.
void paint_gps_mark(QPainter& painter, const QRect& canvas, maps::Canvas& map, const instruments::Gps_mark& mark);

}  // namespace ui
