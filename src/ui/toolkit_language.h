// The language of the toolkit's own texts: those of the folder and colour pickers, and of the menus of text boxes.
#pragma once

namespace ui {

// From now on they are Japanese or English; windows that are open take it over by themselves. Without the toolkit's
// translation on the machine they stay English.
void use_toolkit_language(bool japanese);

}  // namespace ui
