// The documents of the help folder, read for a test.
#pragma once

#include "rich_text/reader.h"

#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <set>
#include <sstream>
#include <string>
#include <utility>

namespace selvane {

// Every document by its path below the folder; those that links can reach stand in no further one.
inline std::set<std::string> NamesOfDocuments()
{
    std::set<std::string> names;
    for (const auto& file : std::filesystem::recursive_directory_iterator(SELVANE_HELP))
        if (file.path().extension() == ".rtf")
            names.insert(file.path().lexically_relative(SELVANE_HELP).generic_string());
    return names;
}

// By path below the folder; empty, and the test fails, where there is no such file.
inline std::string BytesOfDocument(const std::string& name)
{
    std::ifstream file(std::string(SELVANE_HELP) + '/' + name, std::ios::binary);
    EXPECT_TRUE(file) << name;
    std::ostringstream all;
    all << file.rdbuf();
    return all.str();
}

inline rich_text::Document ReadDocument(const std::string& name)
{
    rich_text::ReadResult result = rich_text::Read(BytesOfDocument(name));
    if (auto* text = std::get_if<rich_text::Document>(&result)) return std::move(*text);
    ADD_FAILURE() << name << " does not open";
    return {};
}

} // namespace selvane
