#include "platform/user_folders.h"

#include <cstdlib>

#include "platform/disk_io.h"
#include "platform/files.h"

namespace platform {
namespace {

#ifdef _WIN32
std::string environment(const char* name) {
  const wchar_t* value = _wgetenv(machine_path(name).c_str());
  return value ? path_text(value) : std::string();
}
#else
std::string environment(const char* name) {
  const char* value = std::getenv(name);
  return value ? value : "";
}
#endif

bool is_absolute(const std::string& path) {
  return machine_path(path).is_absolute();
}

}  // namespace

std::string state_folder() {
  return state_folder(environment);
}

#ifdef _WIN32

std::string state_folder(const std::function<std::string(const char*)>& variable) {
  const std::string local = variable("LOCALAPPDATA");
  return is_absolute(local) ? join_path(local, "Terranote") : std::string();
}

#else

std::string state_folder(const std::function<std::string(const char*)>& variable) {
  const std::string state = variable("XDG_STATE_HOME");
  if (is_absolute(state)) return join_path(state, "terranote");
  const std::string home = variable("HOME");
  return is_absolute(home) ? join_path(home, ".local\\state\\terranote") : std::string();
}

#endif

}  // namespace platform
