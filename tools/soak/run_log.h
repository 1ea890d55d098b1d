// What a run leaves to read: a log of every step, counts of what was done, and the faults that were found.
#pragma once

#include <atomic>
#include <chrono>
#include <cstdio>
#include <map>
#include <mutex>
#include <set>
#include <string>
#include <vector>

namespace soak {

struct Run_log {
  std::FILE* file = nullptr;  // written line by line, so that a crash leaves the step that it came in
  std::chrono::steady_clock::time_point start = std::chrono::steady_clock::now();
  std::mutex one_at_a_time;                                   // the watchdog writes too
  std::map<std::string, std::map<std::string, long>> counts;  // group, name; of the program's own thread
  std::vector<std::string> faults;
  std::set<std::string> told;  // faults, each of which is told once: a broken file stays broken
  std::atomic<long> step = 0;
};

// Opens the log; standard output where the path is empty. False when it can't be written.
bool log_open(Run_log& log, const std::string& path);
void log_line(Run_log& log, const std::string& text);
void count(Run_log& log, const std::string& group, const std::string& name, long by = 1);
long counted(const Run_log& log, const std::string& group, const std::string& name);
// Something that must not be. Told on standard error at once too; the run ends with a failure.
void fault(Run_log& log, const std::string& text);
double seconds_since_start(const Run_log& log);
// All counts, one group a line.
void log_counts(Run_log& log);

}  // namespace soak
