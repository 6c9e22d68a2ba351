#pragma once

#include <QEventLoop>
#include <QObject>
#include <QPointer>
#include <QWidget>

class QKeyEvent;

namespace tarvex {

/// Runs an event loop that lets the windows be drawn and nothing else happen: nothing is taken from the user, and no
/// timer of the logic ticks. The keyboard owner is reported when the loop has ended.
class InputHold : public QObject {
    Q_OBJECT
public:
    void hold();
    void release() { m_loop.quit(); }

signals:
    void escapePressed();
    void savePressed(); ///< Ctrl+S
    /// The user wants a window closed; it stays open.
    void closeWanted(QWidget* window);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void keepFocus(QWidget* widget, bool in);
    void reportKey(const QKeyEvent& event);

    QEventLoop m_loop;
    QPointer<QWidget> m_lostFocus;
    QPointer<QWidget> m_gotFocus;
};

} // namespace tarvex
