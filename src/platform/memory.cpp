#include "platform/memory.h"

#if __has_include(<malloc.h>)
#include <malloc.h>
#endif

namespace platform {

void give_back_large_blocks() {
#if defined(__GLIBC__)
  // Without a fixed bound the library raises it to the size of the largest block freed so far, and sheets of the same
  // size then stay in a fragmented heap.
  constexpr int large_block = 1 << 20;
  mallopt(M_MMAP_THRESHOLD, large_block);
#endif
}

void give_back_holes() {
#if defined(__GLIBC__)
  malloc_trim(0);
#endif
}

}  // namespace platform
