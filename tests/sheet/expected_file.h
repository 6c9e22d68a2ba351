#pragma once

#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>

namespace tarvex {

inline std::filesystem::path testData(const std::string& name)
{
    return std::filesystem::path(TARVEX_SOURCE_DIRECTORY "/tests/data") / name;
}

inline std::string contentsOf(const std::filesystem::path& path)
{
    std::ostringstream text;
    text << std::ifstream(path, std::ios::binary).rdbuf();
    return text.str();
}

/// The file has this text. With TARVEX_UPDATE_SHEETS in the environment it is written instead; read the difference
/// before committing it.
inline void expectFile(const std::filesystem::path& path, const std::string& text)
{
    if (std::getenv("TARVEX_UPDATE_SHEETS") != nullptr) std::ofstream(path, std::ios::binary) << text;
    EXPECT_EQ(text, contentsOf(path)) << path;
}

} // namespace tarvex
