// The port to files. Paths are UTF-8 texts with "\" between the names, as the stored texts have them; "/" is taken too,
// and names are found without regard to case. Nothing here knows an encoding: see text_files.h.
#pragma once

#include <cstdint>
#include <filesystem>
#include <functional>
#include <mutex>
#include <set>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "platform/disk_gate.h"
#include "platform/file_names.h"

namespace platform {

class Files {
 public:
  virtual ~Files() = default;

  // The length in bytes; 0 for a file that is missing or can't be reached, and for a folder.
  virtual std::int64_t length(const std::string& path) = 0;
  // The whole content. File_failure when it can't be read or is larger than 2,000,000,000 bytes.
  virtual std::string read_bytes(const std::string& path) = 0;
  // Hands the content to `take` from its beginning on, in pieces, until that gives false or the end is there. The
  // machine's own files have no more than a piece in memory, and no limit. File_failure when it can't be read.
  virtual void read_pieces(const std::string& path, const std::function<bool(std::string_view)>& take) {
    take(read_bytes(path));
  }
  // Replaces the whole file: a temporary file beside it, flushed, then renamed over it. File_failure leaves the old
  // file as it was and no temporary file behind; those that a killed program left in the folder go with the first
  // write.
  virtual void write_whole(const std::string& path, std::string_view bytes) = 0;
  // Adds at the end and flushes; makes the file when it is missing. File_failure leaves the old file as it was.
  virtual void append(const std::string& path, std::string_view bytes) = 0;
  // Copies with the care of write_whole. File_failure when the source can't be read or the target not written.
  virtual void copy(const std::string& from, const std::string& to) = 0;
  // False when it was not there or can't be removed.
  virtual bool remove(const std::string& path) = 0;
  // Makes one folder. False when it could not be made; true when it is there now.
  virtual bool make_folder(const std::string& path) = 0;
  virtual bool folder_exists(const std::string& path) = 0;
  // The names (not paths) of a folder's files that fit "*", "*.ext" or "name.*" without regard to case, in the order
  // of the folded names. A missing folder has none.
  virtual std::vector<std::string> list(const std::string& folder, std::string_view pattern) = 0;
  // Time of the last change, in milliseconds since 1970 UTC; 0 for a missing file.
  virtual std::int64_t time_stamp(const std::string& path) = 0;
  // The path as this machine writes it, with the case of what exists; for handing to other programs and pickers.
  virtual std::string native_path(const std::string& path) = 0;
  // Removes from a folder the temporary files that a killed program left there.
  virtual void remove_left_over(const std::string&) {}
};

// The machine's own files. A gate is for tests that make steps fail: see disk_gate.h.
class Disk_files : public Files {
 public:
  explicit Disk_files(Disk_gate gate = {}) : gate_(std::move(gate)) {}
  std::int64_t length(const std::string& path) override;
  std::string read_bytes(const std::string& path) override;
  void read_pieces(const std::string& path, const std::function<bool(std::string_view)>& take) override;
  void write_whole(const std::string& path, std::string_view bytes) override;
  void append(const std::string& path, std::string_view bytes) override;
  void copy(const std::string& from, const std::string& to) override;
  bool remove(const std::string& path) override;
  bool make_folder(const std::string& path) override;
  bool folder_exists(const std::string& path) override;
  std::vector<std::string> list(const std::string& folder, std::string_view pattern) override;
  std::int64_t time_stamp(const std::string& path) override;
  std::string native_path(const std::string& path) override;
  void remove_left_over(const std::string& folder) override;

 private:
  void sweep_once(const std::filesystem::path& folder);

  Disk_gate gate_;
  Folder_listings listings_;
  std::mutex sweeping_;
  std::set<std::filesystem::path> swept_;  // folders that were written to in this run
};

// `folder` + "\" + `name`, with one separator between them.
std::string join_path(std::string_view folder, std::string_view name);

// Whether a name from a foreign file is the bare name of a file in its own folder on any system: not empty, no
// separator, no drive, no NUL, not "." or ".." with whatever blanks behind, and no device's name ("con", "lpt1.txt").
bool stays_inside(std::string_view name);

}  // namespace platform
