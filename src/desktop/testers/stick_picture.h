#pragma once

#include "desktop/bind.h"
#include "testers/key_test_form.h"

#include <QWidget>

namespace tarvex {

/// The joystick in the key tester: a plot with one point, and the bars of throttle and rudders.
class StickPicture : public QWidget {
    Q_OBJECT
public:
    StickPicture(KeyTestForm& window, QWidget* parent);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    KeyTestForm& m_window;
    Bindings m_bindings;
};

} // namespace tarvex
