#include "desktop/templates/template_view.h"

#include "desktop/documents/text/pane_view.h"
#include "desktop/documents/window/colour_swatch.h"
#include "desktop/line_box.h"
#include "desktop/menus/menu_view.h"
#include "desktop/toggle_view.h"
#include "templates/template_edit.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QMenuBar>
#include <QPushButton>
#include <QScreen>
#include <QShortcut>
#include <QToolButton>
#include <QVBoxLayout>

namespace tarvex {

namespace {

constexpr int charactersWide = 84;
constexpr int linesHigh = 32;

void addShortcut(const QKeySequence& keys, QWidget& widget, MenuItem& command)
{
    auto* shortcut = new QShortcut(keys, &widget, [&command] { command.Click(); });
    shortcut->setContext(Qt::WidgetShortcut);
}

} // namespace

TemplateView::TemplateView(TemplateForm& window, QWidget* parent)
    : ToolFormWindow(window.form, parent), m_window(window), m_pane(new PaneView(window.TemplateText, this))
{
    auto* column = new QVBoxLayout(this);
    auto* menus = new QMenuBar(this);
    fillMenuBar(*menus, window.menuBar(), m_bindings);
    column->setMenuBar(menus);
    column->addLayout(fileRow());
    column->addLayout(toolRow());
    column->addWidget(m_pane, 1);
    column->addWidget(findRow());
    addPane();
    m_pane->setFocus();
}

QSize TemplateView::sizeHint() const
{
    const QFontMetrics metrics = fontMetrics();
    return QSize(charactersWide * metrics.averageCharWidth(), linesHigh * metrics.lineSpacing())
        .boundedTo(screen()->availableSize() * 9 / 10);
}

QLayout* TemplateView::fileRow()
{
    auto* row = new QHBoxLayout;
    auto* name = new LineBox(m_window.Text1, QStringLiteral("Text1"), m_bindings);
    auto* label = new QLabel(QStringLiteral("File&name:"));
    label->setBuddy(name);
    row->addWidget(label);
    row->addWidget(name, 1);
    row->addWidget(button(m_window.Command1[0], "Command1_0"));
    row->addWidget(button(m_window.Command1[1], "Command1_1"));
    row->addWidget(button(m_window.Command1[2], "Command1_2"));
    return row;
}

QLayout* TemplateView::toolRow()
{
    auto* row = new QHBoxLayout;
    row->addWidget(button(m_window.Command2, "Command2"));
    row->addWidget(button(m_window.CmndPrint, "CmndPrint"));
    row->addStretch();
    auto* wrap = new QPushButton(this);
    wrap->setObjectName(QStringLiteral("ToggleButton1"));
    wrap->setAutoDefault(false);
    bindToggle(m_window.ToggleButton1, *wrap, m_bindings);
    row->addWidget(wrap);
    row->addWidget(colourButton());
    return row;
}

/// Return in the box finds the next match, with Shift the one before.
QWidget* TemplateView::findRow()
{
    TemplateFind& find = m_window.Find;
    auto* whole = new QWidget(this);
    whole->setObjectName(QStringLiteral("FindRow"));
    auto* rows = new QGridLayout(whole);
    rows->setContentsMargins({});
    auto* what = new LineBox(find.What, QStringLiteral("FindWhat"), m_bindings);
    auto* label = new QLabel(QStringLiteral("&Look for:"));
    label->setBuddy(what);
    auto* options = new QHBoxLayout;
    options->addWidget(checkBox(find.MatchCase, "FindMatchCase"));
    options->addWidget(checkBox(find.WholeWord, "FindWholeWord"));
    options->addStretch();
    rows->addWidget(label, 0, 0);
    rows->addWidget(what, 0, 1);
    rows->addWidget(button(find.Next, "FindNext"), 0, 2);
    rows->addWidget(button(find.Previous, "FindPrevious"), 0, 3);
    rows->addLayout(options, 1, 1);
    rows->addWidget(button(find.Close, "FindClose"), 1, 3);
    addShortcut(Qt::Key_Return, *what, m_window.mnuFindNext);
    addShortcut(QKeyCombination(Qt::ShiftModifier, Qt::Key_Return), *what, m_window.mnuFindPrevious);
    m_bindings.bind(find.Visible, [whole](bool on) { whole->setVisible(on); });
    return whole;
}

QCheckBox* TemplateView::checkBox(CheckBox& state, const char* name)
{
    auto* view = new QCheckBox(this);
    view->setObjectName(QLatin1String(name));
    m_bindings.checkBox(state, *view);
    return view;
}

QPushButton* TemplateView::button(Button& state, const char* name)
{
    auto* view = new QPushButton(this);
    view->setObjectName(QLatin1String(name));
    view->setAutoDefault(false);
    m_bindings.button(state, *view);
    return view;
}

QToolButton* TemplateView::colourButton()
{
    auto* picture = new QToolButton(this);
    picture->setObjectName(QStringLiteral("ColourLabel1"));
    picture->setFocusPolicy(Qt::TabFocus);
    picture->setAccessibleName(QStringLiteral("Colour of the selected text"));
    picture->setToolTip(QStringLiteral("Give the selected text another colour"));
    m_bindings.bind(m_window.ColourLabel1,
                    [picture](Colour colour) { picture->setIcon(swatch(toQt(colour), *picture)); });
    connect(picture, &QToolButton::clicked, this, [this, picture] {
        const QPoint below = picture->mapToGlobal(QPoint(0, picture->height()));
        m_window.editor.ColourSelector.form.Left = toTwips(below.x());
        m_window.editor.ColourSelector.form.Top = toTwips(below.y());
        m_window.ColourLabel1_Click();
    });
    return picture;
}

void TemplateView::addPane()
{
    m_pane->setObjectName(QStringLiteral("TemplateText"));
    m_pane->setAccessibleName(QStringLiteral("Template"));
    m_pane->pressKey = [this](std::string_view keys) { return pressKey(keys); };
    m_bindings.bind(m_window.RightMargin, [this](int margin) {
        m_pane->setLineWrapMode(margin == TemplateForm::wrapsAtPane ? QPlainTextEdit::WidgetWidth
                                                                    : QPlainTextEdit::NoWrap);
    });
    m_bindings.follow(m_window.editor.platform.clipboard.changed, [this] { updateEditMenu(m_window); });
    connect(m_pane, &PaneView::paneShown, this, [this] {
        UpdateLabelColours(m_window);
        updateEditMenu(m_window);
    });
    connect(m_pane, &PaneView::popUpWanted, this, [this](bool byKey) { popUpTemplateMenu(m_window, byKey); });
}

/// The text takes its keys before the menus see them, so they are looked up there.
bool TemplateView::pressKey(std::string_view keys)
{
    if (keys.empty()) return false;
    for (const MenuEntry& menu : m_window.menuBar()) {
        for (const MenuEntry& entry : menu.entries) {
            if (entry.keys != keys || !entry.item->handler) continue;
            if (entry.item->Enabled) entry.item->Click();
            return true;
        }
    }
    return false;
}

} // namespace tarvex
