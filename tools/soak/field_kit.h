// The imagined instruments of a run: a clinometer and a receiver behind pseudo-terminals, plugged in and pulled at
// will.
#pragma once

#include <atomic>
#include <map>
#include <memory>
#include <string>
#include <thread>

#include "soak/random.h"

namespace soak {

struct Plugged {
  std::atomic<bool> stop = false;
  std::thread thread{};
};

struct Instruments {
  std::string ports;  // the program folder's \ports
  std::map<int, std::unique_ptr<Plugged>> plugged{};
};

// Each takes the place of what was at that number. The clinometer answers as its memory tells or plays a faulty talk;
// the receiver drives over the sample, sometimes silent, cut, garbled, wrong or pulled.
void plug_clinometer(Instruments& instruments, int number, Random& random);
void plug_receiver(Instruments& instruments, int number, Random& random);
void unplug(Instruments& instruments, int number);
void unplug_all(Instruments& instruments);

// The log that the receiver plays, for the boxes that take one.
std::string receiver_log();

}  // namespace soak
