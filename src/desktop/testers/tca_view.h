#pragma once

#include "desktop/testers/analyser_window.h"
#include "testers/tca.h"

namespace tarvex {

/// Window of the controller analyser.
class TcaView : public AnalyserWindow {
    Q_OBJECT
public:
    TcaView(TCAform& window, QWidget* parent);

private:
    QLayout* buttonRow(TCAform& window);
};

} // namespace tarvex
