// Fonts with Japanese glyphs, whatever the machine has.
#pragma once

namespace ui {

// Sets the application's font and the substitutes of the fonts that the map asks for.
void use_fonts_with_japanese();

}  // namespace ui
