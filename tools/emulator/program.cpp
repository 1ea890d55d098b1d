#include "emulator/program.h"

#include <csignal>
#include <iostream>

namespace emulator {
namespace {

std::atomic<bool> stop = false;

}  // namespace

int speak_at(const std::string& link, const Speaking& speak) {
  for (const int signal : {SIGINT, SIGTERM, SIGHUP}) std::signal(signal, [](int) { stop = true; });
  Pseudo_terminal line(link);
  if (!line.plug_in()) {
    std::cerr << "No pseudo-terminal, or the link can't be made: " << link << '\n';
    return 1;
  }
  std::cout << line.path() << std::endl;
  return speak(line, stop) ? 0 : 1;
}

}  // namespace emulator
