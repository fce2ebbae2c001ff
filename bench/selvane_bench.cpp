// Benchmarks of a frame and of its parts on the real picture, and of making the screen match. At
// the end the ratio of a whole default frame to the clearing of its picture, both of this run.
#include "app/handlers.h"
#include "program/program.h"
#include "qt/appearance.h"
#include "qt/qt_platform.h"
#include "qt/shell.h"
#include "qt/text_masks.h"
#include "scene/orbit.h"
#include "scene/projection.h"
#include "scene/rotating_globe.h"
#include "tutorials/celestial_sphere.h"
#include "tutorials/clock.h"
#include "tutorials/polar_axes.h"
#include "tutorials/solar_days.h"
#include "tutorials/spherical_coordinates.h"

#include <QApplication>
#include <algorithm>
#include <benchmark/benchmark.h>
#include <chrono>
#include <cstdio>
#include <map>
#include <string>
#include <vector>

namespace selvane {

namespace {

// A program, with painters for its pictures, as it stands after the first showing.
struct Scene
{
    QtPlatform platform;
    Simulation sim;
    QtTextMasks texts;
    raster::Painter picSelvane = PainterOf(kPicSelvane), picDemo = PainterOf(kPicDemo);

    explicit Scene(double scale)
    {
        sim.now = platform.Now();
        LoadMainWindow(sim);
        ShowMainWindow(sim);
        CarryOut(sim, platform);
        picSelvane.SetScale(scale, texts);
        picDemo.SetScale(scale, texts);
        Paint();
    }

    void Paint()
    {
        picSelvane.Paint(sim.picSelvane.drawing, texts);
        picDemo.Paint(sim.picDemo.drawing, texts);
    }

