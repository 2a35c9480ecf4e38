#include "platform/linux/Memory.h"

#include <malloc.h>

namespace barquell {

void shareMemoryAmongThreads() {
#ifdef M_ARENA_MAX // with the C library that has such places
    mallopt(M_ARENA_MAX, 1);
#endif
}

void giveBackFreeMemory() {
#ifdef __GLIBC__
    malloc_trim(0);
#endif
}

} // namespace barquell
