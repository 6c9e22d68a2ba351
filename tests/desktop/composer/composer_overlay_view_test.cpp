#include "composer_view_case.h"
#include "desktop/composer/statement_box.h"

#include <QScrollBar>
#include <QSplitter>
#include <QTextBlock>

namespace tarvex {
namespace {

struct ComposerOverlayViewTest : ComposerViewTest {
    static constexpr int manyLines = 48;

    void write(const std::string& text)
    {
        t.typeJoystick(text);
        composer.TimerAssigned.Tick();
        events();
    }
    /// A statement of many lines on S1, the last of them "/R Key48".
    void writeLongStatement()
    {
        std::string text = "BTN S1 /U Key1\r\n";
        for (int i = 2; i <= manyLines; ++i) text += "   /R Key" + std::to_string(i) + "\r\n";
        write(text);
    }
    /// A statement on S1 of so many lines, the first of so many characters.
    static std::string statement(int lines, std::size_t characters)
    {
        const std::string start = "BTN S1 /U ";
        std::string text = start + std::string(characters - start.size(), 'x') + "\r\n";
        for (int i = 2; i <= lines; ++i) text += "   /R Key" + std::to_string(i) + "\r\n";
        return text;
    }
    /// From elsewhere, because a mouse that is there already doesn't come to it.
    void pointAt(QPoint place)
    {
        for (const QPoint next : {QPoint(1, 1), place}) {
            QTest::mouseMove(form()->windowHandle(), next);
            events();
        }
    }
    void pointAt(const char* id) { pointAt(placeOf(*shownPicture()->control(id))); }
    void pointAtBox() { pointAt(box().mapTo(form(), box().rect().center())); }
    StatementBox& box() { return *get<StatementBox>("AssignedText"); }
    std::string shown() { return box().toPlainText().toStdString(); }
    std::string lastLineInSight()
    {
        const QPoint foot(box().viewport()->width() / 2, box().viewport()->height() - 2);
        return box().cursorForPosition(foot).block().text().trimmed().toStdString();
    }
};

TEST_F(ComposerOverlayViewTest, AControlWithAStatementIsMarkedAndShowsItUnderTheMouse)
{
    use(0, 0, 0);
    write("BTN S1 /U Fire\r\n");
    HardwareControl& control = *shownPicture()->control("BTN(0)");
    EXPECT_TRUE(control.isAssigned());
    pointAt("BTN(0)");
    EXPECT_TRUE(control.toolTip().contains("Fire"));
    EXPECT_TRUE(control.accessibleDescription().contains("Fire"));
    EXPECT_EQ(shown(), "BTN S1 /U Fire");
    click("CheckShowAssigned");
    EXPECT_FALSE(control.isAssigned());
    EXPECT_TRUE(box().isHidden());
}

TEST_F(ComposerOverlayViewTest, TheFocusedControlShowsItsStatementToo)
{
    use(0, 0, 0);
    write("BTN S1 /U Fire\r\nBTN S2 Gear\r\n");
    HardwareControl& first = *shownPicture()->control("BTN(0)");
    first.setFocus(Qt::TabFocusReason);
    events();
    EXPECT_EQ(shown(), "BTN S1 /U Fire");
    // Each arrow goes to the next control in the order of the picture.
    for (std::size_t i = 0; i < shownPicture()->controls().size() && shown() != "BTN S2 Gear"; ++i)
        QTest::keyClick(form()->focusWidget(), Qt::Key_Down);
    EXPECT_EQ(shown(), "BTN S2 Gear");
    EXPECT_EQ(form()->focusWidget(), shownPicture()->control("BTN(1)"));
}

TEST_F(ComposerOverlayViewTest, TheKeysOfTheMacrosStandBehindTheStatement)
{
    t.files.addFile("c:\\tm\\a.b50", "BTN S1 Fire\r\n");
    t.files.addFile("c:\\tm\\a.m50", "Fire = CTL f\r\n");
    t.openBoth("c:\\tm\\a.b50");
    use(0, 0, 0);
    shownPicture()->control("BTN(0)")->setFocus();
    events();
    EXPECT_EQ(shown(), "BTN S1 Fire\n    Fire = CTL f");
}

TEST_F(ComposerOverlayViewTest, TheStatementStaysToBeScrolledWhenTheMouseHasLeftTheControl)
{
    use(0, 0, 0);
    writeLongStatement();
    pointAt("BTN(0)");
    ASSERT_TRUE(shown().ends_with("Key48"));
    pointAtBox();
    EXPECT_TRUE(shown().ends_with("Key48"));
    box().verticalScrollBar()->setValue(box().verticalScrollBar()->maximum());
    EXPECT_EQ(lastLineInSight(), "/R Key48");
}

TEST_F(ComposerOverlayViewTest, PageDownOnAControlScrollsItsStatement)
{
    use(0, 0, 0);
    writeLongStatement();
    HardwareControl& control = *shownPicture()->control("BTN(0)");
    control.setFocus(Qt::TabFocusReason);
    events();
    EXPECT_NE(lastLineInSight(), "/R Key48");
    for (int i = 0; i < manyLines && lastLineInSight() != "/R Key48"; ++i) QTest::keyClick(&control, Qt::Key_PageDown);
    EXPECT_EQ(lastLineInSight(), "/R Key48");
    EXPECT_EQ(form()->focusWidget(), &control);
    for (int i = 0; i < manyLines; ++i) QTest::keyClick(&control, Qt::Key_PageUp);
    EXPECT_EQ(box().verticalScrollBar()->value(), 0);
}

TEST_F(ComposerOverlayViewTest, TheBoxOfTheStatementCanBeMadeHigher)
{
    use(0, 0, 0);
    auto* parts = qobject_cast<QSplitter*>(box().parentWidget());
    ASSERT_NE(parts, nullptr);
    const int before = box().height();
    const QPoint handle = parts->handle(1)->rect().center();
    QTest::mousePress(parts->handle(1), Qt::LeftButton, {}, handle);
    QTest::mouseMove(parts->handle(1), handle - QPoint(0, 100));
    QTest::mouseRelease(parts->handle(1), Qt::LeftButton, {}, handle - QPoint(0, 100));
    events();
    EXPECT_GT(box().height(), before + 50);
}

TEST_F(ComposerOverlayViewTest, ATipIsCutToWhatFitsOnTheScreen)
{
    use(0, 0, 0);
    writeLongStatement();
    pointAt("BTN(0)");
    const QString tip = shownPicture()->control("BTN(0)")->toolTip();
    EXPECT_TRUE(tip.contains("Key12"));
    EXPECT_FALSE(tip.contains("Key13"));
    EXPECT_TRUE(tip.contains("36 more lines"));
    EXPECT_TRUE(shownPicture()->control("BTN(0)")->accessibleDescription().contains("Key48"));
}

TEST_F(ComposerOverlayViewTest, ATipKeepsTheColumnsAndCutsLongLines)
{
    use(0, 0, 0);
    write("BTN S1 /U  <a>\r\n       /M " + std::string(100, 'x') + " end\r\n");
    pointAt("BTN(0)");
    const QString tip = shownPicture()->control("BTN(0)")->toolTip();
    EXPECT_TRUE(tip.contains("BTN S1 /U  &lt;a&gt;\n       /M xxx")) << tip.toStdString();
    EXPECT_TRUE(tip.contains("xxx...")) << tip.toStdString();
    EXPECT_FALSE(tip.contains("end"));
}

TEST_F(ComposerOverlayViewTest, ATipHasTheStatementOverALineAndThenWhatAClickDoes)
{
    use(0, 0, 0);
    write("BTN S1 /U Fire\r\n");
    pointAt("BTN(0)");
    EXPECT_EQ(shownPicture()->control("BTN(0)")->toolTip().toStdString(),
              "<pre style=\"margin: 0\">BTN S1 /U Fire</pre><hr>Insert or find this button statement");
    pointAt("BTN(1)");
    EXPECT_EQ(shownPicture()->control("BTN(1)")->toolTip().toStdString(), "Insert or find this button statement");
}

TEST_F(ComposerOverlayViewTest, ThirteenLinesOfEightyCharactersAreWholeInATip)
{
    use(0, 0, 0);
    write(statement(13, 80));
    pointAt("BTN(0)");
    const QString tip = shownPicture()->control("BTN(0)")->toolTip();
    EXPECT_TRUE(tip.contains("Key13")) << tip.toStdString();
    EXPECT_FALSE(tip.contains("...")) << tip.toStdString();
}

TEST_F(ComposerOverlayViewTest, OfFourteenLinesTwelveAreInATipAndOfAnEightyFirstCharacterDots)
{
    use(0, 0, 0);
    write(statement(14, 81));
    pointAt("BTN(0)");
    const QString tip = shownPicture()->control("BTN(0)")->toolTip();
    EXPECT_TRUE(tip.contains("Key12\n... and 2 more lines, in the box below the picture")) << tip.toStdString();
    EXPECT_FALSE(tip.contains("Key13"));
    EXPECT_TRUE(tip.contains("BTN S1 /U " + QString(67, u'x') + "...\n")) << tip.toStdString();
}

TEST_F(ComposerOverlayViewTest, AControlWithoutAStatementSaysSo)
{
    use(0, 1, 0);
    write("BTN S2 Gear\r\n");
    EXPECT_TRUE(box().placeholderText().startsWith("Point at a control"));
    pointAt("BTN(0)");
    EXPECT_EQ(shown(), "");
    EXPECT_EQ(box().placeholderText().toStdString(), "Your joystick file has nothing on S1 yet.");
    // Another picture begins anew.
    get<QTabWidget>("SSTabHardware")->setCurrentIndex(2);
    events();
    EXPECT_TRUE(box().placeholderText().startsWith("Point at a control"));
}

TEST_F(ComposerOverlayViewTest, TheStatementOnShowFollowsTheText)
{
    use(0, 0, 0);
    write("BTN S1 Fire\r\n");
    pointAt("BTN(0)");
    pointAtBox();
    t.editor().JoystickText.setText("BTN S1 Gear\r\n");
    composer.TimerAssigned.Tick();
    EXPECT_EQ(shown(), "BTN S1 Gear");
}

} // namespace
} // namespace tarvex
