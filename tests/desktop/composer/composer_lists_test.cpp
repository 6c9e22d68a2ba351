#include "composer_view_case.h"
#include "desktop/documents/text/pane_view.h"

#include <QComboBox>
#include <QContextMenuEvent>
#include <QDrag>
#include <QLineEdit>
#include <QListView>
#include <QListWidget>
#include <QMimeData>
#include <QRadioButton>

#include <gmock/gmock.h>

namespace tarvex {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

/// The second press of a double click. QTest's leaves a right button pressed for the tests that follow.
void pressTwice(QWidget& viewport, QPoint at, Qt::MouseButton button)
{
    QMouseEvent event(QEvent::MouseButtonDblClick, at, viewport.mapToGlobal(at), button, button, {});
    QApplication::sendEvent(&viewport, &event);
}

// ---- macros ---------------------------------------------------------------------------------------------------------

/// The macros Fire and Chaff, and under the heading "Brakes" Stop and Go.
struct ComposerMacroListTest : ComposerViewTest {
    QListView* list = nullptr;

    ComposerMacroListTest()
    {
        t.files.addFile("c:\\tm\\a.b50", "");
        t.files.addFile("c:\\tm\\a.m50",
                        "Fire = f\r\nChaff = c\r\nRem ----\r\nRem BRAKES\r\nRem ----\r\nStop = s\r\nGo = o\r\n");
        t.openBoth("c:\\tm\\a.b50");
        composer.form.Activate();
        events();
        list = get<QListView>("List1");
    }
    QPoint place(int row) { return list->visualRect(list->model()->index(row, 0)).center(); }
    QPoint below() { return {20, list->viewport()->height() - 3}; }
    void press(QPoint at, Qt::MouseButton button = Qt::LeftButton)
    {
        QTest::mouseClick(list->viewport(), button, {}, at);
    }
    void move(QPoint at)
    {
        QMouseEvent event(QEvent::MouseMove, at, list->viewport()->mapToGlobal(at), Qt::NoButton, Qt::LeftButton, {});
        QApplication::sendEvent(list->viewport(), &event);
    }
    /// Far enough for a drag, and back to where no button is held.
    const QDrag* drag(int row)
    {
        QTest::mousePress(list->viewport(), Qt::LeftButton, {}, place(row));
        move(place(row) + QPoint(1, 0));
        move(place(row) + QPoint(QApplication::startDragDistance() + 2, 0));
        QTest::mouseRelease(list->viewport(), Qt::LeftButton, {}, place(row));
        return list->findChild<QDrag*>();
    }
    void askForMenu(QContextMenuEvent::Reason reason)
    {
        QContextMenuEvent event(reason, place(0), list->mapToGlobal(place(0)));
        QApplication::sendEvent(list->viewport(), &event);
    }
};

TEST_F(ComposerMacroListTest, AHeadingShowsItsMacros)
{
    auto* headings = get<QComboBox>("Combo1");
    press(place(1));
    headings->setFocus();
    QTest::keyClick(headings, Qt::Key_Down);
    EXPECT_EQ(headings->currentText(), "Brakes");
    EXPECT_EQ(list->model()->rowCount(), 2);
    EXPECT_EQ(list->model()->index(0, 0).data().toString(), "Stop");
    press(place(1));
    EXPECT_EQ(composer.macros.List1[1].ListIndex, 1);
    QTest::keyClick(headings, Qt::Key_Up);
    EXPECT_EQ(list->model()->rowCount(), 4);
}

TEST_F(ComposerMacroListTest, APressPicksTheMacroAndShowsItsKeys)
{
    press(place(1));
    EXPECT_EQ(composer.macros.List1[0].ListIndex, 1);
    EXPECT_EQ(t.status(), "Chaff = c");
    press(place(0));
    EXPECT_EQ(composer.macros.List1[0].ListIndex, 0);
    EXPECT_EQ(t.status(), "Fire = f");
}

TEST_F(ComposerMacroListTest, BesideTheMacrosNothingIsPickedInsertedOrAskedFor)
{
    press(below(), Qt::RightButton);
    EXPECT_THAT(t.dialogues.popUps, IsEmpty());
    QTest::mouseDClick(list->viewport(), Qt::LeftButton, {}, below());
    EXPECT_EQ(joystick(), "");
}

TEST_F(ComposerMacroListTest, OnlyTheLeftButtonInsertsByADoubleClick)
{
    pressTwice(*list->viewport(), place(0), Qt::RightButton);
    EXPECT_EQ(joystick(), "");
    QTest::mouseDClick(list->viewport(), Qt::LeftButton, {}, place(0));
    EXPECT_EQ(joystick(), "Fire ");
}

TEST_F(ComposerMacroListTest, TheEnterKeyInsertsToo)
{
    press(place(1));
    QTest::keyClick(list, Qt::Key_Enter);
    EXPECT_EQ(joystick(), "Chaff ");
}

TEST_F(ComposerMacroListTest, TheMenuKeyAsksForTheMenuOfThePickedMacroOnceAndTheMouseNotTwice)
{
    askForMenu(QContextMenuEvent::Keyboard);
    EXPECT_THAT(t.dialogues.popUps, IsEmpty()) << "none is picked";
    press(place(0));
    askForMenu(QContextMenuEvent::Mouse);
    EXPECT_THAT(t.dialogues.popUps, IsEmpty());
    askForMenu(QContextMenuEvent::Keyboard);
    EXPECT_THAT(t.dialogues.popUps, ElementsAre("mnuRHList"));
}

TEST_F(ComposerMacroListTest, ADragCarriesTheMacroBetweenBlanksOnATag)
{
    const QDrag* drag = this->drag(1);
    ASSERT_NE(drag, nullptr);
    EXPECT_EQ(drag->mimeData()->text(), " Chaff ");
    const QFontMetrics metrics = list->fontMetrics();
    const QPixmap tag = drag->pixmap();
    EXPECT_EQ(tag.size(), QSize(metrics.horizontalAdvance("Chaff") + 12, metrics.height() + 6));
    const QImage picture = tag.toImage();
    const QColor ground = list->palette().color(QPalette::Highlight);
    EXPECT_EQ(picture.pixelColor(3, picture.height() / 2), ground);
    EXPECT_EQ(picture.pixelColor(picture.width() - 4, picture.height() / 2), ground);
    EXPECT_EQ(picture.pixelColor(0, 0).alpha(), 0) << "its corners are round";
    int written = 0;
    for (int x = 6; x < picture.width() - 6; ++x)
        for (int y = 3; y < picture.height() - 3; ++y) written += picture.pixelColor(x, y) != ground;
    EXPECT_GT(written, 20);
}

TEST_F(ComposerMacroListTest, TheTagOfALongNameIsFortyCharactersWide)
{
    composer.macros.List1[0].Items = {{std::string(200, 'x'), false}};
    events();
    const QDrag* drag = this->drag(0);
    ASSERT_NE(drag, nullptr);
    const int forty = 40 * list->fontMetrics().averageCharWidth();
    EXPECT_LE(drag->pixmap().width(), forty + 12);
    EXPECT_GT(drag->pixmap().width(), forty - 20);
}

// ---- templates ------------------------------------------------------------------------------------------------------

struct ComposerTemplatesTest : ComposerViewTest {
    QListWidget* list = nullptr;
    PaneView* preview = nullptr;

