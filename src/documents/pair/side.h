#pragma once

#include "documents/pair/undo_history.h"
#include "documents/recovery/journal_record.h"
#include "documents/text/line_mark.h"
#include "documents/text/match_marks.h"
#include "documents/text/pane.h"
#include "shell/operations.h"

#include <cstdint>
#include <string>
#include <string_view>

namespace tarvex {

/// Values of Side::Changed. Whether there is something to save is always a test for `modified`.
namespace changed {
constexpr std::int16_t noText = -1; ///< new document, not saved
constexpr std::int16_t saved = 0;
constexpr std::int16_t modified = 1;
} // namespace changed

/// One of the two documents that the program edits at all times: its data, its pane, and what is different for the
/// other one. A value with two names beside it is known by the first for the joystick file, by the second for the macro
/// file.
struct Side {
    int tab;                ///< 1 joystick, 2 macro
    std::string_view kind;  ///< "joystick" or "macro", as the program's texts name it
    Pane pane;              ///< JoystickText, MacroText
    std::string& Extension; ///< the one that new files of the kind get
    Colour& Background;
    Operation<>& ApplyColours;
    Operation<const std::string&>& NoteLatestFile;
    Operation<const std::string&>& UpdateRecentMenuList;

    std::string FilePath = {};              ///< JoystickFilePath, MacroFilePath
    std::string FileName = {};              ///< JoystickFileName, MacroFileName; as shown on the tab
    std::int16_t Changed = changed::noText; ///< JoystickChanged, MacroChanged
    std::int64_t Caret = 0;                 ///< JoystickCaret, MacroCaret; characters; last known caret
    std::int32_t SelectionLength = 0;       ///< JoystickSelectionLength, MacroSelectionLength
    /// JoystickTakeNewLevel, MacroTakeNewLevel. 1: the next change opens an undo level of its own instead of rewriting
    /// the newest.
    std::int16_t TakeNewLevel = 1;
    UndoHistory Undo = {};
    JournalRecord Journal = {};
    LineMark ErrorLine{pane};          ///< the one that the last download complained of
    MatchMarks Matches{pane};          ///< of what is being sought
    Property<bool> ShowsEdited{false}; ///< the document is modified, for its tab
};

/// Of two names the one for the document.
inline std::string_view byKind(const Side& side, std::string_view joystick, std::string_view macro)
{
    return side.tab == 1 ? joystick : macro;
}

} // namespace tarvex
