#include "documents/text/pane.h"
#include "documents/text/plain_pane.h"

#include <gtest/gtest.h>

#include <iostream>
#include <random>

namespace tarvex {
namespace {

/// What a view keeps: it learns of the text and its formats by the signals alone.
class Mirror {
public:
    explicit Mirror(const Pane& pane) : m_pane(pane) {}

    void edited(const Pane::Edit& edit)
    {
        const auto position = static_cast<std::size_t>(edit.position);
        const auto removed = static_cast<std::size_t>(edit.removed);
        const auto inserted = static_cast<std::size_t>(edit.inserted);
        m_text.replace(position, removed, m_pane.Text().substr(position, inserted));
        const auto at = m_formats.begin() + edit.position;
        m_formats.insert(m_formats.erase(at, at + edit.removed), inserted, FormatId{});
        take(position, inserted);
        EXPECT_EQ(m_text.size(), m_pane.TextLength());
        m_textWasRight = m_textWasRight && m_text == m_pane.Text();
    }
    void reformatted(std::int64_t position, std::int64_t length)
    {
        take(static_cast<std::size_t>(position), static_cast<std::size_t>(length));
    }
    void selected()
    {
        m_selStart = m_pane.SelStart();
        m_selLength = m_pane.SelLength();
    }

    bool selectionIsRight() const { return m_selStart == m_pane.SelStart() && m_selLength == m_pane.SelLength(); }
    bool isRight() const
    {
        if (!m_textWasRight || m_text != m_pane.Text() || m_formats.size() != m_text.size()) return false;
        for (std::size_t i = 0; i < m_formats.size(); ++i) {
            if (m_formats[i] != m_pane.formatIdAt(i)) return false;
        }
        return true;
    }

private:
    void take(std::size_t position, std::size_t length)
    {
        for (std::size_t i = position; i < position + length; ++i) m_formats[i] = m_pane.formatIdAt(i);
    }

    const Pane& m_pane;
    std::string m_text;
    std::vector<FormatId> m_formats;
    std::int64_t m_selStart = 0;
    std::int64_t m_selLength = 0;
    bool m_textWasRight = true;
};

/// Does the same to a pane and to the plain model of it.
class RandomEditor {
public:
    RandomEditor(unsigned seed, std::size_t sizeLimit) : m_chance(seed), m_sizeLimit(sizeLimit)
    {
        m_connections.push_back(m_pane.edited.connect([this](const Pane::Edit& edit) { m_mirror.edited(edit); }));
        m_connections.push_back(m_pane.reformatted.connect(
            [this](std::int64_t position, std::int64_t length) { m_mirror.reformatted(position, length); }));
        m_connections.push_back(m_pane.selectionChanged.connect([this] { m_mirror.selected(); }));
        m_pane.Change = [this] { ++m_changes; };
    }

    void step()
    {
        switch (number(22)) {
        case 0:
            wholeText();
            break;
        case 1:
            typed();
            break;
        case 2:
            replaced();
            break;
        case 3:
            erased();
            break;
        case 4:
            formatted();
            break;
        case 5:
        case 6:
            coloured();
            break;
        case 7:
            indented();
            break;
        case 8:
            pasted();
            break;
        case 9:
            restored();
            break;
        case 10:
        case 11:
            found();
            break;
        case 12:
            spanned();
            break;
        case 13:
            font();
            break;
        case 14:
            kept();
            break;
        default:
            keys();
            break;
        }
    }

    void compareCheaply()
    {
        ASSERT_EQ(m_pane.TextLength(), m_plain.cells.size());
        ASSERT_EQ(m_pane.SelStart(), static_cast<std::int64_t>(m_plain.start));
        ASSERT_EQ(m_pane.SelLength(), static_cast<std::int64_t>(m_plain.length));
        ASSERT_TRUE(m_mirror.selectionIsRight());
        const std::size_t begin = m_plain.start - std::min<std::size_t>(m_plain.start, 40);
        const std::size_t end =
            std::min(m_plain.cells.size(), m_plain.start + std::min<std::size_t>(m_plain.length, 100) + 40);
        for (std::size_t i = begin; i < end; ++i) compareCell(i);
        const CharacterFormat expected =
            m_plain.length > 0 ? m_plain.cells[m_plain.start].format : m_plain.formatOfInsertion(m_plain.start);
        ASSERT_EQ(m_pane.SelFormat(), expected);
    }

