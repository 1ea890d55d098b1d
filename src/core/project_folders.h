// The folders of the program and of a project: their names, and who makes them.
#pragma once

#include <string>

#include "platform/files.h"

namespace core {

// Makes \map, \map50000, \mps, \data, \pda_chizu and \dummy in the program folder; failures are ignored.
void program_folders_make(platform::Files& files, const std::string& program_path);

// Makes \chisou_men and \data in the project folder; failures are ignored.
void project_folders_make(platform::Files& files, const std::string& project_path);

// \chisou_men of a project, and a file in it.
std::string chisou_men(const std::string& project_path);
std::string chisou_men(const std::string& project_path, const std::string& name);

// The project was made by cutting a map: its \chisou_men\gazou_01.bmp has a length.
bool is_cut_map_project(platform::Files& files, const std::string& project_path);

}  // namespace core
