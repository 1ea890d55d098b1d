#include "observations/memo.h"

#include <string_view>

#include "core/project_folders.h"
#include "observations/shell_file.h"
#include "platform/text_files.h"

namespace observations {

std::string memo_path(const std::string& project_path, const std::string& registration) {
  const std::string name = registration + ".txt";
  if (registration.empty() || project_path.empty() || !platform::stays_inside(name)) return {};
  return platform::join_path(core::chisou_men(project_path, "txt"), name);
}

std::string memo_read(platform::Files& files, const std::string& path) {
  std::string text;
  if (path.empty()) return text;
  for (const std::string& line : platform::read_lines(files, path)) text += line + "\n";
  if (!text.empty()) text.pop_back();
  return text;
}

void memo_write(platform::Files& files, const std::string& project_path, const std::string& path,
                const std::string& text) {
  if (path.empty() || memo_read(files, path) == text) return;
  files.make_folder(core::chisou_men(project_path));
  files.make_folder(core::chisou_men(project_path, "txt"));
  platform::Line_writer writer;
  for (std::string_view rest = text; !text.empty();) {
    const std::size_t end = rest.find('\n');
    writer.line(rest.substr(0, end));
    if (end == std::string_view::npos) break;
    rest.remove_prefix(end + 1);
  }
  files.write_whole(path, writer.bytes());
}

Memo_shown Command23(platform::Files& files, platform::Processes& processes, platform::Prompts& prompts,
                     const std::string& project_path, const std::string& registration) {
  const std::string path = memo_path(project_path, registration);
  if (path.empty() || files.length(path) == 0) return Memo_shown::panel;
  return Shell_file(processes, prompts, path) ? Memo_shown::program : Memo_shown::panel;
}

}  // namespace observations
