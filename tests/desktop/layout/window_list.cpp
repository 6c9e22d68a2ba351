#include "window_list.h"

#include "widget_notes.h"

#include <QAction>
#include <QBoxLayout>
#include <QComboBox>
#include <QFormLayout>
#include <QGridLayout>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QScrollArea>
#include <QTabWidget>

namespace tarvex {

namespace {

QString span(int rows, int columns)
{
    return rows == 1 && columns == 1 ? QString() : QStringLiteral(" over %1 x %2").arg(rows).arg(columns);
}

QString placeIn(const QGridLayout& grid, int index)
{
    int row = 0, column = 0, rows = 0, columns = 0;
    grid.getItemPosition(index, &row, &column, &rows, &columns);
    return QStringLiteral("%1,%2%3: ").arg(row).arg(column).arg(span(rows, columns));
}

QString placeIn(const QFormLayout& form, int index)
{
    int row = 0;
    auto role = QFormLayout::LabelRole;
    form.getItemPosition(index, &row, &role);
    const char* name = role == QFormLayout::LabelRole ? "label" : role == QFormLayout::FieldRole ? "field" : "both";
    return QStringLiteral("%1 %2: ").arg(QLatin1String(name)).arg(row);
}

/// Where the item stands, unless that follows from the order.
QString placeIn(const QLayout& layout, int index)
{
    if (const auto* grid = qobject_cast<const QGridLayout*>(&layout)) return placeIn(*grid, index);
    if (const auto* form = qobject_cast<const QFormLayout*>(&layout)) return placeIn(*form, index);
    const auto* box = qobject_cast<const QBoxLayout*>(&layout);
    return box != nullptr && box->stretch(index) != 0 ? QStringLiteral("stretch %1: ").arg(box->stretch(index))
                                                      : QString();
}

/// The pieces that a widget of the toolkit makes for itself, and windows of their own.
bool isPiece(const QWidget& widget)
{
    if (widget.isWindow() || widget.objectName().startsWith(QStringLiteral("qt_"))) return true;
    for (const char* kind : {"QScrollBar", "QSizeGrip", "QSplitterHandle", "QRubberBand", "QTabBar", "QMenu"})
        if (widget.inherits(kind)) return true;
    const QWidget* parent = widget.parentWidget();
    return parent->inherits("QTabBar") || parent->inherits("QLineEdit") || parent->inherits("QHeaderView") ||
           parent->inherits("QMenuBar") || (parent->inherits("QTableView") && widget.inherits("QAbstractButton"));
}

QList<const QWidget*> insideOf(const QWidget& widget)
{
    if (const auto* area = qobject_cast<const QScrollArea*>(&widget); area != nullptr && area->widget() != nullptr)
        return {area->widget()};
    if (const auto* box = qobject_cast<const QComboBox*>(&widget))
        return box->lineEdit() != nullptr ? QList<const QWidget*>{box->lineEdit()} : QList<const QWidget*>();
    if (widget.inherits("QAbstractSpinBox")) return {};
    QList<const QWidget*> inside;
    if (const auto* tabs = qobject_cast<const QTabWidget*>(&widget))
        for (int i = 0; i < tabs->count(); ++i) inside.append(tabs->widget(i));
    for (const QWidget* child : widget.findChildren<QWidget*>(Qt::FindDirectChildrenOnly))
        if (!isPiece(*child)) inside.append(child);
    return inside;
}

bool holds(const QLayout& layout, const QWidget& widget)
{
    for (int i = 0; i < layout.count(); ++i) {
        const QLayoutItem& item = *layout.itemAt(i);
        if (item.widget() == &widget) return true;
        if (const QLayout* inner = const_cast<QLayoutItem&>(item).layout(); inner && holds(*inner, widget)) // NOLINT
            return true;
    }
    return false;
}

} // namespace

QString WindowList::of(const QWidget& window)
{
    m_text.clear();
    addWidget(0, windowNote(window), window);
    addTabOrder(window);
    return m_text;
}

void WindowList::add(int depth, const QString& line) { m_text += QString(depth * 2, u' ') + line + u'\n'; }

void WindowList::addWidget(int depth, const QString& place, const QWidget& widget)
{
    const QStringList all = m_plain.setIn(widget) + notesOn(widget);
    const QString name = widget.objectName().isEmpty() ? QString() : widget.objectName() + u' ';
    add(depth, place + name + kindOf(widget) + (all.isEmpty() ? QString() : QStringLiteral(": ") + all.join(u", ")));
    addInside(depth + 1, widget);
}

void WindowList::addInside(int depth, const QWidget& widget)
{
    const QLayout* layout = widget.layout();
    const auto* tabs = qobject_cast<const QTabWidget*>(&widget);
    if (layout != nullptr && tabs == nullptr) addLayout(depth, {}, *layout, nullptr);
    for (const QWidget* inside : insideOf(widget)) {
        if (layout != nullptr && tabs == nullptr && holds(*layout, *inside)) continue;
        const int page = tabs != nullptr ? tabs->indexOf(const_cast<QWidget*>(inside)) : -1; // NOLINT
        addWidget(depth, page >= 0 ? tabNote(*tabs, page) : QString(), *inside);
    }
    if (const auto* bar = qobject_cast<const QMenuBar*>(&widget)) addMenu(depth, bar->actions());
    for (const QObject* object : widget.children())
        if (const QString note = noteOn(*object, m_plain); !note.isEmpty()) add(depth, note);
}

void WindowList::addLayout(int depth, const QString& place, const QLayout& layout, const QLayout* above)
{
    add(depth, place + layoutNote(layout, above));
    for (int i = 0; i < layout.count(); ++i) addItem(depth + 1, placeIn(layout, i), *layout.itemAt(i), layout);
}

void WindowList::addItem(int depth, const QString& place, const QLayoutItem& item, const QLayout& layout)
{
    auto& held = const_cast<QLayoutItem&>(item); // NOLINT: the toolkit has no other way to look into it
    const QString at = place + alignmentNote(item);
    if (held.layout() != nullptr) {
        addLayout(depth, at, *held.layout(), &layout);
    } else if (held.spacerItem() != nullptr) {
        add(depth, at + spaceNote(*held.spacerItem()));
    } else if (item.widget() != nullptr) {
        addWidget(depth, at, *item.widget());
    }
}

void WindowList::addMenu(int depth, const QList<QAction*>& actions)
{
    for (const QAction* action : actions) {
        const QString name = action->objectName().isEmpty() ? QString() : action->objectName() + u' ';
        if (action->isSeparator()) {
            add(depth, name + QStringLiteral("----"));
            continue;
        }
        add(depth, name + (action->menu() != nullptr ? QStringLiteral("menu: ") : QString()) +
                       m_plain.setIn(*action).join(u", "));
        if (action->menu() != nullptr) addMenu(depth + 1, action->menu()->actions());
    }
}

void WindowList::addTabOrder(const QWidget& window)
{
    QStringList names;
    for (const QWidget* next = window.nextInFocusChain(); next != &window; next = next->nextInFocusChain()) {
        const bool takesPart = (next->focusPolicy() & Qt::TabFocus) != 0 && next->window() == &window;
        if (takesPart && !next->objectName().startsWith(QStringLiteral("qt_")))
            names.append(next->objectName().isEmpty() ? kindOf(*next) : next->objectName());
    }
    if (!names.isEmpty()) add(0, QStringLiteral("Tab: ") + names.join(u", "));
}

} // namespace tarvex
