// The pictures of the selected sheet and its neighbours to the east and south, and the loading of a sheet: its frame,
// its pictures and their places.
#pragma once

#include <array>
#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "drawing/sheet_picture.h"
#include "maps/canvas.h"
#include "maps/catalogue.h"
#include "platform/files.h"
#include "platform/pictures.h"

namespace maps {

inline constexpr int mosaic_slots = 9;

// Place of a slot in whole sheets from the main one, slot 0. A whole sheet has slots 1 to 3, a quarter sheet 1 to 8.
struct Slot_place {
  int east = 0, south = 0;
};
inline constexpr std::array<Slot_place, mosaic_slots> slot_places{{
    {0, 0},
    {0, 1},
    {1, 0},
    {1, 1},
    {2, 0},
    {2, 1},
    {0, 2},
    {1, 2},
    {2, 2},
}};

// Where a picture in memory came from; a file whose path, time and length are the same is not decoded again.
struct Picture_origin {
  std::string path;
  std::int64_t time_stamp = 0;
  std::int64_t length = 0;
  bool operator==(const Picture_origin&) const = default;
};

struct Mosaic {
  std::array<std::string, mosaic_slots> tile_name;  // "53393551.bmp"
  std::array<int, mosaic_slots> tile_state{};       // 1: the neighbour is loaded; slot 0 has no state
  std::array<drawing::Sheet_picture, mosaic_slots> picture;
  std::array<Picture_origin, mosaic_slots> origin;
  int columns = 1, rows = 1;  // of the layout: 1 x 1, 2 x 2 or 3 x 3
};

// What the sheet list and the settings say about the sheet to load.
struct Sheet_choice {
  std::string stem;       // List2's entry; what stands behind a "." in it is cut off
  std::string folder;     // of the sheet list: core::sheet_folder
  int option5 = 0;        // folder_25000 or folder_50000
  double label_size = 0;  // the value of Text1
};

struct Picture_failure {
  std::string file;  // its name
  platform::Picture_fault fault = platform::Picture_fault::none;
};

struct Load_report {
  bool main_missing = false;   // no main picture there: the one of the sheet before stays in its holder
  bool frame_missing = false;  // neither a catalogue row nor a .set file
  std::vector<Picture_failure> failures;
};

// Called with the number of pictures that are ready and of those to be read.
using Load_progress = std::function<void(int ready, int all)>;

enum class Sheet_kind { free, whole, quarter };

// A stem of six digits with a catalogue row is a whole sheet and one of eight digits a quarter sheet, both only where
// the 1:25,000 folder is set; anything else is a free picture without neighbours.
Sheet_kind sheet_kind(const Catalogue& catalogue, std::string_view stem, int option5);

// The stem that the sheet rules look at: up to the first ".".
std::string stem_of(std::string_view entry);

// File names of all nine slots of a sheet: the sheet itself and the neighbours that its kind has; the others are empty.
std::array<std::string, mosaic_slots> tile_names(const Catalogue& catalogue, std::string_view stem, int option5);

// Corner texts of a sheet: from the catalogue, from the code, or from the .set file beside the picture. Corner A is the
// upper left one. False with empty texts when there is none.
bool sheet_corners(platform::Files& files, const Catalogue& catalogue, const Sheet_choice& choice,
                   Corner_texts& corners);

// chizu_out: sets the canvas to the sheet and loads its pictures, decoding on all cores. A missing neighbour leaves its
// slot out; a missing main picture stays what it was, under the new frame; one that can't be read leaves its holder
// empty. The point files and the redraw are the caller's.
Load_report chizu_out(platform::Files& files, platform::Pictures& pictures, const Catalogue& catalogue,
                      const Sheet_choice& choice, Canvas& canvas, Mosaic& mosaic, const Load_progress& progress = {});

// The message for a picture that could not be loaded, in both languages.
std::string failure_text(const Picture_failure& failure, bool japanese);

}  // namespace maps
