#include "sheet/sheet_layout.h"

#include "sheet/sheet_table.h"
#include "sheet/text_width.h"

#include <algorithm>
#include <array>

namespace tarvex {

namespace {

constexpr double margin = 24;
constexpr double headHeight = 40;
constexpr double gap = 14;
constexpr double footHeight = 14;
constexpr double largestText = 18;
constexpr double smallestText = 5;
constexpr double textStep = 0.5;
constexpr double largestParted = 14; ///< a text that parts words isn't worth more
constexpr std::size_t mostPages = 4; ///< of a controller
constexpr double pictureWidth = 580;
constexpr double pictureHeight = 480;
/// Parts of its half of the page that the picture takes across: a smaller picture is still clear where a smaller text
/// is not.
constexpr std::array pictureShares{1.0, 0.8, 0.62, 0.5};

/// Where everything stands on a page.
struct Places {
    SheetArea left;
    SheetArea right;

    /// `share` is that of the picture; 0 is a page without one.
    Places(const SheetPaper& paper, double share)
    {
        const double width = areaWidth(paper);
        const double top = margin + headHeight + gap / 2;
        const double bottom = paper.height - margin - footHeight;
        const double pictured = share * width / pictureWidth * pictureHeight;
        left = {margin, share > 0 ? top + pictured + gap / 2 : top, width, bottom};
        right = {margin + width + gap, top, width, bottom};
    }
    static double areaWidth(const SheetPaper& paper) { return (paper.width - 2 * margin - gap) / 2; }
};

SheetPicture placedPicture(PictureOf what, const SheetPaper& paper, double share)
{
    constexpr double ownLabels = 15;
    constexpr double largestLabels = 22; // what the drawings have room for
    constexpr double legibleLabels = 9;
    const double width = Places::areaWidth(paper);
    const double scale = width * share / pictureWidth;
    return {.picture = what,
            .x = margin + width * (1 - share) / 2,
            .y = margin + headHeight + gap / 2,
            .scale = scale,
            .labelSize = std::clamp(legibleLabels / scale, ownLabels, largestLabels)};
}

/// A way to spread the rows of a controller.
struct Plan {
    double size = 0;
    double share = 0;
    std::size_t pages = 0;
    std::size_t left = 0; ///< rows without room
};

Plan tried(const SheetTable& table, std::size_t rows, const SheetPaper& paper, double size, double share,
           std::size_t most)
{
    std::size_t row = 0;
    std::size_t pages = 0;
    while (pages == 0 || (row < rows && pages < most)) {
        const Places places(paper, pages == 0 ? share : 0);
        row = table.fill(table.fill(row, places.left), places.right);
        ++pages;
    }
    return {.size = size, .share = share, .pages = pages, .left = rows - row};
}

/// The plan with the largest text from `largest` down to `smallest` that leaves no row; else the last one that was
/// tried.
Plan bestPlan(const SheetPage& page, const SheetPaper& paper, double largest, double smallest, std::size_t pages)
{
    Plan plan;
    for (double size = largest; size >= smallest; size -= textStep) {
        const SheetTable table(page, Places::areaWidth(paper), size);
        if (size > largestParted && table.partsWords()) continue;
        for (const double share : pictureShares) {
            plan = tried(table, page.rows.size(), paper, size, share, pages);
            if (plan.left == 0) return plan;
        }
    }
    return plan;
}

Plan planFor(const SheetPage& page, const SheetPaper& paper, SheetSpread spread)
{
    Plan plan = bestPlan(page, paper, largestText, legibleText, 1);
    if (spread == SheetSpread::MorePages) {
        for (std::size_t pages = 2; plan.left > 0 && pages <= mostPages; ++pages)
            plan = bestPlan(page, paper, largestText, legibleText, pages);
    }
    if (plan.left == 0) return plan;
    return bestPlan(page, paper, legibleText - textStep, smallestText, plan.pages);
}

// ---- head and foot --------------------------------------------------------------------------------------------------

void paintHead(std::vector<SheetItem>& items, const ControlSheet& sheet, const std::string& description,
               const SheetPaper& paper)
{
    constexpr double nameSize = 22;
    constexpr double smallSize = 11;
    constexpr double inset = 10;
    const double width = paper.width - 2 * margin;
    items.emplace_back(SheetBox{margin, margin, width, headHeight, sheetInk::head});
    items.emplace_back(SheetText{margin + inset, margin + headHeight / 2 + nameSize * 0.36, nameSize, true,
                                 sheetInk::onHead, cutTo(sheet.fileName, width * 0.55, nameSize, true)});
    const auto atRight = [&](const std::string& text, double baseline, bool bold) {
        const std::string shown = cutTo(text, width * 0.42, smallSize, bold);
        const double x = margin + width - inset - textWidth(shown, smallSize, bold);
        items.emplace_back(SheetText{x, margin + baseline, smallSize, bold, sheetInk::onHead, shown});
    };
    atRight(description, 17, true);
    atRight((sheet.macroName.empty() ? "" : "with the macros of " + sheet.macroName + ", ") + sheet.date, 32, false);
}

void paintFoot(std::vector<SheetItem>& items, const SheetPage& page, const SheetPaper& paper, std::size_t left)
{
    constexpr double size = 8;
    std::string text = left == 0 ? "" : "No room for " + std::to_string(left) + " more. ";
    for (const std::string& name : page.unused)
        text += (text.ends_with(". ") || text.empty() ? "Nothing on " : ", ") + name;
    if (text.empty()) return;
    items.emplace_back(SheetText{margin, paper.height - margin, size, false, sheetInk::grey,
                                 cutTo(text, paper.width - 2 * margin, size, false)});
}

void layOutController(std::vector<LaidOutPage>& pages, const ControlSheet& sheet, const SheetPage& page,
                      const SheetPaper& paper, SheetSpread spread)
{
    const Plan plan = planFor(page, paper, spread);
    const SheetTable table(page, Places::areaWidth(paper), plan.size);
    const std::string description(picture(page.picture).description);
    std::size_t row = 0;
    for (std::size_t number = 1; number <= plan.pages; ++number) {
        const bool first = number == 1;
        const bool last = number == plan.pages;
        LaidOutPage made{.paper = paper, .items = {}, .textSize = plan.size, .left = last ? plan.left : 0};
        const std::string part =
            plan.pages == 1 ? "" : ", " + std::to_string(number) + " of " + std::to_string(plan.pages);
        paintHead(made.items, sheet, description + part, paper);
        if (first) made.items.emplace_back(placedPicture(page.picture, paper, plan.share));
        const Places places(paper, first ? plan.share : 0);
        row = table.paint(made.items, row, places.left);
        row = table.paint(made.items, row, places.right);
        if (last) paintFoot(made.items, page, paper, plan.left);
        pages.push_back(std::move(made));
    }
}

} // namespace

std::vector<LaidOutPage> layOut(const ControlSheet& sheet, const SheetPaper& paper, SheetSpread spread)
{
    std::vector<LaidOutPage> pages;
    for (const SheetPage& page : sheet.pages) layOutController(pages, sheet, page, paper, spread);
    return pages;
}

} // namespace tarvex
