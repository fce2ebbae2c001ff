// The program's entry points as a page calls them.
#include "web/exports.h"

#include "app/help_pane.h"
#include "documents/about_box.h"
#include "documents/user_guide.h"
#include "program/program.h"
#include "rich_text/document.h"
#include "web/page_platform.h"
#include "web/records.h"
#include "web/tables.h"

#include <algorithm>
#include <array>

namespace selvane::web {

namespace {

// A picture on the page: its painter, and the part that changed last, as the page takes it.
struct Canvas
{
    raster::Painter painter;
    std::vector<std::uint32_t> part{}; // bytes red, green, blue, 255
};

// The box, and where its pixels are.
struct Painted
{
    std::int32_t left, top, width, height;
    const std::uint32_t* pixels;
};

struct Page
{
    Simulation sim;
    PagePlatform platform;
    PageTextMasks masks;
    ChangeWriter writer;
    std::array<Canvas, 2> canvases{
        {{{kPicSelvane.place.width, kPicSelvane.place.height, kPicSelvane.background}},
         {{kPicDemo.place.width, kPicDemo.place.height, kPicDemo.background}}}};
    std::string output;
    Painted painted{}; // what the page reads after a call of paint
};

Page& ThePage()
{
    static Page page;
    return page;
}

template <typename Event> void Run(Event event)
{
    Page& page = ThePage();
    page.sim.now = page.platform.Now();
    event(page.sim);
    CarryOut(page.sim, page.platform);
}

constexpr std::uint32_t Swapped(raster::Pixel pixel)
{
    return (pixel & 0xff00ff00U) | (pixel & 0xffU) << 16 | (pixel >> 16 & 0xffU);
}

void CopyPart(Canvas& canvas, const raster::Box& box)
{
    const auto width = static_cast<std::size_t>(box.across.end - box.across.first);
    canvas.part.resize(width * static_cast<std::size_t>(box.down.end - box.down.first));
    std::uint32_t* to = canvas.part.data();
    for (int row = box.down.first; row < box.down.end; ++row) {
        const raster::Pixel* const from =
            canvas.painter.Pixels() + static_cast<std::ptrdiff_t>(row) * canvas.painter.Width();
        to = std::transform(from + box.across.first, from + box.across.end, to, Swapped);
    }
}

Painted PaintedPart(Canvas& canvas, const raster::Drawing& drawing, double scale)
{
    raster::Painter& painter = canvas.painter;
    raster::Box box = painter.Paint(drawing, ThePage().masks);
    if (painter.Scale() != scale) {
        painter.SetScale(scale, ThePage().masks);
        box = {{0, painter.Width()}, {0, painter.Height()}};
    }
    if (box.IsEmpty()) return {};
    CopyPart(canvas, box);
    return {box.across.first, box.down.first, box.across.end - box.across.first,
            box.down.end - box.down.first, canvas.part.data()};
}

} // namespace

const Simulation& PageSimulation()
{
    return ThePage().sim;
}

int Output(std::string text)
{
    ThePage().output = std::move(text);
    return static_cast<int>(ThePage().output.size());
}

std::string InputText(int bytes)
{
    return Input().substr(0, static_cast<std::size_t>(bytes));
}

extern "C" {

EXPORT(start) void Start()
{
    StopWithoutMemory();
    Run([](Simulation& sim) {
        LoadMainWindow(sim);
        ShowMainWindow(sim);
    });
}

EXPORT(input) char* InputOf(std::size_t bytes)
{
    Input().resize(bytes);
    return Input().data();
}

EXPORT(output) const char* OutputText()
{
    return ThePage().output.data();
}

EXPORT(tables) int Tables()
{
    return Output(TablesAsJson());
}

EXPORT(changes) int Changes()
{
    Page& page = ThePage();
    return Output(page.writer.Changes(page.sim, page.platform.orders));
}

// The picture is 0 or 1, in the order of the table; what comes back stays until the next call.
EXPORT(paint) const Painted* Paint(int picture, double scale)
{
    Page& page = ThePage();
    page.painted = picture == 0 ? PaintedPart(page.canvases[0], page.sim.picSelvane.drawing, scale)
                                : PaintedPart(page.canvases[1], page.sim.picDemo.drawing, scale);
    return &page.painted;
}

// The program's entry points; what a user could not do changes nothing.
#define ENTRY(name, procedure, First, Second)                                                      \
    EXPORT(name) void name##_entry(First first, Second second)                                     \
    {                                                                                              \
        Run([=](Simulation& sim) { procedure(sim, first, second); });                              \
    }
#define ENTRY_OF_ONE(name, procedure, First)                                                       \
    EXPORT(name) void name##_entry(First first)                                                    \
    {                                                                                              \
        Run([=](Simulation& sim) { procedure(sim, first); });                                      \
    }

ENTRY(scroll, Scroll, ScrollBarId, int)
ENTRY(step_bar, StepBar, ScrollBarId, int)
ENTRY(page_bar, PageBar, ScrollBarId, int)
ENTRY_OF_ONE(click, Click, ButtonId)
ENTRY_OF_ONE(choose, Choose, MenuId)
ENTRY_OF_ONE(click_label, ClickLabel, LabelId)
ENTRY_OF_ONE(tick, Tick, TimerId)
ENTRY_OF_ONE(activate, ActivateByUser, WindowId)
ENTRY_OF_ONE(close_window, CloseByUser, WindowId)
ENTRY_OF_ONE(click_topic, ClickTopic, Topic)
ENTRY_OF_ONE(click_about, ClickAbout, AboutControl)

EXPORT(type) void type_entry(FieldId field, int bytes)
{
    Run([&](Simulation& sim) { Type(sim, field, InputText(bytes)); });
}

// The index is among the links of the document in the pane of that window.
EXPORT(follow) void follow_entry(WindowId window, std::size_t link)
{
    Run([=](Simulation& sim) {
        const auto document = PaneOf(sim, window).text;
        if (document && link < document->links.size())
            FollowLink(sim, window, document->links[link]);
    });
}

} // extern "C"

} // namespace selvane::web
