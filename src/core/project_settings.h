// The state of a project that the whole program reads, and the basic settings that it is set from.
//
// Two folders hold everything: the program folder, the same for every project (platform/user_folders.h tells where it
// is), and the project folder, whose subfolder \chisou_men holds the project's data. A settings file is a fixed
// sequence of lines in code page 932; the meaning of a line is its position. The basic settings' own file is
// settei.ini: see settei.h.
#pragma once

#include <array>
#include <string>
#include <vector>

#include "platform/files.h"
#include "platform/prompts.h"

namespace core {

enum Datum_mode { tokyo_datum = 0, wgs_84 = 1 };

struct Settings {
  std::string program_path;
  std::string project_path;
  std::string map_path;  // the folder of the sheet list
  std::string language = "English";
  bool english_seen = false;  // English captions were set in this run: see language.h
  int datum_mode = tokyo_datum;
  std::string registry_name;  // file name of the point registration file in use, "genchi.csv"
  int registry_count = 0;     // selected point registration files
};

// An entry of the list of point registration files.
struct File_choice {
  std::string name;
  bool selected = false;
  bool operator==(const File_choice&) const = default;
};

// The boxes of the basic settings dialog, named as its widgets are. Option groups hold one true value at most.
struct Settings_boxes {
  std::string Dir3;     // folder of the input frame file
  std::string File4;    // name of the input frame file
  std::string Dir4;     // the project folder
  std::string Label11;  // the project folder as it was last read
  std::string Combo4 = "04";
  std::string Combo5 = "9600";
  std::array<bool, 3> Option4 = {true, false, false};  // numbering: by entry date, by third-level mesh, typed in
  std::array<bool, 2> Option5 = {true, false};         // sheet folder: \map, \map50000
  // Input sheet: its sheet's name; the cells of map name, latitude, longitude and point number.
  std::array<std::string, 5> Text3 = {"sheet1"};
  bool Option6 = true, Option7 = false;         // Tokyo Datum, WGS-84
  std::vector<File_choice> File11;              // *.csv of \chisou_men of Dir4
  std::string Text5 = "1000", Text6 = "1000";   // map cut: half range from the centre, metres
  std::string Text7 = "500", Text8 = "100";     // map cut: scale bar and its division, metres
  std::string Text9 = "6000", Text10 = "6000";  // map cut: picture size
  std::string Dir10;                            // the map folder of the sheet list; empty: the folder of Option5
  bool Option8 = true, Option9 = false;         // number shown: registration, strike and dip measurement
  std::string Text2;                            // name of a new project folder
  std::string Text4;                            // name of a new point registration file, without ".csv"
};

// Opening of the dialog from the menu: while settei.ini has no length the folder boxes point into the program folder.
// Refreshes File11.
void menu_settei(const Settings& settings, Settings_boxes& boxes, platform::Files& files);

// Save. Checks the boxes, writes settei.ini whole, sets the project state and makes \chisou_men and \data. False with a
// message when no file of File11 is selected, a text can't be stored or the file can't be written: the dialog stays
// open, and neither boxes, state nor file have changed. Text9 may change with Text10 to keep the cut's proportion.
bool Command10(Settings& settings, Settings_boxes& boxes, platform::Files& files, platform::Prompts& prompts);

// Cancel. `boxes` are those from before the edits; settei.ini is read into them again. False, with the request for the
// settings, while there is no settei.ini.
bool Command11(Settings& settings, Settings_boxes& boxes, platform::Files& files, platform::Prompts& prompts);

// Makes the project folder named by Text2 below Dir4, with \chisou_men. The new folder's path; empty with an empty name
// or, with a message, when it can't be made.
std::string Command14(const Settings_boxes& boxes, platform::Files& files, platform::Prompts& prompts);

// Makes the empty point registration file named by Text4 and refreshes File11; it is selected when no other file is. A
// file that exists is left as it is. False when none was made: with a message for a name that holds a comma, isn't that
// of a file in \chisou_men itself, or can't be made.
bool Command44(const Settings& settings, Settings_boxes& boxes, platform::Files& files, platform::Prompts& prompts);

// Deletes the selected files of File11 after a question and refreshes it. A file that can't be deleted stays.
bool Command45(Settings_boxes& boxes, platform::Files& files, platform::Prompts& prompts);

// The project folder's box was given another folder: File11 lists that folder's files, none selected.
void Dir4_change(Settings_boxes& boxes, const std::string& folder, platform::Files& files);

// Fills File11 with the *.csv of \chisou_men of Dir4; names that stay keep their selection.
void File11_refresh(Settings_boxes& boxes, platform::Files& files);

// A choice of the sheet folder: Dir10 follows it unless it names another folder than the two standard ones.
void Option5_click(const Settings& settings, Settings_boxes& boxes, int index);

// The folder that the sheet list shows: map_path, or the folder of Option5 where map_path is
// empty or one of the two standard folders.
std::string sheet_folder(const Settings& settings, const Settings_boxes& boxes);

}  // namespace core
