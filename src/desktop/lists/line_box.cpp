#include "desktop/lists/line_box.h"

#include <QFocusEvent>
#include <QRegularExpression>
#include <QTimer>

namespace tarvex {

LineBox::LineBox(TextBox& state, const QString& name, Bindings& bindings) : m_state(state)
{
    setObjectName(name);
    bindings.textBox(state, *this);
    connect(this, &QLineEdit::textEdited, this, [this](const QString& text) {
        static const QRegularExpression lineBreak(QStringLiteral("[\\r\\n\\x{2028}\\x{2029}]"));
        const qsizetype end = text.indexOf(lineBreak);
        if (end >= 0) setText(text.left(end));
    });
}

void LineBox::focusInEvent(QFocusEvent* event)
{
    QLineEdit::focusInEvent(event);
    if (event->reason() == Qt::PopupFocusReason) return; // back from its own menu
    // A click gives the keyboard first and puts the caret then.
    QTimer::singleShot(0, this, [this] {
        if (m_state.GotFocus) m_state.GotFocus();
    });
}

} // namespace tarvex
