// Where an event enters a dialog: a failure that ended the operation becomes one sentence for the user, and goes no
// further into the toolkit.
#pragma once

#include <functional>

#include "platform/prompts.h"

namespace ui {

// Runs the procedure. False, with a message, when it ended in a failure.
bool guarded(platform::Prompts& prompts, const std::function<void()>& procedure);

}  // namespace ui
