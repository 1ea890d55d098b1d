// The port to other programs. Programs are started with an argument list, never through a shell.
#pragma once

#include <string>
#include <vector>

namespace platform {

class Processes {
 public:
  virtual ~Processes() = default;
  // Starts an executable that goes on by itself; "X.exe" is sought as "X.exe" and as "X". False when it could not be
  // started.
  virtual bool start(const std::string& executable, const std::vector<std::string>& arguments,
                     const std::string& folder) = 0;
  // Opens a file or an address with its associated program.
  virtual bool open_with_program(const std::string& file_or_address) = 0;
};

}  // namespace platform
