// FontsAhead: the machine's list of fonts, read by a thread of its own while the toolkit starts.
#pragma once

#include <thread>

namespace selvane {

class FontsAhead
{
public:
    // To be made before the application object: the locale is set first, as the list reads it.
    // Without fontconfig nothing is read ahead.
    FontsAhead();

    // To be called before the first text is measured, which would read the list a second time.
    void Wait();

private:
    std::jthread reader_;
};

} // namespace selvane
