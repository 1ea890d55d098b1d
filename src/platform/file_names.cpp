#include "platform/file_names.h"

#include <algorithm>

#include "platform/disk_io.h"
#include "platform/text_case.h"

namespace platform {
namespace {

namespace fs = std::filesystem;
using std::chrono::steady_clock;

constexpr std::size_t longest_path = 4096;  // no machine has longer ones
constexpr std::size_t most_listings = 64;
constexpr auto longest_use = std::chrono::seconds(1);
// File systems stamp a change with a clock of some milliseconds' steps: a listing made this soon after a change may
// lack the next one.
constexpr std::int64_t stamp_step = 50'000'000;

std::int64_t nanoseconds_now() {
  return std::chrono::duration_cast<std::chrono::nanoseconds>(std::chrono::system_clock::now().time_since_epoch())
      .count();
}

Folder_listing list_folder(const fs::path& folder, std::int64_t folder_changed) {
  Folder_listing listing;
  listing.folder_changed = folder_changed;
  listing.made = steady_clock::now();
  listing.settled = nanoseconds_now() - folder_changed > stamp_step;
  for (const std::string& name : names_in(folder)) {
    const auto [place, is_new] = listing.names.try_emplace(fold_case(name), name);
    if (!is_new) place->second = std::min(place->second, name);
  }
  return listing;
}

const Folder_listing& listing_of(Folder_listings& listings, const fs::path& folder) {
  const std::int64_t changed = facts_of(folder).changed_ns;
  const std::string key = folder.string();
  const auto known = listings.folders.find(key);
  if (known != listings.folders.end()) {
    const Folder_listing& listing = known->second;
    if (listing.settled && listing.folder_changed == changed && steady_clock::now() - listing.made < longest_use)
      return listing;
  }
  if (listings.folders.size() >= most_listings) listings.folders.clear();
  return listings.folders[key] = list_folder(folder, changed);
}

bool exists_as_written(const fs::path& path) {
  std::error_code ignored;
  return fs::symlink_status(path, ignored).type() > fs::file_type::not_found;
}

fs::path find_from(Folder_listings& listings, const fs::path& path) {
  const fs::path parent = path.parent_path();
  if (exists_as_written(path) || !path.has_filename() || parent == path) return path;
  const fs::path folder = parent.empty() ? fs::path(".") : find_from(listings, parent);
  const Folder_listing& listing = listing_of(listings, folder);
  const auto found = listing.names.find(fold_case(path_text(path.filename())));
  if (found == listing.names.end()) return parent.empty() ? path : folder / path.filename();
  return parent.empty() ? machine_path(found->second) : folder / machine_path(found->second);
}

}  // namespace

fs::path find_path(Folder_listings& listings, std::string_view path) {
  fs::path written = machine_path(path);
  if (machine_folds_case || written.empty() || path.size() > longest_path || exists_as_written(written)) return written;
  const std::lock_guard lock(listings.mutex);
  return find_from(listings, written);
}

}  // namespace platform