    void compareFully()
    {
        ASSERT_EQ(m_pane.Text(), m_plain.text());
        for (std::size_t i = 0; i < m_plain.cells.size(); ++i) compareCell(i);
        ASSERT_TRUE(hasOnlyPairs(m_pane.Text()));
        ASSERT_TRUE(m_mirror.isRight());
        compareLines();
        ASSERT_EQ(PlainPane::cellsOf(m_pane.TextRTF()), m_plain.cells);
        for (const Kept& kept : m_kept) ASSERT_EQ(PlainPane::cellsOf(kept.text), kept.cells);
        ASSERT_LE(m_pane.TextRTF().chunks().size(), m_pane.TextLength() / 256 + 2);
    }

    int changes() const { return m_changes; }

private:
    struct Kept {
        RichText text;
        PlainPane::Cells cells;
    };

    void compareCell(std::size_t i)
    {
        ASSERT_EQ(m_pane.Text()[i], m_plain.cells[i].byte) << "at " << i;
        ASSERT_EQ(m_pane.formatAt(i), m_plain.cells[i].format) << "at " << i;
    }

    void compareLines()
    {
        const std::string text = m_plain.text();
        std::vector<std::size_t> starts{0};
        for (std::size_t lf = text.find('\n'); lf != text.npos; lf = text.find('\n', lf + 1)) starts.push_back(lf + 1);
        ASSERT_EQ(m_pane.lineCount(), static_cast<std::int64_t>(starts.size()));
        for (std::size_t line = 0; line < starts.size(); ++line) {
            const auto position = static_cast<std::int64_t>(starts[line]);
            ASSERT_EQ(m_pane.lineStart(static_cast<std::int64_t>(line)), position);
            ASSERT_EQ(m_pane.GetLineFromChar(position), static_cast<std::int64_t>(line));
            if (line == 0) continue;
            ASSERT_EQ(m_pane.GetLineFromChar(position - 1), static_cast<std::int64_t>(line) - 1);
        }
    }

    std::size_t number(std::size_t below) { return m_chance() % below; }
    bool coin() { return number(2) == 1; }
    std::size_t position() { return number(m_plain.cells.size() + 1); }

    std::string word(std::size_t most)
    {
        static const std::string bytes("aAbBnN _/\r\n\r\n\0\xC9\xE9\x9F", 17);
        std::string text;
        for (std::size_t i = number(most + 1); i > 0; --i) {
            text += number(30) == 0 ? static_cast<char>(number(256)) : bytes[number(bytes.size())];
        }
        return text;
    }

    std::string longText()
    {
        const std::size_t room = m_sizeLimit > m_plain.cells.size() ? m_sizeLimit - m_plain.cells.size() : 0;
        return word(std::min<std::size_t>(room, number(8) == 0 ? m_sizeLimit : 60));
    }

    void select()
    {
        const std::size_t start = position();
        m_pane.setSelStart(static_cast<std::int64_t>(start));
        m_plain.select(start, 0);
        if (number(4) == 0) return;
        const std::size_t most = m_plain.cells.size() - start;
        const std::size_t length = number(6) == 0 ? number(most + 1) : std::min(most, number(30));
        m_pane.setSelLength(static_cast<std::int64_t>(length));
        m_plain.select(start, length);
    }

    void wholeText()
    {
        if (number(20) != 0) return;
        const std::string text = word(m_sizeLimit);
        m_pane.setText(text);
        m_plain.setText(text);
    }

    void typed()
    {
        const std::string text = longText();
        m_pane.setSelText(text);
        m_plain.replace(m_plain.start, m_plain.start + m_plain.length, text);
    }

    void replaced()
    {
        select();
        typed();
    }

    void erased()
    {
        select();
        m_pane.setSelText("");
        m_plain.replace(m_plain.start, m_plain.start + m_plain.length, "");
    }

    void keys()
    {
        const bool there = coin();
        const std::size_t begin = there ? m_plain.start : position();
        const std::size_t removed = std::min(m_plain.cells.size() - begin, there ? m_plain.length : number(3));
        const std::string text = m_plain.cells.size() < m_sizeLimit ? word(2) : "";
        m_pane.userEdit(static_cast<std::int64_t>(begin), static_cast<std::int64_t>(removed), text);
        if (removed == 0 && text.empty()) return;
        m_plain.replace(begin, begin + removed, text);
    }

    void coloured()
    {
        select();
        const Colour colour = static_cast<Colour>(number(5) * 1000);
        m_pane.setSelColor(colour);
        m_plain.write([&](CharacterFormat& format) { format.colour = colour; });
    }

    void formatted()
    {
        if (coin()) select();
        const bool on = coin();
        switch (number(5)) {
        case 0: {
            const std::string name = on ? "Arial" : "Courier New";
            m_pane.setSelFontName(name);
            return m_plain.write([&](CharacterFormat& format) { format.fontName = name; });
        }
        case 1:
            m_pane.setSelFontSize(on ? 8.25F : 12);
            return m_plain.write([&](CharacterFormat& format) { format.fontSize = on ? 8.25F : 12; });
        case 2:
            m_pane.setSelBold(on);
            return m_plain.write([&](CharacterFormat& format) { format.bold = on; });
        case 3:
            m_pane.setSelItalic(on);
            return m_plain.write([&](CharacterFormat& format) { format.italic = on; });
        default:
            m_pane.setSelUnderline(on);
            return m_plain.write([&](CharacterFormat& format) { format.underline = on; });
        }
    }

