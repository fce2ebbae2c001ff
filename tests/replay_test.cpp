// Replay: its formats, its options, and how it ends.
#include "replay/action.h"
#include "replay/crc32.h"
#include "replay/player.h"
#include "replay/replay.h"
#include "replay/value_text.h"

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <gmock/gmock.h>
#include <limits>
#include <random>
#include <sstream>

namespace selvane::replay {
namespace {

using testing::HasSubstr, testing::Not, testing::StartsWith;

struct Outcome
{
    int status;
    std::string output, errors;
};

Outcome Play(const std::string& script, Options options = {})
{
    std::istringstream input(script);
    std::ostringstream output, errors;
    const int status = Run(options, input, output, errors);
    return {status, output.str(), errors.str()};
}

// The part of an output that begins with "@ number ", up to the next one.
std::string DumpOf(const std::string& output, int number)
{
    const std::size_t begin = ("\n" + output).find("\n@ " + std::to_string(number) + " ");
    if (begin == std::string::npos) return "";
    return output.substr(begin, output.find("\n@ ", begin + 1) - begin + 1);
}

TEST(Replay, ActionsAreReadByTheirWords)
{
    // clang-format off
    for (const std::string_view line : {
        "scroll sclPeri 20", "scroll sclPeri -20", "scroll sclPeri +7",
        "  scroll   sclPeri  20  ", "scroll sclPeri 99999999999999999999", "arrow sclUD +",
        "page sclLR -", "type txtPeri", "type txtPeri ", "type txtPeri a b", "click Command1",
        "menu mnFile", "menu mnSeparator", "label lblOutput(3)", "label lblReturnToTutorial",
        "tick tmrTime", "activate", "close", "guide activate", "guide click lblEnergy",
        "guide close", "about activate", "about click LblWebsite", "about click picIcon",
        "about close", "clock 2012-02-29T00:00:00", "docs missing Help(20).rtf",
        "docs present any name", "close\r"})
        EXPECT_TRUE(ParseAction(line)) << line;
    for (const std::string_view line : {
        "", "scroll", "scroll sclPeri", "scroll sclPeri x", "scroll sclPeri 1.5",
        "scroll sclPeri -", "scroll sclPeri 2 3", "scroll txtPeri 2", "scroll SCLPERI 2",
        "arrow sclUD", "arrow sclUD 1", "arrow sclUD ++", "type", "type sclPeri 3", "click",
        "click mnGeo", "click btnPlay now", "menu mnNothing", "label lblSat",
        "label lblOutput(17)", "label lblOutput", "tick tmrsat", "guide", "guide click",
        "guide click lblPE", "guide open", "about click lblEnergy", "activate main", "close all",
        "clock", "clock now", "clock 2012-02-30T00:00:00", "clock 2011-02-29T00:00:00",
        "clock 2012-07-28 14:48:46", "clock 2012-07-28T24:00:00", "clock 2012-07-28T14:48",
        "clock 0000-01-01T00:00:00", "docs", "docs missing", "docs gone x", "expect sim.Zoom=1",
        "jump"})
        EXPECT_FALSE(ParseAction(line)) << line;
    // clang-format on
    EXPECT_EQ(std::get<TypeText>(*ParseAction("type txtPeri  5 km ")).text, " 5 km ");
    EXPECT_EQ(std::get<TypeText>(*ParseAction("type txtPeri")).text, "");
    EXPECT_EQ(std::get<ScrollTo>(*ParseAction("scroll sclE -99999999999")).value,
              std::numeric_limits<int>::min());
    EXPECT_TRUE(IsRemark("") && IsRemark("  \t") && IsRemark("# scroll") && IsRemark("\r"));
}

TEST(Replay, TheFirstDumpIsWholeAndSorted)
{
    const Outcome outcome = Play("");
    EXPECT_EQ(outcome.status, 0);
    EXPECT_THAT(outcome.output, StartsWith("@ 0 start\nCommand1.visible=1\nLabel2.caption="));
    std::istringstream lines(outcome.output);
    std::vector<std::string> keys;
    for (std::string line; std::getline(lines, line);)
        keys.push_back(line.substr(0, line.find('=')));
    EXPECT_TRUE(std::ranges::is_sorted(keys));
    const auto count = [&](std::string_view property) {
        return std::ranges::count_if(keys, [&](auto& key) { return key.ends_with(property); });
    };
    EXPECT_EQ(count(".small"), kScrollBarCount);
    EXPECT_EQ(count(".tooltip"), kLabelCount);
    EXPECT_EQ(count(".interval"), kTimerCount);
    for (const char* line :
         {"lblSat.left=-", "platform.last=-", "sim.SavedOrbitMode=", "sim.PlanetLight=127,127,255",
          "picDemo.count.arc=0", "mnSatelliteTracking.checked=1", "txtHelp.document=Help(20).rtf"})
        EXPECT_THAT(outcome.output, HasSubstr("\n" + std::string(line) + "\n"));
}

TEST(Replay, ChangesAreShownAgainstTheLastDump)
{
    const std::string script =
        "# a remark\n\nscroll sclRot 7\ntype txtPeri a\\b\rc\nclick btnPlay\n"
        "menu mnAbout\nabout close\n";
    const std::string output = Play(script).output;
    const std::string moved = DumpOf(output, 1);
    EXPECT_THAT(moved, StartsWith("@ 1 scroll sclRot 7\n"));
    EXPECT_THAT(moved, HasSubstr("\nsclRot.value=7\n"));
    EXPECT_THAT(moved, HasSubstr("\npicSelvane.digest="));
    EXPECT_THAT(moved, Not(HasSubstr("sclRot.min")));
    EXPECT_EQ(DumpOf(output, 2), "@ 2 type txtPeri a\\b\rc\ntxtPeri.text=a\\\\b\n");
    EXPECT_EQ(DumpOf(output, 3), "@ 3 click btnPlay\n! btnPlay is hidden\n");
    EXPECT_EQ(DumpOf(output, 4),
              "@ 4 menu mnAbout\nabout.caption=About Selvane\nabout.title=Selvane\n"
              "about.version=Version " SELVANE_VERSION "\nwindow.active=about\n");
    EXPECT_THAT(DumpOf(output, 5),
                StartsWith("@ 5 about close\nabout.caption\nabout.title\nabout.version\n"))
        << "what is gone stands without its sign";

    Options thinned;
    thinned.every = 2;
    const std::string two = Play(script, thinned).output;
    EXPECT_EQ(DumpOf(two, 1), "");
    EXPECT_THAT(DumpOf(two, 2), HasSubstr("\nsclRot.value=7\n")) << "changes since the last dump";
    EXPECT_EQ(DumpOf(two, 3), "") << "no reason without its dump";
    EXPECT_NE(DumpOf(two, 5), "") << "the last action";

    Options full;
    full.full = true;
    EXPECT_EQ(std::ranges::count(DumpOf(Play(script, full).output, 1), '\n'),
              std::ranges::count(Play("").output, '\n'));
}

TEST(Replay, ALineThatIsNoActionEndsIt)
{
    Options thinned;
    thinned.every = 10;
    const Outcome outcome =
        Play("scroll sclRot 7\n# fine\n\nscroll sclRot seven\nscroll sclRot 8\n", thinned);
    EXPECT_EQ(outcome.status, 2);
    EXPECT_EQ(outcome.errors, "line 4: scroll sclRot seven\n");
    EXPECT_THAT(DumpOf(outcome.output, 1), HasSubstr("\nsclRot.value=7\n"));
    EXPECT_EQ(DumpOf(outcome.output, 2), "");
    EXPECT_EQ(Play("close\ntick tmrSat\nactivate\nclock 2013-01-01T00:00:00").status, 0)
        << "all refused or of no effect";
}

TEST(Replay, Options)
{
    using Words = std::vector<const char*>;
    const auto read = [](const Words& words) {
        selvane::replay::Options options;
        return ReadOptions(words, options) ? std::string("fault") : options.file;
    };
    EXPECT_EQ(read({"a.txt"}), "a.txt");
    EXPECT_EQ(read({"-", "--full", "--calls", "--every", "3", "--clock", "2012-01-01T00:00:00"}),
              "-");
    for (const Words& fault : {Words{},
                               {""},
                               {"--full"},
                               {"a", "b"},
                               {"a", "--every"},
                               {"a", "--every", "0"},
                               {"a", "--every", "-1"},
                               {"a", "--every", "x"},
                               {"a", "--clock", "noon"},
                               {"a", "--missing"},
                               {"a", "--fast"}})
        EXPECT_EQ(read(fault), "fault") << (fault.empty() ? "" : fault.back());

    selvane::replay::Options start;
    start.missing = {"Help(20).rtf", "Help(31).rtf"};
    start.clock = {1999, 12, 31, 23, 59, 58};
    start.calls = true;
    const std::string output =
        Play("menu mnTimeStandards\nclick btnNext2\ntick tmrTime", start).output;
    EXPECT_THAT(output, HasSubstr("\ntxtHelp.document=\n"));
    EXPECT_THAT(DumpOf(output, 1), Not(HasSubstr("txtHelp")));
    EXPECT_THAT(
        output,
        HasSubstr("\npicDemo.call.00000=text -198 148 191,191,191 GMT:  2000-Jan-01 03:59:58"
                  "    Local Time:  1999-Dec-31 23:59:58\n"));
}

TEST(Replay, NumbersAreWrittenAsTheLibraryWritesThem)
{
    std::mt19937_64 random(7);
    std::uniform_real_distribution<double> mantissa(-10, 10);
    std::uniform_int_distribution<int> exponent(-12, 20);
    const auto expect = [](double number) {
        char nine[64], three[64];
        std::snprintf(nine, sizeof nine, "%.9g", number == 0 ? 0.0 : number);
        std::snprintf(three, sizeof three, "%.3f", number);
        std::string text;
        AppendThreeDecimals(text, number);
        ASSERT_EQ(NumberText(number), nine);
        ASSERT_EQ(text, three);
    };
    for (const double number :
         {0.0, -0.0, -0.0004, 0.0005, 0.0015, 1e9, 123456789.5, 1e29, -1e-5, 0.1})
        expect(number);
    for (int round = 0; round < 5'000; ++round) {
        const double number = mantissa(random) * std::pow(10, exponent(random));
        expect(number);
        expect(static_cast<double>(static_cast<float>(number)));
    }
}

TEST(Replay, StrokesAsText)
{
    Picture picture(kPicSelvane);
    picture.Line(1, 2, 3, 4); // goes with the Cls
    picture.Cls();
    picture.ForeColor = {1, 2, 3};
    picture.FillColor = {4, 5, 6};
    picture.PSet(0.1, -0.0001);
    picture.Line(-1, 2.5, 1e6, -4, {9, 8, 7});
    picture.Circle(1, 2, 3);
    picture.FillStyle = Fill::Transparent;
    picture.Circle(1, 2, 3, {7, 7, 7});
    picture.Circle(1, 2, 3, {7, 7, 7}, 0, -3.14159265);
    picture.Circle(1, 2, 3, {7, 7, 7}, -0.5, -1.5);
    picture.MoveTo(5, 6);
    picture.Print(" A b");
    const std::string_view nine[] = {"pset 0.100000001 -9.99999975e-05 1,2,3",
                                     "line -1 2.5 1000000 -4 9,8,7",
                                     "circle 1 2 3 1,2,3 4,5,6",
                                     "circle 1 2 3 7,7,7 -",
                                     "arc 1 2 3 7,7,7 - 0 -3.14159265",
                                     "sector 1 2 3 7,7,7 - -0.5 -1.5",
                                     "text 5 6 1,2,3  A b"};
    ASSERT_EQ(picture.drawing.Strokes().size(), std::size(nine));
    for (std::size_t at = 0; at < std::size(nine); ++at)
        EXPECT_EQ(LineOf(picture.drawing, picture.drawing.Strokes()[at], StrokeNumbers::NineDigits),
                  nine[at]);
    // The sum of these lines as another program's zlib gives it.
    EXPECT_EQ(LineOf(picture.drawing, picture.drawing.Strokes()[0], StrokeNumbers::ThreeDecimals),
              "pset 0.100 -0.000 1,2,3");
    EXPECT_EQ(Digest(picture.drawing), 0xDF4D140Au);
    EXPECT_EQ(Crc32(0, "123456789"), 0xCBF43926u);
    EXPECT_EQ(Crc32(Crc32(0, "1234"), "56789"), 0xCBF43926u);
    EXPECT_EQ(Digest({}), 0u);
}

} // namespace
} // namespace selvane::replay
