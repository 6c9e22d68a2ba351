#include "desktop/documents/find/find_and_replace_view.h"

#include <QCheckBox>
#include <QComboBox>
#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTabWidget>

namespace tarvex {

namespace {

constexpr int longestText = 32767;
constexpr int charactersShown = 28;

/// A page with its fields on the left and its buttons in a column on the right.
QWidget* pageOf(QLayout* fields, std::initializer_list<QPushButton*> buttons)
{
    auto* page = new QWidget;
    auto* row = new QHBoxLayout(page);
    row->addLayout(fields, 1);
    auto* column = new QVBoxLayout;
    for (QPushButton* button : buttons) column->addWidget(button);
    column->addStretch();
    row->addLayout(column);
    return page;
}

} // namespace

FindAndReplaceView::FindAndReplaceView(FindAndReplace& window, QWidget* parent)
    : ToolFormWindow(window.form, parent, Qt::Dialog), m_window(window), m_tabs(new QTabWidget(this))
{
    m_tabs->setObjectName(QStringLiteral("SSTab1"));
    for (QWidget* page : {findTabPage(), replaceTabPage(), lineTabPage()}) m_tabs->addTab(page, QString());
    m_bindings.tabs(window.SSTab1, *m_tabs);
    constexpr char tabKeys[] = {'d', 'p', 'o'}; // letters that none of the pages uses
    for (int tab = 0; tab < m_tabs->count(); ++tab) {
        m_bindings.bind(window.SSTab1.Tabs(tab + 1).Caption, [this, tab, key = tabKeys[tab]](const std::string& text) {
            m_tabs->setTabText(tab, withAccessKey(toQt(text), key));
        });
    }
    m_bindings.bind(window.SSTab1.SelectedItem, [this](int tab) { showDefaultButton(tab); });

    auto* below = new QHBoxLayout;
    below->addStretch();
    below->addWidget(button(window.Command10, "Command10", 'H'));
    auto* column = new QVBoxLayout(this);
    column->addWidget(m_tabs, 1);
    column->addLayout(below);
    moveBesideText();
}

/// Over the right side of the text at first, where lines of a controller file seldom reach.
void FindAndReplaceView::moveBesideText()
{
    constexpr QPoint off(-30, 110);
    const QRect frame = parentWidget()->frameGeometry();
    move(frame.topRight() + off - QPoint(sizeHint().width(), 0));
}

// ---- pages ----------------------------------------------------------------------------------------------------------

QWidget* FindAndReplaceView::findTabPage()
{
    const FindPage page = findPage(m_window);
    auto* grid = new QGridLayout;
    addText(*grid, 0, "&Text to find:", page.text, "ComboTextFind");
    grid->addWidget(fileChoice(page, "OptionJoystickF", "OptionMacroF"), 1, 1);
    grid->addWidget(options(page, "MatchCaseF", "WholeWordF"), 2, 1);
    grid->setRowStretch(3, 1);
    grid->addWidget(checkBox(m_window.Check6, "Check6", 'K'), 4, 1);
    return pageOf(grid, {button(page.find, "Command1", 'F'), button(m_window.Command2, "Command2", 'C')});
}

QWidget* FindAndReplaceView::replaceTabPage()
{
    const FindPage page = replacePage(m_window);
    auto* grid = new QGridLayout;
    addText(*grid, 0, "Fi&nd what:", page.text, "ComboTextReplaceFind");
    addText(*grid, 1, "Replace w&ith:", m_window.ComboTextReplaceWith, "ComboTextReplaceWith");
    grid->addWidget(fileChoice(page, "OptionJoystickR", "OptionMacroR"), 2, 1);
    grid->addWidget(options(page, "MatchCaseR", "WholeWordR"), 3, 1);
    grid->setRowStretch(4, 1);
    grid->addWidget(checkBox(m_window.Check7, "Check7", 'K'), 5, 1);
    return pageOf(grid, {button(page.find, "Command3", 'F'), button(m_window.Command5, "Command5", 'R'),
                         button(m_window.Command6, "Command6", 'A'), button(m_window.Command4, "Command4", 'C')});
}

QWidget* FindAndReplaceView::lineTabPage()
{
    auto* line = new QLineEdit;
    line->setObjectName(QStringLiteral("LineToFind"));
    line->installEventFilter(this);
    auto* label = new QLabel(QStringLiteral("&Line number:"));
    label->setBuddy(line);
    m_bindings.textBox(m_window.LineToFind, *line);
    auto* grid = new QGridLayout;
    grid->addWidget(label, 0, 0);
    grid->addWidget(line, 0, 1);
    grid->setRowStretch(1, 1);
    grid->addWidget(checkBox(m_window.Check8, "Check8", 'K'), 2, 1);
    return pageOf(grid, {button(m_window.Command7, "Command7", 'G'), button(m_window.Command8, "Command8", 'C')});
}

// ---- pieces ---------------------------------------------------------------------------------------------------------

/// A line to write in, with the history behind its arrow.
void FindAndReplaceView::addText(QGridLayout& grid, int row, const char* label, ComboBox& state, const char* name)
{
    auto* combo = new QComboBox;
    combo->setObjectName(QLatin1String(name));
    combo->setEditable(true);
    combo->setInsertPolicy(QComboBox::NoInsert);
    combo->setCompleter(nullptr); // what is sought is what was written, in its case
    combo->lineEdit()->setMaxLength(longestText);
    combo->setMinimumContentsLength(charactersShown);
    combo->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    combo->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    auto* text = new QLabel(QLatin1String(label));
    text->setBuddy(combo);
    m_bindings.comboBox(state, *combo);
    grid.addWidget(text, row, 0);
    grid.addWidget(combo, row, 1);
}

QWidget* FindAndReplaceView::fileChoice(const FindPage& page, const char* joystickName, const char* macroName)
{
    auto* group = new QWidget; // only the choices of one page exclude each other
    auto* row = new QHBoxLayout(group);
    row->setContentsMargins(0, 0, 0, 0);
    struct Choice {
        OptionButton& state;
        const char* name;
        char accessKey;
    };
    for (const Choice& choice : {Choice{page.joystick, joystickName, 'J'}, Choice{page.macro, macroName, 'M'}}) {
        auto* view = new QRadioButton;
        view->setObjectName(QLatin1String(choice.name));
        m_bindings.optionButton(choice.state, *view);
        showAccessKey(choice.state.Caption, *view, choice.accessKey);
        row->addWidget(view);
    }
    row->addStretch();
    return group;
}

QWidget* FindAndReplaceView::options(const FindPage& page, const char* caseName, const char* wordName)
{
    auto* group = new QWidget;
    auto* column = new QVBoxLayout(group);
    column->setContentsMargins(0, 0, 0, 0);
    column->addWidget(checkBox(page.matchCase, caseName, 's'));
    column->addWidget(checkBox(page.wholeWord, wordName, 'w'));
    return group;
}

QPushButton* FindAndReplaceView::button(Button& state, const char* name, char accessKey)
{
    auto* view = new QPushButton(this);
    view->setObjectName(QLatin1String(name));
    m_bindings.button(state, *view);
    showAccessKey(state.Caption, *view, accessKey);
    return view;
}

QWidget* FindAndReplaceView::checkBox(CheckBox& state, const char* name, char accessKey)
{
    auto* view = new QCheckBox(this);
    view->setObjectName(QLatin1String(name));
    m_bindings.checkBox(state, *view);
    showAccessKey(state.Caption, *view, accessKey);
    return view;
}

/// The logic's captions are compared with; their access keys are only for the eye and the keyboard.
void FindAndReplaceView::showAccessKey(Property<std::string>& caption, QAbstractButton& view, char key)
{
    m_bindings.bind(caption, [&view, key](const std::string& text) { view.setText(withAccessKey(toQt(text), key)); });
}

/// The button that Enter presses while any control of the page has the keyboard.
void FindAndReplaceView::showDefaultButton(int tab)
{
    constexpr const char* names[] = {"Command1", "Command3", "Command7"};
    findChild<QPushButton*>(QLatin1String(names[tab - 1]))->setDefault(true);
}

bool FindAndReplaceView::eventFilter(QObject* watched, QEvent* event)
{
    // Later, because a click that brings the keyboard sets the caret after it.
    if (event->type() == QEvent::FocusIn)
        QMetaObject::invokeMethod(
            this, [this] { m_window.LineToFind.GotFocus(); }, Qt::QueuedConnection);
    return ToolFormWindow::eventFilter(watched, event);
}

} // namespace tarvex
