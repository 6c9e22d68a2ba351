#include "desktop/testers/analyser_window.h"

#include "desktop/menus/menu_view.h"
#include "desktop/testers/field_view.h"
#include "desktop/testers/joystick_clock.h"
#include "desktop/testers/numbers_view.h"

#include <QBuffer>
#include <QMenuBar>
#include <QScreen>
#include <QVBoxLayout>

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
    column->addWidget(new NumbersView(m_analyser.numbers, this));
    m_analyser.numbers.picture = [this] { return pngOf(field()->canvas()); };
    m_bindings.follow(m_analyser.PicJoy.refreshWanted, [this] { flush(); });
    auto* clock = new JoystickClock(m_analyser, this);
    connect(clock, &JoystickClock::ticked, this, [this] { flush(); });
}

QSize AnalyserWindow::sizeHint() const { return usualSize.boundedTo(screen()->availableSize() * 9 / 10); }

void AnalyserWindow::flush()
{
    for (FieldView* view : m_fields) view->flush();
}

} // namespace tarvex
