// Zoom and pan of the map canvas, and the two scroll bars that go with them.
//
// A bar's value is no position of the view by itself: a zoom sets it to a fifth of the offset, and a change of the bar
// moves the view by the difference, twip for twip. So its ends are worked out anew from where bar and view stand.
#pragma once

#include "drawing/surface.h"
#include "maps/canvas.h"

namespace maps {

inline constexpr double zoom_step = 1.2;

struct Scroll_bar {
  int value = 0;
  int last = 0;  // the value that the view was moved for
  int minimum = 0, maximum = 0;
};

// HScroll1 and VScroll1.
struct Scroll_bars {
  Scroll_bar horizontal, vertical;
};

// Zoom in and out by 1.2 about the top-left of the canvas: scale, label scale and offsets. Then, for each offset, below
// 0 the bar takes minus a fifth of it, otherwise the offset becomes 0. The bars so set don't move the view. Past
// 100,000 times the arrival scale either way nothing happens.
void Command16(Canvas& canvas, Scroll_bars& bars);
void Command17(Canvas& canvas, Scroll_bars& bars);

// Reset: the scale to canvas_scale0, zoom_count to 1, label_scale to `label_size` (the value of Text1), offsets and
// bars to 0, as the selecting of the sheet sets them.
void Command18(Canvas& canvas, Scroll_bars& bars, double label_size);

// One zoom step that keeps the place under the mouse (twips) where it is, as far as no offset comes above 0.
void zoom_in_at(Canvas& canvas, Scroll_bars& bars, double mouse_x, double mouse_y);
void zoom_out_at(Canvas& canvas, Scroll_bars& bars, double mouse_x, double mouse_y);

// Zoom to a rectangle in twips: its width fills Picture1 and its corner comes to the top-left; the corner is kept out
// of the margin. An offset at or below 0 puts its bar to minus the offset. False, with nothing changed, for a rectangle
// without a width or a canvas without one.
bool zoom_to_rectangle(Canvas& canvas, Scroll_bars& bars, const drawing::Rect& twips);

// The change event of a bar: moves the offset by the difference where the pan flag is set and a sheet is shown, and
// keeps the value for the next change. True when the view was moved and has to be drawn again.
bool scroll_changed(Scroll_bar& bar, double& view, int new_value, bool pan_flag, bool sheet_shown);

// The least drag in twips that is a pan; a drag of exactly so much is none.
inline constexpr double drag_threshold = 100;

// Release of the left button after a drag by (dx, dy) twips: the bars move against it by a fifth, kept between their
// ends, and the view with them. False, with nothing changed, where neither exceeds the threshold.
bool drag_pan(Canvas& canvas, Scroll_bars& bars, double dx, double dy);

// The same without a threshold and one to one: the picture follows the hand. True when the view was moved.
bool pan_by(Canvas& canvas, Scroll_bars& bars, double dx, double dy);

// Sets the ends of both bars so that they reach the ends of a mosaic of columns x rows sheets with its margin; a canvas
// larger than the mosaic can't be scrolled. A value outside the ends widens them. To be called after each change of
// scale, sheet or window size, before the toolkit's bars are set.
void scroll_range(Canvas& canvas, Scroll_bars& bars, int columns, int rows);

}  // namespace maps
