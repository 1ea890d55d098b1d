#include "platform/user_folders.h"

#include <cstdlib>
#include <filesystem>

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

std::string data_folder(const std::function<std::string(const char*)>& variable) {
  const std::string local = state_folder(variable);
  return local.empty() ? local : join_path(local, "program");
}

#else

namespace {

// The folder that a variable names, or the one of that name in the home folder; empty where there is neither.
std::string base_folder(const std::function<std::string(const char*)>& variable, const char* name,
                        const char* below_home) {
  const std::string named = variable(name);
  if (is_absolute(named)) return named;
  const std::string home = variable("HOME");
  return is_absolute(home) ? join_path(home, below_home) : std::string();
}

std::string own_folder(const std::string& base) {
  return base.empty() ? base : join_path(base, "terranote");
}

}  // namespace

std::string state_folder(const std::function<std::string(const char*)>& variable) {
  return own_folder(base_folder(variable, "XDG_STATE_HOME", ".local\\state"));
}

std::string data_folder(const std::function<std::string(const char*)>& variable) {
  return own_folder(base_folder(variable, "XDG_DATA_HOME", ".local\\share"));
}

#endif

Program_place program_place(const std::string& executable_folder) {
  return program_place(executable_folder, environment);
}

Program_place program_place(const std::string& executable_folder,
                            const std::function<std::string(const char*)>& variable) {
  const std::filesystem::path root = machine_path(executable_folder).parent_path();
  const std::filesystem::path templates = root / "share" / "terranote" / "program";
  if (!facts_of(templates).is_folder) return {executable_folder, {}, executable_folder};
  return {data_folder(variable), path_text(templates), path_text(root / "libexec" / "terranote")};
}

}  // namespace platform
