#include "desktop/platform/qt_desktop.h"

#include "desktop/platform/escape_wait.h"
#include "desktop/text.h"

#include <QCursor>
#include <QDate>
#include <QDesktopServices>
#include <QFileInfo>
#include <QGuiApplication>
#include <QLocale>
#include <QScopedValueRollback>
#include <QScreen>
#include <QUrl>
#include <QWindow>

#include <algorithm>

namespace tarvex {

namespace {

QSize screenSize()
{
    const QScreen* screen = QGuiApplication::primaryScreen();
    return screen != nullptr ? screen->availableSize() : QSize(640, 480);
}

bool aWindowIsSeen()
{
    const QWindowList windows = QGuiApplication::topLevelWindows();
    return std::any_of(windows.begin(), windows.end(), [](const QWindow* window) { return window->isExposed(); });
}

} // namespace

bool QtDesktop::anotherInstanceRuns()
{
    const bool isFirst = m_lock.take(m_programDirectory + "/Tarvex.lock");
    (isFirst ? whenFirst : whenSecond)();
    return !isFirst;
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

std::string QtDesktop::longDate() const
{
    return fromQt(QLocale::system().toString(QDate::currentDate(), QLocale::LongFormat));
}

/// Left out as long as no window is seen: to find its picture in the cursor themes makes the start longer than most of
/// the work that it stands for.
void QtDesktop::showHourglass(bool on)
{
    if (on && (m_unseenHourglasses > 0 || !aWindowIsSeen())) {
        ++m_unseenHourglasses;
    } else if (on) {
        QGuiApplication::setOverrideCursor(Qt::WaitCursor);
    } else if (m_unseenHourglasses > 0) {
        --m_unseenHourglasses;
    } else {
        QGuiApplication::restoreOverrideCursor();
    }
}

void QtDesktop::openProgramFile(const std::string& name)
{
    const QString path = toQt(m_programDirectory + "/" + name);
    if (QFileInfo::exists(path)) QDesktopServices::openUrl(QUrl::fromLocalFile(path));
}

/// Not QCoreApplication::quit, which asks every window once more whether it may close.
void QtDesktop::quit()
{
    m_quits = true;
    QCoreApplication::exit();
}

} // namespace tarvex
