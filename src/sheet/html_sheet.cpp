#include "sheet/html_sheet.h"

#include "sheet/svg_sheet.h"

namespace tarvex {

std::string htmlSheet(const std::vector<LaidOutPage>& pages, const std::string& title)
{
    std::string html =
        "<!DOCTYPE html>\n<html lang=\"en\">\n<head>\n<meta charset=\"utf-8\">\n<title>" + escapedForXml(title) +
        "</title>\n<style>\n"
        "@page { size: landscape; margin: 0 }\n"
        "body { margin: 0; background: #888 }\n"
        "svg { display: block; width: 100%; height: auto; max-width: 1200px; margin: 0 auto 12px }\n"
        "@media print { body { background: none } svg { max-width: none; margin: 0; break-after: page } }\n"
        "</style>\n</head>\n<body>\n";
    for (std::size_t i = 0; i < pages.size(); ++i) html += svgPage(pages[i], "p" + std::to_string(i + 1));
    return html + "</body>\n</html>\n";
}

} // namespace tarvex
