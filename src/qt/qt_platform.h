// QtPlatform: the desktop that the program runs on.
#pragma once

#include "app/platform.h"

#include <QObject>

namespace selvane {

// Makes the folder that holds the documents the working folder: the present one if it holds the
// first document, otherwise where they were installed, or built. Leaves it where none is found.
// `program` is the name that the program was started with.
void ChooseWorkingFolder(const char* program);

class QtPlatform : public QObject, public Platform
{
    Q_OBJECT

public:
    LocalTime Now() const override;

    // Plain files of the working folder, up to 32 MB.
    std::optional<std::string> ReadDocument(std::string_view name) const override;

    void OpenLink(std::string_view target) override;
    bool StartProgram(const std::string& path) override;
    bool FileExists(const std::string& path) const override;
    void ShowMessage(std::string_view text, std::string_view title) override;

    // There is no registry: one key is answered, that of the system-information tool, with the path
    // of the first such tool that this desktop has.
    std::optional<RegistryKey> OpenKey(std::uint32_t root, const std::string& path,
                                       std::uint32_t access) override;
    std::optional<RegistryValue> QueryValue(RegistryKey key, const std::string& name,
                                            std::uint32_t bufferSize) override;
};

} // namespace selvane
