#include "lists/enter_game_name.h"

#include "documents/files/file_dialogues.h"
#include "platform/dos_path.h"
#include "platform/windows1252.h"

#include <string_view>

namespace tarvex {

namespace {

constexpr std::string_view commandHelp =
    "Make sure you have any command line switches in here if they're required. You can get this information by right "
    "clicking on the shortcut to the game and selecting properties. For example, this is what mine is for Quake 2 .... "
    "D:\\Quake2\\quake2.exe +set cddir J:\\install\\data +set basedir d:\\QUAKE2";

constexpr std::string_view directoryHelp =
    "The working directory is usually the directory the game's exe file is in. You can get this information by right "
    "clicking on the shortcut to the game and selecting properties. Copy the string from Start in to this text box.";

/// A handler of the dialogue: what fails in it is reported under its name.
template <typename Work> void handle(EnterGameName& form, std::string_view tag, Work work)
{
    const Steps step(form.editor.shared.errors, tag);
    step(work);
}

void selectAllOnFocus(EnterGameName& form, TextBox& box, std::string_view tag)
{
    box.GotFocus = [&form, &box, tag] { handle(form, tag, [&] { box.SelectAll(); }); };
}

std::string joystickFilter(const std::string& extension)
{
    return "Joystick file (*." + extension + ")|*." + extension + "|All files (*.*)|*.*";
}

void lookForGame(EnterGameName& form)
{
    const auto path =
        form.editor.platform.dialogues.openFile({.title = {},
                                                 .filter = "Executables (*.exe)|*.exe|All files (*.*)|*.*",
                                                 .directory = directoryOf(form.Text2.Text.get())});
    if (!path) return;
    form.Text2.Text = lowerUtf8(*path);
    if (form.Text3.Text.get().starts_with("eg")) form.Text3.Text = directoryOf(form.Text2.Text.get()); // the sample
}

void lookForJoystickFile(EnterGameName& form)
{
    Editor& editor = form.editor;
    const auto path = askForFileToOpen(editor, {.title = {},
                                                .filter = joystickFilter(editor.shared.settings.JoystickExtension),
                                                .directory = dialogueFolder(editor, editor.joystick)});
    if (path) form.Text4.Text = *path;
}

} // namespace

EnterGameName::EnterGameName(Editor& theEditor, Game& theCurrent) : editor(theEditor), current(theCurrent)
{
    Form.Caption = "Enter game details - click on the help buttons for information";
    for (int index : {0, 1}) {
        Button& browse = Command1.at(static_cast<std::size_t>(index));
        browse.Caption = "Browse";
        browse.handler = [this, index] { GAME_Command1_Click(*this, index); };
    }
    Command2.Caption = "Select";
    Command2.handler = [this] { GAME_Command2_Click(*this); };
    Command3.Caption = "OK";
    Command3.handler = [this] { GAME_Command3_Click(*this); };
    Command4.Caption = "Cancel";
    Command4.handler = [this] { GAME_Command4_Click(*this); };
    Command5.Caption = "?";
    Command6.Caption = "?";
    Command5.handler = [this] { GAME_Command5_Click(*this); };
    Command6.handler = [this] { GAME_Command6_Click(*this); };
    selectAllOnFocus(*this, Text1, "GAME Text1_GotFocus");
    selectAllOnFocus(*this, Text2, "GAME Text2_GotFocus");
    selectAllOnFocus(*this, Text3, "GAME Text3_GotFocus");
    selectAllOnFocus(*this, Text4, "GAME Text4_GotFocus");
    m_textChanged = Text1.Text.changed.connect([this] { GAME_Text1_Change(*this); });
}

void GAME_Form_Load(EnterGameName& form)
{
    handle(form, "GAME Form_Load", [&] {
        form.Text1.Text = "eg. F22 ADF";
        form.Text2.Text = "eg. d:\\f22\\program\\_f22.exe";
        form.Text3.Text = "eg. d:\\f22\\program";
        form.Text4.Text = "eg. c:\\tm\\f22\\f22progs\\f22adf.f22";
    });
}

void GAME_Command1_Click(EnterGameName& form, int index)
{
    handle(form, "GAME Command1_Click", [&] { index == 0 ? lookForGame(form) : lookForJoystickFile(form); });
}

void GAME_Command2_Click(EnterGameName& form)
{
    handle(form, "GAME Command2_Click", [&] {
        const auto folder =
            form.editor.platform.dialogues.chooseFolder("Select your game's working directory", form.Text3.Text);
        if (folder) form.Text3.Text = *folder;
    });
}

void GAME_Command3_Click(EnterGameName& form)
{
    handle(form, "GAME Command3_Click", [&] {
        form.okPressed = 1;
        form.current = {form.Text1.Text.get(), form.Text2.Text.get(), form.Text3.Text.get(), form.Text4.Text.get()};
        form.Form.Visible = false;
    });
}

void GAME_Command4_Click(EnterGameName& form)
{
    handle(form, "GAME Command4_Click", [&] { form.Form.Visible = false; });
}

void GAME_Command5_Click(EnterGameName& form)
{
    handle(form, "GAME Command5_Click", [&] {
        form.editor.platform.dialogues.show(
            {.title = "Important information ... ", .text = std::string(commandHelp), .icon = BoxIcon::Information});
    });
}

void GAME_Command6_Click(EnterGameName& form)
{
    handle(form, "GAME Command6_Click", [&] {
        form.editor.platform.dialogues.show({.title = "About the working directory ... ",
                                             .text = std::string(directoryHelp),
                                             .icon = BoxIcon::Information});
    });
}

void GAME_Text1_Change(EnterGameName& form)
{
    handle(form, "GAME Text1_Change", [&] { form.Command3.Enabled = !form.Text1.Text.get().empty(); });
}

} // namespace tarvex
