// monkey SEED COUNT: prints that many actions of a user who does anything, for replay to carry out.
#include "replay/monkey.h"

#include "replay/action.h"

#include <cstdio>

int main(int count, char** words)
{
    using selvane::replay::ParseWholeNumber;
    const auto seed = count == 3 ? ParseWholeNumber(words[1]) : std::nullopt;
    const auto actions = count == 3 ? ParseWholeNumber(words[2]) : std::nullopt;
    if (!seed || !actions || *seed < 0 || *actions < 0) {
        std::fputs("usage: monkey SEED COUNT\n", stderr);
        return 2;
    }
    selvane::replay::Monkey monkey(static_cast<std::uint64_t>(*seed));
    for (int each = 0; each < *actions; ++each) std::puts(monkey.Next().c_str());
    return 0;
}
