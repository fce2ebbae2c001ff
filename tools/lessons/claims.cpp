#include "lessons/claims.h"

#include "app/control_table.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <fstream>
#include <sstream>
#include <stdexcept>

namespace selvane::claims {

namespace {

constexpr int kMostRepetitions = 1500; // of an action that waits for something

// Whether the text shows the value, not merely a piece of a longer word or number.
bool ShowsWhole(std::string text, std::string value)
{
    std::replace(text.begin(), text.end(), ',', ' ');
    std::replace(value.begin(), value.end(), ',', ' ');
    return Evened(' ' + text).insert(0, " ").append(" ").find(' ' + Evened(value) + ' ') !=
           std::string::npos;
}

// The first number in a text such as "Lon = 181 Deg".
std::optional<double> NumberIn(const std::string& text)
{
    const auto at = text.find_first_of("-0123456789");
    if (at == std::string::npos) return std::nullopt;
    return std::strtod(text.c_str() + at, nullptr);
}

// "KEY=VALUE" behind the word, which is cut off the text with what follows it.
std::optional<Condition> TakeCondition(std::string& text, const std::string& word)
{
    const auto at = text.find(' ' + word + ' ');
    if (at == std::string::npos) return std::nullopt;
    const std::string condition = text.substr(at + word.size() + 2);
    text.erase(at);
    const auto sign = condition.find('=');
    if (sign == std::string::npos) return Condition{condition, {}};
    return Condition{condition.substr(0, sign), condition.substr(sign + 1)};
}

Commands ReadCommands(const std::string& text)
{
    Commands commands;
    for (const std::string& part : Split(text, ';')) {
        if (part.empty()) continue;
        std::string action = part;
        std::optional<Condition> until = TakeCondition(action, "until");
        std::optional<Condition> unless = TakeCondition(action, "unless");
        int times = 1;
        if (const auto star = action.find(" * "); star != std::string::npos) {
            times = std::atoi(action.c_str());
            action.erase(0, star + 3);
        }
        const std::optional<replay::Action> parsed = replay::ParseAction(action);
        if (!parsed) throw std::runtime_error("no action: " + part);
        commands.push_back({part, *parsed, times, std::move(until), std::move(unless)});
    }
    return commands;
}

// "near N within M" or "changes by N within M", cut off the key.
std::optional<Measure> TakeMeasure(std::string& key)
{
    for (const std::string word : {" near ", " changes by "}) {
        const auto at = key.find(word);
        if (at == std::string::npos) continue;
        Measure measure{word == " changes by ", 0, 0};
        std::istringstream rest(key.substr(at + word.size()));
        std::string within;
        rest >> measure.number >> within >> measure.within;
        if (!rest || within != "within") throw std::runtime_error("no measure: " + key);
        key.erase(at);
        return measure;
    }
    return std::nullopt;
}

// The key with what it shows, and the words with their brackets.
std::optional<Claim> ReadClaim(const std::string& line)
{
    const std::vector<std::string> parts = Split(line, '|');
    if (parts.size() != 2) return std::nullopt;
    Claim claim{parts[0], parts[1], {}, {}, {}};
    const auto open = claim.quote.find('['), close = claim.quote.find(']');
    if (open > close || close == std::string::npos) return std::nullopt;
    claim.value = claim.quote.substr(open + 1, close - open - 1);
    claim.quote.erase(close, 1).erase(open, 1);
    claim.measure = TakeMeasure(claim.key);
    if (const auto sign = claim.key.find('='); sign != std::string::npos) {
        claim.shown = claim.key.substr(sign + 1);
        claim.key.erase(sign);
    }
    return claim;
}

// The line without the word that it begins with, or nothing where it begins with another.
std::optional<std::string> After(std::string_view word, const std::string& line)
{
    if (line != word && !line.starts_with(std::string(word) + ' ')) return std::nullopt;
    return Evened(line.substr(word.size()));
}

// A line that begins a part of a page.
std::optional<Block> ReadBlock(const std::string& line)
{
    if (const auto rest = After("task", line)) {
        const std::string number = rest->substr(0, rest->find(' '));
        return Block{
            Block::Kind::task, "task " + number, {ReadCommands(rest->substr(number.size()))}};
    }
    if (const auto rest = After("also", line))
        return Block{Block::Kind::also, line, {ReadCommands(*rest)}};
    if (const auto rest = After("fresh", line))
        return Block{Block::Kind::fresh, line, {ReadCommands(*rest)}};
    return std::nullopt;
}

std::optional<Step> ReadStep(const std::string& line)
{
    if (const auto rest = After("do", line)) return ReadCommands(*rest);
    if (const auto key = After("note", line)) return Note{*key};
    if (std::optional<Claim> claim = ReadClaim(line)) return *std::move(claim);
    return std::nullopt;
}

bool ReadLine(const std::string& line, std::vector<Page>& pages)
{
    if (const auto name = After("page", line)) {
        pages.push_back({*name, {}, {}, {}});
        return true;
    }
    if (pages.empty()) return false;
    Page& page = pages.back();
    if (const auto rest = After("first", line)) {
        const std::vector<std::string> parts = Split(*rest, '|');
        if (parts.size() != 2) return false;
        page.first = ReadCommands(parts[0]);
        page.firstWords = parts[1];
        return true;
    }
    if (std::optional<Block> block = ReadBlock(line)) {
        page.blocks.push_back(*std::move(block));
        return true;
    }
    if (page.blocks.empty()) return false;
    std::optional<Step> step = ReadStep(line);
    if (step) page.blocks.back().steps.push_back(*std::move(step));
    return step.has_value();
}

} // namespace

std::string Evened(std::string_view text)
{
    constexpr std::string_view minus = "−";
    std::string even;
    for (std::size_t at = 0; at < text.size(); ++at) {
        if (text.substr(at).starts_with(minus)) {
            even += '-';
            at += minus.size() - 1;
        } else if (text[at] != ' ') {
            even += text[at];
        } else if (!even.empty() && even.back() != ' ') {
            even += ' ';
        }
    }
    if (even.ends_with(' ')) even.pop_back();
    return even;
}

std::vector<std::string> Split(const std::string& text, char mark)
{
    std::vector<std::string> parts;
    std::istringstream all(text);
    for (std::string part; std::getline(all, part, mark);) parts.push_back(Evened(part));
    return parts;
}

std::vector<Claim> Page::Claims() const
{
    std::vector<Claim> claims;
    for (const Block& block : blocks)
        for (const Step& step : block.steps)
            if (const Claim* claim = std::get_if<Claim>(&step)) claims.push_back(*claim);
    return claims;
}

std::vector<Page> ReadPages(const std::string& path)
{
    std::vector<Page> pages;
    std::ifstream file(path);
    if (!file) throw std::runtime_error("cannot read " + path);
    for (std::string line; std::getline(file, line);) {
        line = Evened(line);
        if (line.empty() || line[0] == '#') continue;
        if (!ReadLine(line, pages)) throw std::runtime_error(path + ": no claim: " + line);
    }
    return pages;
}

std::vector<std::string> Shown(const replay::Player& player, const std::string& key)
{
    if (key == "picDemo.text") {
        std::vector<std::string> texts;
        const raster::Drawing& lessonPicture = player.Program().picDemo.drawing;
        for (const raster::Stroke& stroke : replay::Of(lessonPicture, raster::StrokeKind::Text))
            texts.push_back(Evened(lessonPicture.TextOf(stroke)));
        return texts;
    }
    if (key.ends_with(".caption")) { // most of them; a whole dump takes a hundred times as long
        const std::string_view name(key.data(), key.size() - std::string_view(".caption").size());
        const auto rows = LabelTable();
        const auto row = std::find_if(rows.begin(), rows.end(),
                                      [&](const LabelRow& one) { return one.name == name; });
        if (row != rows.end())
            return {Evened(player.Program()
                               .controls.labels[static_cast<std::size_t>(row - rows.begin())]
                               .caption)};
    }
    const replay::Dump dump = replay::RecordsOf(player.Program()); // without the pictures' digests
    const auto entry = dump.find(key);
    if (entry == dump.end()) return {};
    return {Evened(entry->second)};
}

namespace {

bool IsMet(const replay::Player& player, const Condition& condition)
{
    const std::vector<std::string> shown = Shown(player, condition.key);
    return std::find(shown.begin(), shown.end(), condition.value) != shown.end();
}

void CarryOut(replay::Player& player, const Commands& commands)
{
    for (const auto& [text, action, times, until, unless] : commands) {
        if (unless && IsMet(player, *unless)) continue;
        const int most = until ? kMostRepetitions : times;
        for (int time = 0; time < most && !(until && IsMet(player, *until)); ++time)
            if (const Refusal refusal = player.Do(action))
                throw std::runtime_error(text + ": " + *refusal);
        if (until && !IsMet(player, *until)) throw std::runtime_error(text + ": never comes");
    }
}

} // namespace

void Play(replay::Player& player, const std::string& actions)
{
    CarryOut(player, ReadCommands(actions));
}

void Learner::Take(const Commands& commands)
{
    CarryOut(player_, commands);
}

void Learner::Take(const Note& note)
{
    const std::vector<std::string> shown = Shown(player_, note.key);
    const std::optional<double> number = shown.empty() ? std::nullopt : NumberIn(shown.front());
    if (!number) throw std::runtime_error(note.key + " shows no number");
    notes_[note.key] = *number;
}

bool Learner::Holds(const Claim& claim, const std::string& text) const
{
    if (claim.shown) return text == *claim.shown;
    if (!claim.measure) return ShowsWhole(text, claim.value);
    const std::optional<double> number = NumberIn(text);
    if (!number) return false;
    const double off = *number - claim.measure->number;
    if (!claim.measure->sinceNote) return std::fabs(off) <= claim.measure->within;
    const auto note = notes_.find(claim.key);
    return note != notes_.end() &&
           std::fabs(std::remainder(off - note->second, 360)) <= claim.measure->within;
}

void Learner::Take(const Claim& claim)
{
    const std::vector<std::string> shown = Shown(player_, claim.key);
    for (const std::string& text : shown)
        if (Holds(claim, text)) return;
    faults_.push_back(place_ + ": " + claim.quote + ": " + claim.key + " shows " +
                      (shown.empty() ? "nothing" : shown.front()));
}

// The parts of that kind: tasks follow one another, each fact begins with the first line.
void Learner::Study(const Page& page, Block::Kind kind)
{
    place_ = page.document;
    try {
        if (kind == Block::Kind::task) Take(page.first);
        for (const Block& block : page.blocks) {
            if (block.kind != kind) continue;
            place_ = page.document + ", " + block.name;
            if (kind == Block::Kind::task) pause_();
            if (kind == Block::Kind::also) Take(page.first);
            for (const Step& step : block.steps)
                std::visit([this](const auto& one) { Take(one); }, step);
        }
    } catch (const std::runtime_error& fault) {
        faults_.push_back(place_ + ": " + fault.what());
    }
}

void Learner::DoTasks(const Page& page)
{
    Study(page, Block::Kind::task);
}

void Learner::CheckFacts(const Page& page)
{
    Study(page, Block::Kind::also);
}

void Learner::CheckFresh(const Page& page)
{
    Study(page, Block::Kind::fresh);
}

} // namespace selvane::claims
