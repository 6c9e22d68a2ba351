#pragma once

#include <QAbstractButton>
#include <QGroupBox>
#include <QKeySequence>
#include <QLabel>
#include <QMap>
#include <QMenuBar>
#include <QStringList>
#include <QTabBar>

namespace tarvex {

inline void addKey(QMap<QString, QStringList>& owners, const QString& text)
{
    const QKeySequence key = QKeySequence::mnemonic(text);
    if (!key.isEmpty()) owners[key.toString()].append(text);
}

/// The visible ones of the window itself, without windows that belong to it.
template <typename Widget> QList<Widget*> shownIn(const QWidget& window)
{
    QList<Widget*> shown;
    for (Widget* widget : window.findChildren<Widget*>())
        if (widget->isVisible() && widget->window() == window.window()) shown.append(widget);
    return shown;
}

/// What can be reached by an access key while the window is as it is, by key.
inline QMap<QString, QStringList> accessKeys(const QWidget& window)
{
    QMap<QString, QStringList> owners;
    for (const auto* button : shownIn<QAbstractButton>(window)) addKey(owners, button->text());
    for (const auto* group : shownIn<QGroupBox>(window)) addKey(owners, group->title());
    for (const auto* label : shownIn<QLabel>(window))
        if (label->buddy() != nullptr) addKey(owners, label->text());
    for (const auto* bar : shownIn<QTabBar>(window))
        for (int i = 0; i < bar->count(); ++i) addKey(owners, bar->tabText(i));
    for (const auto* bar : shownIn<QMenuBar>(window))
        for (const QAction* menu : bar->actions())
            if (menu->isVisible()) addKey(owners, menu->text());
    return owners;
}

} // namespace tarvex
