// What a kill in the middle of a save leaves in a folder: temporary files named ".terranote-<process>-<n>.tmp".
#pragma once

#include <filesystem>
#include <string_view>

namespace platform {

// The process number in a temporary file's name; 0 for any other name.
unsigned long process_of_temporary(std::string_view name);

// Removes the temporary files of processes that no longer run on this machine. Those of a running one stay: it may be
// in the middle of a save. A folder that can't be read or changed stays as it is.
void remove_left_over(const std::filesystem::path& folder);

}  // namespace platform
