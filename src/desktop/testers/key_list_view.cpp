#include "desktop/testers/key_list_view.h"

#include <QScrollBar>

namespace tarvex {

namespace {

constexpr int charactersWide = 26;
constexpr int linesHigh = 12;

} // namespace

KeyListView::KeyListView(ColouredList& list, const char* name, QWidget* parent) : QPlainTextEdit(parent), m_list(list)
{
    setObjectName(QLatin1String(name));
    setReadOnly(true);
    setUndoRedoEnabled(false);
    setFocusPolicy(Qt::NoFocus); // the keys are the window's
    setLineWrapMode(QPlainTextEdit::NoWrap);
    setMaximumBlockCount(static_cast<int>(ColouredList::mostLines) + 1); // and the empty one at the end
    m_bindings.bind(list.BackColor, [this](Colour) { showAll(); });
    m_bindings.follow(list.appended, [this](const ColouredList::Line& line) { append(line); });
    m_bindings.follow(list.cleared, [this] { clear(); });
}

QSize KeyListView::sizeHint() const
{
    return {charactersWide * fontMetrics().averageCharWidth(), linesHigh * fontMetrics().lineSpacing()};
}

void KeyListView::changeEvent(QEvent* event)
{
    QPlainTextEdit::changeEvent(event);
    const bool isLook = event->type() == QEvent::ApplicationPaletteChange || event->type() == QEvent::StyleChange;
    if (isLook && paneColours(m_list.BackColor) != m_colours) showAll();
}

void KeyListView::showAll()
{
    m_colours = paneColours(m_list.BackColor);
    QPalette colours = palette();
    colours.setColor(QPalette::Base, m_colours.ground);
    colours.setColor(QPalette::Text, m_colours.text(0));
    setPalette(colours);
    clear();
    for (const ColouredList::Line& line : m_list.lines()) append(line);
}

void KeyListView::append(const ColouredList::Line& line)
{
    QTextCursor end(document());
    end.movePosition(QTextCursor::End);
    QTextCharFormat look;
    look.setForeground(m_colours.text(line.colour));
    end.insertText(toQt(line.text) + u'\n', look);
    verticalScrollBar()->setValue(verticalScrollBar()->maximum());
}

} // namespace tarvex
