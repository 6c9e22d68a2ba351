#include "documents/files/file_questions.h"

namespace tarvex {

namespace {

constexpr std::string_view afterYes = "Hmmm...let me think...";
constexpr std::string_view joystickNotSaved =
    " wasn't saved, so I won't continue to load up a new joystick file just in "
    "case you pressed the cancel button by accident.";
constexpr std::string_view macroNotSaved =
    " wasn't saved, so I won't continue to load up a new macro file just in case "
    "you pressed the cancel button by accident.";

std::string_view notSavedText(const Side& side) { return byKind(side, joystickNotSaved, macroNotSaved); }

} // namespace

SaveQuestion questionBeforeNew(const Side& side)
{
    return {" has changed and isn't saved. Do you want to save it first?", notSavedText(side), afterYes};
}

SaveQuestion questionBeforeOpen(const Side& side)
{
    return {side.tab == 1
                ? " has changed and isn't saved. Do you want to save it before opening a different joystick file?"
                : " has changed and isn't saved. Do you want to save it before opening a different macro file?",
            notSavedText(side), afterYes};
}

SaveQuestion questionBeforeExit()
{
    return {" has changed and isn't saved. Do you want to save it before exiting?",
            " wasn't saved. Exit program aborted.", "Ooops!"};
}

bool mayLeave(Editor& editor, Side& side, const SaveQuestion& question)
{
    if (side.Changed != changed::modified) return true;
    const std::string name = side.FileName;
    const Answer answer = editor.platform.dialogues.show({.title = " Save " + name + " now?",
                                                          .text = name + std::string(question.text),
                                                          .icon = BoxIcon::Question,
                                                          .buttons = BoxButtons::YesNoCancel});
    if (answer == Answer::No) return true;
    if (answer != Answer::Yes) return false;

    editor.TabStrip1.Select(side.tab);
    editor.menus.mnuFileSave.Click();
    if (side.Changed != changed::modified) return true;
    editor.platform.dialogues.show({.title = std::string(question.notSavedTitle),
                                    .text = name + std::string(question.notSaved),
                                    .icon = BoxIcon::Exclamation});
    return false;
}

} // namespace tarvex
