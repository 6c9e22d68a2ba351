#include "preferences/scheme_in_force.h"
#include "preferences_fixture.h"

#include <gtest/gtest.h>

namespace tarvex {
namespace {

/// The pages of colours and fonts, with their samples.
struct ColoursPageTest : testing::Test, PreferencesProgram {};

TEST_F(ColoursPageTest, TheSamplesArePaintedInTheColoursOfTheSettings)
{
    inPreferences([this] {
        const Pane& sample = preferences().coloursPage.ExampleJoystickText;
        const auto colourAt = [&](const char* text) { return sample.formatAt(sample.Text().find(text)).colour; };
        EXPECT_EQ(colourAt("Rem ---"), settings().RemStatements);
        EXPECT_EQ(colourAt("BTN T4"), settings().BTNColour);
        EXPECT_EQ(colourAt("/P RAW"), settings().SlashColour);
        EXPECT_EQ(colourAt("RAW (#5B)"), settings().RAWColour);
        EXPECT_EQ(sample.BackColor.get(), settings().BackgroundColour);
        EXPECT_EQ(preferences().coloursPage.ExampleMacroText.BackColor.get(), settings().MacroBackgroundColour);
    });
}

TEST_F(ColoursPageTest, TheSamplesHaveSomethingOfEachColour)
{
    const ColoursPage& page = preferences().coloursPage;
    inPreferences([&] {
        EXPECT_EQ(page.ExampleJoystickText.Text(), "Rem -----------------------------------------\r\n"
                                                   "Rem         My joystick file\r\n"
                                                   "Rem -----------------------------------------\r\n"
                                                   "USE TQS\r\n"
                                                   "MDEF Longbow2\r\n"
                                                   "ANT 1 5 SensorZoom- SensorZoom+ N\r\n"
                                                   "BTN T4 /P RAW (#5B) /R RAW (#F0 #5B)    rem tail right\r\n"
                                                   "BTN H1U  /T /N FrontNoCockpit  /T /N Front\r\n"
                                                   "Rate 20");
        EXPECT_EQ(page.ExampleMacroText.Text(), "Rem -----------------------------------------\r\n"
                                                "Rem         My macro file\r\n"
                                                "Rem -----------------------------------------\r\n"
                                                "For_Recovery = 4 DLY(60) 4 DLY(60) 3\r\n"
                                                "Yes = y\r\n"
                                                "No = n\r\n"
                                                "Chaff = RAW (#E0 #70 #E0 #F0 #70)\r\n"
                                                "Acm_Rgt2 = /P KP6 /R F1\r\n"
                                                "Trim_Lft = ALT ,");
        EXPECT_EQ(page.List1.Items.get(),
                  (std::vector<std::string>{"Background: Joystick", "Text: Joystick", "Buttons", "Slash modifiers",
                                            "Raw statements", "Miscellaneous", "Rem statements", "Background: Macro",
                                            "Text: Macro"}));
    });
}

TEST_F(ColoursPageTest, TheTipOnFontsExplainsWhatTheyAreGoodFor)
{
    inPreferences([this] { preferences().coloursPage.Command17.Click(); });
    EXPECT_EQ(lastBox().title, "Lining up slash modifiers");
    EXPECT_EQ(lastBox().text, "If you want all your slash modifiers to line up as they do in Notepad, choose a fixed "
                              "pitch font, like Courier New.");
}

TEST_F(ColoursPageTest, AChosenColourIsStoredShownAndWritten)
{
    static constexpr Colour green = 0x00AA00;
    inPreferences([this] {
        ColoursPage& page = preferences().coloursPage;
        dialogues.colours.emplace_back(green);
        page.List1.ListIndex = 3;
        page.List1.Click();
        EXPECT_EQ(settings().SlashColour, green) << "at once";
        const Pane& sample = page.ExampleJoystickText;
        EXPECT_EQ(sample.formatAt(sample.Text().find("/P RAW")).colour, green);
        EXPECT_EQ(sample.formatAt(sample.Text().find("BTN T4")).colour, settings().BTNColour);
    });
    EXPECT_EQ(ini("Colours", "SlashColour"), std::to_string(green));
}

TEST_F(ColoursPageTest, EachColourIsThatOfItsItemInBothSamples)
{
    using Key = Colour Settings::*;
    const std::tuple<int, Key, const char*, const char*> classes[] = {
        {2, &Settings::BTNColour, "BTN T4", nullptr},
        {3, &Settings::SlashColour, "/P RAW", "/P KP6"},
        {4, &Settings::RAWColour, "RAW (#5B)", "RAW (#E0"},
        {5, &Settings::MiscellaneousColour, "USE TQS", nullptr},
        {6, &Settings::RemStatements, "Rem ---", "Rem ---"}};
    inPreferences([&] {
        ColoursPage& page = preferences().coloursPage;
        for (const auto& [index, key, ofJoystick, ofMacro] : classes) {
            const Colour colour = 0x100 + index;
            ApplyColour(page, index, colour);
            EXPECT_EQ(settings().*key, colour);
            const auto colourAt = [](const Pane& sample, const char* text) {
                return sample.formatAt(sample.Text().find(text)).colour;
            };
            EXPECT_EQ(colourAt(page.ExampleJoystickText, ofJoystick), colour) << index;
            if (ofMacro != nullptr) {
                EXPECT_EQ(colourAt(page.ExampleMacroText, ofMacro), colour) << index;
            }
        }
        ApplyColour(page, 0, 0x111111);
        ApplyColour(page, 7, 0x777777);
        EXPECT_EQ(page.ExampleJoystickText.BackColor.get(), 0x111111);
        EXPECT_EQ(page.ExampleMacroText.BackColor.get(), 0x777777);
        ApplyColour(page, 1, 0x222222);
        EXPECT_EQ(program().shared.DefaultTextColour, 0x222222);
        const Pane& sample = page.ExampleJoystickText;
        EXPECT_EQ(sample.formatAt(sample.Text().find("Longbow2")).colour, 0x222222);
        EXPECT_EQ(sample.formatAt(sample.Text().find("BTN T4")).colour, 0x102) << "painted again";
    });
}

TEST_F(ColoursPageTest, TheColourThatAnItemHasAlreadyIsNoChange)
{
    inPreferences([this] {
        ColoursPage& page = preferences().coloursPage;
        ApplyColour(page, 2, settings().BTNColour);
        ApplyColour(page, 1, program().shared.DefaultTextColour);
        EXPECT_FALSE(page.coloursChanged);
        ApplyColour(page, 2, settings().BTNColour + 1);
        EXPECT_TRUE(page.coloursChanged);
        loadColours(page);
        EXPECT_FALSE(page.coloursChanged);
        EXPECT_EQ(page.List1.ListIndex, -1);
    });
}

TEST_F(ColoursPageTest, TheTextOfMacroFilesStaysBlack)
{
    inPreferences([this] {
        ColoursPage& page = preferences().coloursPage;
        ApplyColour(page, 1, 0x222222);
        dialogues.colours.emplace_back(0x333333);
        page.List1.ListIndex = 8;
        page.List1.Click();
        EXPECT_EQ(program().shared.DefaultTextColour, 0x222222) << "that of joystick files is another one";
        const Pane& sample = page.ExampleMacroText;
        EXPECT_EQ(sample.formatAt(sample.Text().find("For_Recovery")).colour, 0);
    });
}

TEST_F(ColoursPageTest, TheDialogueOfColoursStartsWithThatOfTheItem)
{
    inPreferences([this] {
        ColoursPage& page = preferences().coloursPage;
        ApplyColour(page, 1, 0x222222);
        ApplyColour(page, 0, 0x111111);
        EXPECT_EQ(program().shared.DefaultTextColour, 0x222222) << "a background is no text";
        const auto shown = [&](int row) {
            dialogues.colours.emplace_back(std::nullopt);
            page.List1.ListIndex = row;
            page.List1.Click();
            return dialogues.coloursShown.back();
        };
        EXPECT_EQ(shown(0), 0x111111);
        EXPECT_EQ(shown(1), 0x222222);
        EXPECT_EQ(shown(2), settings().BTNColour);
        EXPECT_EQ(shown(8), 0);
        EXPECT_EQ(page.SSTab2.Tab.get(), 1);
        loadColours(page);
        EXPECT_EQ(page.List1.ListIndex, -1);
    });
}

TEST_F(ColoursPageTest, TheSamplesHaveTheFontOfTheSettingsAndCannotBeWrittenIn)
{
    settings().TextFontName = "Courier New";
    for (const std::int16_t applied : {1, 0}) {
        settings().ApplyColoursOnFileOpen = applied;
        inPreferences([&] {
            const ColoursPage& page = preferences().coloursPage;
            EXPECT_EQ(page.CheckBox1.Value.get(), applied == 1);
            for (const Pane* sample : {&page.ExampleJoystickText, &page.ExampleMacroText}) {
                EXPECT_EQ(sample->Font().name, "Courier New");
                EXPECT_TRUE(sample->Locked);
            }
            const Pane& macros = page.ExampleMacroText;
            EXPECT_EQ(macros.formatAt(macros.Text().find("/P KP6")).colour, settings().SlashColour);
        });
    }
}

TEST_F(ColoursPageTest, ACancelledFontChangesNothing)
{
    inPreferences([this] {
        dialogues.fonts.emplace_back(std::nullopt);
        preferences().coloursPage.Command18.Click();
        const FontChoice& shown = dialogues.fontsShown.back();
        EXPECT_EQ(shown.name, settings().TextFontName);
        EXPECT_EQ(shown.size, settings().TextFontSize);
        EXPECT_EQ(shown.bold, settings().TextFontBold == 1);
        EXPECT_EQ(program().shared.FontChanged, 0);
    });
}

TEST_F(ColoursPageTest, TheTickOfTheColoursIsInForceAtOnce)
{
    inPreferences([this] {
        CheckBox& box = preferences().coloursPage.CheckBox1;
        for (const bool on : {false, true}) {
            box.Value = on;
            box.Click();
            EXPECT_EQ(settings().ApplyColoursOnFileOpen, on ? 1 : 0);
        }
    });
}

TEST_F(ColoursPageTest, ACancelledColourChangesNothing)
{
    const Colour before = settings().RAWColour;
    inPreferences([this] {
        dialogues.colours.emplace_back(std::nullopt);
        preferences().coloursPage.List1.ListIndex = 4;
        preferences().coloursPage.List1.Click();
        EXPECT_EQ(dialogues.coloursShown.back(), settings().RAWColour);
    });
    EXPECT_EQ(settings().RAWColour, before);
}

TEST_F(ColoursPageTest, AMacroItemBringsTheMacroSampleAndItsTextStaysBlack)
{
    inPreferences([this] {
        ColoursPage& page = preferences().coloursPage;
        dialogues.colours.emplace_back(0x0000FF);
        page.List1.ListIndex = 8;
        page.List1.Click();
        EXPECT_EQ(page.SSTab2.Tab, 1);
        EXPECT_EQ(dialogues.coloursShown.back(), 0);
        const Pane& sample = page.ExampleMacroText;
        EXPECT_EQ(sample.formatAt(sample.Text().find("Yes")).colour, 0);
    });
}

TEST_F(ColoursPageTest, NewColoursAreOnBothPanesWhenTheDialogueCloses)
{
    typeJoystick("BTN S1 a");
    menus().mnuViewColourJoystick.Click();
    inPreferences([this] {
        ColoursPage& page = preferences().coloursPage;
        ApplyColour(page, 0, 0x00FFFF);
        ApplyColour(page, 2, 0x123456);
        ApplyColour(page, 7, 0xFFFF00);
    });
    EXPECT_EQ(editor().JoystickText.BackColor.get(), 0x00FFFF);
    EXPECT_EQ(editor().MacroText.BackColor.get(), 0xFFFF00);
    EXPECT_EQ(editor().JoystickText.formatAt(0).colour, 0x123456);
}

TEST_F(ColoursPageTest, ANewFontIsOnBothPanesWithTheColoursKept)
{
    typeJoystick("BTN S1 a");
    menus().mnuViewColourJoystick.Click();
    const Colour before = editor().JoystickText.formatAt(0).colour;
    const std::int16_t state = editor().joystick.Changed;
    inPreferences([this] {
        preferences().coloursPage.CheckFixedPitch.Value = true;
        dialogues.fonts.emplace_back(FontChoice{"Courier New", 11.7F, true});
        preferences().coloursPage.Command18.Click();
        EXPECT_TRUE(dialogues.fixedPitchWanted);
        EXPECT_EQ(program().shared.FontChanged, 1);
    });
    EXPECT_EQ(settings().TextFontSize, 11) << "cut to a whole number";
    EXPECT_EQ(ini("Colours", "TextFontName"), "Courier New");
    EXPECT_EQ(editor().JoystickText.Font(), (PaneFont{"Courier New", 11, true}));
    EXPECT_EQ(editor().JoystickText.formatAt(0).colour, before);
    EXPECT_EQ(editor().joystick.Changed, state) << "a font is no edit";
    EXPECT_EQ(program().shared.FontChanged, 0);
}

TEST_F(ColoursPageTest, AFontIsBoldOrNotAsItWasChosen)
{
    for (const bool bold : {true, false}) {
        inPreferences([this, bold] {
            dialogues.fonts.emplace_back(FontChoice{"Courier New", 12, bold});
            preferences().coloursPage.Command18.Click();
        });
        EXPECT_EQ(settings().TextFontBold, bold ? 1 : 0);
        EXPECT_EQ(settings().TextFontSize, 12);
    }
}

TEST_F(ColoursPageTest, ANewFontLeavesTheSelectionOfBothPanes)
{
    typeJoystick("BTN S1 a");
    typeMacro("a = b");
    Pane* const panes[] = {&editor().JoystickText, &editor().MacroText};
    for (Pane* pane : panes) {
        pane->setSelStart(1);
        pane->setSelLength(3);
    }
    settings().TextFontSize = 14;
    settings().TextFontBold = 1;
    program().operations.DamnFontWasChanged();
    for (const Pane* pane : panes) {
        EXPECT_EQ(pane->SelStart(), 1);
        EXPECT_EQ(pane->SelLength(), 3);
        EXPECT_TRUE(pane->formatAt(0).bold);
    }
    settings().TextFontBold = 0;
    program().operations.DamnFontWasChanged();
    for (const Pane* pane : panes) EXPECT_FALSE(pane->formatAt(0).bold);
}

TEST_F(ColoursPageTest, NewColoursPaintTheTextsThatThereAreWhereOpenedFilesAreColoured)
{
    int painted = 0;
    editor().joystick.ApplyColours = [&] { ++painted; };
    editor().macro.ApplyColours = [&] { painted += 10; };
    const auto timesPainted = [&] {
        painted = 0;
        showColourScheme(editor());
        return painted;
    };
    settings().ApplyColoursOnFileOpen = 1;
    EXPECT_EQ(timesPainted(), 0) << "no text";
    typeJoystick("x");
    EXPECT_EQ(timesPainted(), 1);
    typeMacro("y");
    EXPECT_EQ(timesPainted(), 11);
    settings().ApplyColoursOnFileOpen = 0;
    EXPECT_EQ(timesPainted(), 0);
}

} // namespace
} // namespace tarvex
