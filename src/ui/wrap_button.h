// A push button whose caption breaks into lines where the button is too narrow for it.
#pragma once

#include <QPushButton>

namespace ui {

class Wrap_button : public QPushButton {
 public:
  explicit Wrap_button(QWidget* parent = nullptr);
  QSize sizeHint() const override;
  QSize minimumSizeHint() const override;
  bool hasHeightForWidth() const override { return true; }
  int heightForWidth(int width) const override;

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  QSize text_size(int width) const;
};

}  // namespace ui
