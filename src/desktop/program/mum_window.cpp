#include "desktop/program/mum_window.h"

#include "desktop/aside.h"
#include "desktop/composer/composer_view.h"
#include "desktop/documents/find/find_and_replace_view.h"
#include "desktop/documents/find/find_bar_view.h"
#include "desktop/documents/window/colour_selector_view.h"
#include "desktop/documents/window/outside_strip.h"
#include "desktop/documents/window/toolbar_view.h"
#include "desktop/help/help_windows.h"
#include "desktop/icon_theme.h"
#include "desktop/menus/menu_view.h"
#include "desktop/minimise.h"
#include "desktop/platform/mime.h"
#include "desktop/program/true_path_tips.h"
#include "desktop/safein/safein_view.h"
#include "desktop/shell/client_area.h"
#include "desktop/shell/status_bar_view.h"
#include "desktop/templates/template_view.h"
#include "desktop/testers/tester_windows.h"
#include "desktop/viewer/view_image_view.h"
#include "desktop/wizards/wizard_forms.h"
#include "documents/editing/pane_keys.h"
#include "documents/files/outside_notice.h"
#include "documents/window/editor_window.h"
#include "documents/window/toolbar.h"
#include "shell/frame/mum_window.h"

#include <QCloseEvent>
#include <QDropEvent>
#include <QGuiApplication>
#include <QMenuBar>
#include <QScopedValueRollback>
#include <QScreen>
#include <QScrollBar>
#include <QShortcut>
#include <QTimer>
#include <QWindow>

#include <algorithm>
#include <utility>

