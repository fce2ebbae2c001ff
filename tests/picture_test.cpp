// Pictures pixel by pixel, at every scale of a screen, and that a painter that goes from one
// drawing to the next shows the same as one that begins with it.
#include "raster/painter.h"
#include "replay/stage.h"

#include <algorithm>
#include <cmath>
#include <functional>
#include <gtest/gtest.h>
#include <numbers>
#include <random>

using namespace selvane;
using raster::Box, raster::Pixel;

namespace {

constexpr double kPi = std::numbers::pi;
constexpr Pixel kInk = 0xffffffff, kPaper = 0xff000000;

// Letters are blocks of 6 by 12 pixels, fainter from the left to the right.
class BlockLetters : public raster::TextMasks
{
public:
    raster::Mask MaskOf(std::string_view text, double scale) override
    {
        const int width = static_cast<int>(std::ceil(6 * scale * static_cast<double>(text.size())));
        const int height = static_cast<int>(std::ceil(12 * scale));
        coverage_.clear();
        for (int at = 0; at < width * height; ++at)
            coverage_.push_back(static_cast<std::uint8_t>(255 - at % width % 200));
        return {coverage_, width, height};
    }

private:
    std::vector<std::uint8_t> coverage_;
};

struct Image
{
    std::vector<Pixel> pixels;
    int width, height;

    Pixel At(int column, int row) const
    {
        return pixels[static_cast<std::size_t>(row) * static_cast<std::size_t>(width) +
                      static_cast<std::size_t>(column)];
    }
    bool operator==(const Image&) const = default;
};

// A painter with all that it needs, which goes from one drawing to the next.
class Screen
{
public:
    Screen(const PictureRow& row, double scale)
        : painter_(row.place.width, row.place.height, row.background)
    {
        SetScale(scale);
    }
    void SetScale(double scale) { painter_.SetScale(scale, letters_); }
    Box Show(const Picture& picture) { return painter_.Paint(picture.drawing, letters_); }
    Image Shown() const
    {
        const auto count = static_cast<std::size_t>(painter_.Width()) *
                           static_cast<std::size_t>(painter_.Height());
        return {
            {painter_.Pixels(), painter_.Pixels() + count}, painter_.Width(), painter_.Height()};
    }

private:
    BlockLetters letters_;
    raster::Painter painter_;
};

// The image of one that has painted nothing before.
Image PaintedAnew(const Picture& picture, const PictureRow& row, double scale)
{
    Screen screen(row, scale);
    screen.Show(picture);
    return screen.Shown();
}

class PaintedPicture : public testing::TestWithParam<double>
{
protected:
    PaintedPicture() { surface.ForeColor = surface.FillColor = kWhite; }

    // A device pixel's middle as seen from that of the picture's central pixel, y upward, in pixels
    // of the picture.
    struct Point
    {
        double x, y;
        double Distance() const { return std::hypot(x, y); }
        // Along the circle to the nearer end of an arc, below 0 outside it.
        double WithinArc(double start, double span) const
        {
            const double angle = std::fmod(std::atan2(y, x) - start + 4 * kPi, 2 * kPi);
            return Distance() * (angle < span ? std::min(angle, span - angle)
                                              : -std::min(angle - span, 2 * kPi - angle));
        }
    };

    // How deep a point lies within a shape, below 0 outside it: what is deeper than `edge` is ink,
    // what is as far outside is paper, and what lies between may be of any colour.
    template <typename Depth> void ExpectInk(Depth depth, double edge)
    {
        const Image image = PaintedAnew(surface, kPicDemo, GetParam());
        int gaps = 0, strays = 0;
        for (int row = 0; row < image.height; ++row)
            for (int column = 0; column < image.width; ++column) {
                const double deep = depth(
                    Point{(column + 0.5) / GetParam() - 200.5, 150.5 - (row + 0.5) / GetParam()});
                gaps += deep > edge && image.At(column, row) != kInk;
                strays += deep < -edge && image.At(column, row) != kPaper;
            }
        EXPECT_EQ(gaps, 0);
        EXPECT_EQ(strays, 0);
    }
    int NotPaper() const
    {
        const Image image = PaintedAnew(surface, kPicDemo, GetParam());
        return static_cast<int>(
            std::ranges::count_if(image.pixels, [](Pixel each) { return each != kPaper; }));
    }

    Picture surface{kPicDemo};
};

INSTANTIATE_TEST_SUITE_P(Scales, PaintedPicture, testing::Values(1.0, 1.25, 1.5, 2.0, 3.0));

} // namespace

