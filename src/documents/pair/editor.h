#pragma once

#include "documents/pair/colour_selector_state.h"
#include "documents/pair/insertion_record.h"
#include "documents/pair/side.h"
#include "language/macro_record.h"
#include "platform/platform.h"
#include "shell/menus.h"
#include "shell/mum.h"
#include "shell/operations.h"
#include "shell/shared.h"

#include <array>
#include <cstdint>
#include <deque>
#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <vector>

namespace tarvex {

/// Image numbers of the tabs.
namespace tabImage {
constexpr int none = 0;
constexpr int macroProtected = 6;
constexpr int selected = 9;
} // namespace tabImage

/// The frame with the macro list, left of the panes.
struct FrameMacros {
    Property<bool> Visible = false;
    Property<Placement> Place;
    Property<tarvex::MousePointer> MousePointer = tarvex::MousePointer::Default;
    std::optional<std::int16_t> WidthBeforeDrag; ///< in pixels; while the edge is dragged
    ComboBox Combo1;                             ///< the headings
    std::deque<CheckListBox> List1{1};           ///< 0: every macro; k: those under heading k
    Signal<> List1Changed;                       ///< a list was loaded or unloaded
    TextBox Filter;                              ///< only macros that hold its text are shown
    Property<bool> FilterVisible = false;
    std::array<Button, 13> Command1; ///< slash modifiers and DLY
};

/// What the window shows of a caret.
struct NotedCaret {
    int tab = 0;
    std::int64_t start = 0;
    std::int64_t length = 0;
    std::int64_t line = 0; ///< from 0
    Colour colour = 0;
    bool operator==(const NotedCaret&) const = default;
};

/// A piece of a pane's text, from 0.
struct FlashedText {
    std::int64_t start;
    std::int64_t length;
};

/// State of the document window: the pair of files, their panes, tabs and views. What is done with it stands in units
/// of its own that are given the Editor they work on.
struct Editor {
    Editor(Platform& thePlatform, Shared& theShared, Mum& theMum, Menus& theMenus, Operations& theOperations);
    Editor(const Editor&) = delete;
    Editor& operator=(const Editor&) = delete;

    Platform& platform;
    Shared& shared;
    Mum& mum;
    Menus& menus;
    Operations& operations;

    MacroRecord macros;
    InsertionRecord insertion;
    std::shared_ptr<FormatTable> formats;
    Side joystick;
    Side macro;
    Pane& JoystickText; ///< the documents' panes by the names of their controls
    Pane& MacroText;
    Pane TempRichTextBox; ///< hidden; texts on their way to and from files
    Pane CompareRTF;      ///< hidden; the plain file beside its coloured shadow

    Property<bool> Visible = false;
    Property<int> ScaleWidth = 0; ///< inside size, pixels; the view reports it and runs Form_Resize
    Property<int> ScaleHeight = 0;
    tarvex::TabStrip TabStrip1{2};
    Property<Placement> TabStrip1Place;
    tarvex::FrameMacros FrameMacros;
    tarvex::ColourSelector ColourSelector;
    Timer Timer1{60000};       ///< minutes of the automatic save
    Timer TimerBlinkLine{100}; ///< line highlight
    Timer TimerJournal{15000}; ///< runs while a journal isn't on the disk yet
    Timer TimerColour{300};    ///< runs while a statement that was just written waits for its colours
    Property<int> Zoom = 100;  ///< of both panes, per cent
    Signal<Side&> Jumped;      ///< a command brought a place of the document into sight: its selection

    std::optional<NotedCaret> Noted;   ///< by noteCaret; nothing when another line number was shown since
    int TabImage = tabImage::selected; ///< of the macro file's tab while it is selected
    std::string OpeningPath;           ///< what OpenPreviouslySavedFiles hands to the open commands
    std::string OpeningName;
    std::int16_t OpeningWithoutAsking = 0;
    std::vector<std::string> OpeningRemarks; ///< sentences on the files opened last, for the end of the status text
    std::int16_t ExitInProgress = 0;
    int BlinkStep = 0;                       ///< of the line highlight
    int BlinkTab = 1;                        ///< of the pane whose line flashes
    std::optional<FlashedText> Flash;        ///< what flashes instead of the caret's line; the caret then stays
    std::int64_t HighlightLength = 0;        ///< characters of the line highlighted
    int AutoSaveMinutes = 0;                 ///< since the last automatic save
    std::uint64_t LastJournal = 0;           ///< number of the newest journal; 0: not looked for yet
    bool JournalFailureShown = false;        ///< the user knows that journals can't be written
    std::set<std::uint64_t> DamagedJournals; ///< numbers of those that can be read in part; they are kept aside

    /// The document of the selected tab.
    Side& selected() { return TabStrip1.SelectedItem == 1 ? joystick : macro; }
    Side& other(const Side& side) { return side.tab == 1 ? macro : joystick; }
    std::string tabCaption(const Side& side) { return TabStrip1.Tabs(side.tab).Caption.get(); }
    void status(const std::string& text) { mum.StatusBar.Panels(panel::progress).Text = text; }
};

} // namespace tarvex