namespace tarvex {

namespace {

constexpr QSize smallestSize(320, 240);
constexpr QSize firstSize(1000, 700);

/// The place of a window that was last seen elsewhere: on a screen that is there.
QRect onScreen(QRect place)
{
    if (place.width() < smallestSize.width() || place.height() < smallestSize.height()) place.setSize(firstSize);
    const QScreen* screen = QGuiApplication::screenAt(place.center());
    if (screen == nullptr) screen = QGuiApplication::primaryScreen();
    const QRect room = screen->availableGeometry();
    place.setSize(place.size().boundedTo(room.size()));
    if (!room.contains(place)) {
        place.moveLeft(std::clamp(place.left(), room.left(), room.right() - place.width() + 1));
        place.moveTop(std::clamp(place.top(), room.top(), room.bottom() - place.height() + 1));
    }
    return place;
}

} // namespace

MumWindow::MumWindow(Program& program)
    : m_program(program), m_editor(new EditorView(program.editor, this)),
      m_status(new StatusBarView(program.mum, this)),
      m_lockKeys([this](LockKeyState state) { m_status->showLockKeys(state); }), m_helpKey(program.help)
{
    setObjectName(QStringLiteral("Mum"));
    setAcceptDrops(true);
    setMinimumSize(smallestSize);
    setContextMenuPolicy(Qt::PreventContextMenu);
    setCentralWidget(new ClientArea(program.mum.Gradient, new ToolbarView(program.editor, this), m_editor, this));
    setStatusBar(m_status);
    m_status->hovered = [&program](int x) { StatusBar_MouseMove(program.editor, toTwips(x)); };
    addMenuBars();
    addShortcuts();
    addFindBar();
    addOutsideStrips();
    bindLastPair();
    new TruePathTips(program.platform, this);
    bindTitle();
    makeWhenShown(program.findAndReplace.form, m_bindings,
                  [this] { return new FindAndReplaceView(m_program.findAndReplace, this); });
    makeWhenShown(program.templateEditor.form, m_bindings,
                  [this] { return new TemplateView(m_program.templateEditor, this); });
    makeTestersWhenShown(program.testers, m_bindings, this);
    makeWhenShown(program.imageViewer.form, m_bindings,
                  [this] { return new ViewImageView(m_program.imageViewer, this); });
    makeWizardsWhenShown(program.wizards, m_bindings, this);
    makeHelpWhenShown(program.help, m_bindings, this);
    makeWhenShown(program.composer.form, m_bindings, [this] { return new ComposerView(m_program.composer, this); });
    makeWhenShown(program.safein.form, m_bindings, [this] { return new SafeinView(m_program.safein, this); });
    m_bindings.follow(program.mum.form.frontWanted, [this] {
        raise();
        activateWindow();
    });
    m_bindings.follow(program.editor.Jumped, [this](const Side& side) {
        QMetaObject::invokeMethod(
            this, [this, &side] { uncover(side); }, Qt::QueuedConnection); // once it is in sight
    });
    connect(m_editor, &EditorView::overwriteModeChanged, this, [this](bool on) { m_status->showOverwrite(on); });
    connect(qApp, &QGuiApplication::applicationStateChanged, this, [this](Qt::ApplicationState state) {
        if (state != Qt::ApplicationActive) m_wasElsewhere = true;
    });
    makeWhenShown(program.editor.ColourSelector.form, m_bindings,
                  [this] { return new ColourSelectorView(m_program.editor, this); });
    m_bindings.bind(program.mum.form.Visible, [this](bool on) { showForm(on); });
    m_bindings.follow(program.mum.form.State, [this] {
        if (!isVisible()) return;
        if (isMinimized()) m_restored.start();
        showForm(true);
    });
    m_bindings.bind(program.mum.MousePointer, [this](MousePointer pointer) {
        if (pointer == MousePointer::Hourglass) {
            setCursor(Qt::WaitCursor);
        } else if (pointer == MousePointer::ArrowQuestion) {
            setCursor(Qt::WhatsThisCursor);
        } else {
            unsetCursor();
        }
    });
}

/// The document window's menus, and the frame's own while there is no document window. Only one set is in the bar at a
/// time: the bar grabs the access keys of hidden menus as well, and two menus with one key take turns at it.
void MumWindow::addMenuBars()
{
    QMenuBar* bar = menuBar();
    fillMenuBar(*bar, tarvex::menuBar(m_program.menus), m_bindings);
    const QList<QAction*> ofEditor = bar->actions();
    fillMenuBar(*bar, mumMenuBar(m_program.menus), m_bindings);
    const QList<QAction*> ofFrame = bar->actions().mid(ofEditor.size());
    m_bindings.bind(m_program.editor.Visible, [bar, ofEditor, ofFrame](bool on) {
        for (QAction* action : on ? ofFrame : ofEditor) bar->removeAction(action);
        bar->addActions(on ? ofEditor : ofFrame);
    });
}

/// The panes take these keys themselves while they have the keyboard; here they work from everywhere else.
void MumWindow::addShortcuts()
{
    for (const PaneKey& key : paneKeys()) {
        auto* shortcut = new QShortcut(QKeySequence(toQt(key.keys)), this);
        connect(shortcut, &QShortcut::activated, this, [this, &key] { pressPaneKey(m_program.editor, key.keys); });
    }
    auto* colourBoth = new QShortcut(QKeySequence(QStringLiteral("Ctrl+B")), this); // as good as Ctrl+T
    connect(colourBoth, &QShortcut::activated, this, [this] { m_program.menus.mnuViewApplyColourBothFiles.Click(); });
    auto* otherTab = new QShortcut(QKeySequence(QStringLiteral("Ctrl+Tab")), this);
    connect(otherTab, &QShortcut::activated, this, [this] { selectOtherTab(m_program.editor); });
    for (const char* plusKey : {"Ctrl+=", "Ctrl+Shift+="}) { // where "+" needs Shift
        auto* larger = new QShortcut(QKeySequence(QLatin1String(plusKey)), this);
        connect(larger, &QShortcut::activated, this, [this] { m_program.menus.mnuViewZoomIn.Click(); });
    }
}

void MumWindow::addFindBar()
{
    auto* bar = new FindBarView(m_program.findBar, this);
    m_editor->setFoot(*bar, m_program.findBar.Visible);
}

void MumWindow::addOutsideStrips()
{
    OutsideNotices& notices = m_program.outsideNotices;
    for (OutsideNotice* notice : {&notices.joystick, &notices.macro}) {
        const bool isJoystick = notice == &notices.joystick;
        auto* strip = new OutsideStrip(
            *notice, isJoystick ? QStringLiteral("OutsideJoystick") : QStringLiteral("OutsideMacro"), this);
        m_editor->setHead(notice->side, *strip, notice->Visible);
    }
}

/// A pane can scroll to its lines once it has its size and its text.
void MumWindow::bindLastPair()
{
    m_program.lastPair.firstLine = [this](const Side& side) {
        return m_editor->pane(side).verticalScrollBar()->value();
    };
    m_bindings.follow(m_program.lastPair.firstLineWanted, [this](const Side& side, int line) {
        QTimer::singleShot(0, this, [this, &side, line] {
            PaneView& pane = m_editor->pane(side);
            pane.settle();
            pane.verticalScrollBar()->setValue(line);
        });
    });
}

/// A start opens files in a window that isn't on the screen yet: their names and states pass, and each change of the
/// title goes to the window manager. The last one is shown when the events get their turn.
void MumWindow::bindTitle()
{
    StatusBar::Panel& savedState = m_program.mum.StatusBar.Panels(panel::savedState);
    const auto show = [this, &savedState] {
        Editor& shown = m_program.editor;
        const QString name = toQt(shown.tabCaption(shown.selected())).replace(u'[', QStringLiteral("[["));
        setWindowTitle(name.isEmpty() ? QStringLiteral("Tarvex") : QStringLiteral("Tarvex - %1[*]").arg(name));
        setWindowModified(!name.isEmpty() && showsUnsavedChanges(m_program.mum));
    };
    show();
    auto* later = new QTimer(this);
    later->setSingleShot(true);
    connect(later, &QTimer::timeout, this, show);
    const auto follow = [this, show, later] {
        if (windowHandle() == nullptr || !windowHandle()->isExposed()) return later->start(0);
        later->stop();
        show();
    };
    TabStrip& tabs = m_program.editor.TabStrip1;
    m_bindings.follow(tabs.SelectedItem, follow);
    for (int tab = 1; tab <= tabs.Count(); ++tab) m_bindings.follow(tabs.Tabs(tab).Caption, follow);
    m_bindings.follow(savedState.Picture, follow);
}

// ---- place and state ------------------------------------------------------------------------------------------------

void MumWindow::showForm(bool on)
{
    if (!on) {
        hide();
        return;
    }
    const Form& form = m_program.mum.form;
    if (!isVisible()) {
        const QRect place =
            onScreen({toPixels(form.Left), toPixels(form.Top), toPixels(form.Width), toPixels(form.Height)});
        move(place.topLeft());
        resize(place.size());
    }
    switch (form.State.get()) {
    case WindowState::Maximised:
        showMaximized();
        break;
    case WindowState::Minimised:
        minimise(*this);
        break;
    case WindowState::Normal:
        showNormal();
        break;
    }
    // Drawn in several sizes, so it waits until the window is there.
    QTimer::singleShot(0, this, [this] { setWindowIcon(themeIcon(QStringLiteral("tarvex"))); });
}

/// The form's size is that of the window when it isn't maximised.
void MumWindow::reportPlace()
{
    if (!isVisible()) return;
    Form& form = m_program.mum.form;
    const QRect normal = normalGeometry();
    const bool whole = isMaximized() || isMinimized() || isFullScreen();
    if (whole && !normal.isValid()) return;
    const QPoint frame = pos() - geometry().topLeft(); // the title bar and borders
    form.Left = toTwips(whole ? normal.left() + frame.x() : x());
    form.Top = toTwips(whole ? normal.top() + frame.y() : y());
    form.Width = toTwips(whole ? normal.width() : width());
    form.Height = toTwips(whole ? normal.height() : height());
}

void MumWindow::moveEvent(QMoveEvent* event)
{
    QMainWindow::moveEvent(event);
    reportPlace();
}

void MumWindow::resizeEvent(QResizeEvent* event)
{
    QMainWindow::resizeEvent(event);
    reportPlace();
}

void MumWindow::changeEvent(QEvent* event)
{
    QMainWindow::changeEvent(event);
    if (event->type() == QEvent::ActivationChange && isActiveWindow()) cameToTheFront();
    if (event->type() != QEvent::WindowStateChange || !isVisible()) return;
    if (isMinimized() && minimisedTooLate()) {
        comeBackOnceAway();
        return;
    }
    m_comesBack = false;
    Form& form = m_program.mum.form;
    const WindowState shown = isMaximized() ? WindowState::Maximised : WindowState::Normal;
    form.State = isMinimized() ? WindowState::Minimised : shown;
    MDIForm_Resize({m_program.platform, m_program.shared, m_program.mum, m_program.operations});
    reportPlace();
}

/// A loader may have ended before the window manager came to minimise the window: the window that was just brought back
/// goes away after all.
bool MumWindow::minimisedTooLate()
{
    constexpr int managersTime = 1000; // milliseconds
    if (m_program.mum.form.State == WindowState::Minimised || !m_restored.isValid()) return false;
    const bool late = m_restored.elapsed() < managersTime;
    m_restored.invalidate();
    return late;
}

/// The manager says that it minimises the window before it takes it away: shown right now, it would be taken away all
/// the same. Some managers take no window away, they only draw it no longer.
void MumWindow::comeBackOnceAway()
{
    constexpr int longest = 500; // milliseconds
    m_comesBack = true;
    windowHandle()->installEventFilter(this);
    QTimer::singleShot(longest, this, [this] {
        if (m_comesBack) showForm(true);
    });
}

bool MumWindow::eventFilter(QObject* watched, QEvent* event)
{
    if (m_comesBack && event->type() == QEvent::Expose && !windowHandle()->isExposed())
        QMetaObject::invokeMethod(
            this, [this] { showForm(true); }, Qt::QueuedConnection);
    return QMainWindow::eventFilter(watched, event);
}

/// From another window of the program the keyboard goes back to the pane; from another program to where it was. Other
/// programs may have written to the files meanwhile.
void MumWindow::cameToTheFront()
{
    if (!std::exchange(m_wasElsewhere, false)) Form_Activate(m_program.editor);
    lookForOutsideChanges(m_program.outsideNotices);
}

/// Tool windows that cover what a command has just brought into sight make room for it.
void MumWindow::uncover(const Side& side)
{
    PaneView& pane = m_editor->pane(side);
    const int around = pane.fontMetrics().lineSpacing();
    const QRect place = pane.selectionPlace().adjusted(-around, -around, around, around);
    for (ToolFormWindow* window : findChildren<ToolFormWindow*>()) {
        if (!window->isVisible()) continue;
        const QPoint corner = asideOf(window->frameGeometry(), place, window->screen()->availableGeometry());
        if (corner != window->pos()) window->move(corner);
    }
}

/// A file that is dropped beside the panes, on the toolbar say, is opened like one that is dropped on them.
void MumWindow::dragEnterEvent(QDragEnterEvent* event)
{
    if (!localFiles(*event->mimeData()).isEmpty()) event->acceptProposedAction();
}

void MumWindow::dropEvent(QDropEvent* event)
{
    const QStringList files = localFiles(*event->mimeData());
    if (files.isEmpty()) return;
    event->acceptProposedAction();
    emit m_editor->filesDropped(files);
}

/// The program asks about unsaved files, takes itself down and hides the window; or the user stays.
void MumWindow::closeEvent(QCloseEvent* event)
{
    if (m_exiting) {
        event->ignore();
        return;
    }
    const QScopedValueRollback<bool> exiting(m_exiting, true);
    event->setAccepted(m_program.exit());
}

} // namespace tarvex
