// The machine under Windows: its registry, shell, programs, clock and files. Texts are in the
// machine's own code page, as its registry gives them.
#pragma once

#include "app/platform.h"

namespace selvane {

class PlatformWin32 : public Platform
{
public:
    // The window (an HWND) that message boxes and opened links belong to; null: none.
    explicit PlatformWin32(void* owner = nullptr) : owner_(owner) {}

    LocalTime Now() const override;
    std::optional<std::string> ReadDocument(std::string_view name) const override;
    void OpenLink(std::string_view target) override;
    bool StartProgram(const std::string& path) override;
    bool FileExists(const std::string& path) const override;
    void ShowMessage(std::string_view text, std::string_view title) override;

    std::optional<RegistryKey> OpenKey(std::uint32_t root, const std::string& path,
                                       std::uint32_t access) override;
    std::optional<RegistryValue> QueryValue(RegistryKey key, const std::string& name,
                                            std::uint32_t bufferSize) override;
    void CloseKey(RegistryKey key) override;

private:
    void* owner_;
};

} // namespace selvane
