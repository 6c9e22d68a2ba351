#include "desktop_program.h"

#include "documents/files/file_open.h"

#include <QApplication>

namespace tarvex {

namespace {

constexpr const char* joystickPath = "c:\\tm\\b50progs\\mig.b50";

} // namespace

DesktopProgram::DesktopProgram()
{
    machine.files.addFile(joystickPath, "BTN S1 /U fire /D gear\r\n");
    machine.files.addFile("c:\\tm\\b50progs\\mig.m50", "fire = f\r\ngear = g  Rem wheels\r\n");
    program = std::make_unique<Program>(platform);
    program->help.useSystem(helpSystem);
    appearance = std::make_unique<Appearance>(machine.files, TestMachine::programDirectory, program->menus);
    theme = std::make_unique<ThemeView>(*appearance, program->shared.extras);
    window = std::make_unique<MumWindow>(*program);
    dialogues.setParent(window.get());
    dialogues.setMenus(&program->menus);
    addFileForms(dialogues, program->differences, window.get());
    addGeneratorForms(dialogues, program->generators, window.get());
    addListForms(dialogues, program->lists, window.get());
    addPreferencesForm(dialogues, program->preferences, window.get());
    addHelpForms(dialogues, program->help, window.get());
    addViewerForms(dialogues, program->imageViewer, window.get());
    EXPECT_TRUE(program->start());
    window->showNormal();
    window->resize(1000, 700);
    openPair();
    QApplication::processEvents();
}

DesktopProgram::~DesktopProgram()
{
    appearance->theme = Appearance::Theme::System;
    window.reset();
}

void DesktopProgram::openPair()
{
    Editor& editor = program->editor;
    const bool isOpen = editor.joystick.FileName == "mig.b50" && editor.macro.FileName == "mig.m50";
    if (isOpen) return;
    editor.OpeningPath = joystickPath;
    OpenPreviouslySavedFiles(editor);
}

} // namespace tarvex
