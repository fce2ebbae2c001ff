// The value of a calculation written as text.
#pragma once

#include <optional>
#include <string_view>

namespace selvane {

// Knows + - * / ^ (to the right), brackets, numbers, pi, and sqrt, cbrt, sin, cos, tan, asin, acos,
// atan of a bracket, angles in degrees. Nothing where the text is no such expression.
std::optional<double> ValueOf(std::string_view expression);

} // namespace selvane
