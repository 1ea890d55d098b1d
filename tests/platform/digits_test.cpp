#include "platform/digits.h"

#include <gtest/gtest.h>

#include <string>

TEST(Digits, AreTheTenHalfWidthOnes) {
  for (const char c : std::string("0123456789")) EXPECT_TRUE(platform::is_digit(c)) << c;
  for (const char c : std::string("/:.- Aa\xEF\x82\xB2") + '\0') EXPECT_FALSE(platform::is_digit(c)) << c;
}

TEST(Digits, TwoOfThemAtTheLeast) {
  EXPECT_EQ(platform::two_digits(0), "00");
  EXPECT_EQ(platform::two_digits(7), "07");
  EXPECT_EQ(platform::two_digits(59), "59");
  EXPECT_EQ(platform::two_digits(123), "123");
}
