#include "ui/thumbnails.h"

#include <QBuffer>
#include <QImageReader>
#include <QTimer>
#include <QTransform>
#include <utility>

#include "observations/exif_orientation.h"
#include "platform/content.h"
#include "platform/pictures.h"
#include "platform/qt/picture_bytes.h"

namespace ui {

namespace {

constexpr int most_in_work = 2;

QSize measure_of(const QImageReader& reader, const std::string& bytes) {
  if (const auto measure = platform::bmp_measure(bytes)) return {measure->width, measure->height};
  return reader.size();
}

}  // namespace

QImage thumbnail_of(const std::string& bytes, int quarter_turns, int longest) {
  if (!platform::is_whole_picture(bytes)) return {};
  QByteArray view = QByteArray::fromRawData(bytes.data(), static_cast<qsizetype>(bytes.size()));
  QBuffer buffer(&view);
  buffer.open(QIODevice::ReadOnly);
  QImageReader reader(&buffer);
  reader.setDecideFormatFromContent(true);
  const QSize size = measure_of(reader, bytes);
  if (size.isEmpty() || 4.0 * size.width() * size.height() > double(platform::largest_picture_bytes)) return {};
  // A reader that can decode at a smaller scale does; the others scale what they have decoded.
  if (size.width() > longest || size.height() > longest)
    reader.setScaledSize(size.scaled(longest, longest, Qt::KeepAspectRatio).expandedTo(QSize(1, 1)));
  const QImage image = reader.read();
  const int turns = quarter_turns == as_the_camera_tells ? observations::exif_quarter_turns(bytes) : quarter_turns;
  return turns == 0 || image.isNull() ? image : image.transformed(QTransform().rotate(90.0 * turns));
}

Thumbnails::Thumbnails(platform::Files& files, QObject* parent)
    : QObject(parent), files_(files), timer_(new QTimer(this)) {
  pool_.setMaxThreadCount(most_in_work);
  timer_->setInterval(0);
  timer_->setSingleShot(true);
  connect(timer_, &QTimer::timeout, this, &Thumbnails::step);
}

Thumbnails::~Thumbnails() {
  pool_.clear();
  pool_.waitForDone();
}

int Thumbnails::ask(const std::string& path, int quarter_turns, int longest, bool urgent) {
  Wish wish{++last_ticket_, path, quarter_turns, longest};
  if (urgent)
    wishes_.push_front(std::move(wish));
  else
    wishes_.push_back(std::move(wish));
  timer_->start();
  return last_ticket_;
}

void Thumbnails::forget(const std::function<bool(int ticket)>& unwanted) {
  std::erase_if(wishes_, [&](const Wish& wish) { return unwanted(wish.ticket); });
}

void Thumbnails::step() {
  if (wishes_.empty() || in_work_ >= most_in_work) return;
  const Wish wish = std::move(wishes_.front());
  wishes_.pop_front();
  ++in_work_;
  pool_.start([this, wish, bytes = platform::content_or_nothing(files_, wish.path)] {
    const QImage image = thumbnail_of(bytes, wish.quarter_turns, wish.longest);
    QMetaObject::invokeMethod(
        this, [this, ticket = wish.ticket, image] { made(ticket, image); }, Qt::QueuedConnection);
  });
  timer_->start();
}

void Thumbnails::made(int ticket, const QImage& image) {
  --in_work_;
  timer_->start();
  emit ready(ticket, image);
}

}  // namespace ui
