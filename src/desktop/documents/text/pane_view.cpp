#include "desktop/documents/text/pane_view.h"

#include "desktop/documents/text/pane_text.h"

#include <QApplication>
#include <QPainter>
#include <QScopedValueRollback>
#include <QScrollBar>
#include <QSignalBlocker>

#include <algorithm>

namespace tarvex {

namespace {

constexpr int tabColumns = 8;
constexpr int margin = 4; // pixels around the text

/// The first character of the text that an empty document gets, with the caret before it: the rest then leaves the
/// caret there, where the pane has it when a file is opened. Moved back from behind the text, it would have lines laid
/// out that nobody sees, and that before they have their formats.
void beginText(QPlainTextEdit& view, std::string_view text)
{
    if (text.empty() || !view.document()->isEmpty()) return;
    const QSignalBlocker unnoticed(view.document()); // or it would be taken for typed
    QTextCursor caret(view.document());
    caret.insertText(documentText(text.substr(0, text.starts_with("\r\n") ? 2 : 1)));
    caret.setPosition(0);
    view.setTextCursor(caret);
}

} // namespace

PaneView::PaneView(Pane& pane, QWidget* parent)
    : QPlainTextEdit(parent), m_pane(pane), m_mirror(pane, *document()), m_margin(new PaneMargin(*this, *this))
{
    setLineWrapMode(NoWrap);
    document()->setDocumentMargin(margin);
    connect(&m_mirror, &PaneMirror::waiting, this, &PaneView::settleLater);
    connect(&m_mirror, &PaneMirror::charactersLost, this, &PaneView::charactersLost);
    connect(this, &QPlainTextEdit::updateRequest, this, &PaneView::updateMargin);
    connect(this, &QPlainTextEdit::blockCountChanged, this, &PaneView::placeMargin);
    const auto cursorMoved = [this] {
        if (m_showing) return;
        noteCurrentLine();
        m_userMoved = true;
        if (!m_mirror.typed() && !m_mirror.behind()) takeSelection();
        settleLater();
    };
    connect(this, &QPlainTextEdit::cursorPositionChanged, this, cursorMoved);
    connect(this, &QPlainTextEdit::selectionChanged, this, cursorMoved);
    bindPane();
    m_paneMoved = true;
    settleLater();
}

void PaneView::bindPane()
{
    m_bindings.follow(m_pane.selectionChanged, [this] {
        m_paneMoved = true;
        settleLater();
    });
    m_bindings.bind(m_pane.Locked, [this](bool locked) {
        settle();
        setReadOnly(locked);
        if (locked) setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    });
    m_bindings.bind(m_pane.BackColor, [this](Colour) { showColours(); });
    m_bindings.follow(m_pane.fontChanged, [this] { showFont(); });
    m_bindings.follow(m_pane.focusWanted, [this] {
        setFocus(Qt::OtherFocusReason);
        if (!hasFocus()) m_stillChosen = true; // the keyboard comes with the window, as at the start
    });
    m_bindings.follow(m_pane.refreshWanted, [this] { viewport()->update(); });
    showFont();
}

// ---- bringing pane and document together ----------------------------------------------------------------------------

void PaneView::settleLater()
{
    if (m_settlesLater) return;
    m_settlesLater = true;
    QMetaObject::invokeMethod(
        this,
        [this] {
            m_settlesLater = false;
            settle();
        },
        Qt::QueuedConnection);
}

void PaneView::settle()
{
    if (m_showing) return;
    const bool byUser = m_mirror.typed() || (m_userMoved && !m_paneMoved);
    m_mirror.deliver(textCursor().position());
    if (m_userMoved && !m_paneMoved && !m_mirror.behind()) takeSelection();
    m_userMoved = false;
    const bool shown = bringUpToDate();
    if (byUser) {
        emit caretMoved();
    } else if (shown) {
        emit paneShown();
    }
}

/// Moves the pane's caret to where the user put it.
void PaneView::takeSelection()
{
    const Selection wanted = shownSelection();
    const QScopedValueRollback<bool> paneMoved(m_paneMoved); // it only follows
    if (wanted != paneSelection()) {
        m_pane.setSelStart(wanted.start);
        m_pane.setSelLength(wanted.length);
    }
    m_shown = wanted;
}

PaneView::Selection PaneView::shownSelection() const
{
    const QTextCursor cursor = textCursor();
    const std::int64_t start = m_mirror.panePosition(cursor.selectionStart());
    return {start, m_mirror.panePosition(cursor.selectionEnd()) - start};
}

void PaneView::showPane()
{
    if (bringUpToDate()) emit paneShown();
}

/// False: there was nothing to do, or it isn't the time. Repaints no more than the lines that changed: the document
/// reports those.
bool PaneView::bringUpToDate()
{
    if (m_showing || m_mirror.typed() || (!m_paneMoved && !m_mirror.behind())) return false;
    const QScopedValueRollback<bool> showing(m_showing, true);
    int top = verticalScrollBar()->value();
    const int left = horizontalScrollBar()->value();
    beginText(*this, m_pane.Text());
    if (const auto rewritten = m_mirror.update(); rewritten && rewritten->last < top) top += rewritten->added;
    const bool moved = showSelection();
    m_paneMoved = false;
    verticalScrollBar()->setValue(top); // setting the cursor scrolls to the selection's end
    horizontalScrollBar()->setValue(left);
    if (moved) revealSelection();
    noteCurrentLine();
    formatShown();
    return true;
}

/// Puts the caret where the pane has it. True: it is another place than before, which is to be seen.
bool PaneView::showSelection()
{
    const Selection wanted = paneSelection();
    const Selection before = std::exchange(m_shown, wanted);
    if (wanted == shownSelection()) return false;
    QTextCursor cursor = textCursor();
    cursor.setPosition(m_mirror.documentPosition(wanted.start));
    cursor.setPosition(m_mirror.documentPosition(wanted.start + wanted.length), QTextCursor::KeepAnchor);
    setTextCursor(cursor);
    return wanted != before;
}

/// Scrolls the selected lines into view with some lines around them; lines out of sight come to the middle. More lines
/// than there is room for stay as they are while one of them is in sight, else the first one is shown.
void PaneView::revealSelection()
{
    constexpr int linesAround = 3;
    const QTextCursor cursor = textCursor();
    const int first = document()->findBlock(cursor.selectionStart()).blockNumber();
    const int behind = std::max(cursor.selectionStart(), cursor.selectionEnd() - 1); // a line includes its end
    const int last = document()->findBlock(behind).blockNumber();
    const int shown = std::max(1, viewport()->height() / std::max(1, fontMetrics().lineSpacing()));
    const int top = verticalScrollBar()->value();
    const bool inSight = last >= top && first < top + shown;
    const int spare = shown - (last - first + 1);
    if (inSight && spare < 0) return;
    const int around = std::min(std::max(0, spare) / 2, inSight ? linesAround : shown);
    verticalScrollBar()->setValue(std::min(std::max(top, last + around - shown + 1), first - around));
    revealColumns(cursor.selectionStart(), cursor.selectionEnd());
}

/// The same for the columns, without a need for any around them.
void PaneView::revealColumns(int start, int end)
{
    QScrollBar* bar = horizontalScrollBar();
    const auto place = [this, bar](int position) {
        QTextCursor cursor(document());
        cursor.setPosition(position);
        return cursorRect(cursor).translated(bar->value(), 0);
    };
    const QRect first = place(start);
    const QRect last = document()->findBlock(start) == document()->findBlock(end) ? place(end) : first;
    const int left = std::max(bar->value(), last.right() + margin - viewport()->width());
    bar->setValue(std::min(left, first.left() - margin));
}

void PaneView::formatAll()
{
    settle();
    m_mirror.formats().format(document()->firstBlock(), document()->lastBlock());
    viewport()->update();
}

/// A line that became higher or lower moves all below it.
void PaneView::repaintLine(const PaneFormats::Changed& line)
{
    const QRectF place = blockBoundingGeometry(line.block).translated(contentOffset());
    if (line.oldHeight > 0 && line.oldHeight != place.height()) return viewport()->update();
    viewport()->update(
        QRect(0, static_cast<int>(place.top()), viewport()->width(), static_cast<int>(place.height()) + 2));
}

/// Formats the lines that can be in sight, and the caret's, whose place is asked for also when it is out of sight.
void PaneView::formatShown()
{
    if (!m_mirror.equal()) return; // scrolled in the middle of an edit
    const QTextBlock first = firstVisibleBlock();
    const int lines = 2 * viewport()->height() / std::max(1, fontMetrics().lineSpacing()) + 2;
    const int last = std::min(first.blockNumber() + lines, blockCount() - 1);
    const auto changed = m_mirror.formats().format(first, document()->findBlockByNumber(last));
    // The place of a line is the sum of the heights above it: for many lines that costs more than painting them all.
    constexpr std::size_t fewLines = 8;
    if (changed.size() > fewLines) {
        viewport()->update();
    } else {
        for (const PaneFormats::Changed& line : changed) repaintLine(line);
    }
    const QTextBlock caretLine = textCursor().block();
    m_mirror.formats().format(caretLine, caretLine);
}

void PaneView::paintEvent(QPaintEvent* event)
{
    showPane();
    formatShown();
    paintMarks(event->rect());
    QPlainTextEdit::paintEvent(event);
}

void PaneView::scrollContentsBy(int dx, int dy)
{
    QPlainTextEdit::scrollContentsBy(dx, dy);
    if (dy != 0) formatShown();
}

void PaneView::resizeEvent(QResizeEvent* event)
{
    QPlainTextEdit::resizeEvent(event);
    placeMargin();
    formatShown();
}

// ---- look -----------------------------------------------------------------------------------------------------------

void PaneView::setZoom(int percent)
{
    m_zoom = std::clamp(percent, zoom::smallest, zoom::largest);
    showFont();
}

void PaneView::showFont()
{
    const PaneFont& wanted = m_pane.Font();
    QFont shown(toQt(wanted.name));
    shown.setPointSizeF(std::max(1.0, static_cast<double>(wanted.size) * m_zoom / 100));
    shown.setBold(wanted.bold);
    shown.setKerning(false); // else a colour moves the characters behind it, and a key lays its line out twice
    setFont(shown);
    setTabStopDistance(tabColumns * QFontMetricsF(shown).averageCharWidth());
    m_mirror.formats().setZoom(m_zoom / 100.0);
    m_mirror.markAllStale();
    placeMargin();
    m_margin->update();
    viewport()->update();
}

/// Text without a colour is black on BackColor, or what stands for that in dark windows.
void PaneView::showColours()
{
    const PaneColours colours = paneColours(m_pane.BackColor.get());
    const bool dark = colours.isDarkened();
    QPalette shown = QApplication::palette(this);
    shown.setColor(QPalette::Base, colours.ground);
    shown.setColor(QPalette::Text, colours.text(0));
    // Found from another window:
    shown.setColor(QPalette::Inactive, QPalette::Highlight, dark ? QColor(0x36, 0x4F, 0x6E) : QColor(0x9B, 0xC1, 0xEE));
    shown.setColor(QPalette::Inactive, QPalette::HighlightedText, dark ? Qt::white : Qt::black);
    if (m_mirror.formats().setColours(colours)) {
        m_mirror.markAllStale();
        viewport()->update();
    }
    if (shown == palette()) return;
    setPalette(shown);
    m_margin->update();
}

void PaneView::changeEvent(QEvent* event)
{
    QPlainTextEdit::changeEvent(event);
    if (event->type() == QEvent::ApplicationPaletteChange || event->type() == QEvent::StyleChange) showColours();
}

} // namespace tarvex
