#include "wizards/wizard_pages.h"

#include "platform/lines.h"
#include "platform/text.h"

#include <optional>

namespace tarvex {

namespace {

using Kind = WizardBlock::Kind;

constexpr std::string_view exampleIndent = "    ";

/// The words between square brackets.
std::optional<WizardBlock> bracketed(std::string_view line)
{
    if (!line.starts_with('[') || !line.ends_with(']')) return std::nullopt;
    const std::string_view words = line.substr(1, line.size() - 2);
    if (words == "macro") return WizardBlock{Kind::Macro, {}};
    if (words == "headings") return WizardBlock{Kind::Headings, {}};
    if (words.starts_with("picture ")) return WizardBlock{Kind::Picture, std::string(words.substr(8))};
    if (words.starts_with("button ")) return WizardBlock{Kind::Button, {}, static_cast<int>(Val(words.substr(7)))};
    return std::nullopt;
}

class Reader {
public:
    void read(std::string_view line)
    {
        if (line.starts_with("= ")) {
            m_pages.push_back({std::string(line.substr(2)), {}});
            m_open = false;
        } else if (!m_pages.empty()) {
            readPiece(line);
        }
    }
    std::vector<WizardPage> take() { return std::move(m_pages); }

private:
    void readPiece(std::string_view line)
    {
        if (line.starts_with(exampleIndent)) {
            goOn(Kind::Example, line.substr(exampleIndent.size()), '\n');
        } else if (line.empty()) {
            m_open = false;
        } else if (auto block = bracketed(line)) {
            add(std::move(*block));
        } else if (line.starts_with("* ")) {
            add({Kind::Item, std::string(line.substr(2))});
        } else {
            goOn(openKind() == Kind::Item ? Kind::Item : Kind::Paragraph, line, ' ');
        }
    }
    std::optional<Kind> openKind() const
    {
        return m_open ? std::optional(m_pages.back().blocks.back().kind) : std::nullopt;
    }
    void add(WizardBlock block)
    {
        m_pages.back().blocks.push_back(std::move(block));
        m_open = true;
    }
    /// Adds to the piece that is open, if it is of this kind; otherwise begins one.
    void goOn(Kind kind, std::string_view text, char between)
    {
        if (openKind() != kind) return add({kind, std::string(text)});
        (m_pages.back().blocks.back().text += between) += text;
    }

    std::vector<WizardPage> m_pages;
    bool m_open = false; ///< the last piece can go on
};

} // namespace

std::vector<WizardPage> readWizardPages(std::string_view text)
{
    Reader reader;
    for (const std::string_view line : linesOf(text)) reader.read(line);
    return reader.take();
}

} // namespace tarvex
