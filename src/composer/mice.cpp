#include "composer/mice.h"

#include "composer/insertion.h"

#include <span>

namespace tarvex {

namespace {

/// Which button of the controllers works as which button of the mouse.
struct MouseButtons {
    const char* left;
    const char* middle;
    const char* right;
};

constexpr MouseButtons twoButtons[] = {
    {"T1", "n/a", "T6"}, {"T6", "n/a", "T1"}, {"T1", "n/a", "n/a"}, {"T6", "n/a", "n/a"}, {"n/a", "n/a", "n/a"},
};

/// Of three-button and Logitech mice.
constexpr MouseButtons threeButtons[] = {
    {"T1", "T6", "n/a"}, {"T6", "T1", "n/a"}, {"T1", "n/a", "n/a"}, {"T6", "n/a", "n/a"}, {"n/a", "n/a", "n/a"},
    {"T1", "T6", "T3"},  {"T6", "T1", "T3"},  {"T1", "n/a", "T3"},  {"T6", "n/a", "T3"},  {"n/a", "n/a", "T3"},
};

struct MouseKind {
    const char* caption;
    char letter; ///< of its types: "A1"
    std::span<const MouseButtons> types;
};
constexpr MouseKind kinds[] = {
    {"2 button", 'A', twoButtons}, {"3 button", 'B', threeButtons}, {"Logitech", 'C', threeButtons}};

std::size_t chosenKind(const InsertOptions& window)
{
    std::size_t chosen = 0;
    for (std::size_t i = 0; i < window.mice.Option1.size(); ++i) {
        if (window.mice.Option1[i].Value) chosen = i;
    }
    return chosen;
}

} // namespace

void FillMiceListBoxes(InsertOptions& window)
{
    for (std::size_t i = 0; i < std::size(kinds); ++i) {
        std::vector<std::string> types;
        for (std::size_t type = 1; type <= kinds[i].types.size(); ++type)
            types.push_back(kinds[i].letter + std::to_string(type));
        window.mice.MouseList[i].Items = std::move(types);
        window.mice.MouseList[i].ListIndex = 0;
    }
    Option1_Click(window, 0);
}

void MouseList_Click(InsertOptions& window, int Index)
{
    const auto list = static_cast<std::size_t>(Index);
    const auto row = static_cast<std::size_t>(window.mice.MouseList.at(list).ListIndex.get());
    if (row >= kinds[list].types.size()) return;
    const MouseButtons& buttons = kinds[list].types[row];
    window.mice.Label5[0].Caption = buttons.left;
    window.mice.Label5[1].Caption = buttons.middle;
    window.mice.Label5[2].Caption = buttons.right;
}

void Option1_Click(InsertOptions& window, int Index)
{
    const auto chosen = static_cast<std::size_t>(Index);
    for (std::size_t i = 0; i < window.mice.Option1.size(); ++i) {
        window.mice.Option1[i].Value = i == chosen;
        window.mice.MouseList[i].Visible = i == chosen;
    }
    MouseList_Click(window, Index);
}

void Command9_Click(InsertOptions& window)
{
    const Steps step(window.editor.shared.errors, "COMPOSER Command9_Click");
    step([&] {
        const ListBox& list = window.mice.MouseList[chosenKind(window)];
        const auto row = static_cast<std::size_t>(list.ListIndex.get());
        const std::vector<std::string>& types = list.Items;
        insertStatement(window, {"USE MTYPE ", row < types.size() ? types[row] : std::string()});
    });
}

void wireMice(InsertOptions& window)
{
    for (std::size_t i = 0; i < std::size(kinds); ++i) {
        const int index = static_cast<int>(i);
        window.mice.Option1[i].Caption = kinds[i].caption;
        window.mice.Option1[i].Click = [&window, index] { Option1_Click(window, index); };
        window.mice.MouseList[i].Click = [&window, index] { MouseList_Click(window, index); };
    }
    window.mice.Command9.Caption = "Insert";
    window.mice.Command9.handler = [&window] { Command9_Click(window); };
}

} // namespace tarvex
