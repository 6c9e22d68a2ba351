#include "wizards/composer_places.h"

#include "composer/composer.h"

namespace tarvex {

namespace {

constexpr std::size_t portToggle = 7; ///< index in ROTARY
constexpr std::size_t lineEndButton = 0;

/// The Composer writes a statement from its menus, with the line end, and gets out of the way.
void writeStatement(InsertOptions& composer)
{
    composer.SSTab1.Tab = composerPage::hardware;
    composer.ROTARY[portToggle].Value = 1;
    composer.mnuPort[0].Click();
    composer.mnuTrig[0].Click();
    composer.Command7[lineEndButton].Click();
    composer.Command6.Click();
}

} // namespace

JoystickWiz::Composer composerPlaces(InsertOptions& composer)
{
    return {.UseStatements =
                [&composer] {
                    showComposerPage(composer, composerPage::setUp);
                    composer.Command1[0].SetFocus();
                },
            .Statements = [&composer] { writeStatement(composer); },
            .Rate = [&composer] { showComposerRate(composer, "80"); },
            .MainTab = [&composer] { composer.SSTab1.Tab = composerPage::hardware; }};
}

} // namespace tarvex
