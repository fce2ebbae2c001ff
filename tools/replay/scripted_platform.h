// A machine for scripts: its clock stands still until it is set, its documents are all there but
// those said to be missing, and it only counts what the program asks of it.
#pragma once

#include "app/platform.h"

#include <set>
#include <string>

namespace selvane::replay {

class ScriptedPlatform : public Platform
{
public:
    LocalTime now{2012, 7, 28, 14, 48, 46};
    std::set<std::string, std::less<>> missing; // names of documents

    std::size_t Calls() const { return calls_; }
    // "open TARGET", "start PATH" or "message TEXT"; empty before the first request.
    const std::string& LastCall() const { return last_; }

    LocalTime Now() const override { return now; }
    // A short document that holds its own name.
    std::optional<std::string> ReadDocument(std::string_view name) const override;
    void OpenLink(std::string_view target) override;
    bool StartProgram(const std::string& path) override; // never there
    bool FileExists(const std::string& /*path*/) const override { return false; }
    void ShowMessage(std::string_view text, std::string_view title) override;

private:
    void Note(std::string_view verb, std::string_view what);

    std::size_t calls_ = 0;
    std::string last_;
};

} // namespace selvane::replay
