// The memory of an imagined clinometer: measurements on the two limbs of a fold, every third with a lineation, every
// seventh without a plane, the GPS state now valid and now not. The positions lie on a sheet of the sample.
#pragma once

#include <string>

namespace emulator {

// Record `number`, counted from 1, as the instrument sends it, without its line end.
std::string memory_line(int number);

// The answer to a command: "o1", "o999". Nothing for anything else. `records` is how many the memory holds,
// numbered from `first`.
std::string answer_to(const std::string& command, int records, int first = 1);

}  // namespace emulator
