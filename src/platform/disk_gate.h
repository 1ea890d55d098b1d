// The seam below the files port: the single steps that disk_io.h takes on the machine's files, and a gate that each has
// to pass. The program has no gate, and a step then costs one look at an empty function. Tests set one that counts the
// steps, makes one of them fail, lets a disk run full in the middle of a write or ends the process there
// (tests/faults/fault_gate.h).
#pragma once

#include <cstddef>
#include <filesystem>
#include <functional>

namespace platform {

// Each is one call of the machine, or what belongs to it. A whole write is create, permit, write, flush, rename and a
// flush of the folder; an append is open, write, flush, and cut where it failed.
enum class Step_kind {
  open,         // an existing file to be read, or any to be lengthened
  read,         // the next piece
  create,       // a temporary file
  permit,       // it takes the permission bits of the file that it will replace
  write,        // `bytes` more
  flush,        // to the disk, of a file or of the folder in which one was renamed
  rename,       // a temporary file over its target; the path is the target's
  cut,          // back to the old length
  remove,       // a file, a temporary one too
  make_folder,  // one folder
};

struct Disk_step {
  Step_kind kind;
  const std::filesystem::path& path;
  std::size_t bytes = 0;  // of a write
};

// Called before a step. Gives how many bytes of a write the machine takes at once, from 1 to all of them; for the other
// steps it counts for nothing. A std::system_error stands for the step's own failure.
using Disk_gate = std::function<std::size_t(const Disk_step&)>;

inline std::size_t pass(const Disk_gate& gate, const Disk_step& step) {
  return gate ? gate(step) : step.bytes;
}

}  // namespace platform
