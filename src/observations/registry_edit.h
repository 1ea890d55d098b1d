// Making, changing, moving and deleting a record from the map: the menu entries of the map and the state of the entry
// panel. What is typed is stored by registry_save.h.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "core/project_settings.h"
#include "maps/canvas.h"
#include "observations/entry_boxes.h"
#include "observations/registry.h"
#include "observations/registry_numbers.h"
#include "platform/clock.h"
#include "platform/files.h"
#include "platform/prompts.h"

namespace observations {

inline constexpr double pick_radius = 50;  // units of the record's own coordinates; a record at it is out of reach
inline constexpr platform::Message several_files{
    "基本設定で地点登録ファイルが複数選択されている場合この機能は使えません。",
    "基本設定で地点登録ファイルが複数選択されている場合この機能は使えません。"};
inline constexpr platform::Message no_point_found{"削除する点が特定できません。", "削除する点が特定できません。"};

// The entry panel beside its boxes.
struct Entry {
  Entry_boxes boxes;
  int touroku = 0;              // current record; 0: none
  bool open = false;            // the entry panels are shown
  bool unsaved = false;         // the current record was made by mnu_sinki and is in no file yet
  std::string stored_memo;      // the memo as it was read
  std::string stored_number;    // column 9 as it was when the panel was filled
  int reads = 0;                // Registry::reads at that moment
  std::string file;             // the registration file at that moment; empty before the first
  std::optional<double> left;   // where the panel is to open, twips; none: where it is
  bool marker_visible = false;  // the marker Shape, which is centred on the position
  maps::Canvas_point marker;    // canvas units
};

// Where the mouse was on the map.
struct Click {
  maps::Map_position position;
  double x = 0;  // twips
};

struct Edit_context {
  core::Settings& settings;
  maps::Canvas& canvas;
  platform::Files& files;
  platform::Clock& clock;
  platform::Prompts& prompts;
};

// The position that a click stores: geographic units on a sheet with a geographic frame, metres otherwise.
geodesy::Point stored_position(const maps::Canvas& canvas, const maps::Map_position& position);

// The record nearest to a click and nearer than pick_radius, each in its own kind of coordinates; of equal distances
// the first. 0 when there is none.
int nearest_record(const Registry& registry, const maps::Map_position& position);

enum class Right_press { moved, menu, refused };
// A right press on the map: moves the record while the panel is open; otherwise the menu comes up, and the record under
// the press becomes the current one (0: none is there). Refused, with a message, with several registration files.
Right_press right_press(Edit_context context, Entry& entry, Registry& registry, const Click& click);

// New: adds a row to the table, gives it the next number of the scheme and opens the panel for it. `List1` fills the
// list of surfaces. False, with a message, with several registration files; Subscript_failure when the table is full. A
// row from an earlier mnu_sinki that was never saved is given back first.
bool mnu_sinki(Edit_context context, Entry& entry, Registry& registry, Numbering scheme, const Click& click,
               const std::vector<std::string>& List1);

// Change: opens the panel for the current record, or else for the one near the click. False when there is none. The
// vertices of a line or an enclosure are those of the current record.
bool mnu_henkou(Edit_context context, Entry& entry, Registry& registry, const Click& click);

// Delete: takes the line of the record out of the file after a question. True when the table must be read and drawn
// again. Subscript_failure for a file of more than 1,000 lines. Nothing is written, with a message, when the file can't
// be read or written or holds another record at that place by now, or when the panel's record is of another file.
bool mnu_del(Edit_context context, Entry& entry, Registry& registry, const Click& click);

// Puts the click's position into the boxes and the marker there. Nothing is stored.
void move_entry(Edit_context context, Entry& entry, const Click& click);

// Whether another registration file was chosen since the panel was filled: its record belongs to the file before.
bool is_of_another_file(const core::Settings& settings, const Entry& entry);

// What the question before a deletion calls a record: the measurement number, else the registration number.
std::string record_label(const Record& record);

// Closes the panel without a save; a row that was never saved is given back.
void entry_close(Entry& entry, Registry& registry);

// After the table was read again while the panel is open: a row that is in no file yet comes back behind the others,
// and a record that is still at its place keeps the line that was drawn for it. `before` is the record as it was.
void entry_follow_read(Entry& entry, Registry& registry, const Record& before);

}  // namespace observations
