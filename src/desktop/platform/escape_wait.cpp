#include "desktop/platform/escape_wait.h"

#include "desktop/platform/input_hold.h"

#include <QApplication>
#include <QKeyEvent>

#include <algorithm>

namespace tarvex {

namespace {

bool isWindowShown()
{
    const QWidgetList windows = QApplication::topLevelWidgets();
    return std::any_of(windows.begin(), windows.end(), [](const QWidget* window) { return window->isVisible(); });
}

void pressLater(Qt::Key key, Qt::KeyboardModifiers modifiers)
{
    QWidget* const receiver = QApplication::focusWidget();
    if (receiver == nullptr) return;
    for (const auto type : {QEvent::KeyPress, QEvent::KeyRelease})
        QCoreApplication::postEvent(receiver, new QKeyEvent(type, key, modifiers));
}

} // namespace

void waitForEscapeKey()
{
    if (!isWindowShown()) return;
    InputHold hold;
    bool saves = false;
    QPointer<QWidget> closing;
    QObject::connect(&hold, &InputHold::escapePressed, &hold, &InputHold::release);
    QObject::connect(&hold, &InputHold::savePressed, &hold, [&] {
        saves = true;
        hold.release();
    });
    QObject::connect(&hold, &InputHold::closeWanted, &hold, [&](QWidget* window) {
        closing = window;
        hold.release();
    });
    hold.hold();
    if (closing != nullptr) QMetaObject::invokeMethod(closing, &QWidget::close, Qt::QueuedConnection);
    if (saves) pressLater(Qt::Key_S, Qt::ControlModifier);
}

} // namespace tarvex
