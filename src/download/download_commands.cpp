#include "download/download_commands.h"

#include "download/download_command.h"
#include "download/outside_tools.h"

namespace tarvex {

namespace {

/// A command of the editor as a handler.
template <typename Work> std::function<void()> on(Editor& editor, Work work)
{
    return [&editor, work] { work(editor); };
}

} // namespace

void wireDownload(Editor& editor)
{
    Menus& menus = editor.menus;
    menus.mnuSendToJoystick.handler = on(editor, mnuSendToJoystick_Click);
    menus.mnuAppsQuiet.handler = on(editor, mnuAppsQuiet_Click);
    menus.mnuUseWakeWarning.handler = on(editor, mnuUseWakeWarning_Click);
    menus.mnuGamesDownloadFirst.handler = on(editor, mnuGamesDownloadFirst_Click);

    wireControlCentreTools(editor);
    menus.mnuAppsTMScope.handler = on(editor, mnuAppsTMScope_Click);
    menus.mnuAppsProPanel.handler = on(editor, mnuAppsProPanel_Click);
    menus.mnuAppsCTFJ.handler = on(editor, mnuAppsCTFJ_Click);
    menus.mnuLauncher.handler = on(editor, mnuLauncher_Click);
    menus.mnuCustomApp.setHandler([&editor](int index) { mnuCustomApp_Click(editor, index); });
    menus.mnuAppsEdit.handler = on(editor, mnuAppsEdit_Click);
}

} // namespace tarvex
