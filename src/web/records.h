// What the records say that the page does not show yet, as JSON.
#pragma once

#include "app/simulation.h"
#include "program/spoken_text.h"
#include "web/json.h"
#include "web/page_platform.h"

#include <map>
#include <string>

namespace selvane::web {

class ChangeWriter
{
public:
    // What differs from the last time, and what the page is to do; `orders` is empty then.
    std::string Changes(const Simulation& sim, std::vector<PagePlatform::Order>& orders);

private:
    void WriteControls(const Simulation& sim);
    void WriteWindows(const Windows& windows);
    void WritePane(std::string_view element, const HelpPane& pane);
    void WriteSpoken(const Simulation& sim);
    void WriteSpoken(std::string_view element, const SpokenText& text);

    // A member of the object that is being written, unless it was sent like this before. Members of
    // two objects bear no name in common.
    void Send(std::string_view name, const std::string& json);
    bool IsNew(std::string_view name, const std::string& json);
    void Forget(std::string_view window);

    Json json_;
    std::map<std::string, std::string, std::less<>> sent_; // JSON by name
};

} // namespace selvane::web
