#include "desktop/templates/template_view.h"

#include "desktop/documents/text/pane_view.h"
#include "support/test_program.h"

#include <QApplication>
#include <QLineEdit>
#include <QMenuBar>
#include <QPushButton>
#include <QTest>
#include <QToolButton>

#include <gtest/gtest.h>

namespace tarvex {
namespace {

struct Shown : TestProgram {
    TemplateForm& form = program().templateEditor;
    TemplateView view{form, nullptr};

    Shown()
    {
        files.addDirectory("c:\\tarvex\\Templates");
        menus().mnuAppsTemplate.Click();
        events();
    }
    static void events() { QApplication::processEvents(); }
    template <typename Widget> Widget& child(const char* name)
    {
        auto* const found = view.findChild<Widget*>(QLatin1String(name));
        EXPECT_NE(found, nullptr) << name;
        return *found;
    }
    PaneView& pane() { return child<PaneView>("TemplateText"); }
};

TEST(TemplateView, WhatIsTypedIsAChange)
{
    Shown t;
    EXPECT_TRUE(t.view.isVisible());
    EXPECT_EQ(t.view.windowTitle(), "Template Editor");
    EXPECT_TRUE(t.pane().hasFocus());
    QTest::keyClicks(&t.pane(), "BTN S1 a");
    EXPECT_EQ(t.form.TemplateText.Text(), "BTN S1 a");
    EXPECT_EQ(t.form.TemplateChanged, 1);
    EXPECT_EQ(t.status(), "Editing untitled.rtf");
}

TEST(TemplateView, KeysRunTheCommandsOfTheMenus)
{
    Shown t;
    QTest::keyClicks(&t.pane(), "BTN S1");
    QTest::keyClick(&t.pane(), Qt::Key_T, Qt::ControlModifier);
    EXPECT_EQ(t.form.TemplateText.formatAt(0).colour, t.settings().BTNColour);
    QTest::keyClick(&t.pane(), Qt::Key_A, Qt::ControlModifier);
    QTest::keyClick(&t.pane(), Qt::Key_X, Qt::ControlModifier);
    EXPECT_EQ(t.form.TemplateText.Text(), "");
    QTest::keyClick(&t.pane(), Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(t.form.TemplateText.Text(), "BTN S1");
    QTest::keyClick(&t.pane(), Qt::Key_Y, Qt::ControlModifier);
    EXPECT_EQ(t.form.TemplateText.Text(), "");
    QTest::keyClick(&t.pane(), Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(t.form.TemplateText.Text(), "BTN S1");
    t.dialogues.filesToSave = {std::string("c:\\tarvex\\Templates\\a.txt")};
    QTest::keyClick(&t.pane(), Qt::Key_S, Qt::ControlModifier);
    EXPECT_EQ(t.fileText("c:\\tarvex\\Templates\\a.txt"), "BTN S1");
    EXPECT_EQ(t.child<QLineEdit>("Text1").text(), "a.txt");
}

TEST(TemplateView, IsSearchedByKeysAlone)
{
    Shown t;
    QTest::keyClicks(&t.pane(), "hat one hat");
    auto& row = t.child<QWidget>("FindRow");
    EXPECT_FALSE(row.isVisible());
    QTest::keyClick(&t.pane(), Qt::Key_F, Qt::ControlModifier);
    EXPECT_TRUE(row.isVisible());
    auto& what = t.child<QLineEdit>("FindWhat");
    EXPECT_TRUE(what.hasFocus());
    QTest::keyClicks(&what, "hat");
    QTest::keyClick(&what, Qt::Key_Return);
    EXPECT_EQ(t.form.TemplateText.SelStart(), 0);
    QTest::keyClick(&what, Qt::Key_Return);
    EXPECT_EQ(t.form.TemplateText.SelStart(), 8);
    QTest::keyClick(&what, Qt::Key_Return, Qt::ShiftModifier);
    EXPECT_EQ(t.form.TemplateText.SelStart(), 0);
    QTest::keyClick(&what, Qt::Key_Escape);
    EXPECT_FALSE(row.isVisible());
    EXPECT_TRUE(t.view.isVisible());
    EXPECT_TRUE(t.pane().hasFocus());
    QTest::keyClick(&t.pane(), Qt::Key_F3);
    Shown::events();
    EXPECT_EQ(t.form.TemplateText.SelStart(), 8);
    EXPECT_EQ(t.pane().textCursor().selectedText(), "hat");
}

TEST(TemplateView, ItsTextIsZoomedLikeThoseOfThePair)
{
    Shown t;
    QTest::keyClicks(&t.pane(), "BTN S1 a");
    const double before = t.pane().font().pointSizeF();
    QTest::keyClick(&t.pane(), Qt::Key_Plus, Qt::ControlModifier);
    EXPECT_GT(t.pane().font().pointSizeF(), before);
    QTest::keyClick(&t.pane(), Qt::Key_0, Qt::ControlModifier);
    EXPECT_EQ(t.pane().font().pointSizeF(), before);
    EXPECT_EQ(t.form.TemplateText.formatAt(0).fontSize, t.settings().TextFontSize) << "the file's size stays";
    EXPECT_EQ(t.form.TemplateText.Text(), "BTN S1 a");
}

TEST(TemplateView, LeavingTheNameCompletesIt)
{
    Shown t;
    auto& name = t.child<QLineEdit>("Text1");
    name.setFocus();
    Shown::events();
    name.selectAll();
    QTest::keyClicks(&name, "Tm.cfg");
    t.pane().setFocus();
    EXPECT_EQ(name.text(), "Tm.cfg.rtf");
}

TEST(TemplateView, OpeningAMenuByItsKeyDoesNotLeaveTheName)
{
    Shown t;
    auto& name = t.child<QLineEdit>("Text1");
    name.setFocus();
    Shown::events();
    name.selectAll();
    QTest::keyClicks(&name, "hat.txt");
    QTest::keyClick(&name, Qt::Key_F, Qt::AltModifier);
    Shown::events();
    ASSERT_NE(QApplication::activePopupWidget(), nullptr);
    EXPECT_EQ(name.text(), "hat.txt");
    QTest::keyClick(QApplication::activePopupWidget(), Qt::Key_Escape);
    Shown::events();
    EXPECT_EQ(name.text(), "hat.txt");
}

TEST(TemplateView, WrapFollowsItsButton)
{
    Shown t;
    auto& wrap = t.child<QPushButton>("ToggleButton1");
    EXPECT_TRUE(wrap.isChecked());
    EXPECT_EQ(t.pane().lineWrapMode(), QPlainTextEdit::WidgetWidth);
    QTest::mouseClick(&wrap, Qt::LeftButton);
    EXPECT_FALSE(wrap.isChecked());
    EXPECT_EQ(t.pane().lineWrapMode(), QPlainTextEdit::NoWrap);
}

TEST(TemplateView, ALongWrappedLineIsEditedAtItsEnd)
{
    Shown t;
    t.form.TemplateText.setText(std::string(5000, 'x'));
    Shown::events();
    QTest::keyClick(&t.pane(), Qt::Key_End, Qt::ControlModifier);
    QTest::keyClicks(&t.pane(), "end");
    EXPECT_TRUE(t.form.TemplateText.Text().ends_with("xend"));
    EXPECT_TRUE(t.pane().viewport()->rect().contains(t.pane().cursorRect().center()));
}

TEST(TemplateView, TheColourButtonOpensTheSelectorForTheTemplate)
{
    Shown t;
    QTest::mouseClick(&t.child<QToolButton>("ColourLabel1"), Qt::LeftButton);
    EXPECT_TRUE(t.editor().ColourSelector.form.Visible);
    EXPECT_EQ(t.editor().ColourSelector.target, ColourTarget::Template);
}

TEST(TemplateView, CancellingTheQuestionKeepsTheWindow)
{
    Shown t;
    QTest::keyClicks(&t.pane(), "x");
    t.dialogues.answers = {Answer::Cancel, Answer::No};
    t.view.close();
    EXPECT_TRUE(t.view.isVisible());
    t.view.close();
    EXPECT_FALSE(t.view.isVisible());
}

TEST(TemplateView, TheRightButtonPopsUpItsMenu)
{
    Shown t;
    QContextMenuEvent event(QContextMenuEvent::Mouse, QPoint(5, 5), QPoint(5, 5));
    QApplication::sendEvent(t.pane().viewport(), &event);
    EXPECT_EQ(t.dialogues.popUps, std::vector<std::string>{"mnuPopShow"});
}

} // namespace
} // namespace tarvex
