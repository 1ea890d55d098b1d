// Where a user's own files of this program lie.
#pragma once

#include <functional>
#include <string>

namespace platform {

// For what the program remembers by itself: $XDG_STATE_HOME/terranote, or ~/.local/state/terranote where that is not
// set to an absolute path; on Windows %LOCALAPPDATA%\Terranote. Empty where the user has no such folder. It need not
// exist yet.
std::string state_folder();
// The same from the given variables, a text for a name, empty when it is not set.
std::string state_folder(const std::function<std::string(const char*)>& variable);

}  // namespace platform
