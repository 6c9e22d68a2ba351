#include "desktop/platform/escape_wait.h"

#include "desktop/platform/input_hold.h"

#include <QApplication>

#include <algorithm>

namespace tarvex {

namespace {

bool isWindowShown()
{
    const QWidgetList windows = QApplication::topLevelWidgets();
    return std::any_of(windows.begin(), windows.end(), [](const QWidget* window) { return window->isVisible(); });
}

} // namespace

void waitForEscapeKey()
{
    if (!isWindowShown()) return;
    InputHold hold;
    QPointer<QWidget> closing;
    QObject::connect(&hold, &InputHold::escapePressed, &hold, &InputHold::release);
    QObject::connect(&hold, &InputHold::closeWanted, &hold, [&](QWidget* window) {
        closing = window;
        hold.release();
    });
    hold.hold();
    if (closing != nullptr) QMetaObject::invokeMethod(closing, &QWidget::close, Qt::QueuedConnection);
}

} // namespace tarvex
