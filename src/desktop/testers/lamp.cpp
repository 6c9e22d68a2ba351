#include "desktop/testers/lamp.h"

namespace tarvex {

Lamp::Lamp(ToggleLabel& state, const QString& name, Bindings& bindings, QWidget* parent) : QLabel(parent)
{
    constexpr int margin = 3;
    setObjectName(name);
    setFrameStyle(QFrame::StyledPanel | QFrame::Plain);
    setAlignment(Qt::AlignCenter);
    setMargin(margin);
    setAutoFillBackground(true);
    bindings.bind(state.Caption, [this](const std::string& caption) { setText(toQt(caption)); });
    bindings.bind(state.BackColor, [this, &state](Colour) { light(state.isHeld()); });
}

void Lamp::light(bool on)
{
    QPalette colours;
    if (on) {
        colours.setColor(QPalette::Window, toQt(ToggleLabel::heldColour));
        colours.setColor(QPalette::WindowText, Qt::black);
    }
    setPalette(colours);
    setAccessibleDescription(on ? QStringLiteral("lit") : QString());
}

} // namespace tarvex
