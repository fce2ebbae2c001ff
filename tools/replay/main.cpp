// replay FILE: drives the program without a screen. See docs/replay.md.
#include "replay/replay.h"

#include <fstream>
#include <iostream>

namespace {

int Complain(const std::string& text)
{
    std::cerr << "replay: " << text << '\n';
    return 2;
}

} // namespace

int main(int count, char** words)
{
    using namespace selvane::replay;
    std::ios::sync_with_stdio(false);
    Options options;
    const std::span<const char* const> all(words, static_cast<std::size_t>(count));
    if (const auto fault = ReadOptions(all.subspan(all.empty() ? 0 : 1), options))
        return Complain(fault->text);

    std::ifstream file;
    if (options.file != "-") file.open(options.file, std::ios::binary);
    std::istream& script = options.file == "-" ? std::cin : file;
    if (options.file != "-" && !file.is_open()) return Complain("cannot read " + options.file);
    script.peek(); // a folder opens, but cannot be read
    if (script.bad()) return Complain("cannot read " + options.file);
    script.clear();
    return Run(options, script, std::cout, std::cerr);
}
