// What the program hands back to the system after it has worked with large pictures.
#pragma once

namespace platform {

// Gives free memory that the allocator keeps for later back to the system. Where the system has no such call, the
// allocator decides by itself.
void give_back_memory();

}  // namespace platform
