// From a stored path text to the machine's path: "\" and "/" both part names, and a name is found without regard to
// case, as text_case.h folds it.
#pragma once

#include <chrono>
#include <cstdint>
#include <filesystem>
#include <map>
#include <mutex>
#include <string>
#include <string_view>
#include <unordered_map>

namespace platform {

// The names of one folder by their folded forms, as they stood at `made`.
struct Folder_listing {
  std::unordered_map<std::string, std::string> names;
  std::int64_t folder_changed = 0;  // nanoseconds since 1970, the folder's own time of change
  std::chrono::steady_clock::time_point made;
  bool settled = false;  // the folder's last change lay clearly before the listing
};

// Folders in which a name was sought and not found as it is written. A listing is used again while the folder's time
// of change is the same, and for no longer than a second.
struct Folder_listings {
  std::mutex mutex;
  std::map<std::string, Folder_listing> folders;
};

// The machine's path with the case of what exists. The path as it is written comes first; of several names that differ
// only in case the first in byte order counts. What doesn't exist stays as it is written.
std::filesystem::path find_path(Folder_listings& listings, std::string_view path);

}  // namespace platform
