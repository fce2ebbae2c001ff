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
    std::optional<replay::Dump> records, strokes; // of the present state, once somebody asks
    for (const StoryLine& line : story.lines) {
        if (const auto* action = std::get_if<replay::Action>(&line.content)) {
            player.Do(*action);
            records.reset();
            strokes.reset();
            continue;
        }
        const auto& expectation = std::get<Expectation>(line.content);
        if (expectation.IsAboutStrokes()) {
            if (!strokes) strokes = player.Take(replay::Calls::Listed);
        } else if (!records) {
            records = replay::RecordsOf(player.Program());
            replay::AddPlatform(*records, player.Machine());
        }
        Check(story, line, expectation, expectation.IsAboutStrokes() ? *strokes : *records);
    }
}

INSTANTIATE_TEST_SUITE_P(Stories, ScenarioOnCore, testing::ValuesIn(StoryFiles()),
                         [](const auto& story) { return TestName(story.param); });

} // namespace
} // namespace selvane
