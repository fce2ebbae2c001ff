#include "app/number_text.h"

#include "app/assertion.h"
#include "app/tolerance.h"

#include <algorithm>
#include <charconv>
#include <cmath>

namespace selvane {

namespace {

// The bytes of the control character or line break that stands there; 0 where none does.
std::size_t LineEnd(std::string_view text, std::size_t at)
{
    const auto byte = [&](std::size_t offset) {
        return at + offset < text.size() ? static_cast<unsigned char>(text[at + offset]) : ' ';
    };
    if ((byte(0) < 0x20 && byte(0) != '\t') || byte(0) == 0x7F) return 1;
    if (byte(0) == 0xC2 && byte(1) >= 0x80 && byte(1) < 0xA0) return 2;
    const bool separator = byte(0) == 0xE2 && byte(1) == 0x80 && (byte(2) & ~1) == 0xA8;
    return separator ? 3 : 0; // U+2028, U+2029
}

constexpr std::string_view kBlanks = " \t\n\v\f\r";

bool IsDigit(char character)
{
    return character >= '0' && character <= '9';
}

struct NumericPrefix
{
    double value = 0;
    std::size_t length = 0; // characters up to its end, 0 when there is none
    bool overflows = false;
};

std::size_t SkipDigits(std::string_view text, std::size_t at)
{
    while (at < text.size() && IsDigit(text[at])) ++at;
    return at;
}

// The end of digits with one point, or `at` where no digit stands.
std::size_t MantissaEnd(std::string_view text, std::size_t at)
{
    std::size_t end = SkipDigits(text, at);
    std::size_t digits = end - at;
    if (end < text.size() && text[end] == '.') {
        const std::size_t fraction = SkipDigits(text, end + 1);
        digits += fraction - (end + 1);
        end = fraction;
    }
    return digits > 0 ? end : at;
}

std::size_t ExponentEnd(std::string_view text, std::size_t at)
{
    if (at >= text.size() || (text[at] != 'e' && text[at] != 'E')) return at;
    std::size_t digits = at + 1;
    if (digits < text.size() && (text[digits] == '+' || text[digits] == '-')) ++digits;
    const std::size_t end = SkipDigits(text, digits);
    return end > digits ? end : at;
}

// What std::from_chars calls out of range is too large or too small; only the first overflows. The
// place of the first digit that counts and the exponent together decide which.
bool IsTooSmall(std::string_view number)
{
    const std::size_t mantissa = std::min(number.find_first_of("eE"), number.size());
    const std::size_t point = std::min(number.find('.'), mantissa);
    const std::size_t first = std::min(number.find_first_of("123456789"), mantissa);
    std::string_view power = number.substr(std::min(mantissa + 1, number.size()));
    if (power.starts_with('+')) power.remove_prefix(1);
    long long exponent = 0;
    const auto read = std::from_chars(power.data(), power.data() + power.size(), exponent);
    if (read.ec == std::errc::result_out_of_range) return power.starts_with('-');
    return exponent < static_cast<long long>(first) - static_cast<long long>(point);
}

NumericPrefix ReadPrefix(std::string_view text)
{
    const std::size_t first = std::min(text.find_first_not_of(kBlanks), text.size());
    std::size_t at = first;
    const bool negative = at < text.size() && text[at] == '-';
    if (at < text.size() && (text[at] == '-' || text[at] == '+')) ++at;
    const std::size_t mantissa = MantissaEnd(text, at);
    if (mantissa == at) return {};

    NumericPrefix prefix;
    prefix.length = ExponentEnd(text, mantissa);
    const std::string_view number = text.substr(at, prefix.length - at);
    const auto read = std::from_chars(number.data(), number.data() + number.size(), prefix.value);
    if (read.ec == std::errc::result_out_of_range) {
        prefix.overflows = !IsTooSmall(number);
        prefix.value = 0;
    }
    if (negative) prefix.value = -prefix.value;
    return prefix;
}

// A number as its 15 significant digits: 0.d1d2d3... x 10^pointAt.
struct DecimalDigits
{
    bool negative = false;
    std::string digits; // no trailing zeros, empty for zero
    int pointAt = 0;
};

DecimalDigits FifteenDigits(double number)
{
    SELVANE_ASSERT(std::isfinite(number));
    DecimalDigits decimal;
    if (number == 0) return decimal;
    decimal.negative = number < 0;
    char buffer[32];
    const auto written = std::to_chars(buffer, buffer + sizeof buffer, std::fabs(number),
                                       std::chars_format::scientific, 14);
    const std::string_view text(buffer, static_cast<std::size_t>(written.ptr - buffer));
    const std::size_t exponentAt = text.find('e');
    decimal.digits = std::string(1, text[0]) + std::string(text.substr(2, exponentAt - 2));
    decimal.digits.erase(decimal.digits.find_last_not_of('0') + 1);
    const std::size_t signAt = exponentAt + 1;
    int exponent = 0;
    std::from_chars(text.data() + signAt + 1, text.data() + text.size(), exponent);
    decimal.pointAt = (text[signAt] == '-' ? -exponent : exponent) + 1;
    return decimal;
}

// Rounds half away from zero to so many decimals.
void RoundTo(DecimalDigits& decimal, int decimals)
{
    const int kept = decimal.pointAt + decimals;
    const int count = static_cast<int>(decimal.digits.size());
    if (kept >= count) return;
    const bool up = kept >= 0 && decimal.digits[static_cast<std::size_t>(kept)] >= '5';
    decimal.digits.resize(static_cast<std::size_t>(std::max(kept, 0)));
    if (!up) return;
    std::size_t at = decimal.digits.size();
    while (at > 0 && decimal.digits[at - 1] == '9') decimal.digits[--at] = '0';
    if (at > 0) {
        ++decimal.digits[at - 1];
    } else {
        decimal.digits.insert(0, 1, '1');
        ++decimal.pointAt;
    }
}

std::string WholePart(const DecimalDigits& decimal)
{
    if (decimal.pointAt <= 0 || decimal.digits.empty()) return "0";
    const auto length = static_cast<std::size_t>(decimal.pointAt);
    std::string text = decimal.digits.substr(0, length);
    text.append(length - text.size(), '0');
    return text;
}

std::string FractionPart(const DecimalDigits& decimal)
{
    if (decimal.digits.empty()) return {};
    if (decimal.pointAt < 0)
        return std::string(static_cast<std::size_t>(-decimal.pointAt), '0') + decimal.digits;
    const auto length = static_cast<std::size_t>(decimal.pointAt);
    return decimal.digits.size() > length ? decimal.digits.substr(length) : std::string();
}

} // namespace

std::string OneLine(std::string text)
{
    std::size_t start = 0, length = 0;
    while (const std::size_t skipped = LineEnd(text, start)) start += skipped;
    while (start + length < text.size() && LineEnd(text, start + length) == 0) ++length;
    return text.substr(start, length);
}

double PrefixNumber(std::string_view text)
{
    const NumericPrefix prefix = ReadPrefix(text);
    return prefix.overflows ? 0 : prefix.value;
}

std::optional<double> StrictNumber(std::string_view text)
{
    const NumericPrefix prefix = ReadPrefix(text);
    if (prefix.length == 0 || prefix.overflows) return std::nullopt;
    if (text.find_first_not_of(kBlanks, prefix.length) != std::string_view::npos)
        return std::nullopt;
    return prefix.value;
}

std::string PlainNumber(double number)
{
    const DecimalDigits decimal = FifteenDigits(number);
    std::string text = (decimal.negative ? "-" : "") + WholePart(decimal);
    const std::string fraction = FractionPart(decimal);
    if (!fraction.empty()) text += "." + fraction;
    return text;
}

std::string FixedNumber(double number, int decimals)
{
    SELVANE_ASSERT(decimals >= 0);
    DecimalDigits decimal = FifteenDigits(number);
    RoundTo(decimal, decimals);
    std::string text = (decimal.negative ? "-" : "") + WholePart(decimal);
    if (decimals > 0) {
        std::string fraction = FractionPart(decimal);
        fraction.resize(static_cast<std::size_t>(decimals), '0');
        text += "." + fraction;
    }
    return text;
}

std::string TwoDigits(double number)
{
    std::string text = FixedNumber(number, 0);
    const std::size_t sign = number < 0 ? 1 : 0;
    if (text.size() - sign < 2) text.insert(sign, 1, '0');
    return text;
}

double RoundHalfEven(double number)
{
    const double floor = std::floor(number);
    const double rest = Snapped(number - floor, 0.5, 1);
    if (rest < 0.5) return floor;
    if (rest > 0.5) return floor + 1;
    return std::fmod(floor, 2) == 0 ? floor : floor + 1;
}

} // namespace selvane
