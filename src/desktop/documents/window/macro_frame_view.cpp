#include "desktop/documents/window/macro_frame_view.h"

#include "desktop/documents/window/macro_list_view.h"
#include "documents/pair/editor_layout.h"
#include "language/commands/macro_filter.h"
#include "language/commands/macro_list_events.h"
#include "language/commands/slash_buttons.h"

#include <QComboBox>
#include <QFocusEvent>
#include <QGridLayout>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMouseEvent>
#include <QPainter>
#include <QPushButton>

namespace tarvex {

namespace {

constexpr int edge = 6; // pixels of the frame's right side that can be dragged

/// Where a button stands in the grid, so that the thirteen fill three rows.
struct GridPlace {
    int row, column, columns;
};

constexpr int gridColumns = 5;

/// Down and Return lead from the filter into the list, Esc closes it.
class FilterKeys : public QObject {
public:
    FilterKeys(Editor& editor, QLineEdit& box, QWidget& list) : QObject(&box), m_editor(editor), m_list(list)
    {
        box.installEventFilter(this);
    }

protected:
    bool eventFilter(QObject*, QEvent* event) override
    {
        if (event->type() != QEvent::KeyPress) return false;
        switch (static_cast<QKeyEvent*>(event)->key()) {
        case Qt::Key_Escape:
            closeFilter(m_editor);
            return true;
        case Qt::Key_Down:
        case Qt::Key_Return:
        case Qt::Key_Enter:
            m_list.setFocus(Qt::TabFocusReason);
            return true;
        default:
            return false;
        }
    }

private:
    Editor& m_editor;
    QWidget& m_list;
};

GridPlace placeOf(std::size_t index)
{
    constexpr std::size_t delay = 11;
    constexpr std::size_t ignoreRepeat = 12;
    if (index == delay) return {2, 2, 3};
    if (index == ignoreRepeat) return {2, 1, 1};
    return {static_cast<int>(index) / gridColumns, static_cast<int>(index) % gridColumns, 1};
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
    column->addWidget(makeHeadings());
    auto* list = new MacroListView(editor, this);
    column->addWidget(makeFilter(*list));
    column->addWidget(list, 1);
    column->addLayout(makeButtons());
    for (QWidget* child : findChildren<QWidget*>(Qt::FindDirectChildrenOnly)) child->setCursor(Qt::ArrowCursor);
    m_bindings.bind(editor.FrameMacros.MousePointer, [this](MousePointer pointer) {
        setCursor(pointer == MousePointer::SizeWestEast ? Qt::SizeHorCursor : Qt::ArrowCursor);
        update(grip());
    });
}

QComboBox* MacroFrameView::makeHeadings()
{
    auto* headings = new QComboBox(this);
    headings->setObjectName(QStringLiteral("Combo1"));
    headings->setAccessibleName(QStringLiteral("Heading"));
    headings->setMinimumContentsLength(1);
    headings->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    headings->setMaxVisibleItems(20);
    headings->setMouseTracking(true);
    headings->installEventFilter(this);
    m_bindings.comboBox(m_editor.FrameMacros.Combo1, *headings);
    m_bindings.bind(m_editor.FrameMacros.Combo1.Text, [headings](const std::string& text) {
        headings->setToolTip(wrappingTip(toQt(text)));  // a long heading has no room in the box
        headings->setAccessibleDescription(toQt(text)); // else it would be the tip, with its markup
    });
    return headings;
}

QWidget* MacroFrameView::makeFilter(QWidget& list)
{
    auto* box = new QLineEdit(this);
    box->setObjectName(QStringLiteral("Filter"));
    box->setAccessibleName(QStringLiteral("Filter"));
    box->setPlaceholderText(QStringLiteral("Filter"));
    box->setMinimumWidth(0);
    m_bindings.bind(m_editor.FrameMacros.FilterVisible, [box](bool on) {
        if (on) box->setClearButtonEnabled(true); // Qt looks for its icon in all themes: not while the program starts
        box->setVisible(on);
    });
    m_bindings.textBox(m_editor.FrameMacros.Filter, *box);
    new FilterKeys(m_editor, *box, list);
    return box;
}

QGridLayout* MacroFrameView::makeButtons()
{
    auto* grid = new QGridLayout;
    grid->setSpacing(2);
    for (int column = 0; column < gridColumns; ++column) grid->setColumnStretch(column, 1);
    for (std::size_t index = 0; index < m_editor.FrameMacros.Command1.size(); ++index) {
        const GridPlace place = placeOf(index);
        grid->addWidget(makeButton(index), place.row, place.column, 1, place.columns);
    }
    return grid;
}

/// A button without a caption has no use yet. The keyboard stays with the pane that the button writes to.
QWidget* MacroFrameView::makeButton(std::size_t index)
{
    Button& state = m_editor.FrameMacros.Command1[index];
    auto* view = new QPushButton(this);
    view->setObjectName(QStringLiteral("Command1_%1").arg(index));
    view->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    view->setFocusPolicy(Qt::NoFocus);
    view->setMouseTracking(true);
    view->installEventFilter(this);
    m_indexes.emplace(view, index);
    m_bindings.button(state, *view);
    const auto showWhenCaptioned = [view, &state] { view->setVisible(state.Visible && !state.Caption.get().empty()); };
    m_bindings.follow(state.Caption, showWhenCaptioned);
    m_bindings.follow(state.Visible, showWhenCaptioned);
    showWhenCaptioned();
    return view;
}

/// The combo box and the buttons report when they have the mouse or the keyboard.
bool MacroFrameView::eventFilter(QObject* watched, QEvent* event)
{
    const bool isHeadings = watched->objectName() == QLatin1String("Combo1");
    if (isHeadings && event->type() == QEvent::MouseMove) Combo1_MouseMove(m_editor);
    if (isHeadings && event->type() == QEvent::FocusIn &&
        static_cast<QFocusEvent*>(event)->reason() != Qt::PopupFocusReason)
        Combo1_GotFocus(m_editor);
    if (const auto found = m_indexes.find(watched); found != m_indexes.end() && event->type() == QEvent::MouseMove)
        Command1_MouseMove(m_editor, found->second);
    return QFrame::eventFilter(watched, event);
}

// ---- the edge -------------------------------------------------------------------------------------------------------

/// Over the whole height, so that it is hit easily.
QRect MacroFrameView::grip() const { return {width() - edge, 0, edge, height()}; }

/// A row of dots in the middle; the whole edge while the pointer is on it.
void MacroFrameView::paintEvent(QPaintEvent*)
{
    constexpr int dots = 7;
    constexpr int size = 2;
    const bool hot = m_editor.FrameMacros.MousePointer == MousePointer::SizeWestEast;
    QColor ground = palette().color(QPalette::Highlight);
    ground.setAlphaF(0.25F);
    QColor dot = palette().color(hot ? QPalette::Highlight : QPalette::WindowText);
    if (!hot) dot.setAlphaF(0.5F);
    const QRect area = grip();
    QPainter painter(this);
    if (hot) painter.fillRect(area, ground);
    const QPoint first = area.center() - QPoint(size / 2 - 1, (dots - 1) * size);
    for (int i = 0; i < dots; ++i) painter.fillRect(QRect(first + QPoint(0, 2 * i * size), QSize(size, size)), dot);
}

/// While the edge is dragged the mouse counts as over it, however fast it moves.
void MacroFrameView::reportMouse(const QMouseEvent& event)
{
    const int x = static_cast<int>(event.position().x());
    FrameMacros_MouseMove(m_editor, event.buttons().testFlag(Qt::LeftButton), toTwips(x),
                          m_dragging || x >= width() - edge);
}

void MacroFrameView::mouseMoveEvent(QMouseEvent* event) { reportMouse(*event); }

void MacroFrameView::mousePressEvent(QMouseEvent* event)
{
    m_dragging = event->button() == Qt::LeftButton && event->position().x() >= width() - edge;
}

void MacroFrameView::mouseReleaseEvent(QMouseEvent* event)
{
    m_dragging = false;
    reportMouse(*event);
}

void MacroFrameView::leaveEvent(QEvent*)
{
    if (!m_dragging) FrameMacros_MouseMove(m_editor, false, 0, false);
}

} // namespace tarvex
