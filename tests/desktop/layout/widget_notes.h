#pragma once

#include <QString>
#include <QStringList>

class QLayout;
class QLayoutItem;
class QObject;
class QSpacerItem;
class QTabWidget;
class QWidget;

namespace tarvex {

class PlainWidgets;

/// Of the object itself, without the program's namespace.
QString kindOf(const QWidget& widget);
/// Title, flags and, if it was set, the size of a window: what its line begins with.
QString windowNote(const QWidget& window);
/// What of a widget is no property of the toolkit's: entries, columns, the field of a label, colours, fonts, a cursor.
QStringList notesOn(const QWidget& widget);
QString tabNote(const QTabWidget& tabs, int page);
/// On a shortcut, a clockwork or another helper of a widget; nothing on what else there is.
QString noteOn(const QObject& object, const PlainWidgets& plain);

/// The kind of the layout, and its margins, spaces and stretches where they aren't the usual ones.
QString layoutNote(const QLayout& layout, const QLayout* above);
QString alignmentNote(const QLayoutItem& item);
QString spaceNote(const QSpacerItem& space);

} // namespace tarvex
