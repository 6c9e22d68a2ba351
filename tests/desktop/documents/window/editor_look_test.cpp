// What stands beside the panes of the document window, and what its extra keys do.

#include "desktop/documents/text/match_scroll_bar.h"
#include "desktop/documents/window/editor_view.h"
#include "desktop/program/mum_window.h"
#include "desktop/program/true_path_tips.h"
#include "documents/editing/line_highlight.h"
#include "support/test_program.h"

#include <QApplication>
#include <QCheckBox>
#include <QClipboard>
#include <QDropEvent>
#include <QHelpEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QMimeData>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTest>
#include <QToolTip>

#include <gtest/gtest.h>

namespace tarvex {
namespace {

struct EditorLook : testing::Test {
    TestProgram t;
    MumWindow window{t.program()};
    Editor& editor = t.editor();
    Shared& shared = t.program().shared;

    EditorLook()
    {
        std::string text;
        for (int line = 1; line <= 300; ++line) text += "BTN S1 fire " + std::to_string(line) + "\r\n";
        t.files.addFile("c:\\a\\x.b50", text);
        t.files.addFile("c:\\a\\x.m50", "Fire = f\r\nGear = g\r\nRem ----\r\nRem BRAKES\r\nRem ----\r\nStop = s\r\n");
        t.settings().CheckIdentifyOK = 0;
        t.openBoth("c:\\a\\x.b50");
        editor.TabStrip1.Select(1);
        window.showNormal();
        window.resize(1100, 700);
        joystick().setFocus();
        events();
    }
    static void events() { QApplication::processEvents(); }
    PaneView& joystick() { return window.editor().pane(editor.joystick); }
    PaneView& macro() { return window.editor().pane(editor.macro); }
    template <typename Widget = QWidget> Widget* get(const char* name)
    {
        auto* widget = window.findChild<Widget*>(QLatin1String(name));
        EXPECT_NE(widget, nullptr) << name;
        return widget;
    }
    void press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        QTest::keyClick(window.windowHandle(), key, modifiers); // by way of the window's shortcuts
        events();
    }
    void write(const QString& text)
    {
        QTest::keyClicks(window.focusWidget(), text);
        events();
    }
    /// As a keyboard that has the character sends it.
    void writeForeign(const QString& character)
    {
        QKeyEvent key(QEvent::KeyPress, 0, Qt::NoModifier, character);
        QApplication::sendEvent(window.focusWidget(), &key);
        events();
    }
    QWidget* focus() { return window.focusWidget(); }
    bool isShown(int line)
    {
        for (const ShownLine& shown : joystick().shownLines(joystick().viewport()->rect()))
            if (shown.number == line && shown.top >= 0 && shown.top + shown.height <= joystick().viewport()->height())
                return true;
        return false;
    }
    QString tipOf(QWidget& widget, const QPoint& place)
    {
        QToolTip::hideText();
        QHelpEvent help(QEvent::ToolTip, place, widget.mapToGlobal(place));
        QApplication::sendEvent(&widget, &help);
        return QToolTip::text();
    }
};

TEST_F(EditorLook, TheTicksOfThePreferencesShowAndHideMarginAndCurrentLine)
{
    auto* margin = joystick().findChild<QWidget*>("Margin");
    ASSERT_NE(margin, nullptr);
    EXPECT_TRUE(margin->isVisible());
    shared.extras.set(extraKey::lineNumbers, false);
    EXPECT_FALSE(margin->isVisible());
    shared.extras.set(extraKey::lineNumbers, true);
    EXPECT_TRUE(margin->isVisible());
}

TEST_F(EditorLook, TheLineOfAnErrorComesUpWithLinesAboveAndBelowIt)
{
    for (const int line : {150, 40, 290, 2}) {
        HighlightErrorLine(editor, line);
        events();
        EXPECT_EQ(joystick().errorLine(), line - 1);
        for (int near = std::max(0, line - 4); near <= line + 2; ++near) EXPECT_TRUE(isShown(near)) << near;
    }
}

// ---- the find bar ---------------------------------------------------------------------------------------------------

TEST_F(EditorLook, TheFindBarOpensAtThePanesFootAndFindsWhileOneTypes)
{
    const int height = joystick().height();
    press(Qt::Key_F, Qt::ControlModifier | Qt::ShiftModifier);
    QWidget* bar = get("FindBar");
    ASSERT_TRUE(bar->isVisible());
    EXPECT_EQ(focus(), get<QLineEdit>("FindBarText"));
    EXPECT_LT(joystick().height(), height);
    EXPECT_EQ(bar->geometry().top(), joystick().geometry().bottom() + 1);
    EXPECT_EQ(bar->geometry().bottom(), joystick().geometry().top() + height - 1);

    write("fire 15");
    EXPECT_EQ(focus(), get<QLineEdit>("FindBarText"));
    EXPECT_EQ(editor.JoystickText.SelText(), "fire 15");
    EXPECT_EQ(get<QLabel>("FindBarCount")->text(), "1 of 11");
    press(Qt::Key_Return);
    EXPECT_EQ(get<QLabel>("FindBarCount")->text(), "2 of 11");
    EXPECT_TRUE(isShown(149));
    EXPECT_TRUE(isShown(152));
    press(Qt::Key_F3);
    press(Qt::Key_F3);
    EXPECT_EQ(get<QLabel>("FindBarCount")->text(), "4 of 11");
    press(Qt::Key_Return, Qt::ShiftModifier);
    press(Qt::Key_F3, Qt::ShiftModifier);
    EXPECT_EQ(get<QLabel>("FindBarCount")->text(), "2 of 11");
    EXPECT_FALSE(t.program().composer.form.Visible) << "F3 is the templates' key elsewhere";
    joystick().matchBar()->showPlaces();
    EXPECT_FALSE(joystick().matchBar()->markedRows().empty());

    press(Qt::Key_Escape);
    EXPECT_FALSE(bar->isVisible());
    EXPECT_EQ(focus(), &joystick());
    EXPECT_EQ(joystick().height(), height);
    EXPECT_EQ(editor.JoystickText.SelText(), "fire 15");
    EXPECT_TRUE(editor.joystick.Matches.positions().empty());
}

TEST_F(EditorLook, TheFindBarGoesWithThePaneInFront)
{
    press(Qt::Key_F, Qt::ControlModifier | Qt::ShiftModifier);
    write("f");
    t.menus().mnuViewTileVertically.Click();
    press(Qt::Key_Tab, Qt::ControlModifier);
    QWidget* bar = get("FindBar");
    EXPECT_EQ(bar->geometry().left(), macro().geometry().left());
    EXPECT_EQ(bar->geometry().top(), macro().geometry().bottom() + 1);
    EXPECT_EQ(joystick().geometry().bottom(), bar->geometry().bottom());
}

TEST_F(EditorLook, TheFindBarsOptionsAreChosenByTheMouse)
{
    editor.JoystickText.setText("Fire fire misfire");
    press(Qt::Key_F, Qt::ControlModifier | Qt::ShiftModifier);
    write("fire");
    EXPECT_EQ(get<QLabel>("FindBarCount")->text(), "1 of 3");
    QTest::mouseClick(get<QCheckBox>("FindBarMatchCase"), Qt::LeftButton, {}, {8, 8});
    EXPECT_EQ(get<QLabel>("FindBarCount")->text(), "1 of 2");
    QTest::mouseClick(get<QCheckBox>("FindBarWholeWord"), Qt::LeftButton, {}, {8, 8});
    EXPECT_EQ(get<QLabel>("FindBarCount")->text(), "1 of 1");
    QTest::mouseClick(get("FindBarClose"), Qt::LeftButton);
    EXPECT_FALSE(get("FindBar")->isVisible());
}

TEST_F(EditorLook, KeysOfTheLineGoToTheFindBarAndNotToThePane)
{
    press(Qt::Key_F, Qt::ControlModifier | Qt::ShiftModifier);
    write("abc");
    const std::string text = editor.JoystickText.Text();
    press(Qt::Key_A, Qt::ControlModifier);
    press(Qt::Key_Backspace);
    EXPECT_EQ(get<QLineEdit>("FindBarText")->text(), "");
    press(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(get<QLineEdit>("FindBarText")->text(), "abc");
    EXPECT_EQ(editor.JoystickText.Text(), text);
}

// ---- zoom -----------------------------------------------------------------------------------------------------------

TEST_F(EditorLook, EveryUsualKeyZoomsBothPanes)
{
    press(Qt::Key_Plus, Qt::ControlModifier);
    EXPECT_EQ(joystick().zoom(), 110);
    EXPECT_EQ(macro().zoom(), 110);
    press(Qt::Key_Equal, Qt::ControlModifier);
    press(Qt::Key_Plus, Qt::ControlModifier | Qt::ShiftModifier);
    press(Qt::Key_Equal, Qt::ControlModifier | Qt::ShiftModifier);
    press(Qt::Key_Plus, Qt::ControlModifier | Qt::KeypadModifier);
    EXPECT_EQ(joystick().zoom(), 150);
    press(Qt::Key_Minus, Qt::ControlModifier);
    press(Qt::Key_Minus, Qt::ControlModifier | Qt::KeypadModifier);
    EXPECT_EQ(macro().zoom(), 130);
    EXPECT_EQ(editor.Zoom.get(), 130);
    press(Qt::Key_0, Qt::ControlModifier);
    EXPECT_EQ(joystick().zoom(), 100);
    EXPECT_EQ(macro().zoom(), 100);
}

TEST_F(EditorLook, TheViewMenuZoomsWithinItsBounds)
{
    t.menus().mnuViewZoomIn.Click();
    EXPECT_EQ(macro().zoom(), 110);
    for (int i = 0; i < 60; ++i) t.menus().mnuViewZoomIn.Click();
    EXPECT_EQ(joystick().zoom(), 500);
    for (int i = 0; i < 60; ++i) t.menus().mnuViewZoomOut.Click();
    EXPECT_EQ(joystick().zoom(), 40);
    t.menus().mnuViewZoomNormal.Click();
    EXPECT_EQ(joystick().zoom(), 100);
}

// ---- paste ----------------------------------------------------------------------------------------------------------

TEST_F(EditorLook, TypedCharactersThatNoPaneHoldsAreCountedInTheStatusBar)
{
    writeForeign(QStringLiteral("\u0151"));
    EXPECT_EQ(t.status(), "1 character is not in the Windows character set and became ?");
    EXPECT_EQ(editor.JoystickText.Text().front(), '?');
    editor.status("kept");
    write("?");
    writeForeign(QStringLiteral("\u20AC"));
    EXPECT_EQ(t.status(), "kept");
}

TEST_F(EditorLook, CtrlShiftVPastesPlainText)
{
    t.clipboard.content = {"red", "{\\rtf1{\\colortbl;\\red255;}\\cf1 red}"};
    editor.operations.UpdateCCPButtons();
    press(Qt::Key_V, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(editor.JoystickText.Text().substr(0, 3), "red");
    EXPECT_NE(editor.JoystickText.formatAt(0).colour, 255);
}

// ---- files ----------------------------------------------------------------------------------------------------------

TEST_F(EditorLook, AFileDroppedBesideThePanesIsOpenedToo)
{
    QSignalSpy dropped(&window.editor(), &EditorView::filesDropped);
    QMimeData data;
    data.setUrls({QUrl::fromLocalFile("/tmp/x.b50")});
    QDragEnterEvent enter(QPoint(5, 5), Qt::CopyAction, &data, Qt::LeftButton, {});
    QApplication::sendEvent(&window, &enter);
    EXPECT_TRUE(enter.isAccepted());
    QDropEvent drop(QPointF(5, 5), Qt::CopyAction, &data, Qt::LeftButton, {});
    QApplication::sendEvent(&window, &drop);
    ASSERT_EQ(dropped.size(), 1);
    EXPECT_EQ(dropped[0][0].toStringList(), QStringList{"/tmp/x.b50"});
    QMimeData text;
    text.setText("x");
    QDragEnterEvent other(QPoint(5, 5), Qt::CopyAction, &text, Qt::LeftButton, {});
    other.ignore();
    QApplication::sendEvent(&window, &other);
    EXPECT_FALSE(other.isAccepted());
}

TEST_F(EditorLook, ADotMarksTheTabOfAModifiedFile)
{
    EXPECT_EQ(window.editor().tabs().tabText(0), "x.b50");
    write("x");
    EXPECT_EQ(window.editor().tabs().tabText(0), QStringLiteral("x.b50 \u2022"));
    EXPECT_EQ(window.editor().tabs().tabText(1), "x.m50");
    press(Qt::Key_Tab, Qt::ControlModifier);
    write("y");
    EXPECT_EQ(window.editor().tabs().tabText(0), QStringLiteral("x.b50 \u2022"));
    EXPECT_EQ(window.editor().tabs().tabText(1), QStringLiteral("x.m50 \u2022"));
    t.menus().mnuFileSaveBoth.Click();
    EXPECT_EQ(window.editor().tabs().tabText(0), "x.b50");
    EXPECT_EQ(window.editor().tabs().tabText(1), "x.m50");
}

TEST_F(EditorLook, OfTwoTiledPanesTheOneInFrontHasALineOverIt)
{
    QWidget* mark = get("ActivePane");
    EXPECT_FALSE(mark->isVisible());
    t.menus().mnuViewTileVertically.Click();
    EXPECT_TRUE(mark->isVisible());
    EXPECT_EQ(mark->geometry().left(), joystick().geometry().left());
    EXPECT_EQ(mark->geometry().width(), joystick().geometry().width());
    QTest::mouseClick(macro().viewport(), Qt::LeftButton, {}, QPoint(20, 20));
    events();
    EXPECT_EQ(mark->geometry().left(), macro().geometry().left());
    t.menus().mnuViewTileVertically.Click();
    EXPECT_FALSE(mark->isVisible());
}

TEST_F(EditorLook, TipsSayWhereThisMachineHasAFile)
{
    const QString native = QString::fromStdString(t.machine.nativePath("c:\\a\\x.b50"));
    EXPECT_TRUE(tipOf(window.editor().tabs(), window.editor().tabs().tabRect(0).center()).contains(native));
    QLineEdit field(QStringLiteral("c:\\a\\x.b50"), &window);
    field.setToolTip("The file");
    EXPECT_TRUE(tipOf(field, {2, 2}).contains(native));
    EXPECT_TRUE(QToolTip::text().contains("The file"));
    QLabel label(QStringLiteral("c:\\a\\x.b50 saved successfully."), &window);
    EXPECT_TRUE(tipOf(label, {2, 2}).contains(native));
    const TruePathTips tips(t.program().platform, nullptr);
    EXPECT_EQ(tips.truePath("c:\\a\\nothing.b50"), "");
    EXPECT_EQ(tips.truePath("BTN S1 c:\\a"), "");
    EXPECT_EQ(tips.truePath(QStringLiteral("c:\\") + QString(5'000, u' ')), "");
}

// ---- the macro list -------------------------------------------------------------------------------------------------

TEST_F(EditorLook, TheFilterNarrowsTheMacroListAndLeavesItsNumbers)
{
    auto* list = get<QListView>("List1");
    auto* filter = get<QLineEdit>("Filter");
    EXPECT_FALSE(filter->isVisible());
    press(Qt::Key_F, Qt::ControlModifier | Qt::AltModifier);
    ASSERT_TRUE(filter->isVisible());
    EXPECT_EQ(focus(), filter);
    write("EA");
    EXPECT_TRUE(list->isRowHidden(0));
    EXPECT_FALSE(list->isRowHidden(1));
    press(Qt::Key_Down);
    EXPECT_EQ(focus(), list);
    EXPECT_EQ(list->currentIndex().row(), 1);
    EXPECT_EQ(editor.FrameMacros.List1[0].ListIndex.get(), 1);
    press(Qt::Key_Escape);
    EXPECT_FALSE(filter->isVisible());
    EXPECT_FALSE(list->isRowHidden(0));
    EXPECT_EQ(focus(), &joystick());
}

TEST_F(EditorLook, TypingInTheMacroListOpensItsFilter)
{
    auto* list = get<QListView>("List1");
    list->setFocus();
    write("st");
    EXPECT_EQ(focus(), get<QLineEdit>("Filter"));
    EXPECT_EQ(get<QLineEdit>("Filter")->text(), "st");
    EXPECT_TRUE(list->isRowHidden(0));
    EXPECT_FALSE(list->isRowHidden(2));
}

// ---- tool windows ---------------------------------------------------------------------------------------------------

TEST_F(EditorLook, TheFindWindowMovesAsideFromTheMatch)
{
    press(Qt::Key_F, Qt::ControlModifier);
    auto* form = get("FindAndReplace");
    form->move(joystick().viewport()->mapToGlobal(QPoint(0, 60)));
    events();
    t.program().findAndReplace.ComboTextFind.Text = "fire 15";
    for (int i = 0; i < 5; ++i) {
        t.program().findAndReplace.Command1.Click();
        events();
        EXPECT_FALSE(form->frameGeometry().intersects(joystick().selectionPlace())) << i;
    }
}

} // namespace
} // namespace tarvex
