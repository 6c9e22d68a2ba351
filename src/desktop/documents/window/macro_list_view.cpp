#include "desktop/documents/window/macro_list_view.h"

#include "desktop/documents/window/macro_delegate.h"
#include "desktop/input.h"
#include "desktop/platform/mime.h"
#include "language/commands/macro_filter.h"
#include "language/commands/macro_list_events.h"

#include <QDrag>
#include <QHelpEvent>
#include <QMimeData>
#include <QMouseEvent>
#include <QPainter>
#include <QScopedValueRollback>
#include <QToolTip>

namespace tarvex {

MacroListView::MacroListView(Editor& editor, QWidget* frame) : QListView(frame), m_editor(editor)
{
    setObjectName(QStringLiteral("List1"));
    setAccessibleName(QStringLiteral("Macros"));
    setItemDelegate(new MacroDelegate(this));
    setModel(&m_model);
    setUniformItemSizes(true);
    setEditTriggers(QAbstractItemView::NoEditTriggers);
    setTextElideMode(Qt::ElideMiddle); // names of a kind often differ in their ends
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setDragEnabled(true);
    setMouseTracking(true);
    setMinimumHeight(0);
    connect(selectionModel(), &QItemSelectionModel::currentChanged, this, [this](const QModelIndex& current) {
        if (!m_showing && m_list < m_editor.FrameMacros.List1.size())
            m_editor.FrameMacros.List1[m_list].ListIndex = current.row();
    });
    takeLists();
    m_bindings.follow(editor.FrameMacros.List1Changed, [this] { takeLists(); });
    m_bindings.follow(editor.FrameMacros.Filter.Text, [this] { applyFilter(); });
    m_bindings.follow(editor.FrameMacros.FilterVisible, [this] { applyFilter(); });
}

// ---- the list shown -------------------------------------------------------------------------------------------------

void MacroListView::takeLists()
{
    std::deque<CheckListBox>& lists = m_editor.FrameMacros.List1;
    m_listBindings = Bindings();
    showList(lists.size());
    for (std::size_t list = 0; list < lists.size(); ++list) {
        m_listBindings.follow(lists[list].Visible, [this, list] { visibilityChanged(list); });
        if (lists[list].Visible) showList(list);
    }
}

/// The list that takes another's place may appear before the other goes.
void MacroListView::visibilityChanged(std::size_t list)
{
    std::deque<CheckListBox>& lists = m_editor.FrameMacros.List1;
    if (list >= lists.size()) return;
    if (lists[list].Visible) {
        showList(list);
    } else if (list == m_list) {
        showList(lists.size());
    }
}

/// An index behind the last list shows none.
void MacroListView::showList(std::size_t list)
{
    std::deque<CheckListBox>& lists = m_editor.FrameMacros.List1;
    const QScopedValueRollback<bool> showing(m_showing, true);
    m_shownBindings = Bindings();
    m_list = list;
    m_model.show(list < lists.size() ? &lists[list] : nullptr);
    if (list >= lists.size()) return;
    showCurrent();
    applyFilter();
    m_shownBindings.follow(lists[list].ListIndex, [this] { showCurrent(); });
    m_shownBindings.follow(lists[list].Items, [this] {
        showCurrent(); // other items have no current one
        applyFilter();
    });
}

void MacroListView::showCurrent()
{
    const QScopedValueRollback<bool> showing(m_showing, true);
    const int row = m_editor.FrameMacros.List1[m_list].ListIndex;
    if (row != currentIndex().row()) setCurrentIndex(m_model.index(row));
}

void MacroListView::applyFilter()
{
    const std::deque<CheckListBox>& lists = m_editor.FrameMacros.List1;
    if (m_list >= lists.size()) return;
    const std::vector<CheckListBox::Item>& items = lists[m_list].Items;
    for (int row = 0; row < m_model.rowCount(); ++row) {
        const bool hidden = !passesFilter(m_editor.FrameMacros, items[static_cast<std::size_t>(row)].Text);
        if (hidden != isRowHidden(row)) setRowHidden(row, hidden);
    }
}

// ---- keyboard -------------------------------------------------------------------------------------------------------

void MacroListView::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
        List1_DblClick(m_editor, m_list);
        return;
    }
    if (event->key() == Qt::Key_Escape && m_editor.FrameMacros.FilterVisible) return closeFilter(m_editor);
    if (writesIntoFilter(*event)) return;
    QListView::keyPressEvent(event);
    List1_KeyDown(m_editor, m_list, toLogic(event->modifiers()));
}

