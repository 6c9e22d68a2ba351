#include <QApplication>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

// Windows without a screen, and with the program's own style whatever desktop the tests run on.
int main(int argumentCount, char** arguments)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    testing::InitGoogleMock(&argumentCount, arguments);
    QApplication application(argumentCount, arguments);
    QApplication::setStyle(QStringLiteral("Fusion"));
    return RUN_ALL_TESTS();
}
