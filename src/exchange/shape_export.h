// The export of a drawn shape: the conversion of a list of shapes, and the procedures of the two dialogs that start
// it, frm_Shape for \TMP.TMP and frm_ShapeMake for a text file of the user's.
#pragma once

#include <string>

#include "core/project_settings.h"
#include "platform/clock.h"
#include "platform/files.h"
#include "platform/prompts.h"

namespace exchange {

// The boxes of frm_Shape. Check1 asks for the second set, <name>_gis.
struct Shape_boxes {
  std::string Drive1;  // drive of Dir1, "C:"; empty where paths have none
  std::string Dir1;    // folder of the set
  std::string Text1;   // base name
  bool Check1 = false;
};

// The boxes of frm_ShapeMake.
struct Shape_make_boxes {
  std::string Dir1;   // folder of the file list
  std::string File1;  // the picked file's name
  bool Check1 = false;
};

// Writes the shapes of a list as `base`.shp and `base`.shx, each over the one before, so that the last one stays, and
// over what the files held; then copies \def.dbf of the program folder to `base`.dbf. The list is read to its end
// before anything is written. False, with nothing written, for a list without a shape.
// File_failure for a list or a \def.dbf that can't be read and a file that can't be written, Type_failure for a
// coordinate that is no number. Nothing that was written is removed; when the .shx fails, an older .shp comes back.
bool shape_convert(platform::Files& files, const std::string& program_path, const std::string& input,
                   const std::string& base);

// shape.set of the program folder: the last target folder, one line. A missing file reads as an empty text.
std::string shape_set_r(platform::Files& files, const std::string& program_path);
void shape_set_w(platform::Files& files, const std::string& program_path, const std::string& folder);

// Drive of a folder, "C:"; empty where its path has none.
std::string drive_of(const std::string& folder);

// Opening of frm_Shape: presets Drive1 and Dir1 from shape.set; the project folder where that names no folder.
void frm_Shape_load(const core::Settings& settings, Shape_boxes& boxes, platform::Files& files);

// OK of frm_Shape. Nothing happens while \TMP.TMP is empty or Text1 has nothing but blanks. True when the sets are
// written: shape.set has the folder and the user was told the base name. False with a message for a folder that isn't
// there, a name that can't be a file's, a list without a shape and a shape that the ticked second set can't hold;
// nothing is written then. Failures as shape_convert has them go on to the dialog. The second set, the list's last
// shape as <name>_gis with the endings .shp, .shx, .dbf, .cpg and .prj, comes after the first, all of it or none.
bool frm_Shape_ok(const core::Settings& settings, const Shape_boxes& boxes, platform::Files& files,
                  platform::Prompts& prompts, platform::Clock& clock);

// OK of frm_ShapeMake: converts the picked file to the base name that is its path up to the first ".", wherever in the
// path that stands. False as frm_Shape_ok, and while no file is picked.
bool frm_ShapeMake_ok(const core::Settings& settings, const Shape_make_boxes& boxes, platform::Files& files,
                      platform::Prompts& prompts, platform::Clock& clock);

}  // namespace exchange
