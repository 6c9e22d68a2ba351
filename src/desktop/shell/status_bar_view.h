#pragma once

#include "desktop/bind.h"
#include "desktop/platform/lock_keys.h"
#include "shell/mum.h"

#include <QStatusBar>
#include <QTimer>

#include <functional>

class QLabel;

namespace tarvex {

/// The eight panels and the progress bar.
class StatusBarView : public QStatusBar {
public:
    explicit StatusBarView(Mum& mum, QWidget* parent = nullptr);

    /// The mouse is over the bar, so many pixels from its left edge.
    std::function<void(int)> hovered;

    /// Lights or dims the panel of the Insert key: lit while typing writes over the text.
    void showOverwrite(bool on);
    /// Lights the panels of the lock keys that are on.
    void showLockKeys(LockKeyState state);

protected:
    void mouseMoveEvent(QMouseEvent* event) override;

private:
    void addPanels(Mum& mum);
    QLabel* addPanel(StatusBar::Panel& panel, const QString& sample);
    void bindPanel(StatusBar::Panel& panel, QLabel& view);
    QLabel* addKeyPanel(StatusBar::Panel& panel, const QString& name);
    void showTime();

    QLabel* m_capsLock = nullptr;
    QLabel* m_insert = nullptr;
    QLabel* m_numLock = nullptr;
    QLabel* m_time = nullptr;
    QTimer* m_minute;
    Bindings m_bindings;
};

} // namespace tarvex
