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

    /// A command is run once more while this is so after its windows are closed.
    virtual bool wantsAgain() { return false; }

    /// From here on windows that are modal get their looks, too.
    void start() { m_user.start(0); }
    /// Runs a command of the menus, or clicks a button of the frame.
    void trigger(const QString& name);
    void showForm(const char* form);

    const std::string& command() const { return m_command; } ///< what was run last

    DesktopProgram m_desktop;
    bool m_looking = false; ///< a look at a modal window may let events in

private:
    QStringList commands() const;
    void changeOutside();
    void clickButtons();
    void lookAtAllPages(QWidget& window);
    void lookAtModal();
    void lookAtOpenWindows();

    std::string m_command = "the start";
    QTimer m_user;
};

} // namespace tarvex
