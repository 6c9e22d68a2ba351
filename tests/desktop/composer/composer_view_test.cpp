#include "desktop/composer/composer_view.h"

#include "../access_keys.h"
#include "composer/composer.h"
#include "composer_view_case.h"

#include <QApplication>
#include <QCheckBox>
#include <QClipboard>
#include <QComboBox>
#include <QDialog>
#include <QInputMethodEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTabWidget>
#include <QTest>
#include <QWindow>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace tarvex {
namespace {

struct Hardware {
    std::int16_t joystick;
    std::int16_t throttle;
    std::int16_t rudder;
    std::int16_t images;
    int pictures;
};

struct EveryHardware : ComposerViewTest, testing::WithParamInterface<Hardware> {};

TEST_P(EveryHardware, EveryControlIsNamedAndClickedInItsPicture)
{
    const Hardware& hardware = GetParam();
    t.settings().ComposerImages = hardware.images;
    use(hardware.joystick, hardware.throttle, hardware.rudder);
    std::vector<std::string> clicked;
    for (const Picture& shown : allPictures()) {
        for (const PictureControl& control : shown.controls)
            controlButton(composer, control.id)->handler = [&clicked, &control] { clicked.emplace_back(control.id); };
    }
    auto* tabs = get<QTabWidget>("SSTabHardware");
    int pictures = 0;
    for (int page = 0; page < tabs->count(); ++page) {
        if (!tabs->isTabVisible(page)) continue;
        ++pictures;
        tabs->setCurrentIndex(page);
        events();
        for (const HardwareControl* control : shownPicture()->controls()) {
            if (control->isHidden() || !control->isEnabled()) continue;
            EXPECT_FALSE(control->accessibleName().isEmpty());
            const QPoint place = placeOf(*control);
            ASSERT_GE(place.x(), 0) << control->objectName().toStdString() << " is covered";
            clicked.clear();
            clickAt(place);
            EXPECT_THAT(clicked, testing::ElementsAre(control->objectName().toStdString()));
        }
    }
    EXPECT_EQ(pictures, hardware.pictures);
}

INSTANTIATE_TEST_SUITE_P(Choices, EveryHardware,
                         testing::Values(Hardware{0, 0, 0, 0, 1}, Hardware{0, 1, 1, 0, 2}, Hardware{0, 2, 2, 0, 2},
                                         Hardware{1, 1, 0, 0, 2}, Hardware{1, 3, 1, 0, 2}, Hardware{2, 0, 1, 0, 1},
                                         Hardware{3, 3, 0, 0, 2}, Hardware{4, 1, 2, 0, 2}, Hardware{0, 0, 0, 1, 4}),
                         [](const auto& tested) { return "Choice" + std::to_string(tested.index); });

TEST_F(ComposerViewTest, AClickOnAButtonPutsItsStatementIntoTheFile)
{
    use(0, 1, 0);
    clickControl("BTN(0)");
    EXPECT_EQ(joystick(), "BTN S1 ");
}

TEST_F(ComposerViewTest, OnlyTheControlsOfTheHardwareAreThere)
{
    use(1, 1, 0);
    EXPECT_TRUE(shownPicture()->control("ROTARY(7)")->isHidden());
    EXPECT_TRUE(shownPicture()->control("ROTARY(2)")->isHidden());
    EXPECT_TRUE(get<QPushButton>("SlashButton(11)")->isHidden());
    use(0, 1, 1);
    EXPECT_FALSE(shownPicture()->control("ROTARY(7)")->isHidden());
    EXPECT_FALSE(shownPicture()->control("ROTARY(2)")->isHidden());
    EXPECT_FALSE(get<QPushButton>("SlashButton(11)")->isHidden());
}

TEST_F(ComposerViewTest, TheMenuOfAHatIsAskedForAtTheHat)
{
    use(0, 0, 0);
    const HardwareControl& hat = *shownPicture()->control("HAT(1)");
    t.dialogues.whilePoppedUp = [this] { composer.MnuHatPostion[3].Click(); };
    clickControl("HAT(1)");
    EXPECT_EQ(joystick(), "BTN H2R ");
    EXPECT_EQ(QPoint(composer.PopUpPlace.Left, composer.PopUpPlace.Top), hat.menuPlace());
}

TEST_F(ComposerViewTest, ThePortToggleShowsThatItIsHeld)
{
    use(0, 0, 0);
    clickControl("ROTARY(7)");
    EXPECT_TRUE(shownPicture()->control("ROTARY(7)")->isChecked());
    clickControl("BTN(0)");
    EXPECT_EQ(joystick(), "S1 ");
    EXPECT_FALSE(shownPicture()->control("ROTARY(7)")->isChecked());
}

TEST_F(ComposerViewTest, ARotaryBringsItsPage)
{
    use(0, 1, 0);
    get<QTabWidget>("SSTabHardware")->setCurrentIndex(2);
    events();
    clickControl("ROTARY(0)");
    EXPECT_EQ(get<QTabWidget>("SSTab1")->currentIndex(), 1);
}

TEST_F(ComposerViewTest, TheWcsOfAnOlderStickHasItsOwnPicture)
{
    use(1, 3, 0);
    get<QTabWidget>("SSTabHardware")->setCurrentIndex(3);
    events();
    EXPECT_EQ(shownPicture()->picture().file, "wcs");
    EXPECT_FALSE(shownPicture()->control("BTN(4)")->isEnabled());
    use(2, 3, 0);
    get<QTabWidget>("SSTabHardware")->setCurrentIndex(3);
    events();
    EXPECT_EQ(shownPicture()->picture().file, "wcs-older-stick");
    EXPECT_TRUE(shownPicture()->control("BTN(4)")->isEnabled());
    clickControl("BTN(16)");
    EXPECT_EQ(joystick(), "RKR UP ");
}

TEST_F(ComposerViewTest, AFormInsertsWhatItsFieldsHold)
{
    showPage(composerPage::range);
    const char* values[] = {"5", "Up", "Down"};
    for (int i = 0; i < 3; ++i) {
        auto* field = get<QLineEdit>(QStringLiteral("Rng1(%1)").arg(i));
        field->setFocus();
        QTest::keyClicks(field, QLatin1String(values[i]));
    }
    QTest::keyClick(get<QLineEdit>("Rng1(2)"), Qt::Key_Return);
    EXPECT_EQ(joystick(), "RNG 1 5 Up Down\r\n");
    EXPECT_TRUE(form()->isVisible());
}

TEST_F(ComposerViewTest, TheAxisThatIsHeldIsTheOneThatIsInserted)
{
    showPage(composerPage::digitalAxes);
    click("ToggleButton1(2)");
    EXPECT_TRUE(get<QPushButton>("ToggleButton1(2)")->isChecked());
    EXPECT_FALSE(get<QPushButton>("ToggleButton1(0)")->isChecked());
    get<QLineEdit>("Axis3(0)")->setText("a");
    click("Command8(3)");
    EXPECT_EQ(joystick(), "RDDR 3 a  \r\n");
}

TEST_F(ComposerViewTest, AMouseTypeIsChosenFromTheListOfItsKind)
{
    showPage(composerPage::setUp);
    QTest::mouseClick(get<QRadioButton>("Option1(1)"), Qt::LeftButton);
    events();
    EXPECT_TRUE(get<QListWidget>("MouseList(0)")->isHidden());
    get<QListWidget>("MouseList(1)")->setCurrentRow(6);
    events();
    EXPECT_EQ(get<QLabel>("Label5(0)")->text(), "T6");
    click("Command9");
    EXPECT_EQ(joystick(), "USE MTYPE B7\r\n");
}

TEST_F(ComposerViewTest, ADefinitionIsWrittenByKeysAndTermButtons)
{
    showPage(composerPage::flags);
    auto* field = get<QLineEdit>("RichTexFlag(1)");
    field->setFocus();
    events();
    QTest::keyClicks(field, "DEF X2 T1 T2");
    EXPECT_TRUE(get<QRadioButton>("OptionFlag(1)")->isChecked());
    EXPECT_FALSE(get<QRadioButton>("OptionFlag(0)")->isChecked());
    field->setCursorPosition(9);
    click("CMDCompare(0)");
    EXPECT_EQ(field->text(), "DEF X2 T1 AND T2");
    EXPECT_EQ(field->cursorPosition(), 13);
    click("Command13(1)");
    EXPECT_EQ(joystick(), "DEF X2 T1 AND T2\r\n");
}

TEST_F(ComposerViewTest, ACharacterThatADefinitionCannotHoldIsAQuestionMarkAndTermsFollowIt)
{
    showPage(composerPage::flags);
    auto* field = get<QLineEdit>("RichTexFlag(0)");
    field->setFocus();
    events();
    QInputMethodEvent input;
    input.setCommitString(QString::fromUtf8("X1 \xF0\x9F\x98\x80")); // two code units
    QApplication::sendEvent(field, &input);
    EXPECT_EQ(field->text(), "X1 ?");
    EXPECT_EQ(field->cursorPosition(), 4);
    click("CMDCompare(0)");
    EXPECT_EQ(field->text(), "X1 ? AND");
    EXPECT_EQ(composer.flags.RichTexFlag[0].Text(), "X1 ? AND");
}

TEST_F(ComposerViewTest, OfSeveralPastedLinesAFieldTakesTheFirst)
{
    QApplication::clipboard()->setText("up\r\nBTN S1 a");
    for (const auto& [page, name] :
         {std::pair(composerPage::hardware, "RemTextBox"), {composerPage::flags, "RichTexFlag(0)"}}) {
        showPage(page);
        auto* field = get<QLineEdit>(name);
        field->clear();
        field->paste();
        EXPECT_EQ(field->text(), "up") << name;
    }
    EXPECT_EQ(composer.fields.RemTextBox.Text.get(), "up");
}

TEST_F(ComposerViewTest, DefinitionsAreReadBackFromTheFile)
{
    t.typeJoystick("DEF X1 T1\r\nBTN X1 Fire\r\n");
    showPage(composerPage::flags);
    click("Command13(2)");
    EXPECT_EQ(get<QLineEdit>("RichTexFlag(0)")->text(), "DEF X1 T1");
    EXPECT_EQ(get<QLineEdit>("RichTexFlag(1)")->text(), "BTN X1 Fire");
}

TEST_F(ComposerViewTest, AMacroIsInsertedByADoubleClickAndByReturn)
{
    t.files.addFile("c:\\tm\\a.b50", "");
    t.files.addFile("c:\\tm\\a.m50", "Fire = f\r\nChaff = c\r\n");
    t.openBoth("c:\\tm\\a.b50");
    composer.form.Activate();
    events();
    auto* list = get<QListView>("List1");
    EXPECT_EQ(get<QComboBox>("Combo1")->currentText(), "All");
    const QPoint second = list->visualRect(list->model()->index(1, 0)).center();
    QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, second);
    QTest::mouseDClick(list->viewport(), Qt::LeftButton, {}, second);
    EXPECT_EQ(joystick(), "Chaff ");
    list->setFocus();
    QTest::keyClick(list, Qt::Key_Up);
    QTest::keyClick(list, Qt::Key_Return);
    EXPECT_EQ(joystick(), "Chaff Fire ");
}

