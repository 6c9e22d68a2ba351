#include "desktop/help/help_key.h"

#include "desktop/text.h"
#include "help/window_help.h"

#include <QAbstractButton>
#include <QApplication>
#include <QKeyEvent>
#include <QWidget>

namespace tarvex {

namespace {

/// Windows with pages have a button that explains the page in front.
QAbstractButton* helpButton(const QWidget& window)
{
    const char* name = window.objectName() == QLatin1String("Preferences")      ? "Command6"
                       : window.objectName() == QLatin1String("FindAndReplace") ? "Command10"
                                                                                : nullptr;
    return name != nullptr ? window.findChild<QAbstractButton*>(QLatin1String(name)) : nullptr;
}

} // namespace

HelpKey::HelpKey(Help& help) : m_help(help) { qApp->installEventFilter(this); }

bool HelpKey::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() != QEvent::KeyPress || !watched->isWidgetType()) return false;
    const auto* key = static_cast<QKeyEvent*>(event);
    if (key->key() != Qt::Key_F1 || key->modifiers() != Qt::NoModifier || key->isAutoRepeat()) return false;
    const QWidget* window = static_cast<QWidget*>(watched)->window();
    if (QAbstractButton* button = helpButton(*window)) {
        button->click();
        return true;
    }
    return showWindowHelp(m_help, fromQt(window->objectName()));
}

} // namespace tarvex
