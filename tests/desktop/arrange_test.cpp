#include "desktop/arrange.h"

#include "desktop/tool_form_window.h"

#include <QApplication>
#include <QScreen>

#include <gtest/gtest.h>

#include <array>

namespace tarvex {
namespace {

struct Tool : ToolFormWindow {
    using ToolFormWindow::ToolFormWindow;
    QSize minimumSizeHint() const override { return {120, 90}; }
};

/// A frame of 900 x 600 with three tool windows.
struct ArrangeWindows : testing::Test {
    std::array<ToolForm, 3> forms{ToolForm("One"), ToolForm("Two"), ToolForm("Three")};
    QWidget frame;
    std::array<Tool*, 3> tools{};

    void SetUp() override
    {
        frame.setGeometry(100, 60, 900, 600);
        frame.show();
        for (std::size_t i = 0; i < tools.size(); ++i) {
            tools[i] = new Tool(forms[i], &frame);
            tools[i]->setGeometry(10, 10, 200, 150);
            tools[i]->show();
        }
        QApplication::processEvents();
    }
    /// Of the window with its border.
    QRect place(std::size_t i) const { return tools[i]->frameGeometry(); }
    QRect room() const { return frame.frameGeometry() & frame.screen()->availableGeometry(); }
};

TEST_F(ArrangeWindows, CascadedEachStandsAStepBelowAndBesideTheOneBeforeIt)
{
    arrangeWindows(frame, ArrangeMode::Cascade);
    for (std::size_t i = 0; i < tools.size(); ++i) {
        const int step = static_cast<int>(i) * 28;
        EXPECT_EQ(place(i).topLeft(), room().topLeft() + QPoint(step, step)) << i;
        EXPECT_EQ(place(i).size(), room().size() * 2 / 3) << i;
    }
}

TEST_F(ArrangeWindows, TiledHorizontallyTheyStandBelowEachOtherOverTheWholeFrame)
{
    arrangeWindows(frame, ArrangeMode::TileHorizontally);
    for (std::size_t i = 0; i < tools.size(); ++i) {
        EXPECT_EQ(place(i).left(), room().left());
        EXPECT_EQ(place(i).width(), room().width());
        EXPECT_EQ(place(i).height(), room().height() / 3);
        EXPECT_EQ(place(i).top(), room().top() + room().height() * static_cast<int>(i) / 3);
    }
}

TEST_F(ArrangeWindows, TiledVerticallyTheyStandBesideEachOtherOverTheWholeFrame)
{
    arrangeWindows(frame, ArrangeMode::TileVertically);
    for (std::size_t i = 0; i < tools.size(); ++i) {
        EXPECT_EQ(place(i).top(), room().top());
        EXPECT_EQ(place(i).height(), room().height());
        EXPECT_EQ(place(i).width(), room().width() / 3);
        EXPECT_EQ(place(i).left(), room().left() + room().width() * static_cast<int>(i) / 3);
    }
}

TEST_F(ArrangeWindows, HiddenMinimisedAndTopmostOnesStayAsTheyAre)
{
    tools[0]->hide();
    tools[1]->showMinimized();
    tools[2]->setWindowFlag(Qt::WindowStaysOnTopHint);
    tools[2]->show();
    tools[2]->setGeometry(10, 10, 200, 150);
    QApplication::processEvents();
    arrangeWindows(frame, ArrangeMode::Cascade);
    EXPECT_TRUE(tools[0]->isHidden());
    EXPECT_TRUE(tools[1]->isMinimized());
    EXPECT_EQ(tools[2]->geometry(), QRect(10, 10, 200, 150));
}

TEST_F(ArrangeWindows, AsIconsNoneMoves)
{
    const QRect before = place(1);
    arrangeWindows(frame, ArrangeMode::Icons);
    EXPECT_EQ(place(1), before);
}

TEST_F(ArrangeWindows, NoneBecomesSmallerThanItsWidgetsNeed)
{
    frame.setGeometry(100, 60, 300, 200);
    QApplication::processEvents();
    arrangeWindows(frame, ArrangeMode::TileHorizontally);
    for (const Tool* tool : tools) EXPECT_EQ(tool->size().height(), 90);
}

TEST_F(ArrangeWindows, WithoutToolWindowsNothingHappens)
{
    QWidget empty;
    empty.show();
    arrangeWindows(empty, ArrangeMode::TileVertically);
    EXPECT_TRUE(empty.isVisible());
}

} // namespace
} // namespace tarvex
