#pragma once

#include "shell/operations.h"
#include "shell/tool_form.h"

#include <array>

namespace tarvex {

/// Indexes of the buttons at the foot of a wizard.
namespace footButton {
constexpr std::size_t close = 0;
constexpr std::size_t next = 1;
constexpr std::size_t back = 2;
constexpr std::size_t help = 3;
constexpr std::size_t count = 4;
} // namespace footButton

/// The pages of a wizard and the buttons at its foot. The pages are numbered from 0.
struct PageTurner {
    /// `theHelpTopic` is one of shell/help_topics.h.
    PageTurner(int theLastPage, int theHelpTopic, ToolForm& theForm)
        : lastPage(theLastPage), helpTopic(theHelpTopic), form(theForm)
    {
    }

    const int lastPage;
    const int helpTopic;
    ToolForm& form;
    Property<int> PageNumber = 0;
    std::array<Button, footButton::count> foot;
};

/// Gives the foot its captions; the help button is grey while nobody shows topics.
void loadFoot(PageTurner& pages, const Operations& operations);
/// Shows a page of the wizard, and which buttons it has.
void showPage(PageTurner& pages, int page);
/// A click of a button of the foot by its index: closes the window, turns the page or shows the wizard's help topic.
void footClick(PageTurner& pages, const Operations& operations, std::size_t index);

} // namespace tarvex
