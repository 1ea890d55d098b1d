// The tools' icons, drawn at any size so that they are sharp at every scale factor.
#pragma once

#include <QIcon>

namespace ui {

enum class Icon { program, zoom_in, zoom_out, zoom_reset, zoom_box, section, save_range, gps };

QIcon make_icon(Icon icon);

}  // namespace ui
