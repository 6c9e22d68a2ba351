#include "desktop/testers/tester_windows.h"

#include "desktop/arrange.h"
#include "desktop/testers/joy_plot_view.h"
#include "desktop/testers/key_test_view.h"
#include "desktop/testers/tca_view.h"

namespace tarvex {

void makeTestersWhenShown(Testers& testers, Bindings& bindings, QWidget* frame)
{
    makeWhenShown(testers.keyTest.form, bindings,
                  [&testers, frame] { return new KeyTestView(testers.keyTest, frame); });
    makeWhenShown(testers.joyPlot.form, bindings,
                  [&testers, frame] { return new JoyPlotView(testers.joyPlot, frame); });
    makeWhenShown(testers.controllerAnalyser.form, bindings,
                  [&testers, frame] { return new TcaView(testers.controllerAnalyser, frame); });
    testers.joyPlot.Arrange = [frame](int mode) { arrangeWindows(*frame, static_cast<ArrangeMode>(mode)); };
}

} // namespace tarvex
