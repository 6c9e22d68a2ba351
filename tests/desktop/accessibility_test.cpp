// What a screen reader finds in the windows.

#include "desktop/program/mum_window.h"
#include "support/test_program.h"

#include <QAccessible>
#include <QApplication>
#include <QComboBox>
#include <QMenu>
#include <QToolButton>

#include <gtest/gtest.h>

namespace tarvex {
namespace {

struct Accessibility : testing::Test {
    TestProgram t;
    MumWindow window{t.program()};

    Accessibility()
    {
        window.showNormal();
        window.resize(1400, 700);
        QApplication::processEvents();
    }
    QAccessibleInterface& of(const char* name)
    {
        return *QAccessible::queryAccessibleInterface(window.findChild<QWidget*>(QLatin1String(name)));
    }
};

TEST_F(Accessibility, TheHeadingsAreDescribedWithoutMarkup)
{
    t.files.addFile("c:\\tm\\a.b50", "BTN S1 one\r\n");
    t.files.addFile("c:\\tm\\a.m50", "one = a\r\n");
    t.openBoth("c:\\tm\\a.b50");
    t.editor().FrameMacros.Combo1.Text = "Guns & <b>Bombs</b>";
    EXPECT_EQ(of("Combo1").text(QAccessible::Description), "Guns & <b>Bombs</b>");
    EXPECT_TRUE(window.findChild<QComboBox*>("Combo1")->toolTip().contains("&lt;b&gt;Bombs"));
    t.editor().FrameMacros.Combo1.Text = "";
    EXPECT_EQ(of("Combo1").text(QAccessible::Description), "");
}

TEST_F(Accessibility, TheToolbarHasItsVisibleButtonsAndNothingElse)
{
    QAccessibleInterface& bar = of("Toolbar1");
    EXPECT_EQ(bar.role(), QAccessible::ToolBar);
    EXPECT_EQ(bar.text(QAccessible::Name), "Toolbar");
    ASSERT_GT(bar.childCount(), 20);
    for (int i = 0; i < bar.childCount(); ++i) {
        QAccessibleInterface* child = bar.child(i);
        ASSERT_NE(child, nullptr) << i;
        EXPECT_NE(qobject_cast<QToolButton*>(child->object()), nullptr) << i;
        EXPECT_FALSE(child->text(QAccessible::Name).isEmpty()) << i;
        EXPECT_FALSE(child->state().invisible) << child->text(QAccessible::Name).toStdString();
        EXPECT_EQ(bar.indexOfChild(child), i);
    }
}

TEST_F(Accessibility, AHiddenButtonIsNotAnnounced)
{
    QAccessibleInterface& bar = of("Toolbar1");
    const int before = bar.childCount();
    t.program().mum.Toolbar1.Buttons(18).Visible = false;
    EXPECT_EQ(bar.childCount(), before - 1);
    for (int i = 0; i < bar.childCount(); ++i) EXPECT_NE(bar.child(i)->text(QAccessible::Name), "Add current files");
}

TEST_F(Accessibility, EveryEntryOfAMenuHasANameUnlessItIsASeparator)
{
    for (QMenu* menu : window.findChildren<QMenu*>()) {
        emit menu->aboutToShow();
        for (const QAction* action : menu->actions()) {
            if (action->isSeparator()) continue;
            EXPECT_FALSE(action->isVisible() && action->text().isEmpty()) << menu->objectName().toStdString();
            EXPECT_FALSE(action->objectName().isEmpty() && action->menu() == nullptr)
                << "an entry of no command in " << menu->objectName().toStdString();
        }
    }
}

} // namespace
} // namespace tarvex
