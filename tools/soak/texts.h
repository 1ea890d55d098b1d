// What is typed into boxes: good values of the field, wrong ones, garbage.
#pragma once

#include <string>

#include "soak/random.h"

namespace soak {

// What a box takes; it decides how wild the text may be.
enum class Box {
  record,  // ends up as a column of a registration file: no comma, which moves all columns behind it, and no "-9999",
           // which deletes the record, both as documented; everything else
  number,
  folder,
  free
};

// `root` is the folder of the run: the folders that are typed lie in it, but for some that lie nowhere.
std::string text_for(Random& random, Box box, const std::string& root);
std::string strike(Random& random);
std::string dip(Random& random);

}  // namespace soak
