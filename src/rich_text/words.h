// Tables of control words, made by the compiler: one row for the words that do the same.
#pragma once

#include "rich_text/tokens.h"

#include <algorithm>
#include <array>
#include <initializer_list>
#include <string_view>

namespace selvane::rich_text {

template <typename Target> struct WordRow
{
    std::string_view names; // with a blank between two
    void (*apply)(Target& target, const Token& word);
};

// A hash table, as most words of a document are looked up in several. A table without a free slot
// does not compile.
template <typename Target, std::size_t Slots> class WordTable
{
public:
    consteval WordTable(std::initializer_list<WordRow<Target>> rows)
    {
        for (WordRow<Target> row : rows) {
            while (!row.names.empty()) {
                const std::string_view name = row.names.substr(0, row.names.find(' '));
                slots_[PlaceOf(name)] = {name, row.apply};
                row.names.remove_prefix(std::min(name.size() + 1, row.names.size()));
            }
        }
        static_cast<void>(PlaceOf("")); // ends only if there is a free slot
    }

    // False: the table does not have the word.
    bool Apply(Target& target, const Token& word) const
    {
        const WordRow<Target>& found = slots_[PlaceOf(word.text)];
        if (found.names.empty()) return false;
        found.apply(target, word);
        return true;
    }

private:
    // Where the name stands, or where it would.
    constexpr std::size_t PlaceOf(std::string_view name) const
    {
        std::size_t place = 0;
        for (const char c : name) place = place * 31 + static_cast<unsigned char>(c);
        place %= Slots;
        while (!slots_[place].names.empty() && slots_[place].names != name)
            place = (place + 1) % Slots;
        return place;
    }

    std::array<WordRow<Target>, Slots> slots_{};
};

} // namespace selvane::rich_text
