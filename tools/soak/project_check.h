// Reads everything that the program keeps with the program's own readers, as another start of it would.
#pragma once

#include "soak/file_book.h"
#include "soak/place.h"
#include "soak/run_log.h"

namespace soak {

// Faults go into the log. The number of files that were looked at.
int project_check(const Place& place, const File_book& book, Run_log& log);

}  // namespace soak
