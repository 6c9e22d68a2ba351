#include "desktop/composer/statement_box.h"

#include <QFontDatabase>
#include <QScrollBar>

namespace tarvex {

StatementBox::StatementBox(QWidget* parent) : QPlainTextEdit(parent)
{
    setReadOnly(true);
    setFocusPolicy(Qt::ClickFocus);
    // The columns of a statement stand below each other. The size stays the window's.
    QFont columns;
    columns.setFamilies({QFontDatabase::systemFont(QFontDatabase::FixedFont).family()});
    setFont(columns);
}

void StatementBox::showStatements(const QString& text)
{
    if (text != toPlainText()) setPlainText(text);
}

void StatementBox::showHint(const QString& hint)
{
    if (hint == placeholderText()) return;
    setPlaceholderText(hint);
    viewport()->update(); // which the toolkit forgets when the text was empty before
}

bool StatementBox::scrollByKey(int key)
{
    if (key != Qt::Key_PageUp && key != Qt::Key_PageDown) return false;
    verticalScrollBar()->triggerAction(key == Qt::Key_PageUp ? QAbstractSlider::SliderPageStepSub
                                                             : QAbstractSlider::SliderPageStepAdd);
    return true;
}

QSize StatementBox::sizeHint() const
{
    constexpr int usual = 4;
    return sizeOf(usual);
}

QSize StatementBox::minimumSizeHint() const
{
    constexpr int least = 2;
    return sizeOf(least);
}

QSize StatementBox::sizeOf(int lines) const
{
    constexpr int narrowest = 100;
    const int margin = qRound(document()->documentMargin()) + frameWidth();
    return {narrowest, lines * fontMetrics().lineSpacing() + 2 * margin};
}

} // namespace tarvex
