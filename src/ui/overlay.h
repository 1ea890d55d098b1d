// What is drawn over the painted map at each repaint of the window: the section line and the rubber bands, the scale
// bar and the north arrow.
#pragma once

#include <QPainter>
#include <QRect>
#include <QString>

#include "core/session/session.h"

namespace ui {

// All in logical pixels of the canvas.
void paint_controls(QPainter& painter, const QRect& canvas, const session::Session& session);
// Of these what a saved picture has too: the section line, the scale bar and the north arrow.
void paint_fixed_controls(QPainter& painter, const QRect& canvas, const session::Session& session);
// What a person can do while no sheet is drawn.
void paint_invitation(QPainter& painter, const QRect& canvas, const QString& text);

}  // namespace ui
