#pragma once

#include "composer/controls/assigned_controls.h"
#include "documents/pair/editor.h"
#include "documents/text/pane.h"
#include "platform/toggle_label.h"
#include "shell/hardware/pictures.h"
#include "shell/menus.h"
#include "shell/tool_form.h"

#include <array>
#include <deque>
#include <optional>
#include <vector>

namespace tarvex {

/// A button that keeps a value between its clicks.
struct RotaryButton : Button {
    Property<int> Value = 0;
};

/// Pages of SSTab1.
namespace composerPage {
constexpr int hardware = 0;
constexpr int range = 1;
constexpr int antenna = 2;
constexpr int throttle = 3;
constexpr int digitalAxes = 4;
constexpr int setUp = 5;
constexpr int flags = 6;
} // namespace composerPage

/// Pages of SSTabHardware.
namespace hardwarePage {
constexpr int f22AndF16 = 0;
constexpr int otherSticks = 1;
constexpr int tqs = 2;
constexpr int wcs = 3;
} // namespace hardwarePage

/// Pages of SSTab7.
namespace listPage {
constexpr int macros = 0;
constexpr int templates = 1;
} // namespace listPage

/// Indexes of Text1, the values that are written by hand.
namespace valueField {
constexpr std::size_t blanks = 0;
constexpr std::size_t rate = 1;
constexpr std::size_t mdef = 2;
constexpr std::size_t nullchr = 3;
} // namespace valueField

/// Indexes of ToggleButton1, the axes that can be digital.
namespace axisToggle {
constexpr std::size_t jsx = 0;
constexpr std::size_t jsy = 1;
constexpr std::size_t rddr = 2;
} // namespace axisToggle

/// The fields of the statements, in the order in which their values stand in them.
struct StatementFields {
    std::array<TextBox, 3> Rng1;  ///< steps, step up, step down
    std::array<TextBox, 4> Rng2;  ///< steps, full up, in between, full down
    std::array<TextBox, 4> Ant1;  ///< steps, step up, centre, step down
    std::array<TextBox, 6> Ant2;  ///< steps, full up, full up to centre, centre, centre to full down, full down
    std::array<TextBox, 4> Axis1; ///< as Ant1
    std::array<TextBox, 6> Axis2; ///< as Ant2
    std::array<TextBox, 3> Axis3; ///< left, centre, right
    std::array<TextBox, 8> Thr1;  ///< both steps, throttle up and down, AB entry, exit, up, down
    std::array<TextBox, 4> Thr2;  ///< both steps, both characters
    std::array<TextBox, 4> Text1; ///< see valueField
    TextBox DLYText;              ///< of DLY()
    TextBox TextRPT;              ///< of RPT()
    TextBox RemTextBox;           ///< a remark
};

/// The Flag tab: 48 logical statements in fields of their own, and what builds terms in them.
struct FlagTab {
    static constexpr std::size_t count = 48;
    static constexpr std::size_t perPage = 8;

    explicit FlagTab(const std::shared_ptr<FormatTable>& formats);

    std::array<OptionButton, count> OptionFlag; ///< which definition is worked on
    std::deque<Pane> RichTexFlag;               ///< their texts, bytes; BackColor shows the chosen one
    std::array<ListBox, 6> FlagList;
    std::array<TextBox, 6> TxtFlag;
    std::array<Button, 12> CMDFlagSlash;
    std::array<Button, 9> CMDCompare;
    std::array<Button, 10> CMDFlagInsert;
    std::array<Button, 3> Command13; ///< insert all, insert current, analyse the joystick file
    std::int16_t CurrentFlag = 0;    ///< index of the chosen definition
};

/// The mice of USE MTYPE.
struct MouseTypes {
    std::array<OptionButton, 3> Option1;
    std::array<ListBox, 3> MouseList;
    std::array<Label, 3> Label5; ///< what works as the left, middle and right button
    Button Command9;
};

/// A copy of the document window's macro lists.
struct MacroTab {
    ComboBox Combo1; ///< the headings
    std::deque<CheckListBox> List1{1};
    Signal<> List1Changed; ///< a list was loaded or unloaded
    CheckBox CheckCopyTicks;
    CheckBox CheckAddCR;
    std::size_t ListClicked = 0; ///< index in List1 of the list that was clicked last

    /// What was selected in the joystick pane before a click showed where a macro is used.
    struct Selection {
        std::int64_t start;
        std::int64_t length;
        bool operator==(const Selection&) const = default;
    };
    std::optional<Selection> BeforeClick;
    Selection AfterClick{};
};

struct TemplateTab {
    explicit TemplateTab(const std::shared_ptr<FormatTable>& formats) : TemplatesPreview(formats) {}

    ListBox Templates;
    Pane TemplatesPreview;
    std::array<Button, 3> Command11; ///< into the joystick file, into the macro file, refresh
    std::string Folder;              ///< DOS path with "\" at the end
};

/// The Composer: statements built by clicks on pictures of the controllers, and from forms, lists and templates. It
/// stays open beside the document window and inserts into the pane of the selected tab.
struct InsertOptions {
    explicit InsertOptions(Editor& theEditor);
    InsertOptions(const InsertOptions&) = delete;
    InsertOptions& operator=(const InsertOptions&) = delete;

