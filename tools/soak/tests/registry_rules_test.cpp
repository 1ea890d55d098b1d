#include "soak/registry_rules.h"

#include <gmock/gmock.h>

namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

const std::string point =
    " 1 ,-1234.5,6789.25,120,,,N15W,30E,081115-001*3,,, 2 , 255 , 0 , 0 , 0 , 0 , 0 ,0,,,,, 0 ,\r\n";
const std::string line = " 0 ,10.0,20.0,,,,,,7,,Line, 2 , 0 , 0 , 0 , 0 , 0 , 0 ,,,,,, 2 , 10 , 20 , 30.5 , 40 ,\r\n";

TEST(Registry_rules, TakesThePointsAndLinesThatTheProgramWrites) {
  EXPECT_THAT(soak::registry_slips(point + line), IsEmpty());
  EXPECT_THAT(soak::registry_slips(""), IsEmpty());
}

TEST(Registry_rules, TakesWhatReadingChangesAsDocumented) {
  std::string no_size = point;
  no_size.replace(no_size.find(", 2 ,"), 5, ", 0 ,");
  EXPECT_THAT(soak::registry_slips(no_size), IsEmpty());
  // A line's own position gives way to its first vertex; a point's doesn't change.
  EXPECT_THAT(soak::registry_slips(line), IsEmpty());
}

TEST(Registry_rules, TakesTheShortLineThatIsAddedToAnotherSurface) {
  EXPECT_THAT(soak::registry_slips("1,10.0,20.0,,,,N15W,30E,7\r\n"), IsEmpty());
}

TEST(Registry_rules, FindsALineThatWasCutShort) {
  EXPECT_THAT(soak::registry_slips(point + " 1 ,-1234.5,67\r\n"), ElementsAre(HasSubstr("line 2 doesn't end")));
  EXPECT_THAT(soak::registry_slips(point + " 1 ,-1234.5,\r\n"), ElementsAre(HasSubstr("line 2 has 2 columns")));
}

TEST(Registry_rules, FindsALineWithFewerVerticesThanItTells) {
  std::string torn = line;
  torn.replace(torn.find(" 2 , 10 , 20"), 3, " 3 ");
  EXPECT_THAT(soak::registry_slips(torn), ElementsAre(HasSubstr("has 28 columns for 3 vertices")));
}

TEST(Registry_rules, FindsALineThatIsWrittenOtherwiseThanRead) {
  std::string typed = point;
  typed.replace(0, 3, "1");
  EXPECT_THAT(soak::registry_slips(typed), ElementsAre(HasSubstr("written otherwise")));
}

TEST(Registry_rules, FindsLineEndsThatAreHalfOrMissing) {
  EXPECT_THAT(soak::registry_slips(point.substr(0, point.size() - 2)), ElementsAre("doesn't end with CR LF"));
  EXPECT_THAT(soak::text_slips("a\nb\r\n", true), ElementsAre("line 1 holds half a line end"));
}

TEST(Registry_rules, FindsABytePairThatIsNoCharacter) {
  EXPECT_THAT(soak::text_slips("a\r\n\x85\x9Fz\r\n", false), IsEmpty());
  EXPECT_THAT(soak::text_slips("a\r\n\x85\x9Fz\r\n", true), ElementsAre("line 2 holds a byte without a character"));
}

TEST(Registry_rules, CountsWhatAWriteTookAndBrought) {
  const auto change = soak::registry_change(point + point + line, point + "x,\r\n");
  EXPECT_EQ(change.gone, 2);
  EXPECT_EQ(change.come, 1);
}

TEST(Registry_rules, CountsADeletedLineAsNone) {
  EXPECT_EQ(soak::registry_change("1,-9999,\r\n" + point, point).gone, 0);
}

}  // namespace
