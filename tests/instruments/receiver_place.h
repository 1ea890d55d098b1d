// What the tests of the receiver and the routes share: a port whose bytes a test feeds in, a project with route lists,
// and sentences of an own place, 35°30'00" north and 139°15'07.404" east.
#pragma once

#include <string>
#include <utility>
#include <vector>

#include "core/project_settings.h"
#include "platform/code_page_932.h"
#include "platform/files.h"
#include "platform/serial_port.h"
#include "support/fault_files.h"
#include "support/fixed_clock.h"
#include "support/scripted_prompts.h"
#include "support/temporary_folder.h"

namespace support {

// The checksums were worked out beside the program.
inline const std::string gga_here = "$GPGGA,102031.00,3530.0000,N,13915.1234,E,1,08,1.0,120.0,M,36.0,M,,*6C\r\n";
inline const std::string gga_without_fix = "$GPGGA,102031.00,,,,,0,00,,,M,,M,,*49\r\n";
inline const std::string gsa = "$GPGSA,A,3,09,05,14,26,,,,,,,,,2.9,2.2,1.9*3C\r\n";
inline const std::string rmc = "$GPRMC,102031.00,A,3530.0000,N,13915.1234,E,0.10,92.17,151108,,\r\n";

class Fed_port : public platform::Serial_port {
 public:
  int number = 0;
  std::string line;
  bool present = true;  // the device is there
  int tries = 0;        // to open it
  std::string arrived;  // what the next read gives
  std::string written;

  void set_port(int chosen) override { number = chosen; }
  void set_line(const std::string& settings) override { line = settings; }
  bool open() override {
    ++tries;
    return open_ = present;
  }
  void close() override { open_ = false; }
  bool is_open() const override { return open_ && present; }
  bool write(std::string_view text) override {
    if (is_open()) written += text;
    return is_open();
  }
  std::string read_all() override { return std::exchange(arrived, {}); }
  void pull() { present = open_ = false; }

 private:
  bool open_ = false;
};

// A project with \chisou_men\gps, beside a program folder.
struct Route_place {
  Temporary_folder folder;
  platform::Disk_files disk;
  Fault_files files{disk};
  Scripted_prompts prompts;
  Fixed_clock clock{{2008, 11, 15, 10, 20, 30}};
  core::Settings settings;
  std::string project = folder.text() + "\\project";
  std::string gps = project + "\\chisou_men\\gps";

  Route_place() {
    for (const std::string& made : {project, project + "\\chisou_men", gps}) disk.make_folder(made);
    settings.program_path = folder.text();
    settings.project_path = project;
    settings.language = "Japanese";
    prompts.use_language("Japanese");
  }
  std::string data(const std::string& name) const { return project + "\\chisou_men\\" + name; }
  void put(const std::string& path, const std::string& bytes) { disk.write_whole(path, bytes); }
  void put_track(const std::string& name, const std::string& bytes) { put(gps + "\\" + name, bytes); }
  void put_lines(const std::string& path, const std::vector<std::string>& lines) {
    std::string bytes;
    for (const std::string& one : lines) bytes += platform::encode_932(one) + "\r\n";
    put(path, bytes);
  }
};

}  // namespace support
