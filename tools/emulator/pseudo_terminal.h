// The far end of a serial line: a pseudo-terminal of this machine, whose near end the program opens as a serial device,
// and the link of a program folder's \ports that points at it.
#pragma once

#include <string>
#include <string_view>

namespace emulator {

class Pseudo_terminal {
 public:
  // `link` is set to the near end each time it is plugged in, and taken away when it is unplugged; empty for none.
  explicit Pseudo_terminal(std::string link = {});
  ~Pseudo_terminal();
  Pseudo_terminal(const Pseudo_terminal&) = delete;
  Pseudo_terminal& operator=(const Pseudo_terminal&) = delete;

  // A new line, ready for bytes as they are. False when the machine has none to give or the link can't be made.
  bool plug_in();
  // The program's end hangs up, as when an adapter is pulled.
  void unplug();
  bool is_plugged_in() const { return far_end_ >= 0; }
  const std::string& path() const { return path_; }  // of the near end: "/dev/pts/3"

  // Sends bytes. What nobody reads for three seconds is lost, as on a real line. False when the line fails.
  bool write(std::string_view bytes);
  // What the program has sent; waits for it `milliseconds` at most.
  std::string read(int milliseconds);

 private:
  std::string link_;
  std::string path_;
  int far_end_ = -1;
  int near_end_ = -1;  // held open, so that a program that closes its end doesn't hang up ours
};

}  // namespace emulator
