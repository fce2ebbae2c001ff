// Tables of control words, sorted by the compiler: one row a word, with what it does.
#pragma once

#include "rich_text/tokens.h"

#include <algorithm>
#include <array>
#include <string_view>
#include <utility>

namespace selvane::rich_text {

template <typename Target> struct WordRow
{
    std::string_view name;
    void (*apply)(Target& target, const Token& word);
};

template <typename Target, std::size_t N>
consteval std::array<WordRow<Target>, N> WordTable(WordRow<Target> (&&rows)[N])
{
    std::array<WordRow<Target>, N> table = std::to_array(std::move(rows));
    std::ranges::sort(table, {}, &WordRow<Target>::name);
    return table;
}

template <std::size_t N>
consteval std::array<std::string_view, N> SortedNames(std::string_view (&&names)[N])
{
    std::array<std::string_view, N> sorted = std::to_array(std::move(names));
    std::ranges::sort(sorted);
    return sorted;
}

// False: the table does not have the word.
template <typename Target, std::size_t N>
bool Apply(const std::array<WordRow<Target>, N>& table, Target& target, const Token& word)
{
    const auto row = std::ranges::lower_bound(table, word.text, {}, &WordRow<Target>::name);
    if (row == table.end() || row->name != word.text) return false;
    row->apply(target, word);
    return true;
}

} // namespace selvane::rich_text
