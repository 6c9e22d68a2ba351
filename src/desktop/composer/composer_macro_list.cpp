#include "desktop/composer/composer_macro_list.h"

#include "composer/macro_tab.h"
#include "desktop/documents/window/macro_delegate.h"
#include "desktop/input.h"
#include "desktop/platform/mime.h"

#include <QDrag>
#include <QMimeData>
#include <QMouseEvent>
#include <QPainter>
#include <QPainterPath>

namespace tarvex {

namespace {

/// A tag with the macro's name, which the mouse carries.
QPixmap dragPicture(const QWidget& list, const QString& name)
{
    constexpr int air = 6;
    const QFontMetrics metrics = list.fontMetrics();
    const QString text = metrics.elidedText(name, Qt::ElideMiddle, 40 * metrics.averageCharWidth());
    const QSize size(metrics.horizontalAdvance(text) + 2 * air, metrics.height() + air);
    QPixmap picture(size * list.devicePixelRatioF());
    picture.setDevicePixelRatio(list.devicePixelRatioF());
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(list.palette().color(QPalette::HighlightedText));
    painter.setBrush(list.palette().color(QPalette::Highlight));
    painter.setFont(list.font());
    const QRectF tag(0.5, 0.5, size.width() - 1, size.height() - 1);
    painter.drawRoundedRect(tag, air, air);
    painter.drawText(tag, Qt::AlignCenter, text);
    return picture;
}

} // namespace

ComposerMacroList::ComposerMacroList(InsertOptions& window, QWidget* parent) : QListView(parent), m_window(window)
{
    setObjectName(QStringLiteral("List1"));
    setAccessibleName(QStringLiteral("Macros"));
    setItemDelegate(new MacroDelegate(this));
    setModel(&m_model);
    setUniformItemSizes(true);
    setEditTriggers(QAbstractItemView::NoEditTriggers);
    setTextElideMode(Qt::ElideMiddle);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setDragEnabled(true);
    setToolTip(QStringLiteral("Double click macro to insert into Joystick file, or use drag and drop"));
    connect(selectionModel(), &QItemSelectionModel::currentChanged, this, [this](const QModelIndex& current) {
        if (m_list < m_window.macros.List1.size()) m_window.macros.List1[m_list].ListIndex = current.row();
    });
    takeLists();
    m_bindings.follow(window.macros.List1Changed, [this] { takeLists(); });
}

void ComposerMacroList::takeLists()
{
    m_listBindings = Bindings();
    for (CheckListBox& list : m_window.macros.List1) m_listBindings.follow(list.Visible, [this] { showList(); });
    showList();
}

void ComposerMacroList::showList()
{
    std::deque<CheckListBox>& lists = m_window.macros.List1;
    m_list = lists.size(); // while the model changes, no list takes its row
    m_model.show(nullptr);
    for (std::size_t i = 0; i < lists.size(); ++i) {
        if (!lists[i].Visible) continue;
        m_model.show(&lists[i]);
        const int row = lists[i].ListIndex;
        m_list = i;
        if (row >= 0) setCurrentIndex(m_model.index(row));
        return;
    }
}

void ComposerMacroList::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) return List1_DblClick(m_window, m_list);
    QListView::keyPressEvent(event);
}

void ComposerMacroList::mousePressEvent(QMouseEvent* event)
{
    QListView::mousePressEvent(event);
    const QModelIndex index = indexAt(event->position().toPoint());
    if (!index.isValid()) return;
    setCurrentIndex(index);
    List1_MouseDown(m_window, m_list, toLogic(event->button()));
}

void ComposerMacroList::mouseDoubleClickEvent(QMouseEvent* event)
{
    QListView::mouseDoubleClickEvent(event);
    const bool onEntry = indexAt(event->position().toPoint()).isValid();
    if (event->button() == Qt::LeftButton && onEntry) List1_DblClick(m_window, m_list);
}

/// The mouse's right button has reported itself already.
void ComposerMacroList::contextMenuEvent(QContextMenuEvent* event)
{
    event->accept();
    if (event->reason() != QContextMenuEvent::Mouse && currentIndex().isValid())
        List1_MouseDown(m_window, m_list, mouseButton::right);
}

void ComposerMacroList::startDrag(Qt::DropActions)
{
    List1_MouseMove(m_window, m_list, mouseButton::left);
    const std::string text = List1_OLEStartDrag(m_window, m_list);
    if (text.empty()) return;
    auto* drag = new QDrag(this);
    drag->setMimeData(toMime({text, {}}).release());
    drag->setPixmap(dragPicture(*this, toQt(text).trimmed()));
    drag->exec(Qt::CopyAction);
}

} // namespace tarvex
