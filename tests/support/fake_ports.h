// Pictures and processes without a toolkit.
#pragma once

#include <cstdio>
#include <string>
#include <vector>

#include "platform/journal.h"
#include "platform/pictures.h"
#include "platform/processes.h"
#include "platform/sheets.h"
#include "platform/sounds.h"
#include "support/fixed_clock.h"

namespace support {

// A picture file is the text "PICTURE <width> <height> <grey>": every pixel is that grey of an 8-bit picture. Anything
// else is unreadable, and a picture of more than a million pixels too large.
class Fake_pictures : public platform::Pictures {
 public:
  platform::Decoded_picture decode(std::string_view bytes) override {
    int width = 0, height = 0, grey = 0;
    if (std::sscanf(std::string(bytes).c_str(), "PICTURE %d %d %d", &width, &height, &grey) != 3)
      return {{}, platform::Picture_fault::unreadable};
    if (width > 1'000'000 / (height > 0 ? height : 1)) return {{}, platform::Picture_fault::too_large};
    platform::Picture picture = platform::make_picture(width, height, 8);
    for (unsigned i = 0; i < 256; ++i) picture.palette.push_back(i * 0x010101u);
    for (auto& pixel : picture.bits) pixel = static_cast<std::uint8_t>(grey);
    return {picture, platform::Picture_fault::none};
  }
  std::string encode(const platform::Picture& picture, platform::Picture_format format, int quality) override {
    return "ENCODED " + std::to_string(picture.width) + " " + std::to_string(picture.height) + " " +
           std::to_string(static_cast<int>(format)) + " " + std::to_string(quality);
  }
  platform::Picture scale(const platform::Picture&, int width, int height) override {
    return platform::make_picture(width, height, 32);
  }
  platform::Picture rotate_quarter(const platform::Picture& picture, int) override { return picture; }
};

class Recorded_processes : public platform::Processes {
 public:
  std::vector<std::string> started;
  std::vector<std::vector<std::string>> arguments;  // of each start
  std::vector<std::string> folders;
  bool works = true;  // what both give back
  bool start(const std::string& executable, const std::vector<std::string>& list, const std::string& folder) override {
    started.push_back(executable);
    arguments.push_back(list);
    folders.push_back(folder);
    return works;
  }
  bool open_with_program(const std::string& what) override {
    started.push_back(what);
    return works;
  }
};

class Recorded_sheets : public platform::Sheets {
 public:
  std::vector<platform::Sheet_job> jobs;
  platform::Sheet_outcome outcome = platform::Sheet_outcome::filled;
  platform::Sheet_outcome fill(const platform::Sheet_job& job) override {
    jobs.push_back(job);
    return outcome;
  }
};

class Recorded_sounds : public platform::Sounds {
 public:
  std::vector<std::string> played;
  bool play(const std::string& path) override {
    played.push_back(path);
    return true;
  }
};

// Those ports that most tests only need to be there. The journal is closed until a test opens it.
struct Other_ports {
  explicit Other_ports(platform::Files& files) : journal(files) {}
  Fixed_clock clock{{2008, 11, 15, 10, 20, 30}};
  platform::Journal journal;
  Recorded_sheets sheets;
  Recorded_sounds sounds;
};

}  // namespace support
