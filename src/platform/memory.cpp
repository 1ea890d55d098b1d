#include "platform/memory.h"

#include <cstdlib>  // tells whether this is glibc

#ifdef __GLIBC__
#include <malloc.h>
#endif

namespace platform {

void give_back_memory() {
#ifdef __GLIBC__
  malloc_trim(0);
#endif
}

}  // namespace platform
