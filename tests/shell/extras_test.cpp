#include "shell/extras.h"

#include "support/memory_files.h"

#include <gtest/gtest.h>

#include <set>
#include <stdexcept>
#include <string>
#include <vector>

namespace tarvex {
namespace {

struct ExtrasTest : testing::Test {
    MemoryFiles files;
    ProfileFile ini{files, "c:\\Platform.ini"};
    Extras extras{ini};
};

TEST_F(ExtrasTest, WithoutAFileEachTickIsAsItsRowSays)
{
    for (const ExtraTick& tick : extraTicks()) {
        EXPECT_EQ(extras.on(tick.key), tick.standard) << tick.key;
        extras.set(tick.key, tick.standard);
    }
    EXPECT_FALSE(files.fileExists("c:\\Platform.ini")) << "nothing to keep";
}

TEST_F(ExtrasTest, AChangedTickIsKept)
{
    for (const ExtraTick& tick : extraTicks()) {
        extras.set(tick.key, !tick.standard);
        EXPECT_EQ(extras.on(tick.key), !tick.standard) << tick.key;
        EXPECT_EQ(ini.readString("Extras", tick.key, ""), tick.standard ? "0" : "1");
    }
}

TEST_F(ExtrasTest, AKeyWithoutARowIsAnError) { EXPECT_THROW(extras.on("NoSuchKey"), std::out_of_range); }

TEST_F(ExtrasTest, KeysAreUnique)
{
    std::set<std::string_view> keys;
    for (const ExtraTick& tick : extraTicks()) EXPECT_TRUE(keys.insert(tick.key).second) << tick.key;
}

TEST_F(ExtrasTest, AnotherValueIsAnnouncedAndTheSameIsNot)
{
    std::vector<std::string> announced;
    const auto listening = extras.changed.connect([&](std::string_view key) { announced.emplace_back(key); });
    const ExtraTick& tick = extraTicks().front();
    extras.set(tick.key, tick.standard);
    EXPECT_TRUE(announced.empty());
    extras.set(tick.key, !tick.standard);
    EXPECT_EQ(announced, std::vector<std::string>{std::string(tick.key)});
}

} // namespace
} // namespace tarvex
