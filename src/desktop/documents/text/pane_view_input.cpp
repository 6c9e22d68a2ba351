#include "desktop/documents/text/pane_view.h"

#include "desktop/documents/text/pane_text.h"
#include "desktop/platform/mime.h"
#include "documents/editing/clipboard_commands.h"
#include "documents/text/drag_move.h"

#include <QContextMenuEvent>
#include <QDropEvent>
#include <QKeyEvent>
#include <QMimeData>
#include <QWheelEvent>

#include <optional>
#include <utility>

namespace tarvex {

namespace {

bool isInput(const QEvent& event)
{
    switch (event.type()) {
    case QEvent::KeyPress:
    case QEvent::KeyRelease:
    case QEvent::InputMethod:
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseButtonDblClick:
    case QEvent::MouseMove:
    case QEvent::DragMove:
    case QEvent::Drop:
    case QEvent::ContextMenu:
        return true;
    default:
        return false;
    }
}

/// Keys that can be a command of the pane; empty for all others.
std::string commandKeys(const QKeyEvent& event)
{
    const bool plain =
        event.modifiers() == Qt::NoModifier && (event.key() == Qt::Key_Escape || event.key() == Qt::Key_F1);
    const bool ctrl = event.modifiers() == Qt::ControlModifier && event.key() != Qt::Key_Control;
    if (!plain && !ctrl) return {};
    return fromQt(QKeySequence(event.keyCombination()).toString(QKeySequence::PortableText));
}

/// The code of the first character, as the pane will hold it.
int codeOf(const QString& text) { return static_cast<unsigned char>(paneText(text.left(1)).bytes[0]); }

/// What a key adds to the zoom; 0 stands for none at all.
std::optional<int> zoomStep(const QKeyEvent& event)
{
    const Qt::KeyboardModifiers ignored = Qt::KeypadModifier | Qt::ShiftModifier; // "+" is Shift+= on many keyboards
    const bool ctrl = (event.modifiers() & ~ignored) == Qt::ControlModifier;
    if (event.modifiers().testFlag(Qt::ControlModifier) && event.key() == Qt::Key_0) return 0;
    if (ctrl && (event.key() == Qt::Key_Plus || event.key() == Qt::Key_Equal)) return zoom::step;
    if (event.matches(QKeySequence::ZoomOut)) return -zoom::step;
    return std::nullopt;
}

} // namespace

/// The user acts on what is in the pane, and the pane learns of it before anything else happens.
bool PaneView::event(QEvent* event)
{
    if (event->type() == QEvent::ShortcutOverride) {
        const auto& key = *static_cast<QKeyEvent*>(event);
        if (key.matches(QKeySequence::DeleteCompleteLine)) { // Ctrl+U is the menu's
            event->ignore();
            return true;
        }
        if (pressKey && key.key() == Qt::Key_F1 && key.modifiers() == Qt::NoModifier) event->accept(); // not the menu's
        if (zoomStep(key)) event->accept(); // "+" with Shift isn't taken by the menu's shortcut
    }
    if (!isInput(*event)) return QPlainTextEdit::event(event);
    settle();
    const bool done = QPlainTextEdit::event(event);
    settle();
    return done;
}

bool PaneView::viewportEvent(QEvent* event)
{
    if (!isInput(*event)) return QPlainTextEdit::viewportEvent(event);
    settle();
    const bool done = QPlainTextEdit::viewportEvent(event);
    settle();
    return done;
}

void PaneView::keyPressEvent(QKeyEvent* event)
{
    if (zoomByKey(*event)) return;
    if (pressKey && pressKey(commandKeys(*event))) return;
    if (event->key() == Qt::Key_F10 && event->modifiers() == Qt::ShiftModifier) { // the desktop reports the Menu key
        emit popUpWanted(true);
        return;
    }
    // Ctrl+K and Ctrl+U delete text in other programs of the desktop, but not here.
    if (event->matches(QKeySequence::DeleteEndOfLine) || event->matches(QKeySequence::DeleteCompleteLine)) return;
    if (event->key() == Qt::Key_Insert && event->modifiers() == Qt::NoModifier) {
        setOverwriteMode(!overwriteMode());
        emit overwriteModeChanged(overwriteMode());
        return;
    }
    if (event->key() == Qt::Key_Delete) announceEdit();
    announceKey(*event);
    QPlainTextEdit::keyPressEvent(event);
}

void PaneView::keyReleaseEvent(QKeyEvent* event)
{
    QPlainTextEdit::keyReleaseEvent(event);
    if (event->isAutoRepeat()) return;
    settle();
    emit keyReleased();
}

void PaneView::mousePressEvent(QMouseEvent* event)
{
    QPlainTextEdit::mousePressEvent(event);
    settle();
    if (event->button() != Qt::RightButton) emit mousePressed(event->button()); // the right button opens the pop-up
}

void PaneView::mouseReleaseEvent(QMouseEvent* event)
{
    QPlainTextEdit::mouseReleaseEvent(event);
    settle();
    if (event->button() == Qt::LeftButton) emit clicked();
}

/// Announces a key that is about to write a character.
void PaneView::announceKey(const QKeyEvent& event)
{
    const QString text = event.text();
    const bool command = event.modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier);
    if (event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter)
        announceCharacter('\r');
    else if (event.key() == Qt::Key_Backspace)
        announceCharacter('\b');
    else if (!command && !text.isEmpty() && (text[0].isPrint() || text[0] == u'\t'))
        announceCharacter(codeOf(text));
}

