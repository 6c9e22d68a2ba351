#pragma once

#include "desktop/bind.h"
#include "platform/toggle_label.h"

#include <QLabel>

namespace tarvex {

/// A label that is lit or not, as the state says; the user can't press it.
class Lamp : public QLabel {
    Q_OBJECT
public:
    Lamp(ToggleLabel& state, const QString& name, Bindings& bindings, QWidget* parent);

private:
    void light(bool on);
};

} // namespace tarvex
