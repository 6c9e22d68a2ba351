#include "desktop/documents/files/differences_view.h"

#include "desktop/documents/files/difference_pane.h"
#include "support/test_program.h"

#include <QApplication>
#include <QLabel>
#include <QPushButton>
#include <QScrollBar>
#include <QTest>

#include <gtest/gtest.h>

namespace tarvex {
namespace {

constexpr const char* mig = "c:\\tm\\b50progs\\mig.b50";

/// A hundred lines, with other words in some.
std::string lines(const std::vector<int>& changedOnes)
{
    std::string text;
    for (int i = 0; i < 100; ++i) {
        const bool other = std::find(changedOnes.begin(), changedOnes.end(), i) != changedOnes.end();
        text += (other ? "other " : "line ") + std::to_string(i) + "\r\n";
    }
    return text;
}

struct DifferencesViewTest : testing::Test {
    TestProgram t;
    Differences& window = t.program().differences;
    std::unique_ptr<DifferencesView> view;

    void show(const std::string& mine, const std::string& theirs)
    {
        t.files.addFile(mig, mine);
        t.menus().mnuJoyPopUpSingleFile.Checked = true;
        t.openBoth(mig);
        t.files.addFile(mig, theirs);
        loadDifferences(window);
        view = std::make_unique<DifferencesView>(window, nullptr);
        window.Form.Visible = true;
        QApplication::processEvents();
        QApplication::processEvents();
    }
    DifferencePane& pane(const char* name) { return *view->findChild<DifferencePane*>(name); }
    void press(Qt::Key key)
    {
        QTest::keyClick(view->windowHandle(), key);
        QApplication::processEvents();
    }
    /// The colour of the ground at the right edge of a line.
    QColor groundOf(const char* name, int line)
    {
        DifferencePane& text = pane(name);
        const QRect place = text.cursorRect(QTextCursor(text.document()->findBlockByNumber(line)));
        const QImage picture = text.viewport()->grab().toImage();
        return picture.pixelColor(picture.width() - 2, place.center().y());
    }
};

TEST_F(DifferencesViewTest, AlignsTheTwoTexts)
{
    show("one\r\ntwo\r\nthree\r\n", "one\r\nthree\r\nfour\r\n");
    EXPECT_EQ(pane("Left").toPlainText(), "one\ntwo\nthree\n");
    EXPECT_EQ(pane("Right").toPlainText(), "one\n\nthree\nfour");
    EXPECT_TRUE(pane("Left").isReadOnly());
}

TEST_F(DifferencesViewTest, MarksWhatDiffersAndTheDifferenceInFrontMost)
{
    show(lines({}), lines({1, 5}));
    const QColor plain = groundOf("Left", 0);
    EXPECT_NE(groundOf("Left", 1), plain);
    EXPECT_NE(groundOf("Left", 5), plain);
    EXPECT_NE(groundOf("Left", 5), groundOf("Left", 1));
    EXPECT_EQ(groundOf("Left", 2), plain);
    EXPECT_EQ(groundOf("Right", 1), groundOf("Left", 1));
}

TEST_F(DifferencesViewTest, KeysGoFromOneDifferenceToTheNextAndBringItIntoSight)
{
    show(lines({}), lines({1, 90}));
    EXPECT_EQ(view->findChild<QLabel*>("Count")->text(), "Difference 1 of 2");
    press(Qt::Key_F8);
    EXPECT_EQ(view->findChild<QLabel*>("Count")->text(), "Difference 2 of 2");
    EXPECT_GT(pane("Left").verticalScrollBar()->value(), 50);
    EXPECT_EQ(pane("Left").verticalScrollBar()->value(), pane("Right").verticalScrollBar()->value());
    press(Qt::Key_F7);
    EXPECT_EQ(window.Current, 0);
}

TEST_F(DifferencesViewTest, TheTwoTextsScrollTogether)
{
    show(lines({}), lines({50}));
    pane("Right").verticalScrollBar()->setValue(60);
    EXPECT_EQ(pane("Left").verticalScrollBar()->value(), 60);
}

TEST_F(DifferencesViewTest, EscClosesIt)
{
    show("one\r\n", "two\r\n");
    press(Qt::Key_Escape);
    EXPECT_FALSE(window.Form.Visible);
    EXPECT_FALSE(view->isVisible());
}

} // namespace
} // namespace tarvex
