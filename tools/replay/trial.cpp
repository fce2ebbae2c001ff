#include "replay/trial.h"

#include <cstddef>
#include <cstdio>
#include <ctime>
#include <fcntl.h>
#include <sys/wait.h>
#include <unistd.h>

namespace selvane::replay {

namespace {

constexpr double kMostMilliseconds = 50;

// What this thread has computed; the rest of the machine does not count.
double ThreadMilliseconds()
{
    timespec now{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &now);
    return static_cast<double>(now.tv_sec) * 1e3 + static_cast<double>(now.tv_nsec) * 1e-6;
}

enum class Voice { Aloud, Silent };

[[noreturn]] void PlayAndLeave(const Play& play, const Script& script, Voice voice)
{
    if (voice == Voice::Silent) {
        const int nowhere = open("/dev/null", O_WRONLY);
        dup2(nowhere, STDOUT_FILENO);
        dup2(nowhere, STDERR_FILENO);
    }
    const std::string wrong = play(script);
    if (!wrong.empty()) std::fprintf(stderr, "%s\n", wrong.c_str());
    std::fflush(nullptr);
    _exit(wrong.empty() ? 0 : 1);
}

bool Survives(const Play& play, const Script& script, Voice voice)
{
    std::fflush(nullptr);
    const pid_t child = fork();
    if (child == 0) PlayAndLeave(play, script, voice);
    int status = 0;
    return waitpid(child, &status, 0) == child && WIFEXITED(status) && WEXITSTATUS(status) == 0;
}

// Leaves out what it can, in pieces half as long each time, while the script still fails.
Script Shrunk(const Play& play, Script script)
{
    for (std::size_t piece = script.size() / 2; piece > 0; piece /= 2)
        for (std::size_t at = 0; at + piece <= script.size();) {
            Script shorter = script;
            const auto begin = shorter.begin() + static_cast<std::ptrdiff_t>(at);
            shorter.erase(begin, begin + static_cast<std::ptrdiff_t>(piece));
            if (Survives(play, shorter, Voice::Silent))
                at += piece;
            else
                script = std::move(shorter);
        }
    return script;
}

} // namespace

std::string ShortestFailure(const Play& play, const Script& script)
{
    if (Survives(play, script, Voice::Aloud)) return "";
    std::string text = "fails at times only\n";
    if (Survives(play, script, Voice::Silent)) return text;
    text.clear();
    for (const std::string& line : Shrunk(play, script)) text += line + '\n';
    return text;
}

std::string TooLong(const std::function<void()>& action)
{
    const double before = ThreadMilliseconds();
    action();
    const double spent = ThreadMilliseconds() - before;
    return spent > kMostMilliseconds ? "takes " + std::to_string(spent) + " ms" : "";
}

} // namespace selvane::replay
