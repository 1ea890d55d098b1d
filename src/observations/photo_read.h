// Photos of a folder as points of the registry: one point a photo, with the time of its file.
#pragma once

#include <string>
#include <vector>

#include "geodesy/plane.h"
#include "observations/registry.h"
#include "observations/registry_edit.h"

namespace observations {

// The pictures of a folder, in the order of their names.
std::vector<std::string> photos_of(platform::Files& files, const std::string& folder);

struct Photo_result {
  bool saved = false;  // the table must be drawn again
  int added = 0;       // points that were made
  int known = 0;       // photos that had their point already
};

// Registers the photos of a folder at one position, in the order of their names: column 9 as touroku_no_get numbers
// them, 10 the photo's link (its bare name where the project doesn't hold it), 21 its file's local date and time. A
// photo whose columns 10 and 21 a record has already gets none; its bare name counts as its link. Reads the file in use
// anew, asks with the number of points, writes the file whole and copies it to the backup. Nothing is written, with a
// message, without a photo to add, without a registration file in use, with several, with a file that can't be read as
// a whole or would hold too many records, with a name that a record can't hold, and when the file can't be written:
// table and file are then as they were.
Photo_result photo_read(Edit_context context, Registry& registry, const std::string& folder, geodesy::Point position);

}  // namespace observations
