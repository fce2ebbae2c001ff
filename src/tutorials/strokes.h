// What the tutorial scenes draw with: the colours they have in common, and text at a place.
#pragma once

#include "app/picture.h"

namespace selvane {

inline constexpr Colour kDarkGrey{63, 63, 63};
inline constexpr Colour kLightGrey{191, 191, 191};
inline constexpr Colour kSunYellow{255, 255, 127};

// Writes the text in the picture's ForeColor; x, y are its top left corner.
inline void TextAt(Picture& picture, double x, double y, std::string_view text)
{
    picture.MoveTo(x, y);
    picture.Print(text);
}

} // namespace selvane
