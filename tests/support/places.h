// Where the tests find the files of this checkout. The paths stand in one source alone, so that the compiler cache
// knows every other one again in another checkout.
#pragma once

#include <string>

namespace support {

// `path` is below the checkout: "tests/road".
std::string in_checkout(const std::string& path);
// A file of tests/golden.
std::string golden_file(const std::string& name);
// A file of the figures that lie beside the checkout; they may be missing.
std::string shared_data(const std::string& name);

}  // namespace support
