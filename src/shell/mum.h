#pragma once

#include "platform/controls.h"
#include "shell/tool_windows.h"

namespace tarvex {

enum class MousePointer { Default = 0, SizeWestEast = 9, Hourglass = 11, ArrowQuestion = 14 };

/// Panels of the status bar by what they show.
namespace panel {
constexpr int progress = 1;
constexpr int savedState = 2;
constexpr int line = 3;
constexpr int capsLock = 4;
constexpr int insert = 5;
constexpr int numLock = 6;
constexpr int time = 7;
constexpr int macroFile = 8;
} // namespace panel

/// The frame window's state.
struct Mum {
    static constexpr int toolbarButtons = 47;

    /// The frame as it was drawn, before the program has come up.
    Mum();

    Form form; ///< position and size in twips
    ToolBar Toolbar1{toolbarButtons};
    tarvex::StatusBar StatusBar{8};
    ProgressBar ProgressBar1;
    /// Colour of the text at the caret, shown over toolbar button 29.
    Property<Colour> Picture1 = 0;
    Placement Picture1Place; ///< on the screen, in pixels; set by the view when it is wanted
    Signal<> Picture1PlaceWanted;
    Property<bool> Gradient = false; ///< the area behind the document window is painted in steps of a colour
    ToolWindows toolWindows;
    Property<tarvex::MousePointer> MousePointer = tarvex::MousePointer::Default;
};

// These read the status bar back: some texts stay until a certain other command replaces them.

/// Panel 1 has the result of a download; it stays until another command's message replaces it.
bool showsCompileResult(const Mum& mum);
/// Panel 1 has the definition of a macro, which holds "=".
bool showsDefinition(const Mum& mum);

/// Image on panel 2 for a document's changed state, -1 to 1.
constexpr int savedStatePicture(int changedState) { return changedState + 2; }
/// Panel 2 says that the document of the selected tab is modified.
bool showsUnsavedChanges(const Mum& mum);

} // namespace tarvex
