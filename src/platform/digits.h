// Decimal digits, one by one.
#pragma once

#include <string>

namespace platform {

// Of the half-width ones only.
constexpr bool is_digit(char c) {
  return c >= '0' && c <= '9';
}

// "07" of 7; 100 and more keep all their digits.
std::string two_digits(int number);

}  // namespace platform
