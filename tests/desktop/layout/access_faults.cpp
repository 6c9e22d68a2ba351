#include "access_faults.h"

#include "../access_keys.h"
#include "desktop/text.h"

#include <QAbstractItemView>
#include <QAbstractScrollArea>
#include <QAccessible>
#include <QApplication>
#include <QLineEdit>
#include <QMenu>
#include <QPointer>
#include <QScrollBar>

#include <algorithm>
#include <cmath>
#include <map>
#include <tuple>

namespace tarvex {

namespace {

constexpr double leastContrast = 4.5;

using Faults = std::set<std::string>;

QAccessibleInterface* accessOf(const QWidget& widget)
{
    return QAccessible::queryAccessibleInterface(const_cast<QWidget*>(&widget)); // NOLINT: it only reads
}

/// A combo box gives its choice as its name; what it is for is in its label.
std::string nameOf(const QWidget& widget)
{
    const QAccessibleInterface* access = accessOf(widget);
    if (access == nullptr) return {};
    if (!widget.inherits("QComboBox")) return fromQt(access->text(QAccessible::Name));
    const auto labels = access->relations(QAccessible::Label);
    return fromQt(labels.isEmpty() ? widget.accessibleName() : labels.first().first->text(QAccessible::Name));
}

std::string described(const QWidget& widget)
{
    const std::string name = fromQt(widget.objectName());
    return widget.metaObject()->className() + (name.empty() ? " \"" + nameOf(widget) + '"' : ' ' + name);
}

/// What a user sets or presses: what has such a role, or takes the focus by Tab. The parts that a widget of the toolkit
/// is made of belong to that widget.
bool isControl(const QWidget& widget)
{
    if (widget.inherits("QScrollBar") || widget.inherits("QSizeGrip") || widget.inherits("QHeaderView") ||
        widget.objectName().startsWith("qt_"))
        return false;
    for (const QWidget* above = widget.parentWidget(); above != nullptr; above = above->parentWidget())
        for (const char* kind : {"QComboBox", "QLineEdit", "QAbstractSpinBox", "QTabBar", "QMenuBar", "QHeaderView"})
            if (above->inherits(kind)) return false;
    for (const char* kind : {"QAbstractButton", "QComboBox", "QLineEdit", "QAbstractSpinBox", "QAbstractSlider",
                             "QPlainTextEdit", "QTextEdit", "QAbstractItemView"})
        if (widget.inherits(kind)) return true;
    const bool isGround = widget.inherits("QTabBar") || widget.inherits("QTabWidget") || widget.inherits("QLabel") ||
                          widget.inherits("QGroupBox") || widget.inherits("QScrollArea") || widget.isWindow();
    return !isGround && widget.focusProxy() == nullptr && (widget.focusPolicy() & Qt::TabFocus) != 0;
}

QList<QWidget*> controlsOf(const QWidget& window)
{
    QList<QWidget*> controls;
    for (QWidget* widget : shownIn<QWidget>(window))
        if (isControl(*widget)) controls.append(widget);
    return controls;
}

// ---- names ----------------------------------------------------------------------------------------------------------

/// Everything that a screen reader finds on its way down from the window, but for the entries of lists and texts.
void collect(QAccessibleInterface* access, std::set<const QObject*>& announced)
{
    if (access == nullptr || !announced.insert(access->object()).second) return;
    switch (access->role()) {
    case QAccessible::List:
    case QAccessible::Table:
    case QAccessible::Tree:
    case QAccessible::MenuBar:
        return;
    default:
        for (int i = 0; i < access->childCount(); ++i)
            if (QAccessibleInterface* child = access->child(i); child != nullptr && child->object() != nullptr)
                collect(child, announced);
    }
}

/// The frame with a title, the page or the window that the control is in.
const QWidget* groupOf(const QWidget& widget)
{
    const QWidget* group = widget.parentWidget();
    while (!group->isWindow() && !group->inherits("QGroupBox") && !group->inherits("QScrollArea") &&
           !group->inherits("QStackedWidget") && group->accessibleName().isEmpty())
        group = group->parentWidget();
    return group;
}

void findNames(const QWidget& window, Faults& faults)
{
    std::set<const QObject*> announced;
    collect(accessOf(window), announced);
    std::map<std::tuple<const QWidget*, QAccessible::Role, std::string>, int> group;
    for (const QWidget* widget : controlsOf(window)) {
        if (!announced.contains(widget)) faults.insert(described(*widget) + " isn't announced");
        const std::string name = nameOf(*widget);
        if (name.empty()) faults.insert(described(*widget) + " has no name");
        const QAccessibleInterface* access = accessOf(*widget);
        if (access != nullptr && !name.empty() && ++group[{groupOf(*widget), access->role(), name}] == 2)
            faults.insert(described(*widget) + " is the second \"" + name + '"');
    }
}

// ---- keys -----------------------------------------------------------------------------------------------------------

/// Buttons of a toolbar have their commands in the menus.
bool isInToolbar(const QWidget& widget)
{
    for (const QWidget* above = widget.parentWidget(); above != nullptr; above = above->parentWidget())
        if (const auto* access = accessOf(*above); access != nullptr && access->role() == QAccessible::ToolBar)
            return true;
    return false;
}

bool isReached(const QWidget& widget)
{
    return !widget.isEnabled() || isInToolbar(widget) || (widget.focusPolicy() & Qt::TabFocus) != 0 ||
           (widget.focusProxy() != nullptr && (widget.focusProxy()->focusPolicy() & Qt::TabFocus) != 0);
}

void findKeys(const QMap<QString, QStringList>& keys, Faults& faults)
{
    for (auto key = keys.begin(); key != keys.end(); ++key)
        if (key->size() > 1) faults.insert(fromQt(key.key() + " stands for " + key->join(" | ")));
}

// ---- contrast -------------------------------------------------------------------------------------------------------

double light(int channel)
{
    const double value = channel / 255.0;
    return value <= 0.04045 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
}

double luminance(const QColor& colour)
{
    return 0.2126 * light(colour.red()) + 0.7152 * light(colour.green()) + 0.0722 * light(colour.blue());
}

void compare(const QWidget& widget, QPalette::ColorRole text, QPalette::ColorRole ground, Faults& faults)
{
    const QPalette colours = widget.palette();
    const double found = contrast(colours.color(text), colours.color(ground));
    if (found < leastContrast)
        faults.insert(described(widget) + " has a contrast of " + std::to_string(found).substr(0, 4));
}

void findContrast(const QWidget& widget, Faults& faults)
{
    if (!widget.isEnabled()) return;
    if (const auto* field = qobject_cast<const QLineEdit*>(&widget)) {
        compare(widget, QPalette::Text, QPalette::Base, faults);
        if (!field->placeholderText().isEmpty()) compare(widget, QPalette::PlaceholderText, QPalette::Base, faults);
    } else if (qobject_cast<const QAbstractItemView*>(&widget) != nullptr || widget.inherits("QPlainTextEdit") ||
               widget.inherits("QTextEdit")) {
        compare(widget, QPalette::Text, QPalette::Base, faults);
        compare(widget, QPalette::HighlightedText, QPalette::Highlight, faults);
    } else {
        compare(widget, widget.foregroundRole(), widget.backgroundRole(), faults);
    }
}

} // namespace

double contrast(const QColor& text, const QColor& ground)
{
    const double one = luminance(text) + 0.05;
    const double other = luminance(ground) + 0.05;
    return std::max(one, other) / std::min(one, other);
}

Faults accessFaults(const QWidget& window)
{
    Faults faults;
    findNames(window, faults);
    findKeys(accessKeys(window), faults);
    for (const QWidget* widget : controlsOf(window))
        if (!isReached(*widget)) faults.insert("Tab doesn't reach " + described(*widget));
    for (const QWidget* widget : shownIn<QWidget>(window)) findContrast(*widget, faults);
    return faults;
}

namespace {

/// With some of what is around it: a picture draws the frames of the controls in it.
QImage pictureOf(QWidget& widget)
{
    constexpr int around = 12;
    const QRect place(widget.mapTo(widget.window(), QPoint()), widget.size());
    return widget.window()->grab(place.adjusted(-around, -around, around, around)).toImage();
}

} // namespace

Faults focusFaults(QWidget& window)
{
    Faults faults;
    const QPointer<QWidget> before = window.focusWidget();
    QApplication::setCursorFlashTime(0); // a caret is always there
    QApplication::setActiveWindow(&window);
    window.setAttribute(Qt::WA_KeyboardFocusChange); // as after a Tab: only then the style shows it
    for (QWidget* widget : controlsOf(window)) {
        if (!widget->isEnabled() || (widget->focusPolicy() & Qt::TabFocus) == 0) continue;
        if (QWidget* other = window.focusWidget()) other->clearFocus();
        const QImage without = pictureOf(*widget);
        widget->setFocus(Qt::TabFocusReason);
        if (!widget->hasFocus()) {
            faults.insert(described(*widget) + " doesn't take the focus");
        } else if (pictureOf(*widget) == without) {
            faults.insert(described(*widget) + " doesn't show the focus");
        }
    }
    if (before) before->setFocus();
    return faults;
}

Faults accessFaults(const QMenu& menu)
{
    Faults faults;
    QMap<QString, QStringList> keys;
    for (const QAction* action : menu.actions()) {
        if (!action->isVisible() || action->isSeparator()) continue;
        if (action->text().isEmpty()) faults.insert(fromQt(action->objectName()) + " has no name");
        addKey(keys, action->text());
    }
    findKeys(keys, faults);
    return faults;
}

} // namespace tarvex
