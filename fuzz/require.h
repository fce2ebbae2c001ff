// What must hold in a fuzzer: the fuzzer keeps the input that breaks it.
#pragma once

#include <cstdio>
#include <cstdlib>
#include <string_view>

namespace selvane {

inline void Require(bool condition, std::string_view what = "what must hold does not")
{
    if (condition) return;
    std::fprintf(stderr, "%.*s\n", static_cast<int>(what.size()), what.data());
    std::abort();
}

} // namespace selvane
