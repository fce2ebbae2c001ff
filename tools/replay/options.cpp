#include "replay/action.h"
#include "replay/replay.h"

namespace selvane::replay {

namespace {

std::optional<UsageFault> Fault(std::string text)
{
    return UsageFault{std::move(text)};
}

std::optional<UsageFault> ReadEvery(std::string_view text, Options& options)
{
    const std::optional<int> every = ParseWholeNumber(text);
    if (!every || *every < 1) return Fault("--every needs a number of 1 or more");
    options.every = static_cast<std::size_t>(*every);
    return std::nullopt;
}

std::optional<UsageFault> ReadClock(std::string_view text, Options& options)
{
    const std::optional<LocalTime> time = ParseTime(text);
    if (!time) return Fault("--clock needs a time such as 2012-07-28T14:48:46");
    options.clock = *time;
    return std::nullopt;
}

// An option that has a value behind it.
std::optional<UsageFault> ReadValue(std::string_view option, std::string_view value,
                                    Options& options)
{
    if (option == "--every") return ReadEvery(value, options);
    if (option == "--clock") return ReadClock(value, options);
    options.missing.emplace(value);
    return std::nullopt;
}

bool HasValue(std::string_view word)
{
    return word == "--every" || word == "--clock" || word == "--missing";
}

} // namespace

std::optional<UsageFault> ReadOptions(std::span<const char* const> words, Options& options)
{
    for (std::size_t at = 0; at < words.size(); ++at) {
        const std::string_view word = words[at];
        if (word == "--full") {
            options.full = true;
        } else if (word == "--calls") {
            options.calls = true;
        } else if (HasValue(word)) {
            if (++at == words.size()) return Fault(std::string(word) + " needs a value");
            if (const auto fault = ReadValue(word, words[at], options)) return fault;
        } else if (word.starts_with('-') && word != "-") {
            return Fault("unknown option " + std::string(word));
        } else if (word.empty() || !options.file.empty()) {
            return Fault("one script is wanted");
        } else {
            options.file = word;
        }
    }
    if (options.file.empty())
        return Fault("a script is wanted: a file's name, or - for standard input");
    return std::nullopt;
}

} // namespace selvane::replay
