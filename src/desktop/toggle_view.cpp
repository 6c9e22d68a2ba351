#include "desktop/toggle_view.h"

#include <QAbstractButton>

namespace tarvex {

void bindToggle(ToggleLabel& state, QAbstractButton& widget, Bindings& bindings)
{
    widget.setCheckable(true);
    bindings.bind(state.Caption, [&widget](const std::string& caption) { widget.setText(toQt(caption)); });
    bindings.bind(state.Visible, [&widget](bool on) { widget.setVisible(on); });
    bindings.bind(state.ToolTipText, [&widget](const std::string& tip) { widget.setToolTip(toQt(tip)); });
    bindings.bind(state.BackColor, [&state, &widget](Colour) {
        widget.setChecked(state.isHeld());
        QPalette colours;
        if (state.isHeld()) {
            colours.setColor(QPalette::Button, toQt(ToggleLabel::heldColour));
            colours.setColor(QPalette::ButtonText, Qt::black);
        }
        widget.setPalette(colours);
    });
    // The held state is the logic's business, not the click's.
    QObject::connect(&widget, &QAbstractButton::clicked, &widget, [&state, &widget] {
        if (state.Click) state.Click();
        widget.setChecked(state.isHeld());
    });
}

} // namespace tarvex
