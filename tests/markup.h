// Reads the HTML of a rich-text document and finds what must not be in it.
#pragma once

#include <algorithm>
#include <string>
#include <string_view>
#include <vector>

namespace selvane {

struct Markup
{
    std::string text;              // of the elements, entities as characters
    std::vector<std::string> tags; // "p", "/p", in their order
    std::string fault;             // what is wrong with it; empty if nothing is
};

// What a reader of the page sees: no tabs, line ends or other controls.
inline std::string Visible(std::string_view text)
{
    std::string visible;
    for (const char c : text)
        if (static_cast<unsigned char>(c) >= 0x20 && c != 0x7F) visible += c;
    return visible;
}

namespace markup {

inline bool IsOf(std::string_view text, std::string_view characters)
{
    return !text.empty() && text.find_first_not_of(characters) == std::string_view::npos;
}

inline bool IsOneOf(std::string_view text, std::initializer_list<std::string_view> words)
{
    return std::ranges::find(words, text) != words.end();
}

// Only what the writer is known to write, to the letter.
inline bool IsGoodAttribute(std::string_view name, std::string_view value)
{
    constexpr std::string_view kDigits = "0123456789";
    constexpr std::string_view kBase64 =
        "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/=";
    if (name == "style") return IsOf(value, "abcdefghijklmnopqrstuvwxyz0123456789#%.:; -/");
    if (IsOneOf(name, {"data-link", "rowspan", "colspan"})) return IsOf(value, kDigits);
    if (name == "role") return IsOneOf(value, {"list", "listitem"});
    if (name == "dir") return value == "rtl";
    if (name == "alt") return value.empty();
    if (name == "target") return value == "_blank";
    if (name == "rel") return value == "noopener noreferrer";
    if (name == "href") {
        std::string lower(value.substr(0, 8));
        for (char& c : lower)
            if (c >= 'A' && c <= 'Z') c = static_cast<char>(c - 'A' + 'a');
        return value == "#" || lower.starts_with("http://") || lower.starts_with("https://") ||
               lower.starts_with("mailto:");
    }
    if (name != "src") return false;
    for (const std::string_view start : {"data:image/png;base64,", "data:image/jpeg;base64,"})
        if (value.starts_with(start)) return IsOf(value.substr(start.size()), kBase64);
    return false;
}

// The tag's name, or the fault with a question mark in front.
inline std::string ReadTag(std::string_view tag)
{
    const std::size_t end = tag.find(' ');
    const std::string name(tag.substr(0, end));
    if (!IsOneOf(name, {"div", "p", "h1", "h2", "h3", "h4", "h5", "h6", "span", "a", "br", "td",
                        "th", "table", "colgroup", "col", "tbody", "tr", "img"}))
        return "?tag " + name;
    std::string_view rest = end == std::string_view::npos ? std::string_view() : tag.substr(end);
    while (!rest.empty()) {
        const std::size_t equals = rest.find("=\"");
        if (rest.front() != ' ' || equals == std::string_view::npos) return "?" + std::string(tag);
        const std::size_t close = rest.find('"', equals + 2);
        if (close == std::string_view::npos) return "?" + std::string(tag);
        if (!IsGoodAttribute(rest.substr(1, equals - 1),
                             rest.substr(equals + 2, close - equals - 2)))
            return "?attribute in " + std::string(tag.substr(0, 200));
        rest.remove_prefix(close + 1);
    }
    return name;
}

inline char EntityAt(std::string_view& rest)
{
    constexpr std::pair<std::string_view, char> kEntities[] = {
        {"&amp;", '&'}, {"&lt;", '<'}, {"&gt;", '>'}, {"&quot;", '"'}, {"&#39;", '\''}};
    for (const auto& [entity, character] : kEntities) {
        if (!rest.starts_with(entity)) continue;
        rest.remove_prefix(entity.size());
        return character;
    }
    return 0;
}

} // namespace markup

inline Markup ReadMarkup(std::string_view html)
{
    Markup read;
    std::vector<std::string> open;
    while (!html.empty() && read.fault.empty()) {
        if (html.front() == '<') {
            const std::size_t end = std::min(html.find('>'), html.size());
            const bool closes = html.starts_with("</");
            const std::string name =
                markup::ReadTag(html.substr(closes ? 2 : 1, end - (closes ? 2 : 1)));
            html.remove_prefix(std::min(end + 1, html.size()));
            if (name.starts_with('?')) read.fault = name.substr(1);
            read.tags.push_back((closes ? "/" : "") + name);
            if (markup::IsOneOf(name, {"br", "col", "img"})) continue;
            if (!closes) {
                open.push_back(name);
            } else if (open.empty() || open.back() != name) {
                read.fault = "a " + name + " closed that is not open";
            } else {
                open.pop_back();
            }
        } else if (html.front() == '&') {
            const char character = markup::EntityAt(html);
            if (character == 0) read.fault = "a bare ampersand";
            read.text += character;
        } else {
            if (html.front() == '>' || html.front() == '"') read.fault = "a bare bracket or quote";
            read.text += html.front();
            html.remove_prefix(1);
        }
    }
    if (!open.empty() && read.fault.empty()) read.fault = "not closed: " + open.back();
    return read;
}

} // namespace selvane
