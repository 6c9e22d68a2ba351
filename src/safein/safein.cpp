#include "safein/safein.h"

#include "documents/window/tool_keys.h"
#include "safein/key_pad.h"
#include "safein/safein_options.h"
#include "safein/statement.h"
#include "shell/help_topics.h"

namespace tarvex {

namespace {

constexpr PlaceSettings place{&Settings::SafeinTop, &Settings::SafeinLeft,   Access::PositionSafein,
                              Access::SavePosition, "SAFEIN PositionSafein", "SAFEIN SavePosition"};

namespace infoItem {
constexpr int options = 30;
constexpr int extendedCodes = 31;
constexpr int hideButton = 32;
} // namespace infoItem

/// A menu entry whose help isn't there is greyed.
void wireHelp(MenuItem& item, const std::function<void(int)>& show, int number)
{
    item.handler = [&show, number] {
        if (show) show(number);
    };
    item.Enabled = show != nullptr;
}

void wireMenus(RAWform& window)
{
    window.mnuFileClose.handler = [&window] { window.form.unload(); };
    window.mnuHelpContents.handler = [&window] { window.editor.menus.mnuHelpContents.Click(); };
    window.mnuHelpContents.Enabled = window.editor.menus.mnuHelpContents.handler != nullptr;
    wireHelp(window.mnuRawOverview, window.HelpTopic, helpTopic::safeinOverview);
    wireHelp(window.mnuHelpRawcodes, window.HelpTopic, helpTopic::rawCodes);
    wireHelp(window.mnuOptionsExplain, window.ShowInfoItem, infoItem::options);
    wireHelp(window.mnuExtendedExplain, window.ShowInfoItem, infoItem::extendedCodes);
    wireHelp(window.mnuUseHideButton, window.ShowInfoItem, infoItem::hideButton);
}

void selectWhole(TextBox& field)
{
    const Steps step;
    step([&] { field.SelectAll(); });
}

void wireForm(RAWform& window)
{
    ToolForm& form = window.form;
    form.Load = [&window] { Form_Load(window); };
    form.Unload = [&window] { Form_Unload(window); };
    form.Escape = [&form] { form.hide(); };
    form.Activate = [&window] { readSelection(window); };
    form.KeyDown = [&window](int key, int shift) { return Form_KeyDown(window, key, shift); };
    window.Command14.Caption = "Find IP";
    window.Command14.handler = [&window] { window.editor.menus.mnuViewHighlightLine.Click(); };
    window.Command2.Caption = "Hide";
    window.Command2.handler = [&form] { form.hide(); };
}

void wireFields(RAWform& window)
{
    for (TextBox* field : {&window.RMakeText, &window.RBreakText, &window.RCombinedText})
        window.connections.push_back(field->Text.changed.connect([field] { selectWhole(*field); }));
    for (TextBox* field : {&window.SyntaxText, &window.TotalCombinedText})
        field->GotFocus = [field] { selectWhole(*field); };
    window.connections.push_back(
        window.TotalCombinedText.Text.changed.connect([&window] { TotalCombinedText_Change(window); }));
    window.connections.push_back(window.RawToRead.Text.changed.connect([&window] { readRaw(window); }));
    for (Pane* pane : {&window.editor.JoystickText, &window.editor.MacroText})
        window.connections.push_back(pane->selectionChanged.connect([&window] { readSelection(window); }));
}

/// A window that is loaded anew starts with nothing written and nothing held.
void resetControls(RAWform& window)
{
    resetKeyPad(window);
    blankKeyFields(window);
    window.TotalCombinedText.Text = "";
    window.RawToRead.Text = "";
    showSlashRow(window, true);
}

} // namespace

void wireSafein(RAWform& window)
{
    wireForm(window);
    wireKeyPad(window);
    wireStatement(window);
    wireSafeinOptions(window);
    wireFields(window);
    window.editor.menus.mnuInsertRAW.handler = [&window] { window.form.open(); };
    window.form.join(window.editor.mum.toolWindows, true);
}

void Form_Load(RAWform& window)
{
    const Steps step;
    step([&] { resetControls(window); });
    step([&] { wireMenus(window); });
    GetSafeinOptions(window);
    PositionSafein(window);
    window.form.markLoaded();
    FormatCombinedText(window);
    window.keys.LastKeyIndex = -1;
    window.LastAppend = lastAppend::nothing;
    window.mnuDelay.Visible = false;
    UpdateTooltips(window);
    window.form.TopMost = window.editor.shared.settings.SafeinOnTop == 1;
}

void Form_Unload(RAWform& window)
{
    SavePosition(window);
    SaveSafeinOptions(window);
    window.form.markUnloaded();
}

bool Form_KeyDown(RAWform& window, int key, int shift)
{
    bool swallowed = false;
    const Steps step;
    step([&] { swallowed = forwardKey(window.editor, window.form, key, shift); });
    return swallowed;
}

void PositionSafein(RAWform& window)
{
    const Editor& editor = window.editor;
    const Desktop& desktop = editor.platform.desktop;
    const float top = (desktop.screenHeight() - window.form.Height) / 2;
    const float left = (desktop.screenWidth() - window.form.Width) / 2;
    positionForm(window.form, place, top, left, editor.shared.settings, editor.shared.store, desktop);
}

void SavePosition(RAWform& window)
{
    const Editor& editor = window.editor;
    savePosition(window.form, place, editor.shared.settings, editor.shared.store, editor.platform.desktop);
}

void UpdateTooltips(RAWform& window)
{
    const bool on = window.editor.shared.settings.OKtoShowToolTips == 1;
    const auto tip = [on](Button& button, const char* text) { button.ToolTipText = on ? text : ""; };
    for (Button& button : window.CommandPasteJ) tip(button, "Insert into currently selected file");
    tip(window.Command5, "Paste into the combined section");
    for (Button& button : window.Command10) tip(button, "Paste into the combined section");
    tip(window.Command4, "Clear the combined section text");
    tip(window.Command14, "Locate insertion point in the currently selected file");
    tip(window.Command2, "Hides Safein and keeps him in memory for faster recall");
}

} // namespace tarvex
