#include "exchange/file_set.h"

#include "platform/failures.h"

namespace exchange {
namespace {

void write_one(platform::Files& files, const Set_file& file) {
  if (file.bytes) return files.write_whole(file.path, *file.bytes);
  if (files.length(file.path) > 0 && !files.remove(file.path))
    throw platform::File_failure(file.path + " could not be removed");
}

// What stands there now; a file that is missing or empty counts as absent.
Set_file as_it_is(platform::Files& files, const std::string& path) {
  if (files.length(path) == 0) return {path, std::nullopt};
  return {path, files.read_bytes(path)};
}

}  // namespace

void write_together(platform::Files& files, const std::vector<Set_file>& set, New_files new_files) {
  std::vector<Set_file> before;
  for (const Set_file& file : set) before.push_back(as_it_is(files, file.path));
  std::size_t written = 0;
  try {
    for (; written < set.size(); ++written) write_one(files, set[written]);
  } catch (const platform::File_failure&) {
    for (std::size_t i = 0; i < written; ++i)
      if (before[i].bytes || new_files == New_files::go) write_one(files, before[i]);
    throw;
  }
}

}  // namespace exchange
