#include "shown_state.h"

#include "plain_widgets.h"
#include "widget_notes.h"
#include "window_walk.h"

#include <QAbstractItemView>
#include <QAbstractScrollArea>
#include <QAction>
#include <QLabel>
#include <QMetaEnum>
#include <QMetaProperty>
#include <QRegularExpression>
#include <QScreen>
#include <QToolButton>
#include <QTreeView>

#include <algorithm>
#include <map>

namespace tarvex {

namespace {

constexpr const char* properties[] = {"text",
                                      "plainText",
                                      "title",
                                      "currentText",
                                      "checked",
                                      "value",
                                      "minimum",
                                      "maximum",
                                      "currentRow",
                                      "currentIndex",
                                      "enabled",
                                      "readOnly",
                                      "toolTip",
                                      "accessibleName",
                                      "accessibleDescription",
                                      "placeholderText",
                                      "shortcut",
                                      "maxLength",
                                      "windowOpacity",
                                      "verticalScrollBarPolicy"};

/// Of the model, with a mark for each tick.
QString rowsOf(const QAbstractItemModel& model, const QModelIndex& parent)
{
    QStringList rows;
    for (int row = 0; row < model.rowCount(parent); ++row) {
        QStringList cells;
        for (int column = 0; column < model.columnCount(parent); ++column) {
            const QModelIndex cell = model.index(row, column, parent);
            const bool isTicked = cell.data(Qt::CheckStateRole).toInt() == Qt::Checked;
            cells.append((isTicked ? QStringLiteral("[x] ") : QString()) + cell.data().toString());
        }
        rows.append(cells.join(u" | "));
    }
    return rows.join(u" / ");
}

QString chosenIn(const QAbstractItemView& view)
{
    QStringList rows;
    if (view.selectionModel() == nullptr) return {};
    for (const QModelIndex& index : view.selectionModel()->selectedIndexes())
        if (index.column() == 0) rows.append(QString::number(index.row()));
    return QStringLiteral("%1 of %2").arg(view.currentIndex().row()).arg(rows.join(u' '));
}

QString coloursOf(const QPalette& palette, const QPalette& before)
{
    QStringList names;
    for (int role = 0; role < QPalette::NColorRoles; ++role) {
        const QColor colour = palette.color(static_cast<QPalette::ColorRole>(role));
        if (colour != before.color(static_cast<QPalette::ColorRole>(role)))
            names.append(QLatin1String(QMetaEnum::fromType<QPalette::ColorRole>().valueToKey(role)) + u' ' +
                         colour.name());
    }
    return names.join(u' ');
}

QString nameOf(const QFont& font)
{
    return QStringLiteral("font %1%2%3%4")
        .arg(font.pointSizeF())
        .arg(QLatin1String(font.bold() ? " bold" : ""), QLatin1String(font.italic() ? " italic" : ""),
             QLatin1String(font.strikeOut() ? " struck out" : ""));
}

/// The clock changes by itself.
QString withoutTime(const QString& text)
{
    static const QRegularExpression time(QStringLiteral("^\\s*\\d\\d:\\d\\d\\s*$"));
    constexpr qsizetype longest = 12;
    return text.size() > longest ? text : QString(text).replace(time, QStringLiteral("--:--"));
}

const std::vector<QMetaProperty>& propertiesOf(const QMetaObject& kind)
{
    static std::map<const QMetaObject*, std::vector<QMetaProperty>> known;
    const auto [place, isNew] = known.try_emplace(&kind);
    for (const char* name : properties)
        if (const int index = kind.indexOfProperty(name); isNew && index >= 0)
            place->second.push_back(kind.property(index));
    return place->second;
}

std::vector<QVariant> valuesOf(const QWidget& widget)
{
    std::vector<QVariant> values;
    for (const QMetaProperty& property : propertiesOf(*widget.metaObject())) values.push_back(property.read(&widget));
    if (const auto* view = qobject_cast<const QAbstractItemView*>(&widget); view != nullptr && view->model()) {
        values.emplace_back(rowsOf(*view->model(), view->rootIndex()));
        values.emplace_back(chosenIn(*view));
    }
    if (widget.isWindow()) values.emplace_back(widget.windowTitle());
    return values;
}

/// The program's own kinds of widgets, and labels with a picture.
bool isPainted(const QWidget& widget)
{
    if (const auto* label = qobject_cast<const QLabel*>(&widget); label != nullptr && !label->pixmap().isNull())
        return true;
    return className(widget).starts_with("tarvex::") && !widget.inherits("QLineEdit");
}

/// What the widget paints itself, without the widgets inside.
QImage pictureOf(QWidget& widget)
{
    auto* area = qobject_cast<QAbstractScrollArea*>(&widget);
    QWidget& painted = area != nullptr ? *area->viewport() : widget;
    QImage picture(painted.size(), QImage::Format_RGB32);
    picture.fill(Qt::gray);
    painted.render(&picture, {}, {}, QWidget::DrawWindowBackground);
    return picture;
}

/// The pieces that widgets of the toolkit make for themselves.
bool isPiece(const QWidget& widget)
{
    if (widget.objectName().startsWith(QStringLiteral("qt_"))) return true;
    for (const char* kind : {"QScrollBar", "QSizeGrip", "QSplitterHandle", "QRubberBand", "QTabBar"})
        if (widget.inherits(kind) && !className(widget).starts_with("tarvex::")) return true;
    return false;
}

} // namespace

QString shownName(const QWidget& widget)
{
    const auto* button = qobject_cast<const QToolButton*>(&widget);
    if (!widget.objectName().isEmpty()) return widget.objectName();
    return button != nullptr && button->defaultAction() != nullptr ? button->defaultAction()->objectName()
                                                                   : kindOf(widget);
}

QString difference(const QString& before, const QString& now)
{
    constexpr qsizetype shortEnough = 60;
    constexpr qsizetype around = 12;
    if (before.size() <= shortEnough && now.size() <= shortEnough) return quoted(before) + " -> " + quoted(now);
    const qsizetype shorter = std::min(before.size(), now.size());
    qsizetype begin = 0;
    while (begin < shorter && before[begin] == now[begin]) ++begin;
    qsizetype end = 0;
    while (end < shorter - begin && before[before.size() - 1 - end] == now[now.size() - 1 - end]) ++end;
    begin = std::max<qsizetype>(0, begin - around);
    end = std::max<qsizetype>(0, end - around);
    const auto part = [&](const QString& text) { return quoted(text.mid(begin, text.size() - end - begin)); };
    return QStringLiteral("...%1 -> %2...").arg(part(before), part(now));
}

ShownState::ShownState(QWidget& window) : m_window(&window), m_focus(window.focusWidget())
{
    add(window);
    for (QWidget* widget : window.findChildren<QWidget*>())
        if (widget->isVisible() && widget->window() == &window && !isPiece(*widget)) add(*widget);
}

void ShownState::add(QWidget& widget)
{
    m_places[&widget] = m_all.size();
    m_all.push_back({&widget, shownName(widget), valuesOf(widget), widget.palette(), widget.font(), {}});
    if (&widget != m_window && isPainted(widget)) m_all.back().picture = pictureOf(widget);
}

const ShownState::Shown* ShownState::find(const Shown& shown) const
{
    const auto place = m_places.constFind(shown.widget);
    if (place == m_places.constEnd()) return nullptr;
    const Shown& found = m_all[*place];
    return found.name == shown.name && found.values.size() == shown.values.size() ? &found : nullptr;
}

QString ShownState::changes(const Shown& now, const Shown& before)
{
    const std::vector<QMetaProperty>& known = propertiesOf(*now.widget->metaObject());
    QStringList changes;
    for (std::size_t i = 0; i < now.values.size(); ++i) {
        const QString text = withoutTime(now.values[i].toString());
        const QString old = withoutTime(before.values[i].toString());
        if (text == old) continue;
        const char* name = i < known.size()         ? known[i].name()
                           : now.widget->isWindow() ? "caption"
                           : i == known.size()      ? "rows"
                                                    : "chosen";
        changes.append(QLatin1String(name) + u' ' + difference(old, text));
    }
    if (now.palette != before.palette) changes.append(coloursOf(now.palette, before.palette));
    if (nameOf(now.font) != nameOf(before.font)) changes.append(nameOf(now.font));
    changes.removeAll(QString());
    if (changes.isEmpty() && now.picture != before.picture) changes.append(QStringLiteral("looks different"));
    return changes.join(u", ");
}

QStringList ShownState::changesSince(const ShownState& before) const
{
    QStringList lines;
    QStringList come;
    QStringList gone;
    for (const Shown& now : m_all) {
        const Shown* then = before.find(now);
        if (then == nullptr)
            come.append(now.name);
        else if (const QString text = changes(now, *then); !text.isEmpty())
            lines.append(now.name + QStringLiteral(": ") + text);
    }
    for (const Shown& then : before.m_all)
        if (find(then) == nullptr) gone.append(then.name);
    if (!come.isEmpty()) lines.append(QStringLiteral("shown: ") + come.join(u", "));
    if (!gone.isEmpty()) lines.append(QStringLiteral("hidden: ") + gone.join(u", "));
    if (m_focus != before.m_focus && m_focus) lines.append(QStringLiteral("focus: ") + shownName(*m_focus));
    return lines;
}

QStringList ShownState::notPaintedSince(const ShownState& before) const
{
    QStringList names;
    for (const Shown& now : m_all) {
        const Shown* then = before.find(now);
        if (now.picture.isNull() || (then != nullptr && then->picture == now.picture)) continue;
        const QRect area(now.widget->mapTo(m_window, QPoint()), now.widget->size());
        const QImage fresh = m_window->grab(area).toImage().convertToFormat(QImage::Format_RGB32);
        const QImage there = m_window->screen()
                                 ->grabWindow(m_window->winId(), area.x(), area.y(), area.width(), area.height())
                                 .toImage()
                                 .convertToFormat(QImage::Format_RGB32);
        if (fresh != there) names.append(now.name);
    }
    return names;
}

} // namespace tarvex
