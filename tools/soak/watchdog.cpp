#include "soak/watchdog.h"

#include <chrono>
#include <csignal>
#include <cstdio>
#include <cstdlib>

#if __has_include(<execinfo.h>)
#include <execinfo.h>
#include <pthread.h>
#include <unistd.h>
#define SOAK_HAS_STACKS 1
#endif

namespace soak {

namespace {

constexpr double given_up = 120;  // seconds; behind them the process is ended
constexpr auto look_every = std::chrono::milliseconds(250);

#ifdef SOAK_HAS_STACKS
constexpr int deepest = 100;
int log_end = 2;

void write_stack(int) {
  void* frames[deepest];
  backtrace_symbols_fd(frames, backtrace(frames, deepest), log_end);
}

void write_crash(int signal) {
  const char told[] = "CRASH with the stack\n";
  if (write(log_end, told, sizeof told - 1) > 0) write_stack(signal);
  std::signal(signal, SIG_DFL);
  std::raise(signal);
}
#endif

}  // namespace

void log_crashes(Run_log& log) {
#ifdef SOAK_HAS_STACKS
  log_end = fileno(log.file);
  void* frame[1];
  backtrace(frame, 1);  // loads what it needs before it is needed
  std::signal(SIGABRT, write_crash);
#if !defined(__SANITIZE_ADDRESS__)
  for (const int signal : {SIGSEGV, SIGBUS, SIGFPE, SIGILL}) std::signal(signal, write_crash);
#endif
#else
  static_cast<void>(log);
#endif
}

void beat(Watchdog& dog) {
  dog.beat = seconds_since_start(dog.log);
}

void watch(Watchdog& dog) {
  beat(dog);
#ifdef SOAK_HAS_STACKS
  const pthread_t watched = pthread_self();
  std::signal(SIGUSR1, write_stack);
#endif
  dog.thread = std::thread([=, &dog] {
    bool told = false;
    while (!dog.stop) {
      std::this_thread::sleep_for(look_every);
      if (dog.away) continue;
      const double quiet = seconds_since_start(dog.log) - dog.beat;
      if (quiet > dog.worst) dog.worst = quiet;
      if (quiet < dog.longest) told = false;
      if (quiet > dog.longest && !told) {
        told = true;
        ++dog.blocks;
        fault(dog.log, "no event was taken for " + std::to_string(quiet) + " s");
#ifdef SOAK_HAS_STACKS
        pthread_kill(watched, SIGUSR1);
#endif
      }
      if (quiet > given_up) {
        log_line(dog.log, "HANG, given up");
        std::_Exit(3);
      }
    }
  });
}

void watch_end(Watchdog& dog) {
  dog.stop = true;
  if (dog.thread.joinable()) dog.thread.join();
}

}  // namespace soak
