// A conversation at the far end of a line, played on a thread of its own while the test looks at the near end.
#pragma once

#include <atomic>
#include <filesystem>
#include <string>
#include <thread>

#include "emulator/conversation.h"
#include "support/places.h"

namespace support {

class Line_end {
 public:
  Line_end(const std::filesystem::path& program_folder, const std::string& com, emulator::Conversation conversation)
      : line((program_folder / "ports" / com).string()), conversation_(std::move(conversation)) {
    plugged_in = line.plug_in();
    thread_ = std::thread([this] { emulator::converse(line, conversation_, stop_); });
  }
  ~Line_end() {
    stop_ = true;
    thread_.join();
  }
  Line_end(const Line_end&) = delete;
  Line_end& operator=(const Line_end&) = delete;

  emulator::Pseudo_terminal line;
  bool plugged_in = false;

 private:
  emulator::Conversation conversation_;
  std::atomic<bool> stop_ = false;
  std::thread thread_;
};

inline emulator::Conversation conversation(const std::string& name) {
  return emulator::conversation_of_file(support::in_checkout("tests/instruments/conversations/" + name));
}

}  // namespace support
