// The sample's tables: sheet catalogues, frames, boundaries, datum shifts, field coefficients, strata. Each procedure
// gives a file's whole content.
#pragma once

#include <string>
#include <vector>

#include "make_sample/country.h"
#include "make_sample/place.h"

namespace sample {

std::string zumei_bytes(const std::vector<Sheet>& sheets);             // ZUMEI.CSV
std::string fifty_thousand_bytes(const std::vector<Sheet>& sheets);    // 50000.CSV
std::string frame_bytes(const Frame& frame);                           // .set of twelve numbers
std::string lettered_frame_bytes(const Frame& frame);                  // .set of sixteen fields with letters
std::string boundary_bytes(const Country& country, const char* name);  // .mps of one municipality
std::string shift_bytes();                                             // TKY2JGD.par for the sheets and a margin
std::string field_bytes();                                             // igrf10.coef
std::string stack_bytes();                                             // souzyo.dat

struct Surface_record {
  std::string name, line;
};
std::vector<Surface_record> surface_records();  // a .par for each surface of the stack, the lowest first

}  // namespace sample
