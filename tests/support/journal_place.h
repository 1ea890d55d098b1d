// A project, a program folder and a user's folder with a journal over files that can fail: those of the journal and
// those of the project each by themselves.
#pragma once

#include <filesystem>
#include <map>
#include <memory>
#include <string>

#include "platform/journal.h"
#include "support/fault_files.h"
#include "support/temporary_folder.h"

namespace support {

// Sends each path to the files of the journal or to those of the project.
class Parted_files : public platform::Files {
 public:
  Parted_files(std::string state, platform::Files& journal, platform::Files& project)
      : state_(std::move(state)), journal_(journal), project_(project) {}

  std::int64_t length(const std::string& path) override { return of(path).length(path); }
  std::string read_bytes(const std::string& path) override { return of(path).read_bytes(path); }
  void write_whole(const std::string& path, std::string_view bytes) override { of(path).write_whole(path, bytes); }
  void append(const std::string& path, std::string_view bytes) override { of(path).append(path, bytes); }
  void copy(const std::string& from, const std::string& to) override { of(to).copy(from, to); }
  bool remove(const std::string& path) override { return of(path).remove(path); }
  bool make_folder(const std::string& path) override { return of(path).make_folder(path); }
  bool folder_exists(const std::string& path) override { return of(path).folder_exists(path); }
  std::vector<std::string> list(const std::string& folder, std::string_view pattern) override {
    return of(folder).list(folder, pattern);
  }
  std::int64_t time_stamp(const std::string& path) override { return of(path).time_stamp(path); }
  std::string native_path(const std::string& path) override { return of(path).native_path(path); }

 private:
  platform::Files& of(const std::string& path) {
    return path.compare(0, state_.size(), state_) == 0 ? journal_ : project_;
  }
  std::string state_;
  platform::Files& journal_;
  platform::Files& project_;
};

class Journal_place {
 public:
  Journal_place() {
    disk.make_folder(project(""));
    disk.make_folder(program(""));
  }

  std::string root() const { return folder_.text(); }
  std::string project(const std::string& name) const { return platform::join_path(root() + "\\project", name); }
  std::string program(const std::string& name) const { return platform::join_path(root() + "\\program", name); }
  std::string state() const { return root() + "\\state\\terranote"; }
  // The one journal's folder.
  std::string journal_folder() const {
    for (const auto& entry : std::filesystem::directory_iterator(folder_.path() / "state" / "terranote"))
      return state() + "\\" + entry.path().filename().string();
    return {};
  }

  platform::Journal_state open(platform::Journal_limits limits = {}) {
    journal_ = std::make_unique<platform::Journal>(parted_, limits);
    files_ = std::make_unique<platform::Journal_files>(parted_, *journal_);
    return journal_->open(state(), project(""), program(""));
  }
  void close() {
    files_.reset();
    journal_.reset();
  }
  platform::Journal_state restart(platform::Journal_limits limits = {}) {
    close();
    return open(limits);
  }
  platform::Journal& journal() { return *journal_; }
  platform::Files& files() { return *files_; }

  std::string content(const std::string& path) { return disk.read_bytes(path); }
  // The project's files by name, hidden ones too.
  std::map<std::string, std::string> all_files() {
    std::map<std::string, std::string> files;
    for (const std::string& name : disk.list(project(""), "*")) files[name] = disk.read_bytes(project(name));
    return files;
  }
  std::uint64_t journal_bytes() {
    std::uint64_t total = 0;
    for (const std::string& name : disk.list(journal_folder(), "*"))
      total += static_cast<std::uint64_t>(disk.length(journal_folder() + "\\" + name));
    return total;
  }

 private:
  Temporary_folder folder_;

 public:
  platform::Disk_files disk;
  Fault_files journal_files{disk}, project_files{disk};

 private:
  Parted_files parted_{state(), journal_files, project_files};
  std::unique_ptr<platform::Journal> journal_;
  std::unique_ptr<platform::Journal_files> files_;
};

}  // namespace support
