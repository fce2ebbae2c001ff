// How easy the documents are to read, by the grade of Flesch and Kincaid (Derivation of new
// readability formulas for Navy enlisted personnel, 1975): the class, counted in American school
// years, whose pupils can read the text. Prints a table of the documents.

#include "help_documents.h"

#include <algorithm>
#include <filesystem>
#include <gtest/gtest.h>
#include <initializer_list>
#include <iomanip>
#include <iostream>
#include <map>
#include <set>
#include <sstream>

namespace selvane {
namespace {

using rich_text::Paragraph;
using rich_text::Paragraphs;
using rich_text::PlainText;

// Lower-case letters of a word; apostrophes, quotes and digits dropped.
std::string Letters(std::string_view word)
{
    std::string letters;
    for (const char c : word)
        if (std::isalpha(static_cast<unsigned char>(c)) != 0)
            letters += static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
    return letters;
}

bool IsVowel(char letter)
{
    return std::string_view("aeiouy").find(letter) != std::string_view::npos;
}

// A y between vowels, as in "player", parts them.
bool IsVowelAt(const std::string& word, std::size_t at)
{
    const bool parts = word[at] == 'y' && at > 0 && at + 1 < word.size() && IsVowel(word[at - 1]) &&
                       IsVowel(word[at + 1]);
    return IsVowel(word[at]) && !parts;
}

// How many pairs of vowels are spoken apart, as in "radius" but not in "ration" or "equal".
int PairsApart(const std::string& word)
{
    int count = 0;
    for (std::size_t at = 0; at + 1 < word.size(); ++at) {
        const std::string pair = word.substr(at, 2);
        const char before = at > 0 ? word[at - 1] : ' ';
        const bool soft = std::string_view("tscg").find(before) != std::string_view::npos;
        if ((pair == "io" || pair == "ia") && !soft) ++count;
        if (pair == "iu" || pair == "eo" || (pair == "ua" && before != 'q')) ++count;
    }
    return count;
}

bool HasSilentEnd(const std::string& word)
{
    const auto ends = [&](std::initializer_list<const char*> tails) {
        return std::any_of(tails.begin(), tails.end(),
                           [&](const char* tail) { return word.ends_with(tail); });
    };
    const std::size_t tail = ends({"es", "ed"}) ? 2 : ends({"e"}) ? 1 : 0;
    if (tail == 0 || word.size() <= tail || IsVowel(word[word.size() - tail - 1])) return false;
    const char before = word[word.size() - tail - 1];
    const bool endsLe = before == 'l' && !word.ends_with("ed") && word.size() > tail + 1 &&
                        !IsVowel(word[word.size() - tail - 2]);
    return !endsLe && !ends({"ses", "ces", "ges", "zes", "xes", "shes", "ches", "ted", "ded"});
}

// Groups of vowels; at least 1.
int Syllables(const std::string& word)
{
    int count = PairsApart(word) - (HasSilentEnd(word) ? 1 : 0);
    for (std::size_t at = 0; at < word.size(); ++at)
        if (IsVowelAt(word, at) && (at == 0 || !IsVowelAt(word, at - 1))) ++count;
    return std::max(count, 1);
}

struct Reading
{
    int words = 0, sentences = 0, syllables = 0;

