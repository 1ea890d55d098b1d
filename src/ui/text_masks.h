// The map's texts as masks of coverage, kept from one repaint to the next. The toolkit makes each mask once; after that
// a number of three digits is three small blends.
#pragma once

#include <QFont>
#include <QPointF>
#include <array>
#include <memory>
#include <optional>
#include <string>
#include <unordered_map>
#include <vector>

#include "drawing/coverage.h"
#include "drawing/surface.h"

namespace ui {

// Texts of more pixels than these are painted by the toolkit: large masks would fill the memory.
inline constexpr int mask_height_limit = 64;

// So are texts of more bytes.
inline constexpr std::size_t mask_text_limit = 400;

// The toolkit sets glyphs at quarters of a pixel; a text has one mask for each.
inline constexpr int mask_phases = 4;

using Phased_mask = std::array<std::optional<drawing::Mask>, mask_phases>;

struct Font_masks {
  std::string name;
  int pixels = 0;
  bool bold = false;
  QFont font;
  double ascent = 0;
  bool composes = false;  // figures stand side by side by their advances
  std::array<double, 128> advance{};
  std::array<Phased_mask, 128> figures;
  std::unordered_map<std::string, Phased_mask> words;
  std::size_t word_bytes = 0;
};

struct Text_masks {
  std::vector<std::unique_ptr<Font_masks>> fonts;  // the last used in front
};

// The font's masks, made at its first use. The sizes that were used longest ago are given up.
Font_masks& masks_of(Text_masks& masks, const drawing::Font& font, int pixels);

// The toolkit's font, smoothed in grey at every place so that painted texts and masks look alike.
QFont map_font(const drawing::Font& font, int pixels);

// Draws a text whose top-left corner stands at `at` (device pixels).
void text_out(Font_masks& masks, QPointF at, const std::string& text, drawing::Colour colour,
              const drawing::Raster& raster, const drawing::Pixel_range& clip);

}  // namespace ui
