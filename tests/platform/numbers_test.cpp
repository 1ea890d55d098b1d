#include "platform/numbers.h"

#include <gtest/gtest.h>

#include <cfloat>
#include <clocale>
#include <cmath>
#include <limits>
#include <random>
#include <vector>

#include "platform/failures.h"

using platform::format_number;
using platform::number_text;
using platform::print_number;
using platform::val;

namespace {

struct Val_row {
  const char* text;
  double value;
};

TEST(Numbers_val, TakesTheLongestNumericPrefix) {
  const std::vector<Val_row> rows{
      {"0", 0},        {"12", 12},
      {"-12", -12},    {"+12", 12},
      {"12.5", 12.5},  {"12.", 12},
      {".5", 0.5},     {"-.5", -0.5},
      {"1.5.3", 1.5},  {"1,5", 1},
      {"1-2", 1},      {"12 ABC", 12},
      {"12m", 12},     {"1e3", 1000},
      {"1E3", 1000},   {"1d3", 1000},
      {"1D3", 1000},   {"1e+3", 1000},
      {"25e-2", 0.25}, {"1e", 1},
      {"1e+", 1},      {"1ex", 1},
      {"1.e2", 100},   {".5e1", 5},
      {"00012", 12},   {"135.123456", 135.123456},
      {"0.1", 0.1},    {"3 East", 3},
      {"7e2e3", 700},
  };
  for (const Val_row& row : rows) EXPECT_EQ(val(row.text), row.value) << row.text;
}

TEST(Numbers_val, SkipsBlanksWhereverTheyStand) {
  const std::vector<Val_row> rows{
      {" 0.5 ", 0.5}, {"   12", 12},   {"1 2 3", 123},   {"- 5", -5},          {"1 . 5", 1.5},
      {". 5", 0.5},   {"1 e 3", 1000}, {"1e - 3", .001}, {"1 . 5 e + 2", 150}, {"  -  . 2 5  ", -0.25},
  };
  for (const Val_row& row : rows) EXPECT_EQ(val(row.text), row.value) << row.text;
}

TEST(Numbers_val, IsZeroWithoutANumber) {
  for (const char* text : {"",      " ",    ".",   "-",   "+",        "-.",   "abc",  "e5",  ".e5", "--5", "+-5",
                           "\"5\"", "&H10", "nan", "inf", "infinity", "０１", "１２", "　5", "\t5", "$5",  ",5"})
    EXPECT_EQ(val(text), 0) << text;
}

TEST(Numbers_val, GivesTheNearestFiniteValueBeyondTheRange) {
  EXPECT_EQ(val("1e400"), DBL_MAX);
  EXPECT_EQ(val("-1e400"), -DBL_MAX);
  EXPECT_EQ(val("1e99999999999999999999"), DBL_MAX);
  EXPECT_EQ(val(std::string(400, '9')), DBL_MAX);
  EXPECT_EQ(val("1e-400"), 0);
  EXPECT_EQ(val("-1e-99999999999999999999"), 0);
  EXPECT_EQ(val("0e99999999999999999999"), 0);
  EXPECT_EQ(val("0." + std::string(400, '0') + "1"), 0);
  EXPECT_EQ(val("0." + std::string(400, '0') + "15e401"), 1.5);
  EXPECT_EQ(val("1" + std::string(400, '0') + "e-400"), 1);
  EXPECT_EQ(val("4.9406564584124654e-324"), 4.9406564584124654e-324);
}

TEST(Numbers_val, HasNoNegativeZero) {
  EXPECT_FALSE(std::signbit(val("-0")));
  EXPECT_FALSE(std::signbit(val("-0.000")));
  EXPECT_FALSE(std::signbit(val("-1e-400")));
}

TEST(Numbers_val, DependsOnNoLocale) {
  if (!std::setlocale(LC_ALL, "de_DE.UTF-8") && !std::setlocale(LC_ALL, "fr_FR.UTF-8"))
    GTEST_SKIP() << "no locale with a decimal comma is installed";
  EXPECT_EQ(val("1.5"), 1.5);
  EXPECT_EQ(val("1,5"), 1);
  EXPECT_EQ(number_text(1.5), "1.5");
  EXPECT_EQ(format_number(1.5, "0.0"), "1.5");
  std::setlocale(LC_ALL, "C");
}

TEST(Numbers_print, PutsABlankOrAMinusSignInFrontAndABlankBehind) {
  EXPECT_EQ(print_number(0.5), " 0.5 ");
  EXPECT_EQ(print_number(-0.5), "-0.5 ");
  EXPECT_EQ(print_number(0), " 0 ");
  EXPECT_EQ(print_number(-12), "-12 ");
  EXPECT_EQ(print_number(-9999.0), "-9999 ");
  EXPECT_EQ(print_number(0.1F), " 0.1 ");
}

struct Text_row {
  double value;
  const char* text;
};

TEST(Numbers_text, IsTheShortestThatReadsBack) {
  const std::vector<Text_row> rows{
      {0, "0"},
      {-0.0, "0"},
      {1, "1"},
      {100, "100"},
      {-3.25, "-3.25"},
      {0.1, "0.1"},
      {0.1 + 0.2, "0.30000000000000004"},
      {135.5, "135.5"},
      {13512345.678, "13512345.678"},
      {1.0 / 3, "0.3333333333333333"},
      {100000, "100000"},
      {1e15, "1000000000000000"},
      {123456789012345680.0, "123456789012345680"},
      {9007199254740993.0, "9007199254740992"},
      {1e23, "100000000000000000000000"},
      {0.0001, "0.0001"},
      {1e-7, "0.0000001"},
      {-2.5e-10, "-0.00000000025"},
  };
  for (const Text_row& row : rows) EXPECT_EQ(number_text(row.value), row.text);
}

TEST(Numbers_text, OfASingleIsTheShortestOfASingle) {
  EXPECT_EQ(number_text(0.1F), "0.1");
  EXPECT_EQ(number_text(static_cast<double>(0.1F)), "0.10000000149011612");
  EXPECT_EQ(number_text(16777216.0F), "16777216");
  EXPECT_EQ(number_text(139.6917F), "139.6917");
  EXPECT_EQ(number_text(-1e-5F), "-0.00001");
}

TEST(Numbers_text, OfIntegersIsPlain) {
  EXPECT_EQ(number_text(std::numeric_limits<int>::min()), "-2147483648");
  EXPECT_EQ(number_text(2147483647), "2147483647");
}

TEST(Numbers_text, NeverHasAnExponentAndReadsBackToTheSameValue) {
  std::mt19937_64 random(19990101);
  for (int i = 0; i < 20000; ++i) {
    const double value = std::ldexp(static_cast<double>(random()), static_cast<int>(random() % 2000) - 1060);
    if (!std::isfinite(value)) continue;
    const std::string text = number_text(value);
    ASSERT_EQ(text.find_first_not_of("0123456789."), std::string::npos) << text;
    ASSERT_EQ(val(text), value) << text;
    const auto single = static_cast<float>(static_cast<double>(random() % 2000000) / 7000);
    ASSERT_EQ(static_cast<float>(val(number_text(single))), single);
  }
  EXPECT_EQ(number_text(1e300).size(), 301U);
  EXPECT_EQ(val(number_text(DBL_MAX)), DBL_MAX);
  EXPECT_EQ(val(number_text(-DBL_TRUE_MIN)), -DBL_TRUE_MIN);
}

TEST(Numbers_text, RefusesWhatIsNoFiniteNumber) {
  for (const double value : {std::nan(""), HUGE_VAL, -HUGE_VAL}) {
    EXPECT_THROW(number_text(value), platform::Division_failure);
    EXPECT_THROW(number_text(static_cast<float>(value)), platform::Division_failure);
    EXPECT_THROW(print_number(value), platform::Division_failure);
    EXPECT_THROW(format_number(value, "0"), platform::Division_failure);
  }
}

struct Format_row {
  double value;
  const char* pattern;
  const char* text;
};

TEST(Numbers_format, FollowsThePattern) {
  const std::vector<Format_row> rows{
      {1.5, "0", "2"},
      {7, "00", "07"},
      {7, "000", "007"},
      {7, "0000", "0007"},
      {7, "#000", "007"},
      {1234, "00", "1234"},
      {0, "0", "0"},
      {0, "00000", "00000"},
      {0, "###", ""},
      {0.4, "###", ""},
      {0.5, "###", "1"},
      {135, "###", "135"},
      {0, "#0", "0"},
      {0, "##0", "0"},
      {45, "##0", "45"},
      // As many decimals as there are "0" behind the point, at most as many as there are signs.
      {500, "0.#0", "500.0"},
      {500.1, "0.#0", "500.1"},
      {500.12, "0.#0", "500.12"},
      {500.126, "0.#0", "500.13"},
      {0.25, "#####0.#0", "0.25"},
      {-1234.5, "########0.#0", "-1234.5"},
      {5, "00.##0", "05.0"},
      {5.25, "00.##0", "05.25"},
      {5.1254, "00.##0", "05.125"},
      {5.1255, "00.##0", "05.126"},
      {12.3456, "##0.##0", "12.346"},
      {12.3, "##0.###0", "12.3"},
      {3.5, "##0.0", "3.5"},
      {3, "##0.0", "3.0"},
      {3.14159, "###0.##########0", "3.14159"},
      {0.5, "00.00000", "00.50000"},
      {59.999994, "00.00000", "59.99999"},
      {59.999995, "00.00000", "60.00000"},
      // No digit is required in front of the point.
      {0.5, ".00", ".50"},
      {12.5, ".00", "12.50"},
      {-0.5, ".00", "-.50"},
      {0, ".00", ".00"},
      {0.25, ".00000000000000000", ".25000000000000000"},
      {0.1234567890123456, ".00000000000000000", ".12345678901234600"},
      {0.5, "###################.##0", ".5"},
      // No decimal left: no point either.
      {2, "0.##", "2"},
      {2.5, "0.##", "2.5"},
  };
  for (const Format_row& row : rows) EXPECT_EQ(format_number(row.value, row.pattern), row.text) << row.pattern;
}

TEST(Numbers_format, RoundsHalfAwayFromZeroOnFifteenDigits) {
  const std::vector<Format_row> rows{
      {2.675, "0.00", "2.68"},  // the double lies below the half
      {1.005, "0.00", "1.01"},
      {-2.675, "0.00", "-2.68"},
      {0.5, "0", "1"},
      {1.5, "0", "2"},
      {2.5, "0", "3"},
      {-2.5, "0", "-3"},
      {0.05, "0.0", "0.1"},
      {0.049, "0.0", "0.0"},
      {0.005, "0.0", "0.0"},
      {9.995, "0.00", "10.00"},
      {99.5, "0", "100"},
      {0.999, "0.00", "1.00"},
      {0.0096, "0.00", "0.01"},
      {1.4999999999999999, "0", "2"},  // 1.5 as a double
      {1.49999999999999, "0", "1"},
      {0.49999999999999994, "0", "1"},  // 0.5 in fifteen digits
      {0.1 + 0.2, "0.################0", "0.3"},
      {123456789012345678.0, "0", "123456789012346000"},
      {999999999999999.9, "0.0", "1000000000000000.0"},
  };
  for (const Format_row& row : rows) EXPECT_EQ(format_number(row.value, row.pattern), row.text) << row.pattern;
}

TEST(Numbers_format, GivesNoMinusSignToAValueThatRoundsToZero) {
  const std::vector<Format_row> rows{
      {-0.0, "0", "0"},  {-0.4, "0", "0"},        {-0.004, "0.00", "0.00"}, {-0.004, "0.#0", "0.0"},
      {-0.4, "###", ""}, {-1e-300, "0.0", "0.0"}, {-0.5, "0", "-1"},        {-0.005, "0.00", "-0.01"},
  };
  for (const Format_row& row : rows) EXPECT_EQ(format_number(row.value, row.pattern), row.text) << row.pattern;
}

TEST(Numbers_format, TakesTheWholeRangeOfADouble) {
  EXPECT_EQ(format_number(1e300, "0.#0"), "1" + std::string(300, '0') + ".0");
  EXPECT_EQ(format_number(DBL_MIN, "0.00"), "0.00");
  EXPECT_EQ(format_number(DBL_TRUE_MIN, "##0.##0"), "0.0");
}

TEST(Numbers_trim, TakesHalfWidthBlanksOffBothEnds) {
  EXPECT_EQ(platform::trim_text("  a b  "), "a b");
  EXPECT_EQ(platform::trim_text("   "), "");
  EXPECT_EQ(platform::trim_text(""), "");
  EXPECT_EQ(platform::trim_text("　a　"), "　a　");
  EXPECT_EQ(platform::trim_text("\ta "), "\ta");
}

TEST(Numbers_whole, PartsDownwardsAndTowardZero) {
  EXPECT_EQ(platform::int_floor(2.7), 2);
  EXPECT_EQ(platform::int_floor(-2.1), -3);
  EXPECT_EQ(platform::int_floor(-2), -2);
  EXPECT_EQ(platform::fix(2.7), 2);
  EXPECT_EQ(platform::fix(-2.7), -2);
  EXPECT_FALSE(std::signbit(platform::fix(-0.5)));
}

TEST(Numbers_whole, RoundsHalfToEven) {
  const std::vector<std::pair<double, double>> rows{{0.5, 0},   {1.5, 2}, {2.5, 2}, {-0.5, 0}, {-1.5, -2},
                                                    {-2.5, -2}, {2.4, 2}, {2.6, 3}, {-2.6, -3}};
  for (const auto& [value, whole] : rows) EXPECT_EQ(platform::round_even(value), whole) << value;
  EXPECT_FALSE(std::signbit(platform::round_even(-0.5)));
}

TEST(Numbers_mod, RoundsBothOperandsAndTakesTheSignOfTheDividend) {
  EXPECT_EQ(platform::mod(7, 3), 1);
  EXPECT_EQ(platform::mod(-7, 3), -1);
  EXPECT_EQ(platform::mod(7, -3), 1);
  EXPECT_EQ(platform::mod(2.5, 2), 0);  // 2 and 2
  EXPECT_EQ(platform::mod(3.5, 3), 1);  // 4 and 3
  EXPECT_EQ(platform::mod(7, 2.5), 1);  // 7 and 2
  EXPECT_EQ(platform::mod(361.4, 360), 1);
  EXPECT_EQ(platform::mod(1e15 + 1, 10), 1);
  EXPECT_EQ(platform::mod(-9223372036854774784.0, -1), 0);
}

TEST(Numbers_mod, RefusesWhatHasNoRemainder) {
  EXPECT_THROW(platform::mod(1, 0), platform::Division_failure);
  EXPECT_THROW(platform::mod(1, 0.5), platform::Division_failure);
  EXPECT_THROW(platform::mod(1e300, 7), platform::Division_failure);
  EXPECT_THROW(platform::mod(std::nan(""), 7), platform::Division_failure);
  EXPECT_THROW(platform::mod(7, HUGE_VAL), platform::Division_failure);
}

}  // namespace
