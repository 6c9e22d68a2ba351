#pragma once

#include "testers/joy_plot.h"
#include "testers/key_test.h"
#include "testers/tca.h"

namespace tarvex {

/// The windows that show what the controllers really do.
struct Testers {
    Testers(Editor& editor, InputDevices devices)
        : keyTest(editor, devices), joyPlot(editor, devices), controllerAnalyser(editor, devices)
    {
    }

    KeyTestForm keyTest;
    JoyPlot joyPlot;
    TCAform controllerAnalyser;
};

/// Their windows are then shown by their names.
void wireTesters(Testers& testers);

} // namespace tarvex
