#include "desktop/generators/text_area.h"

#include <QKeyEvent>
#include <QScrollBar>

namespace tarvex {

namespace {

constexpr int widthInCharacters = 52; // of the block that most of these texts go into

} // namespace

TextArea::TextArea(Pane& pane, const QString& name, int lines) : PaneView(pane), m_lines(lines)
{
    setObjectName(name);
    setTabChangesFocus(true);
    setSizePolicy(QSizePolicy::Expanding, lines > 1 ? QSizePolicy::Expanding : QSizePolicy::Fixed);
}

QSize TextArea::sizeHint() const
{
    const int around = 2 * (frameWidth() + static_cast<int>(document()->documentMargin()));
    const bool hasBar = horizontalScrollBarPolicy() != Qt::ScrollBarAlwaysOff;
    const int bar = hasBar ? horizontalScrollBar()->sizeHint().height() : 0;
    return {fontMetrics().averageCharWidth() * widthInCharacters + around,
            fontMetrics().lineSpacing() * m_lines + bar + around};
}

void TextArea::keyPressEvent(QKeyEvent* event)
{
    if (m_returnIsDialogues && (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter))
        event->ignore();
    else
        PaneView::keyPressEvent(event);
}

} // namespace tarvex
