// Paths as keys: two texts for the same place give the same key, as far as the texts alone tell.
#pragma once

#include <string>
#include <string_view>

namespace platform {

// "\" between the names, no "." or "..", none at the end, and in one case.
std::string path_key(std::string_view path);
// Whether a path lies in a folder or in one below it; never for an empty folder.
bool lies_below(std::string_view path, std::string_view folder);
// A bare name of a folder for a path: its last name, as far as any machine takes it, and 16 digits of a hash of its
// key.
std::string folder_name_for(std::string_view path);

}  // namespace platform
