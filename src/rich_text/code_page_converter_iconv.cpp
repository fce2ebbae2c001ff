#include "rich_text/code_page_converter.h"

#include <array>
#include <iconv.h>
#include <map>

namespace selvane::rich_text {

namespace {

// iconv's name of a page.
std::string NameOf(std::int32_t page)
{
    if (page == 1361) return "JOHAB";
    if (page == 10029) return "MAC-CENTRALEUROPE";
    return "CP" + std::to_string(page);
}

class Handle
{
public:
    explicit Handle(const std::string& name) : descriptor_(iconv_open("UTF-8", name.c_str())) {}
    ~Handle()
    {
        if (IsOpen()) iconv_close(descriptor_);
    }
    Handle(const Handle&) = delete;
    Handle& operator=(const Handle&) = delete;

    std::string Convert(std::string from)
    {
        if (!IsOpen()) return {};
        std::array<char, 16> utf8{};
        char* in = from.data();
        char* out = utf8.data();
        std::size_t inLeft = from.size();
        std::size_t outLeft = utf8.size();
        iconv(descriptor_, nullptr, nullptr, nullptr, nullptr); // back to the start after a failure
        if (iconv(descriptor_, &in, &inLeft, &out, &outLeft) == kFailed || inLeft > 0) return {};
        iconv(descriptor_, nullptr, nullptr, &out, &outLeft); // some wait for a combining mark
        return {utf8.data(), utf8.size() - outLeft};
    }

private:
    static constexpr auto kFailed = static_cast<std::size_t>(-1);

    // iconv_open says "failed" by minus one cast to its type.
    bool IsOpen() const { return reinterpret_cast<std::intptr_t>(descriptor_) != -1; }

    iconv_t descriptor_;
};

} // namespace

struct CodePageConverter::Handles
{
    std::map<std::int32_t, Handle> ofPage; // opened when first asked for
};

CodePageConverter::CodePageConverter() : handles_(std::make_unique<Handles>()) {}
CodePageConverter::~CodePageConverter() = default;

std::string CodePageConverter::Convert(std::int32_t page, std::string_view character)
{
    const auto [found, isNew] = handles_->ofPage.try_emplace(page, NameOf(page));
    return found->second.Convert(std::string(character));
}

} // namespace selvane::rich_text
