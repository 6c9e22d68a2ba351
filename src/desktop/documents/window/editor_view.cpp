#include "desktop/documents/window/editor_view.h"

#include "desktop/icon_theme.h"
#include "desktop/input.h"
#include "documents/editing/clipboard_commands.h"
#include "documents/editing/pane_events.h"
#include "documents/pair/document_status.h"
#include "documents/pair/editor_layout.h"
#include "documents/pair/noted_caret.h"
#include "documents/pair/tabs.h"
#include "platform/input.h"

#include <QApplication>
#include <QKeyEvent>
#include <QSignalBlocker>

#include <algorithm>

namespace tarvex {

namespace {

/// Height of the tabs that the layout reckons with, pixels.
constexpr int reckonedHeader = 23;

/// Behind the name of a document that is modified.
const QString editedMark = QStringLiteral(" \u2022");

QIcon tabIcon(int image)
{
    if (image == tabImage::selected) return themeIcon(QStringLiteral("tab-selected"));
    if (image == tabImage::macroProtected) return themeIcon(QStringLiteral("tab-protected"));
    return {};
}

/// A key that changes a text: a character, or one of the keys that start a line or take characters away.
bool writesText(const QKeyEvent& event)
{
    if (event.modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier)) return false;
    switch (event.key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_Backspace:
    case Qt::Key_Delete:
        return true;
    default:
        return !event.text().isEmpty() && event.text().front().isPrint();
    }
}

} // namespace

EditorView::EditorView(Editor& editor, QWidget* parent)
    : QWidget(parent), m_editor(editor), m_tabs(new DocumentTabs(this)),
      m_joystick(new PaneView(editor.JoystickText, this)), m_macro(new PaneView(editor.MacroText, this)),
      m_frame(new MacroFrameView(editor, this)), m_activeMark(new QWidget(this))
{
    setObjectName(QStringLiteral("Editor"));
    addTabs();
    m_joystick->setObjectName(QStringLiteral("JoystickText"));
    m_joystick->setAccessibleName(QStringLiteral("Joystick file"));
    m_macro->setObjectName(QStringLiteral("MacroText"));
    m_macro->setAccessibleName(QStringLiteral("Macro file"));
    addPane(editor.joystick, *m_joystick);
    addPane(editor.macro, *m_macro);
    bindPlaces();
    bindLook();
    addActiveMark();
    m_bindings.follow(editor.platform.clipboard.changed, [this] { m_editor.operations.UpdateCCPButtons(); });
    m_bindings.timer(editor.Timer1, *this);
    m_bindings.timer(editor.TimerBlinkLine, *this);
    m_bindings.timer(editor.TimerJournal, *this);
    m_bindings.timer(editor.TimerColour, *this);
    setFocusProxy(m_joystick);
}

void EditorView::addTabs()
{
    m_tabs->setObjectName(QStringLiteral("TabStrip1"));
    m_tabs->setFocusPolicy(Qt::TabFocus);
    m_tabs->installEventFilter(this);
    for (int index = 0; index < m_editor.TabStrip1.Count(); ++index) {
        m_tabs->addTab(QString());
        TabStrip::Tab& tab = m_editor.TabStrip1.Tabs(index + 1);
        Side& side = index + 1 == m_editor.joystick.tab ? m_editor.joystick : m_editor.macro;
        const auto name = [this, index, &tab, &side] {
            const QString caption = withoutAccessKeys(toQt(tab.Caption.get()));
            m_tabs->setTabText(index, side.ShowsEdited ? caption + editedMark : caption);
        };
        name();
        m_bindings.follow(tab.Caption, name);
        m_bindings.follow(side.ShowsEdited, name);
        m_bindings.bind(tab.Image, [this, index](int image) { m_tabs->setTabIcon(index, tabIcon(image)); });
    }
    m_tabs->wholeOf = [this](int index) {
        const Side& side = index + 1 == m_editor.joystick.tab ? m_editor.joystick : m_editor.macro;
        const Platform& platform = m_editor.platform;
        if (!platform.files.fileExists(side.FilePath)) return QString();
        return toQt(platform.machine.nativePath(side.FilePath));
    };
    m_bindings.bind(m_editor.TabStrip1.SelectedItem, [this](int item) {
        const QSignalBlocker quiet(m_tabs);
        m_tabs->setCurrentIndex(item - 1);
    });
    connect(m_tabs, &QTabBar::currentChanged, this, [this](int index) { m_editor.TabStrip1.Select(index + 1); });
    connect(m_tabs, &QTabBar::tabBarClicked, this, [this](int index) {
        if (index >= 0 && index == m_tabs->currentIndex()) m_editor.TabStrip1.Select(index + 1);
    });
}

