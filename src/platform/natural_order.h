// The order of texts that hold numbers, as a person expects it: "ttyUSB2" before "ttyUSB10". The toolkit's collator
// knows it only where the machine's language has one.
#pragma once

#include <string_view>

namespace platform {

// Below, at or above 0 as `a` stands before, with or behind `b`: runs of half-width digits by their value, all else
// byte by byte. Case counts; who wants it otherwise folds both texts first.
int natural_order(std::string_view a, std::string_view b);

}  // namespace platform