    double Grade() const
    {
        return 0.39 * words / std::max(sentences, 1) + 11.8 * syllables / std::max(words, 1) -
               15.59;
    }
};

// Brackets and quotes may stand behind the mark.
bool EndsSentence(std::string_view word)
{
    for (const std::string_view tail : {")", "]", "\"", "”", "’"})
        if (word.ends_with(tail)) return EndsSentence(word.substr(0, word.size() - tail.size()));
    return word.ends_with('.') || word.ends_with('?') || word.ends_with('!');
}

// Adds a paragraph; its end ends a sentence. A label of up to five words, such as the head of a
// column, is no sentence and left out, and so is a word without letters.
void Add(Reading& reading, const std::string& paragraph)
{
    Reading own;
    bool open = false;
    std::istringstream words(paragraph);
    for (std::string word; words >> word;) {
        const std::string letters = Letters(word);
        if (!letters.empty()) {
            ++own.words;
            own.syllables += Syllables(letters);
            open = true;
        }
        if (open && EndsSentence(word)) {
            ++own.sentences;
            open = false;
        }
    }
    if (own.sentences == 0 && own.words <= 5) return;
    reading.words += own.words;
    reading.syllables += own.syllables;
    reading.sentences += own.sentences + (open ? 1 : 0);
}

struct Page
{
    Reading reading;
    int tasks = 0; // numbered items under a heading "Predict ...", or headings "Task ..."
    std::set<std::string> links;
};

Page Measured(const rich_text::Document& text)
{
    Page page;
    bool inTasks = false;
    for (const Paragraph* paragraph : Paragraphs(text.blocks)) {
        const std::string words = PlainText(*paragraph);
        if (paragraph->format.headingLevel > 0) {
            inTasks = words.starts_with("Predict");
            if (words.starts_with("Task ")) ++page.tasks;
            continue;
        }
        if (inTasks && paragraph->item && paragraph->item->label.ends_with('.')) ++page.tasks;
        Add(page.reading, words);
    }
    page.links.insert(text.links.begin(), text.links.end());
    return page;
}

// By path below the folder of the documents.
std::map<std::string, Page> Pages()
{
    std::map<std::string, Page> pages;
    const std::filesystem::path folder = SELVANE_HELP;
    for (const auto& entry : std::filesystem::recursive_directory_iterator(folder)) {
        if (entry.path().extension() != ".rtf") continue;
        const std::string name = entry.path().lexically_relative(folder).generic_string();
        pages[name] = Measured(ReadDocument(name));
    }
    return pages;
}

double HighestGrade(const std::string& name)
{
    return name == "Terminology.rtf" || name == "Glossary.rtf" || name == "Teachers.rtf" ? 10 : 8;
}

} // namespace

TEST(Readability, CountsSyllablesAsADictionaryDoes)
{
    const std::map<std::string, int> spoken = {
        {"orbit", 2},     {"periapsis", 4}, {"radius", 3},   {"period", 3},  {"degree", 2},
        {"satellite", 3}, {"circle", 2},    {"places", 2},   {"planet", 2},  {"same", 1},
        {"moved", 1},     {"started", 2},   {"question", 2}, {"equator", 3}, {"inclination", 4},
        {"latitude", 3},  {"goes", 1},      {"energy", 3},   {"the", 1},     {"geostationary", 6},
        {"angles", 2},    {"stays", 1},     {"times", 1},    {"axis", 2},    {"minutes", 2},
        {"year", 1},      {"sun", 1},       {"molniya", 3},  {"special", 2}, {"reaches", 2},
    };
    for (const auto& [word, syllables] : spoken) EXPECT_EQ(Syllables(word), syllables) << word;
}

TEST(Readability, GradesAnEasyTextLowAndAHardOneHigh)
{
    Reading easy, hard;
    Add(easy, "The cat sat on the mat. It was warm there.");
    EXPECT_EQ(easy.words, 10);
    EXPECT_EQ(easy.sentences, 2);
    EXPECT_NEAR(easy.Grade(), 0.39 * 5 + 11.8 * 10 / 10 - 15.59, 1e-9);
    Add(hard, "Gravitational acceleration notwithstanding, geostationary communication satellites "
              "occasionally necessitate propulsion.");
    EXPECT_GT(hard.Grade(), 25);
}

TEST(Readability, OfEachPageSuitsItsReaders)
{
    const std::map<std::string, Page> pages = Pages();
    std::map<std::string, int> linksTo;
    for (const auto& [name, page] : pages)
        for (const std::string& link : page.links) ++linksTo[link];

    std::cout << "words  sentences  grade  tasks  links out  links in  page\n";
    for (const auto& [name, page] : pages) {
        std::cout << std::setw(5) << page.reading.words << std::setw(11) << page.reading.sentences
                  << std::setw(7) << std::fixed << std::setprecision(1) << page.reading.Grade()
                  << std::setw(7) << page.tasks << std::setw(11) << page.links.size()
                  << std::setw(10) << linksTo[name] << "  " << name << '\n';
        EXPECT_GT(page.reading.sentences, 5) << name;
        EXPECT_LE(page.reading.Grade(), HighestGrade(name)) << name;
    }
}

} // namespace selvane
