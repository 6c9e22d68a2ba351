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
    m_numbers = new NumbersView(m_analyser.numbers, this);
    column->addWidget(m_numbers);
    m_bindings.follow(m_analyser.numbers.Visible, [this] { makeRoomForNumbers(m_analyser.numbers.Visible); });
    m_analyser.numbers.picture = [this] { return pngOf(field()->canvas()); };
    m_bindings.follow(m_analyser.PicJoy.refreshWanted, [this] { flush(); });
    auto* clock = new JoystickClock(m_analyser, this);
    connect(clock, &JoystickClock::ticked, this, [this] { flush(); });
}

/// The field keeps its size where the screen has room for that.
void AnalyserWindow::makeRoomForNumbers(bool shown)
{
    if (!isVisible() || isMaximized()) return;
    const int height = m_numbers->sizeHint().height() + layout()->spacing();
    const QRect room = screen()->availableGeometry();
    const QSize border = frameGeometry().size() - size();
    resize(width(), std::min(this->height() + (shown ? height : -height), room.height() - border.height()));
    const int over = frameGeometry().top() + this->height() + border.height() - room.bottom();
    if (over > 0) move(x(), std::max(room.top(), frameGeometry().top() - over));
}

QSize AnalyserWindow::sizeHint() const
{
    const int numbers = m_numbers->isHidden() ? 0 : m_numbers->sizeHint().height() + layout()->spacing();
    return QSize(usualSize.width(), usualSize.height() + numbers).boundedTo(screen()->availableSize() * 9 / 10);
}

void AnalyserWindow::flush()
{
    for (FieldView* view : m_fields) view->flush();
}

} // namespace tarvex
