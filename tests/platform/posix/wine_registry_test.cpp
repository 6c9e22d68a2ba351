#include "platform/posix/wine_registry.h"

#include "support/temporary_directory.h"

#include <gtest/gtest.h>

namespace tarvex {
namespace {

const std::string file = "WINE REGISTRY Version 2\n;; All keys relative to \\\\Machine\n\n"
                         "[Software\\\\Microsoft\\\\Shared Tools] 1699999999\n#time=1da1\n\"PATH\"=\"elsewhere\"\n\n"
                         "[Software\\\\Microsoft\\\\Shared Tools\\\\MSINFO] 1699999999\n#time=1da1\n"
                         "\"Count\"=dword:00000002\n"
                         "\"PATH\"=\"C:\\\\Program Files\\\\Inf\\x00f6\\\\m.exe\"\n"
                         "\"Expand\"=str(2):\"%SystemRoot%\\\\x\"\n\"Quote\\\"d\"=\"a\\\"b\"\r\n\"Bad\"=\"no end\n\n"
                         "[Software\\\\Other]\n\"PATH\"=\"other\"\n";

std::string text(std::string_view key, std::string_view name)
{
    return wineRegistryText(file, key, name).value_or("(none)");
}

constexpr std::string_view msinfo = "SOFTWARE\\Microsoft\\Shared Tools\\MSINFO";

TEST(WineRegistry, ATextIsFoundWhateverTheLetterCaseAndWithItsEscapesResolved)
{
    EXPECT_EQ(text(msinfo, "path"), "C:\\Program Files\\Inf\xC3\xB6\\m.exe");
    EXPECT_EQ(text(msinfo, "Expand"), "%SystemRoot%\\x");
    EXPECT_EQ(text(msinfo, "quote\"d"), "a\"b");
}

TEST(WineRegistry, WhatIsMissingOrNoTextIsNothing)
{
    EXPECT_EQ(text(msinfo, "Count"), "(none)");
    EXPECT_EQ(text(msinfo, "Bad"), "(none)");
    EXPECT_EQ(text(msinfo, "nothing"), "(none)");
    EXPECT_EQ(text("SOFTWARE\\Nowhere", "PATH"), "(none)");
    EXPECT_EQ(text("SOFTWARE\\Microsoft", "PATH"), "(none)") << "a key above isn't the key";
}

TEST(WineRegistry, DamagedFilesHaveNothing)
{
    for (const char* damaged : {"", "[", "[Software\\\\X", "[a]\n\"", "[a]\n\"PATH", "[a]\n\"PATH\"",
                                "[a]\n\"PATH\"=", "[a]\n\"PATH\"=str(", "[a]\n\"PATH\"=\"\\", "[a]\n\"PATH\"=\"\\x"})
        EXPECT_FALSE(wineRegistryText(damaged, "a", "PATH")) << damaged;
}

/// The text that a value of these characters stands for.
std::string valueOf(const std::string& written)
{
    return wineRegistryText("[a]\n\"v\"=\"" + written + "\"\n", "a", "v").value_or("(none)");
}

TEST(WineRegistry, CharactersAreWrittenByUpToFourHexadecimalDigits)
{
    EXPECT_EQ(valueOf("\\x41\\x7f"), "A\x7F");
    EXPECT_EQ(valueOf("\\x80 \\x7ff"), "\xC2\x80 \xDF\xBF");
    EXPECT_EQ(valueOf("\\x800 \\x20aC \\xFFFf"), "\xE0\xA0\x80 \xE2\x82\xAC \xEF\xBF\xBF");
    EXPECT_EQ(valueOf("\\x20ac5"), "\xE2\x82\xAC"
                                   "5");
    EXPECT_EQ(valueOf("\\x09\\x90\\xaf\\xFA"), "\t\xC2\x90\xC2\xAF\xC3\xBA");
    for (const char sign : std::string("/:@G`g"))
        EXPECT_EQ(valueOf("\\x4" + std::string(1, sign)), std::string("\x04") + sign);
}

TEST(WineRegistry, OtherEscapedCharactersStandForThemselves)
{
    EXPECT_EQ(valueOf("\\n\\\\ \\\"end\\]"), "n\\ \"end]");
    EXPECT_EQ(valueOf(""), "");
    EXPECT_EQ(wineRegistryText("[a\\]b]\n\"v\"=\"1\"", "a]b", "v"), "1");
}

TEST(WineRegistry, OnlyLettersAreTheSameInBothCases)
{
    EXPECT_EQ(wineRegistryText("[aAzZ]\n\"AaZz\"=\"1\"", "AaZz", "aAzZ"), "1");
    for (const auto& [one, other] :
         {std::pair("@", "`"), std::pair("[", "{"), std::pair("a", "b"), std::pair("a", "aa")})
        EXPECT_FALSE(wineRegistryText(std::string("[k]\n\"") + one + "\"=\"1\"", "k", other)) << one;
}

TEST(WineRegistry, AValueStandsInItsKeyAndNotBehindIt)
{
    EXPECT_EQ(wineRegistryText("[a]\r\n\"v\"=\"1\"\r\n", "a", "v"), "1");
    EXPECT_EQ(wineRegistryText("\"v\"=\"0\"\n[b]\n\"v\"=\"1\"\n[a]\n\"w\"=\"2\"\n\"v\"=\"3\"", "a", "v"), "3");
    EXPECT_FALSE(wineRegistryText("[a]\n\"w\"=\"1\"\n[b]\n\"v\"=\"2\"\n[a]\n\"v\"=\"3\"", "a", "v"));
    EXPECT_FALSE(wineRegistryText("[a]\nv=\"1\"\n", "a", "v"));
    EXPECT_FALSE(wineRegistryText("[a]\n\"v\":\"1\"\n", "a", "v"));
    EXPECT_FALSE(wineRegistryText("[a]\n\"v\"=hex:31\n", "a", "v"));
}

TEST(WineRegistry, IsReadFromItsFile)
{
    const TemporaryDirectory disk;
    const std::string path = disk.put("system.reg", file);
    EXPECT_EQ(readWineRegistry(path, msinfo, "Expand"), "%SystemRoot%\\x");
    EXPECT_EQ(readWineRegistry(path, "Software\\Other", "PATH"), "other");
}

TEST(WineRegistry, AMissingFileHasNothing) { EXPECT_FALSE(readWineRegistry("/nowhere/system.reg", msinfo, "PATH")); }

} // namespace
} // namespace tarvex
