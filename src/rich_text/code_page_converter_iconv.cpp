#include "rich_text/code_page_converter.h"

#include <array>
#include <iconv.h>
#include <map>

namespace selvane::rich_text {

namespace {

using Handle = std::unique_ptr<void, int (*)(iconv_t)>; // null where iconv lacks the page

Handle Open(std::int32_t page)
{
    const std::string name = page == 1361    ? "JOHAB"
                             : page == 10029 ? "MAC-CENTRALEUROPE"
                                             : "CP" + std::to_string(page);
    iconv_t handle = iconv_open("UTF-8", name.c_str());
    // It says "failed" by minus one cast to its type.
    if (reinterpret_cast<std::intptr_t>(handle) == -1) handle = nullptr;
    return {handle, iconv_close};
}

} // namespace

struct CodePageConverter::Handles
{
    std::map<std::int32_t, Handle> ofPage; // opened when first asked for
};

CodePageConverter::CodePageConverter() : handles_(std::make_unique<Handles>()) {}
CodePageConverter::~CodePageConverter() = default;

std::string CodePageConverter::Convert(std::int32_t page, std::string_view character)
{
    constexpr auto kFailed = static_cast<std::size_t>(-1);
    auto found = handles_->ofPage.find(page);
    if (found == handles_->ofPage.end()) found = handles_->ofPage.emplace(page, Open(page)).first;
    iconv_t handle = found->second.get();
    if (!handle) return {};
    std::string from(character);
    std::array<char, 16> utf8{};
    char* in = from.data();
    char* out = utf8.data();
    std::size_t inLeft = from.size();
    std::size_t outLeft = utf8.size();
    iconv(handle, nullptr, nullptr, nullptr, nullptr); // back to the start after a failure
    if (iconv(handle, &in, &inLeft, &out, &outLeft) == kFailed || inLeft > 0) return {};
    iconv(handle, nullptr, nullptr, &out, &outLeft); // some wait for a combining mark
    return {utf8.data(), utf8.size() - outLeft};
}

} // namespace selvane::rich_text
