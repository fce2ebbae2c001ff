// Pictures pixel by pixel, at every scale of a screen.
#include "program/program.h"
#include "qt/picture_surface.h"
#include "replay/scripted_platform.h"

#include <cmath>
#include <functional>
#include <gtest/gtest.h>
#include <numbers>
#include <random>

using namespace selvane;

namespace {

constexpr double kPi = std::numbers::pi;
constexpr QRgb kInk = 0xffffffff, kPaper = 0xff000000;

class Picture : public testing::TestWithParam<double>
{
protected:
    Picture()
    {
        surface.SetDeviceScale(GetParam());
        surface.Cls();
        surface.ForeColor = surface.FillColor = kWhite;
    }

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
        const QImage image = surface.Image();
        int wrong = 0;
        for (int row = 0; row < image.height(); ++row)
            for (int column = 0; column < image.width(); ++column) {
                const std::optional<QRgb> expected = rule(At(column, row));
                wrong += expected && *expected != (image.pixel(column, row) | 0xff000000);
            }
        return wrong;
    }

    PictureSurface surface{kPicDemo};
};

INSTANTIATE_TEST_SUITE_P(Scales, Picture, testing::Values(1.0, 1.25, 1.5, 2.0, 3.0));

} // namespace

TEST_P(Picture, RingsOnePixelApartMakeASphereWithoutHoles)
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

TEST_P(Picture, ARingIsOnePixelWideAndHollow)
{
    surface.FillStyle = Fill::Transparent;
    surface.Circle(0, 0, 80);
    EXPECT_EQ(Wrong([](const FromCentre& at) -> std::optional<QRgb> {
                  const double off = std::fabs(at.distance - 80);
                  if (off < 0.45) return kInk;
                  return off > 0.55 ? std::optional(kPaper) : std::nullopt;
              }),
              0);
}

TEST_P(Picture, DiscsAndSectorsAreSmoothOnlyAtTheEdgeAndMeetWithoutASeam)
{
    const auto halfDisc = [](const FromCentre& at) -> std::optional<QRgb> {
        const bool onEdge =
            std::fabs(at.distance - 90) < 2 || (std::fabs(at.x) < 2 && at.distance < 92);
        if (onEdge) return std::nullopt;
        return at.distance < 90 && at.x < 0 ? kInk : kPaper;
    };
    surface.Circle(0, 0, 90, kWhite, -0.5 * kPi, -1.5 * kPi);
    EXPECT_EQ(Wrong(halfDisc), 0);

    surface.Circle(0, 0, 90, kWhite, -1.5 * kPi, -2 * kPi);
    surface.Circle(0, 0, 90, kWhite, -2 * kPi, -0.5 * kPi);
    const auto disc = [](const FromCentre& at) -> std::optional<QRgb> {
        if (std::fabs(at.distance - 90) < 2) return std::nullopt;
        return at.distance < 90 ? kInk : kPaper;
    };
    EXPECT_EQ(Wrong(disc), 0);

    surface.Cls();
    surface.Circle(0, 0, 90, kWhite);
    EXPECT_EQ(Wrong(disc), 0);
}

