// Serial lines without devices: what a port's device says, tick by tick, and all that was asked of the port.
#pragma once

#include <deque>
#include <map>
#include <string>
#include <vector>

#include "platform/serial_port.h"

namespace support {

class Fake_serial : public platform::Serial_port {
 public:
  // A device by its number: what each read gives, the first ones first. Numbers without one can't be opened.
  std::map<int, std::deque<std::string>> devices;
  // The device fails at the read after so many; below 0 never.
  int reads_until_gone = -1;

  std::vector<std::string> log;  // "open 5", "refused 6", "close", "write o1"
  std::string settings;

  void set_port(int number) override {
    if (!open_) number_ = number;
    log.push_back("port " + std::to_string(number));
  }
  void set_line(const std::string& text) override { settings = text; }
  bool open() override {
    open_ = devices.count(number_) > 0;
    log.push_back((open_ ? "open " : "refused ") + std::to_string(number_));
    return open_;
  }
  void close() override {
    if (open_) log.push_back("close");
    open_ = false;
  }
  bool is_open() const override { return open_; }
  bool write(std::string_view text) override {
    if (open_) log.push_back("write " + std::string(text));
    return open_;
  }
  std::string read_all() override {
    if (!open_) return {};
    if (reads_until_gone == 0) {
      open_ = false;
      devices.erase(number_);
      return {};
    }
    --reads_until_gone;
    std::deque<std::string>& said = devices[number_];
    if (said.empty()) return {};
    const std::string next = said.front();
    said.pop_front();
    return next;
  }

 private:
  int number_ = 0;
  bool open_ = false;
};

}  // namespace support
