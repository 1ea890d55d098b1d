#include "support/places.h"

namespace support {

std::string in_checkout(const std::string& path) {
  return std::string(TERRANOTE_CHECKOUT) + "/" + path;
}
std::string golden_file(const std::string& name) {
  return in_checkout("tests/golden/" + name);
}
std::string shared_data(const std::string& name) {
  return in_checkout("../shared/data/" + name);
}

}  // namespace support
