#include "desktop/form_window.h"

#include "desktop/minimise.h"
#include "desktop/screen_room.h"

#include <QCloseEvent>
#include <QGuiApplication>
#include <QScreen>

#include <algorithm>

namespace tarvex {

FormWindow::FormWindow(Form& form, const QString& name, QWidget* parent) : QDialog(parent), m_form(form)
{
    setObjectName(name);
    setWindowFlag(Qt::WindowContextHelpButtonHint, false);
    m_bindings.bind(form.Caption, [this](const std::string& caption) { setWindowTitle(toQt(caption)); });
    m_bindings.follow(form.TopMost, [this] { keepOnTop(m_form.TopMost); });
    m_bindings.follow(form.Visible, [this] { refresh(); });
    m_bindings.follow(form.frontWanted, [this] { refresh(); });
    m_bindings.follow(form.State, [this] {
        if (isVisible()) showState();
    });
    if (form.TopMost) setWindowFlag(Qt::WindowStaysOnTopHint);
}

void FormWindow::showModally()
{
    m_modal = true;
    m_form.Visible = true;
    place();
    exec();
    m_form.Visible = false;
    m_modal = false;
}

void FormWindow::reject()
{
    if (m_form.Close) {
        m_form.Close();
    } else {
        m_form.Visible = false;
    }
}

void FormWindow::closeEvent(QCloseEvent* event)
{
    reject();
    event->setAccepted(!m_form.Visible);
}

void FormWindow::refresh()
{
    if (!m_form.Visible) {
        if (isVisible()) done(QDialog::Accepted);
        return;
    }
    if (m_modal) return; // exec shows it
    if (m_form.State == WindowState::Minimised) return minimise(*this);
    if (!isVisible()) place();
    showNormal();
    raise();
    activateWindow();
}

/// The keyboard stays where it is: windows that come back with the frame don't take it.
void FormWindow::showState()
{
    if (m_form.State == WindowState::Minimised) return minimise(*this);
    setAttribute(Qt::WA_ShowWithoutActivating);
    showNormal();
    setAttribute(Qt::WA_ShowWithoutActivating, false);
}

/// On top means before the program's other windows and those of other programs.
void FormWindow::keepOnTop(bool on)
{
    const bool shown = isVisible();
    setWindowFlag(Qt::WindowStaysOnTopHint, on); // hides the window
    if (shown) show();
}

/// Where the form was left, if that is on a screen; otherwise Qt's own place, over the middle of its parent.
void FormWindow::place()
{
    if (m_form.Left == 0.0F && m_form.Top == 0.0F) return;
    const QPoint corner(toPixels(m_form.Left), toPixels(m_form.Top));
    const QScreen* screen = QGuiApplication::screenAt(corner);
    if (screen == nullptr) return;
    const QRect room = screen->availableGeometry();
    const QSize size = (testAttribute(Qt::WA_Resized) ? this->size() : sizeHint()) + frameSizeOf(*this);
    move(std::clamp(corner.x(), room.left(), std::max(room.left(), room.right() - size.width())),
         std::clamp(corner.y(), room.top(), std::max(room.top(), room.bottom() - size.height())));
}

void FormWindow::reportPlace()
{
    if (!isVisible() || isMinimized()) return;
    m_form.Left = toTwips(x());
    m_form.Top = toTwips(y());
    m_form.Width = toTwips(width());
    m_form.Height = toTwips(height());
}

void FormWindow::moveEvent(QMoveEvent* event)
{
    QDialog::moveEvent(event);
    reportPlace();
}

void FormWindow::resizeEvent(QResizeEvent* event)
{
    QDialog::resizeEvent(event);
    reportPlace();
}

void FormWindow::changeEvent(QEvent* event)
{
    QDialog::changeEvent(event);
    if (event->type() != QEvent::WindowStateChange || !isVisible()) return;
    m_form.State = isMinimized() ? WindowState::Minimised : WindowState::Normal;
}

} // namespace tarvex
