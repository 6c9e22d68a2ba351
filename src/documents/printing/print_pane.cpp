#include "documents/printing/print_pane.h"

#include "documents/printing/paper_ink.h"
#include "documents/printing/print_rtf.h"
#include "platform/dos_path.h"
#include "shell/paper_extras.h"

namespace tarvex {

namespace {

struct Foot {
    bool name;
    bool number;
};

Foot wantedFoot(const Extras& extras)
{
    return {.name = extras.on(extraKey::printFileName), .number = extras.on(extraKey::printPageNumbers)};
}

/// Letters that are light because the window is dark would be pale on paper.
PaperInk wantedInk(const Extras& extras, const Pane& pane)
{
    const bool darkened = isDarkGround(pane.BackColor) && extras.on(extraKey::darkenedPaper);
    return darkened ? PaperInk(inkOnPaper) : PaperInk();
}

/// In the middle of the bottom margin, so that it never meets the text.
void printFoot(Printer& printer, const Foot& foot, const std::string& name, int page, const PaperRectangle& text)
{
    constexpr int belowText = printMargin / 3;
    std::string line = foot.name ? name : "";
    if (foot.number) line += (line.empty() ? "Page " : " - page ") + std::to_string(page);
    if (!line.empty()) printer.PrintCentred(line, text.left, text.right, text.bottom + belowText);
}

bool mayOverwrite(Editor& editor, const std::string& path)
{
    if (!editor.platform.files.fileExists(path)) return true;
    const MessageBox question{.title = "OK to overwrite?",
                              .text = fileNameOf(path) + " already exists. Do you want me to overwrite this file?",
                              .icon = BoxIcon::Question,
                              .buttons = BoxButtons::YesNo};
    return editor.platform.dialogues.show(question) == Answer::Yes;
}

} // namespace

PrintJob printJob(Editor& editor, const Pane& pane, const std::string& name)
{
    const Foot foot = wantedFoot(editor.shared.extras);
    return [&editor, &pane, name, foot, ink = wantedInk(editor.shared.extras, pane)](Printer& printer) {
        printer.Print("");
        printer.setFontBold(true);
        printer.Print(name);
        printer.Print("Date printed: " + editor.platform.desktop.longDate());
        printer.setFontBold(false);
        printer.Print("");
        PrintRTF(
            printer, pane, printMargin, printMargin, printMargin, printMargin,
            [&](int page, const PaperRectangle& text) { printFoot(printer, foot, name, page, text); }, ink);
    };
}

bool hasPrinter(Editor& editor)
{
    if (editor.platform.printers.Count() >= 1) return true;
    editor.platform.dialogues.show({.title = "No printer to print to",
                                    .text = "I couldn't detect a printer connected to your system. Please check your "
                                            "printer settings.",
                                    .icon = BoxIcon::Exclamation});
    return false;
}

void reportPaperFailure(Editor& editor, const std::string& what, const std::string& why)
{
    editor.status(what + " failed");
    editor.platform.dialogues.show(
        {.title = "Ooops!", .text = what + " went wrong: " + why, .icon = BoxIcon::Exclamation});
}

void printPane(Editor& editor, const Pane& pane, const std::string& name)
{
    editor.status("Printing " + name);
    const Steps step(editor.shared.errors, printTag);
    const bool printed = step([&] {
        Printer& printer = editor.platform.printers.current();
        try {
            printJob(editor, pane, name)(printer);
            printer.EndDoc();
        } catch (const RuntimeError&) {
            printer.KillDoc(); // half a document would keep the printer busy
            throw;
        }
    });
    if (!printed) return reportPaperFailure(editor, "Printing " + name, step.whyNot());
    editor.status("Finished printing " + name);
}

void previewPane(Editor& editor, const Pane& pane, const std::string& name)
{
    if (pane.TextLength() == 0) return editor.status("There is nothing to print in " + name);
    const Steps step(editor.shared.errors, printTag);
    const bool shown =
        step([&] { editor.platform.printers.preview("Print preview - " + name, printJob(editor, pane, name)); });
    if (!shown) reportPaperFailure(editor, "The preview of " + name, step.whyNot());
}

void savePaneAsPdf(Editor& editor, const Pane& pane, const std::string& name, const std::string& filePath)
{
    if (pane.TextLength() == 0) return editor.status("There is nothing to print in " + name);
    const FileRequest request{.title = "Save as PDF",
                              .filter = "PDF file (*.pdf)|*.pdf|All files (*.*)|*.*",
                              .directory = directoryOf(filePath),
                              .suggestedName = name.substr(0, name.rfind('.')) + ".pdf",
                              .defaultExtension = "pdf"};
    saveExport(editor, request,
               [&](const std::string&) { return editor.platform.printers.pdf(name, printJob(editor, pane, name)); });
}

void saveExport(Editor& editor, const FileRequest& request, const std::function<std::string(const std::string&)>& bytes)
{
    const Steps step(editor.shared.errors, printTag);
    std::string name = request.suggestedName;
    const bool saved = step([&] {
        const auto path = editor.platform.dialogues.saveFile(request);
        if (!path || !mayOverwrite(editor, *path)) return;
        name = fileNameOf(*path);
        editor.platform.files.write(*path, bytes(*path));
        editor.status(name + " saved");
    });
    if (!saved) reportPaperFailure(editor, "Saving " + name, step.whyNot());
}

} // namespace tarvex
