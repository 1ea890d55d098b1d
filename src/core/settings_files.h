// The small settings files of the program folder and of a project, each with its reader and its writer. A missing or
// empty file reads as nothing: an empty text, or a struct left as it was. A writer that can't write raises
// File_failure and leaves the old file.
#pragma once

#include <string>
#include <vector>

#include "platform/files.h"

namespace core {

// dempath.dat: folder of the 50 m elevation data. Every start writes the program folder over it.
std::string dempath_r(platform::Files& files, const std::string& program_path);
void dempath_w(platform::Files& files, const std::string& program_path, const std::string& folder);

// BoringOut.set: folder of the borehole output.
std::string boring_out_r(platform::Files& files, const std::string& program_path);
void boring_out_w(platform::Files& files, const std::string& program_path, const std::string& folder);

// Rockview3d.set: folder of the Rockview3D installation. A model's \chisou_men\Rockview3D.set is another file.
std::string rockview3d_r(platform::Files& files, const std::string& program_path);
void rockview3d_w(platform::Files& files, const std::string& program_path, const std::string& folder);

// setpath2.dat: the last folder of borehole files.
std::string setpath2_r(platform::Files& files, const std::string& program_path);
void setpath2_w(platform::Files& files, const std::string& program_path, const std::string& folder);

// ProAtlas.ini: class name of the external map program, "ProAtlasSV.Map" where the file names none. Read only.
std::string pro_atlas_class(platform::Files& files, const std::string& program_path);

// RockviewPath.dat: the last 3D model job.
struct Rockview_path {
  std::string Drive9;         // drive of the model folder
  std::string Dir9;           // parent folder of the model
  std::string Text11;         // model name
  int Check4 = 0;             // 1: the observations of the range are copied
  int Check11 = 0;            // 1: the ground is made from altitude points
  std::string Text15 = "30";  // grid count
};
// Lines that the file doesn't have leave their members.
void rockview_path_r(platform::Files& files, const std::string& program_path, Rockview_path& job);
void rockview_path_w(platform::Files& files, const std::string& program_path, const Rockview_path& job);

// danmen.dat of the program folder: the last section line drawn on the map, map metres.
struct Section_line {
  double x1 = 0, y1 = 0;
  double x2 = 0, y2 = 0;
};
// False, and the line as it was, unless the file has all three lines.
bool danmen_line_r(platform::Files& files, const std::string& program_path, Section_line& line);
void danmen_line_w(platform::Files& files, const std::string& program_path, const Section_line& line);

// RSPORT.dat: link settings of the clinometer dialogs.
struct Rsport {
  std::string Combo8;                           // COM port number
  std::string Text15;                           // instrument number; three digits in the file
  std::string DriveGPS, DirGPS, FileGPS;        // the GPS log
  std::string DriveImage, DirImage, FileImage;  // the picture folder
  std::string DriveGPS2, DirGPS2, FileGPS2;     // a second GPS log
  std::string Text1;                            // box of the reader dialog
  int Check3 = 0;                               // 1: the port is sought at each reading
};
// Lines that the file doesn't have leave their members.
void rsport_r(platform::Files& files, const std::string& program_path, Rsport& link);
void rsport_w(platform::Files& files, const std::string& program_path, const Rsport& link);
// As the live dialog writes it: lines 1 and 2, and no more.
void rsport_w2(platform::Files& files, const std::string& program_path, const Rsport& link);

// psettei.dat: the folders of the picture dialog.
struct Picture_folders {
  std::string Dir1;  // source
  std::string Dir2;  // target
};
// A folder that doesn't exist leaves its member.
void psettei_r(platform::Files& files, const std::string& program_path, Picture_folders& folders);
void psettei_w(platform::Files& files, const std::string& program_path, const Picture_folders& folders);

// \chisou_men\yoshiki.ini of a project: name of the log form in use, "Drillfile_MAP" for one.
std::string yoshiki_r(platform::Files& files, const std::string& project_path);
void yoshiki_w(platform::Files& files, const std::string& project_path, const std::string& form);

// \chisou_men\zahyo.dat of a 3D model: its range.
struct Degrees {
  int degrees = 0, minutes = 0;
  double seconds = 0;
};
struct Zahyo {
  double left = 0, top = 0, right = 0, bottom = 0;  // corners on the model picture
  Degrees left_lon, top_lat, right_lon, bottom_lat;
  std::string dem_folder;  // as read from dempath.dat
  int datum_mode = 0;
};
inline constexpr std::size_t zahyo_limit = 100;  // lines that a reader keeps

void zahyo_w(platform::Files& files, const std::string& model_path, const Zahyo& range);
// The lines as they stand, zahyo_limit at most.
std::vector<std::string> zahyo_lines_r(platform::Files& files, const std::string& model_path);
// False, and the range as it was, when the file is shorter than the twenty lines of the corners.
bool zahyo_r(platform::Files& files, const std::string& model_path, Zahyo& range);

}  // namespace core
