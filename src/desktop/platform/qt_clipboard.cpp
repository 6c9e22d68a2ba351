#include "desktop/platform/qt_clipboard.h"

#include "desktop/platform/mime.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QMimeData>

namespace tarvex {

void QtClipboard::put(const ClipboardContent& content)
{
    QGuiApplication::clipboard()->setMimeData(toMime(content).release());
}

ClipboardContent QtClipboard::get() const
{
    const QMimeData* data = QGuiApplication::clipboard()->mimeData();
    return data != nullptr ? fromMime(*data) : ClipboardContent{};
}

} // namespace tarvex
