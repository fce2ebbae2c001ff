// The documents of the help folder, read for a test.
#pragma once

#include "rich_text/reader.h"

#include <fstream>
#include <gtest/gtest.h>
#include <sstream>
#include <string>
#include <utility>

namespace selvane {

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
