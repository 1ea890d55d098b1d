#include "faults/fault_place.h"

#include <filesystem>
#include <fstream>
#include <utility>

#include "core/session/sheet.h"
#include "core/session/start_up.h"
#include "core/session/undo.h"
#include "platform/code_page_932.h"
#include "platform/left_over.h"
#include "support/golden.h"

namespace support {

namespace fs = std::filesystem;

namespace {

bool is_temporary(const fs::path& path) {
  return platform::process_of_temporary(path.filename().string()) != 0;
}

bool is_state(const std::string& name) {
  return name == "state" || name.starts_with("state/");
}

// Every file and folder below the root by its path from there.
std::map<std::string, fs::path> entries_of(const std::string& root) {
  std::map<std::string, fs::path> entries;
  for (const auto& entry : fs::recursive_directory_iterator(root))
    entries[entry.path().lexically_relative(root).generic_string()] = entry.path();
  return entries;
}

}  // namespace

Tree tree_of(const std::string& root) {
  Tree tree;
  for (const auto& [name, path] : entries_of(root))
    if (!is_state(name) && !is_temporary(path))
      tree[name] = fs::is_directory(path) ? "(folder)" : bytes_of(path.string());
  return tree;
}

std::vector<std::string> temporaries_of(const std::string& root) {
  std::vector<std::string> found;
  for (const auto& [name, path] : entries_of(root))
    if (is_temporary(path)) found.push_back(name);
  return found;
}

void orphan_temporaries(const std::string& root) {
  int count = 0;
  for (const std::string& name : temporaries_of(root)) {
    const fs::path path = fs::path(root) / name;
    fs::rename(path, path.parent_path() / (".terranote-2147483647-" + std::to_string(++count) + ".tmp"));
  }
}

void put_bytes(const std::string& root, const std::string& name, const std::string& bytes) {
  const fs::path path = fs::path(root) / name;
  fs::create_directories(path.parent_path());
  std::ofstream(path, std::ios::binary) << bytes;
}

void put_lines(const std::string& root, const std::string& name, const std::vector<std::string>& lines) {
  std::string bytes;
  for (const std::string& line : lines) bytes += platform::encode_932(line) + "\r\n";
  put_bytes(root, name, bytes);
}

void lay_out(const std::string& root, const std::string& language) {
  for (const auto& entry : fs::directory_iterator(root)) fs::remove_all(entry.path());
  for (const char* folder : {"program/map", "program/map50000", "program/mps", "program/data", "program/pda_chizu",
                             "program/dummy", "project/chisou_men", "project/data", "other", "state"})
    fs::create_directories(fs::path(root) / folder);
  put_lines(root, "program/Language.set", {language});
  put_lines(root, "program/dempath.dat", {root + "\\program"});
  put_lines(root, "program/settei.ini",
            {root + "\\other",
             "form.xls",
             root + "\\project",
             "04",
             "9600",
             "True",
             "False",
             "False",
             "True",
             "False",
             "sheet1",
             "",
             "",
             "",
             "B2",
             "True",
             "False",
             "genchi.csv",
             "1000",
             "1000",
             "500",
             "100",
             "6000",
             "6000",
             "",
             "True",
             "False"});
  put_bytes(root, "program/map/free.bmp", "PICTURE 400 300 200");
  put_lines(root, "program/map/free.set", {"139,0,0,35,0,36,139,0,36,35,0,0"});
  put_bytes(root, "program/def.dbf", "the attribute table, as it stands");
  put_lines(root, "project/chisou_men/genchi.csv",
            {" 1 ,300.0,400.0,120,露頭,砂岩,N15W,30E,081114-001*3,,○, 2 , 255 , 0 , 0 , 0 , 0 , 0 ,0,,,,, 0 ,",
             " 0 ,500.0,600.0,,,,,,081114-002,,○, 2 , 0 , 0 , 0 , 0 , 0 , 0 ,0,,,,, 0 ,"});
  put_lines(root, "project/chisou_men/csv/genchi.csv",
            {" 1 ,300.0,400.0,120,露頭,砂岩,N10W,30E,081114-001*3,,○, 2 , 255 , 0 , 0 , 0 , 0 , 0 ,0,,,,, 0 ,"});
  put_bytes(root, "other/form.xls", "the template of the input sheet");
}

namespace {

using Registry_rows = decltype(observations::Registry::rows);

// The large table's memory goes from one place to the next: taking it anew is most of a short case's time.
Registry_rows& spare_rows() {
  static Registry_rows spare;
  return spare;
}

}  // namespace

Fault_place::Fault_place(std::string place)
    : root(std::move(place)),
      disk([this](const Disk_step& step) { return gate.take(step); }),
      journal(disk),
      files(disk, journal),
      clock({2008, 11, 15, 10, 20, 30}),
      ports{files, pictures, prompts, processes, clock, journal, sheets, sounds},
      owned_session(std::make_unique<session::Session>()),
      session(*owned_session) {
  session.registry.rows = std::move(spare_rows());
}

Fault_place::~Fault_place() {
  spare_rows() = std::move(session.registry.rows);
}

void Fault_place::start() {
  session.state_folder = path("state");
  session::form_load(session, ports, program());
  session::form_activate(session, ports, {});
  session::form_activate(session, ports, {});
  session.canvas.width = 12000;
  session.canvas.height = 9000;
  session::journal_r(session, ports);
  session::chizu_out(session, ports, 0);
  // One unit to the metre and no geographic frame, so that positions are metres.
  session.canvas.is_geographic = false;
  session.canvas.canvas_scale = 1;
  session.canvas.map_x0 = session.canvas.map_y0 = 0;
  session.canvas.map_x1 = session.canvas.map_y1 = 1000;
  prompts.told.clear();
}

}  // namespace support
