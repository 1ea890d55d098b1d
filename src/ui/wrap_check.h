// A check box whose caption breaks into lines where the box is too narrow for it.
#pragma once

#include <QCheckBox>

namespace ui {

class Wrap_check : public QCheckBox {
  Q_OBJECT

 public:
  explicit Wrap_check(QWidget* parent = nullptr);
  QSize sizeHint() const override;
  QSize minimumSizeHint() const override;
  bool hasHeightForWidth() const override { return true; }
  int heightForWidth(int width) const override;

 protected:
  void paintEvent(QPaintEvent* event) override;
  bool hitButton(const QPoint& at) const override { return rect().contains(at); }

 private:
  int text_left() const;
};

}  // namespace ui
