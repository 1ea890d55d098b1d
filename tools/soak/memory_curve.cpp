#include "soak/memory_curve.h"

#include <algorithm>
#include <cstdio>
#include <functional>
#include <map>

#if defined(__linux__)
#include <unistd.h>
#endif

namespace soak {

namespace {

constexpr std::size_t fewest_samples = 8;
constexpr double warm_up = 0.25;  // of the whole time

using Measure = std::function<double(const Memory_sample&)>;

Memory_trend fit(const std::vector<Memory_sample>& samples, const Measure& measure) {
  Memory_trend trend;
  if (samples.empty()) return trend;
  const double first = samples.front().minutes, last = samples.back().minutes;
  const double begin = first + warm_up * (last - first);
  double n = 0, sum_x = 0, sum_y = 0, sum_xx = 0, sum_xy = 0;
  for (const Memory_sample& sample : samples) {
    if (sample.minutes < begin) continue;
    const double x = sample.minutes - begin, y = measure(sample);
    n += 1;
    sum_x += x;
    sum_y += y;
    sum_xx += x * x;
    sum_xy += x * y;
  }
  const double spread = n * sum_xx - sum_x * sum_x;
  if (n < fewest_samples || spread <= 0) return trend;
  const double slope = (n * sum_xy - sum_x * sum_y) / spread;
  const double level = (sum_y - slope * sum_x) / n;
  return {true, level, level + slope * (last - begin)};
}

}  // namespace

double resident_mebibytes() {
#if defined(__linux__)
  std::FILE* const file = std::fopen("/proc/self/statm", "r");
  if (!file) return 0;
  long pages = 0, resident = 0;
  const bool read = std::fscanf(file, "%ld %ld", &pages, &resident) == 2;
  std::fclose(file);
  return read ? static_cast<double>(resident) * static_cast<double>(sysconf(_SC_PAGESIZE)) / (1 << 20) : 0;
#else
  return 0;
#endif
}

Memory_trend trend_of(const std::vector<Memory_sample>& samples) {
  return fit(samples, [](const Memory_sample& sample) { return sample.mebibytes; });
}

Memory_trend widget_trend_of(const std::vector<Memory_sample>& samples) {
  std::map<int, std::vector<Memory_sample>> starts;
  for (const Memory_sample& sample : samples) starts[sample.start].push_back(sample);
  const auto longest = std::max_element(starts.begin(), starts.end(),
                                        [](const auto& a, const auto& b) { return a.second.size() < b.second.size(); });
  if (longest == starts.end()) return {};
  return fit(longest->second, [](const Memory_sample& sample) { return sample.widgets; });
}

}  // namespace soak