void EditorView::addPane(Side& side, PaneView& view)
{
    view.showMarks(side.ErrorLine, side.Matches);
    connect(&view, &PaneView::charactersLost, this,
            [this](int count) { reportLostCharacters(m_editor, static_cast<std::size_t>(count)); });
    connect(&view, &PaneView::zoomed, this, [this](int percent) { m_editor.Zoom = percent; });
    view.pressKey = [this, &side](std::string_view keys) { return Text_KeyDown(m_editor, side, keys); };
    connect(&view, &PaneView::gotFocus, this, [this, &side](bool returned) {
        if (!returned || m_editor.selected().tab != side.tab)
            Text_GotFocus(m_editor, side); // a result in the status bar stays
    });
    connect(&view, &PaneView::caretMoved, this, [this, &side] {
        if (m_editor.mum.MousePointer != MousePointer::ArrowQuestion) noteCaret(m_editor, side);
    });
    connect(&view, &PaneView::keyReleased, this, [this, &side] { Text_KeyUp(m_editor, side); });
    connect(&view, &PaneView::clicked, this, [this, &side] { Text_Click(m_editor, side); });
    connect(&view, &PaneView::mousePressed, this,
            [this, &side](Qt::MouseButton button) { Text_MouseDown(m_editor, side, toLogic(button)); });
    connect(&view, &PaneView::popUpWanted, this,
            [this, &side](bool byKey) { Text_MouseDown(m_editor, side, mouseButton::right, byKey); });
    connect(&view, &PaneView::paneShown, this, [this] {
        showCaretColour(m_editor);
        m_editor.operations.UpdateCCPButtons();
    });
    connect(&view, &PaneView::filesDropped, this, &EditorView::filesDropped);
    connect(&view, &PaneView::overwriteModeChanged, this, [this](bool on) {
        m_joystick->setOverwriteMode(on);
        m_macro->setOverwriteMode(on);
        emit overwriteModeChanged(on);
    });
}

/// Text typed while the tabs have the keyboard goes to the pane below them.
bool EditorView::eventFilter(QObject* watched, QEvent* event)
{
    if (watched != m_tabs || event->type() != QEvent::KeyPress || !writesText(*static_cast<QKeyEvent*>(event)))
        return QWidget::eventFilter(watched, event);
    PaneView& selected = pane(m_editor.selected());
    selected.setFocus(Qt::OtherFocusReason);
    QApplication::sendEvent(&selected, event);
    return true;
}

// ---- places ---------------------------------------------------------------------------------------------------------

void EditorView::bindPlaces()
{
    for (Side* side : {&m_editor.joystick, &m_editor.macro}) {
        Pane& state = side->pane;
        PaneView* view = &pane(*side);
        m_bindings.bind(state.Place, [this, side](const Placement&) { placePane(*side); });
        m_bindings.bind(state.Visible, [view](bool on) { view->setVisible(on); });
    }
    m_bindings.bind(m_editor.TabStrip1Place, [this](const Placement&) { placeStrip(); });
    m_bindings.bind(m_editor.FrameMacros.Place, [this](const Placement&) { placeFrame(); });
    m_bindings.bind(m_editor.FrameMacros.Visible, [this](bool on) { m_frame->setVisible(on); });
}

