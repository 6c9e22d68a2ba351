#include "desktop/application.h"

namespace tarvex {

bool Application::notify(QObject* receiver, QEvent* event)
{
    try {
        return QApplication::notify(receiver, event);
    } catch (const std::exception& error) {
        if (m_errors != nullptr) m_errors->report("MUM notify", error);
    }
    return true;
}

} // namespace tarvex
