// Arithmetic that leaves its range: an overflow or an invalid operation in a calculation of this floor ends the
// operation with a Division_failure, where plain floating point would go on with an infinity.
#pragma once

#include <cmath>
#include <limits>

#include "platform/failures.h"

namespace geodesy {

// The value itself. Division_failure when it is not a finite number.
inline double finite(double value) {
  if (!std::isfinite(value)) throw platform::Division_failure("arithmetic left its range");
  return value;
}

// Narrowed to single precision. Division_failure when it is not finite or does not fit.
inline float single(double value) {
  if (!(std::abs(value) <= std::numeric_limits<float>::max()))
    throw platform::Division_failure("arithmetic left the range of single precision");
  return static_cast<float>(value);
}

// The whole part toward zero. Division_failure when it does not fit 32 bits.
inline int whole(double value) {
  const double part = std::trunc(value);
  if (!(part >= std::numeric_limits<int>::min() && part <= std::numeric_limits<int>::max()))
    throw platform::Division_failure("arithmetic left the range of a whole number");
  return static_cast<int>(part);
}

}  // namespace geodesy
