#pragma once

#include <QStringList>
#include <QWidget>

#include <functional>
#include <vector>

namespace tarvex {

/// One thing that a user does with a control, by mouse or by key.
struct UserAct {
    QString name;
    std::function<void()> run;
};

/// All that is tried with a control: clicks, keys, typing, its own menu. None for what only shows something.
std::vector<UserAct> actsOn(QWidget& control);

/// The keys and commands that a whole window has: shortcuts, entries of its menus, F1.
std::vector<UserAct> actsOnWindow(QWidget& window);

/// In sight, and neither disabled nor a piece of another control.
bool canBeOperated(const QWidget& control);

} // namespace tarvex
