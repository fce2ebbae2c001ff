#include "qt/fonts_ahead.h"

#include <clocale>
#ifdef SELVANE_FONTCONFIG
#include <fontconfig/fontconfig.h>
#endif

namespace selvane {

FontsAhead::FontsAhead()
{
#ifdef SELVANE_FONTCONFIG
    std::setlocale(LC_ALL, "");
    reader_ = std::jthread([] { FcInit(); });
#endif
}

void FontsAhead::Wait()
{
    if (reader_.joinable()) reader_.join();
}

} // namespace selvane
