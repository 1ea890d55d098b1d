#include "ui/toolkit_text.h"

namespace ui {

QString to_toolkit(std::string_view text) {
  return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

std::string from_toolkit(const QString& text) {
  return text.toStdString();
}

}  // namespace ui
