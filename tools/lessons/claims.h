// What the documents say that the program shows, and a learner who does their tasks to see whether
// it is so.
//
// A file of claims has a part for each page, in reading order:
//   page NAME                     the document, as it stands in the folder of documents
//   first ACTIONS | words         what the line "First:" asks for, and words of that line
//   task N ACTIONS                task N; the tasks of a page follow one another on one program
//   also ACTIONS                  a fact beside the tasks; plays the first line before its actions
//   fresh ACTIONS                 a fact of the program as it comes up
//     do ACTIONS                  more actions
//     note KEY                    remembers the number that the program shows under KEY
//     KEY | words                 the dump shows under KEY what stands in the words in [brackets],
//                                 as whole words
//     KEY=VALUE | words           the dump shows exactly VALUE, whatever stands in the brackets
//     KEY near N within M | words          the number that the dump shows
//     KEY changes by N within M | words    what it changed since its note, modulo 360
// ACTIONS are a script's, with ';' between them, or nothing; an action may be "N * ACTION",
// "ACTION until KEY=VALUE" or "ACTION unless KEY=VALUE". The key "picDemo.text" is any text drawn
// on the lessons' picture. Words stand in one paragraph of the document, brackets left out. Runs of
// blanks count as one, the minus sign as a hyphen. Lines that begin with '#' are remarks.
#pragma once

#include "replay/player.h"

#include <functional>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

namespace selvane::claims {

// Runs of blanks as one, the minus sign as a hyphen, no blanks at the ends.
std::string Evened(std::string_view text);
std::vector<std::string> Split(const std::string& text, char mark);

// A key of a dump and what it is to show.
struct Condition
{
    std::string key, value;
};

struct Command
{
    std::string text; // as it stands in the file
    replay::Action action;
    int times = 1;
    std::optional<Condition> until, unless;
};

using Commands = std::vector<Command>;

struct Note
{
    std::string key;
};

struct Measure
{
    bool sinceNote;
    double number, within;
};

struct Claim
{
    std::string key, quote;           // the quote without its brackets
    std::string value;                // what stood in the brackets
    std::optional<std::string> shown; // what the dump shows where it is not the value
    std::optional<Measure> measure;   // where the number counts, not the text
};

using Step = std::variant<Commands, Note, Claim>;

struct Block
{
    enum class Kind { task, also, fresh } kind;
    std::string name; // as in the file: "task 2"
    std::vector<Step> steps;
};

struct Page
{
    std::string document;
    Commands first;
    std::string firstWords;
    std::vector<Block> blocks;

    std::vector<Claim> Claims() const;
};

// The pages of a file. Throws std::runtime_error where it cannot be read or holds another line.
std::vector<Page> ReadPages(const std::string& path);

// Does the actions. Throws std::runtime_error where one is none or a user could not take it.
void Play(replay::Player& player, const std::string& actions);

// What the program shows: one text for most keys, each text of the picture for "picDemo.text".
std::vector<std::string> Shown(const replay::Player& player, const std::string& key);

class Learner
{
public:
    // `pause` is called before each task, while the learner reads.
    explicit Learner(
        replay::Player& player, std::function<void()> pause = [] {})
        : player_(player), pause_(std::move(pause))
    {}

    void DoTasks(const Page& page);
    void CheckFacts(const Page& page); // those beside the tasks, each from the first line
    void CheckFresh(const Page& page); // those of a program that has just come up

    // What did not hold, with its page and part. An action that cannot be taken ends the page.
    const std::vector<std::string>& Faults() const { return faults_; }

private:
    void Study(const Page& page, Block::Kind kind);
    void Take(const Commands& commands);
    void Take(const Note& note);
    void Take(const Claim& claim);
    bool Holds(const Claim& claim, const std::string& text) const;

    replay::Player& player_;
    std::function<void()> pause_;
    std::map<std::string, double> notes_;
    std::string place_; // the page and the part in hand
    std::vector<std::string> faults_;
};

} // namespace selvane::claims
