// The content of a file where a missing one and one that can't be read are nothing to tell anybody about.
#pragma once

#include <string>

#include "platform/files.h"

namespace platform {

// The bytes of a file; none when it is missing, empty or can't be read.
std::string content_or_nothing(Files& files, const std::string& path);

}  // namespace platform