TEST_P(PaintedPicture, RingsOnePixelApartMakeASphereWithoutHoles)
{
    surface.FillStyle = Fill::Transparent;
    for (int radius = 0; radius <= 100; ++radius) surface.Circle(0, 0, radius);
    ExpectInk([](Point at) { return 100.5 - at.Distance(); }, 0.1);
}

TEST_P(PaintedPicture, ARingIsOnePixelWideAndHollow)
{
    surface.FillStyle = Fill::Transparent;
    surface.Circle(0, 0, 80);
    ExpectInk([](Point at) { return 0.5 - std::fabs(at.Distance() - 80); }, 0.05);
}

TEST_P(PaintedPicture, DiscsAndSectorsAreSmoothOnlyAtTheEdgeAndMeetWithoutASeam)
{
    surface.Circle(0, 0, 90, kWhite, -0.5 * kPi, -1.5 * kPi);
    ExpectInk([](Point at) { return std::min(90 - at.Distance(), -at.x); }, 2);

    const auto disc = [](Point at) { return 90 - at.Distance(); };
    surface.Circle(0, 0, 90, kWhite, -1.5 * kPi, -2 * kPi);
    surface.Circle(0, 0, 90, kWhite, -2 * kPi, -0.5 * kPi);
    ExpectInk(disc, 2);
    surface.Cls();
    surface.Circle(0, 0, 90, kWhite);
    ExpectInk(disc, 2);
    double area = 0; // the outline lies half a pixel outside
    for (const Pixel each : PaintedAnew(surface, kPicDemo, GetParam()).pixels)
        area += (each & 0xff) / 255.0 / (GetParam() * GetParam());
    EXPECT_NEAR(area, kPi * 90.5 * 90.5, 20);
}

TEST_P(PaintedPicture, SectorsOfEverySpanCoverTheirShare)
{
    for (const double span : {0.3, 1.0, kPi, 4.0, 6.0}) {
        SCOPED_TRACE(span);
        surface.Cls();
        surface.Circle(0, 0, 90, kWhite, -0.4, -std::fmod(0.4 + span, 2 * kPi));
        const auto sector = [&](Point at) {
            const bool atTheTip = at.Distance() < 6;
            return atTheTip ? 0.0 : std::min(90 - at.Distance(), at.WithinArc(0.4, span));
        };
        ExpectInk(sector, 2.5);
    }
}

TEST_P(PaintedPicture, AnArcRunsFromItsStartToItsEndInEveryQuarter)
{
    constexpr double kEnd = 18; // an edge of 0.1 across the line is 1.8 pixels at its ends
    for (double start = 0.2; start < 2 * kPi; start += 1.6)
        for (const double span : {0.5, 2.0, 4.5}) {
            SCOPED_TRACE(std::to_string(start) + " to " + std::to_string(start + span));
            surface.Cls();
            surface.Circle(0, 0, 90, kWhite, start, std::fmod(start + span, 2 * kPi));
            const auto arc = [&](Point at) {
                return std::min(0.5 - std::fabs(at.Distance() - 90),
                                at.WithinArc(start, span) / kEnd);
            };
            ExpectInk(arc, 0.1);
        }
}

TEST_P(PaintedPicture, ADotIsOnePixelAndTheSixthOfATurnOfAnArcIsThatLong)
{
    surface.PSet(12.3, -7.8);
    ExpectInk([](Point at) { return std::min(0.0, 2 - std::hypot(at.x - 12.3, at.y + 7.8)); }, 0);
    const int side = static_cast<int>(std::lround(GetParam()));
    EXPECT_EQ(NotPaper(), side * side);

    surface.Cls();
    surface.Circle(0, 0, 90, kWhite, 0, kPi / 3);
    EXPECT_NEAR(NotPaper() / (GetParam() * GetParam()), 90 * kPi / 3, 8);
}

TEST_P(PaintedPicture, LinesRunFromEndToEndWhateverTheirLength)
{
    surface.Line(-1e9, 0, 2e9, 0);
    surface.Line(0, 1e25, 0, -1e25);
    surface.Line(-1e6, 1e6, 1e6, -1e6);
    const auto lines = [](Point at) {
        const double toDiagonal = std::fabs(at.x + at.y) / std::numbers::sqrt2;
        return std::max(0.65 - std::min(std::fabs(at.x), std::fabs(at.y)),
                        std::min(0.0, 1.15 - toDiagonal));
    };
    ExpectInk(lines, 0.35);
    surface.Circle(3e8, 0, 2.9e8, kWhite); // far larger than the picture
    surface.Circle(1e20, 1e20, 5, kWhite, -1, -2);
    surface.PSet(-1e20, 1e20);
    surface.MoveTo(390, 1e9);
    surface.Print("far away");
    ExpectInk(lines, 0.35); // nothing far away reaches the picture
}

