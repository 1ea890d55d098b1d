// What a user is told when a file can't be saved: the same words wherever it happens.
#pragma once

#include <string>

#include "platform/prompts.h"

namespace core {

// The write to the file failed.
void write_failed(platform::Prompts& prompts, const std::string& path);

// A table that stands for a part of its file only isn't saved over it.
void read_in_part(platform::Prompts& prompts, const std::string& path);

// Names the characters that the files' code page doesn't have; says nothing, and gives false, where there are none.
bool unknown_characters(platform::Prompts& prompts, const std::string& unknown);

}  // namespace core
