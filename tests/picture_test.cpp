// Pictures pixel by pixel, at every scale of a screen, and that a painter that goes from one
// drawing to the next shows the same as one that begins with it.
#include "raster/painter.h"
#include "replay/stage.h"

#include <cmath>
#include <functional>
#include <gtest/gtest.h>
#include <numbers>
#include <random>

using namespace selvane;
using raster::Box, raster::Painter, raster::Pixel;

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

Image ImageOf(const Painter& painter)
{
    const auto count =
        static_cast<std::size_t>(painter.Width()) * static_cast<std::size_t>(painter.Height());
    return {{painter.Pixels(), painter.Pixels() + count}, painter.Width(), painter.Height()};
}

Painter PainterOf(const PictureRow& row, double scale)
{
    Painter painter(row.place.width, row.place.height, row.background);
    BlockLetters letters;
    painter.SetScale(scale, letters);
    return painter;
}

// The image of one that has painted nothing before.
Image PaintedAnew(const Picture& picture, const PictureRow& row, double scale)
{
    Painter painter = PainterOf(row, scale);
    BlockLetters letters;
    painter.Paint(picture.drawing, letters);
    return ImageOf(painter);
}

class PaintedPicture : public testing::TestWithParam<double>
{
protected:
    PaintedPicture() { surface.ForeColor = surface.FillColor = kWhite; }

    // Distance of a device pixel's middle from that of the picture's central pixel, in pixels of
    // the picture, and its direction, y upward.
    struct FromCentre
    {
        double distance, x, y;
    };
    FromCentre At(int column, int row) const
    {
        const double x = (column + 0.5) / GetParam() - 200.5;
        const double y = 150.5 - (row + 0.5) / GetParam();
        return {std::hypot(x, y), x, y};
    }

    // Counts the pixels that are not as the rule says; where it says nothing, any colour will do.
    template <typename Rule> int Wrong(Rule rule)
    {
        const Image image = PaintedAnew(surface, kPicDemo, GetParam());
        int wrong = 0;
        for (int row = 0; row < image.height; ++row)
            for (int column = 0; column < image.width; ++column) {
                const std::optional<Pixel> expected = rule(At(column, row));
                wrong += expected && *expected != image.At(column, row);
            }
        return wrong;
    }

    Picture surface{kPicDemo};
};

INSTANTIATE_TEST_SUITE_P(Scales, PaintedPicture, testing::Values(1.0, 1.25, 1.5, 2.0, 3.0));

} // namespace

TEST_P(PaintedPicture, RingsOnePixelApartMakeASphereWithoutHoles)
{
    surface.FillStyle = Fill::Transparent;
    for (int radius = 0; radius <= 100; ++radius) surface.Circle(0, 0, radius);
    EXPECT_EQ(Wrong([](const FromCentre& at) {
                  return at.distance <= 100.4   ? std::optional(kInk)
                         : at.distance >= 100.6 ? std::optional(kPaper)
                                                : std::nullopt;
              }),
              0);
}

TEST_P(PaintedPicture, ARingIsOnePixelWideAndHollow)
{
    surface.FillStyle = Fill::Transparent;
    surface.Circle(0, 0, 80);
    EXPECT_EQ(Wrong([](const FromCentre& at) -> std::optional<Pixel> {
                  const double off = std::fabs(at.distance - 80);
                  if (off < 0.45) return kInk;
                  return off > 0.55 ? std::optional(kPaper) : std::nullopt;
              }),
              0);
}

TEST_P(PaintedPicture, DiscsAndSectorsAreSmoothOnlyAtTheEdgeAndMeetWithoutASeam)
{
    const auto halfDisc = [](const FromCentre& at) -> std::optional<Pixel> {
        const bool onEdge =
            std::fabs(at.distance - 90) < 2 || (std::fabs(at.x) < 2 && at.distance < 92);
        if (onEdge) return std::nullopt;
        return at.distance < 90 && at.x < 0 ? kInk : kPaper;
    };
    surface.Circle(0, 0, 90, kWhite, -0.5 * kPi, -1.5 * kPi);
    EXPECT_EQ(Wrong(halfDisc), 0);

    surface.Circle(0, 0, 90, kWhite, -1.5 * kPi, -2 * kPi);
    surface.Circle(0, 0, 90, kWhite, -2 * kPi, -0.5 * kPi);
    const auto disc = [](const FromCentre& at) -> std::optional<Pixel> {
        if (std::fabs(at.distance - 90) < 2) return std::nullopt;
        return at.distance < 90 ? kInk : kPaper;
    };
    EXPECT_EQ(Wrong(disc), 0);

    surface.Cls();
    surface.Circle(0, 0, 90, kWhite);
    EXPECT_EQ(Wrong(disc), 0);
}

