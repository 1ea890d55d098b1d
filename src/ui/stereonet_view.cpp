#include "ui/stereonet_view.h"

#include <QPainter>

#include "instruments/scatter.h"
#include "ui/painter_surface.h"
#include "ui/toolkit_text.h"

namespace ui {

QImage stereonet_image(const std::vector<instruments::Measured>& measured, bool japanese, bool with_mean, QSize size,
                       double device_ratio) {
  QImage image(size * device_ratio, QImage::Format_RGB32);
  image.fill(Qt::white);
  const auto scatter = instruments::scatter_of(instruments::planes_of(measured));
  instruments::Net_texts texts = instruments::net_texts(scatter, japanese);
  if (!with_mean) texts.mean.clear();
  Painter_surface surface(image, device_ratio, {}, image.rect());
  // A canvas unit is half a logical pixel.
  stereonet_out(surface, instruments::net_in(size.width() * 2, size.height() * 2), measured, scatter, texts);
  return image;
}

Stereonet_view::Stereonet_view(QWidget* parent) : QWidget(parent) {
  setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Expanding);
}

void Stereonet_view::show_measured(std::vector<instruments::Measured> measured, bool japanese) {
  measured_ = std::move(measured);
  japanese_ = japanese;
  image_ = {};
  setAccessibleDescription(
      to_toolkit(scatter_text(instruments::scatter_of(instruments::planes_of(measured_)), japanese)));
  update();
}

void Stereonet_view::paintEvent(QPaintEvent*) {
  const double ratio = devicePixelRatioF();
  if (image_.size() != size() * ratio) image_ = stereonet_image(measured_, japanese_, false, size(), ratio);
  QPainter painter(this);
  painter.drawImage(QRectF(rect()), image_);
}

}  // namespace ui
