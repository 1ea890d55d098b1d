// The small settings files and the memo with any bytes: each is read without a fault, and what was read is written so
// that it stays the same from the second time on.
#include "core/language.h"
#include "core/settings_files.h"
#include "observations/memo.h"
#include "one_file.h"
#include "support/memory_files.h"
#include "support/scripted_prompts.h"

namespace {

const std::string program = "C:\\program", project = "C:\\tani";

// One for all inputs: it has a folder on the disk.
support::Memory_files& files() {
  static support::Memory_files shared;
  return shared;
}

struct Round {
  support::Memory_files& files;
  std::string path;

  // `through` reads the file and writes what it read.
  template <typename Through>
  void stays(const std::string& given, Through through) {
    files.write_whole(path, given);
    through();
    through();
    const std::string twice = files.read_bytes(path);
    through();
    support::promise(files.read_bytes(path) == twice);
  }
};

template <typename Read, typename Write>
void folder_stays(const std::string& bytes, const char* name, Read read, Write write) {
  Round round{files(), program + "\\" + name};
  round.stays(bytes, [&] { write(round.files, program, read(round.files, program)); });
}

template <typename Value, typename Read, typename Write>
void struct_stays(const std::string& bytes, const char* name, Read read, Write write) {
  Round round{files(), program + "\\" + name};
  round.stays(bytes, [&] {
    Value value;
    read(round.files, program, value);
    write(round.files, program, value);
  });
}

void memo_stays(const std::string& bytes) {
  Round round{files(), observations::memo_path(project, "081115-001")};
  round.stays(bytes, [&] {
    observations::memo_write(round.files, project, round.path, observations::memo_read(round.files, round.path));
  });
}

void captions_are_there(const std::string& bytes) {
  support::Scripted_prompts prompts;
  core::Settings settings;
  settings.program_path = program;
  files().write_whole(program + "\\Language.set", bytes);
  support::promise(!core::Language_set(settings, files(), prompts).empty());
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string bytes(reinterpret_cast<const char*>(data), size);
  folder_stays(bytes, "dempath.dat", core::dempath_r, core::dempath_w);
  folder_stays(bytes, "BoringOut.set", core::boring_out_r, core::boring_out_w);
  folder_stays(bytes, "Rockview3d.set", core::rockview3d_r, core::rockview3d_w);
  folder_stays(bytes, "setpath2.dat", core::setpath2_r, core::setpath2_w);
  struct_stays<core::Rockview_path>(bytes, "RockviewPath.dat", core::rockview_path_r, core::rockview_path_w);
  struct_stays<core::Section_line>(bytes, "danmen.dat", core::danmen_line_r, core::danmen_line_w);
  struct_stays<core::Rsport>(bytes, "RSPORT.dat", core::rsport_r, core::rsport_w);
  struct_stays<core::Picture_folders>(bytes, "psettei.dat", core::psettei_r, core::psettei_w);
  struct_stays<core::Zahyo>(bytes, "zahyo.dat", core::zahyo_r, core::zahyo_w);
  folder_stays(bytes, "chisou_men\\yoshiki.ini", core::yoshiki_r, core::yoshiki_w);

  support::One_file all(data, size);
  core::pro_atlas_class(all, program);
  support::promise(core::zahyo_lines_r(all, program).size() <= core::zahyo_limit);
  memo_stays(bytes);
  captions_are_there(bytes);
  return 0;
}
