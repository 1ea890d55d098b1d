#include "platform/numbers.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <limits>

#include "platform/digits.h"
#include "platform/failures.h"

namespace platform {
namespace {

// Walks over a text and steps over the blanks.
struct Scan {
  std::string_view text;
  std::size_t at = 0;

  char peek() {
    while (at < text.size() && text[at] == ' ') ++at;
    return at < text.size() ? text[at] : '\0';
  }
  char take() {
    const char c = peek();
    ++at;
    return c;
  }
};

void take_digits(Scan& scan, std::string& to) {
  while (is_digit(scan.peek())) to += scan.take();
}

// The exponent behind the digits, as "e-5"; empty when no digit follows the letter.
std::string exponent_of(Scan scan) {
  const char letter = scan.peek();
  if (letter != 'e' && letter != 'E' && letter != 'd' && letter != 'D') return {};
  scan.take();
  std::string exponent = "e";
  if (scan.peek() == '-' || scan.peek() == '+') exponent += scan.take();
  const std::size_t sign_end = exponent.size();
  take_digits(scan, exponent);
  return exponent.size() > sign_end ? exponent : std::string{};
}

// Whether digits that don't fit a double are too large (and not too small): the power of ten of the first digit other
// than 0 decides.
bool is_large(std::string_view mantissa, std::string_view exponent) {
  const std::size_t point = std::min(mantissa.find('.'), mantissa.size());
  const std::size_t first = mantissa.find_first_not_of("0.");
  const double place = static_cast<double>(point) - static_cast<double>(first);
  if (exponent.empty()) return place > 0;
  double power = 0;
  for (const char c : exponent)
    if (is_digit(c)) power = power * 10 + (c - '0');
  return place + (exponent[1] == '-' ? -power : power) > 0;
}

// The digits of a value without its sign: 0.d1d2d3... times ten to the power `point`. 0 has no digits.
struct Decimal {
  bool negative = false;
  std::string digits;
  int point = 0;
};

// From the form d.ddde+xx that to_chars writes.
Decimal decimal_of(std::string_view scientific, bool negative) {
  const std::size_t letter = scientific.find('e');
  Decimal decimal;
  for (const char c : scientific.substr(0, letter))
    if (is_digit(c)) decimal.digits += c;
  const std::size_t last = decimal.digits.find_last_not_of('0');
  decimal.digits.resize(last == std::string::npos ? 0 : last + 1);
  if (decimal.digits.empty()) return decimal;
  int power = 0;
  const std::size_t digits = letter + (scientific[letter + 1] == '+' ? 2 : 1);
  std::from_chars(scientific.data() + digits, scientific.data() + scientific.size(), power);
  decimal.negative = negative;
  decimal.point = power + 1;
  return decimal;
}

template <typename Real>
void check_finite(Real value) {
  if (!std::isfinite(value)) throw Division_failure("a value that is not a finite number can't be written");
}

template <typename Real>
Decimal shortest_decimal(Real value) {
  check_finite(value);
  std::array<char, 64> text;
  const auto end =
      std::to_chars(text.data(), text.data() + text.size(), std::abs(value), std::chars_format::scientific);
  return decimal_of({text.data(), end.ptr}, std::signbit(value));
}

constexpr int significant_digits = 15;

Decimal rounded_decimal(double value) {
  check_finite(value);
  std::array<char, 64> text;
  const auto end = std::to_chars(text.data(), text.data() + text.size(), std::abs(value), std::chars_format::scientific,
                                 significant_digits - 1);
  return decimal_of({text.data(), end.ptr}, std::signbit(value));
}

// Rounds to `decimals` places behind the point, half away from zero.
void round_to(Decimal& decimal, int decimals) {
  const int keep = decimal.point + decimals;
  if (keep >= static_cast<int>(decimal.digits.size())) return;
  const bool up = keep >= 0 && decimal.digits[static_cast<std::size_t>(keep)] >= '5';
  decimal.digits.resize(static_cast<std::size_t>(std::max(keep, 0)));
  if (up) {
    while (!decimal.digits.empty() && decimal.digits.back() == '9') decimal.digits.pop_back();
    if (decimal.digits.empty()) {
      decimal.digits.assign(1, '1');
      ++decimal.point;
    } else {
      ++decimal.digits.back();
    }
  }
  const std::size_t last = decimal.digits.find_last_not_of('0');
  decimal.digits.resize(last == std::string::npos ? 0 : last + 1);
}

// The digits in front of the point, at least `least` of them, and those behind it, at least `decimals`.
std::string lay_out(const Decimal& decimal, int least, int decimals) {
  const int count = static_cast<int>(decimal.digits.size());
  const auto digit = [&](int place) {
    return place >= 0 && place < count ? decimal.digits[static_cast<std::size_t>(place)] : '0';
  };
  std::string text = decimal.negative && count > 0 ? "-" : "";
  const int point = count > 0 ? decimal.point : 0;
  for (int place = std::min(point - least, point > 0 ? 0 : point); place < point; ++place) text += digit(place);
  const int end = std::max(count, point + decimals);
  if (end > point) text += '.';
  for (int place = point; place < end; ++place) text += digit(place);
  return text;
}

template <typename Real>
std::string shortest_text(Real value) {
  return lay_out(shortest_decimal(value), 1, 0);
}

// A number column: a blank where a minus sign would stand, and a blank behind.
std::string column(const std::string& number) {
  return (number.front() == '-' ? "" : " ") + number + " ";
}

}  // namespace

double val(std::string_view text) {
  Scan scan{text};
  const char sign = scan.peek();
  if (sign == '-' || sign == '+') scan.take();
  std::string number;
  take_digits(scan, number);
  std::size_t digits = number.size();
  if (scan.peek() == '.') {
    number += scan.take();
    take_digits(scan, number);
    digits = number.size() - 1;
  }
  if (digits == 0) return 0;
  const std::string exponent = exponent_of(scan);
  const std::string whole = number + exponent;
  double value = 0;
  const auto result = std::from_chars(whole.data(), whole.data() + whole.size(), value);
  if (result.ec == std::errc::result_out_of_range)
    value = is_large(number, exponent) ? std::numeric_limits<double>::max() : 0;
  return sign == '-' && value != 0 ? -value : value;
}

std::string print_number(double value) {
  return column(number_text(value));
}
std::string print_number(float value) {
  return column(number_text(value));
}
std::string print_number(int value) {
  return column(number_text(value));
}

std::string number_text(double value) {
  return shortest_text(value);
}
std::string number_text(float value) {
  return shortest_text(value);
}
std::string number_text(int value) {
  return std::to_string(value);
}

std::string format_number(double value, std::string_view pattern) {
  const std::size_t point = std::min(pattern.find('.'), pattern.size());
  const std::string_view whole = pattern.substr(0, point);
  const std::string_view decimals = pattern.substr(std::min(point + 1, pattern.size()));
  Decimal decimal = rounded_decimal(value);
  round_to(decimal, static_cast<int>(decimals.size()));
  return lay_out(decimal, static_cast<int>(std::count(whole.begin(), whole.end(), '0')),
                 static_cast<int>(std::count(decimals.begin(), decimals.end(), '0')));
}

std::string trim_text(std::string_view text) {
  const std::size_t first = text.find_first_not_of(' ');
  if (first == std::string_view::npos) return {};
  return std::string(text.substr(first, text.find_last_not_of(' ') - first + 1));
}

// 0 is added so that a value that comes to zero is the positive one.
double int_floor(double value) {
  return std::floor(value) + 0.0;
}
double fix(double value) {
  return std::trunc(value) + 0.0;
}
double round_even(double value) {
  return std::nearbyint(value) + 0.0;
}

long long mod(double dividend, double divisor) {
  constexpr double limit = 9223372036854775808.0;  // two to the power 63
  const double a = round_even(dividend);
  const double b = round_even(divisor);
  if (b == 0) throw Division_failure("a remainder was asked for with the divisor 0");
  if (!(std::abs(a) < limit) || !(std::abs(b) < limit))
    throw Division_failure("a remainder was asked for of a value that is too large");
  return static_cast<long long>(a) % static_cast<long long>(b);
}

}  // namespace platform
