// Other programs started through the toolkit.
#pragma once

#include "platform/files.h"
#include "platform/processes.h"

namespace platform {

class Qt_processes : public Processes {
 public:
  explicit Qt_processes(Files& files) : files_(files) {}
  bool start(const std::string& executable, const std::vector<std::string>& arguments,
             const std::string& folder) override;
  bool open_with_program(const std::string& file_or_address) override;
  Open_result open(const std::string& file_or_address) override;

 private:
  Files& files_;
};

}  // namespace platform