TEST_P(PaintedPicture, SectorsOfEverySpanCoverTheirShare)
{
    for (const double span : {0.3, 1.0, kPi, 4.0, 6.0}) {
        surface.Cls();
        surface.Circle(0, 0, 90, kWhite, -0.4, -std::fmod(0.4 + span, 2 * kPi));
        EXPECT_EQ(Wrong([&](const FromCentre& at) -> std::optional<Pixel> {
                      double angle = std::atan2(at.y, at.x) - 0.4;
                      if (angle < 0) angle += 2 * kPi;
                      const double toSide =
                          at.distance * std::min({std::fabs(angle - span), angle, 2 * kPi - angle});
                      if (std::fabs(at.distance - 90) < 2 || at.distance < 6 || toSide < 2.5)
                          return std::nullopt;
                      return at.distance < 90 && angle < span ? kInk : kPaper;
                  }),
                  0)
            << span;
    }
}

TEST_P(PaintedPicture, AnArcRunsFromItsStartToItsEndInEveryQuarter)
{
    for (double start = 0.2; start < 2 * kPi; start += 0.7)
        for (const double span : {0.5, 2.0, 4.5}) {
            surface.Cls();
            surface.Circle(0, 0, 90, kWhite, start, std::fmod(start + span, 2 * kPi));
            EXPECT_EQ(Wrong([&](const FromCentre& at) -> std::optional<Pixel> {
                          const double off = std::fabs(at.distance - 90);
                          double angle = std::atan2(at.y, at.x) - start;
                          while (angle < 0) angle += 2 * kPi;
                          const double fromEnds =
                              std::min(std::fabs(angle - span), std::min(angle, 2 * kPi - angle));
                          if (off > 0.6) return kPaper;
                          if (off > 0.4 || fromEnds < 0.02) return std::nullopt;
                          return angle < span ? kInk : kPaper;
                      }),
                      0)
                << start << " to " << start + span;
        }
}

TEST_P(PaintedPicture, ADotIsOnePixelAndTheSixthOfATurnOfAnArcIsThatLong)
{
    surface.PSet(12.3, -7.8);
    EXPECT_EQ(Wrong([](const FromCentre& at) -> std::optional<Pixel> {
                  return std::hypot(at.x - 12.3, at.y + 7.8) > 2 ? std::optional(kPaper)
                                                                 : std::nullopt;
              }),
              0);
    const int dots = Wrong([](const FromCentre&) -> std::optional<Pixel> { return kPaper; });
    const int side = static_cast<int>(std::lround(GetParam()));
    EXPECT_EQ(dots, side * side);

    surface.Cls();
    surface.Circle(0, 0, 90, kWhite, 0, kPi / 3);
    const double inked = Wrong([](const FromCentre&) -> std::optional<Pixel> { return kPaper; });
    EXPECT_NEAR(inked / (GetParam() * GetParam()), 90 * kPi / 3, 8);
}

TEST_P(PaintedPicture, LinesRunFromEndToEndWhateverTheirLength)
{
    surface.Line(-1e9, 0, 2e9, 0);
    surface.Line(0, 1e25, 0, -1e25);
    surface.Line(-1e6, 1e6, 1e6, -1e6);
    const auto lines = [](const FromCentre& at) -> std::optional<Pixel> {
        const double toLevel = std::min(std::fabs(at.x), std::fabs(at.y));
        const double toDiagonal = std::fabs(at.x + at.y) / std::numbers::sqrt2;
        if (toLevel < 0.3) return kInk;
        return toLevel > 1 && toDiagonal > 1.5 ? std::optional(kPaper) : std::nullopt;
    };
    EXPECT_EQ(Wrong(lines), 0);
    surface.Circle(3e8, 0, 2.9e8, kWhite); // far larger than the picture
    surface.Circle(1e20, 1e20, 5, kWhite, -1, -2);
    surface.PSet(-1e20, 1e20);
    surface.MoveTo(390, 1e9);
    surface.Print("far away");
    EXPECT_EQ(Wrong(lines), 0) << "nothing far away reaches the picture";
}

TEST_P(PaintedPicture, SlantedLinesReachEveryBorder)
{
    for (const auto& [across, up] : {std::pair{2.0, 1.0}, {1.0, 2.0}, {-1.0, 2.0}, {2.0, -1.0}}) {
        surface.Cls();
        surface.Line(-400 * across, -400 * up, 400 * across, 400 * up);
        int along = 0;
        const auto distance = [x = across, y = up](const FromCentre& at) {
            return std::fabs(at.x * y - at.y * x) / std::hypot(x, y);
        };
        const int paper = Wrong([&](const FromCentre& at) -> std::optional<Pixel> {
            if (distance(at) < 0.2) ++along;
            return distance(at) < 0.2 ? std::optional(kPaper) : std::nullopt;
        });
        EXPECT_EQ(paper, along) << "a gap";
        const int beside = Wrong([&](const FromCentre& at) -> std::optional<Pixel> {
            return distance(at) > 1.5 ? std::optional(kPaper) : std::nullopt;
        });
        EXPECT_EQ(beside, 0);
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
    EXPECT_EQ(Wrong([](const FromCentre& at) -> std::optional<Pixel> {
                  const bool inside = at.x > -102 && at.x < -74 && at.y < 51 && at.y > 37;
                  return inside ? std::nullopt : std::optional(kPaper);
              }),
              0);
    EXPECT_GT(Wrong([](const FromCentre&) -> std::optional<Pixel> { return kPaper; }), 50);
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
    BlockLetters letters;
    Painter painter = PainterOf(kPicDemo, GetParam());
    Image before = ImageOf(painter);
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
        const Box changed = painter.Paint(surface.drawing, letters);
        const Image now = ImageOf(painter);
        ASSERT_EQ(now, PaintedAnew(surface, kPicDemo, GetParam())) << "turn " << turn;
        ASSERT_EQ(DifferencesOutside(changed, now, before), 0) << "turn " << turn;
        before = now;
    }
    EXPECT_TRUE(painter.Paint(surface.drawing, letters).IsEmpty());

    for (const double scale : {4.0, GetParam()}) painter.SetScale(scale, letters); // another screen
    EXPECT_EQ(ImageOf(painter), before);
}

