#include "desktop/platform/qt_machine.h"

#include <QDesktopServices>
#include <QFile>
#include <QUrl>

namespace tarvex {

bool QtMachine::showFolder(const std::string& path)
{
    return QDesktopServices::openUrl(QUrl::fromLocalFile(QFile::decodeName(path.c_str())));
}

} // namespace tarvex
