// The browser as the machine that the program runs on.
#pragma once

#include "app/platform.h"
#include "raster/painter.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace selvane::web {

// Bytes that the page hands over; the page fills them before it calls, or before it returns.
std::string& Input();

class PagePlatform : public Platform
{
public:
    // What the page is to do once the event is over, in its order.
    struct Order
    {
        std::string_view kind;   // "link" or "message"
        std::string text, title; // of a message; the link
    };
    std::vector<Order> orders;

    LocalTime Now() const override;
    std::optional<std::string> ReadDocument(std::string_view name) const override;
    void OpenLink(std::string_view target) override;
    bool StartProgram(const std::string& /*path*/) override { return false; }
    bool FileExists(const std::string& /*path*/) const override { return false; }
    void ShowMessage(std::string_view text, std::string_view title) override;
};

// The shapes of words, as the browser draws them.
class PageTextMasks : public raster::TextMasks
{
public:
    raster::Mask MaskOf(std::string_view text, double scale) override;

private:
    struct Known
    {
        std::string text;
        double scale;
        std::vector<std::uint8_t> coverage;
        int width, height;
    };
    std::vector<Known> known_; // few texts recur at every frame; a clock's texts pass through
};

// A character of a code page in UTF-8; empty where the browser does not know it.
std::string DecodeOnPage(std::int32_t codePage, std::string_view character);

// A page cannot go on without memory; it says why the program stops.
void StopWithoutMemory();

} // namespace selvane::web
