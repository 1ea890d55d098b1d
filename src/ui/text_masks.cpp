#include "ui/text_masks.h"

#include <QFontMetricsF>
#include <QImage>
#include <QPainter>
#include <algorithm>
#include <cmath>

#include "ui/toolkit_text.h"

namespace ui {
namespace {

constexpr std::size_t fonts_kept = 6;
constexpr std::size_t word_bytes_kept = 4'000'000;  // of one font
constexpr const char* composed_figures = "0123456789.-";

bool is_figure(char c) {
  return (c >= '0' && c <= '9') || c == '.' || c == '-';
}

// Whether the font sets figures at the sum of their advances, so that a number may be put together from them.
void measure_figures(Font_masks& masks) {
  const QFontMetricsF metrics(masks.font);
  double sum = 0;
  for (const char* c = composed_figures; *c != 0; ++c) {
    masks.advance[static_cast<std::size_t>(*c)] = metrics.horizontalAdvance(QChar(*c));
    sum += masks.advance[static_cast<std::size_t>(*c)];
  }
  masks.composes = std::abs(metrics.horizontalAdvance(QString(composed_figures)) - sum) < 0.01;
}

// The part of a picture of black on white that isn't white.
drawing::Mask cropped(const QImage& image, int origin) {
  int left = image.width(), right = -1, top = image.height(), bottom = -1;
  const auto alpha_at = [&](int x, int y) { return 255 - qGreen(image.pixel(x, y)); };
  for (int y = 0; y < image.height(); ++y)
    for (int x = 0; x < image.width(); ++x) {
      if (alpha_at(x, y) == 0) continue;
      left = std::min(left, x), right = std::max(right, x);
      top = std::min(top, y), bottom = std::max(bottom, y);
    }
  drawing::Mask mask;
  if (right < left) return mask;
  mask = {left - origin, top - origin, right - left + 1, bottom - top + 1, {}};
  for (int y = top; y <= bottom; ++y)
    for (int x = left; x <= right; ++x) mask.alpha.push_back(static_cast<std::uint8_t>(alpha_at(x, y)));
  return mask;
}

// The mask of a text whose base line begins `phase` quarters of a pixel to the right of a whole pixel.
drawing::Mask made_mask(const Font_masks& masks, const QString& text, int phase) {
  const int origin = 2 * masks.pixels;
  const int width = static_cast<int>(std::ceil(QFontMetricsF(masks.font).horizontalAdvance(text)));
  QImage image(width + 2 * origin, 2 * origin, QImage::Format_RGB32);
  image.fill(Qt::white);
  QPainter painter(&image);
  painter.setFont(masks.font);
  painter.setPen(Qt::black);
  painter.drawText(QPointF(origin + phase / static_cast<double>(mask_phases), origin), text);
  painter.end();
  return cropped(image, origin);
}

const drawing::Mask& word_mask(Font_masks& masks, const std::string& text, int phase) {
  if (masks.word_bytes > word_bytes_kept) {
    masks.words.clear();
    masks.word_bytes = 0;
  }
  std::optional<drawing::Mask>& mask = masks.words[text][static_cast<std::size_t>(phase)];
  if (!mask) {
    mask = made_mask(masks, to_toolkit(text), phase);
    masks.word_bytes += mask->alpha.size() + text.size() + sizeof(Phased_mask);
  }
  return *mask;
}

const drawing::Mask& figure_mask(Font_masks& masks, char figure, int phase) {
  std::optional<drawing::Mask>& mask = masks.figures[static_cast<std::size_t>(figure)][static_cast<std::size_t>(phase)];
  if (!mask) mask = made_mask(masks, QChar(figure), phase);
  return *mask;
}

struct Pixel_place {
  int whole = 0, phase = 0;
};

// The toolkit takes a place that lies 1/64 short of the next quarter for that.
Pixel_place place_of(double x) {
  const double quarters = std::floor((x + 1.0 / 64) * mask_phases);
  const double whole = std::floor(quarters / mask_phases);
  return {static_cast<int>(whole), static_cast<int>(quarters - whole * mask_phases)};
}

bool is_composed(const Font_masks& masks, const std::string& text) {
  return masks.composes && std::all_of(text.begin(), text.end(), is_figure);
}

}  // namespace

QFont map_font(const drawing::Font& font, int pixels) {
  QFont used(to_toolkit(font.name));
  used.setPixelSize(std::max(1, pixels));
  used.setBold(font.bold);
  used.setStyleStrategy(QFont::NoSubpixelAntialias);
  return used;
}

Font_masks& masks_of(Text_masks& masks, const drawing::Font& font, int pixels) {
  auto& fonts = masks.fonts;
  const auto found = std::find_if(fonts.begin(), fonts.end(), [&](const std::unique_ptr<Font_masks>& made) {
    return made->pixels == pixels && made->bold == font.bold && made->name == font.name;
  });
  if (found == fonts.begin() && !fonts.empty()) return *fonts.front();
  if (found != fonts.end()) {
    std::rotate(fonts.begin(), found, found + 1);
    return *fonts.front();
  }
  auto made = std::make_unique<Font_masks>();
  made->name = font.name;
  made->pixels = pixels;
  made->bold = font.bold;
  made->font = map_font(font, pixels);
  made->ascent = QFontMetricsF(made->font).ascent();
  measure_figures(*made);
  if (fonts.size() == fonts_kept) fonts.pop_back();
  fonts.insert(fonts.begin(), std::move(made));
  return *fonts.front();
}

void text_out(Font_masks& masks, QPointF at, const std::string& text, drawing::Colour colour,
              const drawing::Raster& raster, const drawing::Pixel_range& clip) {
  const int reach = 2 * masks.pixels;
  if (!(at.y() > clip.y0 - reach && at.y() < clip.y1 + reach && at.x() < clip.x1 + reach && at.x() > -1e6)) return;
  const int base_line = static_cast<int>(std::floor(at.y() + masks.ascent + 0.5));
  if (!is_composed(masks, text)) {
    const Pixel_place place = place_of(at.x());
    mask_blend(word_mask(masks, text, place.phase), place.whole, base_line, raster, clip, colour);
    return;
  }
  double x = at.x();
  for (const char figure : text) {
    const Pixel_place place = place_of(x);
    mask_blend(figure_mask(masks, figure, place.phase), place.whole, base_line, raster, clip, colour);
    x += masks.advance[static_cast<std::size_t>(figure)];
  }
}

}  // namespace ui
