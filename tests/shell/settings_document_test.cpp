#include "support/settings_document.h"

#include "support/temporary_directory.h"

#include <cstdlib>
#include <gtest/gtest.h>

namespace tarvex {
namespace {

TEST(SettingsDocument, ListsWhatTheTableSays)
{
    const std::string path = TARVEX_SOURCE_DIRECTORY "/docs/settings.md";
    if (std::getenv("TARVEX_UPDATE_DOCS")) std::ofstream(path, std::ios::binary) << settingsDocument();
    EXPECT_EQ(bytesOf(path), settingsDocument());
}

} // namespace
} // namespace tarvex
