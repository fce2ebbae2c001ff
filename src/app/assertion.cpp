#include "app/assertion.h"

#include <cstdio>
#include <cstdlib>

namespace selvane {

void AssertionFailed(const char* what, const char* file, int line)
{
    std::fprintf(stderr, "%s:%d: expected %s\n", file, line, what);
    std::abort();
}

} // namespace selvane
