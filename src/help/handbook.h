#pragma once

#include "documents/pair/editor.h"
#include "help/handbook_index.h"
#include "platform/help_system.h"
#include "shell/tool_form.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tarvex {

/// The handbook's window. The view shows the page of `Target`, and the lists of the three ways in.
struct Handbook {
    static constexpr int contentsTab = 1; ///< of Ways
    static constexpr int indexTab = 2;
    static constexpr int searchTab = 3;

    explicit Handbook(Editor& theEditor);
    Handbook(const Handbook&) = delete;
    Handbook& operator=(const Handbook&) = delete;

    Editor& editor;
    HelpSystem nothing;            ///< until the program is given a system
    HelpSystem* system = &nothing; ///< never none
    std::int16_t WindowOpen = 0;
    ToolForm form{"Handbook", &WindowOpen};

    HandbookIndex index;          ///< empty until the handbook is first wanted
    Property<bool> Ready = false; ///< the index is there
    Property<std::string> Target; ///< the page that is shown, perhaps with "#" and a place in it
    Button Back;
    Button Forward;
    Button Home;
    TabStrip Ways{3};
    TextBox Filter;                                 ///< of the index
    Property<std::vector<std::size_t>> ShownWords;  ///< the keywords that the filter lets through, in order
    TextBox Search;                                 ///< words to look for in all pages
    Property<std::vector<HandbookIndex::Hit>> Hits; ///< what the last search found
    Label SearchResult;                             ///< says how many

    std::vector<std::string> visited; ///< targets, oldest first
    std::size_t at = 0;               ///< index in visited of the page shown
    std::vector<Connection> connections;
};

void wireHandbook(Handbook& handbook);

/// Shows the handbook where it was left, in this run or an earlier one; at first at its first page.
void showHandbook(Handbook& handbook);
/// Shows a page. A target without a page shows the first one.
void showHandbookPage(Handbook& handbook, const std::string& target);
/// The user follows a link of the page that is shown; `link` is as the page has it. One that leads nowhere in the
/// handbook is opened in the system's browser if it is an address of the web.
void followHandbookLink(Handbook& handbook, const std::string& link);
/// Shows what explains a word; one that no page claims is searched for.
void HelpKeyword(Handbook& handbook, const std::string& word);
/// Shows the page of a topic number; the first one for a number without a page.
void HelpTopic(Handbook& handbook, int topic);
/// Shows the tour of the program; without a handbook nothing happens.
void ShowTour(Handbook& handbook);
/// Searches all pages, and shows what was found.
void searchHandbook(Handbook& handbook, const std::string& words);

} // namespace tarvex
