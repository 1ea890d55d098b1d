// Looks from a thread of its own whether the program still takes events, and puts the stack of one that doesn't into
// the log.
#pragma once

#include <atomic>
#include <thread>

#include "soak/run_log.h"

namespace soak {

struct Watchdog {
  Run_log& log;
  double longest = 10;             // seconds without a beat
  std::atomic<double> beat = 0;    // when the program last took an event, in seconds since the start
  std::atomic<int> blocks = 0;     // how often it didn't for longer
  std::atomic<double> worst = 0;   // seconds
  std::atomic<bool> away = false;  // what is done now is no work of the program
  std::atomic<bool> stop = false;
  std::thread thread{};
};

// To be called from the thread that is watched.
void watch(Watchdog& dog);
void beat(Watchdog& dog);
void watch_end(Watchdog& dog);

// A crash leaves its step and its stack in the log before the process ends as it would have.
void log_crashes(Run_log& log);

}  // namespace soak
