// The number rules: the only place where a number becomes text or a text a number.
#pragma once

#include <string>
#include <string_view>

namespace platform {

// The longest numeric prefix, blanks skipped wherever they stand; sign, decimals, exponent (e, E, d, D). 0 when there
// is none. Beyond the range of a double: Division_failure is not raised, the nearest finite value is given.
double val(std::string_view text);

// A blank or a minus sign, the shortest decimal text that reads back to the same value, a blank. Never an exponent;
// 0.5 is " 0.5 ". The float form prints the shortest text of a single.
std::string print_number(double value);
std::string print_number(float value);
std::string print_number(int value);

// print_number without its two blanks: "-3.25", "0.5".
std::string number_text(double value);
std::string number_text(float value);
std::string number_text(int value);

// A pattern of "0" (required digit) and "#" (optional digit) around one ".": "0.#0" prints one or two decimals,
// "00.##0" one to three, "##0" none, "###" of 0 is empty. Rounds half away from zero on the value's decimal text of 15
// significant digits: 2.675 in "0.00" is "2.68". A minus sign stands in front; a value that rounds to zero has none.
std::string format_number(double value, std::string_view pattern);

// Half-width blanks off both ends.
std::string trim_text(std::string_view text);

double int_floor(double value);   // whole part downwards
double fix(double value);         // whole part toward zero
double round_even(double value);  // half to even
// Remainder of both operands rounded half to even; takes the sign of the dividend. Division_failure when the divisor
// rounds to 0.
long long mod(double dividend, double divisor);

}  // namespace platform
