#include "soak/run_log.h"

namespace soak {

namespace {

constexpr std::size_t longest_buffer = 1 << 16;

}  // namespace

bool log_open(Run_log& log, const std::string& path) {
  log.file = path.empty() ? stdout : std::fopen(path.c_str(), "wb");
  if (log.file) std::setvbuf(log.file, nullptr, _IOLBF, longest_buffer);
  return log.file != nullptr;
}

double seconds_since_start(const Run_log& log) {
  return std::chrono::duration<double>(std::chrono::steady_clock::now() - log.start).count();
}

void log_line(Run_log& log, const std::string& text) {
  const std::lock_guard<std::mutex> lock(log.one_at_a_time);
  if (!log.file) return;
  std::string line = text;  // a text that was typed may hold line ends
  for (char& c : line)
    if (c == '\n' || c == '\r') c = ' ';
  std::fprintf(log.file, "%.2f %ld %s\n", seconds_since_start(log), log.step.load(), line.c_str());
}

void count(Run_log& log, const std::string& group, const std::string& name, long by) {
  log.counts[group][name] += by;
}

long counted(const Run_log& log, const std::string& group, const std::string& name) {
  const auto found = log.counts.find(group);
  if (found == log.counts.end()) return 0;
  const auto row = found->second.find(name);
  return row == found->second.end() ? 0 : row->second;
}

void fault(Run_log& log, const std::string& text) {
  {
    const std::lock_guard<std::mutex> lock(log.one_at_a_time);
    if (!log.told.insert(text).second) return;
  }
  log_line(log, "FAULT " + text);
  std::fprintf(stderr, "step %ld: %s\n", log.step.load(), text.c_str());
  const std::lock_guard<std::mutex> lock(log.one_at_a_time);
  log.faults.push_back("step " + std::to_string(log.step) + ": " + text);
}

void log_counts(Run_log& log) {
  for (const auto& [group, rows] : log.counts) {
    std::string text = group + ":";
    for (const auto& [name, times] : rows) text += " " + name + " " + std::to_string(times) + ";";
    log_line(log, text);
  }
}

}  // namespace soak
