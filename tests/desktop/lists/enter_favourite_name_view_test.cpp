#include "desktop/lists/enter_favourite_name_view.h"

#include "desktop/lists/list_forms.h"
#include "desktop/platform/qt_dialogues.h"
#include "lists/lists.h"
#include "platform/posix/drive_map.h"
#include "support/test_program.h"

#include <QApplication>
#include <QClipboard>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>
#include <QTimer>

#include <gtest/gtest.h>

namespace tarvex {
namespace {

/// The dialogue on the screen, with a proposal.
struct Asked : TestProgram {
    EnterFavouritename& form = program().lists.favourites.form;
    EnterFavouriteNameView view{form, nullptr};

    Asked()
    {
        form.current = {"", "c:\\tm\\mig.b50", "c:\\tm\\mig.m50"};
        FAV_Form_Load(form, "Mig");
        form.Form.Visible = true;
        events();
    }
    static void events() { QApplication::processEvents(); }
    template <typename Widget> Widget* find(const char* name) { return view.findChild<Widget*>(QLatin1String(name)); }
    QLineEdit* name() { return find<QLineEdit>("Text1"); }
};

TEST(EnterFavouriteNameView, ShowsThePathsAndTheProposal)
{
    Asked t;
    EXPECT_TRUE(t.view.isVisible());
    EXPECT_EQ(t.view.objectName(), "EnterFavouritename");
    EXPECT_EQ(t.view.windowTitle(), "Enter a name to add to favourites");
    EXPECT_TRUE(t.view.windowFlags() & Qt::WindowStaysOnTopHint);
    EXPECT_EQ(t.find<QLabel>("Label3")->text(), "c:\\tm\\mig.b50");
    EXPECT_EQ(t.find<QLabel>("Label5")->text(), "c:\\tm\\mig.m50");
    EXPECT_EQ(t.name()->text(), "Mig");
}

TEST(EnterFavouriteNameView, TheProposalIsSelectedSoThatTypingReplacesIt)
{
    Asked t;
    QTest::keyClicks(t.name(), "Su & 27");
    EXPECT_EQ(t.form.Text1.Text.get(), "Su & 27");
}

TEST(EnterFavouriteNameView, AClickIntoTheBoxSelectsItsText)
{
    Asked t;
    t.find<QPushButton>("Command2")->setFocus();
    t.name()->deselect();
    QTest::mouseClick(t.name(), Qt::LeftButton);
    Asked::events();
    EXPECT_EQ(t.name()->selectedText(), "Mig");
}

TEST(EnterFavouriteNameView, ReturnTakesTheName)
{
    Asked t;
    QTest::keyClick(t.name(), Qt::Key_Return);
    EXPECT_EQ(t.form.current.name, "Mig");
    EXPECT_FALSE(t.view.isVisible());
}

TEST(EnterFavouriteNameView, WithoutANameThereIsNoOk)
{
    Asked t;
    QTest::keyClick(t.name(), Qt::Key_Backspace);
    EXPECT_FALSE(t.find<QPushButton>("Command1")->isEnabled());
    QTest::keyClick(t.name(), Qt::Key_Return);
    EXPECT_TRUE(t.view.isVisible());
    QTest::keyClick(t.name(), Qt::Key_A);
    EXPECT_TRUE(t.find<QPushButton>("Command1")->isEnabled());
}

TEST(EnterFavouriteNameView, EscapeAndTheCancelButtonTakeNothing)
{
    Asked t;
    QTest::keyClick(t.name(), Qt::Key_Escape);
    EXPECT_FALSE(t.view.isVisible());
    t.form.Form.Visible = true;
    EXPECT_TRUE(t.view.isVisible());
    QTest::mouseClick(t.find<QPushButton>("Command2"), Qt::LeftButton);
    EXPECT_FALSE(t.view.isVisible());
    EXPECT_EQ(t.form.current.name, "");
}

TEST(EnterFavouriteNameView, OfAPastedTextOfSeveralLinesTheFirstIsKept)
{
    Asked t;
    QApplication::clipboard()->setText("one\r\n[Evil]\nx=1");
    QTest::keySequence(t.name(), QKeySequence::Paste);
    EXPECT_EQ(t.form.Text1.Text.get(), "one");
    EXPECT_EQ(t.name()->text(), "one");
}

TEST(EnterFavouriteNameView, ALongPathDoesNotWidenTheWindow)
{
    Asked t;
    const int width = t.view.sizeHint().width();
    t.form.Label3.Caption = "c:\\" + std::string(400, 'x') + ".b50";
    EXPECT_EQ(t.view.sizeHint().width(), width);
}

TEST(ListForms, TheNameDialogueIsShownModallyByItsNameAndItsNameEntersTheMenu)
{
    TestProgram t;
    const DriveMap drives({{}, "/tmp", "/tmp", "/tmp"});
    QtDialogues dialogues(drives);
    Lists& lists = t.program().lists;
    addListForms(dialogues, lists, nullptr);
    QTimer::singleShot(0, [] {
        QWidget* window = QApplication::activeModalWidget();
        ASSERT_NE(window, nullptr);
        EXPECT_EQ(window->objectName(), "EnterFavouritename");
        QTest::keyClick(window->findChild<QLineEdit*>("Text1"), Qt::Key_Return);
    });
    FAV_Form_Load(lists.favourites.form, "Test");
    EXPECT_TRUE(dialogues.showModal("EnterFavouritename"));
    EXPECT_EQ(lists.favourites.current.name, "Test");
}

} // namespace
} // namespace tarvex
