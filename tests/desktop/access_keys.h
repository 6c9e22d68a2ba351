#pragma once

#include <QAbstractButton>
#include <QKeySequence>
#include <QLabel>
#include <QMap>
#include <QStringList>
#include <QTabBar>

namespace tarvex {

inline void addKey(QMap<QString, QStringList>& owners, const QString& text)
{
    const QKeySequence key = QKeySequence::mnemonic(text);
    if (!key.isEmpty()) owners[key.toString()].append(text);
}

/// What can be reached by an access key while the window is as it is, by key.
inline QMap<QString, QStringList> accessKeys(const QWidget& window)
{
    QMap<QString, QStringList> owners;
    for (const auto* button : window.findChildren<QAbstractButton*>()) {
        if (button->isVisible()) addKey(owners, button->text());
    }
    for (const auto* label : window.findChildren<QLabel*>()) {
        if (label->isVisible() && label->buddy() != nullptr) addKey(owners, label->text());
    }
    for (const auto* bar : window.findChildren<QTabBar*>()) {
        for (int i = 0; bar->isVisible() && i < bar->count(); ++i) addKey(owners, bar->tabText(i));
    }
    return owners;
}

} // namespace tarvex
