// What the records say that the page does not show yet, as JSON.
#pragma once

#include "app/simulation.h"
#include "program/spoken_text.h"
#include "web/json.h"
#include "web/page_platform.h"

#include <map>
#include <optional>
#include <string>

namespace selvane::web {

class ChangeWriter
{
public:
    // What differs from the last time, and what the page is to do; `orders` is empty then.
    std::string Changes(const Simulation& sim, std::vector<PagePlatform::Order>& orders);

private:
    // The marker on the picture, in pixels.
    struct MarkerPlace
    {
        int left = 0, top = 0;
        std::optional<Colour> colour;
        bool visible = false;

        bool operator==(const MarkerPlace&) const = default;
    };
    struct Sent
    {
        Controls controls;
        Windows windows;
        MarkerPlace marker;
        ShapePair ruling;
    };

    static MarkerPlace PlaceOf(const Simulation& sim);
    void WriteSpoken(Json& json, const Simulation& sim);
    void WriteSpoken(Json& json, std::string_view element, const SpokenText& text);

    std::optional<Sent> sent_;                              // nothing before the first time
    std::map<std::string, SpokenText, std::less<>> spoken_; // by element
};

} // namespace selvane::web
