#include "desktop/documents/text/pane_view.h"

#include "desktop/documents/text/pane_text.h"
#include "documents/editing/clipboard_commands.h"
#include "documents/text/rtf/rtf.h"

#include <QApplication>
#include <QInputMethodEvent>
#include <QMimeData>
#include <QScrollBar>
#include <QTest>

#include <gtest/gtest.h>

#include <memory>
#include <random>

namespace tarvex {
namespace {

constexpr Colour red = 0x0000FF;
constexpr Colour blue = 0xFF0000;

/// A pane in a window, as large as a screen has room for.
struct Shown {
    Pane pane;
    PaneView view{pane};
    int changes = 0;

    explicit Shown(std::string_view text = {})
    {
        pane.setText(text);
        pane.Change = [this] { ++changes; };
        view.resize(600, 400);
        view.show();
        view.setFocus();
        events();
    }
    static void events() { QApplication::processEvents(); }
    QString text() const { return view.toPlainText(); }
    void press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        QTest::keyClick(&view, key, modifiers);
    }
    void type(const QString& text) { QTest::keyClicks(&view, text); }
    void caretTo(int position)
    {
        view.settle();
        QTextCursor cursor = view.textCursor();
        cursor.setPosition(position);
        view.setTextCursor(cursor);
    }
    void select(int from, int to)
    {
        view.settle();
        QTextCursor cursor = view.textCursor();
        cursor.setPosition(from);
        cursor.setPosition(to, QTextCursor::KeepAnchor);
        view.setTextCursor(cursor);
    }
    void colour(std::int64_t start, std::int64_t length, Colour colour)
    {
        const auto oldStart = pane.SelStart();
        const auto oldLength = pane.SelLength();
        pane.setSelStart(start);
        pane.setSelLength(length);
        pane.setSelColor(colour);
        pane.setSelStart(oldStart);
        pane.setSelLength(oldLength);
    }
    Colour shownColour(int line, int column)
    {
        view.settle();
        view.formatAll();
        for (const auto& range : view.document()->findBlockByNumber(line).layout()->formats()) {
            if (column < range.start || column >= range.start + range.length) continue;
            const QColor shown = range.format.foreground().color();
            return shown.red() | shown.green() << 8 | shown.blue() << 16;
        }
        return 0;
    }
    /// Characters and colours of the document are those of the pane.
    void expectEqual()
    {
        view.settle();
        view.formatAll();
        EXPECT_EQ(text(), documentText(pane.Text()).replace(QChar::ParagraphSeparator, u'\n'));
        std::size_t position = 0;
        for (QTextBlock block = view.document()->firstBlock(); block.isValid(); block = block.next()) {
            std::vector<Colour> colours(static_cast<std::size_t>(block.length()) - 1, 0);
            for (const auto& range : block.layout()->formats()) {
                const QColor shown = range.format.foreground().color();
                ASSERT_LE(range.start + range.length, block.length() - 1) << "line " << block.blockNumber();
                for (int i = range.start; i < range.start + range.length; ++i) {
                    colours.at(static_cast<std::size_t>(i)) = shown.red() | shown.green() << 8 | shown.blue() << 16;
                }
            }
            for (const Colour shown : colours) {
                ASSERT_EQ(shown, pane.formatAt(position).colour) << "position " << position;
                ++position;
            }
            position += 2;
        }
        EXPECT_EQ(position, pane.TextLength() + 2);
    }
};

TEST(PaneView, TypedTextArrivesInThePane)
{
    Shown shown;
    shown.type("BTN S1");
    shown.press(Qt::Key_Return);
    shown.type("x");
    EXPECT_EQ(shown.pane.Text(), "BTN S1\r\nx");
    EXPECT_EQ(shown.pane.SelStart(), 9);
    EXPECT_EQ(shown.changes, 8);
}

TEST(PaneView, ShiftReturnEndsALineToo)
{
    Shown shown("ab");
    shown.caretTo(1);
    shown.press(Qt::Key_Return, Qt::ShiftModifier);
    EXPECT_EQ(shown.pane.Text(), "a\r\nb");
    EXPECT_EQ(shown.view.document()->blockCount(), 2);
    EXPECT_EQ(shown.pane.SelStart(), 3);
    EXPECT_EQ(shown.view.textCursor().position(), 2);
}

TEST(PaneView, BackspaceAtALineStartTakesTheWholeLineEnd)
{
    Shown shown("ab\r\ncd");
    shown.caretTo(3);
    shown.press(Qt::Key_Backspace);
    EXPECT_EQ(shown.pane.Text(), "abcd");
    EXPECT_EQ(shown.changes, 1);
    EXPECT_EQ(shown.pane.SelStart(), 2);
}

TEST(PaneView, TypingOverEverythingIsOneEdit)
{
    Shown shown("one\r\ntwo\r\nthree");
    shown.view.selectAll();
    shown.type("x");
    EXPECT_EQ(shown.pane.Text(), "x");
    EXPECT_EQ(shown.changes, 1);
}

TEST(PaneView, CharacterTypedOverItsEqualIsAnEdit)
{
    Shown shown("abc def");
    shown.caretTo(7);
    shown.press(Qt::Key_Left, Qt::ShiftModifier);
    shown.type("f");
    EXPECT_EQ(shown.changes, 1);
    EXPECT_EQ(shown.pane.SelStart(), 7);
    EXPECT_EQ(shown.pane.SelLength(), 0);
    shown.type("g");
    EXPECT_EQ(shown.pane.Text(), "abc defg");
}

TEST(PaneView, OverwritingEqualCharactersMovesTheCaretOn)
{
    Shown shown("abc");
    shown.press(Qt::Key_Insert);
    shown.type("abX");
    EXPECT_EQ(shown.pane.Text(), "abX");
    EXPECT_EQ(shown.changes, 3);
    EXPECT_EQ(shown.pane.SelStart(), 3);
}

TEST(PaneView, ReturnTypedOverASelectedLineEndIsAnEdit)
{
    Shown shown("ab\r\ncd");
    shown.select(2, 3);
    shown.press(Qt::Key_Return);
    EXPECT_EQ(shown.pane.Text(), "ab\r\ncd");
    EXPECT_EQ(shown.changes, 1);
    EXPECT_EQ(shown.pane.SelStart(), 4);
}

TEST(PaneView, ComposedCharacterCommittedOverItsEqualIsAnEdit)
{
    Shown shown("xfx");
    shown.select(1, 2);
    QInputMethodEvent commit;
    commit.setCommitString("f");
    QApplication::sendEvent(&shown.view, &commit);
    EXPECT_EQ(shown.pane.Text(), "xfx");
    EXPECT_EQ(shown.changes, 1);
    EXPECT_EQ(shown.pane.SelStart(), 2);
}

TEST(PaneView, CompositionThatIsGivenUpIsNoEdit)
{
    Shown shown("xfx");
    shown.caretTo(1);
    for (const char* composed : {"f", "fx", ""}) {
        QInputMethodEvent composing(composed, {});
        QApplication::sendEvent(&shown.view, &composing);
    }
    EXPECT_EQ(shown.pane.Text(), "xfx");
    EXPECT_EQ(shown.changes, 0);
    EXPECT_EQ(shown.pane.SelStart(), 1);
}

TEST(PaneView, PasteOfEqualTextIsAnEdit)
{
    Shown shown("xfx");
    shown.select(1, 2);
    shown.view.copy();
    shown.view.paste();
    EXPECT_EQ(shown.pane.Text(), "xfx");
    EXPECT_EQ(shown.changes, 1);
    EXPECT_EQ(shown.pane.SelStart(), 2);
    EXPECT_EQ(shown.view.textCursor().position(), 2);
}

TEST(PaneView, CharacterOutsideTheCodePageBecomesAQuestionMarkInPaneAndView)
{
    Shown shown("ab");
    shown.caretTo(1);
    QInputMethodEvent commit;
    commit.setCommitString(QString::fromUtf8("\u4E2D\U0001F600\u20AC"));
    QApplication::sendEvent(&shown.view, &commit);
    EXPECT_EQ(shown.pane.Text(), "a??\x80"
                                 "b");
    EXPECT_EQ(shown.text(), QString::fromUtf8("a??\u20ACb"));
    EXPECT_EQ(shown.view.textCursor().position(), 4);
    EXPECT_EQ(shown.pane.SelStart(), 4);
}

TEST(PaneView, DecomposedLetterIsComposed)
{
    Shown shown;
    QInputMethodEvent commit;
    commit.setCommitString(QString::fromUtf8("e\u0301"));
    QApplication::sendEvent(&shown.view, &commit);
    EXPECT_EQ(shown.pane.Text(), "\xE9");
    EXPECT_EQ(shown.text(), QString::fromUtf8("\u00E9"));
}

TEST(PaneView, ControlCharactersShowAsPicturesAndStayWhatTheyAre)
{
    Shown shown(std::string_view("a\x01\t\x7F\x00z", 6));
    EXPECT_EQ(shown.text(), QString::fromUtf8("a\u2401\t\u2421\u2400z"));
    shown.caretTo(6);
    shown.type("!");
    EXPECT_EQ(shown.pane.Text(), std::string_view("a\x01\t\x7F\x00z!", 7));
}

TEST(PaneView, EditOfTheProgramAppears)
{
    Shown shown("one\r\ntwo");
    shown.pane.setSelStart(3);
    shown.pane.setSelText("!\r\nand");
    Shown::events();
    EXPECT_EQ(shown.text(), "one!\nand\ntwo");
    EXPECT_EQ(shown.view.textCursor().position(), 8);
}

TEST(PaneView, SelectionGoesBothWays)
{
    Shown shown("one\r\ntwo\r\nthree");
    shown.select(4, 7);
    EXPECT_EQ(shown.pane.SelStart(), 5);
    EXPECT_EQ(shown.pane.SelLength(), 3);
    shown.select(7, 1); // backwards
    EXPECT_EQ(shown.pane.SelStart(), 1);
    EXPECT_EQ(shown.pane.SelLength(), 7);
    Shown::events();
    EXPECT_EQ(shown.view.textCursor().position(), 1) << "the caret stays at the end that the user moves";
    shown.pane.setSelStart(10);
    shown.pane.setSelLength(2);
    Shown::events();
    EXPECT_EQ(shown.view.textCursor().selectedText(), "th");
}

TEST(PaneView, MovingTheCaretForgetsNoChosenFormatUnlessItMoves)
{
    Shown shown("ab");
    shown.caretTo(1);
    shown.pane.setSelColor(red);
    Shown::events();
    shown.type("x");
    EXPECT_EQ(shown.shownColour(0, 1), red);
    EXPECT_EQ(shown.shownColour(0, 0), 0);
}

TEST(PaneView, ColoursOfThePaneAreSeenAndFollowTheText)
{
    Shown shown("BTN S1 a\r\nRem x");
    shown.colour(0, 3, blue);
    shown.colour(10, 3, red);
    Shown::events();
    EXPECT_EQ(shown.shownColour(0, 2), blue);
    EXPECT_EQ(shown.shownColour(0, 3), 0);
    EXPECT_EQ(shown.shownColour(1, 0), red);
    shown.caretTo(0);
    shown.press(Qt::Key_Return);
    EXPECT_EQ(shown.shownColour(2, 0), red);
    shown.expectEqual();
}

TEST(PaneView, CaretAndScrollStayWhenTheProgramColoursTheText)
{
    std::string text;
    for (int line = 0; line < 300; ++line) text += "BTN S1 a\r\n";
    Shown shown(text);
    shown.view.verticalScrollBar()->setValue(100);
    for (int line = 0; line < 300; ++line) shown.colour(line * 10, 3, blue);
    Shown::events();
    EXPECT_EQ(shown.view.verticalScrollBar()->value(), 100);
    EXPECT_EQ(shown.view.textCursor().position(), 0);
}

TEST(PaneView, TextOnTopStaysInSightWhenLinesAboveItGrow)
{
    std::string text;
    for (int line = 0; line < 300; ++line) text += std::to_string(line) + "\r\n";
    Shown shown(text);
    shown.caretTo(shown.view.document()->findBlockByNumber(200).position());
    shown.view.verticalScrollBar()->setValue(195);
    const auto caret = shown.pane.SelStart();
    shown.pane.setSelStart(0);
    shown.pane.setSelText("a\r\nb\r\n");
    shown.pane.setSelStart(caret + 6);
    Shown::events();
    EXPECT_EQ(shown.view.verticalScrollBar()->value(), 197);
}

TEST(PaneView, LockedPaneCanBeReadAndCopiedButNotWritten)
{
    Shown shown("abc");
    shown.pane.Locked = true;
    shown.type("x");
    shown.press(Qt::Key_Delete);
    QMimeData dropped;
    dropped.setText("no");
    shown.view.takeDrop(dropped, 0, false);
    EXPECT_EQ(shown.pane.Text(), "abc");
    EXPECT_EQ(shown.text(), "abc");
    shown.view.selectAll();
    EXPECT_EQ(shown.pane.SelLength(), 3);
    EXPECT_TRUE(shown.view.textInteractionFlags().testFlag(Qt::TextSelectableByKeyboard));
    shown.pane.Locked = false;
    shown.type("x");
    EXPECT_EQ(shown.pane.Text(), "x");
}

TEST(PaneView, PaneThatRefusesAnEditGetsItsTextBack)
{
    Shown shown("abc");
    shown.view.setReadOnly(false);
    shown.pane.Locked = true;
    shown.view.setReadOnly(false); // as if the lock came between the key and its effect
    shown.type("x");
    Shown::events();
    EXPECT_EQ(shown.text(), "abc");
}

TEST(PaneView, ChangeHandlerThatWritesThePaneIsShown)
{
    Shown shown("ab");
    bool once = true;
    shown.pane.Change = [&] {
        if (!std::exchange(once, false)) return;
        shown.pane.setSelText("<>");
    };
    shown.caretTo(1);
    shown.type("x");
    EXPECT_EQ(shown.pane.Text(), "ax<>b");
    EXPECT_EQ(shown.text(), "ax<>b");
    EXPECT_EQ(shown.view.textCursor().position(), 4);
}

TEST(PaneView, CopiedSelectionPastesWithItsColours)
{
    Shown shown("BTN S1");
    shown.colour(0, 3, blue);
    shown.select(0, 3);
    shown.view.copy();
    shown.caretTo(6);
    shown.view.paste();
    EXPECT_EQ(shown.pane.Text(), "BTN S1BTN");
    EXPECT_EQ(shown.shownColour(0, 7), blue);
    EXPECT_EQ(shown.changes, 2) << "the colouring and the paste";
    shown.select(0, 3);
    shown.view.cut();
    shown.view.settle();
    EXPECT_EQ(shown.pane.Text(), " S1BTN");
    shown.expectEqual();
}

TEST(PaneView, PastedPlainTextFromAnotherProgramGetsWindowsLineEnds)
{
    Shown shown("ab");
    QMimeData pasted;
    pasted.setText("1\n2");
    shown.view.takeDrop(pasted, 1, false);
    EXPECT_EQ(shown.pane.Text(), "a1\r\n2b");
    EXPECT_EQ(shown.text(), "a1\n2b");
}

TEST(PaneView, DraggedSelectionMovesInOneEdit)
{
    Shown shown("one two three");
    shown.colour(0, 3, red);
    shown.changes = 0;
    shown.select(0, 4);
    shown.view.takeDrop(QMimeData(), 8, true);
    EXPECT_EQ(shown.pane.Text(), "two one three");
    EXPECT_EQ(shown.changes, 1);
    EXPECT_EQ(shown.pane.SelText(), "one ");
    EXPECT_EQ(shown.shownColour(0, 4), red);
    shown.view.takeDrop(QMimeData(), 0, true);
    EXPECT_EQ(shown.pane.Text(), "one two three");
    shown.view.takeDrop(QMimeData(), 2, true);
    EXPECT_EQ(shown.pane.Text(), "one two three") << "into itself";
    shown.expectEqual();
}

TEST(PaneView, ComposedTextLeavesTheColoursOfItsLine)
{
    Shown shown("BTN S1");
    shown.colour(0, 3, blue);
    shown.colour(4, 2, red);
    shown.caretTo(4);
    Shown::events();
    QInputMethodEvent composing("xy", {});
    QApplication::sendEvent(&shown.view, &composing);
    EXPECT_EQ(shown.pane.Text(), "BTN S1");
    EXPECT_EQ(shown.shownColour(0, 0), blue);
    EXPECT_EQ(shown.shownColour(0, 6), red) << "behind the composed text";
    EXPECT_EQ(shown.shownColour(0, 4), 0);
    QInputMethodEvent commit;
    commit.setCommitString("S");
    QApplication::sendEvent(&shown.view, &commit);
    EXPECT_EQ(shown.pane.Text(), "BTN SS1");
    EXPECT_EQ(shown.pane.SelStart(), 5);
    EXPECT_EQ(shown.shownColour(0, 0), blue);
    shown.expectEqual();
}

TEST(PaneView, InsertKeyTypesOver)
{
    Shown shown("abc");
    std::vector<bool> told;
    QObject::connect(&shown.view, &PaneView::overwriteModeChanged, [&](bool on) { told.push_back(on); });
    shown.press(Qt::Key_Insert);
    shown.type("x");
    shown.press(Qt::Key_Insert);
    shown.type("y");
    EXPECT_EQ(shown.pane.Text(), "xybc");
    EXPECT_EQ(told, (std::vector<bool>{true, false}));
    EXPECT_EQ(shown.changes, 2);
}

TEST(PaneView, CharacterKeysAreToldBeforeTheyChangeTheText)
{
    Shown t;
    std::vector<std::pair<int, std::string>> told;
    t.pane.KeyPress = [&](int key) { told.emplace_back(key, t.pane.Text()); };
    QTest::keyClicks(&t.view, "a");
    QTest::keyClick(&t.view, Qt::Key_Return);
    QTest::keyClick(&t.view, Qt::Key_Backspace);
    QTest::keyClick(&t.view, Qt::Key_Left);
    QTest::keyClick(&t.view, Qt::Key_C, Qt::ControlModifier);
    const std::vector<std::pair<int, std::string>> expected{{'a', ""}, {'\r', "a"}, {'\b', "a\r\n"}};
    EXPECT_EQ(told, expected);
    t.pane.Locked = true;
    QTest::keyClicks(&t.view, "b");
    EXPECT_EQ(told.size(), 3U);
}

TEST(PaneView, CharacterOfAnInputMethodIsAnnouncedLikeAKey)
{
    Shown shown("gar");
    shown.caretTo(3);
    std::vector<int> keys;
    int edits = 0;
    shown.pane.KeyPress = [&](int key) { keys.push_back(key); };
    shown.pane.EditComing = [&] { ++edits; };
    QInputMethodEvent commit;
    commit.setCommitString(QStringLiteral("\u00e7"));
    QApplication::sendEvent(&shown.view, &commit);
    EXPECT_EQ(keys, std::vector<int>{0xE7});
    EXPECT_EQ(edits, 0);
    EXPECT_EQ(shown.pane.Text(), "gar\xE7");
    commit.setCommitString("ons");
    QApplication::sendEvent(&shown.view, &commit);
    EXPECT_EQ(keys.size(), 1U);
    EXPECT_EQ(edits, 1) << "several at once are an edit of their own";
}

TEST(PaneView, DropsPastesAndTheDeleteKeyAreAnnouncedAsEdits)
{
    Shown shown("abc");
    int edits = 0;
    shown.pane.EditComing = [&] { ++edits; };
    shown.press(Qt::Key_Delete);
    EXPECT_EQ(edits, 1);
    QMimeData content;
    content.setText("x");
    shown.view.takeDrop(content, 1, false);
    EXPECT_EQ(edits, 2);
    shown.select(0, 1);
    shown.view.takeDrop(content, 3, true);
    EXPECT_EQ(edits, 3);
    shown.view.copy();
    shown.view.paste();
    EXPECT_EQ(edits, 4);
}

TEST(PaneView, KeysOfCommandsAreOfferedByNameFirstAndLeftToTheTextWhenRefused)
{
    Shown shown("abc");
    std::vector<std::string> offered;
    bool takes = true;
    shown.view.pressKey = [&](std::string_view keys) {
        offered.emplace_back(keys);
        return takes;
    };
    shown.press(Qt::Key_A, Qt::ControlModifier);
    EXPECT_EQ(shown.pane.SelLength(), 0);
    takes = false;
    shown.press(Qt::Key_A, Qt::ControlModifier);
    EXPECT_EQ(shown.pane.SelLength(), 3);
    shown.press(Qt::Key_Escape);
    shown.press(Qt::Key_F1);
    shown.press(Qt::Key_X);
    std::erase(offered, ""); // Ctrl and x
    EXPECT_EQ(offered, (std::vector<std::string>{"Ctrl+A", "Ctrl+A", "Esc", "F1"}));
}

TEST(PaneView, RefusedKeyOfACommandDeletesNothing)
{
    Shown shown("abc");
    shown.press(Qt::Key_K, Qt::ControlModifier);
    shown.press(Qt::Key_U, Qt::ControlModifier);
    EXPECT_EQ(shown.pane.Text(), "abc");
}

TEST(PaneView, ZoomGrowsTextAndFormatsAndLeavesThePaneAlone)
{
    Shown shown("ab");
    shown.pane.setSelStart(0);
    shown.pane.setSelLength(1);
    shown.pane.setSelFontSize(20);
    shown.view.setZoom(200);
    EXPECT_EQ(shown.view.font().pointSizeF(), 20);
    shown.view.settle();
    shown.view.formatAll();
    EXPECT_EQ(shown.view.document()->firstBlock().layout()->formats().value(0).format.fontPointSize(), 40);
    EXPECT_EQ(shown.pane.Font().size, 10);
    shown.view.setZoom(10);
    EXPECT_EQ(shown.view.zoom(), 40);
    shown.view.setZoom(1000);
    EXPECT_EQ(shown.view.zoom(), 500);
    shown.press(Qt::Key_0, Qt::ControlModifier);
    EXPECT_EQ(shown.view.zoom(), 100);
}

TEST(PaneView, PaneKeepsItsColoursInADarkAppearance)
{
    Shown shown("ab");
    QPalette dark(QColor(40, 40, 40));
    QApplication::setPalette(dark);
    Shown::events();
    EXPECT_EQ(shown.view.palette().color(QPalette::Base), QColor(Qt::white));
    EXPECT_EQ(shown.view.palette().color(QPalette::Text), QColor(Qt::black));
    QApplication::setPalette(QPalette());
    shown.pane.BackColor = 0x80FFFF;
    EXPECT_EQ(shown.view.palette().color(QPalette::Base), QColor(255, 255, 0x80));
}

TEST(PaneView, TenMegabytesArePainted)
{
    std::string text;
    for (int line = 0; line < 200'000; ++line) text += "BTN S1 /P abcdefghijklmnopqrstuvwxyz 0123456789 xxx\r\n";
    Shown shown(text);
    shown.press(Qt::Key_End, Qt::ControlModifier);
    EXPECT_FALSE(shown.view.grab().isNull());
    shown.type("x");
    EXPECT_EQ(shown.pane.TextLength(), text.size() + 1);
    EXPECT_EQ(shown.view.document()->blockCount(), 200'001);
}

/// Edits of both sides in any order; whatever they are, view and pane end up equal.
class RandomEdits {
public:
    RandomEdits(Shown& shown, unsigned seed) : m_shown(shown), m_chance(seed) {}

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
            Shown::events();
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

    Shown& m_shown;
    std::mt19937 m_chance;
};

TEST(PaneView, RandomEditsOfBothSidesKeepViewAndPaneEqual)
{
    for (unsigned seed = 1; seed <= 8; ++seed) {
        Shown shown("aab\r\nba\r\n\r\nabab");
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
