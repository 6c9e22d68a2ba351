#include "sheet/commands/print_controls.h"

#include "documents/printing/print_pane.h"
#include "documents/printing/print_rtf.h"
#include "platform/dos_path.h"
#include "platform/printers.h"
#include "sheet/sheet_files.h"
#include "sheet/svg_sheet.h"
#include "shell/handler.h"
#include "shell/paper_extras.h"

#include <algorithm>
#include <cmath>

namespace tarvex {

namespace {

ControlSheet sheetOf(Editor& editor)
{
    const bool hasMacros = editor.macro.pane.TextLength() > 0;
    const SheetFiles files{.joystickName = editor.tabCaption(editor.joystick),
                           .joystickText = editor.joystick.pane.Text(),
                           .macroName = hasMacros ? editor.tabCaption(editor.macro) : "",
                           .macroText = editor.macro.pane.Text()};
    return controlSheet(files, editor.platform.desktop.longDate());
}

SheetSpread spreadOf(const Editor& editor)
{
    return editor.shared.extras.on(extraKey::sheetOnOnePage) ? SheetSpread::OnePage : SheetSpread::MorePages;
}

/// Turns the printer to its long side for as long as it lives.
class OnLongSide {
public:
    explicit OnLongSide(Printer& printer) : m_printer(printer), m_before(printer.Orientation())
    {
        m_printer.setOrientation(orientation::landscape);
    }
    ~OnLongSide() { m_printer.setOrientation(m_before); }
    OnLongSide(const OnLongSide&) = delete;
    OnLongSide& operator=(const OnLongSide&) = delete;

private:
    Printer& m_printer;
    int m_before;
};

void preview(Editor& editor, const ControlSheet& sheet)
{
    const Steps step(editor.shared.errors, printTag);
    const bool shown = step([&] {
        const OnLongSide turned(editor.platform.printers.current());
        editor.platform.printers.preview("Print preview - the controls of " + sheet.fileName, [&](Printer& printer) {
            printSheet(printer, layOut(sheet, sheetPaper(printer), spreadOf(editor)));
        });
    });
    if (!shown) reportPaperFailure(editor, "The preview of the controls", step.whyNot());
}

void save(Editor& editor, const ControlSheet& sheet)
{
    const FileRequest request{.title = "Save the controls",
                              .filter = "PDF file (*.pdf)|*.pdf|SVG drawing (*.svg)|*.svg|Web page (*.html)|*.html",
                              .directory = directoryOf(editor.joystick.FilePath),
                              .suggestedName = sheet.fileName.substr(0, sheet.fileName.rfind('.')) + " controls.pdf",
                              .defaultExtension = "pdf"};
    saveExport(editor, request, [&](const std::string& path) {
        const SheetPaper paper = sheetPaper(editor.platform.printers.current());
        return sheetFile(sheet, sheetForm(path).value_or(SheetForm::Pdf), paper, spreadOf(editor));
    });
}

} // namespace

SheetPaper sheetPaper(const Printer& printer)
{
    constexpr double betweenLetterAndA4 = 1.35;
    const auto [shorter, longer] = std::minmax({printer.Width(), printer.Height()});
    return longer < shorter * betweenLetterAndA4 ? sheetLetter : sheetA4;
}

void printSheet(Printer& printer, const std::vector<LaidOutPage>& pages)
{
    const auto twips = [](int pixels, float scale) { return static_cast<double>(pixels) * scale; };
    const double edgeX = twips(printer.physicalOffsetX(), printer.twipsPerPixelX());
    const double edgeY = twips(printer.physicalOffsetY(), printer.twipsPerPixelY());
    const std::string family = "Arial"; // a printer's drawing takes a list of families for the name of one
    for (std::size_t i = 0; i < pages.size(); ++i) {
        if (i > 0) printer.NewPage();
        const SheetPaper& paper = pages[i].paper;
        const double across = (printer.Width() - 2 * edgeX) / paper.width;
        const double down = (printer.Height() - 2 * edgeY) / paper.height;
        const double scale = std::max(0.0, std::min(across, down));
        printer.PaintDrawing(svgPage(pages[i], "p", family),
                             {.right = static_cast<int>(std::lround(paper.width * scale)),
                              .bottom = static_cast<int>(std::lround(paper.height * scale))});
    }
}

void mnuFilePrintControls_Click(Editor& editor)
{
    const ControlSheet sheet = sheetOf(editor);
    const MessageBox question{.title = "Print the controls",
                              .text = "I can draw a sheet of what is on which button of " + sheet.fileName +
                                      ", a page for each controller. Do you want to see and print it, or shall I save "
                                      "it as a file (PDF, SVG or a web page)?",
                              .icon = BoxIcon::Question,
                              .buttons = BoxButtons::YesNoCancel,
                              .captions = {"See and &print...", "&Save as a file..."}};
    switch (editor.platform.dialogues.show(question)) {
    case Answer::Yes:
        return preview(editor, sheet);
    case Answer::No:
        return save(editor, sheet);
    default:
        return;
    }
}

void wireControlSheet(Editor& editor)
{
    editor.menus.mnuFilePrintControls.handler = on(editor, mnuFilePrintControls_Click);
}

} // namespace tarvex