    Editor& editor;
    ToolForm form;
    std::int16_t ComposerOpen = 0; ///< 1 while the window is loaded

    SSTab SSTab1{"Controllers", "RNG", "ANT", "THR", "Digital axes", "Set up", "Flags"};
    SSTab SSTabHardware{"F-22 Pro", "PFCS", "TQS", "WCS"};
    SSTab SSTab7{"Macros", "Templates"};
    SSTab SSTabFlags{"X1 - X8", "X9 - X16", "X17 - X24", "X25 - X32", "X33 - X40", "X41 - X48"};

    std::array<Button, 33> BTN; ///< those at 9 and 10 aren't there
    std::array<Button, 5> HAT;
    Button TRIG;
    std::array<RotaryButton, 10> ROTARY;
    std::array<Button, 12> SlashButton;
    Property<PictureOf> WcsPicture = PictureOf::Wcs; ///< labelled as LabelWCS found it

    MenuItem mnuHat{"mnuHat"}; ///< pops up only, as do the roots below
    MenuArray MnuHatPostion{"MnuHatPostion", {"H1U", "H1D", "H1L", "H1R", "H1M"}};
    MenuItem mnuHatDivider{"mnuHatDivider", "-"};
    MenuArray MnuHatCornerPostion{"MnuHatCornerPostion", {"H1UL", "H1DL", "H1UR", "H1DR"}};
    MenuItem mnuTrigger{"mnuTrigger"};
    MenuArray mnuTrig{"mnuTrig", {"TG1", "TG2"}};
    MenuItem mnuPortAll{"mnuPortAll", "Port"};
    MenuArray mnuPort{"mnuPort", {"PortB1 IS", "PortB2 IS", "PortB3 IS", "PortB4 IS"}};
    MenuItem mnuRHList{"mnuRHList"};
    MenuItem mnuRHListInsert{"mnuRHListInsert", "&Insert into joystick file"};
    MenuItem mnuFindInJoyFile{"mnuFindInJoyFile", "&Find in joystick file"};
    MenuItem mnuRHListEdit{"mnuRHListEdit", "&Edit in macro file"};
    MenuItem mnuTemplates{"mnuTemplates"};
    MenuItem mnuInsertInto{"mnuInsertInto", "&Insert into"};
    MenuItem mnuJoystick{"mnuJoystick", "&Joystick file"};
    MenuItem mnuMacrofile{"mnuMacrofile", "&Macro file"};
    MenuItem mnuQuickie{"mnuQuickie", "Tip: double click inserts into the file on show"};

    StatementFields fields;
    std::array<ToggleLabel, 3> ToggleButton1; ///< see axisToggle; one is held
    std::array<Button, 9> Command1;           ///< the USE statements and their kin
    std::array<Button, 3> Command2;           ///< RATE, MDEF, NULLCHR
    Button Command3;                          ///< RNG 1
    Button Command4;                          ///< RNG 2
    std::array<Button, 4> Command8;           ///< ANT 1, and the forms 1 to 3 of the axis whose toggle is held
    Button InsertANT;                         ///< ANT 2
    std::array<Button, 2> Command12;          ///< THR 1, THR 2
    std::array<Button, 2> Command15;          ///< no throttle, no rudders
    std::array<Button, 2> DlyRptButtons;
    Button CommandREM;
    Button Command10;               ///< empties the remark
    std::array<Button, 2> Command7; ///< carriage return, blanks
    std::array<Button, 3> Command5; ///< Safein, the preferences, insertion point
    Button Command6;                ///< hides the window
    Button Command14;               ///< says what hiding is good for
    CheckBox CheckAlwaysInsert;
    std::array<CheckBox, 5> CheckMultiAddCR; ///< one setting, on each page that inserts lines
    CheckBox Check2FocusThang;
    CheckBox Check1;
    CheckBox HighlightStatement;
    CheckBox CheckShowAssigned;

    FlagTab flags;
    MouseTypes mice;
    MacroTab macros;
    TemplateTab templates;

    std::int16_t InsertNeeded = 0; ///< FindButton: 1 when the statement isn't there yet

    /// What the joystick file has on the controls of the pictures; empty while the user hides it.
    std::vector<AssignedControl> Assigned;
    Signal<> AssignedChanged;
    Timer TimerAssigned{150}; ///< runs from an edit to the renewal of Assigned

    Placement
        PopUpPlace; ///< where a menu of a picture opens, on the screen in pixels; the view sets it with each click

    std::vector<MenuEntry> hatMenu();
    std::vector<MenuEntry> triggerMenu();
    std::vector<MenuEntry> portMenu();
    std::vector<MenuEntry> macroMenu();
    std::vector<MenuEntry> templateMenu();

    std::vector<Connection> connections;
};

/// How wide the window is at first, in twips: as it was drawn, or less where it would leave the text beside it little
/// of the screen.
float composerWidth(float screenWidth);

/// The control with this id of a picture, e.g. "BTN(0)" or "TRIG"; null for an id that there isn't.
Button* controlButton(InsertOptions& window, std::string_view id);

} // namespace tarvex
