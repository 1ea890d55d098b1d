#include "platform/natural_order.h"

#include <algorithm>

#include "platform/digits.h"

namespace platform {
namespace {

template <typename T>
int order_of(const T& a, const T& b) {
  return a < b ? -1 : a > b ? 1 : 0;
}

// Takes the digits that stand at the front of a text off it and gives them without their zeros in front.
std::string_view taken_digits(std::string_view& text) {
  std::size_t end = 0;
  while (end < text.size() && is_digit(text[end])) ++end;
  std::string_view digits = text.substr(0, end);
  text.remove_prefix(end);
  digits.remove_prefix(std::min(digits.find_first_not_of('0'), digits.size()));
  return digits;
}

}  // namespace

int natural_order(std::string_view a, std::string_view b) {
  while (!a.empty() && !b.empty()) {
    if (is_digit(a.front()) && is_digit(b.front())) {
      const std::string_view x = taken_digits(a);
      const std::string_view y = taken_digits(b);
      if (const int order = order_of(x.size(), y.size())) return order;
      if (const int order = order_of(x, y)) return order;
      continue;
    }
    if (const int order = order_of(static_cast<unsigned char>(a.front()), static_cast<unsigned char>(b.front())))
      return order;
    a.remove_prefix(1);
    b.remove_prefix(1);
  }
  return order_of(a.size(), b.size());
}

}  // namespace platform
