// What another program does to the files, and the user to the strips that say so.

#include "program/walk/walk.h"

#include "documents/files/outside_notice.h"
#include "shell/session_extras.h"

#include <algorithm>
#include <gtest/gtest.h>

namespace tarvex {

namespace {

bool isInUndo(const Side& side, const std::string& text)
{
    return std::ranges::any_of(side.Undo.Levels,
                               [&](const UndoHistory::Level& level) { return level.Text.text() == text; });
}

bool isOnDisk(const Walk& walk, const std::string& text)
{
    for (const char* folder : {walkFolder, "c:\\tarvex\\Backup\\", "c:\\tarvex\\Recover\\"}) {
        const std::string directory(folder, std::string_view(folder).size() - 1);
        if (!walk.files.directoryExists(directory)) continue;
        for (const std::string& name : walk.files.list(directory))
            if (walk.files.contents(folder + name) == text) return true;
    }
    return false;
}

/// Whatever a strip does, the text that was there is still somewhere.
void checkNothingLost(Walk& walk, const Texts& before)
{
    for (const auto& [side, text] :
         {std::pair{&walk.editor().joystick, before.joystick}, std::pair{&walk.editor().macro, before.macro}}) {
        EXPECT_TRUE(isInUndo(*side, text) || isOnDisk(walk, text)) << "the " << side->kind << " text is lost:\n"
                                                                   << text;
    }
}

void answer(Walk& walk, OutsideNotice& notice)
{
    if (!notice.Visible) return;
    ++walk.stripsAnswered;
    switch (below(walk.random, 3)) {
    case 0:
        if (notice.Reload.Visible) notice.Reload.Click();
        break;
    case 1:
        notice.Keep.Click();
        break;
    default: // later
        break;
    }
}

} // namespace

void removeOutside(Walk& walk)
{
    const Side& side = walk.anySide();
    if (!walk.saved.contains(side.FilePath)) return;
    walk.files.removeFile(side.FilePath);
    walk.saved.erase(side.FilePath);
    walk.outside.erase(side.FilePath);
    walk.removed.insert(side.FilePath);
}

void answerStrips(Walk& walk)
{
    const Texts before = textsOf(walk);
    OutsideNotices& notices = walk.program().outsideNotices;
    if (below(walk.random, 4) == 0)
        walk.program().shared.extras.set(extraKey::reloadUnmodified, below(walk.random, 2) == 0);
    lookForOutsideChanges(notices);
    for (OutsideNotice* notice : {&notices.joystick, &notices.macro}) answer(walk, *notice);
    checkNothingLost(walk, before);
}

} // namespace tarvex
