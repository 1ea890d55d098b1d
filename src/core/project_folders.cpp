#include "core/project_folders.h"

namespace core {

using platform::Files;
using platform::join_path;

void program_folders_make(Files& files, const std::string& program_path) {
  for (const char* name : {"map", "map50000", "mps", "data", "pda_chizu", "dummy"})
    files.make_folder(join_path(program_path, name));
}

void project_folders_make(Files& files, const std::string& project_path) {
  if (project_path.empty()) return;
  for (const char* name : {"chisou_men", "data"}) files.make_folder(join_path(project_path, name));
}

std::string chisou_men(const std::string& project_path) {
  return join_path(project_path, "chisou_men");
}

std::string chisou_men(const std::string& project_path, const std::string& name) {
  return join_path(chisou_men(project_path), name);
}

bool is_cut_map_project(Files& files, const std::string& project_path) {
  return files.length(chisou_men(project_path, "gazou_01.bmp")) > 0;
}

}  // namespace core
