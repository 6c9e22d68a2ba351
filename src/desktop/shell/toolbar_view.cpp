#include "desktop/shell/toolbar_view.h"

#include "desktop/icon_theme.h"

#include <QEvent>
#include <QToolButton>

namespace tarvex {

namespace {

constexpr int openSlot = 2;
constexpr int saveSlot = 3;
constexpr int iconPixels = 22;

} // namespace

/// Slots in their order; what stands between two numbers that don't follow each other is a separator. A slot whose item
/// isn't told yet is shown when the bar's button has a handler.
struct ToolbarView::Slot {
    int number;
    const char* icon;
    MenuItem Menus::*joystick = nullptr; ///< while tab 1 is selected
    MenuItem Menus::*macro = nullptr;    ///< while tab 2 is; none: the same
    const char* name = nullptr;          ///< of a slot without an item, for screen readers
};

const ToolbarView::Slot ToolbarView::table[] = {
    {1, "file-new", &Menus::mnuFileNewJoystick, &Menus::mnuFileNewMacro},
    {2, "file-open", &Menus::mnuFileJoystickLoad, &Menus::MnuFileMacroLoad},
    {3, "file-save", &Menus::mnuFileSave},
    {5, "print", &Menus::mnuFilePrintJoystick, &Menus::mnuFilePrintMacro},
    {7, "cut", &Menus::mnuEditCut},
    {8, "copy", &Menus::mnuEditCopy},
    {9, "paste", &Menus::mnuEditPaste},
    {11, "undo", &Menus::mnuEditUndo},
    {12, "redo", &Menus::mnuEditRedo},
    {14, "find", &Menus::mnuEditFind},
    {15, "replace", &Menus::mnuEditReplace},
    {16, "goto-line", &Menus::mnuEditGoto},
    {18, "favourite-add", nullptr, nullptr, "Add current files to Favourites"},
    {20, "macros-update", &Menus::mnuEditUpdateMacros},
    {21, "macros-view", &Menus::mnuViewMacros},
    {23, "composer", nullptr, nullptr, "Composer"},
    {24, "template-insert", nullptr, nullptr, "Select a template and insert it"},
    {25, "keyboard", nullptr, nullptr, "Safein"},
    {26, "title-insert", nullptr, nullptr, "Insert Title"},
    {27, "heading-insert", nullptr, nullptr, "Insert Heading"},
    {28, "rem-insert", nullptr, nullptr, "Insert Rem statement"},
    {29, "", nullptr, nullptr, "Colour of text at cursor"},
    {30, "tile-vertically", &Menus::mnuViewTileVertically},
    {32, "colour-apply", &Menus::mnuViewColourJoystick, &Menus::mnuViewColourMacro},
    {33, "highlight-line", &Menus::mnuViewHighlightLine},
    {34, "identify", &Menus::mnuViewIdentify},
    {36, "launcher", nullptr, nullptr, "Launcher"},
    {37, "calibrate", &Menus::mnuAppsProPanel},
    {38, "ctfj", nullptr, nullptr, "Ned Marl's CTFJ"},
    {39, "image-viewer", nullptr, nullptr, "Image viewer"},
    {40, "key-test", &Menus::mnuSendToKeyTest},
    {41, "template-editor", nullptr, nullptr, "Template Editor"},
    {42, "control-centre", nullptr, nullptr, "Thrustmaster Control Centre"},
    {44, "download", &Menus::mnuSendToJoystick},
    {46, "preferences", &Menus::mnuPreferencesEdit},
    {47, "help", nullptr, nullptr, "Help topics"},
};

ToolbarView::ToolbarView(Program& program, QWidget* parent) : QToolBar(parent), m_program(program)
{
    setObjectName(QStringLiteral("Toolbar1"));
    setWindowTitle(QStringLiteral("Toolbar"));
    setMovable(false);
    setContextMenuPolicy(Qt::PreventContextMenu);
    setIconSize({iconPixels, iconPixels});
    int last = 0;
    int lastOfTable = 0;
    for (const Slot& slot : table) {
        const bool newGroup = slot.number > lastOfTable + 1;
        lastOfTable = slot.number;
        if (newGroup && last > 0) last = -last; // a separator is due before the next slot that is shown
        if (!isThere(program, slot)) continue;
        if (last < 0) {
            QAction* separator = addSeparator();
            m_bindings.bind(program.mum.Toolbar1.Buttons(slot.number - 1).Visible,
                            [separator](bool on) { separator->setVisible(on); });
        }
        addSlot(slot);
        last = slot.number;
    }
    m_bindings.bind(program.mum.Toolbar1.Visible, [this](bool on) { setVisible(on); });
}

bool ToolbarView::isThere(Program& program, const Slot& slot)
{
    if (program.mum.Toolbar1.Buttons(slot.number).handler) return true;
    const auto built = [&](MenuItem Menus::*item) { return item != nullptr && (program.menus.*item).handler; };
    return built(slot.joystick) || built(slot.macro);
}

/// The command behind a slot just now.
MenuItem* ToolbarView::itemOf(const Slot& slot) const
{
    Menus& menus = m_program.menus;
    const Settings& settings = m_program.shared.settings;
    if (slot.number == openSlot && settings.OpenBothOnToolbar == 1) return &menus.mnuFileOpen;
    if (slot.number == saveSlot && settings.SaveBothOnToolbar == 1) return &menus.mnuFileSaveBoth;
    const bool macroSelected = m_program.editor.TabStrip1.SelectedItem == 2;
    MenuItem Menus::*item = macroSelected && slot.macro != nullptr ? slot.macro : slot.joystick;
    return item != nullptr ? &(menus.*item) : nullptr;
}

void ToolbarView::addSlot(const Slot& slot)
{
    QAction* action = addAction(QString());
    action->setObjectName(QStringLiteral("Toolbar1_%1").arg(slot.number));
    const auto show = [this, &slot, action] { showSlot(slot, *action); };
    Button& button = m_program.mum.Toolbar1.Buttons(slot.number);
    m_bindings.follow(button.Enabled, show);
    m_bindings.follow(button.Visible, show);
    m_bindings.follow(button.ToolTipText, show);
    m_bindings.follow(m_program.editor.TabStrip1.SelectedItem, show);
    for (MenuItem Menus::*item : {slot.joystick, slot.macro}) {
        if (item == nullptr) continue;
        m_bindings.follow((m_program.menus.*item).Enabled, show);
        m_bindings.follow((m_program.menus.*item).Checked, show);
    }
    connect(action, &QAction::triggered, this, [this, &slot, action] {
        press(slot);
        showSlot(slot, *action);
    });
    widgetForAction(action)->installEventFilter(this);
    show();
}

void ToolbarView::showSlot(const Slot& slot, QAction& action)
{
    const Button& button = m_program.mum.Toolbar1.Buttons(slot.number);
    const MenuItem* item = itemOf(slot);
    const bool both = item == &m_program.menus.mnuFileOpen || item == &m_program.menus.mnuFileSaveBoth;
    action.setIcon(themeIcon(QString::fromLatin1(slot.icon) + (both ? QStringLiteral("-both") : QString())));
    action.setText(item != nullptr ? toQt(item->Caption.get()).remove(u'&').remove(QStringLiteral("..."))
                                   : QString::fromUtf8(slot.name));
    action.setToolTip(toQt(button.ToolTipText.get()));
    action.setVisible(button.Visible);
    action.setEnabled(button.Enabled && (button.handler || (item != nullptr && item->Enabled && item->handler)));
    if (item != nullptr && item->Checked) action.setCheckable(true);
    action.setChecked(item != nullptr && item->Checked);
}

void ToolbarView::press(const Slot& slot)
{
    const Button& button = m_program.mum.Toolbar1.Buttons(slot.number);
    if (button.handler) {
        button.Click();
    } else if (const MenuItem* item = itemOf(slot)) {
        item->Click();
    }
}

/// Qt shows the button's name where there is no tip; the user may have turned the tips off.
bool ToolbarView::eventFilter(QObject* watched, QEvent* event)
{
    return (event->type() == QEvent::ToolTip && m_program.shared.settings.OKtoShowToolTips != 1) ||
           QToolBar::eventFilter(watched, event);
}

} // namespace tarvex