TEST_P(PaintedPicture, SlantedLinesReachEveryBorder)
{
    for (const Point to : {Point{2, 1}, {1, 2}, {-1, 2}, {2, -1}}) {
        surface.Cls();
        surface.Line(-400 * to.x, -400 * to.y, 400 * to.x, 400 * to.y);
        const auto line = [&](Point at) {
            return 0.85 - std::fabs(at.x * to.y - at.y * to.x) / to.Distance();
        };
        ExpectInk(line, 0.65);
    }
}

// The middle of the central pixel is the same distance from each edge only at whole scales.
TEST_P(PaintedPicture, ADiscIsTheSameFromEverySide)
{
    if (GetParam() != std::floor(GetParam())) return;
    surface.Circle(0, 0, 60.3, RGB(90, 0, 0));
    const Image image = PaintedAnew(surface, kPicDemo, GetParam());
    const int scale = static_cast<int>(GetParam());
    const int across = 401 * scale - 1, down = 301 * scale - 1, reach = 65 * scale;
    for (int row = down / 2 - reach; row <= down / 2; ++row)
        for (int column = across / 2 - reach; column <= across / 2; ++column) {
            const Pixel pixel = image.At(column, row);
            ASSERT_EQ(pixel, image.At(across - column, row)) << column << ' ' << row;
            ASSERT_EQ(pixel, image.At(column, down - row)) << column << ' ' << row;
        }
}

TEST_P(PaintedPicture, TextIsWrittenOverWhatIsThereFromItsTopLeftCorner)
{
    surface.MoveTo(-100, 50);
    surface.Print("MMMM");
    const auto box = [](Point at) {
        return std::min({0.0, at.x + 102, -74 - at.x, 51 - at.y, at.y - 37});
    };
    ExpectInk(box, 0);
    EXPECT_GT(NotPaper(), 50);
}

namespace {

using Drawing = std::function<void(Picture&)>;

Drawing AnyStroke(std::mt19937& random)
{
    const auto any = [&random](double low, double high) {
        return std::uniform_real_distribution(low, high)(random);
    };
    const double x = any(-220, 220), y = any(-170, 170), size = any(0, any(1, 200));
    const double from = any(0.01, 6), to = any(0.01, 6);
    const Colour colour = RGB(static_cast<int>(any(0, 255)), 99, 200);
    const Fill fill = any(0, 1) < 0.5 ? Fill::Solid : Fill::Transparent;
    const int kind = static_cast<int>(any(0, 9));
    return [=](Picture& picture) {
        picture.ForeColor = picture.FillColor = colour;
        picture.FillStyle = fill;
        if (kind == 0) picture.Line(x, y, from * 40, to * -30);
        if (kind == 1) picture.Circle(x, y, size, kWhite);
        if (kind == 2) picture.Circle(x, y, size, kWhite, -from, to);
        if (kind == 3) picture.Circle(x, y, size, colour, -from, -to);
        if (kind == 4) picture.MoveTo(x, y);
        if (kind == 4) picture.Print(size < 10 ? "one" : "another");
        if (kind > 4) picture.PSet(x, y);
    };
}

// How many pixels differ outside a box.
int DifferencesOutside(const Box& box, const Image& one, const Image& other)
{
    int count = 0;
    for (int row = 0; row < one.height; ++row)
        for (int column = 0; column < one.width; ++column) {
            const bool inside = row >= box.down.first && row < box.down.end &&
                                column >= box.across.first && column < box.across.end;
            count += !inside && one.At(column, row) != other.At(column, row);
        }
    return count;
}

} // namespace

