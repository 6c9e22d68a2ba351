#include "desktop/form_window.h"

#include "desktop/screen_room.h"
#include "desktop/text.h"
#include "desktop/tool_form_window.h"
#include "platform/input.h"
#include "platform/key_codes.h"

#include <QApplication>
#include <QLineEdit>
#include <QPushButton>
#include <QScreen>
#include <QTest>
#include <QTimer>
#include <QVBoxLayout>
#include <QWindow>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <utility>
#include <vector>

namespace tarvex {
namespace {

using testing::ElementsAre;

// ---- a form's window ------------------------------------------------------------------------------------------------

struct FormWindowTest : testing::Test {
    Form form;

    static void settle() { QApplication::processEvents(); }
    QRect room() const { return QApplication::primaryScreen()->availableGeometry(); }
};

TEST_F(FormWindowTest, FollowsCaptionAndVisibility)
{
    form.Caption = "Some form";
    FormWindow window(form, "Form1", nullptr);
    EXPECT_EQ(window.objectName(), QString("Form1"));
    EXPECT_EQ(window.windowTitle(), QString("Some form"));
    EXPECT_FALSE(window.windowFlags().testFlag(Qt::WindowContextHelpButtonHint));
    form.Visible = true;
    EXPECT_TRUE(window.isVisible());
    form.Caption = "Another";
    EXPECT_EQ(window.windowTitle(), QString("Another"));
    form.Visible = false;
    EXPECT_FALSE(window.isVisible());
}

TEST_F(FormWindowTest, StaysOnTopWhileTheFormSaysSoAndStaysVisible)
{
    FormWindow window(form, "Form1", nullptr);
    form.TopMost = true;
    EXPECT_FALSE(window.isVisible()) << "a hidden one stays hidden";
    EXPECT_TRUE(window.windowFlags().testFlag(Qt::WindowStaysOnTopHint));
    form.Visible = true;
    form.TopMost = false;
    EXPECT_TRUE(window.isVisible());
    EXPECT_FALSE(window.windowFlags().testFlag(Qt::WindowStaysOnTopHint));
    form.TopMost = true;
    EXPECT_TRUE(window.isVisible());
    const FormWindow later(form, "Form1", nullptr);
    EXPECT_TRUE(later.windowFlags().testFlag(Qt::WindowStaysOnTopHint));
}

TEST_F(FormWindowTest, ComesUpWhereTheFormWasLeft)
{
    form.Left = 300;
    form.Top = 450;
    FormWindow window(form, "Form1", nullptr);
    window.resize(200, 100);
    form.Visible = true;
    EXPECT_EQ(window.pos(), QPoint(20, 30));
}

TEST_F(FormWindowTest, APlaceAtTheEdgeOfTheScreenIsMovedUntilTheWholeWindowIsOnIt)
{
    form.Left = toTwips(room().right());
    form.Top = toTwips(room().bottom());
    FormWindow window(form, "Form1", nullptr);
    window.resize(200, 100);
    form.Visible = true;
    const QSize whole = QSize(200, 100) + frameSizeOf(window);
    EXPECT_EQ(window.pos(), QPoint(room().right() - whole.width(), room().bottom() - whole.height()));
}

TEST_F(FormWindowTest, AWindowLargerThanTheScreenBeginsAtItsCorner)
{
    form.Left = 300;
    form.Top = 450;
    FormWindow window(form, "Form1", nullptr);
    window.resize(room().size() + QSize(500, 500));
    form.Visible = true;
    EXPECT_EQ(window.pos(), room().topLeft());
}

TEST_F(FormWindowTest, APlaceOnNoScreenAndNoPlaceLeaveTheChoiceToTheToolkit)
{
    QWidget parent;
    parent.setGeometry(500, 300, 400, 300);
    parent.show();
    form.Left = toTwips(room().right() + 1000);
    form.Top = 450;
    FormWindow far(form, "Form1", &parent);
    far.resize(100, 50);
    form.Visible = true;
    EXPECT_TRUE(parent.frameGeometry().contains(far.frameGeometry().center()));
    Form unplaced;
    FormWindow window(unplaced, "Form2", &parent);
    window.resize(100, 50);
    unplaced.Visible = true;
    EXPECT_TRUE(parent.frameGeometry().contains(window.frameGeometry().center()));
}

TEST_F(FormWindowTest, PlaceAndSizeThatTheUserGivesItReachTheForm)
{
    FormWindow window(form, "Form1", nullptr);
    window.resize(300, 200);
    form.Visible = true;
    window.move(40, 50);
    window.resize(320, 240);
    settle();
    EXPECT_EQ(form.Left, toTwips(window.x()));
    EXPECT_EQ(form.Top, toTwips(window.y()));
    EXPECT_EQ(form.Width, toTwips(320));
    EXPECT_EQ(form.Height, toTwips(240));
    form.Visible = false;
    window.move(90, 90);
    settle();
    EXPECT_EQ(form.Left, toTwips(40)) << "a hidden window has no place";
}

TEST_F(FormWindowTest, MinimisingGoesBothWaysAndLeavesThePlaceAlone)
{
    FormWindow window(form, "Form1", nullptr);
    form.Visible = true;
    window.move(40, 50);
    settle();
    form.State = WindowState::Minimised;
    settle();
    EXPECT_TRUE(window.isMinimized());
    EXPECT_EQ(form.Left, toTwips(40));
    form.State = WindowState::Normal;
    settle();
    EXPECT_FALSE(window.isMinimized());
    EXPECT_FALSE(window.testAttribute(Qt::WA_ShowWithoutActivating));
    window.showMinimized();
    settle();
    EXPECT_EQ(form.State, WindowState::Minimised);
    window.showNormal();
    settle();
    EXPECT_EQ(form.State, WindowState::Normal);
}

TEST_F(FormWindowTest, AFormThatIsShownMinimisedComesUpMinimised)
{
    form.State = WindowState::Minimised;
    FormWindow window(form, "Form1", nullptr);
    form.Visible = true;
    EXPECT_TRUE(window.isMinimized());
}

TEST_F(FormWindowTest, TheStateOfAHiddenFormShowsNothing)
{
    FormWindow window(form, "Form1", nullptr);
    form.State = WindowState::Minimised;
    EXPECT_FALSE(window.isVisible());
}

TEST_F(FormWindowTest, AFormThatIsWantedInFrontGetsTheKeyboard)
{
    FormWindow window(form, "Form1", nullptr);
    form.Visible = true;
    QWidget other;
    other.show();
    QApplication::setActiveWindow(&other);
    form.frontWanted();
    settle();
    EXPECT_TRUE(window.isActiveWindow());
}

TEST_F(FormWindowTest, EscAndTheFrameHideAFormThatHasNothingElseToDo)
{
    FormWindow window(form, "Form1", nullptr);
    form.Visible = true;
    QTest::keyClick(&window, Qt::Key_Escape);
    EXPECT_FALSE(form.Visible);
    EXPECT_FALSE(window.isVisible());
    form.Visible = true;
    EXPECT_TRUE(window.close());
    EXPECT_FALSE(form.Visible);
}

TEST_F(FormWindowTest, AFormThatRefusesToCloseStays)
{
    int asked = 0;
    form.Close = [&asked] { ++asked; };
    FormWindow window(form, "Form1", nullptr);
    form.Visible = true;
    EXPECT_FALSE(window.close());
    EXPECT_EQ(asked, 1);
    EXPECT_TRUE(window.isVisible());
    form.Close = [this] { form.Visible = false; };
    EXPECT_TRUE(window.close());
}

TEST_F(FormWindowTest, ShownModallyItReturnsOnceTheFormIsHidden)
{
    FormWindow window(form, "Form1", nullptr);
    form.Left = 300;
    form.Top = 450;
    bool wasModal = false;
    QTimer::singleShot(0, &window, [&] {
        wasModal = QApplication::activeModalWidget() == &window && form.Visible;
        EXPECT_EQ(window.pos(), QPoint(20, 30));
        form.Visible = false;
    });
    window.showModally();
    EXPECT_TRUE(wasModal);
    EXPECT_FALSE(window.isVisible());
    form.Visible = true;
    EXPECT_TRUE(window.isVisible()) << "afterwards it comes up by its state again";
}

TEST_F(FormWindowTest, ShownModallyAndClosedByEscTheFormIsHidden)
{
    FormWindow window(form, "Form1", nullptr);
    QTimer::singleShot(0, &window, [&] { QTest::keyClick(&window, Qt::Key_Escape); });
    window.showModally();
    EXPECT_FALSE(form.Visible);
}

TEST_F(FormWindowTest, IsMadeOnceWhenTheFormIsFirstShown)
{
    Bindings bindings;
    int made = 0;
    std::unique_ptr<FormWindow> window;
    makeWhenShown(form, bindings, [&] {
        ++made;
        window = std::make_unique<FormWindow>(form, "Form1", nullptr);
        return window.get();
    });
    form.Visible = false;
    EXPECT_EQ(made, 0);
    form.Visible = true;
    EXPECT_EQ(made, 1);
    EXPECT_TRUE(window->isVisible());
    form.Visible = false;
    form.Visible = true;
    EXPECT_EQ(made, 1);
}

// ---- a tool window --------------------------------------------------------------------------------------------------

/// A button and a line in a window whose form sees the keys first.
struct ToolFormWindowTest : testing::Test {
    ToolForm form{"Tool"};
    using Key = std::pair<int, int>; ///< its code, and what was held
    std::vector<Key> keys;           ///< that came to the form
    bool taken = false;
    std::unique_ptr<ToolFormWindow> window;
    QPushButton* button = nullptr;
    QLineEdit* line = nullptr;
    int clicks = 0;

