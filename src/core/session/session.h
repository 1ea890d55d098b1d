// All that is loaded, in one struct made of the subsystems' own, and the ports that a procedure may need. It lives as
// long as the main window.
#pragma once

#include <array>
#include <functional>
#include <string>
#include <vector>

#include "core/interaction.h"
#include "core/project_settings.h"
#include "core/settings_files.h"
#include "drawing/surface.h"
#include "geodesy/datum.h"
#include "instruments/gps_tick.h"
#include "instruments/routes.h"
#include "maps/boundaries.h"
#include "maps/canvas.h"
#include "maps/catalogue.h"
#include "maps/mosaic.h"
#include "maps/zoom.h"
#include "observations/chiten_out.h"
#include "observations/declination.h"
#include "observations/reference_points.h"
#include "observations/registry.h"
#include "observations/registry_edit.h"
#include "observations/vertices.h"
#include "platform/clock.h"
#include "platform/files.h"
#include "platform/journal.h"
#include "platform/pictures.h"
#include "platform/processes.h"
#include "platform/prompts.h"
#include "platform/sheets.h"
#include "platform/sounds.h"

namespace session {

struct Ports {
  platform::Files& files;
  platform::Pictures& pictures;
  platform::Prompts& prompts;
  platform::Processes& processes;
  platform::Clock& clock;
  platform::Journal& journal;  // of what `files` writes; closed where nothing can be taken back
  platform::Sheets& sheets;
  platform::Sounds& sounds;
};

// The sheet list: a row's shown name (List1) and its file stem (List2). Rows count from 0; selected is -1 for none.
struct Sheet_list {
  std::vector<std::string> List1;
  std::vector<std::string> List2;
  int selected = -1;
};

// A line or rectangle that follows the mouse, drawn over the painted map. Twips.
struct Rubber {
  bool visible = false;
  double x0 = 0, y0 = 0, x1 = 0, y1 = 0;
};

// The section line's controls: where its ends stand on Picture1, in twips.
struct Section_controls {
  bool visible = false;
  double x0 = 0, y0 = 0, x1 = 0, y1 = 0;
};

// What the tab "View" and the canvas options say.
struct View_options {
  bool Check3 = true;   // sheet grid
  bool Check5 = true;   // observations
  bool Check2 = false;  // their numbers
  bool Check6 = false;  // enclosures see-through instead of their outline
  bool Check8 = true;   // routes
  double Text1 = 8;     // text size of labels
};

// A press that left no tool armed begins a drag; a press that a tool took doesn't.
struct Drag {
  bool prepared = false;
  double x = 0, y = 0;  // twips
};

// A sentence for the status bar.
struct Notice {
  std::string japanese, english;
};

struct Session {
  core::Settings settings;
  core::Settings_boxes boxes;
  core::Interaction flags;
  maps::Canvas canvas;
  maps::Catalogue catalogue;
  maps::Mosaic mosaic;
  maps::Boundaries boundaries;
  maps::Scroll_bars bars;  // HScroll1, VScroll1
  geodesy::Shift_table shifts;
  observations::Registry registry;
  observations::Reference_points reference_points;  // the base data below the registry
  observations::Coefficients coefficients;          // of the magnetic field, kept while their file is unchanged
  observations::Drawn_records drawn_records;        // what the registry's strikes and dips come to on this sheet
  observations::Entry entry;                        // the panel of the tab "Position"
  observations::Line_input line;                    // the line or enclosure that is being drawn
  instruments::Gps gps;                             // the live receiver
  instruments::Routes routes;                       // the routes that were chosen, kept while their files are unchanged
  observations::Click entry_click;                  // the last press that belongs to the entry: where a new record goes
  geodesy::Point line_end;        // the free end of the line that is being drawn, units of the records
  bool line_end_fixed = false;    // a right press has fixed it; otherwise it follows the mouse
  int highlighted = 0;            // record marked on the map and in the table beside it; 0: none
  Notice notice;                  // for the status bar, which takes it away
  std::string state_folder;       // where the undo journals lie; empty: there is none
  bool field_fault_told = false;  // that strikes are shown uncorrected
  Sheet_list sheets;
  core::Section_line section;  // map metres of the current sheet
  bool section_known = false;
  drawing::Point section_first;  // map metres, while its second end is pending
  Section_controls section_controls;
  Rubber section_rubber, zoom_rubber, model_rubber;
  View_options view;
  Drag drag;
  std::string current_sheet;               // stem of the sheet that is drawn; empty before the first
  int start_guard = 1;                     // 1 at start, 2 after the first pass
  bool long_table_told = false;            // that the table of sheet names is longer than the catalogue
  bool cut_map_project = false;            // the project holds a cut map picture
  std::vector<std::string> stratum_names;  // Combo6
  std::string boring_out_folder, rockview_folder;

  int option5() const { return boxes.Option5[1] ? maps::folder_50000 : maps::folder_25000; }
  bool sheet_shown() const { return !current_sheet.empty(); }
};

// How much of the window must be drawn again after a procedure.
enum class Redraw {
  none,
  overlay,  // what follows the mouse and the section controls
  view,     // the offsets changed: the painted picture moves
  all       // everything that lies on the map
};

}  // namespace session
