// The scrolling picture of the sheet dialog, `Picture1`: draws only what its window shows.
#pragma once

#include <QAbstractScrollArea>
#include <QImage>

#include <string>

#include "maps/sheet_index.h"

namespace ui {

class Sheet_grid : public QAbstractScrollArea {
  Q_OBJECT

 public:
  explicit Sheet_grid(const maps::Sheet_index& index, QWidget* parent = nullptr);

  // The sheet that is marked; scrolls so that it is seen.
  void mark(const std::string& stem);
  // What a sheet is called: its name and its stem.
  QString told(int row) const;
  // The display settings changed.
  void measure();

 signals:
  void sheet_hovered(int row);  // 0 for none
  void sheet_chosen(int row);

 protected:
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;

 private:
  int row_at(QPointF position) const;
  int marked_row() const;
  void move_mark(int rows, int columns);

  const maps::Sheet_index& index_;
  std::string marked_;
};

}  // namespace ui
