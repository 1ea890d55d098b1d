#include "exchange/shape_list.h"

#include <gmock/gmock.h>

#include "exchange/exchange_place.h"
#include "platform/failures.h"
#include "support/fault_files.h"
#include "support/golden.h"

namespace {

using exchange::Shape;
using exchange::Shape_kind;
using testing::ElementsAre;

std::vector<Shape> shapes_of(const std::string& text) {
  support::Exchange_place place;
  place.list(text);
  return exchange::shape_list_r(place.files, place.tmp());
}

TEST(Shape_list_read, TakesPointsLinesAndPolygons) {
  EXPECT_THAT(shapes_of("P,10,20\r\nL,0,0,10,0\r\nS,0,0,10,0,10,10\r\n"),
              ElementsAre(Shape{Shape_kind::point, {{10, 20}}}, Shape{Shape_kind::line, {{0, 0}, {10, 0}}},
                          Shape{Shape_kind::polygon, {{0, 0}, {10, 0}, {10, 10}}}));
}

TEST(Shape_list_read, SkipsEveryOtherFirstField) {
  EXPECT_THAT(shapes_of("p,1,2\r\n P,1,2\r\nPOINT,1,2\r\n\r\nX,a,b\r\n,1,2\r\n"), ElementsAre());
}

TEST(Shape_list_read, DropsAnOddNumberAtTheEnd) {
  EXPECT_THAT(shapes_of("L,0,0,10,0,7\r\n"), ElementsAre(Shape{Shape_kind::line, {{0, 0}, {10, 0}}}));
  EXPECT_THAT(shapes_of("P,1,2,no number\r\n"), ElementsAre(Shape{Shape_kind::point, {{1, 2}}}));
  EXPECT_THAT(shapes_of("S,1\r\n"), ElementsAre(Shape{Shape_kind::polygon, {}}));
}

TEST(Shape_list_read, TakesEveryFormOfADecimalNumber) {
  EXPECT_THAT(shapes_of("L, 1.5 ,-2,+3.,.25,1e2,-1.5D-1\r\n"),
              ElementsAre(Shape{Shape_kind::line, {{1.5, -2}, {3, 0.25}, {100, -0.15}}}));
}

TEST(Shape_list_read, FailsForACoordinateThatIsNoNumberOrIsMissing) {
  for (const char* line : {"P,1,x", "P,1", "P", "L,1,2,,4", "L,1 2,3", "L,1.2.3,4", "L,12m,4", "L,-,4", "L,.,4",
                           "L,1e,4", "L,1e+,4", "L,\"1\",4", "L,1e999,4", "L,nan,4", "L,0x10,4"})
    EXPECT_THROW(shapes_of(std::string(line) + "\r\n"), platform::Type_failure) << line;
}

TEST(Shape_list_read, FailsForAListThatIsMissingOrCantBeRead) {
  support::Exchange_place place;
  EXPECT_THROW(exchange::shape_list_r(place.files, place.tmp()), platform::File_failure);
  place.list("P,1,2\r\n");
  support::Fault_files faults(place.files);
  faults.unreadable = "TMP.TMP";
  EXPECT_THROW(exchange::shape_list_r(faults, place.tmp()), platform::File_failure);
}

TEST(Shape_list_read, EndsALineByAnyLineEndAndNeedsNoneBehindTheLast) {
  EXPECT_EQ(shapes_of("P,1,2\nP,3,4\rP,5,6").size(), 3u);
}

TEST(Shape_list_write, HasTheBytesOfTheGoldenFile) {
  support::Exchange_place place;
  const Shape shape =
      exchange::drawn_shape(true, {1, 2}, {{13952431.25, 3561208.5}, {13952600, 3561300.75}, {13952550, 3561150}});
  exchange::shape_list_w(place.files, place.program, shape);
  EXPECT_TRUE(support::same_as_golden(place.files.read_bytes(place.tmp()), "exchange/TMP.TMP"));
  EXPECT_THAT(exchange::shape_list_r(place.files, place.tmp()), ElementsAre(shape));
}

TEST(Shape_list_write, ExportsWhatIsNoEnclosureAsItsPoint) {
  support::Exchange_place place;
  exchange::shape_list_w(place.files, place.program, exchange::drawn_shape(false, {-0.5, 1234.125}, {{7, 7}, {8, 8}}));
  EXPECT_EQ(place.files.read_bytes(place.tmp()), "P,-0.5,1234.125\r\n");
}

}  // namespace
