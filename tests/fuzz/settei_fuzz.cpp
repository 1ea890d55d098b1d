// settei.ini of any bytes: it is read without a fault, what was read is written and reads back as the same boxes.
#include <cstdint>
#include <cstdlib>
#include <map>
#include <string>

#include "core/settei.h"
#include "platform/failures.h"
#include "support/scripted_prompts.h"

namespace {

// Files in memory: one program folder, one project with two registration files, and no other folder.
class Memory_files : public platform::Disk_files {
 public:
  std::map<std::string, std::string> content;

  std::int64_t length(const std::string& path) override { return static_cast<std::int64_t>(content[path].size()); }
  std::string read_bytes(const std::string& path) override { return content[path]; }
  void write_whole(const std::string& path, std::string_view bytes) override { content[path] = bytes; }
  bool make_folder(const std::string& path) override { return folder_exists(path); }
  bool folder_exists(const std::string& path) override { return path == "C:\\tani" || path == "C:\\program"; }
  std::vector<std::string> list(const std::string& folder, std::string_view) override {
    return folder == "C:\\tani\\chisou_men" ? std::vector<std::string>{"a.csv", "ab.csv"} : std::vector<std::string>{};
  }
};

// Everything that the boxes hold.
std::string dump(const core::Settings_boxes& boxes) {
  std::string text = core::settei_texts(boxes);
  for (const bool option : boxes.Option4) text += option ? '1' : '0';
  for (const bool option : boxes.Option5) text += option ? '1' : '0';
  for (const bool option : {boxes.Option6, boxes.Option7, boxes.Option8, boxes.Option9}) text += option ? '1' : '0';
  return text;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  Memory_files files;
  support::Scripted_prompts prompts;
  core::Settings settings;
  settings.program_path = "C:\\program";
  const std::string path = core::settei_path(settings);
  files.content[path].assign(reinterpret_cast<const char*>(data), size);

  core::Settings_boxes boxes = core::settei_defaults(settings);
  if (core::settei_r(settings, boxes, files, prompts) != (size > 0)) std::abort();
  core::picture_proportion(boxes);
  core::settei_w(settings, boxes, files);

  core::Settings_boxes again = core::settei_defaults(settings);
  again.Dir3 = boxes.Dir3;
  again.Dir4 = boxes.Dir4;
  again.Dir10 = boxes.Dir10;
  if (!core::settei_r(settings, again, files, prompts)) std::abort();
  core::settei_w(settings, again, files);
  const std::string once = files.content[path];
  if (!core::settei_r(settings, again, files, prompts)) std::abort();
  core::settei_w(settings, again, files);
  if (files.content[path] != once || dump(again).empty()) std::abort();
  return 0;
}
