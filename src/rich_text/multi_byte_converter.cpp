#include "rich_text/multi_byte_converter.h"

#include <array>
#include <iconv.h>

namespace selvane::rich_text {

namespace {

// The converter's name of a page, or nullptr.
const char* ConverterName(std::int32_t page)
{
    switch (page) {
    case 932:
        return "CP932";
    case 936:
        return "CP936";
    case 949:
        return "CP949";
    case 950:
        return "CP950";
    case 1361:
        return "JOHAB";
    default:
        return nullptr;
    }
}

} // namespace

class MultiByteConverter::Handle
{
public:
    explicit Handle(const char* name) : descriptor_(iconv_open("UTF-8", name)) {}
    ~Handle()
    {
        if (IsOpen()) iconv_close(descriptor_);
    }
    Handle(const Handle&) = delete;
    Handle& operator=(const Handle&) = delete;

    std::string Convert(std::array<char, 2> pair)
    {
        if (!IsOpen()) return {};
        iconv(descriptor_, nullptr, nullptr, nullptr, nullptr); // forget an earlier failure
        std::array<char, 16> utf8{};
        char* from = pair.data();
        char* to = utf8.data();
        std::size_t fromLeft = pair.size();
        std::size_t toLeft = utf8.size();
        if (iconv(descriptor_, &from, &fromLeft, &to, &toLeft) == kFailed || fromLeft > 0)
            return {};
        return {utf8.data(), utf8.size() - toLeft};
    }

private:
    static constexpr auto kFailed = static_cast<std::size_t>(-1);

    // iconv_open says "failed" by minus one cast to its type.
    bool IsOpen() const { return reinterpret_cast<std::intptr_t>(descriptor_) != -1; }

    iconv_t descriptor_;
};

MultiByteConverter::MultiByteConverter() = default;
MultiByteConverter::~MultiByteConverter() = default;

bool MultiByteConverter::Knows(std::int32_t page)
{
    return ConverterName(page) != nullptr;
}

std::string MultiByteConverter::Convert(std::int32_t page, std::uint8_t lead, std::uint8_t trail)
{
    if (!Knows(page)) return {};
    auto& handle = handles_[page];
    if (!handle) handle = std::make_unique<Handle>(ConverterName(page));
    return handle->Convert({static_cast<char>(lead), static_cast<char>(trail)});
}

} // namespace selvane::rich_text
