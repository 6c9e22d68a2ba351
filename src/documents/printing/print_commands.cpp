#include "documents/printing/print_commands.h"

#include "documents/printing/print_pane.h"
#include "documents/printing/print_rtf.h"
#include "shell/handler.h"

namespace tarvex {

namespace {

void offerPortrait(Editor& editor)
{
    Printer& printer = editor.platform.printers.current();
    if (printer.Orientation() != orientation::landscape) return;
    const MessageBox question{.title = "Change orientation to Portrait?",
                              .text = "Your printer is setup to print in Landscape. Would you like me to set it up to "
                                      "print your file in Portrait first before I print this file?",
                              .icon = BoxIcon::Question,
                              .buttons = BoxButtons::YesNo};
    if (editor.platform.dialogues.show(question) == Answer::Yes) printer.setOrientation(orientation::portrait);
}

void printSide(Editor& editor, Side& side)
{
    if (side.pane.TextLength() == 0 || !hasPrinter(editor)) return;
    const Steps step(editor.shared.errors, printTag);
    step([&] { offerPortrait(editor); });
    printPane(editor, side.pane, editor.tabCaption(side));
}

} // namespace

void mnuFilePrintJoystick_Click(Editor& editor) { printSide(editor, editor.joystick); }

void mnuFilePrintMacro_Click(Editor& editor) { printSide(editor, editor.macro); }

void mnuFilePrinterSetup_Click(Editor& editor)
{
    const Steps step(editor.shared.errors, printTag);
    step([&] { editor.platform.printers.setUp(); });
}

void PrintCurrent(Editor&) {}

void mnuFilePrintPreview_Click(Editor& editor)
{
    const Side& side = editor.selected();
    previewPane(editor, side.pane, editor.tabCaption(side));
}

void mnuFilePrintPdf_Click(Editor& editor)
{
    const Side& side = editor.selected();
    savePaneAsPdf(editor, side.pane, editor.tabCaption(side), side.FilePath);
}

void wirePrinting(Editor& editor)
{
    Menus& menus = editor.menus;
    menus.mnuFilePrintJoystick.handler = on(editor, mnuFilePrintJoystick_Click);
    menus.mnuFilePrintMacro.handler = on(editor, mnuFilePrintMacro_Click);
    menus.mnuFilePrinterSetup.handler = on(editor, mnuFilePrinterSetup_Click);
    menus.mnuFilePrintPreview.handler = on(editor, mnuFilePrintPreview_Click);
    menus.mnuFilePrintPdf.handler = on(editor, mnuFilePrintPdf_Click);
}

} // namespace tarvex
