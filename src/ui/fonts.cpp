#include "ui/fonts.h"

#include <QApplication>
#include <QFontDatabase>

namespace ui {

namespace {

// In the order of preference; the machine's own interface font stays in front for the letters that it has.
constexpr const char* interface_fonts[] = {"Yu Gothic UI", "Noto Sans CJK JP", "Noto Sans JP", "IPAPGothic",
                                           "IPAexGothic",  "TakaoPGothic",     "VL PGothic"};
constexpr const char* map_fonts[] = {"IPAGothic",   "Noto Sans CJK JP", "Noto Sans JP",
                                     "IPAexGothic", "TakaoGothic",      "VL Gothic"};

QStringList present(const char* const* begin, const char* const* end) {
  QStringList found;
  for (; begin != end; ++begin)
    if (QFontDatabase::hasFamily(*begin)) found.append(*begin);
  return found;
}

}  // namespace

void use_fonts_with_japanese() {
  QFont font = QApplication::font();
  QStringList families = font.families();
  families += present(std::begin(interface_fonts), std::end(interface_fonts));
  font.setFamilies(families);
  QApplication::setFont(font);
  // The map's texts ask for a font that only some machines have; its usual substitute has no Japanese glyphs.
  const QStringList substitutes = present(std::begin(map_fonts), std::end(map_fonts));
  for (const char* name : {"MS Gothic", "ＭＳ ゴシック"})
    if (!QFontDatabase::hasFamily(name)) QFont::insertSubstitutions(name, substitutes);
}

}  // namespace ui
