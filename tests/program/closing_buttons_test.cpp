#include "support/test_program.h"

#include <gtest/gtest.h>

namespace tarvex {
namespace {

struct ClosingButton {
    const char* window;
    Form& form;
    const std::function<void()>& press;
};

/// A modal window that its buttons leave open has no way on.
TEST(ClosingButtons, TakeTheirWindowsDown)
{
    TestProgram t;
    Program& p = t.program();
    EnterGameName& game = p.lists.games.form;
    EnterFavouritename& favourite = p.lists.favourites.form;
    game.Text1.Text = "Jumpship";
    favourite.Text1.Text = "Mig";
    SelectPictureForm& picture = p.imageViewer.select;
    Preferences& preferences = p.preferences;
    ImportForm& importing = preferences.importForm;
    AboutWindow& about = p.help.frmAbout;
    const ClosingButton buttons[] = {
        {"game, OK", game.Form, game.Command3.handler},
        {"game, Cancel", game.Form, game.Command4.handler},
        {"favourite, OK", favourite.Form, favourite.Command1.handler},
        {"favourite, Cancel", favourite.Form, favourite.Command2.handler},
        {"picture, OK", picture.Form, picture.Command1.handler},
        {"picture, Cancel", picture.Form, picture.Command2.handler},
        {"preferences, OK", preferences.Form, preferences.Command3.handler},
        {"preferences, frame", preferences.Form, preferences.Form.Close},
        {"import, Import", importing.Form, importing.ImportButton.handler},
        {"import, Cancel", importing.Form, importing.CancelButton.handler},
        {"folder of the files, OK", preferences.filesHome.Form, preferences.filesHome.Ok.handler},
        {"about, OK", about.Form, about.cmdOK.handler},
        {"differences, Close", p.differences.Form, p.differences.Close.handler},
    };
    for (const ClosingButton& button : buttons) {
        button.form.Visible = true;
        button.press();
        EXPECT_FALSE(button.form.Visible) << button.window;
    }
}

} // namespace
} // namespace tarvex
