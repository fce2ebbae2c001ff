#include "replay/scripted_platform.h"

namespace selvane::replay {

std::optional<std::string> ScriptedPlatform::ReadDocument(std::string_view name) const
{
    if (missing.contains(name)) return std::nullopt;
    return "{\\rtf1\\ansi " + std::string(name) + "\\par}";
}

void ScriptedPlatform::Note(std::string_view verb, std::string_view what)
{
    ++calls_;
    last_ = std::string(verb) + ' ' + std::string(what);
}

void ScriptedPlatform::OpenLink(std::string_view target)
{
    Note("open", target);
}

bool ScriptedPlatform::StartProgram(const std::string& path)
{
    Note("start", path);
    return false;
}

void ScriptedPlatform::ShowMessage(std::string_view text, std::string_view /*title*/)
{
    Note("message", text);
}

} // namespace selvane::replay
