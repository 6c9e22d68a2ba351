#include "desktop/line_box.h"

#include <QFocusEvent>
#include <QRegularExpression>
#include <QTimer>
#include <QValidator>

#include <algorithm>

namespace tarvex {

namespace {

/// Cuts a text at its first line break; anything else is right.
class FirstLine final : public QValidator {
public:
    using QValidator::QValidator;

    State validate(QString& text, int& caret) const override
    {
        static const QRegularExpression lineBreak(QStringLiteral("[\\r\\n\\x{2028}\\x{2029}]"));
        const qsizetype end = text.indexOf(lineBreak);
        if (end >= 0) text.truncate(end);
        caret = std::min(caret, static_cast<int>(text.size()));
        return Acceptable;
    }
};

/// The box's own menu, or the window's: the user is still in the box.
bool isMenu(const QFocusEvent& event)
{
    return event.reason() == Qt::PopupFocusReason || event.reason() == Qt::MenuBarFocusReason;
}

} // namespace

QValidator* firstLineOnly(QObject* parent) { return new FirstLine(parent); }

LineBox::LineBox(TextBox& state, const QString& name, Bindings& bindings) : m_state(state)
{
    setObjectName(name);
    setValidator(firstLineOnly(this));
    bindings.textBox(state, *this);
}

void LineBox::focusInEvent(QFocusEvent* event)
{
    QLineEdit::focusInEvent(event);
    if (isMenu(*event)) return;
    // A click gives the keyboard first and puts the caret then.
    QTimer::singleShot(0, this, [this] {
        if (m_state.GotFocus) m_state.GotFocus();
    });
}

void LineBox::focusOutEvent(QFocusEvent* event)
{
    QLineEdit::focusOutEvent(event);
    if (!isMenu(*event) && m_state.LostFocus) m_state.LostFocus();
}

} // namespace tarvex
