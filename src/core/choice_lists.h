// The fixed choices of the main window's and the basic settings' list boxes.
#pragma once

#include <span>
#include <string_view>

namespace core {

using Choices = std::span<const char* const>;

Choices target_kinds(std::string_view language);  // Combo7
Choices mark_shapes(std::string_view language);   // Combo1; entry 10 is the enclosure, 11 the line, 12 the word
Choices mark_sizes();                             // Combo3, "1" to "10"
Choices intervals();                              // Combo8: contour or GPS interval
Choices com_ports();                              // Combo4, "01" to "10"
Choices port_speeds();                            // Combo5

inline constexpr const char* mark_size_default = "2";
inline constexpr const char* interval_default = "1.0";

}  // namespace core