/// The choices of the page "Extras", and the size of the text.
void EditorView::bindLook()
{
    const auto show = [this] {
        const Extras& extras = m_editor.shared.extras;
        for (PaneView* view : {m_joystick, m_macro}) {
            view->showLineNumbers(extras.on(extraKey::lineNumbers));
            view->showCurrentLine(extras.on(extraKey::currentLine));
        }
    };
    show();
    m_bindings.follow(m_editor.shared.extras.changed, [show](std::string_view) { show(); });
    m_bindings.bind(m_editor.Zoom, [this](int percent) {
        for (PaneView* view : {m_joystick, m_macro}) {
            if (view->zoom() != percent) view->setZoom(percent);
        }
    });
}

void EditorView::setFoot(QWidget& foot, Property<bool>& visible)
{
    m_foot = &foot;
    foot.setParent(this);
    m_bindings.bind(visible, [this](bool on) {
        m_footVisible = on;
        m_foot->setVisible(on);
        placePanes();
    });
}

void EditorView::setHead(Side& side, QWidget& widget, Property<bool>& visible)
{
    head(side) = &widget;
    widget.setParent(this);
    const auto show = [this, &side, &visible, &widget] {
        widget.setVisible(visible && side.pane.Visible);
        placePane(side);
    };
    show();
    m_bindings.follow(visible, show);
    m_bindings.follow(side.pane.Visible, show);
}

void EditorView::addActiveMark()
{
    m_activeMark->setObjectName(QStringLiteral("ActivePane"));
    m_activeMark->setAutoFillBackground(true);
    m_activeMark->setBackgroundRole(QPalette::Highlight);
    m_activeMark->setAttribute(Qt::WA_TransparentForMouseEvents);
    m_bindings.bind(m_editor.menus.mnuViewTileVertically.Checked, [this](bool tiled) {
        m_activeMark->setVisible(tiled);
        placePanes();
    });
    m_bindings.follow(m_editor.TabStrip1.SelectedItem, [this] { placePanes(); });
}

void EditorView::placePanes()
{
    for (const Side* side : {&m_editor.joystick, &m_editor.macro}) placePane(*side);
}

void EditorView::placePane(const Side& side)
{
    constexpr int markHeight = 3; // less than a pane leaves above its text
    const Placement& place = side.pane.Place;
    QRect room = QRect(place.Left, place.Top + headerShift(), place.Width, place.Height) & rect();
    const bool inFront = side.tab == m_editor.selected().tab;
    if (inFront) m_activeMark->setGeometry(room.left(), room.top(), room.width(), markHeight);
    if (m_footVisible && inFront) {
        const int height = std::min(m_foot->sizeHint().height(), room.height());
        m_foot->setGeometry(room.left(), room.bottom() + 1 - height, room.width(), height);
        room.setHeight(room.height() - height);
    }
    pane(side).setGeometry(belowHead(side, room));
}

/// What the strip above a pane leaves of its room.
QRect EditorView::belowHead(const Side& side, const QRect& room)
{
    QWidget* const above = head(side);
    if (above == nullptr || above->isHidden()) return room;
    const int height = std::min(above->heightForWidth(room.width()), room.height());
    above->setGeometry(room.left(), room.top(), room.width(), height);
    return room.adjusted(0, height, 0, 0);
}

/// How much higher the tabs are with this font than the layout reckons.
int EditorView::headerShift() const { return m_tabs->sizeHint().height() - reckonedHeader; }

void EditorView::placeStrip()
{
    const Placement& place = m_editor.TabStrip1Place;
    m_tabs->setGeometry(place.Left, place.Top, place.Width, m_tabs->sizeHint().height());
}

void EditorView::placeFrame()
{
    const Placement& place = m_editor.FrameMacros.Place;
    m_frame->setGeometry(place.Left, place.Top, place.Width, place.Height + headerShift());
}

void EditorView::reportSize()
{
    m_editor.ScaleWidth = width();
    m_editor.ScaleHeight = height() - headerShift();
    Form_Resize(m_editor);
}

void EditorView::resizeEvent(QResizeEvent*) { reportSize(); }

void EditorView::changeEvent(QEvent* event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange) reportSize();
}

} // namespace tarvex