TEST_F(ComposerViewTest, TheRightButtonOnAMacroAsksForItsMenu)
{
    t.files.addFile("c:\\tm\\a.b50", "");
    t.files.addFile("c:\\tm\\a.m50", "Fire = f\r\n");
    t.openBoth("c:\\tm\\a.b50");
    composer.form.Activate();
    events();
    auto* list = get<QListView>("List1");
    QTest::mouseClick(list->viewport(), Qt::RightButton, {}, list->visualRect(list->model()->index(0, 0)).center());
    EXPECT_THAT(t.dialogues.popUps, testing::ElementsAre("mnuRHList"));
}

TEST_F(ComposerViewTest, ATemplateIsShownAndInsertedByADoubleClick)
{
    t.files.addFile("c:\\tarvex\\Templates\\a.txt", "Rem title\r\n");
    get<QTabWidget>("SSTab7")->setCurrentIndex(1);
    events();
    click("Command11(2)");
    auto* list = get<QListWidget>("Templates");
    ASSERT_EQ(list->count(), 1);
    list->setCurrentRow(0);
    events();
    auto* preview = get<QPlainTextEdit>("TemplatesPreview");
    EXPECT_EQ(preview->toPlainText(), "Rem title\n");
    QTest::mouseDClick(preview->viewport(), Qt::LeftButton);
    events();
    EXPECT_EQ(joystick(), "Rem title\r\n");
}