    ComposerTemplatesTest()
    {
        t.files.addFile("c:\\tarvex\\Templates\\a.txt", "Rem a\r\n");
        t.files.addFile("c:\\tarvex\\Templates\\b.txt", "Rem b\r\n");
        get<QTabWidget>("SSTab7")->setCurrentIndex(1);
        events();
        click("Command11(2)");
        list = get<QListWidget>("Templates");
        preview = get<PaneView>("TemplatesPreview");
    }
    void press(QPoint at, Qt::MouseButton button) { QTest::mouseClick(list->viewport(), button, {}, at); }
    QPoint place(int row)
    {
        list->scrollToItem(list->item(row));
        events();
        return list->visualItemRect(list->item(row)).center();
    }
};

TEST_F(ComposerTemplatesTest, TheRightButtonShowsItsEntryAlsoWhereThatIsChosenAlready)
{
    press(place(0), Qt::LeftButton);
    events();
    EXPECT_EQ(preview->toPlainText(), "Rem a\n");
    press(place(1), Qt::RightButton);
    events();
    EXPECT_EQ(preview->toPlainText(), "Rem b\n");
    t.files.addFile("c:\\tarvex\\Templates\\b.txt", "Rem new\r\n");
    press(place(1), Qt::RightButton);
    events();
    EXPECT_EQ(preview->toPlainText(), "Rem new\n");
}

TEST_F(ComposerTemplatesTest, OnTheTemplateItselfTheRightButtonAsksForTheMenuAndOnlyTheLeftInserts)
{
    list->setCurrentRow(0);
    events();
    pressTwice(*preview->viewport(), QPoint(5, 5), Qt::RightButton);
    EXPECT_EQ(joystick(), "");
    QContextMenuEvent event(QContextMenuEvent::Mouse, {5, 5}, preview->mapToGlobal(QPoint(5, 5)));
    QApplication::sendEvent(preview->viewport(), &event);
    EXPECT_THAT(t.dialogues.popUps, ElementsAre("mnuTemplates"));
    QTest::mouseDClick(preview->viewport(), Qt::LeftButton);
    EXPECT_EQ(joystick(), "Rem a\r\n");
}

// ---- definitions ----------------------------------------------------------------------------------------------------

struct ComposerFlagsTest : ComposerViewTest {
    ComposerFlagsTest() { showPage(composerPage::flags); }
    QLineEdit& field(int index) { return *get<QLineEdit>(QStringLiteral("RichTexFlag(%1)").arg(index)); }
    Pane& pane(std::size_t index) { return composer.flags.RichTexFlag[index]; }
    QColor ground(int index) { return field(index).palette().color(QPalette::Base); }
};

TEST_F(ComposerFlagsTest, AFieldAndItsDefinitionHaveTheSameTextAndSelection)
{
    field(2).setFocus();
    QTest::keyClicks(&field(2), "DEF X3");
    EXPECT_EQ(pane(2).Text(), "DEF X3");
    EXPECT_EQ(pane(2).SelStart(), 6);
    QTest::keyClick(&field(2), Qt::Key_Left);
    EXPECT_EQ(pane(2).SelStart(), 5);
    QTest::keyClick(&field(2), Qt::Key_Left, Qt::ShiftModifier);
    EXPECT_EQ(pane(2).SelStart(), 4);
    EXPECT_EQ(pane(2).SelLength(), 1);
    QTest::keyClick(&field(2), Qt::Key_Home);
    EXPECT_EQ(pane(2).SelStart(), 0);
    EXPECT_EQ(pane(2).SelLength(), 0);
    pane(2).setText("DEF X3 T1");
    EXPECT_EQ(field(2).text(), "DEF X3 T1");
    pane(2).setSelStart(4);
    EXPECT_EQ(field(2).cursorPosition(), 4);
    pane(2).setSelLength(2);
    EXPECT_EQ(field(2).selectedText(), "X3");
}

TEST_F(ComposerFlagsTest, TheKeyboardComesToADefinitionAtItsCaret)
{
    pane(1).setText("DEF X2");
    pane(1).setSelStart(3);
    pane(1).SetFocus();
    events();
    EXPECT_TRUE(field(1).hasFocus());
    EXPECT_FALSE(field(1).hasSelectedText());
    EXPECT_EQ(field(1).cursorPosition(), 3);
    EXPECT_TRUE(get<QRadioButton>("OptionFlag(1)")->isChecked());
}

TEST_F(ComposerFlagsTest, OnlyTheChosenDefinitionStandsOnTheGroundOfAField)
{
    QTest::mouseClick(get<QRadioButton>("OptionFlag(1)"), Qt::LeftButton);
    events();
    EXPECT_EQ(ground(1), QApplication::palette().color(QPalette::Base));
    EXPECT_EQ(ground(0), field(0).parentWidget()->palette().color(QPalette::Window));
    EXPECT_TRUE(get<QRadioButton>("OptionFlag(1)")->isChecked());
    QTest::mouseClick(get<QRadioButton>("OptionFlag(1)"), Qt::LeftButton);
    EXPECT_TRUE(get<QRadioButton>("OptionFlag(1)")->isChecked()) << "another click leaves it chosen";
    EXPECT_FALSE(get<QRadioButton>("OptionFlag(0)")->isChecked());
}

TEST_F(ComposerFlagsTest, ReturnInAListOrAFieldOfATermInsertsIt)
{
    field(0).setFocus();
    auto* flags = get<QListWidget>("FlagList(0)");
    flags->setCurrentRow(3);
    flags->setFocus();
    QTest::keyClick(flags, Qt::Key_Return);
    EXPECT_EQ(field(0).text().trimmed(), flags->currentItem()->text());
    pane(0).setText("");
    get<QLineEdit>("TxtFlag(4)")->setText("7");
    QTest::keyClick(get<QLineEdit>("TxtFlag(4)"), Qt::Key_Return);
    EXPECT_TRUE(field(0).text().contains("DLY(7)")) << field(0).text().toStdString();
}

TEST_F(ComposerFlagsTest, AFieldThatIsNotChosenHasTheWindowsColourAlsoInAnotherAppearance)
{
    QPalette dark = form()->palette();
    dark.setColor(QPalette::Window, QColor(0x20, 0x22, 0x24));
    form()->setPalette(dark);
    QEvent change(QEvent::StyleChange);
    QApplication::sendEvent(&field(3), &change);
    EXPECT_EQ(ground(3), QColor(0x20, 0x22, 0x24));
}

} // namespace
} // namespace tarvex
