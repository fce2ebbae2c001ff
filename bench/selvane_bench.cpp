// Benchmarks of a frame and of its parts on the real picture, and of making the screen match. At
// the end the ratio of a whole default frame to the clearing of its picture, both of this run.
#include "program/program.h"
#include "qt/appearance.h"
#include "qt/qt_platform.h"
#include "qt/shell.h"
#include "scene/orbit.h"
#include "scene/projection.h"
#include "scene/rotating_globe.h"

#include <QApplication>
#include <benchmark/benchmark.h>
#include <cstdio>
#include <map>
#include <string>

namespace selvane {

namespace {

// A program on a picture of its own, as it stands after the first showing.
struct Scene
{
    QtPlatform platform;
    PictureSurface picSelvane{kPicSelvane}, picDemo{kPicDemo};
    Simulation sim{picSelvane, picDemo, platform, TheWiring()};

    explicit Scene(double scale)
    {
        picSelvane.SetDeviceScale(scale);
        Load(sim);
        FirstShowing(sim);
    }
};

double ScaleOf(const benchmark::State& state)
{
    return static_cast<double>(state.range(0)) / 100;
}

void Clear(benchmark::State& state)
{
    Scene scene(ScaleOf(state));
    for (auto turn : state) {
        scene.picSelvane.Cls();
        benchmark::ClobberMemory();
    }
}

void Frame(benchmark::State& state)
{
    Scene scene(ScaleOf(state));
    for (auto turn : state) RotatingPlanet(scene.sim);
}

// One tick of tmrSat but for the way in.
void Step(benchmark::State& state)
{
    Scene scene(ScaleOf(state));
    for (auto turn : state) Tick(scene.sim, tmrSat);
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
    shell.Clockwork().StandStill();
    for (auto turn : state) shell.Match(Dispatch::After::TicksOnly);
}

void MatchAfterTick(benchmark::State& state)
{
    QtPlatform platform;
    Shell shell(platform);
    shell.Show();
    shell.Clockwork().StandStill();
    for (auto turn : state) shell.Door().Tick(tmrSat);
}

BENCHMARK(Clear)->ArgName("scale")->Arg(100)->Arg(150)->Arg(200);
BENCHMARK(Frame)->ArgName("scale")->Arg(100)->Arg(150)->Arg(200);
BENCHMARK(Step)->ArgName("scale")->Arg(100)->Arg(200);
BENCHMARK(ProjectOrbit);
BENCHMARK(MatchUnchanged);
BENCHMARK(MatchAfterTick);

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
    selvane::ChooseWorkingFolder();
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv)) return 1;
    selvane::Reporter reporter;
    benchmark::RunSpecifiedBenchmarks(&reporter);
    selvane::PrintRatios(reporter);
    return 0;
}
