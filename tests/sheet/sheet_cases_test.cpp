// Where everything stands on the sheets of the files in tests/data/sheet: each folder has a joystick file, a macro file
// and the items of the pages for each paper and spread.

#include "expected_file.h"

#include "sheet/number_text.h"
#include "sheet/sheet_layout.h"

#include <cstdio>

namespace tarvex {
namespace {

namespace fs = std::filesystem;

std::string hex(SheetColour colour)
{
    std::array<char, 16> text{};
    std::snprintf(text.data(), text.size(), "#%06x", static_cast<unsigned>(colour));
    return text.data();
}

std::string numbers(std::initializer_list<double> values)
{
    std::string text;
    for (const double value : values) text += " " + fixedText(value, 2);
    return text;
}

struct ItemLine {
    std::string operator()(const SheetText& text) const
    {
        return "text" + numbers({text.x, text.baseline, text.size}) + (text.bold ? " bold " : " ") + hex(text.colour) +
               " " + text.text;
    }
    std::string operator()(const SheetBox& box) const
    {
        return "box" + numbers({box.x, box.y, box.width, box.height}) + " " + hex(box.fill);
    }
    std::string operator()(const SheetPicture& shown) const
    {
        return "picture" + numbers({shown.x, shown.y, shown.scale, shown.labelSize}) + " " +
               std::string(picture(shown.picture).file);
    }
};

std::string linesOf(const std::vector<LaidOutPage>& pages)
{
    std::string lines;
    for (const LaidOutPage& page : pages) {
        lines += "page" + numbers({page.paper.width, page.paper.height, page.textSize}) + " left " +
                 std::to_string(page.left) + "\n";
        for (const SheetItem& item : page.items) lines += std::visit(ItemLine(), item) + "\n";
    }
    return lines;
}

ControlSheet sheetOf(const fs::path& folder)
{
    std::string joystickName;
    std::string joystickText;
    std::string macroName;
    std::string macroText;
    for (const fs::directory_entry& entry : fs::directory_iterator(folder)) {
        const std::string name = entry.path().filename().string();
        if (!name.starts_with("input.")) continue;
        const bool isMacroFile = name.starts_with("input.m");
        (isMacroFile ? macroName : joystickName) = name;
        (isMacroFile ? macroText : joystickText) = contentsOf(entry.path());
    }
    return controlSheet(
        {.joystickName = joystickName, .joystickText = joystickText, .macroName = macroName, .macroText = macroText},
        "21 November 2026");
}

TEST(SheetCases, StandAsTheirFilesHaveThem)
{
    int cases = 0;
    for (const fs::directory_entry& folder : fs::directory_iterator(testData("sheet"))) {
        const ControlSheet sheet = sheetOf(folder.path());
        ASSERT_FALSE(sheet.pages.empty()) << folder.path();
        expectFile(folder.path() / "a4.txt", linesOf(layOut(sheet, sheetA4, SheetSpread::MorePages)));
        expectFile(folder.path() / "letter.txt", linesOf(layOut(sheet, sheetLetter, SheetSpread::MorePages)));
        expectFile(folder.path() / "one_page.txt", linesOf(layOut(sheet, sheetA4, SheetSpread::OnePage)));
        ++cases;
    }
    EXPECT_EQ(cases, 3);
}

} // namespace
} // namespace tarvex
