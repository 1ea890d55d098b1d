#include "faults/saving_operations.h"

namespace support {

const std::vector<Writing_source>& writing_sources() {
  static const std::string saved = "record changed, with its memo", is_new = "pictures of a new point";
  static const std::string undone = "undo of a changed record", redone = "redo of a changed record";
  static const std::vector<Writing_source> all{
      {"core/language.cpp", 1, {"language"}},
      {"core/project_folders.cpp", 2, {"start of the program"}},
      {"core/project_settings.cpp",
       6,
       {"basic settings", "new project folder", "new registration file", "registration files deleted"}},
      {"core/session/undo.cpp", 1, {"start of the program"}},
      {"core/session/first_start.cpp", 5, {"program folder of an installed program", "sample put in place"}},
      {"core/settei.cpp", 2, {"basic settings", "settings read"}},
      {"core/settings_files.cpp",
       6,
       {"start of the program", "borehole folder", "Rockview3D folder", "borehole file folder", "log form", "model job",
        "section line", "range of a model", "download by the small dialog", is_new}},
      {"drawing/picture_files.cpp", 3, {"map picture as a bitmap", "map picture as PNG", "picture turned"}},
      {"exchange/file_set.cpp", 2, {"Shapefile with its second set", "Shapefile of a list"}},
      {"exchange/shape_export.cpp", 2, {"Shapefile with its second set", "Shapefile of a list"}},
      {"exchange/shape_list.cpp", 1, {"list of the drawn shape"}},
      {"instruments/measurement_files.cpp", 3, {"ticked measurements", "clinometer file deleted"}},
      {"instruments/registry_writing.cpp", 2, {"measurements into the registry"}},
      {"instruments/route_lists.cpp", 1, {"choice of text tracks", "choice of NMEA logs"}},
      {"instruments/stereo_net_file.cpp", 2, {"stereo net file", "picture of the stereonet"}},
      {"instruments/tiltvane_link.cpp",
       6,
       {"download of the clinometer", "download by the small dialog", "search for the clinometer",
        "broken download read again"}},
      {"instruments/track_log.cpp", 1, {"track log"}},
      {"maps/sheet_index.cpp", 1, {"display settings of the sheet index"}},
      {"observations/area.cpp", 2, {"area"}},
      {"observations/declination.cpp", 1, {"declination", "stereo net file"}},
      {"observations/input_sheet.cpp", 2, {"input sheet"}},
      {"observations/link.cpp", 1, {"log handed to the log program"}},
      {"observations/memo.cpp", 3, {saved}},
      {"observations/photo_read.cpp", 2, {"points from photos"}},
      {"observations/picture_store.cpp", 6, {is_new, "pictures of a point that has some"}},
      {"observations/registry.cpp", 2, {saved}},
      {"observations/registry_edit.cpp", 1, {"record deleted"}},
      {"observations/registry_save.cpp",
       5,
       {saved, "new record, and a memo of its number from a record that is gone", "record added to another surface"}},
      // The journal between the program and its files, its own files, and what it gives back.
      {"platform/journal.cpp", 3, {saved}},
      {"platform/journal.h", 2, {saved}},
      {"platform/journal_moves.cpp", 2, {undone, redone}},
      {"platform/journal_store.cpp", 13, {undone, redone}},
      // A workbook is filled in a folder of its own and then written as any other file; tests/gui/qt_sheets_test.cpp
      // has its faults, since it needs the toolkit and an office program.
      {"platform/qt/qt_sheets.cpp", 2, {}},
  };
  return all;
}

}  // namespace support
