#include "desktop/program/mum_window.h"

#include "desktop/menus/menu_view.h"
#include "desktop/shell/status_bar_view.h"
#include "shell/appearance.h"
#include "support/eventually.h"
#include "support/test_program.h"

#include <QAction>
#include <QApplication>
#include <QDropEvent>
#include <QHelpEvent>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QMimeData>
#include <QMouseEvent>
#include <QProgressBar>
#include <QScreen>
#include <QScrollBar>
#include <QStatusBar>
#include <QTest>
#include <QTimer>
#include <QToolTip>
#include <QWindow>

#include <gtest/gtest.h>

namespace tarvex {
namespace {

/// The whole program with its windows, on a machine in memory.
struct Shown : TestProgram {
    Appearance appearance{files, programDirectory, menus()};
    MumWindow window{program()};

    Shown()
    {
        window.showNormal();
        window.resize(1000, 700);
        events();
    }
    static void events() { QApplication::processEvents(); }
    PaneView& joystick() { return window.editor().pane(editor().joystick); }
    PaneView& macro() { return window.editor().pane(editor().macro); }
    QAction* action(const QString& name) { return window.findChild<QAction*>(name); }
    bool showsText(const QString& text)
    {
        const auto labels = window.statusBar()->findChildren<QLabel*>();
        return std::any_of(labels.begin(), labels.end(), [&](const QLabel* label) { return label->text() == text; });
    }
};

TEST(MumWindow, MenuItemRunsItsCommand)
{
    Shown shown;
    ASSERT_NE(shown.action("mnuViewTileVertically"), nullptr);
    shown.action("mnuViewTileVertically")->trigger();
    EXPECT_TRUE(shown.menus().mnuViewTileVertically.Checked);
    EXPECT_TRUE(shown.action("mnuViewTileVertically")->isChecked());
    EXPECT_TRUE(shown.joystick().isVisible());
    EXPECT_TRUE(shown.macro().isVisible());
    shown.action("mnuViewTileVertically")->trigger();
    EXPECT_FALSE(shown.action("mnuViewTileVertically")->isChecked());
    EXPECT_FALSE(shown.macro().isVisible());
}

TEST(MumWindow, CommandsWithoutAHandlerAreGreyInTheMenus)
{
    TestProgram test;
    MenuItem built("built", "&Built");
    MenuItem missing("missing", "Missing");
    MenuItem top("top", "&Top");
    int clicks = 0;
    built.handler = [&] { ++clicks; };
    QMenuBar bar;
    Bindings bindings;
    fillMenuBar(bar, {{&top, {}, {{&missing, {}, {}}, MenuEntry(), {&built, "F8", {}}}}}, bindings);
    const auto actions = bar.actions().constFirst()->menu()->actions();
    ASSERT_EQ(actions.size(), 3);
    EXPECT_FALSE(actions[0]->isEnabled());
    EXPECT_TRUE(actions[1]->isSeparator());
    EXPECT_EQ(actions[2]->shortcut(), QKeySequence("F8"));
    built.Caption = "&Undo (3)";
    EXPECT_EQ(actions[2]->text(), "&Undo (3)");
    built.Enabled = false;
    EXPECT_FALSE(actions[2]->isEnabled());
    built.Enabled = true;
    actions[2]->trigger();
    EXPECT_EQ(clicks, 1);
}

TEST(MumWindow, AMenuShowsTheItemsOfAnArrayAsTheyAreWhenItIsOpened)
{
    MenuItem top("top", "&Top");
    MenuArray files("mnuFiles", {"(none)"});
    files.plain = true;
    int clicked = 0;
    files.setHandler([&](int index) { clicked = index; });
    QMenu menu;
    Bindings bindings;
    fillMenu(menu, {{nullptr, {}, {}, &files}, MenuEntry(), {&top, {}, {}}}, bindings);
    files[0].Visible = false;
    files.Load(1)->Caption = "c:\\a & b\t.f22";
    emit menu.aboutToShow();
    auto* item = menu.findChild<QAction*>("mnuFiles(1)");
    ASSERT_NE(item, nullptr);
    EXPECT_EQ(item->text(), "c:\\a && b .f22");
    EXPECT_FALSE(menu.findChild<QAction*>("mnuFiles(0)")->isVisible());
    item->trigger();
    EXPECT_EQ(clicked, 1);
    files.Unload(1);
    emit menu.aboutToShow();
    EXPECT_EQ(menu.findChild<QAction*>("mnuFiles(1)"), nullptr);
}

TEST(MumWindow, ALongCaptionIsCutInItsMiddleAndWholeInTheTip)
{
    MenuItem item("mnuLong", "&Download " + std::string(300, 'x') + ".b50");
    QMenu menu;
    Bindings bindings;
    fillMenu(menu, {{&item, "F12", {}}}, bindings);
    const QAction& action = *menu.actions().constFirst();
    EXPECT_LE(menu.sizeHint().width(), QGuiApplication::primaryScreen()->availableSize().width());
    EXPECT_TRUE(action.text().startsWith("&Download xx"));
    EXPECT_TRUE(action.text().endsWith("xx.b50"));
    EXPECT_TRUE(menu.toolTipsVisible());
    EXPECT_EQ(action.toolTip().remove(QChar(0x200B)), "<span>Download " + QString(300, 'x') + ".b50</span>");
    item.Caption = "&Download short.b50";
    EXPECT_EQ(action.text(), "&Download short.b50");
    EXPECT_FALSE(action.toolTip().contains("<span>"));
}

TEST(MumWindow, AnAmpersandInTheFileNameOfACaptionIsShown)
{
    MenuItem item("mnuDownload", "&Download a & b&c.b50");
    QMenu menu;
    Bindings bindings;
    fillMenu(menu, {{&item, {}, {}}}, bindings);
    EXPECT_EQ(menu.actions().constFirst()->text(), "&Download a && b&&c.b50");
}

TEST(MumWindow, ACustomAppsAmpersandMarksItsAccessKey)
{
    Shown shown;
    shown.menus().mnuCustomApp[0].Caption = "&Notepad";
    shown.menus().mnuCustomApp[1].Caption = "Cut && dry";
    emit shown.window.findChild<QMenu*>("mnuApps")->aboutToShow();
    EXPECT_EQ(shown.action("mnuCustomApp(0)")->text(), "&Notepad");
    EXPECT_EQ(shown.action("mnuCustomApp(1)")->text(), "Cut && dry");
}

TEST(MumWindow, ACommandWithoutAMarkInItsCaptionGetsItsAccessKeyInTheMenu)
{
    Shown shown;
    EXPECT_EQ(shown.action("mnuAppsProPanel")->text(), "Cal&ibrate controllers");
    EXPECT_EQ(shown.action("mnuAppsCTFJ")->text(), "CT&FJ");
    EXPECT_EQ(shown.menus().mnuAppsCTFJ.Caption.get(), "CTFJ");
}

TEST(MumWindow, TypedTextMakesTheDocumentModifiedAndTheTitleShowsIt)
{
    Shown shown;
    shown.joystick().setFocus();
    QTest::keyClicks(&shown.joystick(), "BTN S1 a");
    EXPECT_EQ(shown.editor().JoystickText.Text(), "BTN S1 a");
    EXPECT_EQ(shown.editor().joystick.Changed, changed::modified);
    EXPECT_TRUE(shown.window.isWindowModified());
    EXPECT_TRUE(shown.window.windowTitle().startsWith("Tarvex - untitled."));
}

TEST(MumWindow, TitleFollowsAtOnceWhileTheWindowIsSeenAndOnceForAllChangesBefore)
{
    struct TitleChanges : QObject {
        int count = 0;
        bool eventFilter(QObject* /*watched*/, QEvent* event) override
        {
            if (event->type() == QEvent::WindowTitleChange) ++count;
            return false;
        }
    } changes;
    Shown shown;
    shown.window.installEventFilter(&changes);
    auto& caption = shown.editor().TabStrip1.Tabs(1).Caption;
    caption = "one.b50";
    EXPECT_EQ(changes.count, 1);
    shown.window.hide();
    Shown::events();
    caption = "two.b50";
    caption = "three.b50";
    EXPECT_EQ(changes.count, 1);
    Shown::events();
    EXPECT_EQ(changes.count, 2);
    EXPECT_TRUE(shown.window.windowTitle().contains("three.b50")) << shown.window.windowTitle().toStdString();
}

TEST(MumWindow, ClickOnATabSelectsItsDocument)
{
    Shown shown;
    QTabBar& tabs = shown.window.editor().tabs();
    QTest::mouseClick(&tabs, Qt::LeftButton, {}, tabs.tabRect(1).center());
    EXPECT_EQ(shown.editor().TabStrip1.SelectedItem, 2);
    EXPECT_TRUE(shown.macro().isVisible());
    EXPECT_FALSE(shown.joystick().isVisible());
    EXPECT_FALSE(tabs.tabIcon(1).isNull());
    EXPECT_TRUE(tabs.tabIcon(0).isNull());
    EXPECT_TRUE(shown.window.windowTitle().contains(toQt(shown.editor().macro.FileName)));
}

TEST(MumWindow, CtrlTabReachesTheOtherPaneAndTypesNothing)
{
    Shown shown;
    shown.window.activateWindow();
    shown.joystick().setFocus();
    QTest::keyClick(&shown.joystick(), Qt::Key_Tab, Qt::ControlModifier);
    EXPECT_EQ(shown.editor().TabStrip1.SelectedItem, 2);
    EXPECT_EQ(shown.window.focusWidget(), &shown.macro());
    QTest::keyClick(&shown.macro(), Qt::Key_Tab, Qt::ControlModifier);
    EXPECT_EQ(shown.editor().TabStrip1.SelectedItem, 1);
    EXPECT_TRUE(shown.editor().JoystickText.Text().empty());
    EXPECT_TRUE(shown.editor().MacroText.Text().empty());
}

TEST(MumWindow, KeyOfThePanesRunsItsCommandOnce)
{
    Shown shown;
    int saves = 0;
    shown.menus().mnuFileSave.handler = [&] { ++saves; };
    shown.joystick().setFocus();
    QTest::keyClick(&shown.joystick(), Qt::Key_S, Qt::ControlModifier);
    EXPECT_EQ(saves, 1);
    shown.window.editor().tabs().setFocus();
    QTest::keyClick(&shown.window.editor().tabs(), Qt::Key_S, Qt::ControlModifier);
    EXPECT_EQ(saves, 2) << "from elsewhere in the window too";
}

TEST(MumWindow, StatusPanelsShowTheirTexts)
{
    Shown shown;
    shown.editor().status("Save & compile\nnow");
    EXPECT_TRUE(shown.showsText("Save & compile now"));
    shown.program().mum.StatusBar.Panels(panel::macroFile).Text = "mig.m50";
    EXPECT_TRUE(shown.showsText("mig.m50"));
    EXPECT_TRUE(shown.showsText("CAPS"));
    auto* progress = shown.window.findChild<QProgressBar*>();
    EXPECT_FALSE(progress->isVisible());
    shown.program().mum.ProgressBar1.Visible = true;
    shown.program().mum.ProgressBar1.Value = 40;
    EXPECT_TRUE(progress->isVisible());
    EXPECT_EQ(progress->value(), 40);
}

TEST(MumWindow, ALongNameOnAPanelIsCutAndItsTipHasTheWhole)
{
    Shown shown;
    const std::string name = std::string(300, 'x') + ".m50";
    shown.program().mum.StatusBar.Panels(panel::macroFile).Text = name;
    shown.editor().status(std::string(500, 'y'));
    Shown::events();
    EXPECT_EQ(shown.window.width(), 1000);
    const auto labels = shown.window.statusBar()->findChildren<QLabel*>();
    for (const QLabel* label : labels) EXPECT_LE(label->geometry().right(), 1000) << label->text().toStdString();
    const auto found = std::ranges::find_if(labels, [&](const QLabel* label) { return label->text() == toQt(name); });
    ASSERT_NE(found, labels.end());
    QHelpEvent help(QEvent::ToolTip, QPoint(5, 5), (*found)->mapToGlobal(QPoint(5, 5)));
    QApplication::sendEvent(*found, &help);
    EXPECT_TRUE(QToolTip::text().contains(toQt(name)));
    EXPECT_TRUE(QToolTip::text().contains("The macros in the macros list are from this file"));
}

TEST(MumWindow, TheMouseOverTheStatusBarIsGreetedInItsLeftPart)
{
    Shown shown;
    QStatusBar* bar = shown.window.statusBar();
    const auto moveTo = [&](int x) {
        const QPoint at(x, bar->height() / 2);
        QWidget* under = bar->childAt(at) != nullptr ? bar->childAt(at) : bar;
        QMouseEvent move(QEvent::MouseMove, under->mapFrom(bar, at), bar->mapToGlobal(at), Qt::NoButton, Qt::NoButton,
                         Qt::NoModifier);
        QApplication::sendEvent(under, &move);
        return shown.status();
    };
    EXPECT_EQ(moveTo(267), "Hi there buddy, I'm the status bar");
    EXPECT_EQ(moveTo(268), "What say you and I give up on this programming lark and go and get a beer?");
}

TEST(MumWindow, MinimisingTheFrameMinimisesItsToolWindows)
{
    Shown shown;
    Form form;
    std::int16_t openFlag = 1;
    shown.program().mum.toolWindows.add({.name = "Made up", .form = &form, .openFlag = &openFlag, .unload = nullptr});
    shown.settings().MinimiseAll = 1;
    shown.window.showMinimized();
    Shown::events();
    EXPECT_EQ(form.State, WindowState::Minimised);
    shown.window.showNormal();
    Shown::events();
    EXPECT_EQ(form.State, WindowState::Normal);
}

TEST(MumWindow, IsMinimisedWhileALoaderRunsAndComesBackWithTheKeyboardInThePane)
{
    for (const bool maximised : {false, true}) {
        Shown shown;
        if (maximised) shown.window.showMaximized();
        Shown::events();
        shown.files.addFile("c:\\tm\\mig.b50", "BTN S1 a\r\n");
        shown.files.addFile("c:\\tm\\mig.m50", "");
        shown.settings().B50LoadPath = "c:\\tm\\b50load.exe";
        shown.openBoth("c:\\tm\\mig.b50");
        bool minimised = false;
        shown.processes.whileRunning = [&] {
            Shown::events();
            minimised = shown.window.isMinimized();
        };
        shown.menus().mnuSendToJoystick.Click();
        Shown::events();
        EXPECT_EQ(shown.processes.starts.size(), 1U);
        EXPECT_TRUE(minimised);
        EXPECT_FALSE(shown.window.isMinimized());
        EXPECT_EQ(shown.window.isMaximized(), maximised);
        EXPECT_TRUE(shown.joystick().isAncestorOf(QApplication::focusWidget()) ||
                    QApplication::focusWidget() == &shown.joystick());
    }
}

TEST(MumWindow, ComesBackOnceMoreWhereTheManagerMinimisesItOnlyThen)
{
    Shown shown;
    shown.files.addFile("c:\\tm\\mig.b50", "BTN S1 a\r\n");
    shown.files.addFile("c:\\tm\\mig.m50", "");
    shown.settings().B50LoadPath = "c:\\tm\\b50load.exe";
    shown.openBoth("c:\\tm\\mig.b50");
    shown.menus().mnuSendToJoystick.Click();
    const Form& form = shown.program().mum.form;
    Shown::events(); // the loader has ended at once, and only now the window hears that it was minimised
    EXPECT_NE(form.State, WindowState::Minimised) << "the user didn't ask for it";
    EXPECT_TRUE(eventually([&] {
        Shown::events();
        return !shown.window.isMinimized();
    }));
    shown.window.windowHandle()->setWindowState(Qt::WindowMinimized);
    Shown::events();
    EXPECT_EQ(form.State, WindowState::Minimised) << "this time it is the user";
}

TEST(MumWindow, TheGradientIsSeenBehindTheTabs)
{
    Shown shown;
    const QPoint besideTheTabs(900, shown.window.editor().mapTo(&shown.window, QPoint(0, 6)).y());
    const auto colour = [&] { return shown.window.grab().toImage().pixelColor(besideTheTabs); };
    const QColor plain = colour();
    shown.program().mum.Gradient = true;
    EXPECT_NE(colour(), plain);
    shown.program().mum.Gradient = false;
    EXPECT_EQ(colour(), plain);
}

TEST(MumWindow, LockKeyPanelsAreLitWhileTheKeysAreOn)
{
    TestProgram test;
    StatusBarView view(test.program().mum);
    const auto labels = view.findChildren<QLabel*>();
    const auto lit = [&](const QString& text) {
        const auto found = std::ranges::find_if(labels, [&](const QLabel* label) { return label->text() == text; });
        return found != labels.end() && (*found)->isEnabled();
    };
    EXPECT_FALSE(lit("CAPS")) << "its state is unknown";
    view.showLockKeys({.capsLock = true, .numLock = false});
    EXPECT_TRUE(lit("CAPS"));
    EXPECT_FALSE(lit("NUM"));
    view.showLockKeys({.capsLock = false, .numLock = true});
    EXPECT_FALSE(lit("CAPS"));
    EXPECT_TRUE(lit("NUM"));
}

TEST(MumWindow, InsertKeyChangesItsPanelAndBothPanes)
{
    Shown shown;
    QTest::keyClick(&shown.joystick(), Qt::Key_Insert);
    EXPECT_TRUE(shown.showsText("OVR"));
    EXPECT_TRUE(shown.macro().overwriteMode());
    QTest::keyClick(&shown.joystick(), Qt::Key_Insert);
    EXPECT_TRUE(shown.showsText("INS"));
}

TEST(MumWindow, PanesFillWhatTheTabsLeave)
{
    Shown shown;
    EditorView& view = shown.window.editor();
    EXPECT_EQ(shown.editor().ScaleWidth, view.width());
    EXPECT_EQ(shown.joystick().geometry().top(), view.tabs().geometry().bottom() + 1);
    EXPECT_EQ(shown.joystick().geometry().bottom(), view.height() - 1);
    shown.window.resize(500, 400);
    Shown::events();
    EXPECT_EQ(shown.editor().ScaleWidth, view.width());
    EXPECT_LE(shown.joystick().geometry().right(), view.width());
}

TEST(MumWindow, DraggedEdgeWidensTheMacroFrame)
{
    Shown shown;
    shown.action("mnuViewMacros")->trigger();
    auto* frame = shown.window.findChild<QWidget*>("FrameMacros");
    ASSERT_TRUE(frame->isVisible());
    const int width = frame->width();
    const QPoint edge(width - 2, 200);
    const auto mouse = [&](QEvent::Type type, QPoint at, Qt::MouseButton button, Qt::MouseButtons buttons) {
        QMouseEvent event(type, at, frame->mapToGlobal(at), button, buttons, Qt::NoModifier);
        QApplication::sendEvent(frame, &event);
    };
    mouse(QEvent::MouseMove, edge, Qt::NoButton, Qt::NoButton);
    EXPECT_EQ(frame->cursor().shape(), Qt::SizeHorCursor);
    mouse(QEvent::MouseButtonPress, edge, Qt::LeftButton, Qt::LeftButton);
    mouse(QEvent::MouseMove, {width + 60, 200}, Qt::NoButton, Qt::LeftButton);
    EXPECT_EQ(frame->width(), width + 61);
    EXPECT_EQ(shown.settings().MacroFrameWidth, width + 61);
    mouse(QEvent::MouseMove, {10, 200}, Qt::NoButton, Qt::LeftButton);
    EXPECT_EQ(frame->width(), 185);
    mouse(QEvent::MouseButtonRelease, {10, 200}, Qt::LeftButton, Qt::NoButton);
    EXPECT_EQ(frame->cursor().shape(), Qt::ArrowCursor);
}

TEST(MumWindow, ProtectedMacroFileShowsThePadlockAndTakesNoKey)
{
    Shown shown;
    shown.action("mnuPreferencesProtectMacroFile")->trigger();
    shown.editor().TabStrip1.Select(2);
    QTest::keyClicks(&shown.macro(), "x");
    EXPECT_TRUE(shown.editor().MacroText.Text().empty());
    EXPECT_TRUE(shown.macro().isReadOnly());
    EXPECT_FALSE(shown.window.editor().tabs().tabIcon(1).isNull());
}

TEST(MumWindow, CancelledQuestionKeepsTheWindowOpen)
{
    Shown shown;
    QTest::keyClicks(&shown.joystick(), "x");
    shown.dialogues.answers = {Answer::Cancel};
    EXPECT_FALSE(shown.window.close());
    EXPECT_TRUE(shown.window.isVisible());
    shown.dialogues.answers = {Answer::No};
    EXPECT_TRUE(shown.window.close());
    EXPECT_FALSE(shown.window.isVisible());
    EXPECT_EQ(shown.desktop.quits, 1);
}

TEST(MumWindow, PlaceOfTheWindowReachesTheFormInTwips)
{
    Shown shown;
    shown.window.move(40, 30);
    shown.window.resize(640, 480);
    Shown::events();
    const Form& form = shown.program().mum.form;
    EXPECT_EQ(form.State, WindowState::Normal);
    EXPECT_EQ(form.Left.get(), 40 * twipsPerPixel);
    EXPECT_EQ(form.Top.get(), 30 * twipsPerPixel);
    EXPECT_EQ(form.Width.get(), 640 * twipsPerPixel);
    EXPECT_EQ(form.Height.get(), 480 * twipsPerPixel);
    shown.window.showMaximized();
    Shown::events();
    EXPECT_EQ(form.State, WindowState::Maximised);
    EXPECT_EQ(form.Width.get(), 640 * twipsPerPixel) << "the size to come back to";
}

TEST(MumWindow, AppearanceCommandTicksAndIsKept)
{
    Shown shown;
    EXPECT_TRUE(shown.action("mnuAppearanceSystem")->isChecked());
    shown.action("mnuAppearanceDark")->trigger();
    EXPECT_TRUE(shown.action("mnuAppearanceDark")->isChecked());
    EXPECT_FALSE(shown.action("mnuAppearanceSystem")->isChecked());
    EXPECT_NE(shown.fileText("c:\\tarvex\\Platform.ini").find("Theme=dark"), std::string::npos);
}

TEST(MumWindow, ComesUpMaximisedOrMinimisedAsItsFormSays)
{
    for (const WindowState state : {WindowState::Maximised, WindowState::Minimised, WindowState::Normal}) {
        TestProgram test;
        test.program().mum.form.State = state;
        const MumWindow window(test.program());
        EXPECT_EQ(window.isMaximized(), state == WindowState::Maximised);
        EXPECT_EQ(window.isMinimized(), state == WindowState::Minimised);
    }
}

/// Where the window comes up when it was last seen there, in pixels.
QRect placeAfter(const QRect& lastSeen)
{
    TestProgram test;
    Form& form = test.program().mum.form;
    form.Visible = false;
    MumWindow window(test.program());
    form.Left = toTwips(lastSeen.left());
    form.Top = toTwips(lastSeen.top());
    form.Width = toTwips(lastSeen.width());
    form.Height = toTwips(lastSeen.height());
    form.Visible = true;
    return {window.pos(), window.size()};
}

TEST(MumWindow, ComesUpWhereItWasUnlessThatIsNotOnTheScreen)
{
    const QRect room = QGuiApplication::primaryScreen()->availableGeometry();
    EXPECT_EQ(placeAfter({50, 40, 800, 600}), QRect(50, 40, 800, 600));
    EXPECT_EQ(placeAfter({-100, -70, 800, 600}), QRect(room.left(), room.top(), 800, 600));
    EXPECT_EQ(placeAfter({room.right() - 90, room.bottom() - 90, 800, 600}),
              QRect(room.right() - 799, room.bottom() - 599, 800, 600));
    EXPECT_EQ(placeAfter({9000, 40, 800, 600}), QRect(room.right() - 799, 40, 800, 600));
    EXPECT_EQ(placeAfter({50, 40, room.width() + 500, room.height() + 500}), room);
}

TEST(MumWindow, ASizeThatIsTooSmallBecomesTheFirstOne)
{
    EXPECT_EQ(placeAfter({50, 40, 319, 600}).size(), QSize(1000, 700));
    EXPECT_EQ(placeAfter({50, 40, 600, 239}).size(), QSize(1000, 700));
    EXPECT_EQ(placeAfter({50, 40, 320, 240}).size(), QSize(320, 240));
}

TEST(MumWindow, ThePointerIsThatOfTheProgram)
{
    Shown shown;
    Mum& mum = shown.program().mum;
    mum.MousePointer = MousePointer::Hourglass;
    EXPECT_EQ(shown.window.cursor().shape(), Qt::WaitCursor);
    mum.MousePointer = MousePointer::ArrowQuestion;
    EXPECT_EQ(shown.window.cursor().shape(), Qt::WhatsThisCursor);
    mum.MousePointer = MousePointer::Default;
    EXPECT_EQ(shown.window.cursor().shape(), Qt::ArrowCursor);
}

TEST(MumWindow, OnlyFilesCanBeDroppedOnIt)
{
    Shown shown;
    const auto offered = [&](const QMimeData& data) {
        QDragEnterEvent event({5, 5}, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        event.setAccepted(false);
        QApplication::sendEvent(&shown.window, &event);
        return event.isAccepted();
    };
    QMimeData text;
    text.setText("some text");
    EXPECT_FALSE(offered(text));
    QDropEvent drop(QPointF(5, 5), Qt::CopyAction, &text, Qt::LeftButton, Qt::NoModifier);
    drop.setAccepted(false);
    QApplication::sendEvent(&shown.window, &drop);
    EXPECT_FALSE(drop.isAccepted());
    QMimeData files;
    files.setUrls({QUrl::fromLocalFile("/tmp/mig.b50")});
    EXPECT_TRUE(offered(files));
}

TEST(MumWindow, TheTitleNamesTheFileInFrontAndSaysWhetherItIsModified)
{
    Shown shown;
    shown.files.addFile("c:\\tm\\a[b].b50", "");
    shown.files.addFile("c:\\tm\\a[b].m50", "");
    shown.openBoth("c:\\tm\\a[b].b50");
    EXPECT_EQ(shown.window.windowTitle(), "Tarvex - a[[b].b50[*]") << "a bracket doubled stands for itself";
    EXPECT_FALSE(shown.window.isWindowModified());
    shown.editor().TabStrip1.Select(2);
    EXPECT_EQ(shown.window.windowTitle(), "Tarvex - a[[b].m50[*]");
    shown.editor().TabStrip1.Select(1);
    QTest::keyClicks(&shown.joystick(), "x");
    EXPECT_TRUE(shown.window.isWindowModified());
}

TEST(MumWindow, TheLastPairComesUpAtTheLineThatWasOnTop)
{
    Shown shown;
    std::string text;
    for (int i = 0; i < 300; ++i) text += "Rem line\r\n";
    shown.typeJoystick(text);
    Shown::events();
    shown.program().lastPair.firstLineWanted(shown.editor().joystick, 120);
    Shown::events();
    EXPECT_EQ(shown.joystick().verticalScrollBar()->value(), 120);
    EXPECT_EQ(shown.program().lastPair.firstLine(shown.editor().joystick), 120);
}

TEST(MumWindow, TheTimeIsShownAnewWhenAMinuteIsOver)
{
    Shown shown;
    auto* minute = shown.window.statusBar()->findChild<QTimer*>("Minute");
    ASSERT_NE(minute, nullptr);
    EXPECT_TRUE(minute->isActive());
    EXPECT_LE(minute->interval(), 60'001);
    QLabel* clock = nullptr;
    for (QLabel* label : shown.window.statusBar()->findChildren<QLabel*>())
        if (label->toolTip() == "The current time") clock = label;
    ASSERT_NE(clock, nullptr);
    clock->setText("earlier");
    minute->setInterval(0);
    EXPECT_TRUE(QTest::qWaitFor([&] { return clock->text() != "earlier"; }, 20'000));
    EXPECT_TRUE(minute->isActive()) << "for the next minute";
}

} // namespace
} // namespace tarvex
