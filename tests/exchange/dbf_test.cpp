#include "exchange/dbf.h"

#include <gtest/gtest.h>

#include "support/golden.h"

namespace {

constexpr platform::Date_time day{2024, 5, 6, 7, 8, 9};

TEST(Dbf, HasTheBytesOfTheGoldenFile) {
  EXPECT_TRUE(support::same_as_golden(exchange::dbf_bytes("NAME", "谷", day), "exchange/tani_gis.dbf"));
}

TEST(Dbf, DropsWholeCharactersOfATextThatIsTooLong) {
  std::string text = "a";
  for (int i = 0; i < 127; ++i) text += "谷";  // 255 bytes in code page 932
  const std::string record = exchange::dbf_bytes("NAME", text, day).substr(65);
  ASSERT_EQ(record.size(), 256u);
  EXPECT_EQ(record.substr(0, 4), " a\x92\x4a");
  EXPECT_EQ(record.substr(252), "\x92\x4a \x1a");  // the last place stays blank, not half a character
}

TEST(Dbf, CutsTheNameOfAColumnToTheTenLettersThatFit) {
  const std::string table = exchange::dbf_bytes("ABCDEFGHIJKL", "", day);
  EXPECT_EQ(table.substr(32, 12), std::string("ABCDEFGHIJ\0C", 12));
}

}  // namespace
