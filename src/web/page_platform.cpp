#include "web/page_platform.h"

#include <algorithm>
#include <array>
#include <new>

// What the page does for the program. A size comes back, or minus one for what is not there; the
// bytes then stand in the input.
#define MACHINE(name) __attribute__((import_module("machine"), import_name(#name)))
extern "C" {
MACHINE(now) void MachineNow(std::int32_t* six);
MACHINE(read_document) std::int32_t MachineReadDocument(const char* name, std::size_t size);
MACHINE(decode) std::int32_t MachineDecode(std::int32_t page, const char* text, std::size_t size);
MACHINE(draw_words) std::int32_t MachineDrawWords(const char* text, std::size_t size, double scale);
MACHINE(out_of_memory) void MachineOutOfMemory();
}
#undef MACHINE

namespace selvane::web {

std::string& Input()
{
    static std::string input;
    return input;
}

LocalTime PagePlatform::Now() const
{
    std::array<std::int32_t, 6> time{};
    MachineNow(time.data());
    return {time[0], time[1], time[2], time[3], time[4], time[5]};
}

std::optional<std::string> PagePlatform::ReadDocument(std::string_view name) const
{
    if (MachineReadDocument(name.data(), name.size()) < 0) return std::nullopt;
    return Input();
}

void PagePlatform::OpenLink(std::string_view target)
{
    orders.push_back({"link", std::string(target), ""});
}

void PagePlatform::ShowMessage(std::string_view text, std::string_view title)
{
    orders.push_back({"message", std::string(text), std::string(title)});
}

raster::Mask PageTextMasks::MaskOf(std::string_view text, double scale)
{
    constexpr std::size_t kMost = 64;
    auto found = std::ranges::find_if(
        known_, [&](const Known& each) { return each.text == text && each.scale == scale; });
    if (found == known_.end()) {
        if (known_.size() >= kMost) known_.clear();
        const int size = MachineDrawWords(text.data(), text.size(), scale);
        const std::string& drawn = Input();
        known_.push_back(
            {std::string(text), scale, {drawn.begin(), drawn.end()}, size / 65536, size % 65536});
        found = known_.end() - 1;
    }
    return {found->coverage, found->width, found->height};
}

std::string DecodeOnPage(std::int32_t codePage, std::string_view character)
{
    if (MachineDecode(codePage, character.data(), character.size()) < 0) return {};
    return Input();
}

void StopWithoutMemory()
{
    std::set_new_handler(MachineOutOfMemory);
}

} // namespace selvane::web
