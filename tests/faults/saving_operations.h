// Every saving operation of the program, one entry each: what it may write, what must lie there before it, and how it
// is done without a window.
#pragma once

#include <functional>
#include <ostream>
#include <string>
#include <vector>

#include "faults/fault_place.h"

namespace support {

struct Saving_operation {
  std::string name;
  // What it writes or removes, below the root. The user is told where one of these can't be written. The first is the
  // one by which a person sees that it was done.
  std::vector<std::string> told{};
  // What it writes beside them in silence.
  std::vector<std::string> silent{};
  // Makes files by hand beyond those of lay_out.
  std::function<void(const std::string& root)> files{};
  // Leads a started program up to the press; writes nothing.
  std::function<void(Fault_place&)> open{};
  // The press itself. Its failures come out as they do of the procedure.
  std::function<void(Fault_place&)> press{};
  bool repeats = true;        // done again it leaves what it leaves done once
  bool one_language = false;  // its sentences have one text for both languages
  // Keeps a copy of what another of its files held before: that may be any whole content of the other.
  std::string keeps_earlier{};
};

// For the test program's own messages.
inline void PrintTo(const Saving_operation& operation, std::ostream* out) {
  *out << operation.name;
}

const std::vector<Saving_operation>& saving_operations();

// A source of the program that writes or removes files, how often it calls a changing procedure of the files port, and
// the operations that come by it.
struct Writing_source {
  std::string source;  // below src/
  int calls;
  std::vector<std::string> operations;
};
const std::vector<Writing_source>& writing_sources();

}  // namespace support
