// The port to the loudspeaker.
#pragma once

#include <string>

namespace platform {

class Sounds {
 public:
  virtual ~Sounds() = default;
  // Starts to play a .wav file and returns at once. False when it can't be played.
  virtual bool play(const std::string& path) = 0;
};

// Where there is none.
class No_sounds : public Sounds {
 public:
  bool play(const std::string&) override { return false; }
};

}  // namespace platform
