// The boxes of the clinometer's dialog `Tiltvane_Read2`, named as its widgets are. Those of both tabs lie in one
// struct, since the link settings \RSPORT.dat remember them together.
#pragma once

#include <string>
#include <vector>

#include "core/project_settings.h"
#include "core/settings_files.h"
#include "platform/files.h"

namespace instruments {

// What \RSPORT.dat keeps (the port's number Combo8, the count of records Text15, the declination Text1, the search for
// the port Check3, and the drive, folder and file boxes), and what is chosen anew each time.
struct Tiltvane_boxes : core::Rsport {
  bool Check8 = false;                           // the log of FileGPS gives the positions
  bool Check1 = false;                           // the logs ticked in FileGPS2 give them
  std::string Text2 = "9";                       // hours from the second kind of log to the clinometer's time
  std::vector<core::File_choice> FileGPS2_list;  // the files of DirGPS2; FileGPS2 is the first that is ticked
};

// The boxes as the dialog opens: port "05", 999 records, then what \RSPORT.dat says, then the declination of
// \henkaku.dat where there is one.
Tiltvane_boxes Tiltvane_boxes_r(platform::Files& files, const std::string& program_path);

}  // namespace instruments
