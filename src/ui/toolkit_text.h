// Between the texts of the logic (UTF-8) and the toolkit's.
#pragma once

#include <QString>
#include <string>
#include <string_view>

namespace ui {

QString to_toolkit(std::string_view text);
std::string from_toolkit(const QString& text);

}  // namespace ui
