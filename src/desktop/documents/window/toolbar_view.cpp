#include "desktop/documents/window/toolbar_view.h"

#include "desktop/documents/window/accessible_toolbar.h"
#include "desktop/documents/window/colour_swatch.h"
#include "desktop/documents/window/toolbar_separator.h"
#include "desktop/icon_theme.h"
#include "desktop/input.h"
#include "documents/window/toolbar.h"

#include <QAction>
#include <QEvent>
#include <QMenu>
#include <QMouseEvent>
#include <QStyleOptionToolBar>
#include <QStylePainter>
#include <QToolButton>

#include <algorithm>

namespace tarvex {

namespace {

constexpr int smallestIcon = 22; // pixels

QString plainCaption(const MenuItem& item)
{
    return toQt(item.Caption.get()).remove(u'&').remove(QStringLiteral("..."));
}

QAccessibleInterface* makeAccessible(const QString& /*className*/, QObject* object)
{
    auto* bar = dynamic_cast<ToolbarView*>(object);
    return bar != nullptr ? new AccessibleToolbar(*bar) : nullptr;
}

} // namespace

ToolbarView::ToolbarView(Editor& editor, QWidget* parent)
    : QWidget(parent), m_editor(editor), m_extension(new QToolButton(this)),
      m_layout(new ToolbarLayout(m_extension, this))
{
    ToolBar& bar = editor.mum.Toolbar1;
    QAccessible::installFactory(makeAccessible);
    setObjectName(QStringLiteral("Toolbar1"));
    setMouseTracking(true);
    setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    m_layout->setContentsMargins(3, 2, 3, 3);
    for (const ToolbarButton& slot : toolbarButtons()) slot.isSeparator() ? addSeparator(slot.number) : addSlot(slot);
    m_extension->setObjectName(QStringLiteral("Extension"));
    m_extension->setAccessibleName(QStringLiteral("More buttons"));
    m_extension->setAutoRaise(true);
    m_extension->setFocusPolicy(Qt::NoFocus);
    m_extension->setIcon(themeIcon(QStringLiteral("more")));
    connect(m_extension, &QToolButton::clicked, this, [this] { popUpExtension(); });
    scaleIcons();
    m_bindings.follow(bar.refreshWanted, [this] { showAll(); });
    m_bindings.bind(bar.Wrappable, [this](bool on) { m_layout->setWraps(on); });
    m_bindings.bind(bar.Flat, [this](bool on) {
        for (QToolButton* button : findChildren<QToolButton*>()) button->setAutoRaise(on || button == m_extension);
    });
    m_bindings.bind(bar.Visible, [this](bool on) { setVisible(on); });
}

// ---- slots ----------------------------------------------------------------------------------------------------------

void ToolbarView::addSeparator(int number)
{
    auto* separator = new ToolbarSeparator(this);
    separator->setObjectName(QStringLiteral("Toolbar1_%1").arg(number));
    separator->setMouseTracking(true);
    m_layout->addSeparator(separator);
    m_slots[number] = {.action = nullptr, .widget = separator, .icon = {}};
    m_bindings.bind(m_editor.mum.Toolbar1.Buttons(number).Visible, [separator](bool on) { separator->setVisible(on); });
}

void ToolbarView::addSlot(const ToolbarButton& slot)
{
    auto* action = new QAction(this);
    action->setObjectName(QStringLiteral("Toolbar1_%1").arg(slot.number));
    QToolButton* button = makeButton(*action);
    m_layout->addWidget(button);
    m_slots[slot.number] = {.action = action, .widget = button, .icon = {}};
    connect(action, &QAction::triggered, this, [this, &slot] {
        press(slot);
        showSlot(slot); // a click ticks a button that isn't for ticking
    });
    if (slot.number == toolbarButton::picture) {
        button->setObjectName(QStringLiteral("Picture1"));
        action->setText(QStringLiteral("Colour of text at cursor"));
        m_bindings.follow(m_editor.mum.Picture1PlaceWanted, [this] { reportPicture(); });
        m_bindings.follow(m_editor.mum.Picture1, [this, &slot] { showPicture(slot); });
    }
    followSlot(slot, *action);
}

QToolButton* ToolbarView::makeButton(QAction& action)
{
    auto* button = new QToolButton(this);
    button->setDefaultAction(&action);
    button->setToolButtonStyle(Qt::ToolButtonIconOnly);
    button->setFocusPolicy(Qt::NoFocus); // the keyboard stays with the pane
    button->setMouseTracking(true);
    button->installEventFilter(this);
    return button;
}

void ToolbarView::followSlot(const ToolbarButton& slot, QAction& action)
{
    const auto show = [this, &slot] { showSlot(slot); };
    ToolBar::Slot& state = m_editor.mum.Toolbar1.Buttons(slot.number);
    m_bindings.follow(state.Enabled, show);
    m_bindings.bind(state.ToolTipText, [&action](const std::string& tip) { action.setToolTip(toQt(tip)); });
    QWidget* button = m_slots[slot.number].widget;
    m_bindings.bind(state.Visible, [&action, button](bool on) {
        action.setVisible(on);
        button->setVisible(on);
    });
    if (slot.macro != nullptr) m_bindings.follow(m_editor.TabStrip1.SelectedItem, show);
    for (MenuItem Menus::*command : {slot.joystick, slot.macro, slot.both.command}) {
        if (command == nullptr) continue;
        MenuItem& item = m_editor.menus.*command;
        m_bindings.follow(item.Enabled, show);
        m_bindings.follow(item.Checked, show);
        m_bindings.follow(item.Caption, show);
    }
}

void ToolbarView::showSlot(const ToolbarButton& slot)
{
    Shown& shown = m_slots[slot.number];
    QAction& action = *shown.action;
    action.setEnabled(toolbarOffers(m_editor, slot.number));
    if (slot.number == toolbarButton::picture) return showPicture(slot);
    const MenuItem* command = toolbarCommand(m_editor, slot.number);
    const bool both = toolbarMeansBoth(slot, m_editor.shared.settings);
    const QString icon = toQt(slot.icon) + (both ? QStringLiteral("-both") : QString());
    if (icon != shown.icon) action.setIcon(themeIcon(icon));
    shown.icon = icon;
    action.setText(plainCaption(*command));
    if (command->Checked) action.setCheckable(true);
    action.setChecked(command->Checked);
}

void ToolbarView::showPicture(const ToolbarButton& slot)
{
    const auto* button = static_cast<QToolButton*>(m_slots[slot.number].widget);
    m_slots[slot.number].action->setIcon(swatch(toQt(m_editor.mum.Picture1.get()), *button));
}

void ToolbarView::showAll()
{
    for (const ToolbarButton& slot : toolbarButtons()) {
        if (!slot.isSeparator()) showSlot(slot);
    }
}

/// With the font, so that the bar stays in proportion.
void ToolbarView::scaleIcons()
{
    const int size = std::max(smallestIcon, fontMetrics().height() + 4);
    for (QToolButton* button : findChildren<QToolButton*>()) button->setIconSize({size, size});
    m_extension->setIconSize({size / 2, size / 2});
    m_extension->setFixedWidth(size);
    showAll();
    m_layout->invalidate();
}

// ---- what the user does ---------------------------------------------------------------------------------------------

void ToolbarView::press(const ToolbarButton& slot)
{
    if (slot.number == toolbarButton::picture) {
        Picture1_Click(m_editor);
    } else {
        Toolbar1_ButtonClick(m_editor, slot.number);
    }
}

/// While the picture has no room, its place is that of the menu where it was chosen.
void ToolbarView::reportPicture()
{
    const QWidget* picture = m_slots[toolbarButton::picture].widget;
    const QWidget* seen = m_layout->isLeftOut(picture) ? m_extension : picture;
    const QPoint corner = seen->mapToGlobal(QPoint(0, 0));
    m_editor.mum.Picture1Place = {corner.x(), corner.y(), seen->width(), seen->height()};
}

void ToolbarView::reportPlaces()
{
    for (const auto& [number, shown] : m_slots) {
        const QRect place = shown.widget->isVisible() ? shown.widget->geometry() : QRect();
        m_editor.mum.Toolbar1.Buttons(number).Place = {place.x(), place.y(), place.width(), place.height()};
    }
}

void ToolbarView::mouseMoveEvent(QMouseEvent* event) { hover(*event, event->position()); }

/// `at` is a point of the bar.
void ToolbarView::hover(const QMouseEvent& event, QPointF at)
{
    if (childAt(at.toPoint()) == m_slots[toolbarButton::picture].widget) return Picture1_MouseMove(m_editor);
    reportPlaces();
    Toolbar1_MouseMove(m_editor, toLogic(event.buttons()), toLogic(event.modifiers()), static_cast<float>(at.x()),
                       static_cast<float>(at.y()));
}

/// A disabled button keeps the mouse to itself. And Qt shows the command's name where there is no tip, though the user
/// may have turned the tips off.
bool ToolbarView::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::MouseMove) {
        const auto& move = *static_cast<QMouseEvent*>(event);
        hover(move, static_cast<QWidget*>(watched)->mapToParent(move.position()));
    }
    if (event->type() == QEvent::ToolTip) {
        const bool off = m_editor.shared.settings.OKtoShowToolTips != 1;
        for (const auto& [number, shown] : m_slots) {
            if (shown.widget != watched) continue;
            return off || m_editor.mum.Toolbar1.Buttons(number).ToolTipText.get().empty();
        }
    }
    return QWidget::eventFilter(watched, event);
}

/// A menu of the slots that have no room.
void ToolbarView::popUpExtension()
{
    auto* menu = new QMenu(m_extension);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    bool gap = false;
    for (const auto& [number, shown] : m_slots) {
        gap = gap || shown.action == nullptr;
        if (shown.action == nullptr || !m_layout->isLeftOut(shown.widget)) continue;
        if (gap && !menu->isEmpty()) menu->addSeparator();
        gap = false;
        menu->addAction(shown.action);
    }
    menu->popup(m_extension->mapToGlobal(QPoint(0, m_extension->height())));
}

// ---- look -----------------------------------------------------------------------------------------------------------

void ToolbarView::paintEvent(QPaintEvent*)
{
    QStylePainter painter(this);
    QStyleOptionToolBar option;
    option.initFrom(this);
    option.state |= QStyle::State_Horizontal;
    option.toolBarArea = Qt::TopToolBarArea;
    painter.drawControl(QStyle::CE_ToolBar, option);
}

void ToolbarView::changeEvent(QEvent* event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange) scaleIcons();
    if (event->type() == QEvent::PaletteChange) showAll();
}

} // namespace tarvex
