// Runs make_sample, the tool that lies beside an installed program, in a window that shows how far it is.
#pragma once

#include <string>

#include "core/session/first_start.h"
#include "platform/prompts.h"

namespace ui {

// Makes a sample with `tool` in a temporary folder, hands that to `take` and removes it. The window's button stops the
// tool. A message where the tool can't be started or fails.
session::Sample_making make_sample(const std::string& tool, bool japanese, platform::Prompts& prompts,
                                   const session::Take_sample& take);

}  // namespace ui
