#pragma once

#include "desktop/platform/qt_desktop.h"

#include <QApplication>
#include <QCloseEvent>
#include <QShortcut>
#include <QTest>
#include <QTimer>
#include <QWidget>

#include <functional>
#include <string>
#include <vector>

namespace tarvex {

/// A window that counts what reaches it, on a desktop that waits for Esc.
struct HeldWindow : QWidget {
    QtDesktop desktop{"/nowhere"};
    int keys = 0;
    int clicks = 0;
    int shortcuts = 0;
    int closes = 0;
    int paints = 0;
    std::string focusEvents;
    QShortcut shortcut{QKeySequence("F7"), this};
    std::vector<std::function<void()>> acts; ///< of the user, one after the other while the desktop waits

    HeldWindow()
    {
        QObject::connect(&shortcut, &QShortcut::activated, this, [this] { ++shortcuts; });
        show();
        activateWindow();
        setFocus();
        QApplication::processEvents();
        focusEvents.clear();
    }
    void press(Qt::Key key)
    {
        acts.emplace_back([this, key] { QTest::keyClick(windowHandle(), key); });
    }
    /// Lets the user act while something waits, for Esc unless stated otherwise; true: all acts were done when the wait
    /// ended.
    bool waitWhileTheUserActs(const std::function<void()>& wait = {})
    {
        std::size_t done = 0;
        QTimer user;
        QObject::connect(&user, &QTimer::timeout, &user, [&] {
            if (done < acts.size()) acts[done++]();
        });
        user.start(0);
        if (wait) {
            wait();
        } else {
            desktop.waitForEscape();
        }
        return done == acts.size();
    }

protected:
    void keyPressEvent(QKeyEvent*) override { ++keys; }
    void mousePressEvent(QMouseEvent*) override { ++clicks; }
    void focusInEvent(QFocusEvent*) override { focusEvents += "in "; }
    void focusOutEvent(QFocusEvent*) override { focusEvents += "out "; }
    void paintEvent(QPaintEvent*) override { ++paints; }
    void closeEvent(QCloseEvent* event) override
    {
        ++closes;
        event->ignore();
    }
};

} // namespace tarvex
