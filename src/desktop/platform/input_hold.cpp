#include "desktop/platform/input_hold.h"

#include "desktop/bind.h"

#include <QApplication>
#include <QKeyEvent>
#include <QWidget>
#include <QWindow>

#include <algorithm>

namespace tarvex {

namespace {

/// The window that an event is for: the system's window gets it first, then the widget that fills it.
QWidget* widgetOf(QObject* receiver)
{
    const QWidgetList windows = QApplication::topLevelWidgets();
    const auto found = std::find_if(windows.begin(), windows.end(), [=](const QWidget* window) {
        return window == receiver || window->windowHandle() == receiver;
    });
    return found != windows.end() ? *found : nullptr;
}

bool isInput(QEvent::Type type)
{
    switch (type) {
    case QEvent::KeyPress:
    case QEvent::KeyRelease:
    case QEvent::ShortcutOverride:
    case QEvent::Shortcut:
    case QEvent::InputMethod:
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseButtonDblClick:
    case QEvent::MouseMove:
    case QEvent::HoverMove:
    case QEvent::Wheel:
    case QEvent::ContextMenu:
    case QEvent::ToolTip:
    case QEvent::DragEnter:
    case QEvent::DragMove:
    case QEvent::Drop:
    case QEvent::TabletPress:
    case QEvent::TabletMove:
    case QEvent::TabletRelease:
    case QEvent::TouchBegin:
    case QEvent::TouchUpdate:
    case QEvent::TouchEnd:
    case QEvent::NativeGesture:
        return true;
    default:
        return false;
    }
}

} // namespace

void InputHold::hold()
{
    qApp->installEventFilter(this);
    m_loop.exec();
    qApp->removeEventFilter(this);
    if (m_lostFocus != nullptr) QCoreApplication::postEvent(m_lostFocus, new QFocusEvent(QEvent::FocusOut));
    if (m_gotFocus != nullptr) QCoreApplication::postEvent(m_gotFocus, new QFocusEvent(QEvent::FocusIn));
    m_lostFocus = m_gotFocus = nullptr;
}

/// The new keyboard owner is reported when the work is done, and only if it has changed.
void InputHold::keepFocus(QWidget* widget, bool in)
{
    QPointer<QWidget>& opposite = in ? m_lostFocus : m_gotFocus;
    if (opposite == widget) {
        opposite = nullptr;
    } else {
        (in ? m_gotFocus : m_lostFocus) = widget;
    }
}

void InputHold::reportKey(const QKeyEvent& event)
{
    if (event.key() == Qt::Key_Escape) emit escapePressed();
    if (event.keyCombination() == (Qt::ControlModifier | Qt::Key_S)) emit savePressed();
}

bool InputHold::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::Timer) return watched->objectName() == QLatin1String(tickName);
    if (event->type() == QEvent::Close) {
        event->ignore();
        emit closeWanted(widgetOf(watched));
        return true;
    }
    const bool in = event->type() == QEvent::FocusIn;
    if (watched->isWidgetType() && (in || event->type() == QEvent::FocusOut)) {
        keepFocus(static_cast<QWidget*>(watched), in);
        return true;
    }
    if (!isInput(event->type())) return false;
    // Taking a key here keeps it from the shortcuts too.
    event->setAccepted(event->type() == QEvent::ShortcutOverride);
    if (event->type() == QEvent::KeyPress) reportKey(*static_cast<const QKeyEvent*>(event));
    return true;
}

} // namespace tarvex
