#pragma once

#include "desktop/composer/hardware_picture.h"
#include "desktop/program/mum_window.h"
#include "support/test_program.h"

#include <QAbstractButton>
#include <QApplication>
#include <QTabWidget>
#include <QTest>
#include <QWindow>

#include <gtest/gtest.h>

namespace tarvex {

/// The program with its windows and the Composer open over it, used by keys and mouse alone.
struct ComposerViewTest : testing::Test {
    TestProgram t;
    MumWindow window{t.program()};
    InsertOptions& composer = t.program().composer;

    ComposerViewTest()
    {
        t.settings().COMPreturnFocus = 0;
        window.showNormal();
        events();
        open();
    }
    void open()
    {
        t.menus().mnuShowInsertWindow.Click();
        QApplication::setActiveWindow(form());
        events();
        t.settings().COMPreturnFocus = 0;
    }
    static void events() { QApplication::processEvents(); }
    QWidget* form() { return window.findChild<QWidget*>("InsertOptions"); }
    template <typename Widget> Widget* get(const QString& name)
    {
        auto* widget = form()->findChild<Widget*>(name);
        EXPECT_NE(widget, nullptr) << name.toStdString();
        return widget;
    }
    /// The window comes to the front with other controllers.
    void use(std::int16_t joyName, std::int16_t throttleName, std::int16_t rudderName)
    {
        t.settings().JoyName = joyName;
        t.settings().ThrottleName = throttleName;
        t.settings().RudderName = rudderName;
        composer.form.Activate();
        events();
    }
    HardwarePicture* shownPicture()
    {
        return qobject_cast<HardwarePicture*>(get<QTabWidget>("SSTabHardware")->currentWidget());
    }
    /// A place of the window where the control, and nothing above it, takes the mouse.
    QPoint placeOf(const HardwareControl& control)
    {
        for (int y = 0; y < control.height(); y += 2) {
            for (int x = 0; x < control.width(); x += 2) {
                const QPoint place = control.mapTo(form(), QPoint(x, y));
                if (form()->childAt(place) == &control) return place;
            }
        }
        return {-1, -1};
    }
    void clickAt(QPoint place) { QTest::mouseClick(form()->windowHandle(), Qt::LeftButton, {}, place); }
    void clickControl(const char* id)
    {
        clickAt(placeOf(*shownPicture()->control(id)));
        events();
    }
    void click(const QString& name)
    {
        QTest::mouseClick(get<QAbstractButton>(name), Qt::LeftButton);
        events();
    }
    void showPage(int page)
    {
        get<QTabWidget>("SSTab1")->setCurrentIndex(page);
        events();
    }
    std::string joystick() { return std::string(t.editor().JoystickText.Text()); }
};

} // namespace tarvex
