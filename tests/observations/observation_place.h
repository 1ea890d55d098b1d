// What the tests of this floor share: a project of its own with registration files, and records written out by hand.
#pragma once

#include <string>
#include <vector>

#include "core/project_settings.h"
#include "maps/map_place.h"
#include "observations/record_line.h"
#include "observations/registry_edit.h"
#include "platform/code_page_932.h"
#include "platform/files.h"
#include "support/fault_files.h"
#include "support/fixed_clock.h"
#include "support/golden.h"
#include "support/scripted_prompts.h"
#include "support/temporary_folder.h"

namespace support {

// The example of the format's page: a simple point.
inline const std::string simple_point =
    " 1 ,-1234.5,6789.25,120,露頭,砂岩,N15W,30E,081115-001*3,,○, 2 , 255 , 0 , 0 , 0 , 0 , 0 ,0,,,,, 0 ,";

// A point in metres with nothing but a number.
inline std::string point_at(const std::string& x, const std::string& y, const std::string& number) {
  return " 0 ," + x + "," + y + ",,,,,," + number + ",,○, 2 , 0 , 0 , 0 , 0 , 0 , 0 ,0,,,,, 0 ,";
}

inline std::string lines_932(const std::vector<std::string>& lines) {
  std::string bytes;
  for (const std::string& line : lines) bytes += platform::encode_932(line) + "\r\n";
  return bytes;
}

// A project with the registration file "tani.csv", and a program folder beside it.
struct Observation_place {
  Temporary_folder folder;
  platform::Disk_files disk;
  Fault_files files{disk};
  Scripted_prompts prompts;
  Fixed_clock clock{{2008, 11, 15, 9, 30, 0}};
  core::Settings settings;
  maps::Canvas canvas = plain_canvas();
  observations::Registry registry;
  observations::Entry entry;
  std::string project = folder.text() + "\\project";

  Observation_place() {
    disk.make_folder(project);
    disk.make_folder(project + "\\chisou_men");
    settings.program_path = folder.text();
    settings.project_path = project;
    settings.registry_name = "tani.csv";
    settings.registry_count = 1;
    settings.language = "Japanese";
    prompts.use_language("Japanese");
  }
  std::string path(const std::string& name = "tani.csv") const { return project + "\\chisou_men\\" + name; }
  void put(const std::string& bytes, const std::string& name = "tani.csv") { disk.write_whole(path(name), bytes); }
  void put_lines(const std::vector<std::string>& lines, const std::string& name = "tani.csv") {
    put(lines_932(lines), name);
  }
  std::string bytes(const std::string& name = "tani.csv") {
    return disk.length(path(name)) == 0 ? "" : disk.read_bytes(path(name));
  }
  void read() { observations::chisoumen_read(registry, files, 1, {path()}); }
  observations::Edit_context context() { return {settings, canvas, files, clock, prompts}; }
  observations::Click click(double x, double y) const {
    observations::Click click;
    click.position.x = x;
    click.position.y = y;
    return click;
  }
};

}  // namespace support
