#include "desktop/safein/safein_view.h"

#include "desktop/icon_theme.h"
#include "desktop/input.h"
#include "desktop/line_box.h"
#include "desktop/menus/menu_view.h"
#include "desktop/pane_colours.h"
#include "desktop/platform/native_keys.h"
#include "desktop/safein/key_pad_view.h"
#include "desktop/screen_room.h"
#include "desktop/toggle_view.h"
#include "safein/key_pad.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMenuBar>
#include <QPushButton>
#include <QTimer>
#include <QValidator>

namespace tarvex {

namespace {

constexpr int longestText = 1'000'000;

/// The pictures of the buttons without a caption, by their place beside the fields.
constexpr char appendIcon[] = "paste";
constexpr char clearIcon[] = "close";

/// As narrow as the caption allows, so that a row of them fits on a small screen.
void makeNarrow(QPushButton& button)
{
    constexpr int sides = 20;
    if (button.text().isEmpty()) return;
    button.setMinimumWidth(button.fontMetrics().horizontalAdvance(button.text()) + sides);
}

} // namespace

SafeinView::SafeinView(RAWform& window, QWidget* parent)
    : ToolFormWindow(window.form, parent), m_window(window), m_pad(new KeyPadView(window, this))
{
    auto* column = new QVBoxLayout(this);
    auto* menus = new QMenuBar(this);
    fillMenuBar(*menus, window.menuBar(), m_bindings);
    column->setMenuBar(menus);
    column->addWidget(m_pad, 1);
    column->addLayout(toggleRow());
    column->addLayout(slashRow());
    column->addLayout(fieldGrid());
    resize(QSize(toPixels(window.form.Width), toPixels(window.form.Height)).boundedTo(screenRoom(*this)));
}

QLayout* SafeinView::toggleRow()
{
    auto* row = new QHBoxLayout;
    row->addWidget(toggle(m_window.ToggleButton1, "ToggleButton1"));
    row->addWidget(toggle(m_window.ToggleButton2, "ToggleButton2"));
    row->addWidget(toggle(m_window.ToggleButton3, "ToggleButton3"));
    row->addWidget(toggle(m_window.ToggleButton4, "ToggleButton4"));
    row->addStretch();
    row->addWidget(toggle(m_window.Capture, "Capture"));
    row->addWidget(button(m_window.Command14, QStringLiteral("Command14")));
    row->addWidget(button(m_window.Command2, QStringLiteral("Command2")));
    return row;
}

QLayout* SafeinView::slashRow()
{
    auto* row = new QHBoxLayout;
    for (std::size_t i = 0; i < m_window.Command3.size(); ++i)
        row->addWidget(button(m_window.Command3[i], QStringLiteral("Command3_%1").arg(i)));
    row->addWidget(button(m_window.Command6, QStringLiteral("Command6")));
    row->addWidget(button(m_window.Command7, QStringLiteral("Command7")));
    row->addStretch();
    return row;
}

QLayout* SafeinView::fieldGrid()
{
    auto* grid = new QGridLayout;
    grid->setColumnStretch(1, 1);
    RAWform& w = m_window;
    addField(*grid, 0, "Thrustmaster synta&x", w.SyntaxText, "SyntaxText", &w.Command5, w.CommandPasteJ[0],
             "CommandPasteJ_0");
    addField(*grid, 1, "RAW &Make ", w.RMakeText, "RMakeText", &w.Command10[0], w.CommandPasteJ[1], "CommandPasteJ_1");
    addField(*grid, 2, "RAW &Break", w.RBreakText, "RBreakText", &w.Command10[1], w.CommandPasteJ[2],
             "CommandPasteJ_2");
    addField(*grid, 3, "RAW &Combined", w.RCombinedText, "RCombinedText", &w.Command10[2], w.CommandPasteJ[3],
             "CommandPasteJ_3");
    addField(*grid, 4, "&Statement text", w.TotalCombinedText, "TotalCombinedText", &w.Command4, w.CommandPasteJ[4],
             "CommandPasteJ_4");
    addRawReader(*grid, 5);
    return grid;
}

void SafeinView::addField(QGridLayout& grid, int row, const char* label, TextBox& state, const char* name,
                          Button* beside, Button& insert, const char* insertName)
{
    QLineEdit* field = lineEdit(state, name);
    auto* text = new QLabel(QLatin1String(label), this);
    text->setBuddy(field);
    field->setValidator(firstLineOnly(field));
    const bool isStatement = &state == &m_window.TotalCombinedText;
    if (isStatement)
        m_bindings.bind(m_window.TotalCombinedBackColor, [this, field](Colour) { showStatementColour(*field); });
    const int rawField = row - 1;
    QPushButton* picture = button(*beside, isStatement ? QStringLiteral("Command4")
                                           : row == 0  ? QStringLiteral("Command5")
                                                       : QStringLiteral("Command10_%1").arg(rawField));
    picture->setIcon(themeIcon(QLatin1String(isStatement ? clearIcon : appendIcon)));
    picture->setAccessibleName(
        isStatement ? QStringLiteral("Clear the statement")
                    : QStringLiteral("Add to the statement: %1").arg(QString(text->text()).remove(u'&')));
    QPushButton* insertButton = button(insert, QLatin1String(insertName));
    insertButton->setAccessibleName(QStringLiteral("Insert: %1").arg(QString(text->text()).remove(u'&').trimmed()));
    connect(field, &QLineEdit::returnPressed, insertButton, [insertButton] { insertButton->click(); });
    grid.addWidget(text, row, 0);
    grid.addWidget(field, row, 1);
    grid.addWidget(picture, row, 2);
    grid.addWidget(insertButton, row, 3);
}

void SafeinView::addRawReader(QGridLayout& grid, int row)
{
    m_rawToRead = lineEdit(m_window.RawToRead, "RawToRead");
    m_rawToRead->setPlaceholderText(QStringLiteral("RAW (#12 #1C #F0 #1C #F0 #12)"));
    auto* label = new QLabel(QStringLiteral("&Read RAW codes"), this);
    label->setBuddy(m_rawToRead);
    auto* keys = new QLabel(this);
    keys->setObjectName(QStringLiteral("RawKeys"));
    keys->setTextFormat(Qt::PlainText);
    keys->setTextInteractionFlags(Qt::TextSelectableByMouse);
    keys->setWordWrap(true);
    keys->setMinimumHeight(2 * keys->fontMetrics().lineSpacing()); // the window keeps its height
    keys->setAlignment(Qt::AlignTop | Qt::AlignLeft);
    m_bindings.bind(m_window.RawKeys.Caption, [keys](const std::string& text) { keys->setText(toQt(text)); });
    grid.addWidget(label, row, 0);
    grid.addWidget(m_rawToRead, row, 1, 1, 3);
    grid.addWidget(keys, row + 1, 1, 1, 3);
}

QLineEdit* SafeinView::lineEdit(TextBox& state, const char* name)
{
    auto* field = new QLineEdit(this);
    field->setObjectName(QLatin1String(name));
    field->setMaxLength(longestText);
    m_bindings.textBox(state, *field);
    if (state.GotFocus) {
        field->installEventFilter(this);
        field->setProperty("selectsOnFocus", true);
    }
    return field;
}

QPushButton* SafeinView::button(Button& state, const QString& name)
{
    auto* view = new QPushButton(this);
    view->setObjectName(name);
    view->setAutoDefault(false); // Return is a matter of the window
    m_bindings.button(state, *view);
    makeNarrow(*view);
    return view;
}

QPushButton* SafeinView::toggle(ToggleLabel& state, const char* name)
{
    auto* view = new QPushButton(this);
    view->setObjectName(QLatin1String(name));
    view->setAutoDefault(false);
    bindToggle(state, *view, m_bindings);
    makeNarrow(*view);
    return view;
}

void SafeinView::showStatementColour(QLineEdit& field)
{
    const PaneColours shown = paneColours(m_window.TotalCombinedBackColor);
    QPalette colours = palette();
    colours.setColor(QPalette::Base, shown.ground);
    colours.setColor(QPalette::Text, shown.readable());
    field.setPalette(colours);
}

// ---- keys -----------------------------------------------------------------------------------------------------------

/// While keys are captured they do nothing else.
bool SafeinView::takesKey(const QKeyEvent& event)
{
    if (!m_window.Capture.isHeld()) return false;
    if (event.type() != QEvent::KeyPress || event.isAutoRepeat()) return true;
    if (event.key() == Qt::Key_Escape && event.modifiers() == Qt::ControlModifier) {
        endCapture(m_window);
        return true;
    }
    const int rightAlt = isThirdSignHeld(event.nativeModifiers()) ? shiftKey::alt : shiftKey::none;
    captureKey(m_window, keyOfNativeCode(event.nativeScanCode()), toLogic(event.modifiers()) | rightAlt);
    return true;
}

/// The field for raw codes to read is edited with the usual keys.
bool SafeinView::keepsKey(const QKeyEvent& event) const
{
    if (focusWidget() != m_rawToRead) return false;
    for (const auto edit : {QKeySequence::Cut, QKeySequence::Copy, QKeySequence::Paste, QKeySequence::SelectAll,
                            QKeySequence::Undo, QKeySequence::Redo})
        if (event.matches(edit)) return true;
    return false;
}

bool SafeinView::eventFilter(QObject* watched, QEvent* event)
{
    // Later, because a click that brings the keyboard sets the caret after it.
    if (event->type() == QEvent::FocusIn) {
        TextBox& field =
            watched->objectName() == QLatin1String("SyntaxText") ? m_window.SyntaxText : m_window.TotalCombinedText;
        QMetaObject::invokeMethod(
            this, [&field] { field.GotFocus(); }, Qt::QueuedConnection);
    }
    return ToolFormWindow::eventFilter(watched, event);
}

/// The layout may have been changed while another window had the keyboard.
void SafeinView::changeEvent(QEvent* event)
{
    ToolFormWindow::changeEvent(event);
    const bool isLook = event->type() == QEvent::ApplicationPaletteChange || event->type() == QEvent::StyleChange;
    if (auto* statement = isLook ? findChild<QLineEdit*>(QStringLiteral("TotalCombinedText")) : nullptr)
        showStatementColour(*statement);
    if (event->type() == QEvent::ActivationChange && isActiveWindow()) {
        raise();
        QTimer::singleShot(0, this, [this] { m_pad->showSigns(readKeyboardSigns()); });
    }
}

} // namespace tarvex
