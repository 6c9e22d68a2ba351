#include "help/help.h"

#include "help/web_links.h"

namespace tarvex {

namespace {

// Pages of the information window that a menu begins with.
constexpr int firstOfThrustmaster = 10;
constexpr int firstOfHowDoI = 20;

/// A failure leaves no trace.
void showQuietly(Dialogues& dialogues, const char* form)
{
    const Steps step;
    step([&] { dialogues.showModal(form); });
}

} // namespace

Help::Help(Editor& theEditor)
    : editor(theEditor), handbook(theEditor), info(theEditor), frmTip(theEditor.shared, theEditor.platform),
      frmAbout(theEditor.platform)
{
}

void Help::useSystem(HelpSystem& system)
{
    handbook.system = &system;
    frmTip.system = &system;
    frmAbout.system = &system;
}

void wireHelp(Help& help)
{
    wireHandbook(help.handbook);
    wireInfoWindow(help.info);
    Editor& editor = help.editor;
    editor.mum.toolWindows.add({.name = "frmTip", .form = &help.frmTip.Form});
    editor.mum.toolWindows.add({.name = "frmAbout", .form = &help.frmAbout.Form});
    Dialogues& dialogues = editor.platform.dialogues;
    Menus& menus = editor.menus;
    menus.mnuHelpContents.handler = [&help] { mnuHelpContents_Click(help); };
    menus.mnuHowDoIArray.setHandler([&help](int index) { mnuHowDoIArray_Click(help, index); });
    menus.mnuTMhelp.setHandler([&help](int index) { mnuTMhelp_Click(help, index); });
    menus.mnuInsertQuickTip.handler = [&help] { HelpKeyword(help.handbook, "Escape"); };
    menus.mnuHelpTips.handler = [&dialogues] { showQuietly(dialogues, "frmTip"); };
    menus.mnuHelpAbout.handler = [&dialogues] { showQuietly(dialogues, "frmAbout"); };
    menus.mnuWebTarvex.setHandler(
        [&help](int index) { mnuWebTarvex_Click(help.editor, *help.handbook.system, index); });
    editor.operations.HelpKeyword = [&help](const std::string& word) { HelpKeyword(help.handbook, word); };
    editor.operations.HelpTopic = [&help](int topic) { HelpTopic(help.handbook, topic); };
    editor.operations.ShowTour = [&help] { ShowTour(help.handbook); };
    editor.operations.ShowInfoPage = [&help](int index) { ShowInfoPage(help.info, index); };
}

void mnuHelpContents_Click(Help& help)
{
    const Platform& platform = help.editor.platform;
    const Steps step;
    step([&] {
        if (platform.files.fileExists(platform.programDirectory + "\\Tarvex.hlp"))
            platform.desktop.openProgramFile("Tarvex.hlp");
        else
            showHandbook(help.handbook);
    });
}

void mnuTMhelp_Click(Help& help, int Index) { ShowInfoPage(help.info, Index + firstOfThrustmaster); }

void mnuHowDoIArray_Click(Help& help, int Index) { ShowInfoPage(help.info, Index + firstOfHowDoI); }

} // namespace tarvex
