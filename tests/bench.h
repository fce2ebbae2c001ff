// Bench: the whole program with pictures that keep their strokes, a clock that stands where the
// test sets it, and documents made of their own names.
#pragma once

#include "program/program.h"

#include <algorithm>
#include <array>
#include <set>
#include <string>
#include <vector>

namespace selvane {

enum class StrokeKind { Cls, Line, Circle, Arc, Sector, Point, Text };

struct Stroke
{
    StrokeKind kind = StrokeKind::Cls;
    float x1 = 0, y1 = 0; // a line's start, a centre, a point, a text's corner
    float x2 = 0, y2 = 0; // a line's end, the point again; x2 is a circle's radius
    Colour colour{};
    std::string text{};
    std::optional<Colour> fill{}; // of a circle or sector that is filled
    double start = 0, end = 0;    // radians, of an arc or sector

    bool operator==(const Stroke&) const = default;
};

class Recorder : public DrawingSurface
{
public:
    using DrawingSurface::DrawingSurface;

    std::vector<Stroke> strokes;    // since the last Cls
    std::vector<std::string> texts; // since Forget
    bool keeping = true;            // false: strokes are counted only

    // Calls since Forget.
    int Count(StrokeKind kind) const { return counts_[static_cast<std::size_t>(kind)]; }

    // The present picture's strokes of one kind.
    std::vector<Stroke> Of(StrokeKind kind) const
    {
        std::vector<Stroke> found;
        std::copy_if(strokes.begin(), strokes.end(), std::back_inserter(found),
                     [&](const Stroke& stroke) { return stroke.kind == kind; });
        return found;
    }

    void Forget()
    {
        strokes.clear();
        texts.clear();
        counts_ = {};
    }

protected:
    using Filling = std::optional<Colour>;

    void OnCls() override
    {
        strokes.clear();
        ++counts_[0];
    }
    void OnLine(float x1, float y1, float x2, float y2, Colour colour) override
    {
        Keep({StrokeKind::Line, x1, y1, x2, y2, colour});
    }
    void OnCircle(float x, float y, float radius, Colour colour, Filling fill) override
    {
        Keep({StrokeKind::Circle, x, y, radius, 0, colour, "", fill});
    }
    void OnArc(float x, float y, float radius, Colour colour, double start, double end) override
    {
        Keep({StrokeKind::Arc, x, y, radius, 0, colour, "", {}, start, end});
    }
    void OnSector(float x, float y, float radius, Colour colour, Filling fill, double start,
                  double end) override
    {
        Keep({StrokeKind::Sector, x, y, radius, 0, colour, "", fill, start, end});
    }
    void OnPoint(float x, float y, Colour colour) override
    {
        Keep({StrokeKind::Point, x, y, x, y, colour});
    }
    void OnText(float x, float y, Colour colour, std::string_view text) override
    {
        Keep({StrokeKind::Text, x, y, 0, 0, colour, std::string(text)});
        if (keeping) texts.emplace_back(text);
    }

private:
    void Keep(Stroke stroke)
    {
        ++counts_[static_cast<std::size_t>(stroke.kind)];
        if (keeping) strokes.push_back(std::move(stroke));
    }

    std::array<int, 7> counts_{};
};

class FakePlatform : public Platform
{
public:
    LocalTime now{2012, 7, 28, 14, 48, 46};
    std::set<std::string, std::less<>> missing; // documents that cannot be read
    std::vector<std::string> opened, started, messages;

    LocalTime Now() const override { return now; }
    std::optional<std::string> ReadDocument(std::string_view name) const override
    {
        if (missing.contains(name)) return std::nullopt;
        return "{\\rtf1 " + std::string(name) + "}";
    }
    void OpenLink(std::string_view target) override { opened.emplace_back(target); }
    bool StartProgram(const std::string& path) override
    {
        started.push_back(path);
        return true;
    }
    bool FileExists(const std::string&) const override { return false; }
    void ShowMessage(std::string_view text, std::string_view) override
    {
        messages.emplace_back(text);
    }
};

struct Bench
{
    Recorder picSelvane{800, 600}, picDemo{400, 300};
    FakePlatform platform;
    Simulation sim{picSelvane, picDemo, platform, TheWiring()};

    // The program as it stands after its first showing.
    Bench()
    {
        Load(sim);
        FirstShowing(sim);
    }

    const std::string& Caption(LabelId label) const
    {
        return sim.controls.labels[Index(label)].caption;
    }
    bool Shown(LabelId label) const { return sim.controls.labels[Index(label)].visible; }
    bool Shown(ScrollBarId bar) const { return sim.controls.scrollBars[Index(bar)].visible; }
    bool Shown(FieldId field) const { return sim.controls.fields[Index(field)].visible; }
    bool On(TimerId timer) const { return sim.controls.timers[Index(timer)].enabled; }
};

} // namespace selvane
