#include "documents/window/colour_selector.h"

#include "documents/editing/undo.h"
#include "documents/pair/document_status.h"
#include "documents/pair/noted_caret.h"
#include "documents/pair/tabs.h"
#include "documents/window/toolbar.h"
#include "platform/key_codes.h"
#include "support/test_program.h"

#include <gtest/gtest.h>

namespace tarvex {
namespace {

/// The picture on the toolbar, and the colours below it.
struct ColourSelectorTest : testing::Test {
    TestProgram t;
    Editor& editor = t.editor();
    Pane& pane() { return editor.JoystickText; }
};

TEST_F(ColourSelectorTest, ThePictureShowsTheColourAtTheCaret)
{
    Property<Colour>& picture = t.program().mum.Picture1;
    t.typeJoystick("red blue");
    pane().setSelStart(0);
    pane().setSelLength(3);
    pane().setSelColor(255);
    pane().setSelStart(2);
    noteCaret(editor, editor.joystick);
    EXPECT_EQ(picture.get(), 255);
    editor.TabStrip1.Select(2);
    EXPECT_EQ(picture.get(), 0);
    editor.TabStrip1.Select(1);
    EXPECT_EQ(picture.get(), 255);
    pane().setSelStart(8);
    Text_GotFocus(editor, editor.joystick);
    EXPECT_EQ(picture.get(), 0);
}

TEST_F(ColourSelectorTest, AClickOnThePictureOpensTheColoursBelowIt)
{
    t.program().mum.Picture1Place = {300, 60, 30, 28};
    t.settings().RemStatements = 1;
    t.settings().MiscellaneousColour = 2;
    t.settings().RAWColour = 3;
    t.settings().SlashColour = 4;
    t.settings().BTNColour = 5;
    editor.ColourSelector.target = ColourTarget::Template;
    Picture1_Click(editor);
    const ColourSelector& selector = editor.ColourSelector;
    EXPECT_TRUE(selector.form.Visible);
    EXPECT_EQ(selector.target, ColourTarget::Pane);
    EXPECT_EQ(selector.form.Left.get(), 300 * twipsPerPixel);
    EXPECT_EQ(selector.form.Top.get(), (60 + 28) * twipsPerPixel + 250);
    const char* captions[] = {"Black", "Rem", "Misc", "Raw, Dly", "Slash", "Buttons"};
    for (std::size_t i = 0; i < ColourSelector::count; ++i) {
        EXPECT_EQ(selector.Command1[i].Caption.get(), captions[i]);
        EXPECT_EQ(selector.Label1[i].get(), static_cast<Colour>(i)) << captions[i];
    }
}

TEST_F(ColourSelectorTest, AColourByHandPaintsTheSelectionAndDoesntCountAsAnEdit)
{
    t.typeJoystick("BTN S1 a");
    editor.joystick.Changed = changed::saved;
    UpdateSavedIcon(editor);
    t.settings().BTNColour = 0xFF0000;
    pane().setSelStart(0);
    pane().setSelLength(3);
    int focus = 0;
    const Connection listener = pane().focusWanted.connect([&] { ++focus; });
    Picture1_Click(editor);
    editor.ColourSelector.Command1[5].Click();
    EXPECT_EQ(pane().formatAt(0).colour, 0xFF0000);
    EXPECT_EQ(pane().formatAt(3).colour, 0);
    EXPECT_EQ(t.program().mum.Picture1.get(), 0xFF0000);
    EXPECT_EQ(editor.joystick.Changed, changed::saved);
    EXPECT_EQ(t.program().mum.StatusBar.Panels(2).Picture.get(), 2);
    EXPECT_EQ(focus, 1);
    EXPECT_FALSE(editor.ColourSelector.form.Visible);
}

TEST_F(ColourSelectorTest, AColourByHandHasAnUndoLevelOfItsOwn)
{
    t.pressKeys(pane(), "BTN");
    const std::size_t levels = editor.joystick.Undo.Levels.size();
    pane().setSelStart(0);
    pane().setSelLength(3);
    t.settings().SlashColour = 255;
    Picture1_Click(editor);
    editor.ColourSelector.Command1[4].Click();
    EXPECT_EQ(editor.joystick.Undo.Levels.size(), levels + 1);
    mnuEditUndo_Click(editor);
    EXPECT_EQ(pane().Text(), "BTN");
    EXPECT_EQ(pane().formatAt(0).colour, 0);
    mnuEditRedo_Click(editor);
    EXPECT_EQ(pane().formatAt(0).colour, 255);
}

TEST_F(ColourSelectorTest, WithoutASelectionTheColourIsForWhatIsTypedNext)
{
    t.typeJoystick("BTN ");
    editor.joystick.Changed = changed::saved;
    t.settings().RAWColour = 0x8000;
    Picture1_Click(editor);
    editor.ColourSelector.Command1[3].Click();
    EXPECT_EQ(editor.joystick.Changed, changed::saved);
    t.typeJoystick("S1");
    EXPECT_EQ(pane().formatAt(3).colour, 0);
    EXPECT_EQ(pane().formatAt(4).colour, 0x8000);
    EXPECT_EQ(editor.joystick.Changed, changed::modified) << "typing is an edit";
}

TEST_F(ColourSelectorTest, AProtectedPaneKeepsItsColours)
{
    t.typeMacro("Fire = a");
    editor.TabStrip1.Select(2);
    t.menus().mnuPreferencesProtectMacroFile.Click();
    t.menus().mnuEditSelectAll.Click();
    t.settings().BTNColour = 255;
    Picture1_Click(editor);
    editor.ColourSelector.Command1[5].Click();
    EXPECT_EQ(editor.MacroText.formatAt(0).colour, 0);
    EXPECT_EQ(t.program().mum.Picture1.get(), 0);
}

TEST_F(ColourSelectorTest, WithTheOtherTargetTheTemplateEditorsTextTakesTheColour)
{
    Colour given = -1;
    editor.ColourSelector.colourTemplate = [&](Colour colour) { given = colour; };
    t.typeJoystick("x");
    pane().setSelStart(0);
    pane().setSelLength(1);
    t.settings().RemStatements = 77;
    showColourSelector(editor, ColourTarget::Template);
    editor.ColourSelector.Command1[1].Click();
    EXPECT_EQ(given, 77);
    EXPECT_EQ(pane().formatAt(0).colour, 0);
}

TEST_F(ColourSelectorTest, EscAndTheLossOfTheFocusCloseTheColours)
{
    Picture1_Click(editor);
    ColourSelector_KeyDown(editor, 65);
    EXPECT_TRUE(editor.ColourSelector.form.Visible);
    ColourSelector_KeyDown(editor, 27);
    EXPECT_FALSE(editor.ColourSelector.form.Visible);
    Picture1_Click(editor);
    ColourSelector_LostFocus(editor);
    EXPECT_FALSE(editor.ColourSelector.form.Visible);
    Picture1_Click(editor);
    t.program().operations.UnloadForm("ColourSelector");
    EXPECT_FALSE(editor.ColourSelector.form.Visible);
}

TEST_F(ColourSelectorTest, AsksForThePlaceOfThePictureAndClosesByEscapeAlone)
{
    Mum& mum = t.program().mum;
    const Connection asked = mum.Picture1PlaceWanted.connect([&] { mum.Picture1Place = {10, 20, 30, 40}; });
    auto& form = editor.ColourSelector.form;
    Picture1_Click(editor);
    EXPECT_EQ(form.Left.get(), 10 * twipsPerPixel);
    EXPECT_EQ(form.Top.get(), 60 * twipsPerPixel + 250);
    EXPECT_FALSE(form.KeyDown('A', 0));
    EXPECT_TRUE(form.Visible);
    EXPECT_TRUE(form.KeyDown(keyCode::escape, 0));
    EXPECT_FALSE(form.Visible);
}

} // namespace
} // namespace tarvex
