// One running program at a time in a folder. The machine itself gives the lock back when the program ends, however it
// ends.
#pragma once

#include <cstdint>
#include <string>

namespace platform {

enum class Lock_state {
  held,
  taken,      // by another running program, or by another lock of this one
  impossible  // the lock file can't be opened
};

struct Folder_lock {
  // Takes the lock of `file`, which is made when it is missing and stays when the lock is given back.
  explicit Folder_lock(const std::string& file);
  ~Folder_lock();
  Folder_lock(const Folder_lock&) = delete;
  Folder_lock& operator=(const Folder_lock&) = delete;

  Lock_state state = Lock_state::impossible;

 private:
  std::intptr_t handle_ = -1;
};

}  // namespace platform
