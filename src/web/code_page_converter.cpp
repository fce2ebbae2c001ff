// Code pages by the browser's own decoder.
#include "rich_text/code_page_converter.h"

#include "web/page_platform.h"

namespace selvane::rich_text {

struct CodePageConverter::Handles
{}; // the page keeps none open

CodePageConverter::CodePageConverter() = default;
CodePageConverter::~CodePageConverter() = default;

std::string CodePageConverter::Convert(std::int32_t page, std::string_view character)
{
    return web::DecodeOnPage(page, character);
}

} // namespace selvane::rich_text
