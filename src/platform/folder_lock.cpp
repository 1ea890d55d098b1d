#include "platform/folder_lock.h"

#include "platform/disk_io.h"

#ifdef _WIN32
#define WIN32_LEAN_AND_MEAN
#include <windows.h>
#else
#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

#include <cerrno>
#endif

namespace platform {

#ifdef _WIN32

// Opened without sharing: a second opening is refused.
Folder_lock::Folder_lock(const std::string& file) {
  const HANDLE handle = CreateFileW(machine_path(file).c_str(), GENERIC_READ | GENERIC_WRITE, 0, nullptr, OPEN_ALWAYS,
                                    FILE_ATTRIBUTE_NORMAL, nullptr);
  if (handle == INVALID_HANDLE_VALUE) {
    if (GetLastError() == ERROR_SHARING_VIOLATION) state = Lock_state::taken;
    return;
  }
  handle_ = reinterpret_cast<std::intptr_t>(handle);
  state = Lock_state::held;
}

Folder_lock::~Folder_lock() {
  if (handle_ != -1) CloseHandle(reinterpret_cast<HANDLE>(handle_));
}

#else

Folder_lock::Folder_lock(const std::string& file) {
  const int handle = open(machine_path(file).c_str(), O_RDWR | O_CREAT | O_CLOEXEC | O_NOFOLLOW, 0666);
  if (handle < 0) return;
  if (flock(handle, LOCK_EX | LOCK_NB) == 0) {
    handle_ = handle;
    state = Lock_state::held;
    return;
  }
  if (errno == EWOULDBLOCK) state = Lock_state::taken;
  close(handle);
}

Folder_lock::~Folder_lock() {
  if (handle_ != -1) close(static_cast<int>(handle_));
}

#endif

}  // namespace platform
