#include "soak/file_book.h"

#include <algorithm>
#include <fstream>
#include <iterator>
#include <vector>

namespace soak {

namespace fs = std::filesystem;

namespace {

// Links are the instruments' lines, and the journals have their own check.
std::vector<fs::path> files_below(const File_book& book) {
  std::vector<fs::path> found;
  std::error_code fault;
  for (auto entry = fs::recursive_directory_iterator(book.root, fault); entry != fs::recursive_directory_iterator();
       entry.increment(fault)) {
    if (entry->path() == book.state) {
      entry.disable_recursion_pending();
      continue;
    }
    if (entry->is_regular_file(fault) && !entry->is_symlink(fault)) found.push_back(entry->path());
  }
  std::sort(found.begin(), found.end());
  return found;
}

// Notes a file as it lies.
Noted_file as_it_lies(const fs::path& path) {
  std::error_code fault;
  return {platform::stamp_of(std::string_view(bytes_of(path))), false, fs::last_write_time(path, fault), {}};
}

fs::path real_path(const fs::path& path) {
  std::error_code fault;
  return fs::weakly_canonical(fs::absolute(path, fault), fault);
}

}  // namespace

std::string bytes_of(const fs::path& path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

void book_begin(File_book& book) {
  for (const fs::path& path : files_below(book)) {
    const Noted_file noted = as_it_lies(path);
    book.files[path] = noted;
    book.contents.insert(noted.stamp.hash);
  }
}

bool is_inside(const File_book& book, const fs::path& path) {
  const fs::path real = real_path(path);
  return std::mismatch(book.root.begin(), book.root.end(), real.begin(), real.end()).first == book.root.end();
}

void note_content(File_book& book, const fs::path& path, std::string_view bytes) {
  const auto [noted, is_new] = book.files.try_emplace(real_path(path));
  const platform::Content_stamp stamp = platform::stamp_of(bytes);
  noted->second = {stamp, true, {}, is_new ? stamp : noted->second.first};
  book.contents.insert(stamp.hash);
}

bool may_go_unasked(const File_book& book, const fs::path& path) {
  const auto found = book.files.find(real_path(path));
  if (found == book.files.end()) return true;
  const platform::Content_stamp& stamp = found->second.stamp;
  return stamp == found->second.first || book.removed.contains(stamp.hash);
}

void note_gone(File_book& book, const fs::path& path) {
  const auto found = book.files.find(real_path(path));
  if (found == book.files.end()) return;
  book.removed.insert(found->second.stamp.hash);
  book.files.erase(found);
}

int book_check(File_book& book, Run_log& log) {
  int read = 0;
  std::set<fs::path> there;
  for (const fs::path& path : files_below(book)) {
    there.insert(path);
    if (path.filename().string().starts_with(".terranote-")) {
      fault(log, "a temporary file was left: " + path.string());
      continue;
    }
    const auto found = book.files.find(path);
    if (found == book.files.end()) {
      fault(log, "a file came without the port: " + path.string());
      book.files[path] = as_it_lies(path);
      continue;
    }
    std::error_code none;
    const fs::file_time_type time = fs::last_write_time(path, none);
    if (time == found->second.seen) continue;
    ++read;
    const Noted_file now = as_it_lies(path);
    if (now.stamp != found->second.stamp) fault(log, "a file doesn't hold what was written: " + path.string());
    found->second.stamp = now.stamp;
    found->second.seen = time;
  }
  for (auto file = book.files.begin(); file != book.files.end();) {
    if (there.contains(file->first)) {
      ++file;
      continue;
    }
    fault(log, "a file is gone: " + file->first.string());
    file = book.files.erase(file);
  }
  return read;
}

}  // namespace soak
