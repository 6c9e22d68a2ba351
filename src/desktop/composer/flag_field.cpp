#include "desktop/composer/flag_field.h"

#include "desktop/line_box.h"
#include "platform/windows1252.h"

#include <QEvent>
#include <QScopedValueRollback>
#include <QValidator>

namespace tarvex {

namespace {

constexpr Colour chosenColour = 0xFFFFFF;
constexpr int longestDefinition = 10'000;

/// As a pane keeps it: each character is one of the code page, so that positions here and there are the same.
QString asKept(const QString& text) { return toQt(utf8FromWindows1252(windows1252FromUtf8(fromQt(text)))); }

} // namespace

FlagField::FlagField(Pane& pane, std::function<void()> focused, QWidget* parent)
    : QLineEdit(parent), m_pane(pane), m_focused(std::move(focused))
{
    setMaxLength(longestDefinition);
    setValidator(firstLineOnly(this));
    showText();
    showColour();
    m_bindings.follow(pane.edited, [this](Pane::Edit) { showText(); });
    m_bindings.follow(pane.selectionChanged, [this] { showSelection(); });
    m_bindings.follow(pane.BackColor, [this] { showColour(); });
    m_bindings.follow(pane.focusWanted, [this] {
        setFocus(Qt::OtherFocusReason);
        deselect();
        showSelection();
    });
    connect(this, &QLineEdit::textEdited, this, &FlagField::takeText);
    connect(this, &QLineEdit::selectionChanged, this, &FlagField::takeSelection);
    connect(this, &QLineEdit::cursorPositionChanged, this, &FlagField::takeSelection);
}

void FlagField::showText()
{
    if (m_following) return;
    const QScopedValueRollback<bool> following(m_following, true);
    setText(toQt(utf8FromWindows1252(m_pane.Text())));
}

void FlagField::showSelection()
{
    if (m_following) return;
    const QScopedValueRollback<bool> following(m_following, true);
    const auto start = static_cast<int>(m_pane.SelStart());
    const auto length = static_cast<int>(m_pane.SelLength());
    if (length > 0)
        setSelection(start, length);
    else
        setCursorPosition(start);
}

/// White stands for what the theme writes on.
void FlagField::showColour()
{
    const bool chosen = m_pane.BackColor == chosenColour;
    QPalette colours;
    if (!chosen && parentWidget() != nullptr)
        colours.setColor(QPalette::Base, parentWidget()->palette().color(QPalette::Window));
    setPalette(colours);
}

void FlagField::takeText()
{
    if (m_following) return;
    {
        const QScopedValueRollback<bool> following(m_following, true);
        if (const QString kept = asKept(text()); kept != text()) {
            const auto caret = static_cast<int>(asKept(text().left(cursorPosition())).size());
            setText(kept);
            setCursorPosition(caret);
        }
        m_pane.setText(windows1252FromUtf8(fromQt(text())));
    }
    takeSelection();
}

void FlagField::takeSelection()
{
    if (m_following) return;
    const QScopedValueRollback<bool> following(m_following, true);
    const bool selected = hasSelectedText();
    m_pane.setSelStart(selected ? selectionStart() : cursorPosition());
    m_pane.setSelLength(selected ? selectionLength() : 0);
}

void FlagField::focusInEvent(QFocusEvent* event)
{
    QLineEdit::focusInEvent(event);
    if (m_focused) m_focused();
}

void FlagField::changeEvent(QEvent* event)
{
    QLineEdit::changeEvent(event);
    if (event->type() == QEvent::StyleChange) showColour();
}

} // namespace tarvex
