#include "desktop/platform/qt_dialogues.h"

#include "desktop/platform/mime.h"
#include "desktop/platform/qt_desktop.h"
#include "platform/posix/drive_map.h"
#include "support/temporary_directory.h"

#include <QAbstractButton>
#include <QApplication>
#include <QFileDialog>
#include <QLineEdit>
#include <QMessageBox>
#include <QMimeData>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRegularExpression>
#include <QTest>
#include <QTimer>

#include <gtest/gtest.h>

#include <fstream>

namespace tarvex {
namespace {

MessageBox question(BoxButtons buttons) { return {"Ooops!", "a <b> & c\n\nd", BoxIcon::Question, buttons, false}; }

TEST(FillBox, ATextTooLongForTheScreenIsShownByItsEnds)
{
    QMessageBox view;
    fillBox(view, {.title = "", .text = '"' + std::string(10'000, 'x') + "\" not found in a.b50"});
    EXPECT_LT(view.text().size(), 3'000);
    EXPECT_TRUE(view.text().startsWith("\"xxx"));
    EXPECT_TRUE(view.text().endsWith("xxx\" not found in a.b50"));
    view.show();
    EXPECT_LT(view.width(), 1'200);
    EXPECT_LT(view.height(), 900);
}

TEST(FillBox, TitleTextIconAndButtonsAreThoseAskedFor)
{
    QMessageBox view;
    fillBox(view, question(BoxButtons::YesNoCancel));
    EXPECT_EQ(view.windowTitle(), "Ooops!");
    EXPECT_EQ(view.text(), "a <b> & c\n\nd");
    EXPECT_EQ(view.textFormat(), Qt::PlainText);
    EXPECT_EQ(view.icon(), QMessageBox::Question);
    EXPECT_EQ(view.standardButtons(), QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel);
    EXPECT_EQ(view.defaultButton(), view.button(QMessageBox::Yes));
}

TEST(FillBox, SecondButtonIsTheDefaultWhenAsked)
{
    QMessageBox view;
    MessageBox box = question(BoxButtons::YesNo);
    box.secondButtonIsDefault = true;
    fillBox(view, box);
    EXPECT_EQ(view.defaultButton(), view.button(QMessageBox::No));
}

MessageBox questionWithOwnCaptions()
{
    MessageBox box = question(BoxButtons::YesNoCancel);
    box.captions = {"&Save anyway", "Another &name ..."};
    return box;
}

TEST(FillBox, ButtonsShowTheirOwnCaptionsWhereThereAreAny)
{
    QMessageBox view;
    fillBox(view, question(BoxButtons::YesNoCancel));
    const QString cancel = view.button(QMessageBox::Cancel)->text();
    fillBox(view, questionWithOwnCaptions());
    EXPECT_EQ(view.button(QMessageBox::Yes)->text(), "&Save anyway");
    EXPECT_EQ(view.button(QMessageBox::No)->text(), "Another &name ...");
    EXPECT_EQ(view.button(QMessageBox::Cancel)->text(), cancel);
}

/// What the box answers when the user presses a key in it.
Answer answerTo(const MessageBox& box, Qt::Key key)
{
    const DriveMap drives({{}, "/tmp", "/tmp", "/tmp"});
    QtDialogues dialogues(drives);
    QTimer::singleShot(0, [key] { QTest::keyClick(QApplication::activeModalWidget(), key); });
    return dialogues.show(box);
}
Answer answerTo(BoxButtons buttons, Qt::Key key) { return answerTo(question(buttons), key); }

/// What the box answers when the user clicks the button of that caption.
Answer answerToClick(const MessageBox& box, const QString& caption)
{
    const DriveMap drives({{}, "/tmp", "/tmp", "/tmp"});
    QtDialogues dialogues(drives);
    QTimer::singleShot(0, [caption] {
        auto* const shown = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        for (QAbstractButton* const button : shown->buttons()) {
            if (button->text() == caption) return button->click();
        }
        ADD_FAILURE() << "no button " << caption.toStdString();
        shown->reject();
    });
    return dialogues.show(box);
}

TEST(QtDialogues, ButtonsWithOwnCaptionsAnswerByPlace)
{
    EXPECT_EQ(answerToClick(questionWithOwnCaptions(), "&Save anyway"), Answer::Yes);
    EXPECT_EQ(answerToClick(questionWithOwnCaptions(), "Another &name ..."), Answer::No);
    EXPECT_EQ(answerTo(questionWithOwnCaptions(), Qt::Key_Escape), Answer::Cancel);
}

TEST(QtDialogues, EscapeIsCancelOrNoOrOkByTheButtonsThatThereAre)
{
    EXPECT_EQ(answerTo(BoxButtons::YesNoCancel, Qt::Key_Escape), Answer::Cancel);
    EXPECT_EQ(answerTo(BoxButtons::YesNo, Qt::Key_Escape), Answer::No);
    EXPECT_EQ(answerTo(BoxButtons::Ok, Qt::Key_Escape), Answer::Ok);
}

TEST(QtDialogues, ReturnIsTheDefaultButton)
{
    EXPECT_EQ(answerTo(BoxButtons::YesNoCancel, Qt::Key_Return), Answer::Yes);
    EXPECT_EQ(answerTo(BoxButtons::Ok, Qt::Key_Return), Answer::Ok);
}

TEST(QtDialogues, ABoxBeforeAnyWindowCarriesTheIconAndStandsInTheMiddleOfTheScreen)
{
    const DriveMap drives({{}, "/tmp", "/tmp", "/tmp"});
    QtDialogues dialogues(drives);
    bool seen = false;
    QTimer::singleShot(0, [&seen] {
        QWidget* box = QApplication::activeModalWidget();
        const QPoint off = box->frameGeometry().center() - box->screen()->availableGeometry().center();
        EXPECT_LE(std::max(std::abs(off.x()), std::abs(off.y())), 40) << "the frame's title bar apart";
        EXPECT_FALSE(box->windowIcon().isNull());
        seen = true;
        QTest::keyClick(box, Qt::Key_Return);
    });
    dialogues.show(question(BoxButtons::Ok));
    EXPECT_TRUE(seen);
}

TEST(QtDialogues, ABoxOfAWindowWithoutItsIconYetCarriesTheIcon)
{
    const DriveMap drives({{}, "/tmp", "/tmp", "/tmp"});
    QtDialogues dialogues(drives);
    QWidget window;
    window.show();
    dialogues.setParent(&window);
    bool hasIcon = false;
    QTimer::singleShot(0, [&hasIcon] {
        hasIcon = !QApplication::activeModalWidget()->windowIcon().isNull();
        QTest::keyClick(QApplication::activeModalWidget(), Qt::Key_Return);
    });
    dialogues.show(question(BoxButtons::Ok));
    EXPECT_TRUE(hasIcon);
}

TEST(QtDialogues, ABoxThatComesWhileTheWindowIsMinimisedIsNotHiddenWithIt)
{
    const DriveMap drives({{}, "/tmp", "/tmp", "/tmp"});
    QtDialogues dialogues(drives);
    QWidget window;
    dialogues.setParent(&window);
    const auto parentOfBox = [&] {
        const QWidget* parent = nullptr;
        QTimer::singleShot(0, [&parent] {
            parent = QApplication::activeModalWidget()->parentWidget();
            QTest::keyClick(QApplication::activeModalWidget(), Qt::Key_Return);
        });
        dialogues.show(question(BoxButtons::Ok));
        return parent;
    };
    window.show();
    EXPECT_EQ(parentOfBox(), &window);
    window.showMinimized();
    EXPECT_EQ(parentOfBox(), nullptr);
    window.showNormal();
    EXPECT_EQ(parentOfBox(), &window);
}

TEST(NameFilters, PairsOfDescriptionAndMasksFitNamesInAnyCase)
{
    const QStringList filters = nameFilters("Joystick file (*.b50)|*.b50|All types|*.f22;*.b50|All files (*.*)|*.*");
    ASSERT_EQ(filters.size(), 3);
    EXPECT_EQ(filters[0], "Joystick file (*.b50) (*.[bB]50)");
    EXPECT_EQ(filters[1], "All types (*.[fF]22 *.[bB]50)");
    EXPECT_EQ(filters[2], "All files (*.*) (*)");
    const QRegularExpression mask(QRegularExpression::wildcardToRegularExpression("*.[bB]50"));
    EXPECT_TRUE(mask.match("MIG.B50").hasMatch());
    EXPECT_TRUE(mask.match("mig.b50").hasMatch());
    EXPECT_FALSE(mask.match("mig.m50").hasMatch());
}

TEST(NameFilters, HalfAPairIsLeftOut) { EXPECT_TRUE(nameFilters("Only a description").isEmpty()); }

TEST(QtDialogues, OpenedFileComesBackAsADosPath)
{
    const TemporaryDirectory directory;
    std::ofstream(directory.path() + "/MIG.B50") << "x";
    const DriveMap drives({{}, "/tmp", directory.path(), directory.path()});
    QtDialogues dialogues(drives);
    QString title;
    QTimer::singleShot(0, [&] {
        auto* dialogue = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
        title = dialogue->windowTitle();
        dialogue->selectFile("MIG.B50");
        QMetaObject::invokeMethod(dialogue, "accept");
    });
    FileRequest request;
    request.title = "Opening joystick file";
    request.filter = "Joystick file|*.b50";
    request.directory = drives.toDos(directory.path());
    const auto path = dialogues.openFile(request);
    EXPECT_EQ(title, "Opening joystick file");
    ASSERT_TRUE(path);
    EXPECT_EQ(drives.toNative(*path), directory.path() + "/MIG.B50");
}

/// What a dialogue for saving gives when the user writes the name and presses Return. A dialogue that doesn't take it,
/// or asks something, fails the test and is closed.
std::optional<std::string> savedAs(QtDialogues& dialogues, const FileRequest& request, const QString& name)
{
    bool written = false;
    QTimer user;
    QObject::connect(&user, &QTimer::timeout, &user, [&] {
        auto* modal = qobject_cast<QDialog*>(QApplication::activeModalWidget());
        if (modal == nullptr) return;
        auto* dialogue = qobject_cast<QFileDialog*>(modal);
        if (dialogue == nullptr || written) {
            ADD_FAILURE() << "not taken: " << modal->windowTitle().toStdString();
            return modal->reject();
        }
        written = true;
        EXPECT_EQ(dialogue->acceptMode(), QFileDialog::AcceptSave);
        auto* field = dialogue->findChild<QLineEdit*>("fileNameEdit");
        EXPECT_EQ(field->text().toStdString(), request.suggestedName);
        field->selectAll();
        QTest::keyClicks(field, name);
        QTest::keyClick(field, Qt::Key_Return);
    });
    user.start(0);
    return dialogues.saveFile(request);
}

TEST(QtDialogues, ANewNameToSaveUnderComesBackAsADosPathWithItsExtension)
{
    const TemporaryDirectory directory;
    const DriveMap drives({{}, "/tmp", directory.path(), directory.path()});
    QtDialogues dialogues(drives);
    FileRequest request;
    request.filter = "Joystick file|*.b50";
    request.directory = drives.toDos(directory.path());
    request.suggestedName = "untitled.b50";
    request.defaultExtension = "b50";
    const auto path = savedAs(dialogues, request, "new");
    ASSERT_TRUE(path);
    EXPECT_EQ(drives.toNative(*path), directory.path() + "/new.b50");
    EXPECT_FALSE(std::ifstream(directory.path() + "/new.b50").is_open()) << "only the name was asked for";
}

TEST(QtDialogues, TheNameOfAFileThatIsThereIsTakenWithoutAQuestion)
{
    const TemporaryDirectory directory;
    directory.put("mig.b50", "x");
    const DriveMap drives({{}, "/tmp", directory.path(), directory.path()});
    QtDialogues dialogues(drives);
    FileRequest request;
    request.directory = drives.toDos(directory.path());
    const auto path = savedAs(dialogues, request, "mig.b50");
    ASSERT_TRUE(path) << "the program asks about that itself";
    EXPECT_EQ(drives.toNative(*path), directory.path() + "/mig.b50");
}

TEST(QtDialogues, ChosenFolderComesBackAsADosPath)
{
    const TemporaryDirectory directory;
    const DriveMap drives({{}, "/tmp", directory.path(), directory.path()});
    QtDialogues dialogues(drives);
    QString title;
    QString start;
    QTimer::singleShot(0, [&] {
        auto* dialogue = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
        title = dialogue->windowTitle();
        start = dialogue->directory().path();
        dialogue->selectFile(QString::fromStdString(directory.path()));
        QMetaObject::invokeMethod(dialogue, "accept");
    });
    const auto folder =
        dialogues.chooseFolder("Select your game's working directory", drives.toDos(directory.path()) + "\\");
    EXPECT_EQ(start.toStdString(), directory.path());
    EXPECT_EQ(title, "Select your game's working directory");
    ASSERT_TRUE(folder);
    EXPECT_EQ(drives.toNative(*folder), directory.path());
    EXPECT_FALSE(folder->ends_with('\\'));
}

TEST(QtDialogues, CancelledFolderDialogueGivesNothing)
{
    const DriveMap drives({{}, "/tmp", "/tmp", "/tmp"});
    QtDialogues dialogues(drives);
    QTimer::singleShot(0, [] { QTest::keyClick(QApplication::activeModalWidget(), Qt::Key_Escape); });
    EXPECT_FALSE(dialogues.chooseFolder("Select", "eg. d:\\f22\\program"));
}

TEST(QtDialogues, CancelledFileDialogueGivesNothing)
{
    const DriveMap drives({{}, "/tmp", "/tmp", "/tmp"});
    QtDialogues dialogues(drives);
    QTimer::singleShot(0, [] { QTest::keyClick(QApplication::activeModalWidget(), Qt::Key_Escape); });
    FileRequest request;
    request.directory = "q:\\nowhere";
    EXPECT_FALSE(dialogues.saveFile(request));
}

TEST(QtDialogues, UnknownFormAndMenuWithoutEntriesDoNothing)
{
    const DriveMap drives({{}, "/tmp", "/tmp", "/tmp"});
    QtDialogues dialogues(drives);
    Menus menus;
    dialogues.setMenus(&menus);
    dialogues.showModal("NoSuchForm");
    dialogues.popUp(menus.mnuFile);
    int shown = 0;
    dialogues.addForm("Preferences", [&] { ++shown; });
    dialogues.showModal("Preferences");
    EXPECT_EQ(shown, 1);
}

TEST(QtDialogues, AMenuAtTheCaretComesUpBelowIt)
{
    const DriveMap drives({{}, "/tmp", "/tmp", "/tmp"});
    QtDialogues dialogues(drives);
    Menus menus;
    dialogues.setMenus(&menus);
    QPlainTextEdit text;
    text.setPlainText("one\ntwo\nthree");
    text.move(50, 60);
    text.show();
    text.setFocus();
    text.moveCursor(QTextCursor::End);
    QApplication::processEvents();
    QPoint place;
    QTimer::singleShot(0, [&] {
        QWidget* menu = QApplication::activePopupWidget();
        ASSERT_NE(menu, nullptr);
        place = menu->pos();
        menu->close();
    });
    dialogues.popUpAtCaret(menus.mnuInsert);
    const QPoint off = place - text.viewport()->mapToGlobal(text.cursorRect().bottomLeft());
    EXPECT_LE(off.manhattanLength(), 4) << "but for the frame around the text";
}

TEST(QtDialogues, ABoxBelongsToTheWindowThatTheUserWorksIn)
{
    const DriveMap drives({{}, "/tmp", "/tmp", "/tmp"});
    QtDialogues dialogues(drives);
    QWidget frame;
    dialogues.setParent(&frame);
    frame.show();
    QDialog tool(&frame);
    for (QWidget* active : {&frame, static_cast<QWidget*>(&tool)}) {
        active->show();
        active->activateWindow();
        QApplication::processEvents();
        const QWidget* parent = nullptr;
        QTimer::singleShot(0, [&] {
            parent = QApplication::activeModalWidget()->parentWidget();
            QApplication::activeModalWidget()->close();
        });
        dialogues.show({.title = "", .text = "x"});
        EXPECT_EQ(parent, active);
    }
}

TEST(QtDesktop, SecondCopyInTheSameDirectoryIsNoticedUntilTheFirstEnds)
{
    const TemporaryDirectory directory;
    QtDesktop second(directory.path());
    {
        QtDesktop first(directory.path());
        EXPECT_FALSE(first.anotherInstanceRuns());
        QtDesktop meanwhile(directory.path());
        EXPECT_TRUE(meanwhile.anotherInstanceRuns());
    }
    EXPECT_FALSE(second.anotherInstanceRuns());
}

TEST(QtDesktop, LockFileThatNamesThisVeryProcessIsNoHindrance)
{
    const TemporaryDirectory directory;
    std::ofstream(directory.path() + "/Tarvex.lock") << QCoreApplication::applicationPid() << "\ntarvex\n"
                                                     << QSysInfo::machineHostName().toStdString() << "\n";
    QtDesktop desktop(directory.path());
    EXPECT_FALSE(desktop.anotherInstanceRuns());
}

TEST(QtDesktop, DirectoryThatTakesNoLockIsNoSecondCopy)
{
    QtDesktop desktop("/nonexistent/directory");
    EXPECT_FALSE(desktop.anotherInstanceRuns());
}

TEST(Mime, TextGoesOutWithPlainLineEndsAndRtfByAllItsNames)
{
    const auto data = toMime({"a\r\nb", "{\\rtf1 x}"});
    EXPECT_EQ(data->text(), "a\nb");
    EXPECT_TRUE(data->hasFormat("text/rtf"));
    EXPECT_TRUE(data->hasFormat("application/rtf"));
    EXPECT_TRUE(data->hasFormat("text/richtext"));
    const ClipboardContent back = fromMime(*data);
    EXPECT_EQ(back.text, "a\nb");
    EXPECT_EQ(back.rtf, "{\\rtf1 x}");
    EXPECT_TRUE(holdsContent(*data));
    EXPECT_FALSE(holdsContent(QMimeData()));
}

} // namespace
} // namespace tarvex
