// Takes the steps of a run while the program's own event loops go round, those of its dialogs too, and looks after what
// must hold.
#pragma once

#include "soak/run.h"

namespace soak {

// Runs the program again and again on the run's place until the steps or minutes are over: each time on a new session,
// as another start of it. Then once more, only to be looked at.
void drive(Run& run);

}  // namespace soak
