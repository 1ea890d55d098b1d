// The stereonet of the ticked rows as a widget and as a picture. The widget leaves the line of the mean to a label
// beside it.
#pragma once

#include <QImage>
#include <QWidget>

#include <vector>

#include "instruments/stereonet.h"

namespace ui {

// The net on an image of so many logical pixels, with the line of the mean or without it.
QImage stereonet_image(const std::vector<instruments::Measured>& measured, bool japanese, bool with_mean, QSize size,
                       double device_ratio);

class Stereonet_view : public QWidget {
  Q_OBJECT

 public:
  explicit Stereonet_view(QWidget* parent = nullptr);
  void show_measured(std::vector<instruments::Measured> measured, bool japanese);
  const std::vector<instruments::Measured>& measured() const { return measured_; }

  QSize sizeHint() const override { return {360, 430}; }
  QSize minimumSizeHint() const override { return {280, 310}; }

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  std::vector<instruments::Measured> measured_;
  bool japanese_ = true;
  QImage image_;  // of the size and content that are shown; null when either is another now
};

}  // namespace ui
