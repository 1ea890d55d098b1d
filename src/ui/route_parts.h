// What the two dialogs of routes share: the list of files with its ticks, what is said while it is empty, the buttons.
#pragma once

#include <vector>

#include "core/project_settings.h"

class QDialog;
class QLabel;
class QListWidget;
class QPushButton;
class QVBoxLayout;

namespace ui {

struct Route_parts {
  QListWidget* List1;
  QLabel* told;           // shown while the folder has no such files
  QLabel* counted;        // how many are ticked
  QPushButton* Command3;  // ticks all
  QPushButton* none;      // ticks none
  QPushButton* Command1;  // OK, the default button
  QPushButton* Command2;  // closes
};

// Adds all of it below what the column has. `pattern` is the ending that the files have, "*.txt".
Route_parts add_route_parts(QVBoxLayout* column, bool japanese, const char* pattern);

// Between the list and the boxes. The list's own signals stay silent while it is filled.
void show_routes(const Route_parts& parts, const std::vector<core::File_choice>& choices, bool japanese);
std::vector<core::File_choice> routes_of(const Route_parts& parts);
// Connects what both dialogs do alike: closing, ticking all and none, counting.
void connect_routes(const Route_parts& parts, QDialog* dialog, bool japanese);

}  // namespace ui
