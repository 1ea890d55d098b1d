// Spreads independent jobs over the machine's processors. What a job makes must not depend on when it runs.
#pragma once

#include <algorithm>
#include <atomic>
#include <functional>
#include <thread>
#include <vector>

namespace sample {

inline void in_parallel(int jobs, const std::function<void(int)>& job) {
  std::atomic<int> next = 0;
  const auto work = [&] {
    for (int i = next++; i < jobs; i = next++) job(i);
  };
  const int helpers = std::clamp(static_cast<int>(std::thread::hardware_concurrency()), 1, 16) - 1;
  std::vector<std::jthread> threads;
  for (int i = 0; i < helpers; ++i) threads.emplace_back(work);
  work();
}

}  // namespace sample
