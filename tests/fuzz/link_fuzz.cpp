// Three lines of any bytes: what column 10 of a record says, a registration number, the name of a template. Whatever
// they are, no path that is read, written or handed to another program leaves the project, but for the template's own
// and the file that the log program reads.
#include <string>
#include <string_view>
#include <vector>

#include "observations/input_sheet.h"
#include "observations/link.h"
#include "one_file.h"
#include "support/fake_ports.h"
#include "support/scripted_prompts.h"

namespace {

constexpr std::string_view project = "C:\\project", forms = "C:\\forms", hand_off = "C:\\program\\boring_out.tmp";

// A name that no system takes for a folder above, a drive or nothing.
bool is_plain(std::string_view name) {
  return name.find_first_not_of(". ") != std::string_view::npos && name.find(':') == std::string_view::npos &&
         name.find('\0') == std::string_view::npos;
}

bool in_project(std::string_view path) {
  if (!path.starts_with(project) || path.size() == project.size()) return false;
  path.remove_prefix(project.size());
  while (!path.empty()) {
    if (path[0] != '\\') return false;
    path.remove_prefix(1);
    const std::string_view name = path.substr(0, path.find_first_of("\\/"));
    if (!is_plain(name)) return false;
    path.remove_prefix(name.size());
  }
  return true;
}

// Files that are all there, and where nothing is written in earnest.
class Watched_files : public support::One_file {
 public:
  Watched_files() : One_file(nullptr, 0) {}
  bool all_there = false;
  std::int64_t length(const std::string& path) override {
    support::promise(in_project(path));
    return all_there ? 1 : 0;
  }
  void write_whole(const std::string& path, std::string_view) override { support::promise(path == hand_off); }
  void copy(const std::string& from, const std::string& to) override {
    support::promise(from.starts_with(forms) && in_project(to));
  }
  bool make_folder(const std::string& path) override {
    support::promise(in_project(path));
    return true;
  }
  std::string native_path(const std::string& path) override { return path; }
};

void check_started(const support::Recorded_processes& processes) {
  for (const std::string& what : processes.started)
    support::promise(in_project(what) || what.starts_with("http:") || what.starts_with("https:") ||
                     what == "C:\\logs\\logprint2.exe");
  for (const std::vector<std::string>& list : processes.arguments)
    support::promise(list.size() == 1 && in_project(list[0]));
}

std::string next_line(std::string_view& rest) {
  const std::string_view line = rest.substr(0, rest.find('\n'));
  rest.remove_prefix(std::min(line.size() + 1, rest.size()));
  return std::string(line);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  std::string_view rest(reinterpret_cast<const char*>(data), size);
  const std::string link = next_line(rest);
  observations::Entry_boxes boxes;
  boxes.Text14[observations::box_touroku_no] = next_line(rest);
  core::Settings_boxes basic;
  basic.Dir3 = forms;
  basic.File4 = next_line(rest);
  core::Settings settings;
  settings.program_path = "C:\\program";
  settings.project_path = project;
  static const observations::Registry registry;
  const maps::Canvas canvas;
  const std::string log_folder = "C:\\logs";
  for (const bool all_there : {false, true}) {
    Watched_files files;
    files.all_there = all_there;
    support::Recorded_processes processes;
    support::Recorded_sheets sheets;
    support::Scripted_prompts prompts;
    observations::open_link({settings, log_folder, registry, canvas, files, processes}, link);
    const bool made = observations::Command1({settings, basic, canvas, files, processes, sheets, prompts}, boxes);
    check_started(processes);
    for (const platform::Sheet_job& job : sheets.jobs) support::promise(in_project(job.workbook));
    // What was stored as the record's link leads back to the sheet.
    if (made) support::promise(in_project(observations::picture_path(std::string(project), boxes.Label3)));
  }
  return 0;
}
