#include "platform/qt/qt_pictures.h"

#include <QBuffer>
#include <QImage>
#include <QImageReader>
#include <QTransform>
#include <algorithm>
#include <cstring>

#include "platform/qt/picture_bytes.h"

namespace platform {

namespace {

QImage::Format format_of(int depth) {
  if (depth == 1) return QImage::Format_Mono;
  return depth == 8 ? QImage::Format_Indexed8 : QImage::Format_RGB32;
}

// The bytes that a picture of this measure takes once it is decoded. The reader tells the depth only for some formats;
// what it doesn't tell counts as 32 bits, and so does what is brought to 32 bits. Of a bitmap beyond 16384 x 16384
// pixels, which it refuses, it tells none: that is too large at 32 bits. A double, since what a broken header tells may
// be more than any whole number holds.
double decoded_bytes(const QImageReader& reader, QSize size) {
  const std::int64_t told = QImage(1, 1, reader.imageFormat()).depth();
  const std::int64_t bits = told == 1 || told == 8 ? told : std::max<std::int64_t>(told, 32);
  return static_cast<double>(size.width()) * size.height() * static_cast<double>(bits) / 8;
}

// The reader gives no measure for a bitmap whose rows run from the top.
QSize measure_of(const QImageReader& reader, std::string_view bytes) {
  if (const auto measure = bmp_measure(bytes)) return {measure->width, measure->height};
  return reader.size();
}

const char* format_name(Picture_format format) {
  if (format == Picture_format::bmp) return "bmp";
  return format == Picture_format::jpeg ? "jpeg" : "png";
}

}  // namespace

QImage image_over(const Picture& picture) {
  if (picture.empty()) return {};
  QImage image(picture.bits.data(), picture.width, picture.height, picture.stride, format_of(picture.depth));
  if (picture.depth != 32) {
    QList<QRgb> colours;
    colours.reserve(static_cast<qsizetype>(picture.palette.size()));
    for (const Colour colour : picture.palette) colours.append(0xff000000u | colour);
    image.setColorTable(colours);
  }
  return image;
}

Picture picture_of(const QImage& source) {
  QImage image = source;
  int depth = 32;
  if (image.format() == QImage::Format_Mono || image.format() == QImage::Format_Indexed8) {
    depth = image.depth();
  } else if (image.format() == QImage::Format_MonoLSB) {
    image = image.convertToFormat(QImage::Format_Mono);
    depth = 1;
  } else if (image.format() == QImage::Format_Grayscale8) {
    image = image.convertToFormat(QImage::Format_Indexed8);
    depth = 8;
  } else if (image.format() != QImage::Format_RGB32) {
    image = image.convertToFormat(QImage::Format_RGB32);
  }
  Picture picture = make_picture(image.width(), image.height(), depth);
  if (picture.empty()) return picture;
  for (const QRgb colour : image.colorTable()) picture.palette.push_back(colour & 0xffffffu);
  // A pixel may name a colour that the file's palette doesn't hold; it is black.
  if (depth != 32) picture.palette.resize(depth == 1 ? 2 : 256);
  for (int y = 0; y < image.height(); ++y)
    std::memcpy(picture.row(y), image.constScanLine(y),
                static_cast<std::size_t>(std::min<qsizetype>(picture.stride, image.bytesPerLine())));
  return picture;
}

// The reader's own limit would refuse what largest_picture_bytes allows; decode tests the size itself.
Qt_pictures::Qt_pictures() {
  QImageReader::setAllocationLimit(0);
}

Decoded_picture Qt_pictures::decode(std::string_view bytes) {
  QByteArray view = QByteArray::fromRawData(bytes.data(), static_cast<qsizetype>(bytes.size()));
  QBuffer buffer(&view);
  buffer.open(QIODevice::ReadOnly);
  QImageReader reader(&buffer);
  reader.setDecideFormatFromContent(true);
  const QByteArray format = reader.format();
  if (format != "bmp" && format != "jpeg" && format != "png") return {{}, Picture_fault::unreadable};
  const QSize size = measure_of(reader, bytes);
  if (size.isEmpty()) return {{}, Picture_fault::unreadable};
  if (decoded_bytes(reader, size) > static_cast<double>(largest_picture_bytes)) return {{}, Picture_fault::too_large};
  if (!is_whole_picture(bytes)) return {{}, Picture_fault::unreadable};
  // Run lengths may leave pixels out: they have index 0, not what lay in memory.
  QImage image;
  if (format == "bmp" && reader.imageFormat() == QImage::Format_Indexed8) {
    image = QImage(size, QImage::Format_Indexed8);
    image.fill(0);
  }
  if (!reader.read(&image) || image.isNull()) return {{}, Picture_fault::unreadable};
  return {picture_of(image), Picture_fault::none};
}

std::string Qt_pictures::encode(const Picture& picture, Picture_format format, int quality) {
  QByteArray bytes;
  QBuffer buffer(&bytes);
  buffer.open(QIODevice::WriteOnly);
  const int used_quality = format == Picture_format::jpeg ? quality : -1;
  if (!image_over(picture).save(&buffer, format_name(format), used_quality)) return {};
  return bytes.toStdString();
}

Picture Qt_pictures::scale(const Picture& picture, int width, int height) {
  if (picture.empty() || width <= 0 || height <= 0) return {};
  return picture_of(image_over(picture)
                        .convertToFormat(QImage::Format_RGB32)
                        .scaled(width, height, Qt::IgnoreAspectRatio, Qt::SmoothTransformation));
}

Picture Qt_pictures::rotate_quarter(const Picture& picture, int quarter_turns_clockwise) {
  if (picture.empty()) return {};
  return picture_of(image_over(picture).transformed(QTransform().rotate(90.0 * (quarter_turns_clockwise % 4))));
}

}  // namespace platform
