#include "platform/posix/wine_registry.h"

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

TEST(WineRegistry, AMissingFileHasNothing) { EXPECT_FALSE(readWineRegistry("/nowhere/system.reg", msinfo, "PATH")); }

} // namespace
} // namespace tarvex
