#include "desktop/testers/tca_view.h"

#include "desktop/shell/elided_label.h"
#include "desktop/testers/field_view.h"
#include "desktop/testers/lamp.h"

#include <QGridLayout>
#include <QHBoxLayout>

namespace tarvex {

namespace {

constexpr int stripWidth = 28;

FieldView* fieldView(TCAform& window, DrawingField& field, const char* name, const char* accessibleName,
                     QWidget* parent)
{
    auto* view = new FieldView(field, name, parent);
    view->setAccessibleName(QLatin1String(accessibleName));
    view->resized = [&window] { ResizeStuff(window); };
    return view;
}

} // namespace

TcaView::TcaView(TCAform& window, QWidget* parent) : AnalyserWindow(window, parent)
{
    auto* middle = new QWidget(this);
    auto* grid = new QGridLayout(middle);
    grid->setContentsMargins(0, 0, 0, 0);
    FieldView* stick = fieldView(window, window.PicJoy, "PicJoy", "Position of the stick", middle);
    FieldView* throttle = fieldView(window, window.PicThrottle, "PicThrottle", "Throttle", middle);
    FieldView* rudder = fieldView(window, window.PicRudder, "PicRudder", "Rudders", middle);
    throttle->setFixedWidth(stripWidth);
    rudder->setFixedHeight(stripWidth);
    grid->addWidget(stick, 0, 0);
    grid->addWidget(throttle, 0, 1);
    grid->addWidget(rudder, 1, 0);
    grid->addLayout(buttonRow(window), 2, 0, 1, 2);
    grid->setRowStretch(0, 1);
    grid->setColumnStretch(0, 1);
    fill(window.menuBar(), middle, {stick, throttle, rudder});
}

QLayout* TcaView::buttonRow(TCAform& window)
{
    auto* row = new QHBoxLayout;
    for (std::size_t i = 0; i < window.JoyButtonAnalogue.size(); ++i) {
        auto* lamp =
            new Lamp(window.JoyButtonAnalogue[i], QStringLiteral("JoyButtonAnalogue_%1").arg(i), m_bindings, this);
        lamp->setMinimumWidth(stripWidth);
        lamp->setAccessibleName(QStringLiteral("Button %1").arg(i + 1));
        row->addWidget(lamp);
    }
    auto* more = new ElidedLabel(this); // many buttons must not make the window wider
    more->setObjectName(QStringLiteral("MoreButtons"));
    m_bindings.bind(window.MoreButtons.Caption, [more](const std::string& text) { more->setText(toQt(text)); });
    row->addWidget(more, 1);
    return row;
}

} // namespace tarvex
