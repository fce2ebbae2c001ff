// Numbers as text: how a typed text is read and how a number is written.
// Never looks at the locale: the point is '.', there are no thousands separators.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace selvane {

// What a field keeps of a text (UTF-8) that is typed or pasted into it: its first line that is not
// empty. Control characters but the tab, which is a blank, end a line as line breaks do.
std::string OneLine(std::string text);

// The longest leading numeric prefix: blanks, sign, digits with one point, an exponent only with
// its digits. 0 when there is none, and where the number overflows. Never nan or infinite.
double PrefixNumber(std::string_view text);

// The whole text as a number in the grammar of the prefix, blanks round it allowed. Nothing when
// anything else stands in it, or where the number overflows.
std::optional<double> StrictNumber(std::string_view text);

// Plain decimal text, rounded to 15 significant digits, no trailing zeros, no exponent.
// Expects a finite number.
std::string PlainNumber(double number);

// The patterns "0", "0.0", "0.00", "0.000" (decimals 0 to 3). Ties are judged on the decimal text
// of 15 significant digits and go away from zero; a negative number that rounds to nothing keeps
// its minus sign, zero itself has none. Expects a finite number.
std::string FixedNumber(double number, int decimals);

// The pattern "00": a whole number of at least two digits.
std::string TwoDigits(double number);

// Rounds to a whole number outside a pattern: to nearest, ties to even. A number next to a tie
// counts as one (tolerance.h).
double RoundHalfEven(double number);

} // namespace selvane
