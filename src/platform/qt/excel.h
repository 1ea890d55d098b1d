// The office program of Windows, driven through its automation object.
#pragma once

#include "platform/sheets.h"

namespace platform {

// Opens the workbook visibly, sets its cells and saves it. `workbook` is a path as the machine writes it. no_program
// where there is none, on every other system too.
Sheet_outcome excel_fill(const Sheet_job& job);

}  // namespace platform
