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

// Why the machine refused a file, as far as a user can do something about it.
enum class File_cause {
  unknown,
  disk_full,
  not_allowed,  // no permission, or a read-only disk
  missing,      // the file, or the folder that it is to lie in
  in_use,       // held by another program
  too_large,
  broken  // the device fails, or is gone
};

// A file that could not be opened, read, written, copied or removed; names the file as the user knows it.
class File_failure : public Failure {
 public:
  using Failure::Failure;
  // "<path> could not be <done>: <reason>".
  File_failure(const std::string& path, const char* done, const std::string& reason, File_cause why)
      : Failure(path + " could not be " + done + ": " + reason), cause(why), file(path) {}

  File_cause cause = File_cause::unknown;
  std::string file;  // its path where the machine itself refused it; empty otherwise
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
