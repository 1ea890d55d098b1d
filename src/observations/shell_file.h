// Opening a file with the program that the system associates with it.
#pragma once

#include <string>

#include "platform/processes.h"
#include "platform/prompts.h"

namespace observations {

// Opens a file or an address and says nothing.
platform::Open_result Shell_file2(platform::Processes& processes, const std::string& file);

// The same; a failure comes up as a message. False when it was not opened.
bool Shell_file(platform::Processes& processes, platform::Prompts& prompts, const std::string& file);

}  // namespace observations
