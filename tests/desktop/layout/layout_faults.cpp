#include "layout_faults.h"

#include "desktop/documents/window/toolbar_layout.h"
#include "desktop/safein/key_button.h"
#include "desktop/shell/elided_label.h"
#include "desktop/text.h"

#include <QAbstractButton>
#include <QAbstractScrollArea>
#include <QAbstractSpinBox>
#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QMenuBar>
#include <QRadioButton>
#include <QScrollArea>
#include <QSizeGrip>
#include <QTabBar>
#include <QTabWidget>
#include <QToolButton>

namespace tarvex {

namespace {

using Faults = std::set<std::string>;

std::string nameOf(const QWidget& widget)
{
    std::string name = widget.metaObject()->className();
    if (!widget.objectName().isEmpty()) name += " " + fromQt(widget.objectName());
    if (const auto* label = qobject_cast<const QLabel*>(&widget)) name += " \"" + fromQt(label->text()) + '"';
    if (const auto* button = qobject_cast<const QAbstractButton*>(&widget))
        name += " \"" + fromQt(button->text()) + '"';
    return name;
}

std::string sizeText(QSize size) { return std::to_string(size.width()) + " x " + std::to_string(size.height()); }

std::string placeText(const QWidget& widget)
{
    return sizeText(widget.size()) + " at " + std::to_string(widget.x()) + ", " + std::to_string(widget.y());
}

/// Buttons of the toolbar that its extension shows.
bool isLeftOut(const QWidget& parent, const QWidget& child)
{
    const auto* toolbar = dynamic_cast<const ToolbarLayout*>(parent.layout());
    return toolbar != nullptr && toolbar->isLeftOut(&child);
}

/// Widgets whose pieces are the toolkit's, or scroll.
bool arrangesItself(const QWidget& widget)
{
    return qobject_cast<const QAbstractScrollArea*>(&widget) || qobject_cast<const QAbstractSpinBox*>(&widget) ||
           qobject_cast<const QComboBox*>(&widget) || qobject_cast<const QLineEdit*>(&widget) ||
           qobject_cast<const QTabBar*>(&widget) || qobject_cast<const QMenuBar*>(&widget);
}

QList<QWidget*> visibleChildren(const QWidget& parent)
{
    QList<QWidget*> found;
    for (QWidget* child : parent.findChildren<QWidget*>(Qt::FindDirectChildrenOnly)) {
        if (child->isVisible() && !child->isWindow() && !qobject_cast<QSizeGrip*>(child)) found.append(child);
    }
    return found;
}

// ---- places ---------------------------------------------------------------------------------------------------------

/// Where a widget is drawn and clicked, in its parent.
QRegion placeOf(const QWidget& widget)
{
    return widget.mask().isEmpty() ? QRegion(widget.geometry()) : widget.mask().translated(widget.pos());
}

void lookForOverlaps(const QWidget& parent, Faults& faults)
{
    if (qobject_cast<const QTabWidget*>(&parent)) return; // its tabs hide the frame below them
    QList<QWidget*> children = visibleChildren(parent);
    children.removeIf(
        [](const QWidget* child) { return child->testAttribute(Qt::WA_TransparentForMouseEvents); }); // marks
    for (qsizetype i = 0; i < children.size(); ++i) {
        for (qsizetype k = i + 1; k < children.size(); ++k) {
            if (!placeOf(*children[i]).intersects(placeOf(*children[k]))) continue;
            faults.insert(nameOf(*children[i]) + " and " + nameOf(*children[k]) + " overlap");
        }
    }
}

void lookOutside(const QWidget& parent, Faults& faults)
{
    for (const QWidget* child : visibleChildren(parent)) {
        if (isLeftOut(parent, *child)) continue;
        if (child->geometry().isEmpty())
            faults.insert(nameOf(*child) + " has no size");
        else if (!parent.rect().contains(child->geometry()))
            faults.insert(nameOf(*child) + " leaves " + nameOf(parent) + ": " + placeText(*child) + " in " +
                          sizeText(parent.size()));
    }
}

// ---- texts ----------------------------------------------------------------------------------------------------------

void needRoom(const QWidget& widget, QSize needed, Faults& faults)
{
    if (needed.width() <= widget.width() && needed.height() <= widget.height()) return;
    faults.insert(nameOf(widget) + " is clipped: " + sizeText(widget.size()) + " for " + sizeText(needed));
}

QSize roomFor(const QLabel& label)
{
    if (dynamic_cast<const ElidedLabel*>(&label)) return {0, label.fontMetrics().height()}; // cut by intention
    if (label.wordWrap()) return {0, label.heightForWidth(label.width())};
    return label.text().isEmpty() ? QSize() : label.minimumSizeHint();
}

QSize roomFor(const QAbstractButton& button)
{
    const bool hasIndicator = qobject_cast<const QCheckBox*>(&button) || qobject_cast<const QRadioButton*>(&button);
    if (hasIndicator) return button.sizeHint();
    constexpr QSize frame(6, 4);
    if (dynamic_cast<const KeyButton*>(&button)) // makes its letters as narrow as the key
        return {0, button.fontMetrics().height() + frame.height()};
    const auto* tool = qobject_cast<const QToolButton*>(&button);
    const bool isPicture = tool != nullptr && tool->toolButtonStyle() == Qt::ToolButtonIconOnly &&
                           (!tool->icon().isNull() || tool->arrowType() != Qt::NoArrow);
    return isPicture || button.text().isEmpty()
               ? QSize()
               : button.fontMetrics().size(Qt::TextShowMnemonic, button.text()) + frame;
}

QSize roomFor(const QGroupBox& box) { return box.fontMetrics().size(Qt::TextShowMnemonic, box.title()); }

void lookAtTabs(const QTabBar& bar, Faults& faults)
{
    for (int tab = 0; tab < bar.count(); ++tab) {
        const QRect place = bar.tabRect(tab);
        const int needed = bar.fontMetrics().size(Qt::TextShowMnemonic, bar.tabText(tab)).width();
        if (!bar.isTabVisible(tab) || (needed <= place.width() && bar.rect().contains(place))) continue;
        faults.insert("the tab \"" + fromQt(bar.tabText(tab)) + "\" has no room");
    }
}

void lookAtMenus(const QMenuBar& bar, Faults& faults)
{
    for (QAction* menu : bar.actions()) {
        const QRect place = bar.actionGeometry(menu);
        if (!menu->isVisible() || (!place.isEmpty() && bar.rect().contains(place))) continue;
        faults.insert("the menu \"" + fromQt(menu->text()) + "\" has no room");
    }
}

void lookAtText(const QWidget& widget, Faults& faults)
{
    if (const auto* label = qobject_cast<const QLabel*>(&widget)) return needRoom(widget, roomFor(*label), faults);
    if (const auto* button = qobject_cast<const QAbstractButton*>(&widget))
        return needRoom(widget, roomFor(*button), faults);
    if (const auto* box = qobject_cast<const QGroupBox*>(&widget)) return needRoom(widget, roomFor(*box), faults);
    if (const auto* tabs = qobject_cast<const QTabBar*>(&widget)) return lookAtTabs(*tabs, faults);
    if (const auto* menus = qobject_cast<const QMenuBar*>(&widget)) return lookAtMenus(*menus, faults);
    const bool isField = qobject_cast<const QLineEdit*>(&widget) || qobject_cast<const QComboBox*>(&widget) ||
                         qobject_cast<const QAbstractSpinBox*>(&widget);
    if (isField) needRoom(widget, {0, widget.minimumSizeHint().height()}, faults);
}

void look(const QWidget& widget, Faults& faults);

/// What a page holds may be below what is seen of it, but not beside it.
void lookAtPage(const QScrollArea& area, Faults& faults)
{
    const QWidget& page = *area.widget();
    if (page.width() > area.viewport()->width()) faults.insert(nameOf(page) + " scrolls sideways");
    look(page, faults);
}

void look(const QWidget& widget, Faults& faults)
{
    lookAtText(widget, faults);
    const auto* area = qobject_cast<const QScrollArea*>(&widget);
    if (area != nullptr && area->widget() != nullptr) return lookAtPage(*area, faults);
    if (arrangesItself(widget)) return;
    lookOutside(widget, faults);
    lookForOverlaps(widget, faults);
    for (const QWidget* child : visibleChildren(widget)) look(*child, faults);
}

} // namespace

std::set<std::string> layoutFaults(const QWidget& window)
{
    Faults faults;
    look(window, faults);
    return faults;
}

} // namespace tarvex
