#include "shown_pane.h"

#include <random>

namespace tarvex {
namespace {

/// Random edits of both sides in any order: view and pane end up equal.
class RandomEdits {
public:
    RandomEdits(ShownPane& shown, unsigned seed) : m_shown(shown), m_chance(seed) {}

    void step()
    {
        switch (upTo(9)) {
        case 0:
            programInserts();
            break;
        case 1:
            programRemoves();
            break;
        case 2:
            programColours();
            break;
        case 3:
            m_shown.type(QString(QChar('a' + upTo(3))));
            break;
        case 4:
            m_shown.press(Qt::Key_Return);
            break;
        case 5:
            m_shown.press(upTo(2) != 0 ? Qt::Key_Backspace : Qt::Key_Delete);
            break;
        case 6:
            m_shown.view.settle();
            m_shown.select(upTo(documentLength() + 1), upTo(documentLength() + 1));
            break;
        case 7:
            m_shown.view.settle();
            m_shown.caretTo(upTo(documentLength() + 1));
            break;
        default:
            ShownPane::events();
        }
    }

private:
    int upTo(int bound) { return std::uniform_int_distribution<int>(0, bound - 1)(m_chance); }
    int documentLength() const { return m_shown.view.document()->characterCount() - 1; }
    void somewhere(int most)
    {
        m_shown.pane.setSelStart(upTo(static_cast<int>(m_shown.pane.TextLength()) + 1));
        m_shown.pane.setSelLength(upTo(most));
    }
    void programInserts()
    {
        static const std::vector<std::string> texts{"aa", "b\r\na", "\r\n", "a", "\r\n\r\nb", "\x01"};
        somewhere(4);
        m_shown.pane.setSelText(texts[static_cast<std::size_t>(upTo(static_cast<int>(texts.size())))]);
    }
    void programRemoves()
    {
        somewhere(12);
        m_shown.pane.setSelText("");
    }
    void programColours()
    {
        somewhere(20);
        m_shown.pane.setSelColor(upTo(2) != 0 ? red : blue);
    }

    ShownPane& m_shown;
    std::mt19937 m_chance;
};

TEST(PaneView, RandomEditsOfBothSidesKeepViewAndPaneEqual)
{
    for (unsigned seed = 1; seed <= 8; ++seed) {
        ShownPane shown("aab\r\nba\r\n\r\nabab");
        RandomEdits edits(shown, seed);
        for (int step = 0; step < 600; ++step) {
            edits.step();
            if (step % 7 == 0) shown.expectEqual();
            ASSERT_FALSE(testing::Test::HasFailure()) << "seed " << seed << ", step " << step;
        }
        shown.expectEqual();
    }
}

} // namespace
} // namespace tarvex
