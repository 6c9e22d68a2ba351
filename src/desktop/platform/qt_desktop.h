#pragma once

#include "platform/platform.h"
#include "platform/posix/instance_lock.h"

#include <functional>
#include <string>

namespace tarvex {

class QtDesktop final : public Desktop {
public:
    /// `programDirectory` is a native path; the lock of the single instance lies there.
    explicit QtDesktop(std::string programDirectory) : m_programDirectory(std::move(programDirectory)) {}

    /// Runs `whenFirst` or `whenSecond`.
    bool anotherInstanceRuns() override;
    std::function<void()> whenFirst = [] {};  ///< this is the one copy of the program
    std::function<void()> whenSecond = [] {}; ///< another copy runs already
    void doEvents() override;
    void waitForEscape() override;
    float screenWidth() const override;
    float screenHeight() const override;
    std::string longDate() const override;
    void showHourglass(bool on) override;
    void openProgramFile(const std::string& name) override;
    void quit() override;
    /// quit was called, perhaps before the message loop began.
    bool quits() const { return m_quits; }

private:
    std::string m_programDirectory;
    InstanceLock m_lock;
    bool m_handlesEvents = false;
    bool m_quits = false;
    int m_unseenHourglasses = 0;
};

} // namespace tarvex
