#include "app/help_pane.h"

#include "app/simulation.h"
#include "rich_text/ascii.h"
#include "rich_text/reader.h"

#include <algorithm>
#include <charconv>

namespace selvane {

namespace {

// Each "%2E" becomes its byte; a sign of percent without two digits stays.
std::string PercentDecoded(std::string_view text)
{
    std::string decoded;
    while (!text.empty()) {
        unsigned byte = 0;
        const char* const digits = text.data() + 1;
        if (text.front() == '%' && text.size() > 2 &&
            std::from_chars(digits, digits + 2, byte, 16).ptr == digits + 2) {
            decoded += static_cast<char>(byte);
            text.remove_prefix(3);
        } else {
            decoded += text.front();
            text.remove_prefix(1);
        }
    }
    return decoded;
}

// "http" or "https", "://" and the name of a host, with nothing in it that no address has.
bool IsWebAddress(std::string_view link)
{
    const std::size_t end = link.find("://");
    if (end == std::string_view::npos) return false;
    const std::string scheme = rich_text::Capitals(link.substr(0, end));
    if (scheme != "HTTP" && scheme != "HTTPS") return false;
    std::string_view host = link.substr(end + 3);
    host = host.substr(0, host.find_first_of("/?#"));
    if (const auto user = host.rfind('@'); user != std::string_view::npos)
        host.remove_prefix(user + 1);
    return !host.empty() && host.front() != ':' && std::ranges::none_of(link, [](char sign) {
        return (sign >= 0 && sign <= ' ') ||
               std::string_view("\"<>\\^`{|}\x7f").find(sign) != std::string_view::npos;
    });
}

} // namespace

std::shared_ptr<const rich_text::Document> ReadPaneText(const std::string& bytes)
{
    rich_text::ReadResult result = rich_text::Read(bytes);
    auto* const text = std::get_if<rich_text::Document>(&result);
    return text ? std::make_shared<const rich_text::Document>(std::move(*text)) : nullptr;
}

HelpPane& PaneOf(Simulation& sim, WindowId window)
{
    return window == WindowId::UserGuide ? sim.windows.frmUserGuide.txtHelp : sim.controls.txtHelp;
}

void LoadDocument(Simulation& sim, WindowId window, std::string_view name)
{
    sim.requests.push_back({Request::Kind::LoadDocument, std::string(name), window});
}

void ShowDocument(Simulation& sim, WindowId window, const std::string& name,
                  const std::string& bytes)
{
    if (window == WindowId::UserGuide && !IsLoaded(sim, window)) return;
    std::shared_ptr<const rich_text::Document> text = ReadPaneText(bytes);
    if (!text) return;
    HelpPane& pane = PaneOf(sim, window);
    pane.text = std::move(text);
    pane.document = name;
    ++pane.loads;
}

void EmptyPane(Simulation& sim, WindowId window)
{
    std::erase_if(sim.requests, [window](const Request& request) {
        return request.kind == Request::Kind::LoadDocument && request.window == window;
    });
    HelpPane& pane = PaneOf(sim, window);
    pane.text.reset();
    pane.document.clear();
    ++pane.loads;
}

LinkTarget LinkTargetOf(std::string_view link)
{
    if (IsWebAddress(link)) return {LinkTarget::Kind::Web, std::string(link)};
    std::string name = PercentDecoded(link.substr(0, link.find('#')));
    if (name.starts_with("./")) name.erase(0, 2);
    constexpr std::string_view kEnding = ".RTF";
    const bool isDocument = name.size() > kEnding.size() &&
                            name.find_first_of("/\\:") == std::string::npos &&
                            rich_text::Capitals(name).ends_with(kEnding);
    if (!isDocument) return {};
    return {LinkTarget::Kind::Document, std::move(name)};
}

} // namespace selvane
