#include "desktop/lists/enter_game_name_view.h"

#include "desktop/lists/list_forms.h"
#include "desktop/platform/qt_dialogues.h"
#include "lists/lists.h"
#include "platform/posix/drive_map.h"
#include "support/test_program.h"

#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>
#include <QTimer>

#include <gtest/gtest.h>

namespace tarvex {
namespace {

/// The dialogue on the screen, with its samples.
struct Asked : TestProgram {
    EnterGameName& form = program().lists.games.form;
    EnterGameNameView view{form, nullptr};

    Asked()
    {
        GAME_Form_Load(form);
        form.Form.Visible = true;
        events();
    }
    static void events() { QApplication::processEvents(); }
    QLineEdit* box(const char* name) { return view.findChild<QLineEdit*>(QLatin1String(name)); }
    QPushButton* button(const char* name) { return view.findChild<QPushButton*>(QLatin1String(name)); }
    void click(const char* name) { QTest::mouseClick(button(name), Qt::LeftButton); }
};

TEST(EnterGameNameView, ShowsTheSamplesAndTheNote)
{
    Asked t;
    EXPECT_EQ(t.view.objectName(), "EnterGameName");
    EXPECT_EQ(t.view.windowTitle(), "Enter game details - click on the help buttons for information");
    EXPECT_EQ(t.box("Text1")->text(), "eg. F22 ADF");
    EXPECT_EQ(t.box("Text4")->text(), "eg. c:\\tm\\f22\\f22progs\\f22adf.f22");
    const auto labels = t.view.findChildren<QLabel*>();
    EXPECT_TRUE(std::any_of(labels.begin(), labels.end(), [](const QLabel* label) {
        return label->text() == "Note: you can edit these later in Preferences on the Games tab";
    }));
}

TEST(EnterGameNameView, ButtonsCarryTheirCaptions)
{
    Asked t;
    EXPECT_EQ(t.button("Command1(0)")->text(), "Browse");
    EXPECT_EQ(t.button("Command1(1)")->text(), "Browse");
    EXPECT_EQ(t.button("Command2")->text(), "Select");
    EXPECT_EQ(t.button("Command3")->text(), "OK");
    EXPECT_EQ(t.button("Command4")->text(), "Cancel");
}

TEST(EnterGameNameView, TabWalksTheBoxesWithTheirButtonsAndSelectsEachText)
{
    Asked t;
    t.view.activateWindow();
    t.box("Text1")->setFocus();
    const char* const order[] = {"Text1",    "Text2", "Command1(0)", "Command5", "Text3",   "Command2",
                                 "Command6", "Text4", "Command1(1)", "Command3", "Command4"};
    for (const char* name : order) {
        Asked::events();
        ASSERT_NE(t.view.focusWidget(), nullptr);
        EXPECT_EQ(t.view.focusWidget()->objectName(), QLatin1String(name));
        if (const auto* box = qobject_cast<QLineEdit*>(t.view.focusWidget())) {
            EXPECT_EQ(box->selectedText(), box->text()) << name;
        }
        QTest::keyClick(t.view.focusWidget(), Qt::Key_Tab);
    }
}

TEST(EnterGameNameView, WhatIsTypedIsWhatOkTakes)
{
    Asked t;
    const char* const texts[][2] = {
        {"Text1", "Q2"}, {"Text2", "d:\\q.exe +a"}, {"Text3", "d:\\"}, {"Text4", "c:\\q.b50"}};
    for (const auto& [name, text] : texts) {
        t.box(name)->setFocus();
        t.box(name)->selectAll();
        QTest::keyClicks(t.box(name), text);
    }
    QTest::keyClick(t.box("Text4"), Qt::Key_Return);
    EXPECT_EQ(t.form.okPressed, 1);
    EXPECT_EQ(t.form.current.name, "Q2");
    EXPECT_EQ(t.form.current.command, "d:\\q.exe +a");
    EXPECT_EQ(t.form.current.workingDirectory, "d:\\");
    EXPECT_EQ(t.form.current.joystickFile, "c:\\q.b50");
    EXPECT_FALSE(t.view.isVisible());
}

TEST(EnterGameNameView, WithoutANameThereIsNoOk)
{
    Asked t;
    t.box("Text1")->clear();
    EXPECT_FALSE(t.button("Command3")->isEnabled());
    QTest::keyClick(t.box("Text1"), Qt::Key_Return);
    EXPECT_TRUE(t.view.isVisible());
    QTest::keyClicks(t.box("Text1"), "a");
    EXPECT_TRUE(t.button("Command3")->isEnabled());
}

TEST(EnterGameNameView, BrowseAndSelectFillTheBoxes)
{
    Asked t;
    t.dialogues.filesToOpen = {"d:\\F22\\f22.exe", "c:\\tm\\f.b50"};
    t.dialogues.folders = {"d:\\games"};
    t.click("Command1(0)");
    EXPECT_EQ(t.box("Text2")->text(), "d:\\f22\\f22.exe");
    EXPECT_EQ(t.box("Text3")->text(), "d:\\f22\\");
    t.click("Command1(1)");
    EXPECT_EQ(t.box("Text4")->text(), "c:\\tm\\f.b50");
    t.click("Command2");
    EXPECT_EQ(t.box("Text3")->text(), "d:\\games");
}

TEST(EnterGameNameView, TheHelpButtonsExplainAndHaveNamesForScreenReaders)
{
    Asked t;
    t.click("Command5");
    EXPECT_EQ(t.lastBox().title, "Important information ... ");
    t.click("Command6");
    EXPECT_EQ(t.lastBox().title, "About the working directory ... ");
    EXPECT_EQ(t.button("Command5")->accessibleName(), "Help on the game's path");
    EXPECT_EQ(t.button("Command6")->accessibleName(), "Help on the working directory");
}

TEST(EnterGameNameView, EscapeAndCancelTakeNothing)
{
    Asked t;
    QTest::keyClick(t.box("Text2"), Qt::Key_Escape);
    EXPECT_FALSE(t.view.isVisible());
    t.form.Form.Visible = true;
    t.click("Command4");
    EXPECT_FALSE(t.view.isVisible());
    EXPECT_EQ(t.form.okPressed, 0);
}

TEST(ListForms, TheGameDialogueIsShownModallyByItsName)
{
    TestProgram t;
    const DriveMap drives({{}, "/tmp", "/tmp", "/tmp"});
    QtDialogues dialogues(drives);
    addListForms(dialogues, t.program().lists, nullptr);
    QTimer::singleShot(0, [] {
        QWidget* window = QApplication::activeModalWidget();
        ASSERT_NE(window, nullptr);
        EXPECT_EQ(window->objectName(), "EnterGameName");
        QTest::keyClick(window, Qt::Key_Escape);
    });
    EXPECT_TRUE(dialogues.showModal("EnterGameName"));
    EXPECT_FALSE(t.program().lists.games.form.Form.Visible);
}

} // namespace
} // namespace tarvex
