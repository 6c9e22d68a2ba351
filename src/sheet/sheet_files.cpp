#include "sheet/sheet_files.h"

#include "platform/windows1252.h"
#include "sheet/html_sheet.h"
#include "sheet/pdf_sheet.h"
#include "sheet/svg_sheet.h"

namespace tarvex {

std::optional<SheetForm> sheetForm(std::string_view fileName)
{
    const std::string name = lowerUtf8(fileName);
    if (name.ends_with(".pdf")) return SheetForm::Pdf;
    if (name.ends_with(".svg")) return SheetForm::Svg;
    if (name.ends_with(".html") || name.ends_with(".htm")) return SheetForm::Html;
    return std::nullopt;
}

std::string sheetFile(const ControlSheet& sheet, SheetForm form, const SheetPaper& paper, SheetSpread spread)
{
    const std::vector<LaidOutPage> pages = layOut(sheet, paper, spread);
    switch (form) {
    case SheetForm::Svg:
        return svgSheet(pages);
    case SheetForm::Html:
        return htmlSheet(pages, sheet.fileName);
    case SheetForm::Pdf:
        break;
    }
    return pdfSheet(pages, sheet.fileName);
}

} // namespace tarvex
