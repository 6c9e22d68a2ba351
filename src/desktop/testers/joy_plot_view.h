#pragma once

#include "desktop/testers/analyser_window.h"
#include "testers/joy_plot.h"

namespace tarvex {

/// Window of the joystick analyser.
class JoyPlotView : public AnalyserWindow {
    Q_OBJECT
public:
    JoyPlotView(JoyPlot& window, QWidget* parent);

private:
    void shrinkRoom(int width, int height);

    JoyPlot& m_window;
    QWidget* m_room; ///< what the field lies in
};

} // namespace tarvex
