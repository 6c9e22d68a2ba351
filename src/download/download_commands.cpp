#include "download/download_commands.h"

#include "download/download_command.h"
#include "download/game_launch.h"
#include "download/outside_tools.h"
#include "shell/handler.h"

#include <memory>

namespace tarvex {

namespace {

/// Lets one of several commands run at a time. Keys that wait, of one that is held down say, and menus of the desktop's
/// reach the program while a loader runs; what they would begin inside of it comes to nothing.
class OneAtATime {
public:
    template <typename Work> auto operator()(Work work) const
    {
        return [runs = m_runs, work](const auto&... arguments) {
            if (*runs) return;
            const Mark mark{*runs};
            work(arguments...);
        };
    }

private:
    struct Mark {
        explicit Mark(bool& value) : runs(value) { runs = true; }
        ~Mark() { runs = false; }
        Mark(const Mark&) = delete;
        Mark& operator=(const Mark&) = delete;
        bool& runs;
    };
    std::shared_ptr<bool> m_runs = std::make_shared<bool>(false);
};

} // namespace

void wireDownload(Editor& editor, Games& games)
{
    Menus& menus = editor.menus;
    const OneAtATime oneAtATime;
    menus.mnuSendToJoystick.handler = oneAtATime(on(editor, mnuSendToJoystick_Click));
    menus.mnuAppsQuiet.handler = on(editor, mnuAppsQuiet_Click);
    menus.mnuUseWakeWarning.handler = on(editor, mnuUseWakeWarning_Click);
    games.LaunchGame = oneAtATime([&editor](const Game& game) { launchGame(editor, game); });

    wireControlCentreTools(editor);
    menus.mnuAppsTMScope.handler = on(editor, mnuAppsTMScope_Click);
    menus.mnuAppsProPanel.handler = on(editor, mnuAppsProPanel_Click);
    menus.mnuAppsCTFJ.handler = on(editor, mnuAppsCTFJ_Click);
    menus.mnuLauncher.handler = on(editor, mnuLauncher_Click);
    menus.mnuCustomApp.setHandler([&editor](int index) { mnuCustomApp_Click(editor, index); });
    menus.mnuAppsEdit.handler = on(editor, mnuAppsEdit_Click);
}

} // namespace tarvex
