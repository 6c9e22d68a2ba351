#include "documents/window/preferences_page.h"

#include "support/test_program.h"

#include <gtest/gtest.h>

namespace tarvex {
namespace {

TEST(PreferencesPage, EachCommandAsksForItsPage)
{
    TestProgram t;
    Menus& menus = t.menus();
    std::int16_t page = -1;
    menus.mnuPreferencesEdit.handler = [&] { page = t.program().shared.PreferencesPage; };
    const std::pair<const MenuItem*, std::int16_t> commands[] = {
        {&menus.mnuViewEditColours, 1}, {&menus.mnuAppsEdit, 2}, {&menus.mnuFavsEdit, 3}, {&menus.mnuGamesEdit, 4}};
    for (const auto& [item, wanted] : commands) {
        item->Click();
        EXPECT_EQ(page, wanted) << item->Name;
    }
}

} // namespace
} // namespace tarvex
