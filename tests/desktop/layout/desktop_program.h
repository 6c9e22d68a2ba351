#pragma once

#include "desktop/documents/files/file_forms.h"
#include "desktop/generators/generator_forms.h"
#include "desktop/help/help_windows.h"
#include "desktop/lists/list_forms.h"
#include "desktop/platform/qt_dialogues.h"
#include "desktop/preferences/preferences_view.h"
#include "desktop/program/mum_window.h"
#include "desktop/theme.h"
#include "desktop/viewer/viewer_forms.h"
#include "platform/posix/drive_map.h"
#include "shell/appearance.h"
#include "support/fake_help_system.h"
#include "support/test_program.h"

namespace tarvex {

/// The program with its real windows and boxes, on files in memory.
struct DesktopProgram {
    TestProgram machine{false};
    DriveMap drives{{}};
    QtDialogues dialogues{drives};
    Platform platform{machine.files,
                      dialogues,
                      machine.desktop,
                      machine.sound,
                      machine.clipboard,
                      machine.processes,
                      machine.machine,
                      machine.printers,
                      machine.pictures,
                      TestMachine::programDirectory,
                      {}};
    FakeHelpSystem helpSystem;
    std::unique_ptr<Program> program;
    std::unique_ptr<Appearance> appearance;
    std::unique_ptr<ThemeView> theme;
    std::unique_ptr<MumWindow> window;

    /// Starts it on a pair of files, with a game and programs in its menus.
    DesktopProgram();
    ~DesktopProgram();

    /// Opens the pair unless it is open.
    void openPair();
};

} // namespace tarvex
