#include <QApplication>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

// Windows without a display, on a pretended screen of a usual size, and with the program's own style whatever desktop
// the tests run on.
int main(int argumentCount, char** arguments)
{
    qputenv("QT_QPA_PLATFORM", "offscreen:configfile=" TARVEX_SOURCE_DIRECTORY "/tests/desktop/screen.json");
    testing::InitGoogleMock(&argumentCount, arguments);
    QApplication application(argumentCount, arguments);
    QApplication::setStyle(QStringLiteral("Fusion"));
    return RUN_ALL_TESTS();
}
