// The port to a serial line. A number means a device: on Linux the link ports/comNN of the program folder, or else the
// n-th of the machine's serial devices; on Windows COMn.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace platform {

// A device of this machine, for a list from which a person chooses.
struct Serial_device {
  int number = 0;    // as set_port takes it
  std::string path;  // "/dev/ttyUSB0", "COM5"
  std::string name;  // what the device says of itself; may be empty
};

class Serial_port {
 public:
  virtual ~Serial_port() = default;
  virtual void set_port(int number) = 0;                   // CommPort; an open port stays what it is
  virtual void set_line(const std::string& settings) = 0;  // Settings: "9600,n,8,1"
  virtual bool open() = 0;                                 // false when there is no such device or it is in use
  virtual void close() = 0;
  virtual bool is_open() const = 0;               // false too after the device has gone
  virtual bool write(std::string_view text) = 0;  // Output; false when nothing went out
  virtual std::string read_all() = 0;             // Input: all that has arrived, bytes as they came
};

}  // namespace platform
