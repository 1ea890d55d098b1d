// settei.ini, the basic settings: 27 lines in the program folder, read and written whole.
#pragma once

#include <string>
#include <vector>

#include "core/project_settings.h"

namespace core {

// The most names of point registration files that line 18 takes.
inline constexpr std::size_t registry_limit = 500;

std::string settei_path(const Settings& settings);

// The boxes at the program's start, before settei.ini is read: the project folder is the program folder's \dummy.
Settings_boxes settei_defaults(const Settings& settings);

// Reads settei.ini into the boxes and the project state and makes \chisou_men. A line that can't be used leaves its box
// as it was; lines that the file doesn't have leave theirs. False when the file is missing or empty: then the user is
// asked for the basic settings and nothing is read.
bool settei_r(Settings& settings, Settings_boxes& boxes, platform::Files& files, platform::Prompts& prompts);

// Writes the boxes. File_failure leaves the file as it was.
void settei_w(const Settings& settings, const Settings_boxes& boxes, platform::Files& files);

// All texts that settei_w writes, for a look at their characters.
std::string settei_texts(const Settings_boxes& boxes);

// Keeps the picture of the map cut in proportion to its range: where Text5 / Text6 and Text9 / Text10 differ, Text9
// becomes Text5 / Text6 x Text10, without decimals. With a divisor of 0, or a result beyond all numbers, there is no
// proportion to keep.
void picture_proportion(Settings_boxes& boxes);

// The selected names of File11, the first registry_limit of them.
std::vector<std::string> selected_registries(const Settings_boxes& boxes);

}  // namespace core
