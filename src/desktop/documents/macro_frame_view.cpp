#include "desktop/documents/macro_frame_view.h"

#include "desktop/documents/check_list_model.h"
#include "documents/editor_layout.h"

#include <QComboBox>
#include <QGridLayout>
#include <QListView>
#include <QMouseEvent>
#include <QPushButton>
#include <QSignalBlocker>

namespace tarvex {

namespace {

constexpr int edge = 6; // pixels of the frame's right side that can be dragged
constexpr int buttonColumns = 4;

QListView* makeListView(QWidget* parent)
{
    auto* view = new QListView(parent);
    view->setObjectName(QStringLiteral("List1"));
    view->setUniformItemSizes(true);
    view->setEditTriggers(QAbstractItemView::NoEditTriggers);
    view->setAccessibleName(QStringLiteral("Macros"));
    view->setMinimumHeight(0);
    return view;
}

} // namespace

MacroFrameView::MacroFrameView(Editor& editor, QWidget* parent) : QFrame(parent), m_editor(editor)
{
    setObjectName(QStringLiteral("FrameMacros"));
    setMouseTracking(true);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(4, 4, edge, 4);
    column->setSpacing(4);
    column->setSizeConstraint(QLayout::SetNoConstraint); // the frame's place is given
    auto* headings = new QComboBox(this);
    headings->setAccessibleName(QStringLiteral("Heading"));
    headings->setMinimumContentsLength(1);
    headings->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    column->addWidget(headings);
    m_bindings.comboBox(editor.FrameMacros.Combo1, *headings);
    m_lists = new QVBoxLayout;
    column->addLayout(m_lists, 1);
    m_buttons = new QGridLayout;
    m_buttons->setSpacing(2);
    column->addLayout(m_buttons);
    for (int index = 0; index < static_cast<int>(editor.FrameMacros.Command1.size()); ++index) addButton(index);
    for (QWidget* child : findChildren<QWidget*>()) child->setCursor(Qt::ArrowCursor);
    showLists();
    m_bindings.follow(editor.FrameMacros.List1Changed, [this] { showLists(); });
    m_bindings.bind(editor.FrameMacros.MousePointer, [this](MousePointer pointer) {
        setCursor(pointer == MousePointer::SizeWestEast ? Qt::SizeHorCursor : Qt::ArrowCursor);
    });
}

/// A button without a caption has no use yet.
void MacroFrameView::addButton(int index)
{
    Button& state = m_editor.FrameMacros.Command1[static_cast<std::size_t>(index)];
    auto* view = new QPushButton(this);
    view->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    m_bindings.button(state, *view);
    const auto showWhenCaptioned = [view, &state] { view->setVisible(state.Visible && !state.Caption.get().empty()); };
    m_bindings.follow(state.Caption, showWhenCaptioned);
    m_bindings.follow(state.Visible, showWhenCaptioned);
    showWhenCaptioned();
    m_buttons->addWidget(view, index / buttonColumns, index % buttonColumns);
}

void MacroFrameView::showLists()
{
    m_listBindings = Bindings();
    while (QLayoutItem* item = m_lists->takeAt(0)) {
        delete item->widget();
        delete item;
    }
    for (CheckListBox& list : m_editor.FrameMacros.List1) addList(list);
}

void MacroFrameView::addList(CheckListBox& list)
{
    QListView* view = makeListView(this);
    view->setModel(new CheckListModel(list, view));
    view->setCursor(Qt::ArrowCursor);
    m_lists->addWidget(view, 1);
    m_listBindings.bind(list.Visible, [view](bool on) { view->setVisible(on); });
    m_listBindings.bind(list.ListIndex, [view](int index) {
        const QSignalBlocker quiet(view->selectionModel());
        view->setCurrentIndex(view->model()->index(index, 0));
        view->viewport()->update();
    });
    connect(view->selectionModel(), &QItemSelectionModel::currentChanged, view,
            [&list](const QModelIndex& current) { list.ListIndex = current.row(); });
}

/// While the edge is dragged the mouse counts as over it, however fast it moves.
void MacroFrameView::tellMouse(const QMouseEvent& event)
{
    const int x = static_cast<int>(event.position().x());
    FrameMacros_MouseMove(m_editor, event.buttons().testFlag(Qt::LeftButton), toTwips(x),
                          m_dragging || x >= width() - edge);
}

void MacroFrameView::mouseMoveEvent(QMouseEvent* event) { tellMouse(*event); }

void MacroFrameView::mousePressEvent(QMouseEvent* event)
{
    m_dragging = event->button() == Qt::LeftButton && event->position().x() >= width() - edge;
}

void MacroFrameView::mouseReleaseEvent(QMouseEvent* event)
{
    m_dragging = false;
    tellMouse(*event);
}

void MacroFrameView::leaveEvent(QEvent*)
{
    if (!m_dragging) FrameMacros_MouseMove(m_editor, false, 0, false);
}

} // namespace tarvex
