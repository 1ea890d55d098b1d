#include "platform/files.h"

#include <algorithm>
#include <array>
#include <filesystem>
#include <system_error>
#include <utility>

#include "platform/disk_io.h"
#include "platform/failures.h"
#include "platform/left_over.h"
#include "platform/text_case.h"

namespace platform {
namespace {

namespace fs = std::filesystem;

bool is_separator(char c) {
  return c == '\\' || c == '/';
}

// Runs `action` and makes a File_failure of its fault, as "<path> could not be <done>: <reason>".
template <typename Action>
auto guarded(const std::string& path, const char* done, Action action) {
  try {
    return action();
  } catch (const std::system_error& fault) {
    throw File_failure(path, done, fault.code().message(), cause_of(fault.code()));
  }
}

// Whether a folded name fits a folded pattern, whose "*" stands for any characters or none.
bool fits(std::string_view name, std::string_view pattern) {
  const std::size_t star = pattern.find('*');
  if (star == std::string_view::npos) return name == pattern;
  if (name.substr(0, star) != pattern.substr(0, star)) return false;
  const std::string_view rest = pattern.substr(star + 1);
  for (std::size_t at = star; at <= name.size(); ++at)
    if (fits(name.substr(at), rest)) return true;
  return false;
}

// Devices that some systems find in every folder, with any ending.
bool is_device(std::string_view name) {
  constexpr std::array<std::string_view, 6> devices{"con", "prn", "aux", "nul", "conin$", "conout$"};
  std::string stem = fold_case(name.substr(0, name.find('.')));
  stem.resize(stem.find_last_not_of(' ') + 1);
  if (std::find(devices.begin(), devices.end(), stem) != devices.end()) return true;
  if (stem.compare(0, 3, "com") != 0 && stem.compare(0, 3, "lpt") != 0) return false;
  const std::string number = stem.substr(3);
  // The small raised digits count too.
  return (number.size() == 1 && number[0] >= '0' && number[0] <= '9') || number == "\u00B9" || number == "\u00B2" ||
         number == "\u00B3";
}

}  // namespace

std::int64_t Disk_files::length(const std::string& path) {
  const File_facts facts = facts_of(find_path(listings_, path));
  return facts.is_file ? facts.size : 0;
}

std::string Disk_files::read_bytes(const std::string& path) {
  return guarded(path, "read", [&] { return read_file(find_path(listings_, path), gate_); });
}

void Disk_files::read_pieces(const std::string& path, const std::function<bool(std::string_view)>& take) {
  guarded(path, "read", [&] { read_file_pieces(find_path(listings_, path), take, gate_); });
}

void Disk_files::write_whole(const std::string& path, std::string_view bytes) {
  guarded(path, "written", [&] {
    const fs::path target = find_path(listings_, path);
    sweep_once(target.parent_path());
    replace_file(target, bytes, gate_);
  });
}

void Disk_files::append(const std::string& path, std::string_view bytes) {
  guarded(path, "written", [&] { append_file(find_path(listings_, path), bytes, gate_); });
}

void Disk_files::copy(const std::string& from, const std::string& to) {
  write_whole(to, read_bytes(from));
}

bool Disk_files::remove(const std::string& path) {
  try {
    return remove_file(find_path(listings_, path), gate_);
  } catch (const std::system_error&) {
    return false;
  }
}

bool Disk_files::make_folder(const std::string& path) {
  try {
    make_one_folder(find_path(listings_, path), gate_);
  } catch (const std::system_error&) {  // it may be there all the same
  }
  return folder_exists(path);
}

bool Disk_files::folder_exists(const std::string& path) {
  return facts_of(find_path(listings_, path)).is_folder;
}

std::vector<std::string> Disk_files::list(const std::string& folder, std::string_view pattern) {
  const std::string wanted = fold_case(pattern);
  std::vector<std::pair<std::string, std::string>> found;  // folded name, name
  std::error_code fault;
  fs::directory_iterator entry(find_path(listings_, folder), fault);
  for (; !fault && entry != fs::directory_iterator(); entry.increment(fault)) {
    std::string name = path_text(entry->path().filename());
    std::string folded = fold_case(name);
    std::error_code ignored;
    if (fits(folded, wanted) && entry->is_regular_file(ignored)) found.emplace_back(std::move(folded), std::move(name));
  }
  std::sort(found.begin(), found.end());
  std::vector<std::string> names;
  names.reserve(found.size());
  for (auto& [folded, name] : found) names.push_back(std::move(name));
  return names;
}

std::int64_t Disk_files::time_stamp(const std::string& path) {
  const File_facts facts = facts_of(find_path(listings_, path));
  return facts.is_file ? facts.changed_ns / 1'000'000 : 0;
}

std::string Disk_files::native_path(const std::string& path) {
  return path_text(find_path(listings_, path));
}

// A folder of the user's, outside of the project, is known by what is saved there alone.
void Disk_files::sweep_once(const fs::path& folder) {
  const std::lock_guard lock(sweeping_);
  if (swept_.insert(folder).second) platform::remove_left_over(folder);
}

void Disk_files::remove_left_over(const std::string& folder) {
  platform::remove_left_over(find_path(listings_, folder));
}

std::string join_path(std::string_view folder, std::string_view name) {
  while (!name.empty() && is_separator(name.front())) name.remove_prefix(1);
  if (folder.empty()) return std::string(name);
  while (!folder.empty() && is_separator(folder.back())) folder.remove_suffix(1);
  return std::string(folder) + "\\" + std::string(name);
}

bool stays_inside(std::string_view name) {
  constexpr std::string_view refused("\\/:\0", 4);
  if (name.find_first_of(refused) != std::string_view::npos) return false;
  // Blanks and dots at the end are dropped by some systems, so that ".. " is the folder above.
  return name.find_last_not_of(". ") != std::string_view::npos && !is_device(name);
}

}  // namespace platform
