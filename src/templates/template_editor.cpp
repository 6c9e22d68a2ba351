#include "templates/template_editor.h"

#include "documents/printing/print_pane.h"
#include "documents/recovery/journal/recovery_journal.h"
#include "documents/window/colour_selector.h"
#include "documents/window/preferences_page.h"
#include "shell/handler.h"
#include "templates/shipped_templates.h"
#include "templates/template_edit.h"
#include "templates/template_files.h"
#include "templates/template_find.h"
#include "templates/template_journal.h"

namespace tarvex {

namespace {

void wireFileCommands(TemplateForm& window)
{
    for (std::size_t index = 0; index < window.Command1.size(); ++index)
        window.Command1.at(index).handler = [&window, index] { Command1_Click(window, index); };
    window.mnuFileOpen.handler = [&window] { Command1_Click(window, 0); };
    window.mnuFileSave.handler = [&window] { Command1_Click(window, 1); };
    window.mnuFileNew.handler = [&window] { Command1_Click(window, 2); };
    window.mnuFileSaveAs.handler = on(window, mnuFileSaveAs_Click);
    window.mnuFileSetAsDefault.handler = on(window, mnuFileSetAsDefault_Click);
    window.mnuSetAsDefault.handler = on(window, mnuFileSetAsDefault_Click);
    window.mnuFileLoadDefault.handler = on(window, mnuFileLoadDefault_Click);
    window.Command2.handler = on(window, Command2_Click);
    window.mnuFileClose.handler = [&window] { window.form.unload(); };
    window.Text1.LostFocus = on(window, Text1_LostFocus);
    window.CmndPrint.handler = on(window, CmndPrint_Click);
    window.mnuFilePrint.handler = on(window, CmndPrint_Click);
}

/// Opens the preferences at a page; a text look that was changed there is the template's, too.
void editPreferences(TemplateForm& window, std::int16_t page)
{
    const Settings& settings = window.editor.shared.settings;
    const auto look = [&settings] {
        return std::tuple(settings.TextFontName.whole(), settings.TextFontSize, settings.TextFontBold,
                          settings.BackgroundColour);
    };
    const auto before = look();
    showPreferencesPage(window.editor, page);
    if (look() != before) mnuViewrefreshLayout_Click(window);
    showDefaultTemplate(window);
}

void wireEditCommands(TemplateForm& window)
{
    window.mnuUndo.handler = on(window, mnuUndo_Click);
    window.mnuRedo.handler = on(window, mnuRedo_Click);
    window.mnuCut.handler = on(window, mnuCut_Click);
    window.mnuCopy.handler = on(window, mnuCopy_Click);
    window.mnuPaste.handler = on(window, mnuPaste_Click);
    window.mnuSelectAll.handler = on(window, mnuSelectAll_Click);
    window.mnuEditTmCFG.handler = [&window] { mnuEditTmCFG_Click(window); };
    window.mnuEdTmpPrefs.handler = [&window] { editPreferences(window, preferencesPage::apps); };
    window.mnuColourApply.handler = [&window] { ColourTemplateText(window); };
    window.mnuTextToBlack.handler = on(window, mnuTextToBlack_Click);
    window.mnuPopBlack.handler = on(window, mnuTextToBlack_Click);
    window.mnuViewEditColours.handler = [&window] { editPreferences(window, preferencesPage::colours); };
    window.mnuViewrefreshLayout.handler = on(window, mnuViewrefreshLayout_Click);
    window.mnuRefreshIndent.handler = on(window, mnuRefreshIndent_Click);
    window.mnuHelpContents.handler = [&window] { window.editor.menus.mnuHelpContents.Click(); };
}

void wirePane(TemplateForm& window)
{
    window.TemplateText.Change = on(window, TemplateText_Change);
    window.TemplateText.KeyPress = [&window](int key) { TemplateText_KeyPress(window, key); };
    window.TemplateText.EditComing = on(window, templateEditComing);
    window.ToggleButton1.Click = on(window, ToggleButton1_Click);
    Editor& editor = window.editor;
    window.ColourLabel1_Click = [&editor] { showColourSelector(editor, ColourTarget::Template); };
    editor.ColourSelector.colourTemplate = [&window](Colour colour) { GetCustomColour(window, colour); };
}

} // namespace

void wireTemplateEditor(TemplateForm& window)
{
    wireFileCommands(window);
    wireEditCommands(window);
    wirePane(window);
    wireTemplateFind(window);
    followEdits(window.editor, journalled(window));
    window.form.Load = [&window] { Form_Load(window); };
    window.form.Activate = on(window, followTextSettings);
    window.form.Unload = [&window] { closeTemplateEditor(window); };
    Editor& editor = window.editor;
    editor.menus.mnuAppsTemplate.handler = [&window] { window.form.open(); };
    editor.menus.mnuEditTmCFG.handler = [&window] {
        window.form.open();
        mnuEditTmCFG_Click(window);
        FindDLDELAY(window);
    };
    window.form.join(editor.mum.toolWindows, true);
}

void Form_Load(TemplateForm& window)
{
    const Steps step(window.editor.shared.errors, "TEMPLATE Form_Load");
    step([&] { window.TemplatePath = templatesFolder(window.editor.platform); });
    step([&] { beginNewTemplate(window); });
    step([&] {
        window.ToggleButton1.hold(true);
        window.RightMargin = TemplateForm::wrapsAtPane;
    });
    step([&] { showDefaultTemplate(window); });
    step([&] { UpdateTooltips(window); });
    step([&] { UpdateLabelColours(window); });
    window.Find.Visible = false;
    window.form.markLoaded();
}

bool Form_QueryUnload(TemplateForm& window)
{
    bool goes = true;
    const Steps step(window.editor.shared.errors, "TEMPLATE Form_QueryUnload");
    if (!step([&] { goes = mayGiveUpText(window, "before exiting", ". Exit Template Editor aborted."); })) return false;
    return goes;
}

bool closeTemplateEditor(TemplateForm& window)
{
    if (!window.form.isLoaded()) return true;
    if (!Form_QueryUnload(window)) return false;
    noteTextSettled(window.editor, journalled(window), std::nullopt); // what is unsaved is given up
    window.form.markUnloaded();
    return true;
}

void UpdateTooltips(TemplateForm& window)
{
    const bool on = window.editor.shared.settings.OKtoShowToolTips == 1;
    const auto tip = [on](Button& button, const char* text) { button.ToolTipText = on ? text : ""; };
    tip(window.Command1[0], "Open a template or text file");
    tip(window.Command1[1], "Save this file");
    tip(window.Command1[2], "New file");
    tip(window.CmndPrint, "Print this file");
    window.ToggleButton1.ToolTipText = on ? "Wrap long lines at the edge of the window" : "";
}

void ToggleButton1_Click(TemplateForm& window)
{
    window.ToggleButton1.hold(!window.ToggleButton1.isHeld());
    window.RightMargin = window.ToggleButton1.isHeld() ? TemplateForm::wrapsAtPane : TemplateForm::wideMargin;
}

void CmndPrint_Click(TemplateForm& window)
{
    if (window.TemplateText.TextLength() == 0 || !hasPrinter(window.editor)) return;
    printPane(window.editor, window.TemplateText, window.TemplateName);
}

} // namespace tarvex
