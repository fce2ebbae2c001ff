// Monkey: a user who does anything. From one seed always the same actions, as lines of a script.
#pragma once

#include <cstdint>
#include <random>
#include <span>
#include <string>
#include <string_view>

namespace selvane::replay {

class Monkey
{
public:
    explicit Monkey(std::uint64_t seed) : random_(seed) {}

    // The next action.
    std::string Next();

private:
    std::size_t Below(std::size_t bound) { return static_cast<std::size_t>(random_() % bound); }
    int Between(int least, int most);
    std::string_view AnyOf(std::span<const std::string_view> choices);
    template <typename Row> std::string AnyName(std::span<const Row> table);

    std::string MoveBar();
    std::string TypeSomething();
    std::string ChooseItem();
    std::string SetClock();
    std::string ChangeDocuments();
    std::string InAnotherWindow();

    std::mt19937_64 random_;
    bool away_ = false; // another window was opened and the main one not gone back to
};

} // namespace selvane::replay
