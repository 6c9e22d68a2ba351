#include "desktop/testers/joy_plot_view.h"

#include "desktop/testers/field_view.h"

#include <QResizeEvent>

namespace tarvex {

namespace {

/// Leaves the place of the field to the logic.
class Room : public QWidget {
public:
    Room(JoyPlot& window, QWidget* parent) : QWidget(parent), m_window(window)
    {
        setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    }
    QSize minimumSizeHint() const override { return {200, 200}; }

protected:
    void resizeEvent(QResizeEvent* event) override
    {
        m_window.InnerWidth = event->size().width();
        m_window.InnerHeight = event->size().height();
        Form_Resize(m_window);
    }

private:
    JoyPlot& m_window;
};

} // namespace

JoyPlotView::JoyPlotView(JoyPlot& window, QWidget* parent)
    : AnalyserWindow(window, parent), m_window(window), m_room(new Room(window, this))
{
    auto* field = new FieldView(window.PicJoy, "PicJoy", m_room);
    field->setAccessibleName(QStringLiteral("Position of the stick"));
    m_bindings.bind(window.PicJoyPlace, [field](const Placement& place) {
        field->setGeometry(place.Left, place.Top, place.Width, place.Height);
    });
    m_bindings.follow(window.sizeWanted, [this](int width, int height) { shrinkRoom(width, height); });
    fill(window.menuBar(), m_room, {field});
}

/// Later, because the layout that asked is still at work.
void JoyPlotView::shrinkRoom(int width, int height)
{
    QMetaObject::invokeMethod(
        this,
        [this, width, height] {
            if (m_window.MaintainRatio == 0) return;
            resize(size() - m_room->size() + QSize(width, height));
        },
        Qt::QueuedConnection);
}

} // namespace tarvex
