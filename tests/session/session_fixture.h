// A session on a program folder of its own, with a folder of sheets whose numbers are easy to work with by hand.
#pragma once

#include <gtest/gtest.h>

#include "core/session/mouse.h"
#include "core/session/session.h"
#include "core/session/sheet.h"
#include "core/session/start_up.h"
#include "platform/text_files.h"
#include "support/fake_ports.h"
#include "support/golden.h"
#include "support/scripted_prompts.h"
#include "support/temporary_folder.h"

namespace support {

struct Session_fixture : ::testing::Test {
  Temporary_folder folder;
  platform::Disk_files files;
  Fake_pictures pictures;
  Recorded_processes processes;
  Scripted_prompts prompts;
  Other_ports other{files};
  session::Ports ports{files, pictures, prompts, processes, other.clock, other.journal, other.sheets, other.sounds};
  session::Session session;
  session::Map_tools tools;

  std::string program() const { return folder.text() + "/program"; }
  std::string project() const { return folder.text() + "/project"; }

  void SetUp() override {
    files.make_folder(program());
    files.make_folder(project());
  }

  void write(const std::string& path, const std::vector<std::string>& lines) {
    platform::Line_writer out;
    for (const std::string& line : lines) out.line(line);
    files.write_whole(path, out.bytes());
  }

  // settei.ini with the standard sheet folder, Tokyo Datum, and one registration file.
  void write_settings() {
    files.make_folder(project() + "/chisou_men");
    write(project() + "/chisou_men/genchi.csv", {});
    write(program() + "/settei.ini",
          {"",      "",       project(), "04",  "9600", "True", "False", "False", "True",
           "False", "sheet1", "",        "",    "",     "",     "True",  "False", "genchi.csv",
           "1000",  "1000",   "500",     "100", "6000", "6000", "",      "True",  "False"});
  }

  // A free picture with a frame of 36 seconds each way, from 35 degrees north and 139 degrees east.
  void write_free_sheet(const std::string& stem) {
    files.make_folder(program() + "/map");
    files.write_whole(program() + "/map/" + stem + ".bmp", "PICTURE 400 300 200");
    write(program() + "/map/" + stem + ".set", {"139,0,0,35,0,36,139,0,36,35,0,0"});
  }

  // As a person sees it: both passes of the first showing.
  session::Activated start() {
    session::form_load(session, ports, program());
    session::form_activate(session, ports, {});
    return session::form_activate(session, ports, {});
  }

  void start_with_sheet() {
    write_settings();
    write_free_sheet("free");
    ASSERT_EQ(start(), session::Activated::list_filled);
    session.canvas.width = 12000;
    session.canvas.height = 9000;
    session::chizu_out(session, ports, 0);
    ASSERT_TRUE(session.sheet_shown());
  }

  session::Mouse_result press(session::Button button, double x, double y) {
    return session::mouse_press(session, ports, tools, {button, x, y});
  }
};

}  // namespace support
