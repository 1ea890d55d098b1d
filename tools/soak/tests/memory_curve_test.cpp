#include "soak/memory_curve.h"

#include <gtest/gtest.h>

#include <cstddef>

namespace {

// One sample a minute from 0 to `minutes`.
template <typename Mebibytes>
std::vector<soak::Memory_sample> curve(int minutes, Mebibytes mebibytes) {
  std::vector<soak::Memory_sample> samples;
  for (int i = 0; i <= minutes; ++i) samples.push_back({double(i), mebibytes(i), 100, 1});
  return samples;
}

TEST(Memory_curve, FitsTheLineBehindTheWarmUp) {
  const auto trend = soak::trend_of(curve(20, [](int minute) { return 200 + 2.0 * minute; }));
  ASSERT_TRUE(trend.judged);
  EXPECT_NEAR(trend.from, 210, 1e-9);
  EXPECT_NEAR(trend.to, 240, 1e-9);
}

TEST(Memory_curve, TakesNoAccountOfTheWarmUp) {
  const auto trend = soak::trend_of(curve(20, [](int minute) { return minute < 5 ? 100.0 * minute : 500; }));
  EXPECT_NEAR(trend.growth(), 0, 1e-9);
}

TEST(Memory_curve, HoldsNoPeakForGrowth) {
  // A saw of 0 and 10 over 16 samples from minute 5 on has the slope of its own least squares: sum of
  // (x - 7.5)(y - 5) = 40 over sum of (x - 7.5)^2 = 340, times 15 minutes.
  const auto trend = soak::trend_of(curve(20, [](int minute) { return minute % 2 ? 0.0 : 10.0; }));
  EXPECT_NEAR(trend.growth(), 15 * 40.0 / 340, 1e-9);
}

TEST(Memory_curve, JudgesNothingFromAFewSamples) {
  EXPECT_FALSE(soak::trend_of({}).judged);
  EXPECT_FALSE(soak::trend_of(curve(6, [](int) { return 1.0; })).judged);
}

TEST(Memory_curve, CountsWidgetsAlike) {
  auto samples = curve(20, [](int) { return 1.0; });
  for (std::size_t i = 0; i < samples.size(); ++i) samples[i].widgets = static_cast<int>(3 * i);
  EXPECT_NEAR(soak::widget_trend_of(samples).growth(), 45, 1e-9);
}

TEST(Memory_curve, JudgesWidgetsWithinOneStartOfTheProgram) {
  auto samples = curve(40, [](int) { return 1.0; });
  for (std::size_t i = 30; i < samples.size(); ++i) samples[i].start = 2, samples[i].widgets = 900;
  EXPECT_NEAR(soak::widget_trend_of(samples).growth(), 0, 1e-9);
}

}  // namespace
