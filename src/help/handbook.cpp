#include "help/handbook.h"

#include "help/handbook_place.h"
#include "help/web_links.h"
#include "shell/help_topics.h"

#include <algorithm>

namespace tarvex {

namespace {

constexpr std::size_t longestHistory = 200;

// Where the window comes up, twips.
constexpr float firstLeft = 80.0F * twipsPerPixel;
constexpr float firstTop = 50.0F * twipsPerPixel;

/// "fil" lets "File menu" through, letters compared without case.
bool letsThrough(std::string_view filter, std::string_view word)
{
    const auto lower = [](char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; };
    return filter.size() <= word.size() &&
           std::equal(filter.begin(), filter.end(), word.begin(), [&](char a, char b) { return lower(a) == lower(b); });
}

void filterWords(Handbook& handbook)
{
    std::vector<std::size_t> shown;
    const auto& keywords = handbook.index.keywords();
    for (std::size_t i = 0; i < keywords.size(); ++i)
        if (letsThrough(handbook.Filter.Text.get(), keywords[i].word)) shown.push_back(i);
    handbook.ShownWords = shown;
}

/// Reads the index when the handbook is first wanted. False: there is none.
bool readIndex(Handbook& handbook)
{
    if (handbook.Ready) return true;
    const auto text = handbook.system->handbookFile("index.txt");
    if (!text) return false;
    handbook.index = HandbookIndex(*text);
    if (handbook.index.pages().empty()) return false;
    handbook.Ready = true;
    filterWords(handbook);
    return true;
}

/// The same; the user is shown why there is none.
bool makeReady(Handbook& handbook)
{
    if (readIndex(handbook)) return true;
    const std::string why = handbook.system->whyNoHandbook();
    handbook.editor.platform.dialogues.show(
        {.title = "Where's the handbook?",
         .text = "I'm afraid I can't open the handbook: " + (why.empty() ? "its index holds no pages" : why) +
                 ". Everything else works without it. Installing Tarvex again puts the handbook back.",
         .icon = BoxIcon::Exclamation});
    return false;
}

void showPlace(Handbook& handbook)
{
    handbook.Target = handbook.visited.at(handbook.at);
    handbook.Back.Enabled = handbook.at > 0;
    handbook.Forward.Enabled = handbook.at + 1 < handbook.visited.size();
    const HandbookIndex::Page* page = handbook.index.pageOf(handbook.Target.get());
    handbook.form.Caption = (page != nullptr ? page->title + " - " : "") + "Tarvex handbook";
}

/// The page becomes the newest one visited; those that Forward would have led to are forgotten.
void visit(Handbook& handbook, const std::string& target)
{
    const bool known = handbook.index.pageOf(target) != nullptr;
    const std::string place = known ? target : handbook.index.pages().front().file;
    auto& visited = handbook.visited;
    if (!visited.empty() && visited[handbook.at] == place) return showPlace(handbook);
    if (!visited.empty()) visited.resize(handbook.at + 1);
    visited.push_back(place);
    if (visited.size() > longestHistory) visited.erase(visited.begin());
    handbook.at = visited.size() - 1;
    showPlace(handbook);
}

void step(Handbook& handbook, bool back)
{
    if (back ? handbook.at == 0 : handbook.at + 1 >= handbook.visited.size()) return;
    handbook.at = back ? handbook.at - 1 : handbook.at + 1;
    showPlace(handbook);
}

void searchNow(Handbook& handbook)
{
    handbook.Hits = handbook.index.search(handbook.Search.Text.get());
    const std::size_t count = handbook.Hits.get().size();
    if (handbook.Search.Text.get().find_first_not_of(" \t") == std::string::npos)
        handbook.SearchResult.Caption = "";
    else if (count == 0)
        handbook.SearchResult.Caption = "No page has all these words";
    else
        handbook.SearchResult.Caption = count == 1 ? "1 page" : std::to_string(count) + " pages";
}

} // namespace

Handbook::Handbook(Editor& theEditor) : editor(theEditor)
{
    form.Caption = "Tarvex handbook";
    form.Left = firstLeft;
    form.Top = firstTop;
    Back.Caption = "Back";
    Forward.Caption = "Forward";
    Home.Caption = "First page";
    Ways.Tabs(contentsTab).Caption = "&Contents";
    Ways.Tabs(indexTab).Caption = "&Index";
    Ways.Tabs(searchTab).Caption = "&Search";
}

void wireHandbook(Handbook& handbook)
{
    handbook.form.Load = [&handbook] {
        const Steps steps;
        const Editor& editor = handbook.editor;
        steps([&] { readHandbookPlace(handbook.form, editor.shared.platformIni, editor.platform.desktop); });
        handbook.form.markLoaded();
    };
    handbook.form.Unload = [&handbook] {
        saveHandbookPlace(handbook.form, handbook.Target.get(), handbook.editor.shared.platformIni);
        handbook.form.markUnloaded();
    };
    handbook.Back.handler = [&handbook] { step(handbook, true); };
    handbook.Forward.handler = [&handbook] { step(handbook, false); };
    handbook.Home.handler = [&handbook] { showHandbookPage(handbook, ""); };
    handbook.connections.push_back(handbook.Filter.Text.changed.connect([&handbook] { filterWords(handbook); }));
    handbook.connections.push_back(handbook.Search.Text.changed.connect([&handbook] { searchNow(handbook); }));
    handbook.form.join(handbook.editor.mum.toolWindows);
}

void showHandbook(Handbook& handbook)
{
    const Steps steps;
    steps([&] {
        if (!makeReady(handbook)) return;
        if (handbook.visited.empty()) visit(handbook, lastHandbookPage(handbook.editor.shared.platformIni));
        handbook.form.open();
    });
}

void showHandbookPage(Handbook& handbook, const std::string& target)
{
    const Steps steps;
    steps([&] {
        if (!makeReady(handbook)) return;
        visit(handbook, target);
        handbook.form.open();
    });
}

void followHandbookLink(Handbook& handbook, const std::string& link)
{
    const Steps steps;
    steps([&] {
        if (!handbook.Ready) return; // no page is shown that could have one
        if (link.starts_with('#')) {
            const std::string shown = handbook.Target.get();
            return visit(handbook, shown.substr(0, shown.find('#')) + link);
        }
        if (handbook.index.pageOf(link) != nullptr) return visit(handbook, link);
        if (const auto address = openableAddress(*handbook.system, link)) handbook.system->openAddress(*address);
    });
}

void HelpKeyword(Handbook& handbook, const std::string& word)
{
    const Steps steps;
    steps([&] {
        if (!makeReady(handbook)) return;
        if (const auto target = handbook.index.lookUp(word))
            showHandbookPage(handbook, *target);
        else
            searchHandbook(handbook, word);
    });
}

void HelpTopic(Handbook& handbook, int topic)
{
    const Steps steps;
    steps([&] {
        if (!makeReady(handbook)) return;
        const auto target = handbook.index.topics().find(topic);
        showHandbookPage(handbook, target != handbook.index.topics().end() ? target->second : "");
    });
}

void ShowTour(Handbook& handbook)
{
    const Steps steps;
    steps([&] {
        if (readIndex(handbook)) HelpTopic(handbook, helpTopic::tour);
    });
}

void searchHandbook(Handbook& handbook, const std::string& words)
{
    constexpr std::size_t longestSearch = 200;
    const Steps steps;
    steps([&] {
        if (!makeReady(handbook)) return;
        std::string line = words.substr(0, words.find_first_of("\r\n"));
        if (line.size() > longestSearch) line.clear(); // no sensible search
        handbook.Search.Text = line;                   // and its hits are there
        handbook.Ways.Select(Handbook::searchTab);
        const auto& hits = handbook.Hits.get();
        visit(handbook, hits.empty() ? "" : handbook.index.pages()[hits.front().page].file);
        handbook.form.open();
    });
}

} // namespace tarvex
