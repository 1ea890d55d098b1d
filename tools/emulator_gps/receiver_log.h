// A recorded receiver as a conversation: the sentences of a log in bursts, one burst a second, with the faults that a
// receiver and its cable have.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "emulator/conversation.h"

namespace emulator {

struct Receiver_choices {
  int every = 1000;   // milliseconds from burst to burst
  int baud = 9600;    // 0: as fast as it goes
  bool again = true;  // from the first burst after the last
  // Each fault befalls every n-th burst; 0: none.
  int silent = 0;   // the burst doesn't come
  int cut = 0;      // its last sentence breaks off in the middle
  int garbage = 0;  // bytes of noise come before it
  int wrong = 0;    // a digit of each GGA is another one, so that its checksum no longer fits
  int pulled = 0;   // the receiver is pulled before it, and put back after five seconds
};

// The sentences of a log, each with CR LF; lines that begin with "#" or "@" tell of the log and aren't sent.
// A burst ends where the kind of sentence that began it comes again.
std::vector<std::string> bursts_of(std::string_view log);

Conversation receiver_conversation(std::string_view log, const Receiver_choices& choices);

}  // namespace emulator
