#pragma once

#include <cstddef>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tarvex {

/// What the handbook holds: chapters, pages, and what leads to them. A *target* is a page's file, with "#" and an
/// anchor behind it where a section of the page is meant. Texts are UTF-8; letter case is that of ASCII.
class HandbookIndex {
public:
    struct Page {
        std::string file;
        std::string title;
        std::string text; ///< without markup, on one line
    };
    struct Chapter {
        std::string title;
        std::vector<std::size_t> pages; ///< in their order; indexes of pages()
    };
    struct Keyword {
        std::string word;
        std::string target;
    };
    struct Hit {
        std::size_t page = 0;
        std::string excerpt; ///< the words around the first place
        bool operator==(const Hit&) const = default;
    };

    HandbookIndex() = default;
    /// Reads the index of the handbook: lines of fields between tabs. Lines of an unknown kind are passed over.
    explicit HandbookIndex(std::string_view text);

    const std::vector<Chapter>& chapters() const { return m_chapters; }
    const std::vector<Page>& pages() const { return m_pages; }
    const std::vector<Keyword>& keywords() const { return m_keywords; } ///< in the order of their words
    const std::map<int, std::string>& topics() const { return m_topics; }

    /// The page of a target; nothing when there is no such page.
    const Page* pageOf(std::string_view target) const;
    /// Where a word or a stretch of a file is explained: the keyword that it is, else the longest that it begins with,
    /// else the longest in it, each time as whole words. Nothing when no keyword fits.
    std::optional<std::string> lookUp(std::string_view words) const;
    /// The pages that hold all the words, in any order: those with more of them in the title first, then those that
    /// hold them more often.
    std::vector<Hit> search(std::string_view words) const;

private:
    void takeLine(const std::vector<std::string_view>& fields);

    std::vector<Chapter> m_chapters;
    std::vector<Page> m_pages;
    std::vector<std::string> m_foldedTexts; ///< of the pages
    std::vector<std::string> m_foldedTitles;
    std::vector<Keyword> m_keywords;
    std::map<std::string, std::string> m_targets; ///< by folded keyword
    std::map<int, std::string> m_topics;
};

} // namespace tarvex