TEST_F(ComposerViewTest, HiddenAndShownAgainItIsTheSameWindow)
{
    get<QLineEdit>("RemTextBox")->setText("gear");
    click("Command6");
    EXPECT_FALSE(form()->isVisible());
    open();
    EXPECT_TRUE(form()->isVisible());
    EXPECT_EQ(get<QLineEdit>("RemTextBox")->text(), "gear");
}

TEST_F(ComposerViewTest, EscapeHidesIt)
{
    QTest::keyClick(form(), Qt::Key_Escape);
    events();
    EXPECT_FALSE(form()->isVisible());
    EXPECT_EQ(composer.ComposerOpen, 1);
}

TEST_F(ComposerViewTest, ABoxOfTheProgramIsNotHiddenByTheWindowThatIsKeptOnTop)
{
    const auto onTop = [this] { return form()->windowHandle()->flags().testFlag(Qt::WindowStaysOnTopHint); };
    ASSERT_TRUE(onTop());
    {
        QDialog box(&window);
        box.setModal(true);
        box.show();
        events();
        EXPECT_FALSE(onTop());
    }
    events();
    EXPECT_TRUE(onTop());
    EXPECT_TRUE(form()->isVisible());
}

TEST_F(ComposerViewTest, KeysReachTheProgram)
{
    t.typeJoystick("abc");
    QWidget* const control = form()->focusWidget(); // a display gives keys to the control, not to its window
    QTest::keyClick(control != nullptr ? control : form(), Qt::Key_A, Qt::ControlModifier);
    EXPECT_EQ(t.editor().JoystickText.SelLength(), 3);
}

