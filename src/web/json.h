// Writes JSON: what goes from the program to the page.
#pragma once

#include <concepts>
#include <string>
#include <string_view>

namespace selvane::web {

class Json
{
public:
    Json& Open(char bracket); // '{' or '['
    Json& Close(char bracket);
    Json& Key(std::string_view name); // the value follows

    Json& Value(std::string_view text); // UTF-8
    Json& Value(const char* text) { return Value(std::string_view(text)); }
    Json& Value(std::same_as<bool> auto flag) { return Raw(flag ? "true" : "false"); }
    Json& Value(int number) { return Raw(std::to_string(number)); }
    Json& Null() { return Raw("null"); }

    template <typename Type> Json& Field(std::string_view name, const Type& value)
    {
        return Key(name).Value(value);
    }

    const std::string& Text() const { return text_; }

private:
    Json& Raw(std::string_view text);
    void Separate();
    void Quote(std::string_view text);

    std::string text_;
};

} // namespace selvane::web
