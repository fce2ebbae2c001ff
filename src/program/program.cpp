#include "program/program.h"

#include "app/handlers.h"
#include "app/help_pane.h"
#include "app/number_text.h"
#include "documents/system_information.h"

#include <utility>

namespace selvane {

namespace {

Refusal Because(std::string_view name, std::string_view reason)
{
    return std::string(name) + " " + std::string(reason);
}

std::string_view NameOf(WindowId window)
{
    switch (window) {
    case WindowId::Main:
        return "main";
    case WindowId::UserGuide:
        return "guide";
    case WindowId::About:
        return "about";
    }
    return "";
}

// Why the user cannot act on a window now; nothing when he can.
Refusal NotActive(const Simulation& sim, WindowId window)
{
    if (!sim.windows.running) return "the program has ended";
    if (!IsLoaded(sim, window)) return Because(NameOf(window), "is not open");
    if (!IsActive(sim, window)) return Because(NameOf(window), "is not the active window");
    return std::nullopt;
}

Refusal CannotMove(const Simulation& sim, ScrollBarId bar)
{
    if (Refusal refusal = NotActive(sim, WindowId::Main)) return refusal;
    if (!sim.controls.scrollBars[Index(bar)].visible)
        return Because(ScrollBarTable()[Index(bar)].name, "is hidden");
    return std::nullopt;
}

Refusal MoveBy(Simulation& sim, ScrollBarId bar, int change)
{
    if (Refusal refusal = CannotMove(sim, bar)) return refusal;
    Assign(sim, bar, Value(sim, bar) + change);
    return std::nullopt;
}

Refusal Run(Simulation& sim, Procedure handler)
{
    if (handler) handler(sim);
    return std::nullopt;
}

} // namespace

void LoadMainWindow(Simulation& sim)
{
    sim.windows.order.insert(sim.windows.order.begin(), WindowId::Main);
    kHandlers.load[Index(WindowId::Main)](sim);
}

void ShowMainWindow(Simulation& sim)
{
    kHandlers.activate[Index(WindowId::Main)](sim);
}

Refusal Scroll(Simulation& sim, ScrollBarId bar, int value)
{
    if (Refusal refusal = CannotMove(sim, bar)) return refusal;
    Assign(sim, bar, value);
    return std::nullopt;
}

Refusal StepBar(Simulation& sim, ScrollBarId bar, int direction)
{
    return MoveBy(sim, bar, direction * sim.controls.scrollBars[Index(bar)].smallChange);
}

Refusal PageBar(Simulation& sim, ScrollBarId bar, int direction)
{
    return MoveBy(sim, bar, direction * sim.controls.scrollBars[Index(bar)].largeChange);
}

Refusal Type(Simulation& sim, FieldId field, std::string text)
{
    if (Refusal refusal = NotActive(sim, WindowId::Main)) return refusal;
    if (!sim.controls.fields[Index(field)].visible)
        return Because(FieldTable()[Index(field)].name, "is hidden");
    SetText(sim, field, OneLine(std::move(text)));
    return std::nullopt;
}

Refusal Click(Simulation& sim, ButtonId button)
{
    if (Refusal refusal = NotActive(sim, WindowId::Main)) return refusal;
    if (!IsShown(sim, button)) return Because(ButtonTable()[Index(button)].name, "is hidden");
    return Run(sim, kHandlers.click[Index(button)]);
}

Refusal Choose(Simulation& sim, MenuId item)
{
    if (Refusal refusal = NotActive(sim, WindowId::Main)) return refusal;
    const Procedure handler = kHandlers.menu[Index(item)];
    if (!handler) return Because(MenuTable()[Index(item)].name, "is no item to choose");
    return Run(sim, handler);
}

Refusal ClickLabel(Simulation& sim, LabelId label)
{
    if (Refusal refusal = NotActive(sim, WindowId::Main)) return refusal;
    const std::string_view name = LabelTable()[Index(label)].name;
    if (!sim.controls.labels[Index(label)].visible) return Because(name, "is hidden");
    const Procedure handler = kHandlers.label[Index(label)];
    if (!handler) return Because(name, "is no link");
    return Run(sim, handler);
}

Refusal Tick(Simulation& sim, TimerId timer)
{
    if (!sim.windows.running) return "the program has ended";
    if (!sim.controls.timers[Index(timer)].enabled)
        return Because(TimerTable()[Index(timer)].name, "is off");
    return Run(sim, kHandlers.tick[Index(timer)]);
}

Refusal ActivateByUser(Simulation& sim, WindowId window)
{
    if (!sim.windows.running) return "the program has ended";
    if (!IsLoaded(sim, window)) return Because(NameOf(window), "is not open");
    ActivateWindow(sim, window);
    return std::nullopt;
}

Refusal CloseByUser(Simulation& sim, WindowId window)
{
    if (!sim.windows.running) return "the program has ended";
    if (!IsLoaded(sim, window)) return Because(NameOf(window), "is not open");
    CloseWindow(sim, window);
    return std::nullopt;
}

Refusal ClickTopic(Simulation& sim, Topic topic)
{
    if (Refusal refusal = NotActive(sim, WindowId::UserGuide)) return refusal;
    frmUserGuide::Topic_Click(sim, topic);
    return std::nullopt;
}

Refusal ClickAbout(Simulation& sim, AboutControl control)
{
    if (Refusal refusal = NotActive(sim, WindowId::About)) return refusal;
    switch (control) {
    case AboutControl::LblWebsite:
        frmAbout::LblWebsite_Click(sim);
        break;
    case AboutControl::Label1:
        frmAbout::Label1_Click(sim);
        break;
    case AboutControl::cmdOK:
        frmAbout::cmdOK_Click(sim);
        break;
    case AboutControl::cmdSysInfo:
        frmAbout::cmdSysInfo_Click(sim);
        break;
    case AboutControl::picIcon:
    case AboutControl::lblTitle:
    case AboutControl::lblVersion:
    case AboutControl::lblDescription:
    case AboutControl::lblDisclaimer:
        return Because(AboutTable()[Index(control)].name, "is nothing to press");
    }
    return std::nullopt;
}

void FollowLink(Simulation& sim, WindowId window, std::string_view link)
{
    if (!IsLoaded(sim, window)) return;
    LinkTarget target = LinkTargetOf(link);
    switch (target.kind) {
    case LinkTarget::Kind::None:
        break;
    case LinkTarget::Kind::Document:
        LoadDocument(sim, window, target.address);
        break;
    case LinkTarget::Kind::Web:
        sim.requests.push_back({Request::Kind::OpenLink, std::move(target.address)});
        break;
    }
}

void CarryOut(Simulation& sim, Platform& platform)
{
    for (const auto& [kind, target, window] : std::exchange(sim.requests, {})) {
        switch (kind) {
        case Request::Kind::LoadDocument:
            if (const auto bytes = platform.ReadDocument(target))
                ShowDocument(sim, window, target, *bytes);
            break;
        case Request::Kind::OpenLink:
            platform.OpenLink(target);
            break;
        case Request::Kind::StartSystemInformation:
            StartSysInfo(platform);
            break;
        }
    }
}

} // namespace selvane
