#pragma once

#include <QFont>
#include <QHash>
#include <QImage>
#include <QPalette>
#include <QPointer>
#include <QStringList>
#include <QVariant>
#include <QWidget>

#include <vector>

namespace tarvex {

/// What a window shows: of each widget in sight its caption, value, choice, tip, colours and the like, and a picture of
/// what the program paints itself.
class ShownState {
public:
    explicit ShownState(QWidget& window);

    /// What has become different since another state of the same window, a line for each widget.
    QStringList changesSince(const ShownState& before) const;
    /// Names of the painted widgets whose look has changed since, while the screen still shows something else.
    QStringList notPaintedSince(const ShownState& before) const;

private:
    struct Shown {
        QWidget* widget = nullptr;
        QString name;
        std::vector<QVariant> values; ///< of the properties, and of lists their rows
        QPalette palette;
        QFont font;
        QImage picture; ///< null unless the program paints it
    };
    void add(QWidget& widget);
    /// The same widget in the earlier state, or null.
    const Shown* find(const Shown& shown) const;
    static QString changes(const Shown& now, const Shown& before);

    QWidget* m_window;
    std::vector<Shown> m_all;
    QHash<const QWidget*, std::size_t> m_places; ///< in m_all
    QPointer<QWidget> m_focus;
};

/// Its object name, or that of the command of a tool button, or else its class.
QString shownName(const QWidget& widget);

/// `"old" -> "new"`, without what is the same at both ends of long texts.
QString difference(const QString& before, const QString& now);

} // namespace tarvex
