#pragma once

#include "help/help.h"

#include <QObject>

namespace tarvex {

/// F1 in any window of the program but the frame, whose menu has the key itself.
class HelpKey : public QObject {
public:
    /// The help outlives this.
    explicit HelpKey(Help& help);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    Help& m_help;
};

} // namespace tarvex
