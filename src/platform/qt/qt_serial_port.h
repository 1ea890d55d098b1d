// Serial lines through the toolkit. A number means the link ports/comNN of the program folder, or else the n-th of the
// machine's serial devices in the order of their names; where devices have numbers of their own it means that one.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "platform/files.h"
#include "platform/serial_port.h"

class QSerialPort;

namespace platform {

// The order in which the machine's devices are counted, by their names: "ttyACM0", "ttyUSB2", "ttyUSB10".
bool comes_before(const std::string& device, const std::string& other);

// The machine's path of the device that a number means; empty when it means none.
std::string serial_device_path(Files& files, const std::string& program_path, int number);

// What is plugged in now, by number: the links first that stand for a number, then the machine's devices.
std::vector<Serial_device> serial_devices(Files& files, const std::string& program_path);

// What `set_line` takes, as "9600,n,8,1" tells it.
struct Line_settings {
  int baud = 9600;
  char parity = 'n';     // n, e, o, m, s
  int data_bits = 8;     // 5 to 8
  double stop_bits = 1;  // 1, 1.5, 2
  bool operator==(const Line_settings&) const = default;
};
// A part that is missing or out of its range stays at 9600,n,8,1.
Line_settings line_settings_of(const std::string& text);

// A device that fails or goes away counts as closed at once; what it sent before can still be read.
class Qt_serial_port : public Serial_port {
 public:
  Qt_serial_port(Files& files, std::string program_path);
  ~Qt_serial_port() override;
  Qt_serial_port(const Qt_serial_port&) = delete;
  Qt_serial_port& operator=(const Qt_serial_port&) = delete;

  void set_port(int number) override;
  void set_line(const std::string& settings) override;
  bool open() override;
  void close() override;
  bool is_open() const override;
  bool write(std::string_view text) override;
  std::string read_all() override;

 private:
  void failed();
  void apply_line();

  Files& files_;
  std::string program_path_;
  std::unique_ptr<QSerialPort> port_;
  Line_settings line_;
  int number_ = 1;
  bool gone_ = false;  // the open device has failed; it is closed when the toolkit's event is over
  std::string rest_;   // what it had sent by then
};

}  // namespace platform