// What is painted from one drawing to the next is a box only, and that is all a window shows again.
TEST_P(PaintedPicture, GoesFromDrawingToDrawingAsIfEachWerePaintedAnew)
{
    std::mt19937 random(7);
    std::vector<Drawing> frame;
    Screen screen(kPicDemo, GetParam());
    Image before = screen.Shown();
    for (int turn = 0; turn < 60; ++turn) {
        // A stretch in the middle is another one, or something is added at the end.
        const auto from = random() % (frame.size() + 1);
        const auto count =
            turn % 3 == 0 ? frame.size() - from : random() % (frame.size() - from + 1);
        const auto place = frame.begin() + static_cast<std::ptrdiff_t>(from);
        frame.erase(place, place + static_cast<std::ptrdiff_t>(count));
        for (auto added = random() % 30; added > 0; --added)
            frame.insert(frame.begin() + static_cast<std::ptrdiff_t>(from), AnyStroke(random));
        surface.Cls();
        for (const Drawing& stroke : frame) stroke(surface);
        if (turn % 10 == 9) surface.ScaleLeft += 1.5; // leaves what is drawn where it is
        const Box changed = screen.Show(surface);
        const Image now = screen.Shown();
        ASSERT_EQ(now, PaintedAnew(surface, kPicDemo, GetParam())) << "turn " << turn;
        ASSERT_EQ(DifferencesOutside(changed, now, before), 0) << "turn " << turn;
        before = now;
    }
    EXPECT_TRUE(screen.Show(surface).IsEmpty());

    for (const double scale : {4.0, GetParam()}) screen.SetScale(scale); // another screen
    EXPECT_EQ(screen.Shown(), before);
}

TEST_P(PaintedPicture, AStrokeThatDiffersInAnythingIsAnotherOne)
{
    struct Mark
    {
        double x, y, radius; // no radius: a dot, or words
        Colour ink;
        const char* words = "";
    };
    const Colour red = RGB(255, 0, 0);
    Screen screen(kPicDemo, GetParam());
    for (const Mark& mark :
         {Mark{10, 20, 0, kWhite}, Mark{10, 21, 0, kWhite}, Mark{11, 21, 0, kWhite},
          Mark{11, 21, 0, red}, Mark{11, 21, 1, red}, Mark{11, 21, 5, red}, Mark{11, 21, 5, kWhite},
          Mark{11, 21, 0, kWhite, "N"}, Mark{11, 21, 0, kWhite, "NS"}}) {
        surface.Cls();
        surface.ForeColor = surface.FillColor = mark.ink;
        surface.MoveTo(mark.x, mark.y);
        if (*mark.words)
            surface.Print(mark.words);
        else if (mark.radius > 0)
            surface.Circle(mark.x, mark.y, mark.radius, mark.ink);
        else
            surface.PSet(mark.x, mark.y);
        screen.Show(surface);
        EXPECT_EQ(screen.Shown(), PaintedAnew(surface, kPicDemo, GetParam()));
        EXPECT_TRUE(screen.Show(surface).IsEmpty());
    }
}

// The user scale belongs to a stroke: a new one leaves what is drawn, and counts for what comes.
TEST_P(PaintedPicture, AWrittenScaleTakesEffectWithTheNextCall)
{
    surface.PSet(-100, 0);
    surface.ScaleLeft -= 50;
    surface.PSet(-50, 0);
    const auto dots = [](Point at) {
        return 0.9 - std::min(std::hypot(at.x + 100, at.y), at.Distance());
    };
    ExpectInk(dots, 0.6);
}

// Strokes that pile up are all there, to the last that fits; one more is our own mistake.
TEST(PileOfStrokes, StaysWholeUpToItsBound)
{
    Picture picture(kPicDemo);
    Screen screen(kPicDemo, 1);
    picture.ForeColor = kWhite;
    for (int at = 0; at < static_cast<int>(kMostStrokes); ++at) {
        picture.PSet(at % 300 - 150, at / 300 % 200 - 80);
        if (at % 2000 == 0) screen.Show(picture);
    }
    screen.Show(picture);
    EXPECT_EQ(replay::Count(picture.drawing, raster::StrokeKind::Dot), kMostStrokes);
    EXPECT_EQ(screen.Shown(), PaintedAnew(picture, kPicDemo, 1));
    Picture full = picture;
    EXPECT_DEATH(full.PSet(0, 0), "kMostStrokes");
    picture.Cls();
    picture.PSet(0, 0);
    screen.Show(picture);
    EXPECT_EQ(screen.Shown(), PaintedAnew(picture, kPicDemo, 1));
}

TEST(DefaultPicture, ChangesInASmallPartAtEachTick)
{
    replay::Stage stage;
    const Picture& picture = stage.sim.picSelvane;
    Screen screen(kPicSelvane, 1);
    screen.Show(picture);
    for (int step = 0; step < 20; ++step) {
        Tick(stage.sim, tmrSat);
        const auto [first, end] = screen.Show(picture).across;
        EXPECT_GT(end - first, 50);
        EXPECT_LT(end - first, 300);
        EXPECT_EQ(screen.Shown(), PaintedAnew(picture, kPicSelvane, 1));
    }
}
