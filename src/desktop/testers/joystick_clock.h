#pragma once

#include "desktop/bind.h"
#include "testers/analyser.h"

#include <QObject>

class QTimer;

namespace tarvex {

/// Runs an analyser's timer with the display: at once after a report, but not more often than a frame lasts, and never
/// while nothing comes.
class JoystickClock : public QObject {
    Q_OBJECT
public:
    /// The analyser outlives this.
    JoystickClock(Analyser& analyser, QObject* parent);

signals:
    /// There are new strokes.
    void ticked();

private:
    void reportArrived();
    void frameEnded();

    Analyser& m_analyser;
    bool m_waiting = false; ///< something has come since the last tick
    QTimer* m_frame;
    QTimer* m_pause;
    Bindings m_bindings;
};

} // namespace tarvex
