#include "drawing/rotated_text.h"

namespace drawing {

void LK(Surface& surface, const std::string& text, Point at, Colour colour, const Font& font, int tenths) {
  if (text.empty() || !(font.height > 0)) return;
  constexpr int full_turn = 3600;
  surface.text(at, text, font, colour, (tenths % full_turn + full_turn) % full_turn);
}

}  // namespace drawing
