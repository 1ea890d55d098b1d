// Captions and hints of the basic settings dialog.
#pragma once

#include <QString>

#include <span>

namespace ui {

// A widget's own texts, where the program's caption tables don't have it.
struct Frame2_caption {
  const char* name;
  const char* japanese;
  const char* english;
};

std::span<const Frame2_caption> frame2_captions();  // texts of labels, buttons and titles
std::span<const Frame2_caption> frame2_hints();     // tool tips of the entry boxes and buttons

// The widgets of the dialog whose captions the program's tables hold.
std::span<const char* const> frame2_table_captions();

}  // namespace ui
