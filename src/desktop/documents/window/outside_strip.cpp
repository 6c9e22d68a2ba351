#include "desktop/documents/window/outside_strip.h"

#include "desktop/mixed.h"

#include <QAccessible>
#include <QApplication>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>
#include <QShortcut>

namespace tarvex {

namespace {

constexpr int around = 6; // pixels

} // namespace

OutsideStrip::OutsideStrip(OutsideNotice& notice, const QString& name, QWidget* parent)
    : QFrame(parent), m_notice(notice)
{
    setObjectName(name);
    setAutoFillBackground(true);
    setAccessibleName(QStringLiteral("The %1 file and other programs").arg(toQt(notice.side.kind)));
    auto* rows = new QVBoxLayout(this); // beside another pane there is little room for one long row
    rows->setContentsMargins(around, around, around, around);
    rows->setSizeConstraint(QLayout::SetNoConstraint);
    auto* label = new QLabel(this);
    label->setObjectName(name + QStringLiteral("Text"));
    label->setWordWrap(true);
    label->setTextFormat(Qt::PlainText);
    m_bindings.bind(notice.Text.Caption, [this, label](const std::string& text) {
        label->setText(toQt(text));
        updateGeometry();
    });
    rows->addWidget(label);
    auto* row = new QHBoxLayout;
    addButton(*row, notice.Reload, name + QStringLiteral("Reload"));
    addButton(*row, notice.Keep, name + QStringLiteral("Keep"));
    addButton(*row, notice.Differences, name + QStringLiteral("Differences"));
    row->addStretch(1);
    rows->addLayout(row);
    addShortcut();
    showGround();
}

/// From the text to the buttons; Esc leads back. With two strips the key takes turns.
void OutsideStrip::addShortcut()
{
    auto* shortcut = new QShortcut(QKeySequence(QStringLiteral("Ctrl+Shift+O")), this);
    const auto take = [this] {
        for (auto* button : findChildren<QPushButton*>()) {
            if (button->isVisible()) return button->setFocus(Qt::ShortcutFocusReason);
        }
    };
    connect(shortcut, &QShortcut::activated, this, take);
    connect(shortcut, &QShortcut::activatedAmbiguously, this, take);
}

void OutsideStrip::addButton(QBoxLayout& row, Button& state, const QString& name)
{
    auto* view = new QPushButton(this);
    view->setObjectName(name);
    view->setAutoDefault(false);
    m_bindings.button(state, *view);
    row.addWidget(view);
}

int OutsideStrip::heightForWidth(int width) const { return layout()->heightForWidth(width); }

/// A touch of amber, so that it stands out from the tabs above it and the text below.
void OutsideStrip::showGround()
{
    constexpr QRgb amber = 0xFFFFB300;
    const QColor ground = mixed(QApplication::palette().color(QPalette::Window), QColor(amber), 0.25);
    QPalette colours = palette();
    if (colours.color(QPalette::Window) == ground) return;
    colours.setColor(QPalette::Window, ground);
    setPalette(colours);
}

void OutsideStrip::changeEvent(QEvent* event)
{
    QFrame::changeEvent(event);
    if (event->type() == QEvent::PaletteChange) showGround();
}

/// The keyboard stays in the text; a screen reader announces the strip.
void OutsideStrip::showEvent(QShowEvent* event)
{
    QFrame::showEvent(event);
    QAccessibleEvent alert(this, QAccessible::Alert);
    QAccessible::updateAccessibility(&alert);
}

void OutsideStrip::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Escape) return m_notice.side.pane.SetFocus();
    QFrame::keyPressEvent(event);
}

} // namespace tarvex
