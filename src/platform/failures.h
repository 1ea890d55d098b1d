// The run-time failures. One ends the operation that met it, never the program: the window catches it where an event
// enters, tells the user in one sentence, and goes on.
#pragma once

#include <stdexcept>
#include <string>

namespace platform {

class Failure : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

// An index outside the bounds of a fixed table.
class Subscript_failure : public Failure {
 public:
  using Failure::Failure;
};

// A file that could not be opened, read, written, copied or removed; names the file as the user knows it.
class File_failure : public Failure {
 public:
  using Failure::Failure;
};

// A text that is not what its place calls for.
class Type_failure : public Failure {
 public:
  using Failure::Failure;
};

// A division by zero, or arithmetic that leaves its range.
class Division_failure : public Failure {
 public:
  using Failure::Failure;
};

}  // namespace platform