TEST_F(ComposerViewTest, F4MinimisesItAndOpensNoList)
{
    composer.macros.Combo1.Items = std::vector<std::string>{"All", "Guns"}; // no list opens without entries
    auto* headings = get<QComboBox>("Combo1");
    headings->setFocus();
    events();
    ASSERT_EQ(form()->focusWidget(), headings);
    QTest::keyClick(headings, Qt::Key_F4);
    EXPECT_EQ(composer.form.State.get(), WindowState::Minimised);
    EXPECT_FALSE(headings->view()->isVisible());
}

TEST_F(ComposerViewTest, AccessKeysAreUniqueOnEachPage)
{
    use(0, 1, 1);
    for (int lists = 0; lists < get<QTabWidget>("SSTab7")->count(); ++lists) {
        get<QTabWidget>("SSTab7")->setCurrentIndex(lists);
        for (int page = 0; page < get<QTabWidget>("SSTab1")->count(); ++page) {
            showPage(page);
            const auto keys = accessKeys(*form());
            EXPECT_GE(keys.size(), 8);
            for (auto key = keys.begin(); key != keys.end(); ++key)
                EXPECT_EQ(key->size(), 1) << "page " << page << ": " << key->join(" | ").toStdString();
        }
    }
}

TEST_F(ComposerViewTest, EveryFieldAndButtonHasANameForScreenReaders)
{
    for (int page = 0; page < 7; ++page) {
        showPage(page);
        for (const QLineEdit* field : form()->findChildren<QLineEdit*>()) {
            const bool labelled = std::ranges::any_of(form()->findChildren<QLabel*>(),
                                                      [field](const QLabel* label) { return label->buddy() == field; });
            EXPECT_TRUE(labelled || !field->accessibleName().isEmpty()) << field->objectName().toStdString();
        }
        for (const QPushButton* button : form()->findChildren<QPushButton*>())
            EXPECT_FALSE(button->text().isEmpty() && button->accessibleName().isEmpty())
                << button->objectName().toStdString();
    }
}

} // namespace
} // namespace tarvex
