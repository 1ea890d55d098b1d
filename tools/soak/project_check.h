// Reads everything that the program keeps with the program's own readers, as another start of it would.
#pragma once

#include "soak/file_book.h"
#include "soak/place.h"
#include "soak/run_log.h"

namespace soak {

// Faults go into the log. Files whose time is what it was at the last look aren't read again. The number of files that
// were read.
int project_check(const Place& place, File_book& book, Run_log& log);

}  // namespace soak
