#include "language/commands/colour_highlighting.h"

#include "documents/files/coloured_shadow.h"
#include "documents/pair/loading.h"
#include "language/base_format.h"
#include "language/commands/side_caret.h"

#include <array>

namespace tarvex {

namespace {

/// The differences between the highlighters of the two documents.
struct Highlighter {
    Side& side;
    std::string_view tag;
    MenuItem& removeColour;
    std::span<const ColourPass> passes;
    bool selectsTabFirst; ///< before the base format is written, not behind it
};

void showWork(Editor& editor, const Side& side)
{
    ProgressBar& bar = editor.mum.ProgressBar1;
    bar.Visible = true;
    bar.Min = 0;
    bar.Max = static_cast<int>(side.pane.TextLength()) + 1;
}

void setBaseFormat(Editor& editor, Side& side)
{
    side.pane.BackColor = side.Background;
    setPaneFont(side.pane, editor.shared.settings);
    writeBaseFormat(side.pane, editor.shared.settings, 0);
    side.pane.Refresh();
    editor.mum.ProgressBar1.Value = 0;
}

/// The carets of both panes and whether their documents are changed: as they were, once the run is over.
class Kept {
public:
    explicit Kept(Editor& editor) : m_of{of(editor.joystick), of(editor.macro)} {}

    void giveBack(const Steps& step)
    {
        for (const OfSide& kept : {m_of[1], m_of[0]}) {
            step([&] { putCaret(*kept.side, kept.caret); });
        }
        for (const OfSide& kept : m_of) kept.side->Changed = kept.changed;
    }

private:
    struct OfSide {
        Side* side;
        std::int64_t caret; ///< all of it: only the running positions of the passes have 16 bits
        std::int16_t changed;
    };
    static OfSide of(Side& side) { return {&side, side.Caret, side.Changed}; }

    std::array<OfSide, 2> m_of;
};

void apply(Editor& editor, const Highlighter& what, const std::function<void(const Hold&)>& held)
{
    const Steps step(editor.shared.errors, what.tag);
    Side& side = what.side;
    if (side.pane.TextLength() == 0) return editor.status(editor.tabCaption(side) + " has no text to highlight.");

    what.removeColour.Click();
    const Loading loading(editor.shared);
    Kept kept(editor);
    editor.status("Applying colour highlighting to " + editor.tabCaption(side) + ". Please wait ...");
    const auto selectTab = [&] { step([&] { editor.TabStrip1.Select(side.tab); }); };
    if (what.selectsTabFirst) selectTab();
    showWork(editor, side);
    step([&] { setBaseFormat(editor, side); });
    if (!what.selectsTabFirst) selectTab();

    float position = 0;
    runPasses({side.pane, editor.shared.settings, position, step, &editor.mum, held}, what.passes);

    kept.giveBack(step);
    side.Undo.Levels[side.Undo.Position - 1].Text = side.pane.TextRTF();
    saveColouredText(editor, side);
    editor.status("Done");
    editor.mum.ProgressBar1.Visible = false;
}

Highlighter joystickHighlighter(Editor& editor)
{
    return {editor.joystick, "ApplyColourHighlighting", editor.menus.mnuRemoveColourJoystick, joystickPasses(), true};
}

Highlighter macroHighlighter(Editor& editor)
{
    return {editor.macro, "ApplyMacroColourHighlighting", editor.menus.mnuRemoveColourMacro, macroPasses(), false};
}

std::string placeOf(const Hold& hold) { return std::string(hold.word) + " in line " + std::to_string(hold.line); }

void applyAndHold(Editor& editor, const Highlighter& what)
{
    apply(editor, what, holdUntilEscape(editor.platform, editor.mum));
}

void applyAndRemark(Editor& editor, const Highlighter& what)
{
    apply(editor, what, [&](const Hold& hold) {
        if (hold.isFirstOfRun)
            editor.OpeningRemarks.push_back("Colouring " + what.side.FileName + " couldn't get past " + placeOf(hold) +
                                            ".");
    });
}

} // namespace

std::function<void(const Hold&)> holdUntilEscape(Platform& platform, Mum& mum)
{
    return [&platform, &mum](const Hold& hold) {
        if (!hold.isFirstOfRun) return;
        Property<std::string>& status = mum.StatusBar.Panels(panel::progress).Text;
        const std::string before = status;
        status = before + " held by " + placeOf(hold) + ". Press Esc to go on, Ctrl+S to save.";
        platform.desktop.waitForEscape();
        status = before;
    };
}

void ApplyColourHighlighting(Editor& editor) { applyAndHold(editor, joystickHighlighter(editor)); }
void ApplyMacroColourHighlighting(Editor& editor) { applyAndHold(editor, macroHighlighter(editor)); }
void colourOpenedJoystickFile(Editor& editor) { applyAndRemark(editor, joystickHighlighter(editor)); }
void colourOpenedMacroFile(Editor& editor) { applyAndRemark(editor, macroHighlighter(editor)); }

void mnuRHMColour_Click(Editor& editor)
{
    const bool joystick = editor.selected().tab == editor.joystick.tab;
    (joystick ? editor.menus.mnuViewColourJoystick : editor.menus.mnuViewColourMacro).Click();
}

void mnuViewApplyColourBothFiles_Click(Editor& editor)
{
    const int tab = editor.TabStrip1.SelectedItem;
    editor.menus.mnuViewColourJoystick.Click();
    editor.menus.mnuViewColourMacro.Click();
    if (editor.TabStrip1.SelectedItem != tab) editor.TabStrip1.Select(tab);
}

} // namespace tarvex
