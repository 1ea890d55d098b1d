// Workbooks filled in by the office program of the machine. On Windows it is driven itself and keeps the workbook open
// (excel.h); elsewhere, and where that is missing, the script fill_sheet.py fills a copy in beside the user's own
// office program, and the workbook is then opened with its associated program.
#pragma once

#include <string>

#include "platform/files.h"
#include "platform/processes.h"
#include "platform/sheets.h"

namespace platform {

struct Sheet_helper {
  std::string script;  // path of fill_sheet.py
  int seconds = 60;    // what a sheet may take
};

// fill_sheet.py in the folder of the program's helpers.
Sheet_helper sheet_helper(const std::string& helpers);

class Qt_sheets : public Sheets {
 public:
  // The workbook is read and written through `files`, whole, and opened through `processes`.
  Qt_sheets(Files& files, Processes& processes, Sheet_helper helper)
      : files_(files), processes_(processes), helper_(std::move(helper)) {}
  Sheet_outcome fill(const Sheet_job& job) override;

 private:
  Sheet_outcome fill_with_helper(const Sheet_job& job);

  Files& files_;
  Processes& processes_;
  Sheet_helper helper_;
};

}  // namespace platform
