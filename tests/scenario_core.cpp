// Every scenario on the program without a screen.
#include "replay/player.h"
#include "scenario.h"

#include <gtest/gtest.h>

namespace selvane {
namespace {

class ScenarioOnCore : public testing::TestWithParam<std::filesystem::path>
{};

TEST_P(ScenarioOnCore, GoesAsTold)
{
    const Story story = ReadStory(GetParam());
    replay::Player player;
    std::optional<replay::Dump> dump; // of the present state, once somebody asks
    for (const StoryLine& line : story.lines) {
        if (const auto* action = std::get_if<replay::Action>(&line.content)) {
            player.Do(*action);
            dump.reset();
            continue;
        }
        if (!dump) dump = player.Take(replay::Calls::Listed);
        Check(story, line, std::get<Expectation>(line.content), *dump);
    }
}

INSTANTIATE_TEST_SUITE_P(Stories, ScenarioOnCore, testing::ValuesIn(StoryFiles()),
                         [](const auto& story) { return TestName(story.param); });

} // namespace
} // namespace selvane
