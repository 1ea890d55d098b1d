// The port to other programs. Programs are started with an argument list, never through a shell.
#pragma once

#include <string>
#include <vector>

namespace platform {

enum class Open_result {
  opened,
  no_memory,   // or another resource that ran out
  no_file,     // the file is missing
  no_path,     // its folder is
  bad_format,  // a program that this machine can't run
  denied,      // the file must not be read
  failed       // anything else: mostly that no program goes with it
};

class Processes {
 public:
  virtual ~Processes() = default;
  // Starts an executable that goes on by itself; "X.exe" is sought as "X.exe" and as "X". False when it could not be
  // started.
  virtual bool start(const std::string& executable, const std::vector<std::string>& arguments,
                     const std::string& folder) = 0;
  // Opens a file or an address with its associated program.
  virtual bool open_with_program(const std::string& file_or_address) = 0;
  // The same, telling why it failed.
  virtual Open_result open(const std::string& file_or_address) {
    return open_with_program(file_or_address) ? Open_result::opened : Open_result::failed;
  }
};

}  // namespace platform
