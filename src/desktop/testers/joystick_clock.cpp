#include "desktop/testers/joystick_clock.h"

#include <QTimer>

namespace tarvex {

namespace {

constexpr int frameMilliseconds = 16;
constexpr int pauseMilliseconds = 1000;

} // namespace

JoystickClock::JoystickClock(Analyser& analyser, QObject* parent)
    : QObject(parent), m_analyser(analyser), m_frame(new QTimer(this)), m_pause(new QTimer(this))
{
    m_frame->setTimerType(Qt::PreciseTimer);
    m_frame->setSingleShot(true);
    connect(m_frame, &QTimer::timeout, this, &JoystickClock::frameEnded);
    m_pause->setSingleShot(true);
    m_pause->setInterval(pauseMilliseconds);
    connect(m_pause, &QTimer::timeout, this, [this] {
        if (m_analyser.JoyTimer.Enabled) reportsPaused(m_analyser, pauseMilliseconds);
    });
    m_bindings.follow(analyser.reportArrived, [this] { reportArrived(); });
    if (analyser.JoyTimer.Enabled) reportArrived(); // it was loaded before its window was made
}

/// The tick isn't run from here: it may show a box, and the reader of the device has to go on.
void JoystickClock::reportArrived()
{
    m_waiting = true;
    if (!m_frame->isActive()) m_frame->start(0);
}

void JoystickClock::frameEnded()
{
    if (!m_waiting) return;
    m_waiting = false;
    if (!m_analyser.JoyTimer.Enabled) return;
    m_frame->start(frameMilliseconds);
    m_pause->start();
    m_analyser.JoyTimer.Tick();
    emit ticked();
}

} // namespace tarvex
