// A small white field that shows a piece of the map's drawing, painted as the map paints it.
#pragma once

#include <QWidget>

#include <functional>

#include "drawing/surface.h"
#include "observations/entry_boxes.h"

namespace ui {

class Mark_preview : public QWidget {
  Q_OBJECT

 public:
  // Draws around a centre, in canvas units.
  using Paint = std::function<void(drawing::Surface&, drawing::Point)>;

  // `side`: of the square field, logical pixels.
  explicit Mark_preview(int side, QWidget* parent = nullptr);
  void show_painted(Paint paint);

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  Paint paint_;
};

// The mark of the boxes with its size and colour; for a line or an enclosure a sample of it in the line's colour, for
// a word the text.
void mark_sample_out(drawing::Surface& surface, drawing::Point at, const observations::Entry_boxes& boxes);

}  // namespace ui
