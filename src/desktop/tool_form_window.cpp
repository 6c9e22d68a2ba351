#include "desktop/tool_form_window.h"

#include "desktop/input.h"
#include "platform/key_codes.h"

#include <QAbstractButton>
#include <QApplication>
#include <QKeyEvent>
#include <QScopedValueRollback>
#include <QWindow>

namespace tarvex {

namespace {

int toKeyCode(int key)
{
    if (key >= Qt::Key_F1 && key <= Qt::Key_F12) return keyCode::f1 + key - Qt::Key_F1;
    if ((key >= Qt::Key_A && key <= Qt::Key_Z) || (key >= Qt::Key_0 && key <= Qt::Key_9)) return key; // as in ASCII
    return key == Qt::Key_Escape ? keyCode::escape : keyCode::none;
}

/// Shows the window its keys before the control with the keyboard gets them.
class KeyFilter : public QObject {
public:
    explicit KeyFilter(ToolFormWindow& window) : QObject(&window), m_window(window) { qApp->installEventFilter(this); }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override
    {
        const bool isKey = event->type() == QEvent::KeyPress || event->type() == QEvent::KeyRelease ||
                           event->type() == QEvent::ShortcutOverride;
        if (!isKey || !m_window.isActiveWindow()) return false;
        const QObject* control = m_window.focusWidget();
        if (watched != (control != nullptr ? control : &m_window)) return false; // handed on to the parents
        return m_window.filterKey(*static_cast<QKeyEvent*>(event));
    }

private:
    ToolFormWindow& m_window;
};

} // namespace

ToolFormWindow::ToolFormWindow(ToolForm& form, QWidget* parent, Qt::WindowType type)
    : FormWindow(form, toQt(form.Name), parent), m_tool(form)
{
    setWindowFlags((windowFlags() & ~Qt::WindowType_Mask) | type);
    if (form.KeyDown) new KeyFilter(*this);
}

bool ToolFormWindow::filterKey(QKeyEvent& event)
{
    if (takesKey(event)) {
        event.accept();
        return true;
    }
    if (event.type() != QEvent::KeyPress || keepsKey(event)) return false;
    const bool swallowed = m_tool.KeyDown(toKeyCode(event.key()), toLogic(event.modifiers()));
    return swallowed || m_tool.State == WindowState::Minimised; // F4 would also open a list above the other windows
}

/// Esc comes here, and so does the frame's close button.
void ToolFormWindow::reject()
{
    if (m_tool.Escape && !m_closing) {
        m_tool.Escape();
    } else {
        FormWindow::reject();
    }
}

bool ToolFormWindow::event(QEvent* event)
{
    const bool isBlocked = event->type() == QEvent::WindowBlocked;
    if ((isBlocked || event->type() == QEvent::WindowUnblocked) && windowHandle() != nullptr) {
        const bool onTop = windowFlags().testFlag(Qt::WindowStaysOnTopHint);
        windowHandle()->setFlag(Qt::WindowStaysOnTopHint, onTop && !isBlocked); // the widget's flag would hide it first
    }
    return FormWindow::event(event);
}

void ToolFormWindow::keyPressEvent(QKeyEvent* event)
{
    const bool isEnter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    const bool hasDefaultButton = windowType() != Qt::Window;
    if (!isEnter || hasDefaultButton) return FormWindow::keyPressEvent(event);
    if (auto* focused = qobject_cast<QAbstractButton*>(focusWidget())) focused->click();
}

void ToolFormWindow::closeEvent(QCloseEvent* event)
{
    const QScopedValueRollback<bool> closing(m_closing, true);
    FormWindow::closeEvent(event);
}

void ToolFormWindow::changeEvent(QEvent* event)
{
    FormWindow::changeEvent(event);
    if (event->type() == QEvent::ActivationChange && isActiveWindow() && m_tool.Activate) m_tool.Activate();
}

} // namespace tarvex
