// What a record links to: the picture, sheet, log or address that its column 10 names, opened by a press on its mark.
#pragma once

#include <string>
#include <string_view>

#include "core/project_settings.h"
#include "maps/canvas.h"
#include "observations/registry.h"
#include "platform/files.h"
#include "platform/processes.h"

namespace observations {

enum class Link_opened {
  none,    // no mark was hit, or its record links to nothing
  opened,  // handed to another program
  failed   // the link leads out of the project, its file or its program is missing, or it could not be started
};

struct Link_context {
  const core::Settings& settings;
  const std::string& log_folder;  // where logprint2 lies, as BoringOut.set has it; empty when it is not known
  const Registry& registry;
  const maps::Canvas& canvas;
  platform::Files& files;
  platform::Processes& processes;
};

// Path of a file that column 10 names, in the folder that keeps the registry's pictures and sheets: \chisou_men. Empty
// for a name that is no bare file name.
std::string picture_path(const std::string& project_path, std::string_view name);

// Path of the file that a link means: below \chisou_men, or else, where nothing is there, below the project folder. Its
// folders may be named too ("image\沢1\a.bmp"); a separator in front counts for nothing. Empty for a link that leads
// out of the project, names a drive or names nothing.
std::string linked_file(platform::Files& files, const std::string& project_path, std::string_view link);

// The link that column 10 takes for a file, so that linked_file finds it again: its path below \chisou_men, or else
// below the project folder, its names parted by "\". Empty for a file of neither.
std::string link_to(const std::string& project_path, std::string_view file);

// The number of the record whose mark a press falls on: of all records the one nearest to the map position, when the
// press lies in the square of the mark's half size around it; of equal distances the first. 0 otherwise.
int linked_record_at(const Registry& registry, const maps::Canvas& canvas, const maps::Map_position& position,
                     double x_twips, double y_twips);

// Opens what a record's column 10 names. A text with "http:" or "https:" goes to the program for addresses, from there
// to its end. A .XML or .BOR log goes to logprint2, whether it is there or not; \boring_out.tmp of the program folder
// is written first. Any other file goes to its associated program. Nothing is shown.
Link_opened open_link(const Link_context& context, std::string_view link);

// A press on the map: opens the link of the record whose mark it falls on. Twips.
Link_opened open_link(const Link_context& context, const maps::Map_position& position, double x_twips, double y_twips);

}  // namespace observations
