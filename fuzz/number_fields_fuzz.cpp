// libFuzzer target: whatever is typed into the fields, the program comes to its end and shows
// numbers only. A line is one text; its first sign chooses the field, and what is pressed then. A
// text without a line's end is only read, which is a thousand times as fast.
#include "app/control_table.h"
#include "app/number_text.h"
#include "replay/invariants.h"
#include "require.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>
#include <string_view>

namespace {

using namespace selvane;
using namespace selvane::replay;

constexpr int kMostTexts = 16;
constexpr ButtonId kPressed[] = {btnApsisCalculate, btnECalculate, btnAxisCalculate, btnAdvance};

bool IsPlain(std::string_view text)
{
    return !text.empty() && text.find_first_not_of("-.0123456789") == std::string_view::npos;
}

// The C library reads the same where no sign begins one of its other notations.
void CheckAgainstTheLibrary(const std::string& text)
{
    if (text.empty() || text.find_first_not_of("+-.0123456789eE") != std::string::npos) return;
    char* end = nullptr;
    const double other = std::strtod(text.c_str(), &end);
    const bool finite = std::isfinite(other);
    const bool whole = finite && *end == 0 && end != text.c_str();
    Require(PrefixNumber(text) == (finite ? other : 0), "a prefix that is another number");
    Require(StrictNumber(text).has_value() == whole, "a whole text is a number, or is none");
}

void CheckNumberText(std::string_view text)
{
    const double number = PrefixNumber(text);
    Require(std::isfinite(number), "a prefix that is no number");
    CheckAgainstTheLibrary(std::string(text));
    if (const auto whole = StrictNumber(text))
        Require(*whole == number, "the whole text and its prefix differ");
    const std::string plain = PlainNumber(number);
    Require(IsPlain(plain), plain);
    const double again = PrefixNumber(plain);
    Require(std::abs(again - number) <= 1e-14 * std::abs(number), "read again, it is another");
    for (int decimals = 0; decimals <= 3; ++decimals)
        Require(IsPlain(FixedNumber(number, decimals)), "an odd pattern");
}

void TypeAndPress(Player& player, std::string_view line)
{
    const auto choice = static_cast<unsigned char>(line.front());
    const std::string_view text = line.substr(1);
    CheckNumberText(text);
    player.Do(TypeText{FieldTable()[choice % kFieldCount].id, std::string(text)});
    player.Do(ButtonClick{kPressed[choice / kFieldCount % std::size(kPressed)]});
    player.Do(TimerTick{tmrSat});
    Require(BrokenPromise(player).empty(), BrokenPromise(player));
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    std::string_view rest(reinterpret_cast<const char*>(data), size);
    CheckNumberText(rest);
    if (rest.find('\n') == std::string_view::npos) return 0;
    Player player;
    for (int each = 0; each < kMostTexts && !rest.empty(); ++each) {
        const std::string_view line = rest.substr(0, rest.find('\n'));
        rest.remove_prefix(std::min(line.size() + 1, rest.size()));
        if (!line.empty()) TypeAndPress(player, line);
    }
    return 0;
}
