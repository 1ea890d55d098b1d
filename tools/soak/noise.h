// A random event for whatever is in front.
#pragma once

#include "soak/run.h"

namespace soak {

// Answers, fills, presses, drags, turns, types: one thing, chosen by weights.
void noise(Run& run);
// The same with what is given in front.
void noise_in(Run& run, QWidget* window);

// Presses an entry of the menu that is up; one of that name where a name is given. False when there is none to press.
bool press_entry(Run& run, class QMenu* menu, const char* name = nullptr);
// Leaves a popup, message or dialog: Esc, and more than that for one that stays.
void leave(Run& run, QWidget* window, int attempts);

}  // namespace soak
