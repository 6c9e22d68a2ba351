#pragma once

#include "desktop/form_window.h"
#include "shell/tool_form.h"

class QKeyEvent;

namespace tarvex {

/// The window of a tool form: its keys, Esc and activation reach the form. It comes up in the size that the form has.
class ToolFormWindow : public FormWindow {
    Q_OBJECT
public:
    /// A Qt::Dialog stays before the frame and is minimised with it, by the user or by the program; a Qt::Window does
    /// neither.
    ToolFormWindow(ToolForm& form, QWidget* parent, Qt::WindowType type = Qt::Window);

    void reject() override;
    /// What the window does with a key before its controls get it. True: they don't get it.
    bool filterKey(QKeyEvent& event);

protected:
    /// While a modal box of the program is open, the window isn't kept on top: it could hide the box.
    bool event(QEvent* event) override;
    /// Keys that the window takes off its controls, pressed or released, shortcuts among them.
    virtual bool takesKey(const QKeyEvent&) { return false; }
    /// Keys that belong to the control with the keyboard, whatever the form's KeyDown would do with them.
    virtual bool keepsKey(const QKeyEvent&) const { return false; }
    /// Return presses the button that has the keyboard. A Qt::Window has no default button, which a Return in a text
    /// box would press; a Qt::Dialog has one.
    void keyPressEvent(QKeyEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    ToolForm& m_tool;
    bool m_closing = false; ///< by the frame's button
};

} // namespace tarvex