/// A macro that the filter hides isn't the one to begin at.
void MacroListView::focusInEvent(QFocusEvent* event)
{
    QListView::focusInEvent(event);
    const QModelIndex current = currentIndex();
    if (!m_editor.FrameMacros.FilterVisible || (current.isValid() && !isRowHidden(current.row()))) return;
    for (int row = 0; row < m_model.rowCount(); ++row) {
        if (isRowHidden(row)) continue;
        setCurrentIndex(m_model.index(row));
        return;
    }
}

/// A blank ticks the macro.
bool MacroListView::writesIntoFilter(const QKeyEvent& event)
{
    const bool command = event.modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier);
    const QString text = event.text();
    if (command || text.isEmpty() || !text.front().isPrint() || text.front().isSpace()) return false;
    writeIntoFilter(m_editor, fromQt(text));
    return true;
}

void MacroListView::keyReleaseEvent(QKeyEvent* event)
{
    QListView::keyReleaseEvent(event);
    if (!event->isAutoRepeat()) List1_KeyUp(m_editor, m_list, toLogic(event->modifiers()));
}

/// Exactly one item is picked at all times, also while Ctrl or Shift is held.
QItemSelectionModel::SelectionFlags MacroListView::selectionCommand(const QModelIndex& index, const QEvent* event) const
{
    const auto command = QListView::selectionCommand(index, event);
    return command == QItemSelectionModel::NoUpdate || !index.isValid() ? QItemSelectionModel::NoUpdate
                                                                        : QItemSelectionModel::ClearAndSelect;
}

// ---- mouse ----------------------------------------------------------------------------------------------------------

void MacroListView::mousePressEvent(QMouseEvent* event)
{
    QListView::mousePressEvent(event);
    const QModelIndex index = indexAt(event->position().toPoint());
    if (index.isValid()) setCurrentIndex(index); // also where the press was on a tick
    List1_MouseDown(m_editor, m_list, toLogic(event->button()), toLogic(event->modifiers()));
}

void MacroListView::mouseMoveEvent(QMouseEvent* event)
{
    m_dragged = false;
    const Qt::MouseButtons buttons = event->buttons();
    if (buttons == Qt::NoButton || buttons == Qt::LeftButton) QListView::mouseMoveEvent(event);
    if (m_dragged) return; // and the mouse is elsewhere by now
    const int x = viewport()->mapTo(parentWidget(), event->position().toPoint()).x();
    List1_MouseMove(m_editor, m_list, toLogic(buttons), toLogic(event->modifiers()), toTwips(x));
}

/// Two quick clicks on a tick are two clicks.
void MacroListView::mouseDoubleClickEvent(QMouseEvent* event)
{
    QListView::mouseDoubleClickEvent(event);
    const QPoint position = event->position().toPoint();
    if (event->button() == Qt::LeftButton && indexAt(position).isValid() && !isOnTick(position))
        List1_DblClick(m_editor, m_list);
}

bool MacroListView::isOnTick(const QPoint& position) const
{
    QStyleOptionViewItem option;
    initViewItemOption(&option);
    option.rect = visualRect(indexAt(position));
    option.features |= QStyleOptionViewItem::HasCheckIndicator;
    return MacroDelegate::tickRect(option).contains(position);
}

/// The mouse's right button has reported itself already.
void MacroListView::contextMenuEvent(QContextMenuEvent* event)
{
    event->accept();
    if (event->reason() != QContextMenuEvent::Mouse)
        List1_MouseDown(m_editor, m_list, mouseButton::right, shiftKey::none);
}

void MacroListView::startDrag(Qt::DropActions)
{
    m_dragged = true;
    const std::string text = List1_OLEStartDrag(m_editor, m_list);
    if (text.empty()) return;
    auto* drag = new QDrag(this);
    drag->setMimeData(toMime({text, {}}).release());
    drag->exec(Qt::CopyAction);
}

bool MacroListView::viewportEvent(QEvent* event)
{
    if (event->type() != QEvent::ToolTip) return QListView::viewportEvent(event);
    showTip(*static_cast<QHelpEvent*>(event));
    return true;
}

/// The list's tip, below the name where that is cut.
void MacroListView::showTip(const QHelpEvent& event)
{
    if (m_list >= m_editor.FrameMacros.List1.size()) return;
    QString tip = toQt(m_editor.FrameMacros.List1[m_list].ToolTipText.get()).toHtmlEscaped();
    const QModelIndex index = indexAt(event.pos());
    QStyleOptionViewItem option;
    initViewItemOption(&option);
    if (index.isValid() &&
        static_cast<MacroDelegate*>(itemDelegate())->wholeWidth(option, index) > visualRect(index).width())
        tip.prepend(QStringLiteral("<b>") + index.data().toString().toHtmlEscaped() + QStringLiteral("</b><br>"));
    QToolTip::showText(event.globalPos(), tip, viewport());
}

} // namespace tarvex
