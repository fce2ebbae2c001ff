// Values as a dump writes them. Never looks at the locale.
#pragma once

#include "raster/colour.h"

#include <optional>
#include <string>
#include <string_view>

namespace selvane::replay {

// "%.9g", and 0 for a negative zero.
std::string NumberText(double value);

void AppendNineDigits(std::string& text, double value);    // the same, at the text's end
void AppendThreeDecimals(std::string& text, double value); // "%.3f", its negative zero kept

// "r,g,b"; "-" for none.
void AppendColour(std::string& text, const std::optional<Colour>& colour);
std::string ColourText(const std::optional<Colour>& colour);

// Backslash, line feed and carriage return as \\, \n and \r.
std::string Escaped(std::string_view text);

} // namespace selvane::replay
