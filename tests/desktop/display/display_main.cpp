#include <QApplication>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

// Windows on the X11 display that scripts/with-display provides.
int main(int argumentCount, char** arguments)
{
    qputenv("QT_QPA_PLATFORM", "xcb");
    testing::InitGoogleMock(&argumentCount, arguments);
    QApplication application(argumentCount, arguments);
    QApplication::setStyle(QStringLiteral("Fusion"));
    return RUN_ALL_TESTS();
}
