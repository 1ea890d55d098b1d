// What the emulators' programs share: the line that they make, and their end.
#pragma once

#include <atomic>
#include <functional>
#include <string>

#include "emulator/pseudo_terminal.h"

namespace emulator {

// Speaks over the line until done, or until the flag is set; false when it could not.
using Speaking = std::function<bool(Pseudo_terminal& line, const std::atomic<bool>& stop)>;

// Plugs a line in behind the link, prints its device's path, and speaks until the program is told to end by a signal.
// The program's exit status: 1 when there is no line, or speaking failed.
int speak_at(const std::string& link, const Speaking& speak);

}  // namespace emulator
