// The dialog "画像とテキストの登録" (frm_sel_picture): pictures, sounds and a text bound to a point. Three places take
// files from a folder; a picture is turned there, and the store puts what the places hold into the point's folder as
// bitmaps, behind the pictures that the point has already. See point_file.h for the files.
#pragma once

#include <array>
#include <string>
#include <vector>

#include "core/project_settings.h"
#include "observations/point_file.h"
#include "observations/registry.h"
#include "platform/files.h"
#include "platform/journal.h"
#include "platform/pictures.h"
#include "platform/processes.h"
#include "platform/prompts.h"
#include "platform/sounds.h"

namespace observations {

inline constexpr int picture_places = 3;

// One of the places.
struct Picture_place {
  std::string path;       // of the file as it lies; empty: the place is free
  int quarter_turns = 0;  // clockwise, 0 to 3, by which the picture is shown and stored
};

// The boxes of the dialog.
struct Picture_boxes {
  std::string Text1;                  // point name
  std::string Text2, Text3;           // X, Y
  std::string Dir1;                   // the folder that the files come from
  std::string Dir2;                   // the point's folder in the picture store
  std::string File1;                  // the file chosen in Dir1
  std::vector<Listed_picture> File2;  // what the point has in the store
  std::string File2_point;            // the point whose list that is; empty where its list can't be read
  std::array<Picture_place, picture_places> places;
};

struct Picture_context {
  const core::Settings& settings;
  platform::Files& files;
  platform::Pictures& pictures;
  platform::Prompts& prompts;
  platform::Processes& processes;
  platform::Sounds& sounds;
  platform::Journal& journal;
};

// Opening: the folders of psettei.dat, the project folder where it tells none, and the point's name and position.
void frm_sel_picture_load(Picture_context context, Picture_boxes& boxes, const std::string& name, const std::string& X,
                          const std::string& Y);

// The pictures and sounds of a folder, in the order of their names.
std::vector<std::string> File1_list(platform::Files& files, const std::string& folder);

// Another point: File2 and Dir2 become its own. `edit`: X and Y too are those of its .dat file. True when the point is
// in the store.
bool Text1_change(Picture_context context, Picture_boxes& boxes, bool edit);

// Another folder of the store: its point. False with a message, and nothing changed, when it is no point's folder of
// this project.
bool Dir2_change(Picture_context context, Picture_boxes& boxes, const std::string& folder, bool edit);

// The registration numbers of the table that have a .dat file, each once, in the order of the table.
std::vector<std::string> points_in_store(Picture_context context, const Registry& registry);

// The point's text as its .txt file has it; empty when there is none.
std::string point_text(Picture_context context, const Picture_boxes& boxes);

// Takes a picture out of the point's list, as the next store writes it; its file stays. An index of File2.
void File2_remove(Picture_boxes& boxes, std::size_t index);

enum class Taken { nothing, picture, sound };
// Takes the chosen file into the first, second and third place. A picture comes upright as its camera tells; a sound is
// played, by the program that goes with it where the machine has no player.
Taken Command10(Picture_context context, Picture_boxes& boxes);
Taken Command11(Picture_context context, Picture_boxes& boxes);
Taken Command12(Picture_context context, Picture_boxes& boxes);
// Takes a picture of the store (an index of File2) into a free place, to be turned and stored again. The place; -1 when
// it is no picture, its file is missing or no place is free, the last with a message.
int place_from_store(Picture_context context, Picture_boxes& boxes, std::size_t index);

// A file of the store, or any other, played as Command10 does.
void sound_out(Picture_context context, const std::string& path);

// Turns the picture of a place by a quarter, clockwise and counter-clockwise: it goes to \tmp0.bmp of the program
// folder as it is, and turned to \tmp.bmp. False, and nothing turned, when there is no picture, and with a message when
// it can't be read or written.
bool gazou_kaiten(Picture_context context, Picture_place& place);
bool gazou_kaiten2(Picture_context context, Picture_place& place);

// The store. Writes psettei.dat, asks before it replaces a picture of the same name, then writes the pictures, the
// .dat file and, where there is none, the .txt file as one operation of the journal. The places are free afterwards.
// False with one message, and no file of the project written: without a name, with a name or a picture's name that
// can't be a file's or be stored, and with a picture or a list of pictures that can't be read. False with a message too
// when a file can't be written; the .dat file then is as it was.
bool Command5(Picture_context context, Picture_boxes& boxes);

// Opens the point's .txt file with the program that goes with it.
bool Command7(Picture_context context, const Picture_boxes& boxes);

}  // namespace observations
