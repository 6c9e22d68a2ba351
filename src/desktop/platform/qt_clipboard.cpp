#include "desktop/platform/qt_clipboard.h"

#include "desktop/platform/mime.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QMimeData>

namespace tarvex {

QtClipboard::QtClipboard()
{
    const auto forget = [this] {
        m_holdsText.reset();
        changed();
    };
    QObject::connect(QGuiApplication::clipboard(), &QClipboard::dataChanged, &m_listener, forget);
    QObject::connect(qGuiApp, &QGuiApplication::applicationStateChanged, &m_listener, forget);
}

void QtClipboard::put(const ClipboardContent& content)
{
    QGuiApplication::clipboard()->setMimeData(toMime(content).release());
}

ClipboardContent QtClipboard::get() const
{
    const QMimeData* data = QGuiApplication::clipboard()->mimeData();
    return data != nullptr ? fromMime(*data) : ClipboardContent{};
}

bool QtClipboard::holdsText() const
{
    if (!m_holdsText) {
        const QMimeData* data = QGuiApplication::clipboard()->mimeData();
        m_holdsText = data != nullptr && holdsContent(*data);
    }
    return *m_holdsText;
}

} // namespace tarvex
