#include "shell/operations.h"

#include "shell/appearance.h"
#include "shell/menus.h"
#include "support/test_program.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <set>

namespace tarvex {
namespace {

using Names = std::set<std::string>;

/// Commands whose windows don't exist yet; the views grey them.
const Names commandsToCome = {};

/// Operations that nobody carries out yet.
const Names operationsToCome = {};

void collect(const std::vector<MenuEntry>& entries, Names& without)
{
    for (const MenuEntry& entry : entries) {
        if (entry.array != nullptr) {
            if (!(*entry.array)[0].handler) without.insert(entry.array->Name);
        } else if (!entry.entries.empty()) {
            collect(entry.entries, without);
        } else if (entry.item != nullptr && entry.item->Caption != "-" && !entry.item->handler) {
            without.insert(entry.item->Name);
        }
    }
}

TEST(Wiring, EveryCommandOfTheMenusHasAHandlerOrIsListedAsToCome)
{
    TestProgram t;
    Menus& menus = t.menus();
    // The program's main() builds it beside the program.
    const Appearance appearance(t.files, t.program().platform.programDirectory, menus);
    Names without;
    for (const auto& entries :
         {menuBar(menus), mumMenuBar(menus), popUpMenu(menus, menus.mnuRHMouse), popUpMenu(menus, menus.mnuRHList)})
        collect(entries, without);
    EXPECT_THAT(without, testing::ContainerEq(commandsToCome));
}

TEST(Wiring, EveryOperationIsCarriedOutByAUnitOrIsListedAsToCome)
{
    TestProgram t;
    // Naming all members keeps the list complete: another member doesn't compile here.
    const auto& [ShowEditor, QueryUnloadEditor, UnloadEditor, UnloadForm, ReleaseGradient, PaintGradient,
                 UpdateTooltips, ShowExtraButtons, UpdateToolBarOpenSaveTooltips, UpdateEditorTooltips,
                 DamnFontWasChanged, UpdateCCPButtons, HelpKeyword, HelpTopic, ShowTour, ShowInfoPage,
                 ApplyColourHighlighting, ApplyMacroColourHighlighting, ClearAllForNewMacroFile,
                 GetEachLineFromMacroFile, ExtractMacrosAndTitles, ClearMacroTicks, IdentifyMacrosUsed,
                 IdentifyMacrosIfAny, CaretLeftLine, GetPreviousFiles, GetFavourites, GetGames, GetCustomApps,
                 UpdateRecentJFMenuList, UpdateRecentMFMenuList, NoteLatestJoystickFile, NoteLatestMacroFile] =
        t.program().operations;
    Names without;
    const auto check = [&](const char* name, const auto& operation) {
        if (!operation) without.insert(name);
    };
    check("ShowEditor", ShowEditor);
    check("QueryUnloadEditor", QueryUnloadEditor);
    check("UnloadEditor", UnloadEditor);
    check("UnloadForm", UnloadForm);
    check("ReleaseGradient", ReleaseGradient);
    check("PaintGradient", PaintGradient);
    check("UpdateTooltips", UpdateTooltips);
    check("ShowExtraButtons", ShowExtraButtons);
    check("UpdateToolBarOpenSaveTooltips", UpdateToolBarOpenSaveTooltips);
    check("UpdateEditorTooltips", UpdateEditorTooltips);
    check("DamnFontWasChanged", DamnFontWasChanged);
    check("UpdateCCPButtons", UpdateCCPButtons);
    check("HelpKeyword", HelpKeyword);
    check("HelpTopic", HelpTopic);
    check("ShowTour", ShowTour);
    check("ShowInfoPage", ShowInfoPage);
    check("ApplyColourHighlighting", ApplyColourHighlighting);
    check("ApplyMacroColourHighlighting", ApplyMacroColourHighlighting);
    check("ClearAllForNewMacroFile", ClearAllForNewMacroFile);
    check("GetEachLineFromMacroFile", GetEachLineFromMacroFile);
    check("ExtractMacrosAndTitles", ExtractMacrosAndTitles);
    check("ClearMacroTicks", ClearMacroTicks);
    check("IdentifyMacrosUsed", IdentifyMacrosUsed);
    check("IdentifyMacrosIfAny", IdentifyMacrosIfAny);
    check("CaretLeftLine", CaretLeftLine);
    check("GetPreviousFiles", GetPreviousFiles);
    check("GetFavourites", GetFavourites);
    check("GetGames", GetGames);
    check("GetCustomApps", GetCustomApps);
    check("UpdateRecentJFMenuList", UpdateRecentJFMenuList);
    check("UpdateRecentMFMenuList", UpdateRecentMFMenuList);
    check("NoteLatestJoystickFile", NoteLatestJoystickFile);
    check("NoteLatestMacroFile", NoteLatestMacroFile);
    EXPECT_THAT(without, testing::ContainerEq(operationsToCome));
}

} // namespace
} // namespace tarvex
