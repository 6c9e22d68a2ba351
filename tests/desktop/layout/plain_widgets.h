#pragma once

#include <QObject>
#include <QStringList>
#include <QWidget>

#include <map>

namespace tarvex {

/// New objects of the toolkit's kinds: what differs from them was set by the window.
class PlainWidgets {
public:
    PlainWidgets();

    /// Properties of the object that differ from those of a new one, in the order of their classes: `checkable`,
    /// `not autoDefault`, `maxLength 80`. Left out is what follows from others, from the place, or from the keyboard.
    QStringList setIn(const QObject& object) const;

private:
    const QObject* plainOf(const QObject& object) const;

    QWidget m_parent;
    std::map<QByteArray, const QObject*> m_plain; ///< by the names of their classes
};

/// A text with quotation marks; line ends as "\n", long ones cut.
QString quoted(QString text);

} // namespace tarvex
