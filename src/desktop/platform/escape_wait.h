#pragma once

#include <QEventLoop>
#include <QObject>
#include <QPointer>
#include <QWidget>

namespace tarvex {

/// Lets the windows be drawn, and nothing else happen, until the user presses Esc.
class EscapeWait : public QObject {
    Q_OBJECT
public:
    /// Returns at once while no window is shown. A window that the user wants closed meanwhile ends the wait too, and
    /// is asked to close once the work that waited is done.
    void wait();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void keepFocus(QWidget* widget, bool in);

    QEventLoop m_loop;
    QPointer<QWidget> m_closing;
    QPointer<QWidget> m_lostFocus;
    QPointer<QWidget> m_gotFocus;
};

} // namespace tarvex
