#pragma once

#include "desktop_program.h"

#include <QTimer>

#include <string>

namespace tarvex {

/// Of the object itself, with its namespace; Qt only knows the classes with Q_OBJECT.
std::string className(const QWidget& window);

/// Runs every command of the menus, as a user who looks at each window that comes up, at all its pages, and closes it.
class WindowWalk {
public:
    WindowWalk();
    virtual ~WindowWalk() = default;
    WindowWalk(const WindowWalk&) = delete;
    WindowWalk& operator=(const WindowWalk&) = delete;

    void run();

protected:
    /// A window, or a page of it, is to be seen. The frame is looked at after each command.
    virtual void look(QWidget& window) = 0;

    const std::string& command() const { return m_command; } ///< what was run last

    DesktopProgram m_desktop;

private:
    QStringList commands() const;
    void trigger(const QString& name);
    void changeOutside();
    void clickButtons();
    void lookAtAllPages(QWidget& window);
    void lookAtModal();
    void lookAtOpenWindows();

    std::string m_command = "the start";
    QTimer m_user;
    bool m_looking = false; ///< a look at a modal window may let events in
};

} // namespace tarvex
