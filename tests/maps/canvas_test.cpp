#include "maps/canvas.h"

#include <gtest/gtest.h>

#include <cmath>

#include "maps/map_place.h"

namespace {

using maps::Canvas;
using maps::Canvas_point;
using maps::Corner_texts;
using maps::Map_position;
using support::geographic_canvas;
using support::plain_canvas;

TEST(Canvas_start, HasNorthAtTheTopNoOffsetAndNoFrame) {
  const Canvas canvas;
  EXPECT_EQ(canvas.canvas_scale, 0);
  EXPECT_EQ(canvas.zoom_factor, 0.5);
  EXPECT_EQ(canvas.view_x, 0);
  EXPECT_EQ(canvas.view_y, 0);
  EXPECT_EQ(canvas.zoom_count, 1);
  EXPECT_EQ(canvas.y_mode, 2);
  EXPECT_EQ(canvas.hemisphere, 'N');
  EXPECT_FALSE(canvas.is_geographic);
  EXPECT_EQ(canvas.grid_nx, 100);
  EXPECT_EQ(canvas.grid_ny, 100);
}

TEST(Henkan, TakesMetresToUnitsWithMarginAndOffset) {
  Canvas canvas = plain_canvas();
  // x: 100 m * 0.5 + 100 + 10; y from the north edge: (800 - 100) * 0.5 + 100 - 20
  EXPECT_EQ(maps::henkan_px0(canvas, 110, 120), (Canvas_point{160, 430}));
  EXPECT_EQ(maps::henkan_px2(canvas, 110, 120), (Canvas_point{160, 430}));
  EXPECT_EQ(maps::henkan_px4(canvas, 110, 120), (Canvas_point{160, 430}));
}

TEST(Henkan, LeavesTheOriginOutOnlyInHenkanPxAndOnlyBelowAHundredThousand) {
  Canvas canvas = plain_canvas();
  EXPECT_EQ(maps::henkan_px(canvas, 110, 120), (Canvas_point{160, 420}));             // (800 - 120) / 2 + 80
  EXPECT_EQ(maps::henkan_px(canvas, 110, 99'999), (Canvas_point{160, -49'519.5F}));   // (800 - 99999) / 2 + 80
  EXPECT_EQ(maps::henkan_px(canvas, 110, 100'000), (Canvas_point{160, -49'510}));     // (800 - 99980) / 2 + 80
  EXPECT_EQ(maps::henkan_px0(canvas, 110, 99'999), (Canvas_point{160, -49'509.5F}));  // (800 - 99979) / 2 + 80
}

TEST(Henkan, GrowsWithMapYInModeOne) {
  Canvas canvas = plain_canvas();
  canvas.y_mode = 1;
  EXPECT_EQ(maps::henkan_px(canvas, 110, 120), (Canvas_point{160, 130}));  // (120 - 20) / 2 + 80
  EXPECT_EQ(maps::henkan_px0(canvas, 110, 120), (Canvas_point{160, 130}));
}

TEST(Henkan, SetsAScaleOfNothingToTen) {
  for (const auto henkan : {maps::henkan_px, maps::henkan_px0, maps::henkan_px2, maps::henkan_px4}) {
    Canvas canvas;
    EXPECT_EQ(henkan(canvas, 3, 0), (Canvas_point{130, 100}));
    EXPECT_EQ(canvas.canvas_scale, 10);
  }
  Canvas canvas;
  maps::henkan_M(canvas, 750, 750);
  EXPECT_EQ(canvas.canvas_scale, 10);
}

TEST(Henkan, TakesGeographicUnitsOnAGeographicSheet) {
  Canvas canvas = geographic_canvas();
  // 72 s * 25 m = 1800 m and 36 s * 30 m = 1080 m
  const Canvas_point wanted{280, 892};
  EXPECT_EQ(maps::henkan_px(canvas, 13'902'000, 3'601'000), wanted);
  EXPECT_EQ(maps::henkan_px0(canvas, 13'902'000, 3'601'000), wanted);
  EXPECT_EQ(maps::henkan_px2(canvas, 13'902'000, 3'601'000), wanted);
  EXPECT_EQ(maps::henkan_px4(canvas, 13'902'000, 3'601'000), wanted);
}

