#pragma once

#include "platform/platform.h"

#include <QObject>
#include <QString>

class QHelpEvent;

namespace tarvex {

/// Says in the tip of whatever shows a DOS path where this machine has that file or folder: in menus, fields, lists and
/// labels of all windows.
class TruePathTips : public QObject {
public:
    /// The platform outlives this.
    explicit TruePathTips(const Platform& platform, QObject* parent);

    /// The native path of the DOS path that a text is, or begins with before a blank. Empty when nothing is there.
    QString truePath(const QString& text) const;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    const Platform& m_platform;
};

} // namespace tarvex
