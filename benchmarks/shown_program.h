#pragma once

#include "desktop/program/mum_window.h"
#include "support/test_program.h"
#include "timing.h"

#include <QApplication>
#include <QMouseEvent>

#include <functional>
#include <stdexcept>
#include <utility>

namespace tarvex::benchmarks {

/// Counts how often a widget of some name is painted.
class PaintsOf : public QObject {
public:
    explicit PaintsOf(const char* name) : m_name(QLatin1String(name)) { qApp->installEventFilter(this); }

    /// Lets events run until it has been painted.
    void wait()
    {
        constexpr double longest = 5; // seconds
        const auto start = Clock::now();
        for (m_painted = false; !m_painted && secondsSince(start) < longest;) QApplication::processEvents();
        if (!m_painted) throw std::runtime_error("not painted: " + m_name.toStdString());
    }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (event->type() == QEvent::Paint && watched->objectName() == m_name) m_painted = true;
        return false;
    }

private:
    QString m_name;
    bool m_painted = false;
};

/// Waits until a widget is painted in a certain state. Paints of an earlier state don't count.
class PaintedState : public QObject {
public:
    /// `reached` is asked when the widget is about to paint.
    PaintedState(QWidget& widget, std::function<bool()> reached) : m_reached(std::move(reached))
    {
        widget.installEventFilter(this);
    }

    /// Lets events run until the widget was painted in that state.
    void wait()
    {
        constexpr double longest = 5; // seconds
        const auto start = Clock::now();
        for (m_painted = false; !m_painted && secondsSince(start) < longest;) QApplication::processEvents();
        if (!m_painted) throw std::runtime_error("the awaited state isn't painted");
    }

protected:
    bool eventFilter(QObject*, QEvent* event) override
    {
        if (event->type() == QEvent::Paint && m_reached()) m_painted = true;
        return false;
    }

private:
    std::function<bool()> m_reached;
    bool m_painted = false;
};

/// The program with its frame on the screen.
struct ShownProgram {
    TestProgram program;
    MumWindow window{program.program()};

    ShownProgram()
    {
        window.showNormal();
        QApplication::processEvents();
    }
};

/// A click of the left button in the middle of a widget.
inline void click(QWidget& widget)
{
    const QPointF middle(widget.rect().center());
    for (const QEvent::Type type : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease}) {
        const bool down = type == QEvent::MouseButtonPress;
        QMouseEvent event(type, middle, widget.mapToGlobal(middle), Qt::LeftButton,
                          down ? Qt::LeftButton : Qt::NoButton, Qt::NoModifier);
        QApplication::sendEvent(&widget, &event);
    }
}

} // namespace tarvex::benchmarks
