#pragma once

#include "plain_widgets.h"

#include <QFont>
#include <QPalette>

class QAction;
class QLayout;
class QLayoutItem;

namespace tarvex {

/// What a window is made of, as a text with a line for each layout, widget and command: how they are nested, what of
/// each was set, colours and fonts of its own, and the way of the Tab key through them.
class WindowList {
public:
    explicit WindowList(const PlainWidgets& plain) : m_plain(plain) {}

    QString of(const QWidget& window);

private:
    void add(int depth, const QString& line);
    void addWidget(int depth, const QString& place, const QWidget& widget);
    void addInside(int depth, const QWidget& widget);
    void addLayout(int depth, const QString& place, const QLayout& layout, const QLayout* above);
    void addItem(int depth, const QString& place, const QLayoutItem& item, const QLayout& layout);
    void addMenu(int depth, const QList<QAction*>& actions);
    void addTabOrder(const QWidget& window);

    const PlainWidgets& m_plain;
    QString m_text;
};

} // namespace tarvex
