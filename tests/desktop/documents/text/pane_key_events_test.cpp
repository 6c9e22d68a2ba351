// What a pane's view announces before a key, a paste or a drop changes the text.

#include "shown_pane.h"

#include <QInputMethodEvent>
#include <QMimeData>

namespace tarvex {
namespace {

TEST(PaneKeyEvents, CharacterKeysAreAnnouncedBeforeTheyChangeTheText)
{
    ShownPane t;
    std::vector<std::pair<int, std::string>> announced;
    t.pane.KeyPress = [&](int key) { announced.emplace_back(key, t.pane.Text()); };
    QTest::keyClicks(&t.view, "a");
    QTest::keyClick(&t.view, Qt::Key_Return);
    QTest::keyClick(&t.view, Qt::Key_Backspace);
    QTest::keyClick(&t.view, Qt::Key_Left);
    QTest::keyClick(&t.view, Qt::Key_C, Qt::ControlModifier);
    const std::vector<std::pair<int, std::string>> expected{{'a', ""}, {'\r', "a"}, {'\b', "a\r\n"}};
    EXPECT_EQ(announced, expected);
    t.pane.Locked = true;
    QTest::keyClicks(&t.view, "b");
    EXPECT_EQ(announced.size(), 3U);
}

TEST(PaneKeyEvents, CharacterOfAnInputMethodIsAnnouncedLikeAKey)
{
    ShownPane shown("gar");
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

TEST(PaneKeyEvents, DropsPastesAndTheDeleteKeyAreAnnouncedAsEdits)
{
    ShownPane shown("abc");
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

TEST(PaneKeyEvents, KeysOfCommandsAreOfferedByNameFirstAndLeftToTheTextWhenRefused)
{
    ShownPane shown("abc");
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

TEST(PaneKeyEvents, RefusedKeyOfACommandDeletesNothing)
{
    ShownPane shown("abc");
    shown.press(Qt::Key_K, Qt::ControlModifier);
    shown.press(Qt::Key_U, Qt::ControlModifier);
    EXPECT_EQ(shown.pane.Text(), "abc");
}

TEST(PaneKeyEvents, InsertKeyTypesOver)
{
    ShownPane shown("abc");
    std::vector<bool> announced;
    QObject::connect(&shown.view, &PaneView::overwriteModeChanged, [&](bool on) { announced.push_back(on); });
    shown.press(Qt::Key_Insert);
    shown.type("x");
    shown.press(Qt::Key_Insert);
    shown.type("y");
    EXPECT_EQ(shown.pane.Text(), "xybc");
    EXPECT_EQ(announced, (std::vector<bool>{true, false}));
    EXPECT_EQ(shown.changes, 2);
}

} // namespace
} // namespace tarvex
