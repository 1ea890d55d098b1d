// The choice between the two texts of a caption.
#pragma once

#include <QString>

namespace ui {

// A value of it is called like a function: it gives the text of the language that it was made for.
struct Either {
  bool japanese;
  QString operator()(const char* in_japanese, const char* in_english) const {
    return QString::fromUtf8(japanese ? in_japanese : in_english);
  }
};

}  // namespace ui