    static raster::Painter PainterOf(const PictureRow& row)
    {
        return {row.place.width, row.place.height, row.background};
    }
};

double ScaleOf(const benchmark::State& state)
{
    return static_cast<double>(state.range(0)) / 100;
}

// Every pixel of a picture, once.
void ClearPicture(benchmark::State& state, const PictureRow& row, double scale)
{
    const int width = qRound(row.place.width * scale), height = qRound(row.place.height * scale);
    std::vector<raster::Pixel> pixels(static_cast<std::size_t>(width * height));
    const raster::Canvas canvas{pixels.data(), width, height};
    for (auto turn : state) {
        raster::FillBox(canvas, canvas.clip, raster::PixelOf(row.background));
        benchmark::ClobberMemory();
    }
}

void Clear(benchmark::State& state)
{
    ClearPicture(state, kPicSelvane, ScaleOf(state));
}

// In flight: the globe has turned since the frame before.
void Frame(benchmark::State& state)
{
    Scene scene(ScaleOf(state));
    Tick(scene.sim, tmrSat);
    for (auto turn : state) {
        RotatingPlanet(scene.sim);
        scene.Paint();
    }
}

// The strokes of a frame alone, and the painting of a picture that has nothing of the one before.
void Strokes(benchmark::State& state)
{
    Scene scene(1);
    for (auto turn : state) RotatingPlanet(scene.sim);
}

void PaintAll(benchmark::State& state)
{
    Scene scene(ScaleOf(state));
    for (auto turn : state) {
        scene.picSelvane.Paint({}, scene.texts);
        scene.picSelvane.Paint(scene.sim.picSelvane.drawing, scene.texts);
    }
}

// One tick of tmrSat but for the way in.
void Step(benchmark::State& state)
{
    Scene scene(ScaleOf(state));
    for (auto turn : state) {
        Tick(scene.sim, tmrSat);
        scene.Paint();
    }
}

// 361 places of an orbit's plane.
void ProjectOrbit(benchmark::State& state)
{
    const Projection project({0.6, 0.2, -1.05});
    constexpr double kDegree = 3.14159265358979323846 / 180;
    for (auto turn : state)
        for (int degree = 0; degree <= 360; ++degree)
            benchmark::DoNotOptimize(project(75, degree * kDegree));
}

void MatchUnchanged(benchmark::State& state)
{
    QtPlatform platform;
    Shell shell(platform);
    shell.Show();
    shell.EventTimers().StandStill();
    for (auto turn : state) shell.Match(Dispatch::After::TicksOnly);
}

void MatchAfterTick(benchmark::State& state)
{
    QtPlatform platform;
    Shell shell(platform);
    shell.Show();
    shell.EventTimers().StandStill();
    for (auto turn : state) shell.Dispatcher().Tick(tmrSat);
}

// A tutorial's scene on its picture, and the clearing of that picture alone.
constexpr struct
{
    const char* name;
    Procedure draw;
} kTutorialScenes[] = {
    {"celestial sphere", Demo0}, {"polar axes", Demo1},    {"spherical coordinates", Demo2},
    {"solar days", Demo31},      {"clock", tmrTime_Timer},
};

void TutorialClear(benchmark::State& state)
{
    ClearPicture(state, kPicDemo, 1);
}

void TutorialScene(benchmark::State& state)
{
    Scene scene(1);
    const auto& tutorial = kTutorialScenes[state.range(0)];
    state.SetLabel(tutorial.name);
    for (auto turn : state) {
        scene.picDemo.Paint({}, scene.texts);
        tutorial.draw(scene.sim);
        scene.Paint();
    }
}

// A move of a bar until the picture is on the screen, with the time that one in a hundred exceeds.
constexpr MenuId kDemos[] = {mnGeo, mnMoly, mnES2, mnSunSynch};

void BarToPicture(benchmark::State& state)
{
    using Clock = std::chrono::steady_clock;
    QtPlatform platform;
    Shell shell(platform);
    shell.Show();
    shell.EventTimers().StandStill();
    if (state.range(0) > 0)
        shell.Dispatcher().Act(WindowId::Main,
                               [&](Simulation& sim) { Choose(sim, kDemos[state.range(0) - 1]); });
    std::vector<double> milliseconds;
    int value = 0;
    for (auto turn : state) {
        const auto start = Clock::now();
        shell.Dispatcher().Act(WindowId::Main,
                               [&](Simulation& sim) { Scroll(sim, sclIncl, ++value % 90); });
        QApplication::processEvents();
        milliseconds.push_back(
            std::chrono::duration<double, std::milli>(Clock::now() - start).count());
    }
    const auto late = milliseconds.begin() + std::ssize(milliseconds) * 99 / 100;
    std::nth_element(milliseconds.begin(), late, milliseconds.end());
    state.counters["p99_ms"] = *late;
}

BENCHMARK(Clear)->ArgName("scale")->Arg(100)->Arg(150)->Arg(200);
BENCHMARK(Frame)->ArgName("scale")->Arg(100)->Arg(150)->Arg(200);
BENCHMARK(Strokes);
BENCHMARK(PaintAll)->ArgName("scale")->Arg(100)->Arg(200);
BENCHMARK(Step)->ArgName("scale")->Arg(100)->Arg(200);
BENCHMARK(ProjectOrbit);
BENCHMARK(MatchUnchanged);
BENCHMARK(MatchAfterTick);
BENCHMARK(TutorialClear);
BENCHMARK(TutorialScene)->ArgName("scene")->DenseRange(0, 4);
BENCHMARK(BarToPicture)->ArgName("scenario")->DenseRange(0, 4);

// Prints as usual and remembers the fastest time of each.
class Reporter : public benchmark::ConsoleReporter
{
public:
    std::map<std::string, double> nanoseconds;

    void ReportRuns(const std::vector<Run>& runs) override
    {
        ConsoleReporter::ReportRuns(runs);
        for (const Run& run : runs) {
            if (run.error_occurred || run.run_type != Run::RT_Iteration) continue;
            const auto [known, isNew] =
                nanoseconds.try_emplace(run.run_name.str(), run.GetAdjustedCPUTime());
            if (!isNew) known->second = std::min(known->second, run.GetAdjustedCPUTime());
        }
    }
};

void PrintRatios(const Reporter& reporter)
{
    for (const char* const scale : {"100", "150", "200"}) {
        const auto frame = reporter.nanoseconds.find(std::string("Frame/scale:") + scale);
        const auto clear = reporter.nanoseconds.find(std::string("Clear/scale:") + scale);
        if (frame == reporter.nanoseconds.end() || clear == reporter.nanoseconds.end()) continue;
        std::printf("frame / clear at %s %%: %.2f\n", scale, frame->second / clear->second);
    }
}

} // namespace

} // namespace selvane

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    selvane::PrepareApplication();
    QApplication application(argc, argv);
    selvane::SetUpApplication(application);
    selvane::ChooseWorkingFolder(argv[0]);
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv)) return 1;
    selvane::Reporter reporter;
    benchmark::RunSpecifiedBenchmarks(&reporter);
    selvane::PrintRatios(reporter);
    return 0;
}
