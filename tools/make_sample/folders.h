// Puts the sample on disk: the program folder, the project folder, and settei.ini last of all.
#pragma once

#include <QString>
#include <functional>
#include <string>

#include "make_sample/country.h"
#include "platform/files.h"

namespace sample {

struct Making {
  std::string target;                              // the folder that holds both folders
  int sheet_width = 2000;                          // pixels of every sheet; the height follows from its measure
  QString font;                                    // family for the names; empty leaves them out
  std::function<void(int made, int of)> progress;  // called after each picture; none: nobody looks
};

// Whether the target may be written: it is not there yet, or an earlier run made it.
bool may_write(platform::Files& files, const std::string& target);

// Writes those files of a program folder that hold for any place: the field coefficients and the table of attributes.
// The folder is made where it is missing. File_failure where a file can't be written.
void make_general(platform::Files& files, const std::string& folder);

// Writes everything. While it works there is no settei.ini, so a run that is broken off is not taken for a sample.
// File_failure where a file can't be written.
void make_folders(platform::Files& files, const Making& making);

}  // namespace sample
