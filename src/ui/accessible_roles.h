// What a screen reader takes the painted widgets for: the map and the grid of sheets are canvases, the previews, the
// stereonet and the patches of colour are graphics. Without it they would be nameless areas.
#pragma once

namespace ui {

// Once or more often before the first of these widgets is shown.
void use_accessible_roles();

}  // namespace ui
