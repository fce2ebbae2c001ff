#include "sum.h"

#include <array>
#include <cctype>
#include <charconv>
#include <cmath>
#include <numbers>

namespace selvane {
namespace {

constexpr double kDegree = std::numbers::pi / 180;

struct Function
{
    std::string_view name;
    double (*of)(double);
};

constexpr std::array kFunctions = {
    Function{"sqrt", [](double x) { return std::sqrt(x); }},
    Function{"cbrt", [](double x) { return std::cbrt(x); }},
    Function{"sin", [](double x) { return std::sin(x * kDegree); }},
    Function{"cos", [](double x) { return std::cos(x * kDegree); }},
    Function{"tan", [](double x) { return std::tan(x * kDegree); }},
    Function{"asin", [](double x) { return std::asin(x) / kDegree; }},
    Function{"acos", [](double x) { return std::acos(x) / kDegree; }},
    Function{"atan", [](double x) { return std::atan(x) / kDegree; }},
};

class Parser
{
public:
    explicit Parser(std::string_view text) : rest_(text) {}

    std::optional<double> Parse()
    {
        const double value = Terms();
        SkipBlanks();
        return sound_ && rest_.empty() ? std::optional(value) : std::nullopt;
    }

private:
    void SkipBlanks()
    {
        while (rest_.starts_with(' ')) rest_.remove_prefix(1);
    }
    bool Take(std::string_view token)
    {
        SkipBlanks();
        if (!rest_.starts_with(token)) return false;
        rest_.remove_prefix(token.size());
        return true;
    }
    double Terms()
    {
        double value = Factors();
        for (;;) {
            if (Take("+"))
                value += Factors();
            else if (Take("-"))
                value -= Factors();
            else
                return value;
        }
    }
    double Factors()
    {
        double value = Power();
        for (;;) {
            if (Take("*"))
                value *= Power();
            else if (Take("/"))
                value /= Power();
            else
                return value;
        }
    }
    double Power()
    {
        const double base = Operand();
        return Take("^") ? std::pow(base, Power()) : base;
    }
    double Operand()
    {
        if (Take("-")) return -Operand();
        if (Take("(")) return Bracket();
        if (Take("pi")) return std::numbers::pi;
        for (const Function& function : kFunctions)
            if (Take(function.name)) return Take("(") ? function.of(Bracket()) : Fail();
        double value = 0;
        const auto [end, error] = std::from_chars(rest_.data(), rest_.data() + rest_.size(), value);
        if (error != std::errc{}) return Fail();
        rest_.remove_prefix(static_cast<std::size_t>(end - rest_.data()));
        return value;
    }
    double Bracket()
    {
        const double value = Terms();
        return Take(")") ? value : Fail();
    }
    double Fail()
    {
        sound_ = false;
        rest_ = {};
        return 0;
    }

    std::string_view rest_;
    bool sound_ = true;
};

} // namespace

std::optional<double> ValueOf(std::string_view expression)
{
    return Parser(expression).Parse();
}

} // namespace selvane
