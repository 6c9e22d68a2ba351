#include "desktop/documents/window/document_tabs.h"

#include <QApplication>
#include <QHelpEvent>
#include <QToolTip>

#include <gtest/gtest.h>

namespace tarvex {
namespace {

struct Tabs : testing::Test {
    QWidget window;
    DocumentTabs tabs{&window};
    const QString longName = QString(300, 'x') + ".b50";

    Tabs()
    {
        tabs.addTab("mig.b50");
        tabs.addTab("mig.m50");
        window.resize(600, 100);
        tabs.setGeometry(0, 0, 600, tabs.sizeHint().height());
        window.show();
        QApplication::processEvents();
    }
    int right(int tab) const { return tabs.tabRect(tab).right(); }
    /// The tip that comes up over a tab; empty when none does.
    QString tipOver(int tab)
    {
        QToolTip::hideText();
        const QPoint at = tabs.tabRect(tab).center();
        QHelpEvent event(QEvent::ToolTip, at, tabs.mapToGlobal(at));
        QApplication::sendEvent(&tabs, &event);
        return QToolTip::isVisible() ? QToolTip::text() : QString();
    }
};

TEST_F(Tabs, NamesWithRoomAreShownWholeAndHaveNoTip)
{
    EXPECT_FALSE(tabs.isCut(0));
    EXPECT_FALSE(tabs.isCut(1));
    EXPECT_EQ(tipOver(0), "");
}

TEST_F(Tabs, ALongNameLeavesTheOtherTabReadable)
{
    for (const int longOne : {0, 1}) {
        tabs.setTabText(longOne, longName);
        tabs.setTabText(1 - longOne, "mig.m50");
        QApplication::processEvents();
        EXPECT_TRUE(tabs.isCut(longOne));
        EXPECT_FALSE(tabs.isCut(1 - longOne));
        EXPECT_LE(right(1), 600);
        EXPECT_GE(tabs.tabRect(longOne).width(), 400) << "all that the other one leaves";
    }
}

TEST_F(Tabs, TwoLongNamesShareTheBar)
{
    tabs.setTabText(0, longName);
    tabs.setTabText(1, longName);
    QApplication::processEvents();
    EXPECT_EQ(tabs.tabRect(0).width(), 300);
    EXPECT_EQ(tabs.tabRect(1).width(), 300);
}

TEST_F(Tabs, TheWholeNameIsInTheTipOfACutTab)
{
    tabs.setTabText(0, "a &&<b>" + longName);
    QApplication::processEvents();
    const QString tip = tipOver(0).remove(QChar(0x200B));
    EXPECT_TRUE(tip.contains("a &amp;&lt;b&gt;" + longName)) << tip.toStdString();
}

} // namespace
} // namespace tarvex
