#include "user_acts.h"

#include "window_walk.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QContextMenuEvent>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QRadioButton>
#include <QShortcut>
#include <QSlider>
#include <QSpinBox>
#include <QTabBar>
#include <QTest>
#include <QTextEdit>

namespace tarvex {

namespace {

/// Where a user points at: the mark of a tick, a solid place of a shape.
QPoint pointOn(const QWidget& control)
{
    const bool isTick =
        qobject_cast<const QCheckBox*>(&control) != nullptr || qobject_cast<const QRadioButton*>(&control) != nullptr;
    if (isTick) return {8, control.height() / 2};
    const QRegion mask = control.mask();
    const QPoint middle = control.rect().center();
    return mask.isEmpty() || mask.contains(middle) ? middle : mask.begin()->center();
}

UserAct click(QWidget& at, QPoint place)
{
    return {QStringLiteral("click"), [&at, place] { QTest::mouseClick(&at, Qt::LeftButton, {}, place); }};
}

UserAct key(QWidget& control, const char* name, Qt::Key code, Qt::KeyboardModifiers modifiers = {})
{
    return {QLatin1String(name), [&control, code, modifiers] {
                control.setFocus();
                QTest::keyClick(&control, code, modifiers);
            }};
}

UserAct type(QWidget& control, const char* text)
{
    return {QStringLiteral("type ") + QLatin1String(text), [&control, text] {
                control.setFocus();
                QTest::keyClicks(&control, QLatin1String(text));
            }};
}

UserAct menu(QWidget& at, QPoint place)
{
    return {QStringLiteral("menu"), [&at, place] {
                QContextMenuEvent event(QContextMenuEvent::Mouse, place, at.mapToGlobal(place));
                QApplication::sendEvent(&at, &event);
            }};
}

UserAct hover(QWidget& control)
{
    return {QStringLiteral("hover"), [&control] {
                const QPointF place = pointOn(control);
                QEnterEvent enter(place, place, control.mapToGlobal(place));
                QApplication::sendEvent(&control, &enter);
                QHoverEvent over(QEvent::HoverEnter, place, control.mapToGlobal(place), QPointF(-1, -1));
                QApplication::sendEvent(&control, &over);
            }};
}

UserAct leave(QWidget& control)
{
    return {QStringLiteral("leave"), [&control] {
                QEvent leave(QEvent::Leave);
                QApplication::sendEvent(&control, &leave);
                const QPointF outside(-1, -1);
                QHoverEvent over(QEvent::HoverLeave, outside, control.mapToGlobal(outside), pointOn(control));
                QApplication::sendEvent(&control, &over);
            }};
}

std::vector<UserAct> actsOnButton(QAbstractButton& button)
{
    std::vector<UserAct> acts{click(button, pointOn(button))};
    if (button.focusPolicy() != Qt::NoFocus) acts.push_back(key(button, "Space", Qt::Key_Space));
    if (className(button).starts_with("tarvex::")) {
        acts.push_back(key(button, "Right", Qt::Key_Right));
        acts.push_back(menu(button, pointOn(button)));
        acts.push_back(hover(button));
        acts.push_back(leave(button));
    }
    return acts;
}

std::vector<UserAct> actsOnList(QAbstractItemView& view)
{
    const QModelIndex first = view.model() != nullptr ? view.model()->index(0, 0, view.rootIndex()) : QModelIndex();
    QWidget& inside = *view.viewport();
    std::vector<UserAct> acts{key(view, "Down", Qt::Key_Down), key(view, "Up", Qt::Key_Up)};
    if (first.isValid()) {
        const QPoint place(view.visualRect(first).left() + 4, view.visualRect(first).center().y());
        acts.push_back(click(inside, place));
        acts.push_back({QStringLiteral("double click"), [&inside, place] {
                            QTest::mouseClick(&inside, Qt::LeftButton, {}, place);
                            QTest::mouseDClick(&inside, Qt::LeftButton, {}, place);
                        }});
        acts.push_back(menu(inside, place));
    }
    acts.push_back(key(view, "Space", Qt::Key_Space));
    acts.push_back(key(view, "Delete", Qt::Key_Delete));
    acts.push_back(key(view, "End", Qt::Key_End)); // where another row may not be changed
    acts.push_back(key(view, "Return at the end", Qt::Key_Return));
    acts.push_back(key(view, "Home", Qt::Key_Home));
    acts.push_back(key(view, "Return", Qt::Key_Return));
    return acts;
}

std::vector<UserAct> actsOnText(QWidget& text, bool isReadOnly)
{
    std::vector<UserAct> acts;
    auto* area = qobject_cast<QAbstractScrollArea*>(&text);
    if (!isReadOnly) {
        acts.push_back(type(text, "a1"));
        acts.push_back(key(text, "Backspace", Qt::Key_Backspace));
    }
    acts.push_back(key(text, "Shift+Home", Qt::Key_Home, Qt::ShiftModifier));
    acts.push_back(menu(area != nullptr ? *area->viewport() : text, {4, 4}));
    acts.push_back(key(text, "Return", Qt::Key_Return));
    return acts;
}

} // namespace

bool canBeOperated(const QWidget& control)
{
    const bool isPiece = control.objectName().startsWith(QStringLiteral("qt_")) || control.inherits("QMenu") ||
                         control.inherits("QMenuBar") || control.inherits("QHeaderView") ||
                         qobject_cast<const QComboBox*>(control.parentWidget()) != nullptr ||
                         qobject_cast<const QAbstractSpinBox*>(control.parentWidget()) != nullptr ||
                         qobject_cast<const QLineEdit*>(control.parentWidget()) != nullptr ||
                         qobject_cast<const QTabBar*>(control.parentWidget()) != nullptr;
    return control.isVisible() && control.isEnabled() && !isPiece && !control.isWindow();
}

std::vector<UserAct> actsOn(QWidget& control)
{
    if (auto* button = qobject_cast<QAbstractButton*>(&control)) return actsOnButton(*button);
    if (auto* view = qobject_cast<QAbstractItemView*>(&control)) return actsOnList(*view);
    if (auto* line = qobject_cast<QLineEdit*>(&control)) return actsOnText(*line, line->isReadOnly());
    if (auto* text = qobject_cast<QPlainTextEdit*>(&control)) return actsOnText(*text, text->isReadOnly());
    if (auto* text = qobject_cast<QTextEdit*>(&control)) return actsOnText(*text, text->isReadOnly());
    if (auto* box = qobject_cast<QComboBox*>(&control)) {
        std::vector<UserAct> acts{key(control, "Down", Qt::Key_Down), key(control, "Down again", Qt::Key_Down),
                                  key(control, "Up", Qt::Key_Up)};
        if (box->isEditable()) acts.push_back(type(control, "a1"));
        acts.push_back(key(control, "Return", Qt::Key_Return));
        return acts;
    }
    if (qobject_cast<QAbstractSlider*>(&control) != nullptr && qobject_cast<QSlider*>(&control) == nullptr) return {};
    if (qobject_cast<QSlider*>(&control) != nullptr || qobject_cast<QAbstractSpinBox*>(&control) != nullptr)
        return {key(control, "Up", Qt::Key_Up), key(control, "Page down", Qt::Key_PageDown)};
    if (auto* tabs = qobject_cast<QTabBar*>(&control))
        return tabs->focusPolicy() == Qt::NoFocus ? std::vector<UserAct>()
                                                  : std::vector<UserAct>{key(control, "Right", Qt::Key_Right)};
    const bool isOurs = className(control).starts_with("tarvex::") &&
                        control.findChildren<QWidget*>(Qt::FindDirectChildrenOnly).isEmpty();
    if (!isOurs && control.focusPolicy() == Qt::NoFocus) return {};
    std::vector<UserAct> acts;
    if (isOurs) {
        acts = {hover(control), click(control, control.rect().center()), menu(control, control.rect().center()),
                leave(control)};
    }
    if (control.focusPolicy() != Qt::NoFocus)
        for (const auto& [name, code] : {std::pair("Right", Qt::Key_Right), {"Down", Qt::Key_Down}})
            acts.push_back(key(control, name, code));
    return acts;
}

std::vector<UserAct> actsOnWindow(QWidget& window)
{
    std::vector<UserAct> acts;
    for (QShortcut* shortcut : window.findChildren<QShortcut*>()) {
        const QString name = QStringLiteral("shortcut ") + shortcut->key().toString(QKeySequence::PortableText);
        acts.push_back({name, [shortcut] {
                            if (shortcut->isEnabled()) emit shortcut->activated();
                        }});
    }
    for (QAction* action : window.findChildren<QAction*>()) {
        if (action->objectName().isEmpty() || action->menu() != nullptr || action->isSeparator()) continue;
        acts.push_back({QStringLiteral("command ") + action->objectName(), [action] { action->trigger(); }});
    }
    acts.push_back({QStringLiteral("F1"), [&window] { QTest::keyClick(&window, Qt::Key_F1); }});
    acts.push_back({QStringLiteral("Return"), [&window] { QTest::keyClick(&window, Qt::Key_Return); }});
    acts.push_back({QStringLiteral("Escape"), [&window] { QTest::keyClick(&window, Qt::Key_Escape); }});
    return acts;
}

} // namespace tarvex
