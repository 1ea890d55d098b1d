#include "instruments/routes.h"

#include <gmock/gmock.h>

#include "instruments/receiver_place.h"
#include "maps/map_place.h"
#include "support/golden.h"
#include "support/places.h"
#include "support/recorder.h"

namespace {

using namespace std::string_literals;
using drawing::Point;
using instruments::Route_point;
using support::Route_place;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

std::vector<Route_point> track(const std::string& bytes, int limit = instruments::track_point_limit) {
  Route_place place;
  place.put_track("a.txt", bytes);
  return instruments::track_r(place.files, place.gps + "\\a.txt", limit);
}

std::vector<Route_point> nmea_log(const std::string& bytes) {
  Route_place place;
  place.put_track("a.nme", bytes);
  return instruments::nmea_log_r(place.files, place.gps + "\\a.nme");
}

// 139 degrees are 500,400 seconds and 35 are 126,000; 36 seconds are 1000 geographic units.
TEST(Track_read, TakesSecondsAndTheSegmentFlag) {
  EXPECT_THAT(track("500400,126000,0,x,0\r\n500436,126036,0,x,1\r\n500472,126036,0,x,0\r\n500508, 126072 ,,,-1,7\r\n"),
              ElementsAre(Route_point{13'900'000, 3'500'000, false}, Route_point{13'901'000, 3'501'000, true},
                          Route_point{13'902'000, 3'501'000, false}, Route_point{13'903'000, 3'502'000, true}));
}

TEST(Track_read, JoinsTheFirstPointToNothing) {
  EXPECT_THAT(track("500400,126000,0,x,1\r\n"), ElementsAre(Route_point{13'900'000, 3'500'000, false}));
}

TEST(Track_read, SkipsLinesWithoutAPosition) {
  EXPECT_THAT(track("\r\nstart\r\n,126000,0,0,1\r\n500400,,0,0,1\r\n"), IsEmpty());
}

TEST(Track_read, EndsAtItsLimit) {
  std::string bytes;
  for (int i = 0; i < 10'001; ++i) bytes += "500400," + std::to_string(126'000 + i) + ",0,0,1\r\n";
  const std::vector<Route_point> points = track(bytes);
  ASSERT_THAT(points, SizeIs(10'000));
  EXPECT_DOUBLE_EQ(points.back().y, (126'000 + 9'999) / 3600.0 * 100'000);
}

TEST(Track_read, TakesAFileThatIsMissingBrokenOrSomethingElse) {
  Route_place place;
  EXPECT_THAT(instruments::track_r(place.files, place.gps + "\\none.txt"), IsEmpty());
  place.put_track("a.txt", "500400,126000,0,0,1\r\n500436,1260");
  EXPECT_THAT(instruments::track_r(place.files, place.gps + "\\a.txt"), SizeIs(2));
  place.files.unreadable = "a.txt";
  EXPECT_THAT(instruments::track_r(place.files, place.gps + "\\a.txt"), IsEmpty());
  EXPECT_THAT(track("1e308,-1e308,0,0,0\r\n"), ElementsAre(Route_point{0, 0, false}));
  EXPECT_THAT(track("\0\xff\x81,\xfe,9e999,-,1e308,1e308,,,1\r\n"s), SizeIs(1));
}

// "35" degrees "30.0" with its fraction padded: 30.00000; "15.1234" becomes 15.01234 minutes, 900.7404 seconds.
TEST(Nmea_log_read, PadsTheFractionsAndJoinsAllPointsInTheirOrder) {
  const std::vector<Route_point> points =
      nmea_log("@Sonygps/ver1.0/wgs-84\r\n$GPGGA,102031.00,3530.0,N,13915.1234,E,1,08,,,M,,M,,\r\n" + support::rmc +
               "$GPGGA,102032.00,3530.00001,S,13915.12345,W,1,08,,,M,,M,,\n");
  ASSERT_THAT(points, SizeIs(2));
  EXPECT_NEAR(points[0].x, (500'400 + 900.7404) / 0.036, 1e-6);
  EXPECT_NEAR(points[0].y, 3'550'000, 1e-6);
  EXPECT_FALSE(points[0].joined);
  EXPECT_NEAR(points[1].x, (500'400 + 907.407) / 0.036, 1e-6);  // the letters aren't looked at
  EXPECT_NEAR(points[1].y, (127'800 + 0.0006) / 0.036, 1e-6);
  EXPECT_TRUE(points[1].joined);
}

TEST(Nmea_log_read, PassesOverWhatHasNoPosition) {
  EXPECT_THAT(
      nmea_log(support::gga_without_fix + "$GPGGA,1,3530.0,N,,E,1\r\n$GPGGA\r\n$GPGGAX,1,3530.0,N,13915.0,E\r\n" +
               " $GPGGA,1,3530.0,N,13915.0,E,1\r\n" + support::rmc + support::gsa),
      IsEmpty());
}

TEST(Nmea_log_read, ReadsRecordedReceivers) {
  const std::string bytes = support::bytes_of(support::shared_data("nmea/iTrek.log"));
  if (bytes.empty()) GTEST_SKIP() << "no recorded receivers beside this tree";
  const std::vector<Route_point> points = nmea_log(bytes);
  ASSERT_THAT(points, SizeIs(23));
  // 3519.9046 and 13640.2631 with four decimals each: 19.09046 and 40.02631 minutes.
  EXPECT_NEAR(points[0].y, (35 + 19.09046 / 60) * 1e5, 1e-6);
  EXPECT_NEAR(points[0].x, (136 + 40.02631 / 60) * 1e5, 1e-6);
}

struct Routes_read : testing::Test, Route_place {
  instruments::Routes routes;
  bool read() { return instruments::routes_r(files, project, routes); }
  int reads(const std::string& name) {
    return static_cast<int>(std::count_if(files.log.begin(), files.log.end(), [&](const std::string& call) {
      return call.starts_with("read_bytes") && call.ends_with(name);
    }));
  }
};
constexpr const char* two_points = "500400,126000,0,0,0\r\n500436,126036,0,0,1\r\n";

TEST_F(Routes_read, HasNoRouteWithoutLists) {
  EXPECT_FALSE(read());
  EXPECT_THAT(routes.routes, IsEmpty());
}

TEST_F(Routes_read, ReadsWhatTheListsNameInOrder) {
  put_track("b.txt", two_points);
  put_track("a.txt", two_points);
  put_lines(folder.text() + "\\岩.NME", {"$GPGGA,1,3530.0,N,13915.1,E,1", "$GPGGA,1,3531.0,N,13915.1,E,1"});
  put_lines(data("keiro_out.dat"), {"b.txt", "A.TXT", "gone.txt", ""});
  put_lines(data("keiro_out2.dat"), {folder.text() + "\\岩.NME"});
  EXPECT_TRUE(read());
  ASSERT_THAT(routes.routes, SizeIs(4));
  EXPECT_THAT(routes.routes[0].points, SizeIs(2));
  EXPECT_THAT(routes.routes[1].points, SizeIs(2));
  EXPECT_THAT(routes.routes[2].points, IsEmpty());
  EXPECT_TRUE(routes.routes[3].file.is_log);
  EXPECT_THAT(routes.routes[3].points, SizeIs(2));
}

TEST_F(Routes_read, NeverLeavesTheFolderOfTheTracks) {
  put(data("outside.txt"), two_points);
  put(folder.text() + "\\far.txt", two_points);
  put_lines(data("keiro_out.dat"),
            {"..\\outside.txt", "../outside.txt", folder.text() + "\\far.txt", "..", "C:far.txt"});
  read();
  EXPECT_THAT(routes.routes, IsEmpty());
}

TEST_F(Routes_read, ReadsAFileAgainOnlyWhenItChanged) {
  put_track("a.txt", two_points);
  put_track("b.txt", two_points);
  put_lines(data("keiro_out.dat"), {"a.txt", "b.txt"});
  EXPECT_TRUE(read());
  EXPECT_FALSE(read());
  EXPECT_EQ(reads("a.txt"), 1);
  put_track("b.txt", std::string(two_points) + "500472,126036,0,0,1\r\n");
  EXPECT_TRUE(read());
  EXPECT_EQ(reads("b.txt"), 2);
  EXPECT_THAT(routes.routes[1].points, SizeIs(3));
  disk.remove(gps + "\\a.txt");
  EXPECT_TRUE(read());
  EXPECT_THAT(routes.routes[0].points, IsEmpty());
}

TEST_F(Routes_read, HoldsTenThousandPointsOfAllTracksTogether) {
  std::string bytes;
  for (int i = 0; i < 6'000; ++i) bytes += "500400,126000,0,0,1\r\n";
  put_track("a.txt", bytes);
  put_track("b.txt", bytes);
  put_track("c.txt", bytes);
  put_lines(data("keiro_out.dat"), {"a.txt", "b.txt", "c.txt"});
  read();
  ASSERT_THAT(routes.routes, SizeIs(2));
  EXPECT_THAT(routes.routes[1].points, SizeIs(4'000));
  EXPECT_FALSE(read());
}

TEST_F(Routes_read, LooksForAThousandFilesOfAList) {
  std::string names;
  for (int i = 0; i < 1'001; ++i) names += std::to_string(i) + ".txt\r\n";
  put(data("keiro_out.dat"), names);
  read();
  EXPECT_THAT(routes.files, SizeIs(1'000));
  EXPECT_EQ(routes.files.back().path, gps + "\\999.txt");
}

TEST_F(Routes_read, TakesAListThatIsNoList) {
  put(data("keiro_out.dat"), std::string("\0\x81\xff\r\n\x1a", 6));
  put(data("keiro_out2.dat"), std::string(100'000, '\\') + "\r\n" + gps);
  read();
  for (const instruments::Route& route : routes.routes) EXPECT_THAT(route.points, IsEmpty());
}

// The plain canvas: (x - 10) / 2 + 110 to the right, and 800 / 2 + 80 - y / 2 downwards below a y of 100,000.
struct Routes_out : testing::Test {
  maps::Canvas canvas = support::plain_canvas();
  support::Recorder recorder;
  instruments::Routes routes;

  void draw(std::vector<Route_point> points) {
    routes.routes.push_back({{}, 0, std::move(points)});
    instruments::routes_out(recorder, canvas, routes);
  }
};

TEST_F(Routes_out, JoinsWhatIsJoinedInMagenta) {
  draw({{10, 0, false}, {110, 0, true}, {110, 100, true}, {210, 100, false}, {210, 200, true}});
  ASSERT_THAT(recorder.calls, SizeIs(2));
  EXPECT_THAT(recorder.calls[0].points, ElementsAre(Point{110, 480}, Point{160, 480}, Point{160, 430}));
  EXPECT_THAT(recorder.calls[1].points, ElementsAre(Point{210, 430}, Point{210, 380}));
  EXPECT_EQ(recorder.calls[0].pen.colour, 0xff00ffu);
}

TEST_F(Routes_out, JoinsNoTwoFiles) {
  routes.routes.push_back({{}, 0, {{10, 0, false}, {110, 0, true}}});
  draw({{210, 0, false}, {310, 0, true}});
  EXPECT_THAT(recorder.of("polyline"), SizeIs(2));
}

TEST_F(Routes_out, DrawsNothingOfOnePoint) {
  draw({{10, 0, false}});
  EXPECT_THAT(recorder.calls, IsEmpty());
}

// 300 by 200 units: what leaves them is cut 20 units beyond the edge.
TEST_F(Routes_out, CutsAtTheEdgesOfTheCanvas) {
  canvas.width = 300 * 7.5;
  canvas.height = 500 * 7.5;
  draw({{110, 0, false}, {2110, 0, true}, {2110, 4000, true}, {110, 4000, true}, {110, 100, true}});
  ASSERT_THAT(recorder.calls, SizeIs(2));
  EXPECT_THAT(recorder.calls[0].points, ElementsAre(Point{160, 480}, Point{320, 480}));
  EXPECT_THAT(recorder.calls[1].points, ElementsAre(Point{160, -20}, Point{160, 430}));
}

TEST_F(Routes_out, DrawsALineThatCrossesTheCanvasFromOutsideToOutside) {
  canvas.width = 300 * 7.5;
  canvas.height = 500 * 7.5;
  draw({{-2000, 0, false}, {4000, 0, true}});
  ASSERT_THAT(recorder.calls, SizeIs(1));
  EXPECT_THAT(recorder.calls[0].points, ElementsAre(Point{-20, 480}, Point{320, 480}));
}

TEST_F(Routes_out, HandsNothingToThePainterThatNoPainterCanTake) {
  const double most = 1e308;
  draw({{most, -most, false}, {-most, most, true}, {0, 0, true}, {most, most, true}});
  for (const support::Drawn& call : recorder.calls)
    for (const Point& at : call.points) {
      EXPECT_LE(std::abs(at.x), 1e6);
      EXPECT_LE(std::abs(at.y), 1e6);
    }
}

// Too far away for the cut to tell where it enters: the line still ends at the canvas.
TEST_F(Routes_out, KeepsToTheCanvasWhereNumbersEnd) {
  canvas.width = 300 * 7.5;
  canvas.height = 500 * 7.5;
  draw({{1e300, 0, false}, {5000, 0, true}});
  for (const support::Drawn& call : recorder.calls)
    for (const Point& at : call.points) EXPECT_LE(at.x, 320);
}

TEST_F(Routes_out, LeavesOutStepsThatNobodySeesAndKeepsTheEnds) {
  std::vector<Route_point> points;
  for (int i = 0; i <= 10'000; ++i) points.push_back({10 + i / 100.0, 0, i > 0});  // 100 metres in 10,000 steps
  draw(points);
  ASSERT_THAT(recorder.calls, SizeIs(1));
  EXPECT_LE(recorder.calls[0].points.size(), 110u);
  EXPECT_EQ(recorder.calls[0].points.front(), (Point{110, 480}));
  EXPECT_EQ(recorder.calls[0].points.back(), (Point{160, 480}));
}

}  // namespace
