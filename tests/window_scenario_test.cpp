// Every scenario through the real window, with mouse and keys.
#include "scenario.h"
#include "window_player.h"

#include <gtest/gtest.h>

namespace selvane {
namespace {

class ScenarioOnWindow : public testing::TestWithParam<std::filesystem::path>
{};

TEST_P(ScenarioOnWindow, GoesAsTold)
{
    const Story story = ReadStory(GetParam());
    WindowPlayer player;
    std::optional<replay::Dump> dump; // of the present state, once somebody asks
    for (const StoryLine& line : story.lines) {
        if (const auto* action = std::get_if<replay::Action>(&line.content)) {
            player.Do(*action);
            dump.reset();
            continue;
        }
        const Expectation& expectation = std::get<Expectation>(line.content);
        if (expectation.IsAboutStrokes()) continue;
        if (!dump) {
            dump = player.Take();
            const std::string control = player.Disagreement();
            EXPECT_EQ(control, "") << "the screen shows something else at " << story.file.filename()
                                   << ':' << line.number;
        }
        Check(story, line, expectation, *dump);
        if (HasFailure()) return; // what follows would only be its consequences
    }
}

INSTANTIATE_TEST_SUITE_P(Stories, ScenarioOnWindow, testing::ValuesIn(StoryFiles()),
                         [](const auto& story) { return TestName(story.param); });

} // namespace
} // namespace selvane