    void indented()
    {
        if (number(3) != 0) return;
        if (coin()) select();
        const int twips = static_cast<int>(number(3)) * 20;
        m_pane.setSelIndent(twips);
        m_plain.setIndent(twips);
    }

    void font()
    {
        const PaneFont font{coin() ? "Arial" : "Fixed", coin() ? 10.0F : 9.0F, coin()};
        m_pane.setFont(font);
        if (m_plain.cells.empty() && m_plain.chosen && !(font == m_plain.font)) {
            m_plain.chosen->fontName = font.name;
            m_plain.chosen->fontSize = font.size;
            m_plain.chosen->bold = font.bold;
        }
        m_plain.font = font;
    }

    void kept()
    {
        Kept now{coin() ? m_pane.TextRTF() : m_pane.SelRTF(), {}};
        const auto from = m_plain.cells.begin() + static_cast<std::ptrdiff_t>(m_plain.start);
        const bool all = now.text.size() == m_plain.cells.size();
        now.cells = all ? m_plain.cells : PlainPane::Cells(from, from + static_cast<std::ptrdiff_t>(m_plain.length));
        if (number(6) == 0) now.text = translated(now.text, m_otherTable);
        if (m_kept.size() < 12) {
            m_kept.push_back(std::move(now));
        } else {
            m_kept[number(m_kept.size())] = std::move(now);
        }
    }

    void pasted()
    {
        if (m_kept.empty()) return;
        const Kept& kept = m_kept[number(m_kept.size())];
        if (kept.text.size() + m_plain.cells.size() > m_sizeLimit) return;
        select();
        m_pane.setSelRTF(kept.text);
        m_plain.replace(m_plain.start, m_plain.start + m_plain.length, kept.cells);
    }

    void restored()
    {
        if (m_kept.empty()) return;
        const Kept& kept = m_kept[number(m_kept.size())];
        m_pane.setTextRTF(kept.text);
        m_plain.replaceAll(kept.cells);
    }

    void found()
    {
        const bool whole = number(3) == 0;
        const std::string wanted = word(number(4) == 0 ? 6 : 2);
        const auto from = static_cast<std::int64_t>(whole ? 0 : position()) - (number(10) == 0 ? 65536 : 0);
        const auto to = static_cast<std::int64_t>(whole ? m_plain.cells.size() + 5 : position());
        const int options = static_cast<int>(number(4)) * 2;
        ASSERT_EQ(m_pane.Find(wanted, from, to, options), m_plain.find(wanted, from, to, options));
    }

    void spanned()
    {
        const std::string set = word(3);
        const bool forward = coin();
        const bool negate = coin();
        if (coin()) {
            m_pane.Span(set, forward, negate);
            m_plain.span(set, forward, negate);
        } else {
            m_pane.UpTo(set, forward, negate);
            m_plain.upTo(set, forward, negate);
        }
    }

    std::mt19937 m_chance;
    std::size_t m_sizeLimit;
    Pane m_pane;
    PlainPane m_plain;
    Mirror m_mirror{m_pane};
    std::vector<Connection> m_connections;
    std::vector<Kept> m_kept;
    std::shared_ptr<FormatTable> m_otherTable = std::make_shared<FormatTable>();
    int m_changes = 0;
};

void edit(unsigned seed, int steps, std::size_t sizeLimit)
{
    std::cout << "seed " << seed << '\n';
    RandomEditor editor(seed, sizeLimit);
    for (int step = 0; step < steps; ++step) {
        SCOPED_TRACE("step " + std::to_string(step));
        editor.step();
        editor.compareCheaply();
        if (step % 200 == 0) editor.compareFully();
        if (testing::Test::HasFailure()) return;
    }
    editor.compareFully();
    EXPECT_GT(editor.changes(), steps / 4);
}

} // namespace

// One hundred thousand edits in all: tiny texts find edges, larger ones many chunks.
TEST(PaneRandom, EditsOfATinyTextKeepItEqualToThePlainModel) { edit(20240611, 40000, 12); }
TEST(PaneRandom, EditsOfASmallTextKeepItEqualToThePlainModel) { edit(19960229, 40000, 300); }
TEST(PaneRandom, EditsOfATextOfManyChunksKeepItEqualToThePlainModel) { edit(7, 20000, 6000); }

} // namespace tarvex
