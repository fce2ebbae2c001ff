// What a screen reader says is true whenever it asks.
#include "program/spoken_text.h"
#include "replay/monkey.h"
#include "replay/player.h"

#include <gmock/gmock.h>
#include <regex>

namespace selvane {
namespace {

using replay::Player, replay::ParseAction;
using testing::AnyOf, testing::EndsWith, testing::HasSubstr, testing::Not, testing::StartsWith;

std::string Caption(const Simulation& sim, LabelId label)
{
    return sim.controls.labels[Index(label)].caption;
}

// Where the picture's words contradict the read-outs; empty where they agree.
std::string Contradiction(const Simulation& sim)
{
    const std::string words = SpokenMainPicture(sim).description;
    static const std::regex place(
        "latitude (\\S+), longitude (\\S+) degrees, true anomaly (\\S+) degrees");
    std::smatch found;
    const bool placed = std::regex_search(words, found, place);
    const bool told = IsChecked(sim, mnViewSatellite) && SatelliteFlies(sim.state.OrbitMode);
    const bool shown =
        sim.controls.lblSat.left.has_value() && Caption(sim, lblOutput(16)) != "Lat = N/A";
    if (placed != (told && shown)) return words;
    if (placed && (Caption(sim, lblOutput(16)) != "Lat = " + found.str(1) + " Deg" ||
                   Caption(sim, lblOutput(15)) != "Lon = " + found.str(2) + " Deg" ||
                   Caption(sim, lblOutput(10)) != "True Anomaly = " + found.str(3) + " Degrees"))
        return words;
    return words.starts_with(sim.state.PlanetName + " ") ? "" : words;
}

TEST(SpokenText, ThePictureIsDescribedAsTheReadOutsShowIt)
{
    for (std::uint64_t seed = 1; seed <= 4; ++seed) {
        Player player;
        EXPECT_THAT(SpokenMainPicture(player.Program()).description,
                    EndsWith("The satellite has not been placed yet."));
        replay::Monkey monkey(seed);
        for (int each = 0; each < 400; ++each) {
            const std::string line = monkey.Next();
            player.Do(*ParseAction(line));
            ASSERT_EQ(Contradiction(player.Program()), "") << "seed " << seed << ": " << line;
        }
    }

    Player player;
    const auto words = [&] { return SpokenMainPicture(player.Program()).description; };
    const auto play = [&](std::initializer_list<const char*> script) {
        for (const char* const line : script) player.Do(*ParseAction(line));
    };
    play({"menu mnES2"});
    for (int tick = 0; tick < 40; ++tick) play({"tick tmrES2"});
    EXPECT_EQ(words(),
              "Earth on its way round the Sun, at 20 degrees, with the orbit of its satellite.");
    play({"menu mnES2"}); // back to the usual orbit, whose satellite has made no step
    EXPECT_THAT(words(), EndsWith("has not been placed yet."));
    play({"tick tmrSat"});
    EXPECT_THAT(words(), HasSubstr("true anomaly 91 degrees"));
    play({"menu mnViewSatellite"});
    EXPECT_THAT(words(), EndsWith("is not shown."));
}

TEST(SpokenText, ThePairThatRulesIsToldOnItsControlsAlsoWhileItIsAtFault)
{
    Player player;
    const Simulation& sim = player.Program();
    const auto expectRuling = [&](ShapePair pair) {
        for (const ShapePairRow& row : ShapePairTable()) {
            const auto wanted =
                EndsWith(row.pair == pair ? "This pair gives the orbit its shape."
                                          : "Another pair gives the orbit its shape.");
            for (const ScrollBarId bar : row.bars)
                EXPECT_THAT(Spoken(sim, bar).description, wanted);
            for (const FieldId field : row.fields)
                EXPECT_THAT(Spoken(sim, field).description, wanted);
            EXPECT_THAT(Spoken(sim, row.button).description, wanted);
        }
        EXPECT_THAT(Spoken(sim, sclIncl).description, Not(HasSubstr("pair")));
        EXPECT_THAT(Spoken(sim, btnPause).description, Not(HasSubstr("pair")));
    };
    expectRuling(ShapePair::Apsis);
    player.Do(*ParseAction("scroll sclE 10"));
    expectRuling(ShapePair::E);
    player.Do(*ParseAction("type txtSMajAxis far"));
    player.Do(*ParseAction("click btnAxisCalculate"));
    expectRuling(ShapePair::Axis);
    EXPECT_THAT(Spoken(sim, txtSMinAxis).description,
                StartsWith("Both semi-axes must be numbers."));
    player.Do(*ParseAction("menu mnMars")); // of the bars that it sets back only this pair's moves
    expectRuling(ShapePair::E);
}

TEST(SpokenText, EveryControlHasANameAndAPaneSaysItsTitle)
{
    Player player;
    const Simulation& sim = player.Program();
    const auto expectNamed = [](const SpokenText& text) {
        EXPECT_NE(text.name, "");
        EXPECT_NE(text.description, "") << text.name;
    };
    for (const ScrollBarRow& row : ScrollBarTable()) expectNamed(Spoken(sim, row.id));
    for (const FieldRow& row : FieldTable()) expectNamed(Spoken(sim, row.id));
    for (const ButtonRow& row : ButtonTable()) expectNamed(Spoken(sim, row.id));
    for (const TopicRow& row : TopicTable()) expectNamed(Spoken(row.topic));
    expectNamed(SpokenTutorialPicture(sim));
    expectNamed(Spoken(sim, lblReturnToTutorial));
    EXPECT_EQ(Spoken(sim, lblOutput(0)).description,
              sim.controls.labels[Index(lblOutput(0))].toolTip);
    player.Do(*ParseAction("menu mnAbout"));
    for (const AboutRow& row : AboutTable()) EXPECT_NE(Spoken(sim, row.control).name, "");

    EXPECT_EQ(SpokenPane(sim, WindowId::Main).name, "Explanation: Help(20).rtf");
    player.Do(*ParseAction("menu mnOrbitalEnergy")); // unchecked: the pane is emptied
    player.Do(*ParseAction("activate"));
    player.Do(*ParseAction("menu mnOrbitalEnergy"));
    EXPECT_EQ(SpokenPane(sim, WindowId::Main).name, "Explanation");
    player.Do(*ParseAction("menu mnUserGuide"));
    EXPECT_EQ(SpokenPane(sim, WindowId::UserGuide).name, "User guide: Introduction.rtf");
}

} // namespace
} // namespace selvane
