#include "documents/text/rtf/rtf.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <sstream>

namespace tarvex {
namespace {

std::string fileText(const std::filesystem::path& path)
{
    std::ostringstream text;
    text << std::ifstream(path, std::ios::binary).rdbuf();
    return text.str();
}

/// What the line of a source is to look like, without its marks. The sources of the pages are ASCII.
std::string shownLine(std::string line)
{
    constexpr std::string_view example = "    ";
    for (const std::string_view mark : {std::string_view("= "), std::string_view("== "), example})
        if (line.starts_with(mark)) return line.substr(mark.size());
    std::erase(line, '*');
    return line.starts_with("- ") ? "\x95 " + line.substr(2) : line;
}

std::string shownText(const std::filesystem::path& source)
{
    std::istringstream lines(fileText(source));
    std::string text;
    for (std::string line; std::getline(lines, line);) text += (text.empty() ? "" : "\r\n") + shownLine(line);
    return text;
}

std::vector<std::filesystem::path> pages()
{
    std::vector<std::filesystem::path> found;
    for (const auto& entry : std::filesystem::directory_iterator(TARVEX_SOURCE_DIRECTORY "/resources/info"))
        if (entry.path().extension() == ".rtf") found.push_back(entry.path());
    std::ranges::sort(found);
    return found;
}

bool hasBold(const RichText& text)
{
    return std::ranges::any_of(text.runs(), [&](const FormatRun& run) { return (*text.formats())[run.format].bold; });
}

} // namespace

TEST(InfoPages, AreReadAsTheirSourcesSay)
{
    constexpr std::size_t pagesOfTheInformationWindow = 16;
    ASSERT_EQ(pages().size(), pagesOfTheInformationWindow);
    for (const auto& page : pages()) {
        const RichText text = readRtf(fileText(page), std::make_shared<FormatTable>());
        auto source = page;
        EXPECT_EQ(text.text(), shownText(source.replace_extension(".txt"))) << page;
        EXPECT_TRUE(hasBold(text)) << page;
    }
}

} // namespace tarvex
