// A whole program over the disk, without its windows: a program folder, a project, a folder of the user's and a state
// folder with the journal, all made by hand. Its files pass a gate that lets faults strike.
#pragma once

#include <map>
#include <memory>
#include <string>
#include <vector>

#include "core/session/session.h"
#include "faults/fault_gate.h"
#include "platform/journal.h"
#include "support/fake_ports.h"

namespace support {

// Says yes to every question, and keeps what was told.
class Agreeing_prompts : public platform::Prompts {
 public:
  std::vector<std::string> told;

 protected:
  platform::Answer show(Kind kind, const std::string& text) override {
    if (kind == Kind::message) told.push_back(text);
    return kind == Kind::yes_no || kind == Kind::yes_no_cancel ? platform::Answer::yes : platform::Answer::ok;
  }
};

// Knows the bitmaps that the program writes too, by their beginning.
class Bitmap_pictures : public Fake_pictures {
 public:
  platform::Decoded_picture decode(std::string_view bytes) override {
    return Fake_pictures::decode(bytes.starts_with("BM") ? "PICTURE 5 4 77" : bytes);
  }
};

// Files by their paths below a root, "project/chisou_men/genchi.csv"; folders hold "(folder)".
using Tree = std::map<std::string, std::string>;

// What stands below a root. The state folder and temporary files are left out.
Tree tree_of(const std::string& root);
// The paths of the temporary files of whole writes below a root, the state folder's too.
std::vector<std::string> temporaries_of(const std::string& root);
// Gives the temporary files another process's number, one that never runs: so they look once this process is gone.
void orphan_temporaries(const std::string& root);

// Empties the root and makes the folders and files of a small project by hand. `language` is that of Language.set.
void lay_out(const std::string& root, const std::string& language);
// A file by hand, in code page 932 with CR LF behind each line, or as it is. Its folder is made.
void put_lines(const std::string& root, const std::string& name, const std::vector<std::string>& lines);
void put_bytes(const std::string& root, const std::string& name, const std::string& bytes);

// The running program.
struct Fault_place {
  explicit Fault_place(std::string root);
  ~Fault_place();
  Fault_place(const Fault_place&) = delete;
  Fault_place& operator=(const Fault_place&) = delete;
  // As at its start, up to the shown sheet, with the journal open. Not under the gate.
  void start();
  // Below the root, as the program writes paths.
  std::string path(const std::string& name) const { return root + "\\" + name; }
  std::string program() const { return path("program"); }
  std::string project() const { return path("project"); }

  std::string root;
  Fault_gate gate;
  platform::Disk_files disk;
  platform::Journal journal;
  platform::Journal_files files;
  Bitmap_pictures pictures;
  Agreeing_prompts prompts;
  Recorded_processes processes;
  Fixed_clock clock;
  Recorded_sheets sheets;
  Recorded_sounds sounds;
  session::Ports ports;
  std::unique_ptr<session::Session> owned_session;
  session::Session& session;
};

}  // namespace support
