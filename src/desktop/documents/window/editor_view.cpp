#include "desktop/documents/window/editor_view.h"

#include "desktop/icon_theme.h"
#include "desktop/input.h"
#include "documents/editing/pane_events.h"
#include "documents/pair/document_status.h"
#include "documents/pair/editor_layout.h"
#include "documents/pair/noted_caret.h"
#include "documents/pair/tabs.h"
#include "platform/input.h"

#include <QApplication>
#include <QKeyEvent>
#include <QSignalBlocker>

namespace tarvex {

namespace {

/// Height of the tabs that the layout reckons with, pixels.
constexpr int reckonedHeader = 23;

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
      m_frame(new MacroFrameView(editor, this))
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
    m_bindings.follow(editor.platform.clipboard.changed, [this] { m_editor.operations.UpdateCCPButtons(); });
    m_bindings.timer(editor.Timer1, *this);
    m_bindings.timer(editor.TimerBlinkLine, *this);
    m_bindings.timer(editor.TimerJournal, *this);
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
        m_bindings.bind(tab.Caption, [this, index](const std::string& caption) {
            m_tabs->setTabText(index, withoutAccessKeys(toQt(caption)));
        });
        m_bindings.bind(tab.Image, [this, index](int image) { m_tabs->setTabIcon(index, tabIcon(image)); });
    }
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
        m_bindings.bind(state.Place, [this, view](const Placement& place) {
            view->setGeometry(QRect(place.Left, place.Top + headerShift(), place.Width, place.Height) & rect());
        });
        m_bindings.bind(state.Visible, [view](bool on) { view->setVisible(on); });
    }
    m_bindings.bind(m_editor.TabStrip1Place, [this](const Placement&) { placeStrip(); });
    m_bindings.bind(m_editor.FrameMacros.Place, [this](const Placement&) { placeFrame(); });
    m_bindings.bind(m_editor.FrameMacros.Visible, [this](bool on) { m_frame->setVisible(on); });
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
