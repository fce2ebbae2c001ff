#include "rich_text/fields.h"

#include "rich_text/ascii.h"

#include <algorithm>
#include <charconv>
#include <initializer_list>

namespace selvane::rich_text {

namespace {

constexpr std::size_t kMaxLinks = 65'536;
constexpr std::string_view kBlanks = " \t\n";

// Reads an instruction word by word. A word in quotes keeps its blanks; a switch is a backslash
// and a letter; a backslash in quotes takes the next character as it is.
class InstructionWords
{
public:
    explicit InstructionWords(std::string_view text) : text_(text) {}

    struct Word
    {
        std::string text;
        bool isSwitch = false;
    };

    std::optional<Word> Next()
    {
        text_.remove_prefix(std::min(text_.find_first_not_of(kBlanks), text_.size()));
        if (text_.empty()) return std::nullopt;
        if (TakeOneOf({"\"", "\u201C", "\u201D", "\u201E"})) return Word{Quoted()};
        const std::string_view word = text_.substr(0, text_.find_first_of(kBlanks));
        text_.remove_prefix(word.size());
        return Word{std::string(word), word.front() == '\\' && word.size() <= 2};
    }

    // The word that follows a switch; empty if the next is a switch too, or none is left.
    std::string Argument()
    {
        const std::string_view before = text_;
        const auto word = Next();
        if (word && !word->isSwitch) return word->text;
        text_ = before;
        return {};
    }

private:
    bool TakeOneOf(std::initializer_list<std::string_view> marks)
    {
        for (const std::string_view mark : marks) {
            if (!text_.starts_with(mark)) continue;
            text_.remove_prefix(mark.size());
            return true;
        }
        return false;
    }

    std::string Quoted()
    {
        std::string word;
        while (!text_.empty() && !TakeOneOf({"\"", "\u201C", "\u201D"})) {
            if (text_.front() == '\\' && text_.size() > 1) text_.remove_prefix(1);
            word += text_.front();
            text_.remove_prefix(1);
        }
        return word;
    }

    std::string_view text_;
};

std::int32_t Number(std::string_view text)
{
    const bool hexadecimal = text.starts_with("0x") || text.starts_with("0X");
    if (hexadecimal) text.remove_prefix(2);
    std::int32_t number = 0;
    std::from_chars(text.data(), text.data() + text.size(), number, hexadecimal ? 16 : 10);
    return std::clamp(number, 0, 0xFFFF);
}

// The target of a HYPERLINK, "#part" if only a part is named; empty if it is none.
std::string HyperlinkTarget(std::string_view instruction)
{
    InstructionWords words(instruction);
    const auto name = words.Next();
    if (!name || Capitals(name->text) != "HYPERLINK") return {};
    std::string target;
    std::string part;
    while (const auto word = words.Next()) {
        if (!word->isSwitch) {
            if (target.empty()) target = word->text;
        } else if (word->text == "\\l") {
            part = words.Argument();
        } else if (word->text == "\\o" || word->text == "\\t") {
            words.Argument();
        }
    }
    return part.empty() ? target : target + '#' + part;
}

} // namespace

std::int32_t Field::Link(Document& document)
{
    if (link_) return *link_;
    link_ = -1;
    std::string target = HyperlinkTarget(instruction.value);
    if (target.empty() || document.links.size() >= kMaxLinks) return -1;
    document.links.push_back(std::move(target));
    link_ = static_cast<std::int32_t>(document.links.size()) - 1;
    return *link_;
}

std::optional<SymbolField> Field::Symbol() const
{
    InstructionWords words(instruction.value);
    const auto name = words.Next();
    if (!name || Capitals(name->text) != "SYMBOL") return std::nullopt;
    SymbolField symbol;
    while (const auto word = words.Next()) {
        if (!word->isSwitch)
            symbol.code = symbol.code == 0 ? Number(word->text) : symbol.code;
        else if (word->text == "\\f")
            symbol.font = words.Argument();
        else if (word->text == "\\s")
            words.Argument();
        else if (word->text == "\\u")
            symbol.isUnicode = true;
    }
    return symbol;
}

} // namespace selvane::rich_text
