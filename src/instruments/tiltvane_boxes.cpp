#include "instruments/tiltvane_boxes.h"

#include "observations/declination.h"

namespace instruments {

Tiltvane_boxes Tiltvane_boxes_r(platform::Files& files, const std::string& program_path) {
  Tiltvane_boxes boxes;
  boxes.Combo8 = "05";
  boxes.Text15 = "999";
  boxes.Text1 = "0";
  core::rsport_r(files, program_path, boxes);
  const std::string declination = observations::henkaku_r(files, program_path);
  if (!declination.empty()) boxes.Text1 = declination;
  return boxes;
}

}  // namespace instruments
