#include "platform/digits.h"

#include "platform/numbers.h"

namespace platform {

std::string two_digits(int number) {
  return format_number(number, "00");
}

}  // namespace platform
