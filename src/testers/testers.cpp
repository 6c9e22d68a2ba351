#include "testers/testers.h"

namespace tarvex {

void wireTesters(Testers& testers)
{
    wireKeyTest(testers.keyTest);
    wireJoyPlot(testers.joyPlot);
    wireTca(testers.controllerAnalyser);
}

} // namespace tarvex
