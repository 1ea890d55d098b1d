// Where this program's folders lie: a user's own, and those that came with the executable.
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

// For what the user keeps: $XDG_DATA_HOME/terranote, or ~/.local/share/terranote where that is not set to an absolute
// path; on Windows %LOCALAPPDATA%\Terranote\program. Empty where the user has no such folder. It need not exist yet.
std::string data_folder(const std::function<std::string(const char*)>& variable);

struct Program_place {
  std::string folder;     // the program folder; empty: the program is installed, and the user has no folder for data
  std::string templates;  // what an installed program gives to a user's new program folder; empty: it is not installed
  std::string helpers;    // where fill_sheet.py and make_sample lie
};

// The program folder is the executable's own, as in a checkout's build or a copied program folder. Where the
// executable's folder has a folder "../share/terranote/program" beside it, the program is installed for everybody: then
// the program folder is data_folder(), and the helpers lie in "../libexec/terranote".
Program_place program_place(const std::string& executable_folder);
Program_place program_place(const std::string& executable_folder,
                            const std::function<std::string(const char*)>& variable);

}  // namespace platform
