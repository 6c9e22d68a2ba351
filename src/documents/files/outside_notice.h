#pragma once

#include "documents/files/outside_change.h"
#include "platform/file_watch.h"

#include <functional>
#include <optional>
#include <vector>

namespace tarvex {

/// The strip above the pane of a document that says what another program did to its file.
struct OutsideNotice {
    explicit OutsideNotice(Side& theSide) : side(theSide) {}
    OutsideNotice(const OutsideNotice&) = delete;
    OutsideNotice& operator=(const OutsideNotice&) = delete;

    Side& side;
    Property<bool> Visible = false;
    Label Text;
    Button Reload;
    Button Differences;
    Button Keep;
    std::optional<FileNews> KeptAgainst; ///< the user has seen this, and keeps the text of the pane
};

/// Both strips. They follow the files as soon as there is a watch, and each time the window comes to the front.
struct OutsideNotices {
    explicit OutsideNotices(Editor& theEditor) : editor(theEditor), joystick(editor.joystick), macro(editor.macro) {}

    Editor& editor;
    OutsideNotice joystick;
    OutsideNotice macro;
    FileWatch* watch = nullptr;            ///< none: only what the window's activation notices
    std::function<void(Side&)> colour;     ///< gives a document's text its colours, its caret and undo levels untouched
    std::vector<Connection> connections{}; ///< of what the strips follow
};

/// Gives the buttons their handlers, and follows what is opened and saved; after the operations of the lists were
/// assigned.
void wireOutsideNotices(OutsideNotices& notices);
/// The watch outlives the notices' editor.
void useFileWatch(OutsideNotices& notices, FileWatch& watch);
/// Looks at both files, and shows or hides the strips; or reloads, where the user wants that without a question.
void lookForOutsideChanges(OutsideNotices& notices);

} // namespace tarvex
