#include "shown_pane.h"

#include <QInputMethodEvent>
#include <QMimeData>

namespace tarvex {
namespace {

TEST(PaneView, TypedTextArrivesInThePane)
{
    ShownPane shown;
    shown.type("BTN S1");
    shown.press(Qt::Key_Return);
    shown.type("x");
    EXPECT_EQ(shown.pane.Text(), "BTN S1\r\nx");
    EXPECT_EQ(shown.pane.SelStart(), 9);
    EXPECT_EQ(shown.changes, 8);
}

TEST(PaneView, ShiftReturnEndsALineToo)
{
    ShownPane shown("ab");
    shown.caretTo(1);
    shown.press(Qt::Key_Return, Qt::ShiftModifier);
    EXPECT_EQ(shown.pane.Text(), "a\r\nb");
    EXPECT_EQ(shown.view.document()->blockCount(), 2);
    EXPECT_EQ(shown.pane.SelStart(), 3);
    EXPECT_EQ(shown.view.textCursor().position(), 2);
}

TEST(PaneView, BackspaceAtALineStartTakesTheWholeLineEnd)
{
    ShownPane shown("ab\r\ncd");
    shown.caretTo(3);
    shown.press(Qt::Key_Backspace);
    EXPECT_EQ(shown.pane.Text(), "abcd");
    EXPECT_EQ(shown.changes, 1);
    EXPECT_EQ(shown.pane.SelStart(), 2);
}

TEST(PaneView, TypingOverEverythingIsOneEdit)
{
    ShownPane shown("one\r\ntwo\r\nthree");
    shown.view.selectAll();
    shown.type("x");
    EXPECT_EQ(shown.pane.Text(), "x");
    EXPECT_EQ(shown.changes, 1);
}

TEST(PaneView, CharacterTypedOverItsEqualIsAnEdit)
{
    ShownPane shown("abc def");
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
    ShownPane shown("abc");
    shown.press(Qt::Key_Insert);
    shown.type("abX");
    EXPECT_EQ(shown.pane.Text(), "abX");
    EXPECT_EQ(shown.changes, 3);
    EXPECT_EQ(shown.pane.SelStart(), 3);
}

TEST(PaneView, ReturnTypedOverASelectedLineEndIsAnEdit)
{
    ShownPane shown("ab\r\ncd");
    shown.select(2, 3);
    shown.press(Qt::Key_Return);
    EXPECT_EQ(shown.pane.Text(), "ab\r\ncd");
    EXPECT_EQ(shown.changes, 1);
    EXPECT_EQ(shown.pane.SelStart(), 4);
}

TEST(PaneView, ComposedCharacterCommittedOverItsEqualIsAnEdit)
{
    ShownPane shown("xfx");
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
    ShownPane shown("xfx");
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
    ShownPane shown("xfx");
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
    ShownPane shown("ab");
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
    ShownPane shown;
    QInputMethodEvent commit;
    commit.setCommitString(QString::fromUtf8("e\u0301"));
    QApplication::sendEvent(&shown.view, &commit);
    EXPECT_EQ(shown.pane.Text(), "\xE9");
    EXPECT_EQ(shown.text(), QString::fromUtf8("\u00E9"));
}

TEST(PaneView, ControlCharactersShowAsPicturesAndStayWhatTheyAre)
{
    ShownPane shown(std::string_view("a\x01\t\x7F\x00z", 6));
    EXPECT_EQ(shown.text(), QString::fromUtf8("a\u2401\t\u2421\u2400z"));
    shown.caretTo(6);
    shown.type("!");
    EXPECT_EQ(shown.pane.Text(), std::string_view("a\x01\t\x7F\x00z!", 7));
}

TEST(PaneView, OnlyPicturesOfControlCharactersThatShowAsSuchBecomeThem)
{
    ShownPane shown;
    QInputMethodEvent commit;
    commit.setCommitString(QString::fromUtf8("\u23FF\u241F\u2420\u2421\u2409\u240A\u240D"));
    QApplication::sendEvent(&shown.view, &commit);
    EXPECT_EQ(shown.pane.Text(), "?\x1F?\x7F???");
}

TEST(PaneView, EditOfTheProgramAppears)
{
    ShownPane shown("one\r\ntwo");
    shown.pane.setSelStart(3);
    shown.pane.setSelText("!\r\nand");
    ShownPane::events();
    EXPECT_EQ(shown.text(), "one!\nand\ntwo");
    EXPECT_EQ(shown.view.textCursor().position(), 8);
}

TEST(PaneView, TextThatComesIntoAnEmptyPaneIsLaidOutOnlyWhereItIsSeen)
{
    Pane pane;
    PaneView view(pane);
    view.resize(600, 400);
    std::string text;
    for (int line = 0; line < 100; ++line) text += "BTN S1 a\r\n";
    pane.setText(text);
    view.settle();
    EXPECT_EQ(view.textCursor().position(), 0);
    const auto linesOf = [&](int block) { return view.document()->findBlockByNumber(block).layout()->lineCount(); };
    EXPECT_EQ(linesOf(20), 0) << "nobody sees the view yet";
    view.show();
    ShownPane::events();
    EXPECT_EQ(linesOf(5), 1);
}

TEST(PaneView, TextThatComesIntoAnEmptyPaneIsNoEditOfTheUser)
{
    for (const char* text : {"BTN S1 a", "\r\nBTN", "\r\n", "\t", "\x01x"}) {
        ShownPane shown;
        shown.pane.setText(text);
        shown.changes = 0;
        shown.expectEqual();
        EXPECT_EQ(shown.changes, 0);
        EXPECT_EQ(shown.pane.Text(), text);
        shown.pane.setText("");
        shown.expectEqual();
        shown.type("a");
        EXPECT_EQ(shown.pane.Text(), "a");
    }
}

TEST(PaneView, TextThatComesIntoAnEmptyPaneGetsTheCaretOfThePane)
{
    ShownPane shown;
    shown.pane.setText("BTN S1 a\r\nBTN S2 b\r\n");
    shown.pane.setSelStart(10);
    shown.view.settle();
    EXPECT_EQ(shown.view.textCursor().position(), 9);
    shown.type("x");
    EXPECT_EQ(shown.pane.Text(), "BTN S1 a\r\nxBTN S2 b\r\n");
}

TEST(PaneView, SelectionGoesBothWays)
{
    ShownPane shown("one\r\ntwo\r\nthree");
    shown.select(4, 7);
    EXPECT_EQ(shown.pane.SelStart(), 5);
    EXPECT_EQ(shown.pane.SelLength(), 3);
    shown.select(7, 1); // backwards
    EXPECT_EQ(shown.pane.SelStart(), 1);
    EXPECT_EQ(shown.pane.SelLength(), 7);
    ShownPane::events();
    EXPECT_EQ(shown.view.textCursor().position(), 1) << "the caret stays at the end that the user moves";
    shown.pane.setSelStart(10);
    shown.pane.setSelLength(2);
    ShownPane::events();
    EXPECT_EQ(shown.view.textCursor().selectedText(), "th");
}

TEST(PaneView, LockedPaneCanBeReadAndCopiedButNotWritten)
{
    ShownPane shown("abc");
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
    ShownPane shown("abc");
    shown.view.setReadOnly(false);
    shown.pane.Locked = true;
    shown.view.setReadOnly(false); // as if the lock came between the key and its effect
    shown.type("x");
    ShownPane::events();
    EXPECT_EQ(shown.text(), "abc");
}

TEST(PaneView, ChangeHandlerThatWritesThePaneIsShown)
{
    ShownPane shown("ab");
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

TEST(PaneView, PastedPlainTextFromAnotherProgramGetsWindowsLineEnds)
{
    ShownPane shown("ab");
    QMimeData pasted;
    pasted.setText("1\n2");
    shown.view.takeDrop(pasted, 1, false);
    EXPECT_EQ(shown.pane.Text(), "a1\r\n2b");
    EXPECT_EQ(shown.text(), "a1\n2b");
}

TEST(PaneView, DraggedSelectionMovesInOneEdit)
{
    ShownPane shown("one two three");
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

TEST(PaneView, TenMegabytesArePainted)
{
    std::string text;
    for (int line = 0; line < 200'000; ++line) text += "BTN S1 /P abcdefghijklmnopqrstuvwxyz 0123456789 xxx\r\n";
    ShownPane shown(text);
    shown.press(Qt::Key_End, Qt::ControlModifier);
    EXPECT_FALSE(shown.view.grab().isNull());
    shown.type("x");
    EXPECT_EQ(shown.pane.TextLength(), text.size() + 1);
    EXPECT_EQ(shown.view.document()->blockCount(), 200'001);
}

} // namespace
} // namespace tarvex
