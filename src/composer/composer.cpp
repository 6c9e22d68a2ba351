#include "composer/composer.h"

#include "composer/composer_tips.h"
#include "composer/hardware_clicks.h"
#include "composer/hardware_tabs.h"
#include "composer/logic.h"
#include "composer/macro_tab.h"
#include "composer/mice.h"
#include "composer/overlay.h"
#include "composer/statement_tabs.h"
#include "composer/templates_tab.h"
#include "documents/window/tool_keys.h"
#include "platform/text.h"

#include <charconv>

namespace tarvex {

namespace {

constexpr PlaceSettings place{&Settings::ComposerTop, &Settings::ComposerLeft,     Access::PositionComposer,
                              Access::SaveSpaces,     "COMPOSER PositionComposer", "COMPOSER SaveSpaces"};
constexpr float firstPlace = 10; ///< twips, as the settings have it

constexpr std::size_t flagDelay = 4; ///< in TxtFlag

struct Tick {
    CheckBox InsertOptions::*box;
    const char* caption;
    std::int16_t Settings::*setting;
    bool ofOptions; ///< written with the program's options, not with the window's own
};
constexpr Tick ticks[] = {
    {&InsertOptions::CheckAlwaysInsert, "Always insert &BTN statement", &Settings::AlwaysInsert, false},
    {&InsertOptions::Check2FocusThang, "&Return focus to Editor", &Settings::COMPreturnFocus, false},
    {&InsertOptions::HighlightStatement, "High&light definitions ", &Settings::HighlightDefinitions, true},
};

std::int16_t flagOf(const CheckBox& box) { return box.Value ? 1 : 0; }

void save(InsertOptions& window, bool ofOptions)
{
    if (ofOptions)
        window.editor.shared.store.SaveOptions();
    else
        SaveSpaces(window);
}

void wireTick(InsertOptions& window, CheckBox& box, std::int16_t Settings::*setting, bool ofOptions)
{
    box.Click = [&window, &box, setting, ofOptions] {
        window.editor.shared.settings.*setting = flagOf(box);
        save(window, ofOptions);
    };
}

void wireTicks(InsertOptions& window)
{
    for (const Tick& tick : ticks) {
        (window.*tick.box).Caption = tick.caption;
        wireTick(window, window.*tick.box, tick.setting, tick.ofOptions);
    }
    window.Check1.Caption = "&Keep on top";
    window.Check1.Click = [&window] { Check1_Click(window); };
    window.macros.CheckAddCR.Caption = "Add carriage return";
    wireTick(window, window.macros.CheckAddCR, &Settings::COMPaddCR, false);
    window.macros.CheckCopyTicks.Caption = "Copy the ticks too";
    window.macros.CheckCopyTicks.Click = [&window] {
        window.editor.shared.settings.COMPMacrosTickedCopy = flagOf(window.macros.CheckCopyTicks);
        SaveSpaces(window);
        CopyMacroList(window);
    };
    for (std::size_t i = 0; i < window.CheckMultiAddCR.size(); ++i) {
        window.CheckMultiAddCR[i].Caption = "Add carriage return when inserting";
        window.CheckMultiAddCR[i].Click = [&window, i] { CheckMultiAddCR_Click(window, static_cast<int>(i)); };
    }
}

void wireFoot(InsertOptions& window)
{
    constexpr const char* captions[] = {"&Safein", "&Prefs", "&Find IP"};
    for (std::size_t i = 0; i < window.Command5.size(); ++i) {
        window.Command5[i].Caption = captions[i];
        window.Command5[i].handler = [&window, i] { Command5_Click(window, static_cast<int>(i)); };
    }
    window.Command6.Caption = "&Hide";
    window.Command6.handler = [&window] { Command6_Click(window); };
    window.Command14.Caption = "?";
    window.Command14.handler = [&window] { Command14_Click(window); };
}

void wireForm(InsertOptions& window)
{
    ToolForm& form = window.form;
    form.Load = [&window] { Form_Load(window); };
    form.Unload = [&window] { Form_Unload(window); };
    form.Escape = [&form] { form.hide(); };
    form.Activate = [&window] { Form_Activate(window); };
    form.KeyDown = [&window](int key, int shift) { return Form_KeyDown(window, key, shift); };
    form.join(window.editor.mum.toolWindows, true);
}

void showMultiAddCR(InsertOptions& window)
{
    for (CheckBox& box : window.CheckMultiAddCR) box.Value = window.editor.shared.settings.CompTabsAddCr == 1;
}

void presetDelays(InsertOptions& window)
{
    const std::string delay = std::to_string(window.editor.shared.settings.DefaultDLYvalue);
    window.fields.DLYText.Text = delay;
    window.flags.TxtFlag[flagDelay].Text = delay;
}

/// A window that is loaded anew starts with nothing written and nothing held.
void resetControls(InsertOptions& window)
{
    emptyFields(window);
    emptyDefinitions(window);
    for (RotaryButton& rotary : window.ROTARY) rotary.Value = 0;
    window.SSTabHardware.Tab = hardwarePage::f22AndF16;
    window.macros.BeforeClick.reset();
}

/// The number in a field; a text that isn't a 16-bit number leaves the setting as it is.
void takeNumber(const TextBox& field, std::int16_t& setting)
{
    const std::string& text = field.Text;
    std::int16_t number = 0;
    const auto read = std::from_chars(text.data(), text.data() + text.size(), number);
    if (read.ec == std::errc() && read.ptr == text.data() + text.size()) setting = number;
}

} // namespace

void wireComposer(InsertOptions& window)
{
    wireForm(window);
    wireHardware(window);
    wireStatementTabs(window);
    wireMice(window);
    wireLogic(window);
    wireMacroTab(window);
    wireTemplates(window);
    wireOverlay(window);
    wireTicks(window);
    wireFoot(window);
}

void offerComposer(InsertOptions& window)
{
    window.editor.menus.mnuShowInsertWindow.handler = [&window] { window.form.open(); };
    window.editor.menus.mnuComposerPlugin.handler = [&window] { showComposerTemplates(window); };
}

void Form_Load(InsertOptions& window)
{
    const Steps step(window.editor.shared.errors, "COMPOSER Form_Load");
    const Settings& settings = window.editor.shared.settings;
    step([&] { resetControls(window); });
    step([&] { PositionComposer(window); });
    window.mnuRHList.Visible = false;
    window.SSTab1.Tab = composerPage::hardware;
    step([&] { captionControls(window); });
    step([&] { FillMiceListBoxes(window); });
    window.templates.Folder = window.editor.platform.programDirectory + "\\Templates\\";
    step([&] { FillTemplates(window); });
    step([&] { FillLogicLists(window); });
    window.SSTab7.Tab = listPage::macros;
    window.SSTabFlags.Tab = 0;
    holdAxis(window, axisToggle::jsx);
    showMultiAddCR(window);
    window.Check1.Value = settings.CompOnTop == 1;
    step([&] { GetSpaces(window); });
    window.form.TopMost = settings.CompOnTop == 1;
    step([&] { UpdateTooltips(window); });
    step([&] { CopyMacroList(window); });
    step([&] { readShowAssigned(window); });
    step([&] { ShowApproriateTabs(window); });
    window.form.markLoaded();
}

void Form_Activate(InsertOptions& window)
{
    const Steps step(window.editor.shared.errors, "COMPOSER Form_Activate");
    step([&] { UpdateTooltips(window); });
    step([&] { ShowApproriateTabs(window); });
    if (window.editor.macros.MacroListDirty == 1) CopyMacroList(window);
    presetDelays(window);
    step([&] { readShowAssigned(window); });
    step([&] { renewAssigned(window); });
}

void Form_Unload(InsertOptions& window)
{
    const Steps step(window.editor.shared.errors, "COMPOSER Form_Unload");
    step([&] { SaveSpaces(window); });
    window.form.markUnloaded();
}

bool Form_KeyDown(InsertOptions& window, int key, int shift)
{
    bool swallowed = false;
    const Steps step(window.editor.shared.errors, "COMPOSER Form_KeyDown");
    step([&] { swallowed = forwardKey(window.editor, window.form, key, shift); });
    return swallowed;
}

void PositionComposer(InsertOptions& window)
{
    const Editor& editor = window.editor;
    positionForm(window.form, place, firstPlace, firstPlace, editor.shared.settings, editor.shared.store,
                 editor.platform.desktop);
}

void GetSpaces(InsertOptions& window)
{
    Shared& shared = window.editor.shared;
    shared.store.read(Access::GetSpaces, "COMPOSER GetSpaces");
    const Settings& settings = shared.settings;
    window.fields.Text1[valueField::blanks].Text = std::to_string(settings.NumberOfBlanks);
    window.fields.TextRPT.Text = std::to_string(settings.DefaultRPTvalue);
    presetDelays(window);
    for (const Tick& tick : ticks) (window.*tick.box).Value = settings.*tick.setting == 1;
    window.macros.CheckAddCR.Value = settings.COMPaddCR == 1;
    window.macros.CheckCopyTicks.Value = settings.COMPMacrosTickedCopy == 1;
}

void SaveSpaces(InsertOptions& window)
{
    Shared& shared = window.editor.shared;
    takeNumber(window.fields.Text1[valueField::blanks], shared.settings.NumberOfBlanks);
    takeNumber(window.fields.TextRPT, shared.settings.DefaultRPTvalue);
    const Desktop& desktop = window.editor.platform.desktop;
    if (window.form.State != WindowState::Minimised) {
        shared.settings.ComposerTop = onScreen(window.form.Top, desktop.screenHeight());
        shared.settings.ComposerLeft = onScreen(window.form.Left, desktop.screenWidth());
    }
    shared.store.write(Access::SaveSpaces, "COMPOSER SaveSpaces");
}

void UpdateTooltips(InsertOptions& window) { showTips(window, window.editor.shared.settings.OKtoShowToolTips == 1); }

void Check1_Click(InsertOptions& window)
{
    window.editor.shared.settings.CompOnTop = flagOf(window.Check1);
    window.form.TopMost = window.Check1.Value.get();
    window.editor.shared.store.SaveOptions();
}

void CheckMultiAddCR_Click(InsertOptions& window, int Index)
{
    window.editor.shared.settings.CompTabsAddCr = flagOf(window.CheckMultiAddCR.at(static_cast<std::size_t>(Index)));
    showMultiAddCR(window);
    window.editor.shared.store.SaveOptions();
}

void Command5_Click(InsertOptions& window, int Index)
{
    const Menus& menus = window.editor.menus;
    const MenuItem* commands[] = {&menus.mnuInsertRAW, &menus.mnuPreferencesEdit, &menus.mnuViewHighlightLine};
    const Steps step(window.editor.shared.errors, "COMPOSER Command5_Click");
    step([&] { commands[Index]->Click(); });
}

void Command6_Click(InsertOptions& window) { window.form.hide(); }

void Command14_Click(InsertOptions& window)
{
    window.editor.platform.dialogues.show(
        {.title = "Composer", .text = "Keep the Composer in memory for increased speed", .icon = BoxIcon::Information});
}

void showComposerPage(InsertOptions& window, int page)
{
    window.form.open();
    window.SSTab1.Tab = page;
}

void showComposerRate(InsertOptions& window, const std::string& value)
{
    showComposerPage(window, composerPage::setUp);
    TextBox& field = window.fields.Text1[valueField::rate];
    field.Text = value;
    field.SetFocus();
}

void showComposerTemplates(InsertOptions& window)
{
    window.form.open();
    window.SSTab7.Tab = listPage::templates;
}

} // namespace tarvex
