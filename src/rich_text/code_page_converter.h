// Characters of code pages, by the converter of the platform. The build chooses the implementation:
// code_page_converter_iconv.cpp, or one of a platform without iconv.
#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

namespace selvane::rich_text {

class CodePageConverter
{
public:
    CodePageConverter();
    ~CodePageConverter();
    CodePageConverter(const CodePageConverter&) = delete;
    CodePageConverter& operator=(const CodePageConverter&) = delete;

    // One character, of one byte over 7F or of two, in UTF-8; empty if the page has none there or
    // the platform lacks the page. Pages as code_pages.h numbers them: 437, 850, 852, 866, 874,
    // 1250 to 1258 and 10029 of single bytes, 932, 936, 949, 950 and 1361 of two.
    std::string Convert(std::int32_t page, std::string_view character);

private:
    struct Handles; // what the platform keeps open for each page
    std::unique_ptr<Handles> handles_;
};

} // namespace selvane::rich_text
