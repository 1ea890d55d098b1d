// The plain walk through the parameter table that the index stands for.
#pragma once

#include "geodesy/shift_table.h"

namespace geodesy_test {

inline int walk(const geodesy::Shift_table& table, int code, int from) {
  for (int row = from; row <= table.count; ++row)
    if (table.mesh[row] == code) return row;
  for (int row = 1; row < from && row <= table.count; ++row)
    if (table.mesh[row] == code) return row;
  return 0;
}

}  // namespace geodesy_test