    void make(Qt::WindowType type = Qt::Window)
    {
        form.KeyDown = [this](int key, int shift) {
            keys.emplace_back(key, shift);
            return taken;
        };
        window = std::make_unique<ToolFormWindow>(form, nullptr, type);
        fill();
    }
    void fill()
    {
        auto* column = new QVBoxLayout(window.get());
        line = new QLineEdit;
        button = new QPushButton("Press");
        column->addWidget(line);
        column->addWidget(button);
        QObject::connect(button, &QPushButton::clicked, [this] { ++clicks; });
        form.Visible = true;
        QApplication::setActiveWindow(window.get());
        QApplication::processEvents();
    }
    void press(Qt::Key key, Qt::KeyboardModifiers held = {}) { QTest::keyClick(window->windowHandle(), key, held); }
};

TEST_F(ToolFormWindowTest, ItsFormSeesEachKeyOnceAndTheControlGetsWhatTheFormLeaves)
{
    make();
    line->setFocus();
    press(Qt::Key_A);
    EXPECT_THAT(keys, ElementsAre(Key('A', 0)));
    EXPECT_EQ(line->text(), QString("a"));
    taken = true;
    press(Qt::Key_B, Qt::ControlModifier);
    EXPECT_EQ(keys.back(), Key('B', shiftKey::ctrl));
    press(Qt::Key_C);
    EXPECT_EQ(line->text(), QString("a"));
}

TEST_F(ToolFormWindowTest, KeysHaveTheCodesThatTheFormsKnow)
{
    make();
    taken = true;
    line->setFocus();
    const std::pair<Qt::Key, int> codes[] = {{Qt::Key_F1, keyCode::f1},
                                             {Qt::Key_F12, keyCode::f1 + 11},
                                             {Qt::Key_F13, keyCode::none},
                                             {Qt::Key_A, 'A'},
                                             {Qt::Key_Z, 'Z'},
                                             {Qt::Key_0, '0'},
                                             {Qt::Key_9, '9'},
                                             {Qt::Key_Escape, keyCode::escape},
                                             {Qt::Key_Space, keyCode::none},
                                             {Qt::Key_Colon, keyCode::none},
                                             {Qt::Key_Slash, keyCode::none},
                                             {Qt::Key_BracketLeft, keyCode::none},
                                             {Qt::Key_At, keyCode::none}};
    for (const auto& [pressed, code] : codes) {
        keys.clear();
        press(pressed);
        EXPECT_THAT(keys, ElementsAre(Key(code, 0))) << pressed;
    }
}

TEST_F(ToolFormWindowTest, WithoutAControlThatHasTheKeyboardTheWindowsOwnKeysReachTheForm)
{
    make();
    taken = true;
    window->setFocus();
    if (QWidget* focused = window->focusWidget()) focused->clearFocus();
    press(Qt::Key_F5);
    EXPECT_THAT(keys, ElementsAre(Key(keyCode::f1 + 4, 0)));
}

TEST_F(ToolFormWindowTest, KeysOfAnotherWindowAreNotItsBusiness)
{
    make();
    QLineEdit other;
    other.show();
    QApplication::setActiveWindow(&other);
    QApplication::processEvents();
    QTest::keyClick(&other, Qt::Key_A);
    EXPECT_TRUE(keys.empty());
    EXPECT_EQ(other.text(), QString("a"));
}

TEST_F(ToolFormWindowTest, ReturnAndEnterPressTheButtonWithTheKeyboardAndNoOther)
{
    make();
    button->setFocus();
    press(Qt::Key_Return);
    press(Qt::Key_Enter);
    EXPECT_EQ(clicks, 2);
    line->setFocus();
    press(Qt::Key_Return);
    EXPECT_EQ(clicks, 2);
    EXPECT_TRUE(window->isVisible());
}

TEST_F(ToolFormWindowTest, ADialogueHasADefaultButton)
{
    make(Qt::Dialog);
    button->setDefault(true);
    line->setFocus();
    press(Qt::Key_Return);
    EXPECT_EQ(clicks, 1);
    EXPECT_EQ(window->windowType(), Qt::Dialog);
}

TEST_F(ToolFormWindowTest, EscAndTheFrameMayDoDifferentThings)
{
    int escaped = 0;
    int closed = 0;
    form.Escape = [&] { ++escaped; };
    form.Close = [&] { ++closed; };
    window = std::make_unique<ToolFormWindow>(form, nullptr);
    fill();
    press(Qt::Key_Escape);
    EXPECT_EQ(escaped, 1);
    EXPECT_EQ(closed, 0);
    window->close();
    EXPECT_EQ(escaped, 1);
    EXPECT_EQ(closed, 1);
    form.Escape = {};
    press(Qt::Key_Escape);
    EXPECT_EQ(closed, 2);
}

TEST_F(ToolFormWindowTest, TheFormLearnsThatItsWindowGotTheKeyboardAndNotThatItLostIt)
{
    int activated = 0;
    form.Activate = [&] { ++activated; };
    make();
    EXPECT_EQ(activated, 1);
    QWidget other;
    other.show();
    QApplication::setActiveWindow(&other);
    QApplication::processEvents();
    EXPECT_EQ(activated, 1);
    QApplication::setActiveWindow(window.get());
    EXPECT_EQ(activated, 2);
}

TEST_F(ToolFormWindowTest, WhileABoxIsOpenItIsNotKeptOnTop)
{
    form.TopMost = true;
    make();
    const auto isOnTop = [&] { return window->windowHandle()->flags().testFlag(Qt::WindowStaysOnTopHint); };
    EXPECT_TRUE(isOnTop());
    QDialog box;
    bool onTopMeanwhile = true;
    QTimer::singleShot(0, &box, [&] {
        onTopMeanwhile = isOnTop();
        box.reject();
    });
    box.exec();
    EXPECT_FALSE(onTopMeanwhile);
    EXPECT_TRUE(isOnTop());
    form.TopMost = false;
    QTimer::singleShot(0, &box, [&] { box.reject(); });
    box.exec();
    EXPECT_FALSE(isOnTop());
}

} // namespace
} // namespace tarvex
