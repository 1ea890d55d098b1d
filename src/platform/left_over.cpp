#include "platform/left_over.h"

#ifdef _WIN32
#include <windows.h>
#else
#include <signal.h>

#include <cerrno>
#endif

#include <charconv>
#include <string>
#include <system_error>

#include "platform/disk_io.h"

namespace platform {

namespace {

constexpr std::string_view prefix = ".terranote-", suffix = ".tmp";

#ifdef _WIN32
bool is_running(unsigned long process) {
  const HANDLE handle = OpenProcess(SYNCHRONIZE, FALSE, process);
  if (!handle) return GetLastError() == ERROR_ACCESS_DENIED;
  const bool running = WaitForSingleObject(handle, 0) == WAIT_TIMEOUT;
  CloseHandle(handle);
  return running;
}
#else
bool is_running(unsigned long process) {
  return kill(static_cast<pid_t>(process), 0) == 0 || errno != ESRCH;
}
#endif

}  // namespace

// .terranote-4711-3.tmp
unsigned long process_of_temporary(std::string_view name) {
  if (!name.starts_with(prefix) || !name.ends_with(suffix) || name.size() < prefix.size() + suffix.size()) return 0;
  const char* const end = name.data() + name.size() - suffix.size();
  int process = 0, count = 0;
  const auto first = std::from_chars(name.data() + prefix.size(), end, process);
  if (first.ec != std::errc() || process <= 0 || first.ptr == end || *first.ptr != '-') return 0;
  const auto second = std::from_chars(first.ptr + 1, end, count);
  if (second.ec != std::errc() || second.ptr != end || count <= 0) return 0;
  return static_cast<unsigned long>(process);
}

void remove_left_over(const std::filesystem::path& folder) {
  for (const std::string& name : names_in(folder)) {
    const unsigned long process = process_of_temporary(name);
    if (process == 0 || is_running(process)) continue;
    std::error_code ignored;
    std::filesystem::remove(folder / machine_path(name), ignored);
  }
}

}  // namespace platform
