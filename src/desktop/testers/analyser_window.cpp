#include "desktop/testers/analyser_window.h"

#include "desktop/menus/menu_view.h"
#include "desktop/testers/field_view.h"
#include "desktop/testers/joystick_clock.h"
#include "desktop/testers/numbers_view.h"

#include <QBuffer>
#include <QMenuBar>
#include <QScreen>
#include <QVBoxLayout>

#include <algorithm>
#include <utility>

namespace tarvex {

namespace {

constexpr QSize usualSize(520, 560);

std::string pngOf(const QImage& image)
{
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, "PNG");
    return bytes.toStdString();
}

} // namespace

AnalyserWindow::AnalyserWindow(Analyser& analyser, QWidget* parent)
    : ToolFormWindow(analyser.form, parent), m_analyser(analyser)
{
}

void AnalyserWindow::fill(const std::vector<MenuEntry>& menus, QWidget* middle, std::vector<FieldView*> fields)
{
    m_fields = std::move(fields);
    auto* column = new QVBoxLayout(this);
    auto* bar = new QMenuBar(this);
    fillMenuBar(*bar, menus, m_bindings);
    column->setMenuBar(bar);
    column->addWidget(middle, 1);
    Numbers& numbers = m_analyser.numbers;
    // Showing the panel would lay the window out at its old height first.
    m_bindings.follow(numbers.Visible, [this] { layout()->setEnabled(false); });
    m_numbers = new NumbersView(numbers, this);
    column->addWidget(m_numbers);
    m_bindings.follow(numbers.Visible, [this] {
        layout()->setEnabled(true);
        makeRoomForNumbers();
    });
    for (Label* text : {&numbers.Verdict, &numbers.Rate, &numbers.Kernel})
        m_bindings.follow(text->Caption, [this] { makeRoomForNumbers(); });
    makeRoomForNumbers();
    m_analyser.numbers.picture = [this] { return pngOf(field()->canvas()); };
    m_bindings.follow(m_analyser.PicJoy.refreshWanted, [this] { flush(); });
    auto* clock = new JoystickClock(m_analyser, this);
    connect(clock, &JoystickClock::ticked, this, [this] { flush(); });
}

/// They are as wide as the window, and as high as their texts are in so many lines.
int AnalyserWindow::heightOfNumbers() const
{
    const QMargins margins = layout()->contentsMargins();
    return m_numbers->layout()->totalHeightForWidth(width() - margins.left() - margins.right());
}

/// The window gets higher, where the screen has room for that, and the field keeps its size: another one would lose the
/// trail. Shorter texts give no room back.
void AnalyserWindow::makeRoomForNumbers()
{
    const int room =
        m_numbers->isHidden() ? 0 : std::max(m_numbersRoom, heightOfNumbers() + std::max(0, layout()->spacing()));
    const int change = room - std::exchange(m_numbersRoom, room);
    if (change == 0) return;
    m_numbers->setMinimumHeight(std::max(0, room - layout()->spacing()));
    if (!isVisible() || isMaximized()) return;
    const QRect available = screen()->availableGeometry();
    const QSize border = frameGeometry().size() - size();
    resize(width(), std::min(height() + change, available.height() - border.height()));
    const int over = frameGeometry().top() + height() + border.height() - available.bottom();
    if (over > 0) move(x(), std::max(available.top(), frameGeometry().top() - over));
}

/// Wide enough for the numbers from the start.
QSize AnalyserWindow::sizeHint() const
{
    const QMargins margins = layout()->contentsMargins();
    const int width = m_numbers->layout()->minimumSize().width() + margins.left() + margins.right();
    return QSize(std::max(usualSize.width(), width), usualSize.height() + m_numbersRoom)
        .boundedTo(screen()->availableSize() * 9 / 10);
}

void AnalyserWindow::flush()
{
    for (FieldView* view : m_fields) view->flush();
}

} // namespace tarvex
