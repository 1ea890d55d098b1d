// What the two Shapefile dialogs share: the choice of the second set with its hint, and the row of buttons.
#pragma once

class QCheckBox;
class QPushButton;
class QVBoxLayout;

namespace ui {

// `Check1`, unticked, and below it the hint, `hint`, why one may want to tick it.
QCheckBox* add_second_set(QVBoxLayout* column, bool japanese);

struct Shape_buttons {
  QPushButton* ok;
  QPushButton* close;
};
// `OK`, the default button, and `close`.
Shape_buttons add_shape_buttons(QVBoxLayout* column, bool japanese);

}  // namespace ui