TEST(Henkan, TakesHalfAMillionAsMetresInPxAndAsGeographicInPx4) {
  Canvas canvas = geographic_canvas();
  EXPECT_EQ(maps::henkan_px(canvas, 500'000, 500'000), (Canvas_point{50'100, -49'000}));
  EXPECT_EQ(maps::henkan_px0(canvas, 500'000, 500'000), (Canvas_point{50'100, -49'000}));
  // -134 degrees * 90,000 m = -12,060,000 m; -31 degrees * 108,000 m = -3,348,000 m
  EXPECT_EQ(maps::henkan_px4(canvas, 500'000, 500'000), (Canvas_point{-1'205'900, 335'800}));
  EXPECT_EQ(maps::henkan_px2(canvas, 500'000, 500'000), (Canvas_point{-1'205'900, 335'800}));
}

TEST(Henkan, TakesMetresWhereOnlyOneCoordinateExceedsTheThreshold) {
  Canvas canvas = geographic_canvas();
  EXPECT_EQ(maps::henkan_px(canvas, 13'900'000, 99'999), (Canvas_point{1'390'100, -8'999.9F}));
  EXPECT_EQ(maps::henkan_px(canvas, 1'000'000, 1'000'000), (Canvas_point{100'100, -99'000}));  // not above it
}

TEST(Henkan, LooksAtTheMagnitudeInHenkanPxOnly) {
  Canvas canvas = geographic_canvas();
  const float geographic_x = (-13'902'000.0F - 13'900'000.0F) * 0.1F * 0.9F + 100;  // about -2.5 million
  EXPECT_NEAR(maps::henkan_px(canvas, -13'902'000, -3'601'000).x, geographic_x, 1);
  EXPECT_EQ(maps::henkan_px0(canvas, -13'902'000, -3'601'000).x, -1'390'100);
}

TEST(Henkan, TakesMetresOnASheetThatIsNotGeographic) {
  Canvas canvas = geographic_canvas();
  canvas.is_geographic = false;
  for (const auto henkan : {maps::henkan_px, maps::henkan_px0, maps::henkan_px2, maps::henkan_px4})
    EXPECT_EQ(henkan(canvas, 13'902'000, 3'601'000), (Canvas_point{1'390'300, -359'100}));
}

TEST(Henkan, KeepsNumbersBeyondSinglePrecisionFinite) {
  Canvas canvas = plain_canvas();
  const Canvas_point far = maps::henkan_px(canvas, 1e300, -1e300);
  EXPECT_TRUE(std::isfinite(far.x) && std::isfinite(far.y));
  EXPECT_GT(far.x, 1e38);
}

TEST(Henkan_M, GivesBackThePositionWithTheOffsetAppliedOnce) {
  Canvas canvas = geographic_canvas();
  canvas.view_x = -1234.5;
  canvas.view_y = 777;
  const Canvas_point at = maps::henkan_px(canvas, 1800, 1080);
  const Map_position back = maps::henkan_M(canvas, at.x * 7.5, at.y * 7.5);
  EXPECT_NEAR(back.x, 1800, 0.001);
  EXPECT_NEAR(back.y, 1080, 0.001);
  EXPECT_NEAR(back.geo_x, 13'902'000, 0.01);
  EXPECT_NEAR(back.geo_y, 3'601'000, 0.01);
}

TEST(Henkan_M, WorksOutAPressByHand) {
  Canvas canvas = plain_canvas();
  // (1275 - 75) / 7.5 = 160 units, 60 of them sheet: 120 m; (2250 + 150) / 7.5 = 320, 220 of them sheet: 440 m down
  const Map_position press = maps::henkan_M(canvas, 1275, 2250);
  EXPECT_DOUBLE_EQ(press.x, 130);
  EXPECT_DOUBLE_EQ(press.y, 820 - 440);
  EXPECT_EQ(press.geo_x, 0);
  canvas.y_mode = 1;
  EXPECT_DOUBLE_EQ(maps::henkan_M(canvas, 1275, 2250).y, 20 + 440);
}

TEST(Henkan_M, CountsFromTheTopOnASouthernGeographicSheet) {
  Canvas canvas = geographic_canvas();
  canvas.hemisphere = 'S';
  const Map_position press = maps::henkan_M(canvas, 750, 1500);
  EXPECT_NEAR(press.y, 1000, 1e-9);  // 100 units at a tenth of a unit to the metre
  EXPECT_NEAR(press.geo_y, 3'600'000 + 1000.0 / 30 / 3600 * 100'000, 1e-6);
}

TEST(Map_to_geographic, LeavesThePositionOnASheetWithoutLengths) {
  Canvas canvas = geographic_canvas();
  canvas.sec_m_y = 0;
  double x = 5, y = 7;
  maps::map_to_geographic(canvas, x, y);
  EXPECT_EQ(x, 5);
  EXPECT_EQ(y, 7);
}

const Corner_texts north_sheet{"N361000.0", "E1385230.0", "N360500.0", "E1390000.0"};

TEST(Zahyo_r3, SetsTheFrameOfASheetFromItsCorners) {
  Canvas canvas;
  maps::zahyo_r3(canvas, north_sheet);
  EXPECT_TRUE(canvas.is_geographic);
  EXPECT_EQ(canvas.hemisphere, 'N');
  EXPECT_EQ(canvas.y_mode, 2);
  // Single precision keeps quarters of a unit at 3.6 million: 36 degrees 10 minutes is 3616666.67, 5 minutes
  // 3608333.33.
  EXPECT_EQ(canvas.geo_x0, 13'887'500);
  EXPECT_EQ(canvas.geo_x1, 13'900'000);
  EXPECT_EQ(canvas.geo_y0, 3'616'666.75F);
  EXPECT_EQ(canvas.geo_y1, 3'608'333.25F);
  // A second at 36 degrees on Bessel, from geod of PROJ 9.1.1 (+a=6377397.155 +rf=299.152813).
  EXPECT_NEAR(canvas.sec_m_x, 25.0424769, 1e-7);
  EXPECT_NEAR(canvas.sec_m_y, 30.8186698, 1e-7);
  // 12500 and 8333.5 units are 450 and 300.006 seconds.
  EXPECT_NEAR(canvas.map_w, 450 * 25.0424769, 1e-4);
  EXPECT_NEAR(canvas.map_h, 300.006 * 30.8186698, 1e-4);
  EXPECT_EQ(canvas.map_x0, 0);
  EXPECT_EQ(canvas.map_y0, 0);
  EXPECT_EQ(canvas.grid_nx, 100);
  EXPECT_NEAR(canvas.cell_w, 112.6911, 1e-4);
  EXPECT_NEAR(canvas.cell_h, 92.4579, 1e-4);
  EXPECT_NEAR(canvas.canvas_scale, 1000 / 9245.78585, 1e-9);
  EXPECT_EQ(canvas.canvas_scale0, canvas.canvas_scale);
}

TEST(Zahyo_r3, ShowsASheetAThousandUnitsHigh) {
  Canvas canvas;
  maps::zahyo_r3(canvas, north_sheet);
  EXPECT_NEAR(maps::henkan_px(canvas, canvas.map_x0, canvas.map_y1).y, 100, 1e-3);
  EXPECT_NEAR(maps::henkan_px(canvas, canvas.map_x1, canvas.map_y0).y, 1100, 1e-3);
}

TEST(Zahyo_r3, TurnsASheetWhoseFirstCornerIsTheSouthernOne) {
  Canvas canvas;
  maps::zahyo_r3(canvas, {"N360500.0", "E1385230.0", "N361000.0", "E1390000.0"});
  EXPECT_EQ(canvas.hemisphere, 'S');
  EXPECT_EQ(canvas.y_mode, 1);
  EXPECT_EQ(canvas.geo_y0, 3'616'666.75F);
  EXPECT_EQ(canvas.geo_y1, 3'608'333.25F);
  EXPECT_NEAR(canvas.map_h, 300.006 * 30.8186698, 1e-4);
  maps::zahyo_r3(canvas, north_sheet);
  EXPECT_EQ(canvas.hemisphere, 'N');
  EXPECT_EQ(canvas.y_mode, 2);
}

TEST(Zahyo_r3, NegatesSouthAndWestInEitherCase) {
  Canvas canvas;
  maps::zahyo_r3(canvas, {"s100000.0", "w0203000.0", "S110000.0", "W0200000.0"});
  EXPECT_EQ(canvas.geo_x0, -2'050'000);
  EXPECT_EQ(canvas.geo_x1, -2'000'000);
  EXPECT_EQ(canvas.geo_y0, -1'000'000);
  EXPECT_EQ(canvas.geo_y1, -1'100'000);
  EXPECT_EQ(canvas.hemisphere, 'N');  // latitude A, -10, is not below -11
}

TEST(Zahyo_r3, CutsTheMeanLatitudeTowardZero) {
  Canvas south, plain;
  maps::zahyo_r3(south, {"S350000.0", "E1390000.0", "S355900.0", "E1400000.0"});
  maps::zahyo_r3(plain, {"N355900.0", "E1390000.0", "N350000.0", "E1400000.0"});
  EXPECT_NEAR(south.sec_m_x, 25.3547998, 1e-7);  // at 35 degrees, from geod as above
  EXPECT_NEAR(plain.sec_m_y, 30.8135673, 1e-7);
}

TEST(Zahyo_r3, KeepsTheScaleWithAFrameOfNoHeight) {
  Canvas canvas;
  canvas.canvas_scale = 0.25;
  canvas.canvas_scale0 = 0.125;
  maps::zahyo_r3(canvas, {"N", "E", "N", "E"});
  EXPECT_EQ(canvas.map_h, 0);
  EXPECT_EQ(canvas.canvas_scale, 0.25);
  EXPECT_EQ(canvas.canvas_scale0, 0.125);
  maps::zahyo_r3(canvas, {});
  EXPECT_EQ(canvas.canvas_scale, 0.25);
}

TEST(Zahyo_r3, StaysFiniteWithGarbage) {
  Canvas canvas;
  maps::zahyo_r3(canvas, {"N0000" + std::string(400, '9'), "E1e9xx1e99", "-1e", "E??????"});
  EXPECT_TRUE(std::isfinite(canvas.map_w) && std::isfinite(canvas.map_h) && std::isfinite(canvas.canvas_scale));
}

}  // namespace