TEST_P(Picture, SectorsOfEverySpanCoverTheirShare)
{
    for (const double span : {0.3, 1.0, kPi, 4.0, 6.0}) {
        surface.Cls();
        surface.Circle(0, 0, 90, kWhite, -0.4, -std::fmod(0.4 + span, 2 * kPi));
        EXPECT_EQ(Wrong([&](const FromCentre& at) -> std::optional<QRgb> {
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

TEST_P(Picture, AnArcRunsFromItsStartToItsEndInEveryQuarter)
{
    for (double start = 0.2; start < 2 * kPi; start += 0.7)
        for (const double span : {0.5, 2.0, 4.5}) {
            surface.Cls();
            surface.Circle(0, 0, 90, kWhite, start, std::fmod(start + span, 2 * kPi));
            EXPECT_EQ(Wrong([&](const FromCentre& at) -> std::optional<QRgb> {
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

TEST_P(Picture, ADotIsOnePixelAndTheSixthOfATurnOfAnArcIsThatLong)
{
    surface.PSet(12.3, -7.8);
    EXPECT_EQ(Wrong([](const FromCentre& at) -> std::optional<QRgb> {
                  return std::hypot(at.x - 12.3, at.y + 7.8) > 2 ? std::optional(kPaper)
                                                                 : std::nullopt;
              }),
              0);
    const int dots = Wrong([](const FromCentre&) -> std::optional<QRgb> { return kPaper; });
    const int side = qRound(GetParam());
    EXPECT_EQ(dots, side * side);

    surface.Cls();
    surface.Circle(0, 0, 90, kWhite, 0, kPi / 3);
    const double inked = Wrong([](const FromCentre&) -> std::optional<QRgb> { return kPaper; });
    EXPECT_NEAR(inked / (GetParam() * GetParam()), 90 * kPi / 3, 8);
}

TEST_P(Picture, LinesRunFromEndToEndWhateverTheirLength)
{
    surface.Line(-1e9, 0, 2e9, 0);
    surface.Line(0, 1e25, 0, -1e25);
    surface.Line(-1e6, 1e6, 1e6, -1e6);
    EXPECT_EQ(Wrong([](const FromCentre& at) -> std::optional<QRgb> {
                  const double toLevel = std::min(std::fabs(at.x), std::fabs(at.y));
                  const double toDiagonal = std::fabs(at.x + at.y) / std::numbers::sqrt2;
                  if (toLevel < 0.3) return kInk;
                  return toLevel > 1 && toDiagonal > 1.5 ? std::optional(kPaper) : std::nullopt;
              }),
              0);
    surface.Circle(3e8, 0, 2.9e8, kWhite); // far larger than the picture
    surface.Circle(1e20, 1e20, 5, kWhite, -1, -2);
    surface.PSet(-1e20, 1e20);
    surface.MoveTo(390, 1e9);
    surface.Print("far away");
}

TEST_P(Picture, SlantedLinesReachEveryBorder)
{
    for (const auto& [across, up] : {std::pair{2.0, 1.0}, {1.0, 2.0}, {-1.0, 2.0}, {2.0, -1.0}}) {
        surface.Cls();
        surface.Line(-400 * across, -400 * up, 400 * across, 400 * up);
        int along = 0;
        const auto distance = [x = across, y = up](const FromCentre& at) {
            return std::fabs(at.x * y - at.y * x) / std::hypot(x, y);
        };
        const int paper = Wrong([&](const FromCentre& at) -> std::optional<QRgb> {
            if (distance(at) < 0.2) ++along;
            return distance(at) < 0.2 ? std::optional(kPaper) : std::nullopt;
        });
        EXPECT_EQ(paper, along) << "a gap";
        const int beside = Wrong([&](const FromCentre& at) -> std::optional<QRgb> {
            return distance(at) > 1.5 ? std::optional(kPaper) : std::nullopt;
        });
        EXPECT_EQ(beside, 0);
    }
}

// The middle of the central pixel is the same distance from each edge only at whole scales.
TEST_P(Picture, ADiscIsTheSameFromEverySide)
{
    if (GetParam() != std::floor(GetParam())) return;
    surface.Circle(0, 0, 60.3, RGB(90, 0, 0));
    const QImage image = surface.Image().copy();
    const QPoint sum = QPoint(401, 301) * static_cast<int>(GetParam()) - QPoint(1, 1);
    const int reach = 65 * static_cast<int>(GetParam());
    for (int row = sum.y() / 2 - reach; row <= sum.y() / 2; ++row)
        for (int column = sum.x() / 2 - reach; column <= sum.x() / 2; ++column) {
            const QRgb pixel = image.pixel(column, row);
            ASSERT_EQ(pixel, image.pixel(sum.x() - column, row)) << column << ' ' << row;
            ASSERT_EQ(pixel, image.pixel(column, sum.y() - row)) << column << ' ' << row;
        }
}

TEST_P(Picture, TextIsWrittenOverWhatIsThereFromItsTopLeftCorner)
{
    surface.MoveTo(-100, 50);
    surface.Print("MMMM");
    EXPECT_EQ(Wrong([](const FromCentre& at) -> std::optional<QRgb> {
                  const bool inside = at.x > -102 && at.x < -40 && at.y < 51 && at.y > 34;
                  return inside ? std::nullopt : std::optional(kPaper);
              }),
              0);
    EXPECT_GT(Wrong([](const FromCentre&) -> std::optional<QRgb> { return kPaper; }), 50);
}

namespace {

using Drawing = std::function<void(DrawingSurface&)>;

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
    return [=](DrawingSurface& picture) {
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

// How many pixels differ, and how many of them lie outside a part in pixels of the picture.
std::pair<int, int> Differences(const QImage& one, const QImage& other, QRect part = {})
{
    const double scale = one.devicePixelRatio();
    const QRectF device(QPointF(part.topLeft()) * scale, QSizeF(part.size()) * scale);
    int all = 0, outside = 0;
    for (int row = 0; row < one.height(); ++row)
        for (int column = 0; column < one.width(); ++column) {
            if (one.pixel(column, row) == other.pixel(column, row)) continue;
            ++all;
            outside += !device.contains(column + 0.5, row + 0.5);
        }
    return {all, outside};
}

} // namespace

// A frame that begins as the one before keeps what it repeats, and reports the rest: that is all
// that a window repaints. What waits for a scale or for fonts comes in its order.
TEST_P(Picture, KeepsWhatAFrameRepeatsAsIfItWereDrawnAnew)
{
    std::mt19937 random(7);
    std::vector<Drawing> frame;
    QImage before = surface.Image().copy();
    surface.TakeChanged();
    for (int turn = 0; turn < 30; ++turn) {
        frame.resize(random() % (frame.size() + 1));
        for (auto added = random() % 30; added > 0; --added) frame.push_back(AnyStroke(random));
        PictureSurface anew{kPicDemo, GetParam()}, waiting{kPicDemo, 0},
            silent{kPicDemo, GetParam()};
        silent.HoldText();
        for (PictureSurface* const each : {&surface, &anew, &waiting, &silent}) {
            each->Cls();
            for (const Drawing& stroke : frame) stroke(*each);
        }
        waiting.SetDeviceScale(GetParam());
        silent.ReleaseText();
        const QRect changed = surface.TakeChanged();
        const QImage now = surface.Image().copy();
        for (PictureSurface* const each : {&anew, &waiting, &silent})
            ASSERT_EQ(Differences(now, each->Image()).first, 0) << "turn " << turn;
        ASSERT_EQ(Differences(now, before, changed).second, 0) << "turn " << turn;
        before = now;
    }
    EXPECT_TRUE(surface.TakeChanged().isEmpty());

    surface.SetDeviceScale(4); // as on another screen, and back
    surface.SetDeviceScale(GetParam());
    EXPECT_EQ(Differences(surface.Image(), before).first, 0);
    EXPECT_EQ(surface.TakeChanged(), QRect(0, 0, 400, 300));
}

TEST_P(Picture, AStrokeThatDiffersInAnythingIsAnotherOne)
{
    struct Mark
    {
        double x, y, radius; // no radius: a dot
        Colour ink;
    };
    const Colour red = RGB(255, 0, 0);
    for (const Mark& mark : {Mark{10, 20, 0, kWhite}, Mark{10, 21, 0, kWhite},
                             Mark{11, 21, 0, kWhite}, Mark{11, 21, 0, red}, Mark{11, 21, 1, red},
                             Mark{11, 21, 5, red}, Mark{11, 21, 5, kWhite}}) {
        PictureSurface anew{kPicDemo, GetParam()};
        for (PictureSurface* const each : {&surface, &anew}) {
            each->Cls();
            each->ForeColor = each->FillColor = mark.ink;
            if (mark.radius > 0)
                each->Circle(mark.x, mark.y, mark.radius, mark.ink);
            else
                each->PSet(mark.x, mark.y);
        }
        EXPECT_EQ(Differences(surface.Image(), anew.Image()).first, 0);
    }
}

// More strokes than are remembered: the next frame still begins on an empty picture.
TEST_P(Picture, ForgetsNothingOnThePicture)
{
    for (int each = 0; each <= 50'000; ++each) surface.PSet(each % 300 - 150, each / 300 - 80);
    surface.Cls();
    surface.PSet(50'000 % 300 - 150, 50'000 / 300 - 80); // the only one that is remembered
    const int side = qRound(GetParam());
    EXPECT_EQ(Wrong([](const FromCentre&) -> std::optional<QRgb> { return kPaper; }), side * side);
}

TEST(DefaultPicture, ChangesInASmallPartAtEachTick)
{
    PictureSurface picture(kPicSelvane), demo(kPicDemo);
    replay::ScriptedPlatform platform;
    Simulation sim(picture, demo, platform, TheWiring());
    Load(sim);
    FirstShowing(sim);
    for (int step = 0; step < 20; ++step) {
        Tick(sim, tmrSat);
        const QRect changed = picture.TakeChanged();
        EXPECT_TRUE(step == 0 || changed.width() < 300) << changed.width();
    }
}