TEST_P(PaintedPicture, AStrokeThatDiffersInAnythingIsAnotherOne)
{
    struct Mark
    {
        double x, y, radius; // no radius: a dot
        Colour ink;
    };
    const Colour red = RGB(255, 0, 0);
    BlockLetters letters;
    Painter painter = PainterOf(kPicDemo, GetParam());
    for (const Mark& mark : {Mark{10, 20, 0, kWhite}, Mark{10, 21, 0, kWhite},
                             Mark{11, 21, 0, kWhite}, Mark{11, 21, 0, red}, Mark{11, 21, 1, red},
                             Mark{11, 21, 5, red}, Mark{11, 21, 5, kWhite}}) {
        surface.Cls();
        surface.ForeColor = surface.FillColor = mark.ink;
        if (mark.radius > 0)
            surface.Circle(mark.x, mark.y, mark.radius, mark.ink);
        else
            surface.PSet(mark.x, mark.y);
        painter.Paint(surface.drawing, letters);
        EXPECT_EQ(ImageOf(painter), PaintedAnew(surface, kPicDemo, GetParam()));
    }
}

// The user scale belongs to a stroke: a new one leaves what is drawn, and counts for what comes.
TEST_P(PaintedPicture, AWrittenScaleTakesEffectWithTheNextCall)
{
    surface.PSet(-100, 0);
    surface.ScaleLeft -= 50;
    surface.PSet(-50, 0);
    const auto toDots = [](const FromCentre& at) {
        return std::min(std::hypot(at.x + 100, at.y), std::hypot(at.x, at.y));
    };
    EXPECT_EQ(Wrong([&](const FromCentre& at) -> std::optional<Pixel> {
                  if (toDots(at) > 1.5) return kPaper;
                  return toDots(at) < 0.3 ? std::optional(kInk) : std::nullopt;
              }),
              0);
}

// Strokes that pile up are all there, to the last that fits; one more is our own mistake.
TEST(PileOfStrokes, StaysWholeUpToItsBound)
{
    Picture picture(kPicDemo);
    BlockLetters letters;
    Painter painter = PainterOf(kPicDemo, 1);
    picture.ForeColor = kWhite;
    const auto addSome = [&](std::size_t count) {
        for (; count > 0; --count) {
            const auto at = static_cast<int>(picture.drawing.Strokes().size());
            picture.PSet(at % 300 - 150, at / 300 % 200 - 80);
        }
    };
    while (picture.drawing.Strokes().size() < kMostStrokes) {
        addSome(kMostStrokes / 50);
        painter.Paint(picture.drawing, letters);
    }
    EXPECT_EQ(replay::Count(picture.drawing, raster::StrokeKind::Dot), kMostStrokes);
    EXPECT_EQ(ImageOf(painter), PaintedAnew(picture, kPicDemo, 1));
    Picture full = picture;
    EXPECT_DEATH(full.PSet(0, 0), "kMostStrokes");
    picture.Cls();
    picture.PSet(0, 0);
    painter.Paint(picture.drawing, letters);
    EXPECT_EQ(ImageOf(painter), PaintedAnew(picture, kPicDemo, 1));
}

TEST(DefaultPicture, ChangesInASmallPartAtEachTick)
{
    replay::Stage stage;
    BlockLetters letters;
    Painter painter = PainterOf(kPicSelvane, 1);
    painter.Paint(stage.sim.picSelvane.drawing, letters);
    for (int step = 0; step < 20; ++step) {
        Tick(stage.sim, tmrSat);
        const Box changed = painter.Paint(stage.sim.picSelvane.drawing, letters);
        EXPECT_GT(changed.across.end - changed.across.first, 50);
        EXPECT_LT(changed.across.end - changed.across.first, 300);
        EXPECT_EQ(ImageOf(painter), PaintedAnew(stage.sim.picSelvane, kPicSelvane, 1));
    }
}
