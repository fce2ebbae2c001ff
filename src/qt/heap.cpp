#include "qt/heap.h"

#include <cstdlib> // says which C library it is
#ifdef __GLIBC__
#include <malloc.h>
#endif

namespace selvane {

void ShareOneHeap()
{
#ifdef __GLIBC__
    mallopt(M_ARENA_MAX, 1);
#endif
}

void ReturnFreeMemory()
{
#ifdef __GLIBC__
    malloc_trim(0);
#endif
}

} // namespace selvane
