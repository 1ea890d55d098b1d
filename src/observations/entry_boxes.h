// The boxes of the entry panel, named as its widgets are, and their way to a record and back.
#pragma once

#include <array>
#include <string>
#include <vector>

#include "observations/registry.h"

namespace observations {

struct Colour {
  double red = 0, green = 0, blue = 0;  // 0 to 255
  bool operator==(const Colour&) const = default;
};

// Text14 by index.
enum Text14_box { box_X, box_Y, box_Z, box_sen_keisha, box_sen_houkou, box_soukou, box_keisha, box_touroku_no };

struct Entry_boxes {
  std::string frame_title;
  std::array<std::string, 8> Text14;
  std::string Text13;                                 // measurement number
  std::string Combo1, Combo3;                         // mark, size
  std::vector<std::string> Combo1_list, Combo3_list;  // filled at the first use, in the language of that moment
  std::string Combo2;                                 // surface to copy to
  std::vector<std::string> Combo2_list;
  std::string Combo6, Combo7;  // stratum, measured object
  std::string Label3;          // picture or sheet file
  Colour Shape1, Shape4;       // of the mark; of lines and enclosures
  bool Check1 = false;         // keep Z between new records
  bool Check7 = false;         // used as a boundary
  bool Check9 = false;         // already turned to true north
  std::string memo;
};

// Sets every box that has a column, X and Y as "######0.#0". The memo and the lists stay.
void boxes_from_record(Entry_boxes& boxes, const Record& record);

// Moves the boxes into their columns. Columns that no box shows (20, 21, the vertices) stay, and so do the bytes
// without a character in texts that haven't changed. An unticked Check9 becomes "0".
void record_from_boxes(Record& record, const Entry_boxes& boxes);

// Puts a position into the boxes of X and Y, as "######0.#0".
void position_to_boxes(Entry_boxes& boxes, geodesy::Point position);
// What the boxes of X and Y read as.
geodesy::Point position_of(const Entry_boxes& boxes);

// Fills the lists of marks and sizes if this is their first use, and chooses the first mark and size 2 where nothing is
// chosen yet.
void fill_mark_lists(Entry_boxes& boxes, const std::string& language);

// The characters of the boxes that the file can't hold, each once: those without a code in code page 932, and in the
// columns of the record a comma and a line end too. Texts that are still those of `stored` don't count.
std::string characters_not_stored(const Entry_boxes& boxes, const Record& stored, const std::string& stored_memo);

}  // namespace observations
