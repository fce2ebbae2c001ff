// A colour as the screen shows it, of the strokes and of the program's records alike.
#pragma once

#include <cstdint>

namespace selvane {

struct Colour
{
    std::uint8_t red = 0, green = 0, blue = 0; // each 0 to 255

    bool operator==(const Colour&) const = default;
};

// RGB(r, g, b), each 0 to 255; what lies outside is clamped.
constexpr Colour RGB(int red, int green, int blue)
{
    const auto channel = [](int value) {
        return static_cast<std::uint8_t>(value < 0 ? 0 : value > 255 ? 255 : value);
    };
    return {channel(red), channel(green), channel(blue)};
}

inline constexpr Colour kBlack{0, 0, 0};
inline constexpr Colour kWhite{255, 255, 255};

} // namespace selvane
