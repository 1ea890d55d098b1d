// How much memory the program holds at rest in the course of a run, and whether it grows.
#pragma once

#include <string>
#include <vector>

namespace soak {

struct Memory_sample {
  double minutes = 0;  // since the start of the run
  double mebibytes = 0;
  int widgets = 0;
  int start = 0;  // of the program, in which it was taken
};

// Resident memory of this process in MiB; 0 where the machine doesn't tell.
double resident_mebibytes();

struct Memory_trend {
  bool judged = false;      // false with fewer than eight samples behind the warm-up
  double from = 0, to = 0;  // the fitted line at both ends of the last three quarters, MiB
  double growth() const { return to - from; }
};

// The straight line of least squares through the samples behind the first quarter of the time, in which pictures, fonts
// and windows that are made once come into memory.
Memory_trend trend_of(const std::vector<Memory_sample>& samples);
// The same over the widgets that are alive, in the start of the program that went on for the most samples: each begins
// with those of the main window.
Memory_trend widget_trend_of(const std::vector<Memory_sample>& samples);

}  // namespace soak
