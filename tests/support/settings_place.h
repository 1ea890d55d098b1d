// What the tests of this floor share: a program folder and a project of their own, and files that refuse to be written.
#pragma once

#include <filesystem>
#include <fstream>
#include <map>
#include <string>
#include <vector>

#include "core/project_settings.h"
#include "core/settei.h"
#include "platform/code_page_932.h"
#include "platform/failures.h"
#include "platform/files.h"
#include "support/golden.h"
#include "support/scripted_prompts.h"
#include "support/temporary_folder.h"

namespace support {

// Files of the disk, of which nothing can be written.
class Read_only_files : public platform::Disk_files {
 public:
  void write_whole(const std::string& path, std::string_view) override { throw platform::File_failure(path); }
};

inline void put(const std::filesystem::path& path, const std::string& bytes) {
  std::ofstream(path, std::ios::binary) << bytes;
}

inline std::string joined(const std::vector<std::string>& lines) {
  std::string text;
  for (const std::string& line : lines) text += line + "\r\n";
  return text;
}

// Every file and folder below a folder, with the files' content.
inline std::map<std::string, std::string> snapshot(const std::filesystem::path& folder) {
  std::map<std::string, std::string> found;
  for (const auto& entry : std::filesystem::recursive_directory_iterator(folder))
    found[entry.path().string()] = entry.is_regular_file() ? bytes_of(entry.path().string()) : "(folder)";
  return found;
}

// A program folder beside a project with registration files.
struct Place {
  Temporary_folder folder;
  std::filesystem::path program = folder.path() / "program";
  std::filesystem::path project = folder.path() / "project";
  platform::Disk_files files;
  Scripted_prompts prompts;
  core::Settings settings;
  core::Settings_boxes boxes;

  explicit Place(const std::vector<std::string>& registries = {}) {
    std::filesystem::create_directories(program / "dummy");
    std::filesystem::create_directories(program / "map");
    std::filesystem::create_directories(project / "chisou_men");
    for (const std::string& name : registries) put(project / "chisou_men" / name, "1\r\n");
    settings.program_path = program.string();
    boxes = core::settei_defaults(settings);
  }

  std::string settei() const { return bytes_of((program / "settei.ini").string()); }
  void settei(const std::string& text) const { put(program / "settei.ini", platform::encode_932(text)); }
  bool read() { return core::settei_r(settings, boxes, files, prompts); }
  bool save() { return core::Command10(settings, boxes, files, prompts); }
  // The dialog's boxes with the project chosen and these files ticked.
  void choose(const std::vector<std::string>& ticked) {
    core::Dir4_change(boxes, project.string(), files);
    for (core::File_choice& file : boxes.File11)
      for (const std::string& name : ticked) file.selected |= file.name == name;
  }
};

// The 27 lines of a settei.ini with nothing but defaults, for a project.
inline std::vector<std::string> settei_lines(const std::string& project, const std::string& registries) {
  return {"",      "",       project, "04",  "9600", "True", "False", "False", "True",
          "False", "sheet1", "",      "",    "",     "",     "True",  "False", registries,
          "1000",  "1000",   "500",   "100", "6000", "6000", "",      "True",  "False"};
}

}  // namespace support
