#include "desktop/testers/key_test_view.h"

#include "desktop/menus/menu_view.h"
#include "desktop/platform/virtual_keys.h"
#include "desktop/testers/key_list_view.h"
#include "desktop/testers/lamp.h"
#include "desktop/testers/stick_picture.h"
#include "testers/key_test.h"

#include <QGridLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QMenuBar>
#include <QPushButton>

namespace tarvex {

KeyTestView::KeyTestView(KeyTestForm& window, QWidget* parent) : ToolFormWindow(window.form, parent), m_window(window)
{
    auto* column = new QVBoxLayout(this);
    auto* menus = new QMenuBar(this);
    fillMenuBar(*menus, window.menuBar(), m_bindings);
    column->setMenuBar(menus);
    column->addLayout(lists(), 1);
    column->addLayout(below());
    m_bindings.timer(window.JoystickTimer, *this);
    m_bindings.timer(window.Timer1, *this);
}

QLayout* KeyTestView::lists()
{
    struct Column {
        const char* label;
        ColouredList& list;
        const char* name;
    };
    const Column columns[] = {{"Key down event", m_window.RTFKeysDownText, "RTFKeysDownText"},
                              {"Key up event", m_window.RTFKeysUpText, "RTFKeysUpText"},
                              {"Keys pressed", m_window.RTFKeysText, "RTFKeysText"}};
    auto* grid = new QGridLayout;
    int at = 0;
    for (const Column& column : columns) {
        auto* view = new KeyListView(column.list, column.name, this);
        view->setAccessibleName(QLatin1String(column.label));
        grid->addWidget(new QLabel(QLatin1String(column.label), this), 0, at);
        grid->addWidget(view, 1, at++);
    }
    return grid;
}

QLayout* KeyTestView::below()
{
    auto* row = new QHBoxLayout;
    auto* texts = new QVBoxLayout;
    texts->addLayout(lamps());
    texts->addStretch();
    texts->addLayout(joystickTexts());
    row->addWidget(new StickPicture(m_window, this), 0, Qt::AlignTop);
    row->addLayout(texts, 1);
    return row;
}

QLayout* KeyTestView::lamps()
{
    struct Row {
        ToggleLabel& state;
        const char* name;
    };
    const Row rows[] = {{m_window.LabelSHIFT, "LabelSHIFT"},
                        {m_window.LabelCTRL, "LabelCTRL"},
                        {m_window.LabelALT, "LabelALT"},
                        {m_window.LabelNUMLOCK, "LabelNUMLOCK"}};
    auto* lamps = new QGridLayout;
    int at = 0;
    for (const Row& row : rows)
        lamps->addWidget(new Lamp(row.state, QLatin1String(row.name), m_bindings, this), 0, at++);
    for (int i = 0; i < static_cast<int>(m_window.JoyButtonAnalogue.size()); ++i) {
        auto* lamp = new Lamp(m_window.JoyButtonAnalogue[static_cast<std::size_t>(i)],
                              QStringLiteral("JoyButtonAnalogue_%1").arg(i), m_bindings, this);
        lamp->setAccessibleName(QStringLiteral("Button %1").arg(i + 1));
        lamps->addWidget(lamp, 1, i);
    }
    return lamps;
}

QLayout* KeyTestView::joystickTexts()
{
    auto* column = new QVBoxLayout;
    for (const auto& [label, name] : {std::pair(&m_window.MoreButtons, "MoreButtons"), {&m_window.status, "status"}}) {
        auto* text = new QLabel(this);
        text->setObjectName(QLatin1String(name));
        text->setWordWrap(true);
        m_bindings.bind(label->Caption, [text](const std::string& caption) { text->setText(toQt(caption)); });
        column->addWidget(text);
    }
    auto* exit = new QPushButton(this);
    exit->setObjectName(QStringLiteral("Command1"));
    exit->setAutoDefault(false);
    exit->setFocusPolicy(Qt::NoFocus);
    m_bindings.button(m_window.Command1, *exit);
    column->addWidget(exit, 0, Qt::AlignRight);
    return column;
}

/// Shortcuts among them; a held key comes up only once.
bool KeyTestView::takesKey(const QKeyEvent& event)
{
    if (event.type() == QEvent::KeyPress) {
        Form_KeyDown(m_window, virtualKeyOf(event), heldWith(event));
        if (const int character = characterOf(event); character != 0) Form_KeyPress(m_window, character);
    } else if (event.type() == QEvent::KeyRelease && !event.isAutoRepeat()) {
        Form_KeyUp(m_window, virtualKeyOf(event), heldWith(event));
    }
    return true;
}

void KeyTestView::changeEvent(QEvent* event)
{
    ToolFormWindow::changeEvent(event);
    if (event->type() == QEvent::ActivationChange && !isActiveWindow()) keyboardLost(m_window);
}

} // namespace tarvex
