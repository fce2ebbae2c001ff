// Assertions catch our own mistakes, never odd input, and stay on in release.
#pragma once

namespace selvane {

// Prints what was expected and where, then aborts.
[[noreturn]] void AssertionFailed(const char* what, const char* file, int line);

} // namespace selvane

#define SELVANE_ASSERT(condition)                                                                  \
    ((condition) ? static_cast<void>(0)                                                            \
                 : ::selvane::AssertionFailed(#condition, __FILE__, __LINE__))
