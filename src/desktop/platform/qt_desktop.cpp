#include "desktop/platform/qt_desktop.h"

#include "desktop/platform/escape_wait.h"
#include "desktop/text.h"

#include <QCursor>
#include <QGuiApplication>
#include <QScopedValueRollback>
#include <QScreen>

namespace tarvex {

namespace {

QSize screenSize()
{
    const QScreen* screen = QGuiApplication::primaryScreen();
    return screen != nullptr ? screen->availableSize() : QSize(640, 480);
}

} // namespace

/// A lock left by a copy that died counts as none; so does a directory that takes no lock.
bool QtDesktop::anotherInstanceRuns()
{
    if (m_lock) return false;
    m_lock.emplace(toQt(m_programDirectory) + QStringLiteral("/Tarvex.lock"));
    m_lock->setStaleLockTime(0);
    return !m_lock->tryLock(0) && m_lock->error() == QLockFile::LockFailedError;
}

void QtDesktop::doEvents()
{
    if (m_handlesEvents) return;
    const QScopedValueRollback<bool> handles(m_handlesEvents, true);
    QCoreApplication::processEvents();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::UpdateRequest); // what those events want painted
}

void QtDesktop::waitForEscape() { waitForEscapeKey(); }

float QtDesktop::screenWidth() const { return toTwips(screenSize().width()); }
float QtDesktop::screenHeight() const { return toTwips(screenSize().height()); }

void QtDesktop::showHourglass(bool on)
{
    if (on) {
        QGuiApplication::setOverrideCursor(Qt::WaitCursor);
    } else {
        QGuiApplication::restoreOverrideCursor();
    }
}

/// Not QCoreApplication::quit, which asks every window once more whether it may close.
void QtDesktop::quit()
{
    m_quits = true;
    QCoreApplication::exit();
}

} // namespace tarvex