void PaneView::announceCharacter(int code)
{
    if (m_pane.Locked || !m_pane.KeyPress) return;
    m_pane.KeyPress(code);
    showPane(); // the caret may have been moved out of the way
}

void PaneView::announceEdit()
{
    if (m_pane.EditComing) m_pane.EditComing();
    showPane();
}

bool PaneView::zoomByKey(const QKeyEvent& event)
{
    const std::optional<int> step = zoomStep(event);
    if (step) zoomTo(*step == 0 ? zoom::normal : m_zoom + *step);
    return step.has_value();
}

void PaneView::zoomTo(int percent)
{
    setZoom(percent);
    emit zoomed(m_zoom);
}

void PaneView::wheelEvent(QWheelEvent* event)
{
    if (!event->modifiers().testFlag(Qt::ControlModifier)) {
        QPlainTextEdit::wheelEvent(event);
        return;
    }
    zoomTo(m_zoom + event->angleDelta().y() / 12); // ten per cent a notch
    event->accept();
}

void PaneView::inputMethodEvent(QInputMethodEvent* event)
{
    const QString& written = event->commitString();
    if (written.size() == 1 && written[0].isPrint())
        announceCharacter(codeOf(written)); // as typed, also when it took a dead key
    else if (!written.isEmpty() || !event->preeditString().isEmpty())
        announceEdit();
    QPlainTextEdit::inputMethodEvent(event);
    settle();
    m_mirror.formats().formatComposing(textCursor().block());
    viewport()->update();
}

void PaneView::focusInEvent(QFocusEvent* event)
{
    QPlainTextEdit::focusInEvent(event);
    emit gotFocus(std::exchange(m_stillChosen, false) || event->reason() == Qt::MenuBarFocusReason);
}

/// While a box, another window or a pop-up has the keyboard, the pane is still its window's choice. Not every window
/// system gives a reason for it.
void PaneView::focusOutEvent(QFocusEvent* event)
{
    QPlainTextEdit::focusOutEvent(event);
    m_stillChosen = window()->focusWidget() == this;
}

void PaneView::contextMenuEvent(QContextMenuEvent* event)
{
    event->accept();
    emit popUpWanted(event->reason() == QContextMenuEvent::Keyboard);
}

// ---- clipboard and drag ---------------------------------------------------------------------------------------------

QMimeData* PaneView::createMimeDataFromSelection() const { return toMime(selectionContent(m_pane)).release(); }

bool PaneView::canInsertFromMimeData(const QMimeData* source) const { return !m_pane.Locked && holdsContent(*source); }

/// The middle button has just put the caret where it was pressed, and no signal has said so yet.
void PaneView::insertFromMimeData(const QMimeData* source)
{
    m_userMoved = true;
    settle();
    announceEdit();
    const std::size_t lost = insertContent(m_pane, fromMime(*source));
    settle();
    emit charactersLost(static_cast<int>(lost));
    ensureCursorVisible();
}

void PaneView::dragEnterEvent(QDragEnterEvent* event)
{
    if (localFiles(*event->mimeData()).isEmpty()) {
        QPlainTextEdit::dragEnterEvent(event);
    } else {
        event->acceptProposedAction();
    }
}

void PaneView::dragMoveEvent(QDragMoveEvent* event)
{
    if (localFiles(*event->mimeData()).isEmpty()) {
        QPlainTextEdit::dragMoveEvent(event);
    } else {
        event->acceptProposedAction();
    }
}

void PaneView::dropEvent(QDropEvent* event)
{
    QDragLeaveEvent over;
    dragLeaveEvent(&over); // the text's own mark of the place goes
    if (const QStringList files = localFiles(*event->mimeData()); !files.isEmpty()) {
        event->acceptProposedAction();
        emit filesDropped(files);
    } else if (canInsertFromMimeData(event->mimeData())) {
        const bool moves = event->source() == viewport() && event->dropAction() == Qt::MoveAction;
        takeDrop(*event->mimeData(), cursorForPosition(event->position().toPoint()).position(), moves);
        event->acceptProposedAction();
    } else {
        event->ignore();
    }
}

void PaneView::takeDrop(const QMimeData& content, int target, bool movesOwnSelection)
{
    settle();
    announceEdit();
    const std::int64_t position = m_mirror.panePosition(target);
    if (movesOwnSelection) {
        moveSelection(m_pane, position);
    } else {
        m_pane.setSelStart(position);
        const std::size_t lost = insertContent(m_pane, fromMime(content));
        emit charactersLost(static_cast<int>(lost));
    }
    settle();
}

} // namespace tarvex
