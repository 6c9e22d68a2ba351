#include "desktop/documents/window/outside_strip.h"

#include "desktop/program/mum_window.h"
#include "support/test_program.h"

#include <QApplication>
#include <QLabel>
#include <QPushButton>
#include <QTest>

#include <gtest/gtest.h>

namespace tarvex {
namespace {

constexpr const char* mig = "c:\\tm\\b50progs\\mig.b50";
constexpr const char* migMacros = "c:\\tm\\b50progs\\mig.m50";

struct OutsideStripTest : testing::Test {
    TestProgram t;
    MumWindow window{t.program()};

    OutsideStripTest()
    {
        t.files.addFile(mig, "BTN S1 x\r\n");
        t.files.addFile(migMacros, "Fire = f\r\n");
        t.openBoth(mig);
        window.showNormal();
        window.resize(1000, 700);
        joystick().setFocus();
        events();
    }
    static void events() { QApplication::processEvents(); }
    PaneView& joystick() { return window.editor().pane(t.editor().joystick); }
    OutsideStrip& strip(const char* name = "OutsideJoystick") { return *window.findChild<OutsideStrip*>(name); }
    QPushButton& button(const char* name) { return *window.findChild<QPushButton*>(name); }
    void changeOutside(const char* path = mig)
    {
        t.files.addFile(path, "theirs = t\r\n");
        QEvent activation(QEvent::ActivationChange);
        QApplication::sendEvent(&window, &activation); // the user comes back from the other program
        events();
    }
};

TEST_F(OutsideStripTest, StandsAboveThePaneAndLeavesTheKeyboardInTheText)
{
    const QRect before = joystick().geometry();
    EXPECT_TRUE(strip().isHidden());
    changeOutside();
    ASSERT_TRUE(strip().isVisible());
    EXPECT_EQ(strip().geometry().top(), before.top());
    EXPECT_EQ(joystick().geometry().top(), strip().geometry().bottom() + 1);
    EXPECT_EQ(joystick().geometry().bottom(), before.bottom());
    EXPECT_EQ(window.findChild<QLabel*>("OutsideJoystickText")->text(), "Another program has changed mig.b50.");
    EXPECT_EQ(QApplication::focusWidget(), &joystick());
}

TEST_F(OutsideStripTest, AClickOnReloadShowsTheFileAndGivesThePaneItsRoomBack)
{
    const QRect before = joystick().geometry();
    changeOutside();
    QTest::mouseClick(&button("OutsideJoystickReload"), Qt::LeftButton);
    events();
    EXPECT_EQ(joystick().toPlainText(), "theirs = t\n");
    EXPECT_TRUE(strip().isHidden());
    EXPECT_EQ(joystick().geometry(), before);
}

TEST_F(OutsideStripTest, AClickOnKeepMarksTheDocumentAsModified)
{
    changeOutside();
    QTest::mouseClick(&button("OutsideJoystickKeep"), Qt::LeftButton);
    EXPECT_TRUE(strip().isHidden());
    EXPECT_TRUE(window.isWindowModified());
}

TEST_F(OutsideStripTest, ItsButtonsAreReachedByAKeyAndEscLeadsBack)
{
    changeOutside();
    QTest::keyClick(window.windowHandle(), Qt::Key_O, Qt::ControlModifier | Qt::ShiftModifier);
    events();
    EXPECT_EQ(QApplication::focusWidget(), &button("OutsideJoystickReload"));
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape);
    EXPECT_EQ(QApplication::focusWidget(), &joystick());
    QTest::keyClick(window.windowHandle(), Qt::Key_O, Qt::ControlModifier | Qt::ShiftModifier);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Space);
    events();
    EXPECT_EQ(joystick().toPlainText(), "theirs = t\n");
}

TEST_F(OutsideStripTest, TheStripOfAFileBehindComesWithItsTab)
{
    changeOutside(migMacros);
    EXPECT_TRUE(strip("OutsideMacro").isHidden());
    t.editor().TabStrip1.Select(2);
    events();
    EXPECT_TRUE(strip("OutsideMacro").isVisible());
    EXPECT_TRUE(strip().isHidden());
}

TEST_F(OutsideStripTest, TiledPanesHaveAStripEach)
{
    t.menus().mnuViewTileVertically.Click();
    changeOutside();
    changeOutside(migMacros);
    EXPECT_TRUE(strip().isVisible());
    EXPECT_TRUE(strip("OutsideMacro").isVisible());
    EXPECT_FALSE(strip().geometry().intersects(strip("OutsideMacro").geometry()));
}

TEST_F(OutsideStripTest, ANarrowWindowBreaksTheText)
{
    t.typeJoystick("x");
    changeOutside();
    const int wide = strip().height();
    window.resize(window.minimumSize());
    events();
    EXPECT_GT(strip().height(), wide);
}

} // namespace
} // namespace tarvex
