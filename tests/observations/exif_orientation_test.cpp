#include "observations/exif_orientation.h"

#include <gtest/gtest.h>

#include "observations/store_place.h"

namespace {

using observations::exif_quarter_turns;

TEST(Exif_orientation, TurnsAsTheStandardTells) {
  // Exif 2.3, 4.6.4 A, Orientation: 1 upright, 3 upside down, 6 to be turned by 90 degrees, 8 by 270; 2, 4, 5 and 7 are
  // the mirrored ones.
  const int turns[] = {0, 0, 0, 2, 2, 1, 1, 3, 3, 0};
  for (int value = 0; value < 10; ++value) {
    EXPECT_EQ(exif_quarter_turns(support::exif("II", value)), turns[value]) << value;
    EXPECT_EQ(exif_quarter_turns(support::exif("MM", value)), turns[value]) << value;
  }
}

TEST(Exif_orientation, IsNoneForAnythingElse) {
  EXPECT_EQ(exif_quarter_turns(""), 0);
  EXPECT_EQ(exif_quarter_turns(support::red_blue), 0);
  EXPECT_EQ(exif_quarter_turns("\xFF\xD8\xFF\xD9"), 0);
  EXPECT_EQ(exif_quarter_turns("\xFF\xD8\xFF\xDA" + support::exif("II", 6).substr(2)), 0) << "behind the scan";
}

TEST(Exif_orientation, ReadsNothingBehindACut) {
  const std::string whole = support::exif("MM", 6);
  const std::size_t value = whole.find(std::string("\x01\x12\x00\x03", 4)) + 10;  // the entry's last byte that counts
  for (std::size_t length = 0; length <= whole.size(); ++length) {
    const int turns = exif_quarter_turns(whole.substr(0, length));
    EXPECT_EQ(turns, length < value + 2 ? 0 : 1) << length;
  }
}

}  // namespace
