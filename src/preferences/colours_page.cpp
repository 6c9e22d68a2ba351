#include "preferences/colours_page.h"

#include "language/base_format.h"
#include "language/colour_passes.h"
#include "language/pass_runner.h"

#include <algorithm>
#include <array>
#include <string_view>
#include <vector>

namespace tarvex {

namespace {

constexpr int joystickSample = 0;
constexpr int macroSample = 1;

constexpr std::string_view joystickText = "Rem -----------------------------------------\r\n"
                                          "Rem         My joystick file\r\n"
                                          "Rem -----------------------------------------\r\n"
                                          "USE TQS\r\n"
                                          "MDEF Longbow2\r\n"
                                          "ANT 1 5 SensorZoom- SensorZoom+ N\r\n"
                                          "BTN T4 /P RAW (#5B) /R RAW (#F0 #5B)    rem tail right\r\n"
                                          "BTN H1U  /T /N FrontNoCockpit  /T /N Front\r\n"
                                          "Rate 20";
constexpr std::string_view macroText = "Rem -----------------------------------------\r\n"
                                       "Rem         My macro file\r\n"
                                       "Rem -----------------------------------------\r\n"
                                       "For_Recovery = 4 DLY(60) 4 DLY(60) 3\r\n"
                                       "Yes = y\r\n"
                                       "No = n\r\n"
                                       "Chaff = RAW (#E0 #70 #E0 #F0 #70)\r\n"
                                       "Acm_Rgt2 = /P KP6 /R F1\r\n"
                                       "Trim_Lft = ALT ,";

enum class ItemKind { Background, Text, Class };
struct ColourItem {
    const char* caption;
    ItemKind kind;
    Colour Settings::*key; ///< none: no setting keeps it
    int sample;
};
constexpr std::array<ColourItem, 9> items{{
    {"Background: Joystick", ItemKind::Background, &Settings::BackgroundColour, joystickSample},
    {"Text: Joystick", ItemKind::Text, nullptr, joystickSample},
    {"Buttons", ItemKind::Class, &Settings::BTNColour, joystickSample},
    {"Slash modifiers", ItemKind::Class, &Settings::SlashColour, joystickSample},
    {"Raw statements", ItemKind::Class, &Settings::RAWColour, joystickSample},
    {"Miscellaneous", ItemKind::Class, &Settings::MiscellaneousColour, joystickSample},
    {"Rem statements", ItemKind::Class, &Settings::RemStatements, joystickSample},
    {"Background: Macro", ItemKind::Background, &Settings::MacroBackgroundColour, macroSample},
    {"Text: Macro", ItemKind::Text, nullptr, macroSample},
}};

template <typename Work> void handle(ColoursPage& page, std::string_view tag, Work work)
{
    const Steps step(page.editor.shared.errors, tag);
    step(work);
}

void paint(ColoursPage& page, Pane& pane, std::span<const ColourPass> passes)
{
    float position = 0;
    runPasses({pane,
               page.editor.shared.settings,
               position,
               Steps(page.editor.shared.errors, "PREFS ApplyColour"),
               nullptr,
               {}},
              passes);
    pane.setSelStart(0);
}

/// The passes that paint in one colour, from both of the languages' lists.
std::vector<ColourPass> passesOf(std::span<const ColourPass> passes, Colour Settings::*key)
{
    std::vector<ColourPass> wanted;
    std::copy_if(passes.begin(), passes.end(), std::back_inserter(wanted),
                 [key](const ColourPass& pass) { return pass.colour == key; });
    return wanted;
}

Colour presentColour(const ColoursPage& page, const ColourItem& item)
{
    const Shared& shared = page.editor.shared;
    if (item.key != nullptr) return shared.settings.*item.key;
    return item.sample == joystickSample ? shared.DefaultTextColour : 0;
}

void fillSample(ColoursPage& page, Pane& pane, std::string_view text, Colour colour, Colour background)
{
    pane.setText(text);
    writeBaseFormat(pane, page.editor.shared.settings, colour);
    setPaneFont(pane, page.editor.shared.settings);
    pane.BackColor = background;
}

} // namespace

ColoursPage::ColoursPage(Editor& theEditor)
    : editor(theEditor), ExampleJoystickText(theEditor.formats), ExampleMacroText(theEditor.formats)
{
    std::vector<std::string> captions;
    for (const ColourItem& item : items) captions.emplace_back(item.caption);
    List1.Items = captions;
    List1.Click = [this] { PREFS_List1_Click(*this); };
    CheckBox1.Caption = "Apply colour highlighting when opening files";
    CheckBox1.Click = [this] { editor.shared.settings.ApplyColoursOnFileOpen = CheckBox1.Value ? 1 : 0; };
    Command18.Caption = "&Change font";
    Command18.handler = [this] { handle(*this, "PREFS Command18_Click", [&] { DoTheFonts(*this); }); };
    Command17.Caption = "&Tip: fixed pitch fonts";
    Command17.handler = [this] {
        editor.platform.dialogues.show({.title = "Lining up slash modifiers",
                                        .text = "If you want all your slash modifiers to line up as they do in "
                                                "Notepad, choose a fixed pitch font, like Courier New."});
    };
    CheckFixedPitch.Caption = "Fixed pitch fonts only";
    for (Pane* sample : {&ExampleJoystickText, &ExampleMacroText}) sample->Locked = true;
}

void loadColours(ColoursPage& page)
{
    page.coloursChanged = false;
    page.List1.ListIndex = -1;
    page.CheckBox1.Value = page.editor.shared.settings.ApplyColoursOnFileOpen == 1;
    AddColourTabStuff(page);
}

void AddColourTabStuff(ColoursPage& page)
{
    ColourJoy(page);
    ColourMac(page);
}

void ColourJoy(ColoursPage& page)
{
    const Shared& shared = page.editor.shared;
    fillSample(page, page.ExampleJoystickText, joystickText, shared.DefaultTextColour,
               shared.settings.BackgroundColour);
    paint(page, page.ExampleJoystickText, joystickPasses());
}

void ColourMac(ColoursPage& page)
{
    fillSample(page, page.ExampleMacroText, macroText, 0, page.editor.shared.settings.MacroBackgroundColour);
    paint(page, page.ExampleMacroText, macroPasses());
}

void ApplyColour(ColoursPage& page, int index, Colour colour)
{
    handle(page, "PREFS ApplyColour", [&] {
        const ColourItem& item = items.at(static_cast<std::size_t>(index));
        Shared& shared = page.editor.shared;
        if (presentColour(page, item) != colour) page.coloursChanged = true;
        switch (item.kind) {
        case ItemKind::Background:
            shared.settings.*item.key = colour;
            (item.sample == joystickSample ? page.ExampleJoystickText : page.ExampleMacroText).BackColor = colour;
            break;
        case ItemKind::Text:
            if (item.sample != joystickSample) break; // the text of macro files is always black
            shared.DefaultTextColour = colour;
            ColourJoy(page);
            break;
        case ItemKind::Class:
            shared.settings.*item.key = colour;
            paint(page, page.ExampleJoystickText, passesOf(joystickPasses(), item.key));
            paint(page, page.ExampleMacroText, passesOf(macroPasses(), item.key));
            break;
        }
    });
}

void SaveColourScheme(Editor& editor) { editor.shared.store.write(Access::SaveColourScheme, "PREFS SaveColourScheme"); }

void DoTheFonts(ColoursPage& page)
{
    Shared& shared = page.editor.shared;
    Settings& settings = shared.settings;
    const auto font = page.editor.platform.dialogues.chooseFont(
        {settings.TextFontName, static_cast<float>(settings.TextFontSize), settings.TextFontBold == 1},
        page.CheckFixedPitch.Value);
    if (!font) return;
    settings.TextFontName = font->name;
    settings.TextFontSize = static_cast<std::int16_t>(font->size);
    settings.TextFontBold = font->bold ? 1 : 0;
    shared.FontChanged = 1;
    AddColourTabStuff(page);
}

void PREFS_List1_Click(ColoursPage& page)
{
    handle(page, "PREFS List1_Click", [&] {
        const ColourItem& item = items.at(static_cast<std::size_t>(page.List1.ListIndex.get()));
        page.SSTab2.Tab = item.sample;
        if (const auto colour = page.editor.platform.dialogues.chooseColour(presentColour(page, item)))
            ApplyColour(page, page.List1.ListIndex, *colour);
    });
}

} // namespace tarvex
